// Writes the new archive of a conversion with libarchive, from the files the engine extracted,
// and reads it back to check it. Streamed: a file is copied in pieces, so memory stays the
// same whatever the archive's size.
#pragma once

#include "convertformat.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <vector>

namespace quovara {

// One entry of the new archive.
struct ConvertItem {
    QString name;       // "a/b.txt"; a folder's without a trailing "/"
    QString sourcePath; // the extracted file (empty for a folder)
    bool folder = false;
    qint64 modified = 0; // seconds since 1970 (UTC)
    bool readOnly = false;
    quint64 size = 0;
    quint32 crc = 0;
};

struct ConvertWriteResult {
    bool ok = false;
    bool stopped = false;
    QString problem;
};

// Writes `items`, in their order, as a new archive in `format` at `path` (which must not
// exist: it is created, never replaced). Names are stored in UTF-8 (a zip marks them so);
// files get mode 0644 (0444 when read-only), folders 0755, no owner names. Each file's bytes
// are checked again as they are copied: another size or CRC-32 fails the writing. `progress`
// is told the bytes copied so far. On a failure or a stop the file at `path` is removed.
ConvertWriteResult WriteConvertedArchive(const QString& path, ConvertFormat format,
                                         const std::vector<ConvertItem>& items,
                                         const std::atomic<bool>* stop = nullptr,
                                         const std::function<void(quint64)>& progress = {});

// Reads the archive at `path` back (any format libarchive reads) and compares it with `items`:
// the same entries, each file with its size and CRC-32. Empty when it matches, else what does
// not.
QString ReadBackProblem(const QString& path, const std::vector<ConvertItem>& items,
                        const std::atomic<bool>* stop = nullptr,
                        const std::function<void(quint64)>& progress = {});

} // namespace quovara
