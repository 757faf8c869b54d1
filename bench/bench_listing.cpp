// Listing a 100,000-entry archive (one pass over the log: error scan, mirror tree and totals)
// against creating the same 100,000 empty files and their folders with a bare loop, side by
// side in one run. Prints both times and their ratio, and the memory the pass added to the
// process's peak, against the log's size.
//   bench_listing [entries] [rounds]
#include "big_tree.h"
#include "core/codepage.h"
#include "engine/listing.h"

#include <QByteArray>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <vector>

using namespace quovara;
using namespace quovara::bench;

namespace {

double listingRun(const QString& logPath, const QString& scratch) {
    QElapsedTimer t;
    t.start();
    const ListingPass pass = ReadListingLog(logPath, EngineCodec::Cp437(), scratch);
    const double ms = t.nsecsElapsed() / 1e6;
    if (!pass.error.isEmpty() || !pass.treeComplete || !pass.totals) {
        std::fprintf(stderr, "listing failed\n");
        std::exit(1);
    }
    return ms;
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
