// Listing a 100,000-entry archive (one pass over the log: error scan, mirror tree and totals)
// against creating the same 100,000 empty files and their folders with a bare loop, side by
// side in one run. Prints both times and their ratio, and the memory the pass added to the
// process's peak, against the log's size.
//   bench_listing [entries] [rounds]
#include "core/codepage.h"
#include "engine/listing.h"

#include <QByteArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace quovara;

namespace {

struct Entry {
    QByteArray folder; // "d012/s3"
    QByteArray file;   // "f00042.txt"
};

std::vector<Entry> makeEntries(int count) {
    std::vector<Entry> entries;
    entries.reserve(count);
    for (int i = 0; i < count; ++i) {
        Entry e;
        e.folder = QByteArray("d") + QByteArray::number(i / 1000).rightJustified(3, '0') + "/s" +
                   QByteArray::number((i / 100) % 10);
        e.file = QByteArray("f") + QByteArray::number(i).rightJustified(6, '0') + ".txt";
        entries.push_back(e);
    }
    return entries;
}

QByteArray makeLog(const std::vector<Entry>& entries) {
    QByteArray log =
        "\r\n=== UHARC 0.6 LOG =================================== 22-Nov-2026  14:35:54 "
        "===\r\nEnvironment: \"\"\r\nCommandline: \"uharc.exe l -d2 -y+ -lgLOG.txt "
        "big.uha\"\r\n\r\nProcessing archive \"big.uha\" (created: 22-Nov-2026, "
        "14:35).\r\n\r\nfile                                size     date        time "
        "   attr   crc-32 \r\n" +
        QByteArray(79, '-') + "\r\n";
    for (const Entry& e : entries) {
        QByteArray name = e.folder + "/" + e.file;
        name.replace('/', '\\');
        log += name + "\r\n                                       0  22-Nov-2026  14:28:18  ---A  "
                      "00000000\r\n";
    }
    log += QByteArray(79, '-') + "\r\n" + QByteArray::number(qulonglong(entries.size())) +
           " files                                0\r\n                                       0 "
           "packed (ALZ:2-mode), ratio: 0.0%\r\n" +
           QByteArray(79, '=') + "\r\n\r\n";
    return log;
}

double listingRun(const QString& logPath, const QString& scratch) {
    QElapsedTimer t;
    t.start();
    const ListingPass pass = ReadListingLog(logPath, EngineCodec::Cp437, scratch);
    const double ms = t.nsecsElapsed() / 1e6;
    if (!pass.error.isEmpty() || !pass.treeComplete || !pass.totals) {
        std::fprintf(stderr, "listing failed\n");
        std::exit(1);
    }
    return ms;
}

double bareRun(const std::vector<Entry>& entries, const QByteArray& root) {
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

// The process's peak resident memory so far, in MiB.
double peakMiB() {
    struct rusage usage {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024.0;
}

} // namespace

int main(int argc, char** argv) {
    const int count = argc > 1 ? std::atoi(argv[1]) : 100000;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 3;
    QTemporaryDir dir;
    const std::vector<Entry> entries = makeEntries(count);
    const QString logPath = dir.filePath("uharc.log");
    {
        QFile f(logPath);
        f.open(QIODevice::WriteOnly);
        f.write(makeLog(entries));
    }
    const double logMiB = QFileInfo(logPath).size() / 1048576.0;
    std::vector<double> listing, bare;
    const double peakBefore = peakMiB();
    for (int r = 0; r < rounds; ++r) {
        const QString scratch = dir.filePath(QStringLiteral("scratch%1").arg(r));
        const QString plain = dir.filePath(QStringLiteral("bare%1").arg(r));
        bare.push_back(bareRun(entries, QFile::encodeName(plain)));
        listing.push_back(listingRun(logPath, scratch));
        QDir(scratch).removeRecursively();
        QDir(plain).removeRecursively();
    }
    std::sort(listing.begin(), listing.end());
    std::sort(bare.begin(), bare.end());
    const double l = listing[listing.size() / 2];
    const double b = bare[bare.size() / 2];
    std::printf("entries: %d, rounds: %d (medians)\n", count, rounds);
    std::printf("bare loop creating the files and folders: %9.1f ms\n", b);
    std::printf("listing (one pass: errors, mirror tree, totals): %9.1f ms\n", l);
    std::printf("ratio listing / bare loop: %.2f\n", l / b);
    std::printf("log: %.1f MiB; peak memory before the runs %.1f MiB, after %.1f MiB "
                "(the runs added %.1f MiB, %.3f of the log's size)\n",
                logMiB, peakBefore, peakMiB(), peakMiB() - peakBefore,
                (peakMiB() - peakBefore) / logMiB);
    return 0;
}
