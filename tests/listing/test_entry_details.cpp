// The details of an archive's entries: detail lines read as the engine writes them, odd fields
// read as far as they go, and the look-up by the path an entry is shown at.
#include "engine/entrydetails.h"
#include "engine/listing.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace quovara;

TEST(EntryDetails, ADetailLineOfTheEngineGivesEveryField) {
    const EntryDetails d =
        ParseDetailLine(u"                                   10000  22-Nov-2026  14:28:18  ---A  "
                        u"DE77F4CE");
    ASSERT_TRUE(d.size.has_value());
    EXPECT_EQ(*d.size, 10000u);
    EXPECT_EQ(d.date, 20261122u);
    EXPECT_EQ(d.time, 142818u);
    EXPECT_EQ(d.attributes, "---A");
    EXPECT_EQ(d.crc, 0xDE77F4CEu);
    EXPECT_EQ(d.crcText(), "DE77F4CE");
    EXPECT_EQ(d.modifiedText(), "2026-11-22 14:28:18");
    EXPECT_EQ(d.stamp(), 20261122142818ull);
}

TEST(EntryDetails, ASizeBeyondSixtyFourBitsIsLeftEmptyAndTheRestIsRead) {
    const EntryDetails d = ParseDetailLine(
        u"   123456789012345678901234567890  01-Jan-1999  00:00:01  R--A  00000000");
    EXPECT_FALSE(d.size.has_value());
    EXPECT_EQ(d.date, 19990101u);
    EXPECT_EQ(d.time, 1u);
    EXPECT_EQ(d.attributes, "R--A");
    EXPECT_EQ(d.crc, 0u);
    EXPECT_EQ(d.crcText(), "00000000");
}

TEST(EntryDetails, ADateThatIsNoDayShowsTheTimeAlone) {
    const EntryDetails d = ParseDetailLine(u"      12  00-Xxx-0000  10:20:30  ---A  7A6021B8");
    EXPECT_EQ(d.size, 12u);
    EXPECT_FALSE(d.date.has_value());
    EXPECT_EQ(d.modifiedText(), "10:20:30");
    EXPECT_EQ(d.attributes, "---A");
    EXPECT_EQ(d.crcText(), "7A6021B8");
    // 31 February is no day either.
    EXPECT_FALSE(ParseDetailLine(u"1  31-Feb-2024  10:20:30  ---A").date.has_value());
}

TEST(EntryDetails, ALineWithoutCrcOrWithNothingReadsAsFarAsItGoes) {
    const EntryDetails noCrc = ParseDetailLine(u"     341  22-Nov-2026  14:28:18  ---A");
    EXPECT_EQ(noCrc.size, 341u);
    EXPECT_EQ(noCrc.attributes, "---A");
    EXPECT_FALSE(noCrc.crc.has_value());
    EXPECT_EQ(noCrc.crcText(), "");

    const EntryDetails empty = ParseDetailLine(u"");
    EXPECT_FALSE(empty.size || empty.date || empty.time || empty.crc);
    EXPECT_EQ(empty.modifiedText(), "");

    const EntryDetails junk = ParseDetailLine(u"  x:y  --  ZZZZZZZZ");
    EXPECT_FALSE(junk.size || junk.date || junk.crc);
    EXPECT_FALSE(junk.time.has_value());
}

TEST(ArchiveDetails, EntriesAreFoundByTheirShownPathAndFoldersCountWhatTheyHold) {
    ArchiveDetails details;
    details.add(u"a\\b\\c.txt", ParseDetailLine(u"5  01-Jan-2020  01:02:03  ---A  00000001"));
    details.add(u"a\\b\\d.txt", ParseDetailLine(u"6  01-Jan-2020  01:02:03  ---A  00000002"));
    details.add(u"a\\e.txt", ParseDetailLine(u"7  01-Jan-2020  01:02:03  ---A  00000003"));
    details.add(u"root.txt", ParseDetailLine(u"8  01-Jan-2020  01:02:03  ---A  00000004"));
    details.add(u"x\\y\\z\\deep.txt", ParseDetailLine(u"9"));
    // Before the end of the adding nothing is found.
    EXPECT_FALSE(details.entry(u"root.txt").has_value());
    details.finish();

    ASSERT_TRUE(details.entry(u"a\\b\\d.txt").has_value());
    ASSERT_TRUE(details.entry(u"root.txt").has_value());
    EXPECT_EQ(details.entry(u"a\\b\\d.txt")->size, 6u);
    EXPECT_EQ(details.entry(u"a\\b\\d.txt")->crc, 2u);
    EXPECT_EQ(details.entry(u"root.txt")->size, 8u);
    EXPECT_FALSE(details.entry(u"a\\B\\d.txt").has_value());
    EXPECT_FALSE(details.entry(u"a\\b").has_value());

    EXPECT_EQ(details.folderCount(u"a\\b"), 2);
    EXPECT_EQ(details.folderCount(u"a"), 2);       // b and e.txt
    EXPECT_EQ(details.folderCount(u""), 3);        // a, root.txt and x
    EXPECT_EQ(details.folderCount(u"x\\y"), 1);    // z
    EXPECT_EQ(details.folderCount(u"x\\y\\z"), 1); // deep.txt
    EXPECT_FALSE(details.folderCount(u"a\\b\\c.txt").has_value());
    EXPECT_EQ(details.size(), 5);
}

TEST(ArchiveDetails, AnEntryListedTwiceKeepsItsLastLine) {
    ArchiveDetails details;
    details.add(u"twice.txt", ParseDetailLine(u"1  01-Jan-2020  01:02:03  ---A  00000001"));
    details.add(u"other.txt", ParseDetailLine(u"3"));
    details.add(u"twice.txt", ParseDetailLine(u"2  01-Jan-2020  01:02:03  ---A  00000002"));
    details.finish();
    EXPECT_EQ(details.entry(u"twice.txt")->size, 2u);
    EXPECT_EQ(details.entry(u"other.txt")->size, 3u);
}

TEST(ArchiveDetails, TheListingPassKeepsTheDetailsOfTheRealEnginesLog) {
    QTemporaryDir dir;
    const ListingPass pass = ReadListingLog(QUOVARA_LISTING_DATA "/list-alz3.log",
                                            EngineCodec::Cp437(), dir.filePath("tree"));
    ASSERT_TRUE(pass.details);
    EXPECT_EQ(pass.details->size(), 8);
    const auto readme = pass.details->entry(u"folder\\readme.txt");
    ASSERT_TRUE(readme.has_value());
    EXPECT_EQ(readme->size, 13989u);
    EXPECT_EQ(readme->modifiedText(), "2024-03-15 10:20:30");
    EXPECT_EQ(readme->crcText(), "7A6021B8");
    EXPECT_EQ(pass.details->entry(u"folder\\sub\\deeper\\deep.txt")->size, 341u);
    EXPECT_EQ(pass.details->folderCount(u"folder"), 6); // sub and five files
    EXPECT_EQ(pass.details->folderCount(u"folder\\sub"), 3);
}

TEST(ArchiveDetails, AnEntryShownUnderAnotherNameIsFoundUnderThatName) {
    // "clash\x" is a file and a folder: the file comes first, the folder is shown as "x (2)".
    QTemporaryDir dir;
    const ListingPass pass = ReadListingLog(QUOVARA_LISTING_DATA "/list-file-folder-clash.log",
                                            EngineCodec::Cp437(), dir.filePath("tree"));
    ASSERT_TRUE(pass.details);
    ASSERT_TRUE(pass.details->entry(u"clash\\x").has_value());
    EXPECT_EQ(pass.details->entry(u"clash\\x")->size, 4u);
    ASSERT_TRUE(pass.details->entry(u"clash\\x (2)\\y.txt").has_value());
    EXPECT_EQ(pass.details->entry(u"clash\\x (2)\\y.txt")->size, 6u);
    EXPECT_FALSE(pass.details->entry(u"clash\\x\\y.txt").has_value());
    EXPECT_EQ(pass.details->size(), 2);
}

namespace quovara {

TEST(ArchiveDetails, RoomForTheEntriesOfALogIsMadeAtOnceAndMoreStillFit) {
    // A name line and a detail line of the engine take at least 84 bytes.
    EXPECT_EQ(ArchiveDetails::mostEntriesIn(0), 16);
    EXPECT_EQ(ArchiveDetails::mostEntriesIn(84 * 1000), 1016);
    EXPECT_EQ(ArchiveDetails::mostEntriesIn(qint64(1) << 50), 50'000'000);
    ArchiveDetails details;
    details.reserve(2);
    for (int i = 0; i < 40; ++i)
        details.add(
            QStringLiteral("f%1.txt").arg(i),
            ParseDetailLine(QStringLiteral("%1  01-Jan-2020  01:02:03  ---A  00000001").arg(i)));
    // A path listed twice keeps its last line.
    details.add(u"f7.txt", ParseDetailLine(u"777"));
    details.finish();
    EXPECT_EQ(details.size(), 41);
    EXPECT_EQ(details.entry(u"f39.txt")->size, 39u);
    EXPECT_EQ(details.entry(u"f7.txt")->size, 777u);
}

} // namespace quovara
