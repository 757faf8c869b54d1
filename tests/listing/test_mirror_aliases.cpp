// Entries whose names the file system cannot hold as they stand: shown under another name, and
// given back their stored names.
#include "../core/test_support.h"
#include "engine/listing.h"
#include "engine/mirroraliases.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

using namespace quovara;
using namespace quovara::testing;

namespace {

ListingPass passOf(const QByteArray& log, const QString& tree) {
    QTemporaryDir dir;
    writeFile(dir.filePath("log"), log);
    return ReadListingLog(dir.filePath("log"), EngineCodec::Utf8(), tree);
}

} // namespace

TEST(AliasName, ALongNameIsShortenedToTheLimitKeepingItsExtension) {
    const QString long300 = QString(296, 'a') + ".txt";
    const QString a = AliasName(long300, 1);
    EXPECT_EQ(a.toUtf8().size(), 255);
    EXPECT_EQ(a, QString(248, 'a') + QChar(0x2026) + ".txt");
    EXPECT_EQ(AliasName(long300, 2), QString(244, 'a') + QChar(0x2026) + " (2).txt");
    // Letters of two bytes are never cut in half.
    const QString cyrillic = QString(200, QChar(0x0416)) + ".txt";
    const QString c = AliasName(cyrillic, 1);
    EXPECT_LE(c.toUtf8().size(), 255);
    EXPECT_TRUE(c.endsWith(QString(QChar(0x2026)) + ".txt"));
    EXPECT_EQ(QString::fromUtf8(c.toUtf8()), c);
    // A name that fits is only numbered.
    EXPECT_EQ(AliasName("x", 2), "x (2)");
    EXPECT_EQ(AliasName("notes.txt", 3), "notes (3).txt");
}

TEST(MirrorAliases, TheLongestRenamedStartOfAnItemGetsItsStoredName) {
    MirrorAliases a;
    a.add("clash\\x (2)", "clash\\x");
    a.add("docs\\long….txt", "docs\\long name.txt");
    EXPECT_EQ(a.storedOf("clash\\x (2)\\y.txt"), "clash\\x\\y.txt");
    EXPECT_EQ(a.storedOf("clash\\x (2)\\*.*"), "clash\\x\\*.*");
    EXPECT_EQ(a.storedOf("\\clash\\x (2)\\y.txt"), "\\clash\\x\\y.txt");
    EXPECT_EQ(a.storedOf("docs\\long….txt"), "docs\\long name.txt");
    EXPECT_EQ(a.storedOf("clash\\x (20)\\y.txt"), "clash\\x (20)\\y.txt");
    EXPECT_EQ(a.storedOf("other.txt"), "other.txt");
}

TEST(MirrorAliases, AFileAndAFolderOfOneNameBothStand) {
    // Captured from the real engine: "clash\x" (a file) and "clash\x\y.txt".
    QTemporaryDir dir;
    const QString tree = dir.filePath("tree");
    const ListingPass pass =
        passOf(readAll(QUOVARA_LISTING_DATA "/list-file-folder-clash.log"), tree);
    EXPECT_TRUE(pass.treeComplete) << pass.treeProblem.toStdString();
    EXPECT_EQ(entriesBelow(tree),
              QStringList({"clash/", "clash/x", "clash/x (2)/", "clash/x (2)/y.txt"}));
    EXPECT_EQ(pass.aliases.count(), 1);
    EXPECT_EQ(pass.aliases.storedOf("clash\\x (2)\\y.txt"), "clash\\x\\y.txt");
    EXPECT_EQ(pass.aliases.storedOf("clash\\x"), "clash\\x");

    // The other way round: the folder first, then the file.
    const QString tree2 = dir.filePath("tree2");
    const ListingPass other = passOf(ListingLogOf({"d\\x\\y.txt", "d\\x"}), tree2);
    EXPECT_TRUE(other.treeComplete);
    EXPECT_EQ(entriesBelow(tree2), QStringList({"d/", "d/x (2)", "d/x/", "d/x/y.txt"}));
    EXPECT_EQ(other.aliases.storedOf("d\\x (2)"), "d\\x");
}

TEST(MirrorAliases, NamesLongerThanTheSystemTakesAreShownShortenedAndTheRestIsUnaffected) {
    QTemporaryDir dir;
    const QString tree = dir.filePath("tree");
    const QByteArray longFile = QByteArray(300, 'f') + ".txt";
    const QByteArray longFolder = QString(150, QChar(0x0416)).toUtf8(); // 300 bytes
    const ListingPass pass =
        passOf(ListingLogOf({"a\\" + longFile, longFolder + "\\in.txt", longFolder + "\\two.txt",
                             "a\\plain.txt", "a\\" + longFile}),
               tree);
    EXPECT_TRUE(pass.treeComplete) << pass.treeProblem.toStdString();
    const QString shortFile = AliasName(QString::fromUtf8(longFile), 1);
    const QString shortFolder = AliasName(QString::fromUtf8(longFolder), 1);
    EXPECT_EQ(entriesBelow(tree),
              QStringList({"a/", "a/" + shortFile, "a/" + AliasName(QString::fromUtf8(longFile), 2),
                           "a/plain.txt", shortFolder + "/", shortFolder + "/in.txt",
                           shortFolder + "/two.txt"}));
    EXPECT_EQ(pass.aliases.storedOf("a\\" + shortFile), "a\\" + QString::fromUtf8(longFile));
    EXPECT_EQ(pass.aliases.storedOf(shortFolder + "\\two.txt"),
              QString::fromUtf8(longFolder) + "\\two.txt");
    EXPECT_EQ(pass.aliases.storedOf("a\\plain.txt"), "a\\plain.txt");
    EXPECT_EQ(pass.totals->fileCountText, "5");
}

TEST(MirrorAliases, AnEntryNameNeverLeavesTheTreeWhateverItsAlias) {
    QTemporaryDir dir;
    const QString tree = dir.filePath("tree");
    const ListingPass pass =
        passOf(ListingLogOf({"..\\..\\" + QByteArray(300, 'e'), "x", "x\\..\\..\\y"}), tree);
    EXPECT_TRUE(pass.treeComplete);
    for (const QString& f : entriesBelow(dir.path()))
        EXPECT_TRUE(f.startsWith("tree")) << f.toStdString();
}
