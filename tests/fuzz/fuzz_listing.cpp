// Fuzz target for the listing-log reader: any bytes as uharc.log. The error scan, the totals and
// the mirror tree must never crash or hang, and the mirror tree must never create or touch
// anything outside its scratch folder, whatever the entry names hold.
#include "core/codepage.h"
#include "engine/listing.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QLoggingCategory>
#include <cstdint>
#include <cstdlib>

namespace {

QString g_base;    // a private folder that holds only the scratch folder
QString g_scratch; // the scratch folder the tree is built in

void check(bool condition) {
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    QLoggingCategory::setFilterRules(QStringLiteral("quovara.*.debug=false"));
    g_base = QDir::tempPath() +
             QStringLiteral("/quovara-fuzz-listing-%1").arg(QCoreApplication::applicationPid());
    QDir(g_base).removeRecursively();
    QDir().mkpath(g_base);
    g_scratch = g_base + QStringLiteral("/scratch");
    std::atexit([] { QDir(g_base).removeRecursively(); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const QStringList lines = quovara::SplitEngineLines(quovara::FromCp437(bytes));
    (void)quovara::ScanListingErrors(lines);
    (void)quovara::ReadTotals(lines);

    QDir(g_scratch).removeRecursively();
    (void)quovara::BuildMirrorTree(lines, g_scratch);

    // Only the scratch folder beside it, and nothing inside it but real folders and files.
    const QStringList beside = QDir(g_base).entryList(QDir::AllEntries | QDir::NoDotAndDotDot |
                                                      QDir::Hidden | QDir::System);
    check(beside.isEmpty() || beside == QStringList{QStringLiteral("scratch")});
    const QString root = QFileInfo(g_scratch).canonicalFilePath();
    QDirIterator it(g_scratch,
                    QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo info(it.next());
        check(!info.isSymLink());
        check(info.canonicalFilePath().startsWith(root + QLatin1Char('/')));
        check(info.isDir() || info.size() == 0);
    }
    return 0;
}
