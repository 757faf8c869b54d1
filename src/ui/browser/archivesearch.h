// Searching the open archive by file name: a walk of the mirror tree in the ScratchFolder,
// deeper folders first (a folder's sub-folders are searched before its own files). The walk
// runs in small steps from the event loop, so the window stays live and the search can be
// stopped at any time.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

namespace quovara {

// The text typed becomes a pattern: without a "." after its first character a "*" is
// appended ("read" -> "read*", ".txt" -> ".txt*", "*.txt" stays).
QString CompleteSearchPattern(const QString& text);

class ArchiveSearch : public QObject {
    Q_OBJECT
public:
    explicit ArchiveSearch(QObject* parent = nullptr);

    // Starts a search of `root` (the ScratchFolder) for `pattern` (already completed). A
    // search under way is stopped first.
    void start(const QString& pattern, const QString& root);
    void stop();
    bool isSearching() const { return searching_; }
    qint16 hits() const { return hits_; }

signals:
    // One result: the file's name and its folder as a path inside the archive ("\"
    // separators; empty for the archive's root).
    void found(const QString& name, const QString& archiveFolder);
    void finished(int hits);

private:
    struct Frame {
        QString folder;
        QStringList subfolders;
        int next = 0;
    };
    void step();
    void pushFolder(const QString& folder);
    void emitFiles(const QString& folder);

    QString pattern_;
    QString root_;
    QList<Frame> stack_;
    QTimer timer_;
    bool searching_ = false;
    qint16 hits_ = 0;
};

} // namespace quovara
