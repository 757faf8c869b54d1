#include "../core/test_support.h"
#include "ui/browser/findfile.h"
#include "ui/browser/searchresults.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QLocale>
#include <QScopeGuard>
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

TEST(FindFileWalk, StarDotStarFindsEveryNameInTheBrowsersOrderDeeperFoldersFirst) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
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
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    QStringList names = {"file10", "file2", "File1", "file02", "a",  "B", "c1d10",
                         "c1d9",   "Ä",     "z",     "file",   "10", "9", "_x"};
    std::sort(names.begin(), names.end(), FileManagerLess);
    const QStringList expected = {"_x",    "9",    "10",    "a",      "Ä",     "B",      "c1d9",
                                  "c1d10", "file", "File1", "file02", "file2", "file10", "z"};
    EXPECT_EQ(names, expected);
    // Names equal but for case or leading zeros still have one order.
    EXPECT_TRUE(FileManagerLess("A.txt", "a.txt"));
    EXPECT_FALSE(FileManagerLess("a.txt", "A.txt"));
    EXPECT_FALSE(FileManagerLess("a.txt", "a.txt"));
    // A long list is sorted by keys, into the same order.
    QStringList many;
    for (int i = 0; i < 20; ++i)
        for (const QString& n : expected)
            many << n + QString::number(19 - i);
    QStringList byKeys = many;
    SortNames(byKeys);
    std::sort(many.begin(), many.end(), FileManagerLess);
    EXPECT_EQ(byKeys, many);
}

// The browser's file model orders a folder with a collator of the locale; every other list of
// names does the same.
TEST(FileManagerOrder, TheBrowsersOrderInEveryLocale) {
    auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    const QStringList names = {QString::fromUtf8("Ёж"),  QString::fromUtf8("Еда"),
                               QString::fromUtf8("Жук"), QString::fromUtf8("あ"),
                               QString::fromUtf8("ア"),  QString::fromUtf8("か")};
    auto sorted = [&](const char* locale, bool keys) {
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        QStringList list = names;
        // Enough names for the keyed sort as well.
        if (keys) {
            for (int i = 0; i < 70; ++i)
                list << QStringLiteral("zz%1").arg(i);
            SortNames(list);
            list.removeIf([](const QString& n) { return n.startsWith("zz"); });
            return list;
        }
        std::sort(list.begin(), list.end(), FileManagerLess);
        return list;
    };
    // Hiragana and katakana of one sound are equal to the collator: the plain character order
    // (hiragana first) decides, so that the same names always come in one order.
    const QStringList cyrillicFirst = {QString::fromUtf8("Еда"), QString::fromUtf8("Ёж"),
                                       QString::fromUtf8("Жук"), QString::fromUtf8("あ"),
                                       QString::fromUtf8("ア"),  QString::fromUtf8("か")};
    const QStringList kanaFirst = {QString::fromUtf8("あ"), QString::fromUtf8("ア"),
                                   QString::fromUtf8("か"), QString::fromUtf8("Еда"),
                                   QString::fromUtf8("Ёж"), QString::fromUtf8("Жук")};
    for (bool keys : {false, true}) {
        EXPECT_EQ(sorted("ru_RU", keys), cyrillicFirst) << keys;
        EXPECT_EQ(sorted("en_US", keys), cyrillicFirst) << keys;
        EXPECT_EQ(sorted("ja_JP", keys), kanaFirst) << keys;
        // The C locale: characters by their codes, without regard to case.
        EXPECT_EQ(sorted("C", keys),
                  QStringList({QString::fromUtf8("Еда"), QString::fromUtf8("Жук"),
                               QString::fromUtf8("Ёж"), QString::fromUtf8("あ"),
                               QString::fromUtf8("か"), QString::fromUtf8("ア")}))
            << keys;
    }
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
    EXPECT_EQ(model.columnCount(), 6);
    EXPECT_EQ(model.index(0, 0).data().toString(), "a.txt");
    EXPECT_EQ(model.index(0, 1).data().toString(), "x\\y");
    EXPECT_EQ(model.index(1, 1).data().toString(), "");
    EXPECT_FALSE(model.index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
    // Without the archive's details the detail columns stay empty.
    EXPECT_EQ(model.index(0, 2).data().toString(), "");
    model.clear();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(SearchResultsRows, ShowTheDetailsOfEachFoundEntryUnderTheReportViewsCaptions) {
    // Sizes are written as the user's language writes numbers: English here.
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    auto restore = qScopeGuard([&] { QLocale::setDefault(before); });
    SearchResults model;
    QStringList captions;
    for (int c = 0; c < model.columnCount(); ++c)
        captions << model.headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
    EXPECT_EQ(captions,
              QStringList({"File Name", "File Path", "Size", "Modified", "Attributes", "CRC-32"}));
    auto details = std::make_shared<ArchiveDetails>();
    details->add(u"x\\y\\a.txt",
                 ParseDetailLine(u"  20480  02-Mar-2021  09:08:07  ---A  0BADF00D"));
    details->add(u"b.doc", ParseDetailLine(u"  7  00-Xxx-0000  25:61:99"));
    details->finish();
    model.setDetails(details);
    model.append({{"a.txt", "x\\y"}, {"b.doc", ""}, {"gone.txt", ""}});
    auto cell = [&](int row, int column, int role = Qt::DisplayRole) {
        return model.index(row, column).data(role).toString();
    };
    EXPECT_EQ(cell(0, 2), "20.0 KB");
    EXPECT_EQ(cell(0, 2, Qt::ToolTipRole), "20,480 bytes");
    EXPECT_EQ(cell(0, 3), "2021-03-02 09:08:07");
    EXPECT_EQ(cell(0, 4), "---A");
    EXPECT_EQ(cell(0, 5), "0BADF00D");
    // Odd details: what reads is shown, the rest stays empty.
    EXPECT_EQ(cell(1, 2), "7 bytes");
    EXPECT_EQ(cell(1, 3), "");
    EXPECT_EQ(cell(1, 5), "");
    // A hit the listing does not know has no details.
    EXPECT_EQ(cell(2, 2), "");
    EXPECT_EQ(model.index(0, 2).data(Qt::TextAlignmentRole).toInt(),
              int(Qt::AlignRight | Qt::AlignVCenter));
}
