#include "stoppedextract.h"

#include "core/scriptexec.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QRegularExpression>

Q_LOGGING_CATEGORY(lcStoppedExtract, "quovara.engine.stopped", QtInfoMsg)

namespace quovara {

namespace {

const QString kVerb = QStringLiteral("Extracting ");
const QString kTotal = QStringLiteral("Total:");
// A name cut to fit its column starts with these dots and keeps its end.
const QString kCut = QStringLiteral("...");
// Files looked at, at most, to find a file by the end of its name.
constexpr int MaxFilesSearched = 200000;
// File times are kept to the second on some file systems: a file written in the second the
// job started still counts as written by it.
constexpr qint64 TimeSlackMs = 2000;

bool IsSeparatorLine(const QString& line) {
    return line.size() >= 40 && line.count(QLatin1Char('-')) == line.size();
}

bool Inside(const QString& path, const QString& folder) {
    if (folder.isEmpty())
        return false;
    const QString base = QDir::cleanPath(QDir(folder).absolutePath());
    const QString clean = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    return clean.startsWith(base.endsWith(QLatin1Char('/')) ? base : base + QLatin1Char('/'));
}

bool WrittenSince(const QFileInfo& file, const QDateTime& started) {
    return !started.isValid() || file.lastModified() >= started.addMSecs(-TimeSlackMs);
}

// The file a cut name ends, among the files below `folder` written since the job started; the
// one written last when several match.
QString FindByEnd(const QString& folder, const QString& end, const QDateTime& started) {
    QString best;
    QDateTime bestTime;
    QDirIterator it(folder, QDir::Files | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    for (int seen = 0; it.hasNext() && seen < MaxFilesSearched; ++seen) {
        const QString path = it.next();
        if (!path.endsWith(end))
            continue;
        const QFileInfo info = it.fileInfo();
        if (!WrittenSince(info, started))
            continue;
        if (best.isEmpty() || info.lastModified() > bestTime) {
            best = path;
            bestTime = info.lastModified();
        }
    }
    return best;
}

// The first sentence of the message: how many files were extracted whole.
QString StoppedText(int n) {
    if (n == 0)
        return QCoreApplication::translate("StoppedExtract",
                                           "The extraction was stopped: no file was extracted.");
    if (n == 1)
        return QCoreApplication::translate(
            "StoppedExtract", "The extraction was stopped: 1 file was extracted whole.");
    return QCoreApplication::translate(
        "StoppedExtract", "The extraction was stopped: %n files were extracted whole.", nullptr, n);
}

} // namespace

ExtractTrail ReadExtractTrail(const QStringList& lines) {
    static const QRegularExpression ownPercent(QStringLiteral(" \\(\\d{1,3}%\\)$"));
    ExtractTrail trail;
    int separators = 0;
    for (const QString& line : lines) {
        if (IsSeparatorLine(line)) {
            if (++separators == 2)
                break;
            continue;
        }
        // The lines before the first separator are the header ("Extracting 3 files ...").
        if (separators == 0)
            continue;
        if (line.startsWith(QLatin1String("Skipping "))) {
            trail.writing.clear();
            continue;
        }
        if (!line.startsWith(kVerb))
            continue;
        const qsizetype total = line.indexOf(kTotal, kVerb.size());
        if (total < 0) {
            // The line a file ends with: its name without the total.
            ++trail.wholeFiles;
            trail.writing.clear();
            continue;
        }
        QString name = line.mid(kVerb.size(), total - kVerb.size());
        while (name.endsWith(QLatin1Char(' ')))
            name.chop(1);
        name.remove(ownPercent);
        trail.writingCut = name.startsWith(kCut);
        trail.writing = trail.writingCut ? name.mid(kCut.size()) : name;
    }
    if (trail.writing.isEmpty())
        trail.writingCut = false;
    return trail;
}

StoppedExtract CleanUpStoppedExtract(const ExtractTrail& trail, const StoppedExtractJob& job) {
    StoppedExtract result;
    result.wholeFiles = trail.wholeFiles;
    if (trail.writing.isEmpty())
        return result;
    const QString destination = job.destination.isEmpty() ? job.workingFolder : job.destination;
    QString shown = trail.writing;
    if (job.underLauncher)
        shown = HostPathsInText(shown);
    shown.replace(QLatin1Char('\\'), QLatin1Char('/'));

    QString path;
    if (trail.writingCut) {
        path = FindByEnd(destination, shown, job.started);
    } else {
        path = QDir::isAbsolutePath(shown) ? shown : QDir(job.workingFolder).filePath(shown);
        if (!QFileInfo(path).isFile())
            path.clear();
    }
    // Only a file where the job wrote is ever touched.
    if (!path.isEmpty() && !Inside(path, destination) && !Inside(path, job.workingFolder)) {
        qCDebug(lcStoppedExtract) << "not where the job wrote, left alone:" << path;
        path.clear();
    }
    if (path.isEmpty()) {
        result.notFound = trail.writingCut ? kCut + trail.writing : trail.writing;
        if (job.underLauncher)
            result.notFound = HostPathsInText(result.notFound);
        return result;
    }
    const QFileInfo file(path);
    if (!WrittenSince(file, job.started)) {
        // Stamped with its stored time: the engine had finished it.
        result.kept = path;
        ++result.wholeFiles;
        return result;
    }
    const QDateTime born = file.birthTime();
    if (born.isValid())
        result.replacedUsersFile = job.started.isValid() && born < job.started;
    else
        result.replacedUnsure = job.overwrite;
    result.removed = path;
    QFile incomplete(path);
    if (!incomplete.remove()) {
        result.notRemovedWhy = incomplete.errorString();
        qCDebug(lcStoppedExtract) << "incomplete file not removed:" << path
                                  << incomplete.errorString();
    }
    return result;
}

QString StoppedExtractMessage(const StoppedExtract& r) {
    QString text = StoppedText(r.wholeFiles);
    if (!r.removed.isEmpty()) {
        const QString name = QDir::toNativeSeparators(r.removed);
        if (r.notRemovedWhy.isEmpty())
            text += QCoreApplication::translate("StoppedExtract",
                                                "\n\n\"%1\" was being written and was "
                                                "incomplete: it has been removed.")
                        .arg(name);
        else
            text += QCoreApplication::translate("StoppedExtract",
                                                "\n\n\"%1\" was being written and is incomplete, "
                                                "but it could not be removed (%2): please delete "
                                                "it.")
                        .arg(name, r.notRemovedWhy);
        if (r.replacedUsersFile)
            text += QCoreApplication::translate("StoppedExtract",
                                                "\nIt had replaced a file of yours of the same "
                                                "name; the engine had already overwritten that "
                                                "file, so its contents are lost.");
        else if (r.replacedUnsure)
            text += QCoreApplication::translate("StoppedExtract",
                                                "\nIf a file of yours had that name, the engine "
                                                "had already overwritten it, so its contents are "
                                                "lost.");
    } else if (!r.notFound.isEmpty()) {
        text += QCoreApplication::translate(
                    "StoppedExtract", "\n\nThe file being written (\"%1\") was not found on disk.")
                    .arg(QDir::toNativeSeparators(r.notFound));
    }
    return text;
}

} // namespace quovara
