#include "archivesearch.h"

#include "core/vbtext.h"

#include <QDir>

namespace quovara {

QString CompleteSearchPattern(const QString& text) {
    // Look for a dot from the last character back to the second.
    for (qsizetype i = text.size() - 1; i >= 1; --i) {
        if (text[i] == QLatin1Char('.'))
            return text;
    }
    return text + QLatin1Char('*');
}

ArchiveSearch::ArchiveSearch(QObject* parent) : QObject(parent) {
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &ArchiveSearch::step);
}

void ArchiveSearch::start(const QString& pattern, const QString& root) {
    stop();
    pattern_ = pattern;
    root_ = QDir::cleanPath(root);
    hits_ = 0;
    searching_ = true;
    pushFolder(root_);
    timer_.start();
}

void ArchiveSearch::stop() {
    if (!searching_)
        return;
    searching_ = false;
    timer_.stop();
    stack_.clear();
    emit finished(hits_);
}

void ArchiveSearch::pushFolder(const QString& folder) {
    Frame frame;
    frame.folder = folder;
    frame.subfolders = QDir(folder).entryList(
        QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks, QDir::Name);
    stack_.append(frame);
}

void ArchiveSearch::emitFiles(const QString& folder) {
    // The folder as a path inside the archive: what follows the root and its separator.
    QString inside = folder.mid(root_.size() + 1);
    inside.replace(QLatin1Char('/'), QLatin1Char('\\'));
    const QStringList files =
        QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    for (const QString& name : files) {
        if (!WildcardMatch(name, pattern_))
            continue;
        if (hits_ < 32767)
            ++hits_;
        emit found(name, inside);
    }
}

void ArchiveSearch::step() {
    // A bounded amount of work per turn of the event loop.
    for (int budget = 64; budget > 0 && searching_; --budget) {
        if (stack_.isEmpty()) {
            stop();
            return;
        }
        Frame& top = stack_.last();
        if (top.next < top.subfolders.size()) {
            const QString sub = QDir(top.folder).filePath(top.subfolders[top.next++]);
            pushFolder(sub);
            continue;
        }
        const QString folder = top.folder;
        stack_.removeLast();
        emitFiles(folder);
    }
}

} // namespace quovara
