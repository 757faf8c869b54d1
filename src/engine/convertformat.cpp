#include "convertformat.h"

#include "extracthere.h"

namespace quovara {

namespace {

constexpr ConvertFormat kFormats[] = {ConvertFormat::Zip, ConvertFormat::SevenZip,
                                      ConvertFormat::TarXz, ConvertFormat::TarZst};

} // namespace

QString ConvertFormatName(ConvertFormat format) {
    switch (format) {
    case ConvertFormat::Zip:
        return QStringLiteral("zip");
    case ConvertFormat::SevenZip:
        return QStringLiteral("7z");
    case ConvertFormat::TarXz:
        return QStringLiteral("tar.xz");
    case ConvertFormat::TarZst:
        return QStringLiteral("tar.zst");
    }
    return QString();
}

QStringList ConvertFormatNames() {
    QStringList names;
    for (ConvertFormat f : kFormats)
        names << ConvertFormatName(f);
    return names;
}

std::optional<ConvertFormat> ConvertFormatByName(const QString& name) {
    for (ConvertFormat f : kFormats)
        if (name.compare(ConvertFormatName(f), Qt::CaseInsensitive) == 0)
            return f;
    return std::nullopt;
}

QString ConvertedName(const QString& archivePath, ConvertFormat format) {
    return ArchiveBaseName(archivePath) + QLatin1Char('.') + ConvertFormatName(format);
}

} // namespace quovara
