// The big archive that the measurements share: its entries (100 folders of 10 sub-folders of
// 100 files each for 100,000 entries; with QUOVARA_BENCH_LONG_NAMES set, names of 240 and 300
// bytes), the engine's listing log of it, and the bare loop that
// creates the same files and folders, the baseline of every mirror-tree figure.
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QSet>
#include <QString>
#include <QtGlobal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace quovara::bench {

struct Entry {
    QByteArray folder; // "d012/s3"
    QByteArray file;   // "f00042.txt"
};

// `count` entries in one folder ("flat"), the hardest case for sorting a folder.
inline std::vector<Entry> makeFlatEntries(int count) {
    std::vector<Entry> entries(size_t(std::max(count, 0)));
    for (int i = 0; i < count; ++i) {
        entries[size_t(i)].folder = "flat";
        entries[size_t(i)].file =
            QByteArray("f") + QByteArray::number(i).rightJustified(6, '0') + ".txt";
    }
    return entries;
}

inline std::vector<Entry> makeEntries(int count) {
    std::vector<Entry> entries;
    entries.reserve(count);
    for (int i = 0; i < count; ++i) {
        Entry e;
        e.folder = QByteArray("d") + QByteArray::number(i / 1000).rightJustified(3, '0') + "/s" +
                   QByteArray::number((i / 100) % 10);
        e.file = QByteArray("f") + QByteArray::number(i).rightJustified(6, '0') + ".txt";
        if (qEnvironmentVariableIsSet("QUOVARA_BENCH_LONG_NAMES")) {
            // Long names in two-byte letters, as archives from Windows have them: 240 bytes,
            // and every hundredth 300 bytes, more than a name here can be (shown shortened).
            const int letters = i % 100 == 0 ? 150 : 120;
            e.file = QString(letters, QChar(0x0416)).toUtf8() + e.file;
        }
        entries.push_back(e);
    }
    return entries;
}

// The log that "uharc l -d2" writes for the entries (0.6 layout, CR LF).
inline QByteArray makeLog(const std::vector<Entry>& entries) {
    QByteArray log =
        "\r\n=== UHARC 0.6 LOG =================================== 22-Nov-2026  14:35:54 "
        "===\r\nEnvironment: \"\"\r\nCommandline: \"uharc.exe l -d2 -y+ -lgLOG.txt "
        "big.uha\"\r\n\r\nProcessing archive \"big.uha\" (created: 22-Nov-2026, "
        "14:35).\r\n\r\nfile                                size     date        time "
        "   attr   crc-32 \r\n" +
        QByteArray(79, '-') + "\r\n";
    static const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    quint32 n = 0;
    for (const Entry& e : entries) {
        QByteArray name = e.folder + "/" + e.file;
        name.replace('/', '\\');
        // Details that differ from entry to entry, as a real archive's do.
        ++n;
        const quint32 mix = n * 2654435761u;
        const QByteArray details =
            QByteArray::number(mix % 5000000).rightJustified(40, ' ') + "  " +
            QByteArray::number(1 + mix % 28).rightJustified(2, '0') + "-" + months[mix % 12] + "-" +
            QByteArray::number(1995 + mix % 30) + "  " +
            QByteArray::number(mix % 24).rightJustified(2, '0') + ":" +
            QByteArray::number(mix / 7 % 60).rightJustified(2, '0') + ":" +
            QByteArray::number(mix / 11 % 60).rightJustified(2, '0') +
            (mix % 3 == 0 ? "  R--A  " : "  ---A  ") +
            QByteArray::number(mix ^ 0x5bd1e995u, 16).toUpper().rightJustified(8, '0');
        log += name + "\r\n" + details + "\r\n";
    }
    log += QByteArray(79, '-') + "\r\n" + QByteArray::number(qulonglong(entries.size())) +
           " files                                0\r\n                                       0 "
           "packed (ALZ:2-mode), ratio: 0.0%\r\n" +
           QByteArray(79, '=') + "\r\n\r\n";
    return log;
}

// Creates the entries as empty files under `root` with plain system calls, each folder made
// once; returns the milliseconds it took.
inline double bareRun(const std::vector<Entry>& entries, const QByteArray& root) {
    QElapsedTimer t;
    t.start();
    ::mkdir(root.constData(), 0755);
    QSet<QByteArray> made;
    for (const Entry& e : entries) {
        if (!made.contains(e.folder)) {
            // The two levels of the folder, each made once.
            const QByteArray top = root + "/" + e.folder.left(e.folder.indexOf('/'));
            if (!made.contains(top.mid(root.size() + 1))) {
                ::mkdir(top.constData(), 0755);
                made.insert(top.mid(root.size() + 1));
            }
            ::mkdir((root + "/" + e.folder).constData(), 0755);
            made.insert(e.folder);
        }
        const int fd = ::open((root + "/" + e.folder + "/" + e.file).constData(),
                              O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (fd >= 0)
            ::close(fd);
    }
    return t.nsecsElapsed() / 1e6;
}

} // namespace quovara::bench
