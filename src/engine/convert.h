// Converting a UHARC archive into an open format, once the engine has extracted it into a
// private staging folder: every extracted file is checked against the listing (size and
// CRC-32), the new archive is written under a temporary name inside the staging folder, read
// back and checked again, and only then moved beside its destination under a free name
// ("name.zip", else "name (2).zip", …), never over anything. Whatever goes wrong, nothing is
// left but the staging folder, which the caller removes.
#pragma once

#include "convertcheck.h"
#include "convertformat.h"
#include "convertwriter.h"

#include <QString>

#include <atomic>
#include <functional>
#include <optional>
#include <vector>

namespace quovara {

struct ConvertRequest {
    QString archivePath;       // the .uha archive
    QString staging;           // the folder the engine extracted it into
    QString destinationFolder; // where the new archive goes
    ConvertFormat format = ConvertFormat::Zip;
    std::vector<ListedFile> files; // the archive's listing
    // The code page a Windows engine made the folders in; none for an engine that writes UTF-8.
    std::optional<EngineCodec> names;
};

enum class ConvertStage { Checking, Writing, ReadingBack };

// What a conversion is doing: its stage, and the bytes done of the stage's total.
using ConvertProgress = std::function<void(ConvertStage stage, quint64 done, quint64 total)>;

struct ConvertOutcome {
    bool ok = false;
    bool stopped = false;
    QString placedPath; // the new archive
    QString problem;    // why not, naming the entries
    qsizetype files = 0;
    qsizetype folders = 0;
};

// The new archive's name for the n-th try: "photos.zip", "photos (2).zip", …
QString ConvertedNameNumbered(const QString& archivePath, ConvertFormat format, int n);

// The entries of the new archive: the listed files and every folder (the empty ones the engine
// made included), folders before what they hold, in name order.
std::vector<ConvertItem> ConvertItems(const QString& staging, const std::vector<ListedFile>& files,
                                      const QStringList& emptyFolders, qint64 archiveTime);

// Does the conversion; runs beside the window's thread (it touches no widget). `stop` ends it
// at the next piece.
ConvertOutcome ConvertExtracted(const ConvertRequest& request, const std::atomic<bool>* stop,
                                const ConvertProgress& progress);

// The name of the temporary archive inside the staging folder: one the engine cannot have
// extracted (":" is no letter of a Windows file name).
inline constexpr char UnfinishedArchiveName[] = "new archive:unfinished";

} // namespace quovara
