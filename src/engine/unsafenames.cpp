#include "unsafenames.h"

#include "core/jobscript.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <atomic>

namespace quovara {

namespace {

std::atomic<bool> checkOn{true};

bool isSeparator(QChar c) {
    return c == QLatin1Char('\\') || c == QLatin1Char('/');
}

} // namespace

void SetUnsafeNameCheckForTesting(bool on) {
    checkOn = on;
}

bool IsUnsafeEntryName(const QString& stored) {
    if (stored.isEmpty() || !checkOn.load(std::memory_order_relaxed))
        return false;
    if (isSeparator(stored.front()))
        return true;
    // One pass: a part is ".." when exactly two dots stand between two separators (or the
    // ends); any ":" makes its part unsafe.
    qsizetype partStart = 0;
    const qsizetype n = stored.size();
    for (qsizetype i = 0; i <= n; ++i) {
        if (i < n) {
            const QChar c = stored[i];
            if (c == QLatin1Char(':'))
                return true;
            if (!isSeparator(c))
                continue;
        }
        if (i - partStart == 2 && stored[partStart] == QLatin1Char('.') &&
            stored[partStart + 1] == QLatin1Char('.'))
            return true;
        partStart = i + 1;
    }
    return false;
}

QString UnsafeShownName(const QString& stored) {
    QString shown = stored;
    for (QChar& c : shown) {
        if (isSeparator(c))
            c = QChar(0x2216); // SET MINUS, drawn like a backslash by common fonts
        else if (c == QLatin1Char(':'))
            c = QChar(0xA789); // MODIFIER LETTER COLON
        else if (c == QChar(0))
            c = QChar(0xFFFD);
    }
    // ".." alone is a stored name of one part: shown with a mark so that it is a file name.
    if (shown == QLatin1String(".") || shown == QLatin1String(".."))
        shown += QChar(0x2216);
    return shown;
}

QString UnsafeNamesList(const QStringList& names, qsizetype count) {
    QStringList shown;
    for (qsizetype i = 0; i < names.size() && i < kUnsafeNamesNamed; ++i)
        shown << names[i];
    QString text = shown.join(QLatin1Char('\n'));
    if (count > shown.size())
        text += QCoreApplication::translate("UnsafeNames", "\n… and %n more", nullptr,
                                            int(count - shown.size()));
    return text;
}

QString UnsafeEntriesMessage(const QString& archive, const QStringList& names, qsizetype count) {
    if (count == 1)
        return QCoreApplication::translate("UnsafeNames",
                                           "The archive\n%1\nholds 1 entry whose name would "
                                           "climb out of any folder it is extracted into. It is "
                                           "shown, but will never be extracted:\n\n%2")
            .arg(archive, UnsafeNamesList(names, count));
    return QCoreApplication::translate("UnsafeNames",
                                       "The archive\n%1\nholds %n entries whose names would "
                                       "climb out of any folder they are extracted into. They "
                                       "are shown, but will never be extracted:\n\n%2",
                                       nullptr, int(count))
        .arg(archive, UnsafeNamesList(names, count));
}

QString LeftOutMessage(const QStringList& names) {
    if (names.size() == 1)
        return QCoreApplication::translate("UnsafeNames",
                                           "1 entry was not extracted: its name would place it "
                                           "outside the destination folder.\n\n%1")
            .arg(UnsafeNamesList(names, names.size()));
    return QCoreApplication::translate("UnsafeNames",
                                       "%n entries were not extracted: their names would place "
                                       "them outside the destination folder.\n\n%1",
                                       nullptr, int(names.size()))
        .arg(UnsafeNamesList(names, names.size()));
}

QString NothingSafeMessage(const QStringList& names) {
    return QCoreApplication::translate("UnsafeNames",
                                       "Nothing was extracted: every entry of the archive has a "
                                       "name that would place it outside the destination "
                                       "folder.\n\n%1")
        .arg(UnsafeNamesList(names, names.size()));
}

bool LeftOutFits(const QStringList& names) {
    qsizetype room = kLeftOutRoom;
    for (const QString& name : names) {
        room -= name.size() + 4; // " !" and the quotes
        if (room < 0)
            return false;
    }
    return true;
}

QString TooManyUnsafeMessage(qsizetype count) {
    return QCoreApplication::translate("UnsafeNames",
                                       "Nothing was extracted: the archive holds %n entries whose "
                                       "names would place them outside the destination folder, "
                                       "too many to leave out one by one.",
                                       nullptr, int(count));
}

QString AddSourceProblem(const QString& source, bool recurse, const EngineTextCodecs& engine) {
    auto refused = [](const QString& name) {
        return name.contains(QLatin1Char('\\')) || name.contains(QLatin1Char(':'));
    };
    auto message = [](const QString& path) {
        return QCoreApplication::translate(
                   "UnsafeNames",
                   "The name of\n%1\nholds \"\\\" or \":\", which the engine would store as a "
                   "folder or a drive: extracted, it could land outside the folder it is "
                   "extracted into. Nothing was run; rename it first.")
            .arg(path);
    };
    const QFileInfo info(source);
    if (refused(info.fileName()))
        return message(source);
    if (!info.isDir())
        return QString();
    QDirIterator it(source, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    recurse ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    while (it.hasNext()) {
        const QString path = it.next();
        if (refused(it.fileName()))
            return message(path);
        // The engine reads each name below the source as "source\sub\name"; the folders on
        // the way were looked at before the entries they hold.
        if (engine.windows &&
            !ValueProblemForEngine(it.fileName(), QStringLiteral("name"), false, engine)
                 .isEmpty()) {
            const QString seen =
                info.fileName() + QLatin1Char('\\') +
                QDir(source).relativeFilePath(path).replace(QLatin1Char('/'), QLatin1Char('\\'));
            return ValueProblemForEngine(seen, QStringLiteral("name"), false, engine);
        }
    }
    return QString();
}

QString UnsafeItemMessage(const QString& stored) {
    return QCoreApplication::translate("UnsafeNames",
                                       "The entry\n%1\nis not extracted: its name would place "
                                       "it outside the destination folder.")
        .arg(stored);
}

} // namespace quovara
