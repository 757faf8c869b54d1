#include "findfile.h"

#include "core/logging.h"
#include "core/vbtext.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#endif

namespace quovara {

QString CompleteSearchPattern(const QString& text) {
    // Look for a dot from the last character back to the second.
    for (qsizetype i = text.size() - 1; i >= 1; --i) {
        if (text[i] == QLatin1Char('.'))
            return text;
    }
    return text + QLatin1Char('*');
}

FindFile::FindFile(QObject* parent) : QObject(parent) {
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &FindFile::step);
}

void FindFile::start(const QString& pattern, const QString& root) {
    stop();
    pattern_ = pattern;
    root_ = QDir::cleanPath(root);
    hits_ = 0;
    searching_ = true;
    sinceHandOver_.invalidate();
    pushFolder(root_);
    timer_.start();
}

void FindFile::stop() {
    if (!searching_)
        return;
    searching_ = false;
    timer_.stop();
    stack_.clear();
    // Results not yet handed over are dropped: a stopped search shows no more.
    pending_.clear();
    emit finished(hits_);
}

void FindFile::pushFolder(const QString& folder) {
    // One pass over the folder sorts its entries into sub-folders and files. A link to a
    // folder is neither searched nor reported: the walk never leaves the mirror tree.
    Frame frame;
    frame.folder = folder;
#ifdef Q_OS_UNIX
    // Straight from the directory stream: the kind of most entries comes with its name, so a
    // folder of thousands of placeholders costs one read and no look-up per file.
    DIR* dir = ::opendir(QFile::encodeName(folder).constData());
    if (!dir) {
        qCDebug(lcFiles) << "search: cannot read folder" << folder << std::strerror(errno);
    } else {
        while (const dirent* entry = ::readdir(dir)) {
            const char* name = entry->d_name;
            if (name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0)))
                continue;
            unsigned char type = entry->d_type;
            struct stat st {};
            if (type == DT_UNKNOWN)
                type = ::fstatat(::dirfd(dir), name, &st, AT_SYMLINK_NOFOLLOW) != 0 ? DT_REG
                       : S_ISDIR(st.st_mode)                                        ? DT_DIR
                       : S_ISLNK(st.st_mode)                                        ? DT_LNK
                                                                                    : DT_REG;
            if (type == DT_LNK && ::fstatat(::dirfd(dir), name, &st, 0) == 0 && S_ISDIR(st.st_mode))
                continue;
            (type == DT_DIR ? frame.subfolders : frame.files) << QFile::decodeName(name);
        }
        ::closedir(dir);
    }
#else
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    while (it.hasNext()) {
        it.next();
        const QFileInfo info = it.fileInfo();
        if (!info.isDir())
            frame.files << info.fileName();
        else if (!info.isSymLink())
            frame.subfolders << info.fileName();
    }
#endif
    SortNames(frame.subfolders);
    SortNames(frame.files);
    stack_.append(std::move(frame));
}

void FindFile::collectHits(const Frame& frame) {
    // The folder as a path inside the archive: what follows the root and its separator.
    QString inside = frame.folder.mid(root_.size() + 1);
    inside.replace(QLatin1Char('/'), QLatin1Char('\\'));
    for (const QString& name : frame.files) {
        if (!WildcardMatch(name, pattern_))
            continue;
        if (hits_ < 32767)
            ++hits_;
        pending_.append({name, inside});
    }
}

void FindFile::handOver() {
    if (pending_.isEmpty())
        return;
    sinceHandOver_.start();
    const QList<SearchHit> hits = std::move(pending_);
    pending_.clear();
    emit found(hits);
}

void FindFile::step() {
    // A few milliseconds of work per turn of the event loop.
    QElapsedTimer spent;
    spent.start();
    while (searching_ && !stack_.isEmpty() && spent.elapsed() < 8) {
        Frame& top = stack_.last();
        if (top.next < top.subfolders.size()) {
            const QString sub = top.folder + QLatin1Char('/') + top.subfolders[top.next++];
            pushFolder(sub);
            continue;
        }
        collectHits(stack_.takeLast());
    }
    if (!searching_)
        return;
    // The first results are shown at once, later ones a few times a second: every hand-over
    // makes the list lay itself out again, which a hand-over per step would make the main
    // cost of a search that finds everything.
    if (stack_.isEmpty() || !sinceHandOver_.isValid() || sinceHandOver_.elapsed() >= kHandOverMs)
        handOver();
    if (stack_.isEmpty())
        stop();
}

} // namespace quovara
