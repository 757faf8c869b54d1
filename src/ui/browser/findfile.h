// Searching the open archive by file name: a walk of the mirror tree in the ScratchFolder,
// deeper folders first (a folder's sub-folders are searched before its own files), names in
// each folder in the browser's order (FileManagerLess). The walk runs in steps of a few
// milliseconds from the event loop and hands over what each step found at once, so the window
// stays live, results show as they are found, and the search can be stopped at any time.
#pragma once

#include "ui/common/nameorder.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

namespace quovara {

// The text typed becomes a pattern: without a "." after its first character a "*" is
// appended ("read" -> "read*", ".txt" -> ".txt*", "*.txt" stays).
QString CompleteSearchPattern(const QString& text);

// One result: the file's name and its folder as a path inside the archive ("\" separators;
// empty for the archive's root).
struct SearchHit {
    QString name;
    QString archiveFolder;
};

// The search of one pattern: the walk of the folder tree, from `start` until its end or `stop`.
class FindFile : public QObject {
    Q_OBJECT
public:
    explicit FindFile(QObject* parent = nullptr);

    // Starts a search of `root` (the ScratchFolder) for `pattern` (already completed). A
    // search under way is stopped first.
    void start(const QString& pattern, const QString& root);
    void stop();
    bool isSearching() const { return searching_; }
    qint16 hits() const { return hits_; }

signals:
    // The results of one step of the walk, in the order they were found.
    void found(const QList<quovara::SearchHit>& hits);
    void finished(int hits);

private:
    struct Frame {
        QString folder;
        QStringList subfolders;
        QStringList files;
        int next = 0;
    };
    void step();
    void pushFolder(const QString& folder);
    void collectHits(const Frame& frame);
    void handOver();

    // At most this long between two hand-overs of results, once the first are shown.
    static constexpr int kHandOverMs = 100;

    QString pattern_;
    QString root_;
    QList<Frame> stack_;
    QList<SearchHit> pending_;
    // Since the last hand-over; invalid until the first of a search.
    QElapsedTimer sinceHandOver_;
    QTimer timer_;
    bool searching_ = false;
    qint16 hits_ = 0;
};

} // namespace quovara
