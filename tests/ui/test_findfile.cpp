#include "../core/test_support.h"
#include "ui/browser/findfile.h"
#include "ui/browser/searchresults.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

QStringList runToEnd(FindFile& search, const QString& pattern, const QString& root,
                     int* handOvers = nullptr) {
    QStringList rows;
    int batches = 0;
    QObject guard;
    QObject::connect(&search, &FindFile::found, &guard, [&](const QList<SearchHit>& hits) {
        ++batches;
        for (const SearchHit& hit : hits)
            rows << hit.archiveFolder + "|" + hit.name;
    });
    QEventLoop loop;
    QObject::connect(&search, &FindFile::finished, &loop, &QEventLoop::quit);
    search.start(pattern, root);
    if (search.isSearching())
        loop.exec();
    if (handOvers)
        *handOvers = batches;
    return rows;
}

} // namespace

TEST(FindFileWalk, SubFoldersComeBeforeAFoldersOwnFilesAndNamesAreInOrder) {
    QTemporaryDir dir;
    for (const char* name :
         {"b.txt", "a.txt", "z/y.txt", "z/x.TXT", "m/k/j.txt", "m/n.doc", "m/l.txt"})
        writeFile(dir.filePath(name), {});
    FindFile search;
    EXPECT_EQ(runToEnd(search, "*.txt", dir.path()),
              QStringList({"m\\k|j.txt", "m|l.txt", "z|x.TXT", "z|y.txt", "|a.txt", "|b.txt"}));
    EXPECT_EQ(search.hits(), 6);
}

TEST(FindFileWalk, StarDotStarFindsEveryNameInAFileManagersOrderDeeperFoldersFirst) {
    QTemporaryDir dir;
    for (const char* name :
         {"file10.txt", "file2.txt", "File1.txt", "b.txt", "A.txt", "README", "dir10/x",
          "dir9/x.txt", "Dir1/x2.txt", "Dir1/X10.txt", "dir9/deep/z.txt"})
        writeFile(dir.filePath(name), {});
    FindFile search;
    EXPECT_EQ(
        runToEnd(search, "*.*", dir.path()),
        QStringList({"Dir1|x2.txt", "Dir1|X10.txt", "dir9\\deep|z.txt", "dir9|x.txt", "dir10|x",
                     "|A.txt", "|b.txt", "|File1.txt", "|file2.txt", "|file10.txt", "|README"}));
    EXPECT_EQ(search.hits(), 11);
}

TEST(FileManagerOrder, LettersWithoutCaseAndNumbersByTheirValue) {
    QStringList names = {"file10", "file2", "File1", "file02", "a",  "B", "c1d10",
                         "c1d9",   "Ä",     "z",     "file",   "10", "9", "_x"};
    std::sort(names.begin(), names.end(), FileManagerLess);
    EXPECT_EQ(names, QStringList({"9", "10", "_x", "a", "B", "c1d9", "c1d10", "file", "File1",
                                  "file02", "file2", "file10", "z", "Ä"}));
    // Names equal but for case or leading zeros still have one order.
    EXPECT_TRUE(FileManagerLess("A.txt", "a.txt"));
    EXPECT_FALSE(FileManagerLess("a.txt", "A.txt"));
    EXPECT_FALSE(FileManagerLess("a.txt", "a.txt"));
}

TEST(FindFileWalk, ALinkToAFolderIsNotFollowedButALinkToAFileIsAHit) {
    QTemporaryDir dir;
    QTemporaryDir outside;
    writeFile(outside.filePath("secret.txt"), {});
    writeFile(dir.filePath("in/real.txt"), {});
    ASSERT_TRUE(QFile::link(outside.path(), dir.filePath("away")));
    ASSERT_TRUE(QFile::link(dir.filePath("in/real.txt"), dir.filePath("alias.txt")));
    FindFile search;
    EXPECT_EQ(runToEnd(search, "*.txt", dir.path()), QStringList({"in|real.txt", "|alias.txt"}));
}

TEST(FindFileWalk, NamesInAnyScriptAreFoundAndReportedUnchanged) {
    QTemporaryDir dir;
    for (const QString& name : MixedScriptNames())
        writeFile(dir.filePath(QString::fromUtf8("Łódź/") + name), {});
    FindFile search;
    const QStringList rows = runToEnd(search, "*", dir.path());
    ASSERT_EQ(rows.size(), MixedScriptNames().size());
    for (const QString& name : MixedScriptNames())
        EXPECT_TRUE(rows.contains(QString::fromUtf8("Łódź|") + name)) << name.toStdString();
}

TEST(FindFileWalk, ManyHitsArriveInAFewBatchesTheFirstOnesEarly) {
    QTemporaryDir dir;
    for (int f = 0; f < 20; ++f)
        for (int i = 0; i < 100; ++i)
            writeFile(dir.filePath(QString("d%1/f%2.txt").arg(f, 2, 10, QChar('0')).arg(i)), {});
    FindFile search;
    QElapsedTimer t;
    qint64 firstAt = -1;
    QObject guard;
    QObject::connect(&search, &FindFile::found, &guard, [&] {
        if (firstAt < 0)
            firstAt = t.elapsed();
    });
    t.start();
    int batches = 0;
    const QStringList rows = runToEnd(search, "*.txt", dir.path(), &batches);
    const qint64 total = t.elapsed();
    EXPECT_EQ(rows.size(), 2000);
    EXPECT_EQ(rows.first(), "d00|f0.txt");
    EXPECT_EQ(rows.last(), "d19|f99.txt");
    // Not one hand-over per file, nor per folder: a few per second of searching.
    EXPECT_GE(batches, 1);
    EXPECT_LE(batches, 2 + total / 50);
    EXPECT_LE(firstAt, total);
}

TEST(FindFileWalk, NothingArrivesAfterAStopAndItFinishesOnce) {
    QTemporaryDir dir;
    for (int f = 0; f < 10; ++f)
        for (int i = 0; i < 100; ++i)
            writeFile(dir.filePath(QString("d%1/f%2.txt").arg(f).arg(i)), {});
    FindFile search;
    QSignalSpy finished(&search, &FindFile::finished);
    int rows = 0;
    int batches = 0;
    QObject guard;
    QObject::connect(&search, &FindFile::found, &guard, [&](const QList<SearchHit>& hits) {
        ++batches;
        rows += hits.size();
        search.stop();
    });
    search.start("*.txt", dir.path());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !search.isSearching(); }, 10000));
    QTest::qWait(50);
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(batches, 1);
    EXPECT_GT(rows, 0);
    // Stopping again changes nothing.
    search.stop();
    EXPECT_EQ(finished.count(), 1);
}

TEST(SearchResultsRows, ShowNameAndFolderUnderTheirCaptionsAndEmptyAgainWhenCleared) {
    SearchResults model;
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "File Name");
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "File Path");
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    model.append({{"a.txt", "x\\y"}, {"b.doc", ""}});
    model.append({});
    EXPECT_EQ(inserted.count(), 1);
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.columnCount(), 2);
    EXPECT_EQ(model.index(0, 0).data().toString(), "a.txt");
    EXPECT_EQ(model.index(0, 1).data().toString(), "x\\y");
    EXPECT_EQ(model.index(1, 1).data().toString(), "");
    EXPECT_FALSE(model.index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
    model.clear();
    EXPECT_EQ(model.rowCount(), 0);
}
