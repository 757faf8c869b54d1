// Entries whose stored names would climb out of a folder: the listing shows each at the top of
// the tree under a safe name of its own, remembers its stored name, and writes nothing outside
// the tree.
#include "../core/test_support.h"
#include "engine/listing.h"
#include "engine/unsafenames.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

using namespace quovara;
using namespace quovara::testing;

namespace {

// A listing log in the engine's layout holding `names`.
QByteArray logOf(const QStringList& names) {
    QByteArray log =
        "\r\n=== UHARC 0.6 LOG ======\r\nEnvironment: \"\"\r\nCommandline: \"x\"\r\n\r\n"
        "Processing archive \"t.uha\" (created: 25-Nov-2026, 12:58).\r\n\r\n"
        "file                                size     date        time    attr   "
        "crc-32 \r\n";
    log += QByteArray(79, '-') + "\r\n";
    for (const QString& n : names)
        log += n.toUtf8() + "\r\n" +
               "                                      14  25-Nov-2026  12:58:32  ---A  "
               "F4B4C4E3\r\n";
    log += QByteArray(79, '-') + "\r\n";
    log += QByteArray::number(names.size()) + " files                               14\r\n";
    log += "                                      14 packed (STORE-mode), ratio: 100.0%\r\n";
    return log;
}

class UnsafeListing : public ::testing::Test {
protected:
    ListingPass pass(const QByteArray& log, const EngineCodec& codec = EngineCodec::Utf8()) {
        writeFile(dir_.filePath("log"), log);
        QDir().mkpath(dir_.filePath("above/below"));
        return ReadListingLog(dir_.filePath("log"), codec, tree_);
    }
    QTemporaryDir dir_;
    QString tree_ = dir_.filePath("above/below/tree");
};

} // namespace

TEST_F(UnsafeListing, TheRealEnginesDotDotArchiveIsShownAtTheTopUnderASafeName) {
    const ListingPass p =
        pass(readAll(QStringLiteral(QUOVARA_LISTING_DATA) + "/list-traversal-dotdot.log"),
             EngineCodec::Cp437());
    ASSERT_TRUE(p.treeComplete) << p.treeProblem.toStdString();
    EXPECT_EQ(entriesBelow(tree_), QStringList({QString::fromUtf8("..∖..∖evil1.txt")}));
    EXPECT_EQ(p.unsafeNames, QStringList({"..\\..\\evil1.txt"}));
    EXPECT_EQ(p.entryCount, 1);
    EXPECT_EQ(p.aliases.storedOf(QString::fromUtf8("..∖..∖evil1.txt")), "..\\..\\evil1.txt");
    // Nothing was made above the tree.
    EXPECT_EQ(
        entriesBelow(dir_.filePath("above")),
        QStringList({"below/", "below/tree/", QString::fromUtf8("below/tree/..∖..∖evil1.txt")}));
    // Its details are kept under the name it is shown at.
    ASSERT_TRUE(p.details);
    EXPECT_EQ(p.details->entry(QString::fromUtf8("..∖..∖evil1.txt")).value().size.value(), 14u);
}

TEST_F(UnsafeListing, TheRealEnginesDriveArchiveIsShownAtTheTopUnderASafeName) {
    const ListingPass p =
        pass(readAll(QStringLiteral(QUOVARA_LISTING_DATA) + "/list-traversal-drive.log"),
             EngineCodec::Cp437());
    ASSERT_TRUE(p.treeComplete);
    EXPECT_EQ(entriesBelow(tree_), QStringList({QString::fromUtf8("C꞉∖evil3.txt")}));
    EXPECT_EQ(p.unsafeNames, QStringList({"C:\\evil3.txt"}));
}

TEST_F(UnsafeListing, SafeEntriesKeepTheirPlacesAndTakenNamesAreNumbered) {
    const ListingPass p = pass(logOf({"good.txt", "sub\\inner.txt", "a\\..\\..\\stage\\evil.txt",
                                      "\\tmp\\evil.txt", "/tmp/evil.txt", "..\\x", "..\\x"}));
    ASSERT_TRUE(p.treeComplete);
    EXPECT_EQ(entriesBelow(tree_),
              QStringList({QString::fromUtf8("..∖x"), QString::fromUtf8("..∖x (2)"),
                           QString::fromUtf8("a∖..∖..∖stage∖evil.txt"), "good.txt", "sub/",
                           "sub/inner.txt", QString::fromUtf8("∖tmp∖evil (2).txt"),
                           QString::fromUtf8("∖tmp∖evil.txt")}));
    // "/" is read as "\" in a stored name, so the two "\tmp\evil.txt" are one name twice.
    EXPECT_EQ(p.unsafeNames, QStringList({"a\\..\\..\\stage\\evil.txt", "\\tmp\\evil.txt",
                                          "\\tmp\\evil.txt", "..\\x", "..\\x"}));
    EXPECT_EQ(p.entryCount, 7);
    EXPECT_EQ(p.aliases.storedOf(QString::fromUtf8("..∖x (2)")), "..\\x");
    EXPECT_EQ(p.aliases.storedOf("sub\\inner.txt"), "sub\\inner.txt");
}

TEST_F(UnsafeListing, ANamesOnlyPassFindsTheSameUnsafeNamesWithoutATree) {
    writeFile(dir_.filePath("log"), logOf({"good.txt", "..\\..\\evil1.txt", "C:\\evil3.txt"}));
    const ListingPass p = ReadListingLog(dir_.filePath("log"), EngineCodec::Utf8(), QString());
    EXPECT_TRUE(p.treeComplete);
    EXPECT_EQ(p.unsafeNames, QStringList({"..\\..\\evil1.txt", "C:\\evil3.txt"}));
    EXPECT_EQ(p.entryCount, 3);
    EXPECT_FALSE(QFileInfo::exists(tree_));
}

TEST_F(UnsafeListing, ALogCutShortStillNamesTheUnsafeEntriesItHolds) {
    QByteArray log = logOf({"..\\..\\evil1.txt", "good.txt"});
    log.truncate(log.indexOf("good.txt"));
    const ListingPass p = pass(log);
    EXPECT_FALSE(p.treeComplete);
    EXPECT_EQ(p.unsafeNames, QStringList({"..\\..\\evil1.txt"}));
}
