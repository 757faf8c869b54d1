#include "convertcheck.h"

#include "listing.h"

#include "core/logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QSet>

#include <zlib.h>

namespace quovara {

namespace {

// The listing's entries start on its tenth line, a name line and a detail line each.
constexpr qsizetype kFirstEntryLine = 9;
constexpr qint64 kPiece = 1 << 20;
// How many names of each kind a message lists before "and n more".
constexpr int kNamesShown = 10;

QString listed(const QStringList& names) {
    QStringList shown = names.mid(0, kNamesShown);
    QString text = QStringLiteral("  ") + shown.join(QStringLiteral("\n  "));
    if (names.size() > kNamesShown)
        text += QLatin1Char('\n') + QCoreApplication::translate("Convert", "  and %n more", nullptr,
                                                                int(names.size() - kNamesShown));
    return text;
}

} // namespace

std::vector<ListedFile> ReadListedFiles(const QStringList& lines) {
    const QString separator = ListingSeparator();
    std::vector<ListedFile> files;
    QHash<QString, size_t> at; // a name's place in `files`, by its case-folded form
    bool complete = false;
    for (qsizetype i = kFirstEntryLine; i < lines.size(); i += 2) {
        const QString name = EntryName(lines[i]);
        if (name == separator) {
            complete = true;
            break;
        }
        if (i + 1 >= lines.size())
            break;
        ListedFile file{name, ParseDetailLine(lines[i + 1])};
        const QString key = name.toCaseFolded();
        if (const auto known = at.constFind(key); known != at.constEnd()) {
            files[*known] = std::move(file);
            continue;
        }
        at.insert(key, files.size());
        files.push_back(std::move(file));
    }
    if (!complete)
        files.clear();
    return files;
}

QString ConvertedEntryName(const QString& storedName) {
    QString name = storedName;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return name;
}

QString StagingCheck::problem() const {
    if (stopped)
        return QCoreApplication::translate("Convert", "The conversion was stopped.");
    QStringList parts;
    if (!missing.isEmpty())
        parts << QCoreApplication::translate(
                     "Convert", "The engine did not extract these entries of the listing:\n%1")
                     .arg(listed(missing));
    if (!mismatched.isEmpty())
        parts << QCoreApplication::translate(
                     "Convert",
                     "These entries were extracted with another size or CRC-32 than the listing "
                     "gives:\n%1")
                     .arg(listed(mismatched));
    if (!unlisted.isEmpty())
        parts << QCoreApplication::translate(
                     "Convert", "The engine extracted files the listing does not have:\n%1")
                     .arg(listed(unlisted));
    return parts.join(QStringLiteral("\n\n"));
}

bool FileCrc32(const QString& path, quint32* crc, quint64* size, const std::atomic<bool>* stop,
               const std::function<void(quint64)>& progress) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // One piece for every file read on this thread: a new one per file would be mapped and
    // faulted in again each time.
    thread_local QByteArray piece(kPiece, Qt::Uninitialized);
    uLong value = crc32(0L, Z_NULL, 0);
    quint64 total = 0;
    for (;;) {
        if (stop && stop->load())
            return false;
        const qint64 got = file.read(piece.data(), kPiece);
        if (got < 0)
            return false;
        if (got == 0)
            break;
        value = crc32(value, reinterpret_cast<const Bytef*>(piece.constData()), uInt(got));
        total += quint64(got);
        if (progress)
            progress(quint64(got));
    }
    *crc = quint32(value);
    *size = total;
    return true;
}

QStringList EngineMadeCuts(const QString& folderPath, const EngineCodec& names) {
    QStringList cuts;
    if (names.isUtf8())
        return cuts;
    for (qsizetype i = 1; i < folderPath.size(); ++i) {
        const QChar c = folderPath.at(i);
        if (c == QLatin1Char('/') || c.unicode() < 0x80)
            continue;
        const QByteArray bytes = names.encode(QString(c));
        if (bytes.size() == 2 && bytes.at(1) == '\\' && folderPath.at(i - 1) != QLatin1Char('/'))
            cuts << folderPath.left(i);
    }
    return cuts;
}

StagingCheck CheckStaging(const QString& staging, const std::vector<ListedFile>& files,
                          const std::atomic<bool>* stop,
                          const std::function<void(quint64)>& progress, const EngineCodec* names) {
    StagingCheck check;
    const QDir root(staging);
    QSet<QString> expected;
    QSet<QString> engineMade;
    for (const ListedFile& file : files) {
        const QString name = ConvertedEntryName(file.name);
        expected.insert(name);
        if (names) {
            const qsizetype slash = name.lastIndexOf(QLatin1Char('/'));
            if (slash > 0)
                for (const QString& cut : EngineMadeCuts(name.left(slash), *names))
                    engineMade.insert(cut);
        }
        check.bytes += file.details.size.value_or(0);
        const QString path = root.filePath(name);
        const QFileInfo info(path);
        if (!info.isFile() || info.isSymLink()) {
            check.missing << file.name;
            continue;
        }
        quint32 crc = 0;
        quint64 size = 0;
        if (!FileCrc32(path, &crc, &size, stop, progress)) {
            if (stop && stop->load()) {
                check.stopped = true;
                return check;
            }
            qCDebug(lcFiles) << "could not read the extracted file" << path;
            check.missing << file.name;
            continue;
        }
        const bool sizeOk = file.details.size && *file.details.size == size;
        const bool crcOk = file.details.crc && *file.details.crc == crc;
        if (!sizeOk || !crcOk)
            check.mismatched
                << QCoreApplication::translate(
                       "Convert", "%1 (size %2, CRC-32 %3; listed: size %4, CRC-32 %5)")
                       .arg(file.name, QString::number(size),
                            QStringLiteral("%1").arg(crc, 8, 16, QLatin1Char('0')).toUpper(),
                            file.details.size ? QString::number(*file.details.size)
                                              : QStringLiteral("?"),
                            file.details.crc ? file.details.crcText() : QStringLiteral("?"));
    }
    // Everything else the engine made: folders are fine (the empty ones are kept), files are
    // not.
    QDirIterator it(staging, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QFileInfo info = it.fileInfo();
        const QString name = root.relativeFilePath(path);
        if (info.isDir() && !info.isSymLink()) {
            if (QDir(path).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System |
                                   QDir::NoDotAndDotDot)) {
                if (engineMade.contains(name))
                    qCDebug(lcFiles) << "left out a folder the engine made by mistake:" << name;
                else
                    check.emptyFolders << name;
            }
            continue;
        }
        if (!expected.contains(name))
            check.unlisted << QString(name).replace(QLatin1Char('/'), QLatin1Char('\\'));
    }
    check.emptyFolders.sort();
    return check;
}

} // namespace quovara
