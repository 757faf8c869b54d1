// The open formats a UHARC archive can be converted into, by the names the command line and
// the new archive's extension use.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace quovara {

enum class ConvertFormat { Zip, SevenZip, TarXz, TarZst };

// "zip", "7z", "tar.xz", "tar.zst": the name given to --convert and the new archive's
// extension.
QString ConvertFormatName(ConvertFormat format);

// Every format's name, in the order they are offered.
QStringList ConvertFormatNames();

// The format of a name as above (in any case: "ZIP" too); none for anything else.
std::optional<ConvertFormat> ConvertFormatByName(const QString& name);

// The archive's name in `format` for an archive at `archivePath`: "photos.uha" → "photos.zip".
QString ConvertedName(const QString& archivePath, ConvertFormat format);

} // namespace quovara
