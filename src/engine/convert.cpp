#include "convert.h"

#include "extracthere.h"

#include "core/logging.h"

#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QTime>

#include <algorithm>

namespace quovara {

namespace {

// The listing's date and time (local time, as the engine lists them) in seconds since 1970;
// `fallback` when they do not read.
qint64 listedTime(const EntryDetails& details, qint64 fallback) {
    if (!details.date)
        return fallback;
    const quint32 d = *details.date;
    const quint32 t = details.time.value_or(0);
    const QDate date(int(d / 10000), int(d / 100 % 100), int(d % 100));
    const QTime time(int(t / 10000), int(t / 100 % 100), int(t % 100));
    if (!date.isValid() || !time.isValid())
        return fallback;
    return QDateTime(date, time).toSecsSinceEpoch();
}

QString parentOf(const QString& name) {
    const qsizetype slash = name.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? QString() : name.left(slash);
}

} // namespace

QString ConvertedNameNumbered(const QString& archivePath, ConvertFormat format, int n) {
    QString base = ArchiveBaseName(archivePath);
    if (n > 1)
        base += QStringLiteral(" (%1)").arg(n);
    return base + QLatin1Char('.') + ConvertFormatName(format);
}

std::vector<ConvertItem> ConvertItems(const QString& staging, const std::vector<ListedFile>& files,
                                      const QStringList& emptyFolders, qint64 archiveTime) {
    std::vector<ConvertItem> items;
    items.reserve(files.size());
    // Each folder takes the time of the newest entry it holds; an empty one the archive's.
    QHash<QString, qint64> folders;
    auto addFolders = [&](QString folder, qint64 time) {
        for (; !folder.isEmpty(); folder = parentOf(folder)) {
            auto at = folders.find(folder);
            if (at == folders.end())
                folders.insert(folder, time);
            else if (*at < time)
                *at = time;
        }
    };
    const QDir root(staging);
    for (const ListedFile& file : files) {
        ConvertItem item;
        item.name = ConvertedEntryName(file.name);
        item.sourcePath = root.filePath(item.name);
        item.modified = listedTime(file.details, archiveTime);
        item.readOnly = file.details.attributes.contains(QLatin1Char('R'));
        item.size = file.details.size.value_or(0);
        item.crc = file.details.crc.value_or(0);
        addFolders(parentOf(item.name), item.modified);
        items.push_back(std::move(item));
    }
    for (const QString& folder : emptyFolders)
        addFolders(folder, archiveTime);
    for (auto it = folders.cbegin(); it != folders.cend(); ++it) {
        ConvertItem item;
        item.name = it.key();
        item.folder = true;
        item.modified = it.value();
        items.push_back(std::move(item));
    }
    // A folder's name is the beginning of every name it holds, so it sorts before them.
    std::sort(items.begin(), items.end(), [](const ConvertItem& a, const ConvertItem& b) {
        if (a.name == b.name)
            return a.folder && !b.folder;
        // "/" before every other letter, so that a folder's entries follow it at once.
        const QString ka = QString(a.name).replace(QLatin1Char('/'), QChar(1));
        const QString kb = QString(b.name).replace(QLatin1Char('/'), QChar(1));
        return ka < kb;
    });
    return items;
}

ConvertOutcome ConvertExtracted(const ConvertRequest& request, const std::atomic<bool>* stop,
                                const ConvertProgress& progress) {
    ConvertOutcome outcome;
    auto stopped = [&] {
        outcome.stopped = true;
        outcome.problem = QCoreApplication::translate("Convert", "The conversion was stopped.");
        return outcome;
    };
    if (request.files.empty()) {
        outcome.problem =
            QCoreApplication::translate("Convert", "The archive's listing holds no files.");
        return outcome;
    }
    quint64 done = 0;
    quint64 total = 0;
    for (const ListedFile& file : request.files)
        total += file.details.size.value_or(0);
    auto report = [&](ConvertStage stage) {
        return [&, stage](quint64 more) {
            done += more;
            if (progress)
                progress(stage, done, total);
        };
    };

    qCDebug(lcFiles) << "convert: checking" << request.files.size() << "files";
    const StagingCheck check =
        CheckStaging(request.staging, request.files, stop, report(ConvertStage::Checking),
                     request.names ? &*request.names : nullptr);
    if (check.stopped)
        return stopped();
    if (!check.ok()) {
        outcome.problem = check.problem();
        return outcome;
    }
    const qint64 archiveTime = QFileInfo(request.archivePath).lastModified().toSecsSinceEpoch();
    const std::vector<ConvertItem> items =
        ConvertItems(request.staging, request.files, check.emptyFolders, archiveTime);

    const QString unfinished =
        QDir(request.staging).filePath(QString::fromLatin1(UnfinishedArchiveName));
    qCDebug(lcFiles) << "convert: writing" << items.size() << "entries";
    done = 0;
    const ConvertWriteResult written = WriteConvertedArchive(unfinished, request.format, items,
                                                             stop, report(ConvertStage::Writing));
    if (written.stopped)
        return stopped();
    if (!written.ok) {
        outcome.problem = written.problem;
        return outcome;
    }
    qCDebug(lcFiles) << "convert: reading back";
    done = 0;
    const QString readBack =
        ReadBackProblem(unfinished, items, stop, report(ConvertStage::ReadingBack));
    if (stop && stop->load())
        return stopped();
    if (!readBack.isEmpty()) {
        outcome.problem = readBack;
        return outcome;
    }
    qCDebug(lcFiles) << "convert: placing";
    const PlacedExtraction placed =
        MoveToFreeName(unfinished, request.destinationFolder, [&](int n) {
            return ConvertedNameNumbered(request.archivePath, request.format, n);
        });
    if (!placed.ok) {
        outcome.problem =
            QCoreApplication::translate("Convert", "The new archive was written and checked, "
                                                   "but %1; nothing was left behind.")
                .arg(placed.problem);
        return outcome;
    }
    outcome.ok = true;
    outcome.placedPath = placed.placedPath;
    for (const ConvertItem& item : items)
        (item.folder ? outcome.folders : outcome.files) += 1;
    return outcome;
}

} // namespace quovara
