// Converting what the engine extracted into zip, 7z, tar.xz and tar.zst: every file checked
// against the listing, the new archive read back both by libarchive and by readers that do not
// use it (Python's zipfile and tarfile, zstd, 7-Zip), nothing left behind on a failure.
#include "engine/convert.h"
#include "engine/listing.h"

#include "../core/test_support.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <zlib.h>

namespace quovara {
namespace {

using quovara::testing::writeFile;

struct Listed {
    QString name; // stored, "\" between folders
    QByteArray data;
    QString date = QStringLiteral("15-Mar-2024");
    QString time = QStringLiteral("10:20:30");
    QString attributes = QStringLiteral("---A");
};

quint32 crcOf(const QByteArray& data) {
    return quint32(crc32(crc32(0L, Z_NULL, 0), reinterpret_cast<const Bytef*>(data.constData()),
                         uInt(data.size())));
}

// The lines of a listing log as the engine writes them.
QStringList listingLines(const std::vector<Listed>& entries) {
    QStringList lines{QString(),
                      QStringLiteral("=== UHARC 0.6 LOG ======================================="),
                      QStringLiteral("Environment: \"\""),
                      QStringLiteral("Commandline: \"uharc.exe l -d2 -y+ -lgLOG.txt a.uha\""),
                      QString(),
                      QStringLiteral("Processing archive \"a.uha\" (created: 23-Nov-2026, 21:09)."),
                      QString(),
                      QStringLiteral("file                                size     date        "
                                     "time    attr   crc-32 "),
                      ListingSeparator()};
    for (const Listed& e : entries) {
        lines << e.name;
        lines
            << QStringLiteral("%1  %2  %3  %4  %5")
                   .arg(e.data.size(), 40)
                   .arg(e.date, e.time, e.attributes,
                        QStringLiteral("%1").arg(crcOf(e.data), 8, 16, QLatin1Char('0')).toUpper());
    }
    lines << ListingSeparator() << QStringLiteral("%1 files").arg(entries.size());
    return lines;
}

qint64 localSeconds(const char* when) {
    return QDateTime::fromString(QString::fromLatin1(when), QStringLiteral("yyyy-MM-dd HH:mm:ss"))
        .toSecsSinceEpoch();
}

const QString kRussian = QString::fromUtf8("Документы\\Отчёт.txt");
const QString kJapanese = QString::fromUtf8("予定表\\図表.txt");
const QString kAccents = QString::fromUtf8("Café crème.txt");

std::vector<Listed> sampleEntries() {
    std::vector<Listed> e;
    e.push_back({kRussian, QByteArray("отчёт\n").repeated(300)});
    e.push_back({kJapanese, QByteArray("予定\n").repeated(50), QStringLiteral("01-Jan-2020"),
                 QStringLiteral("00:00:02")});
    e.push_back({kAccents, QByteArray("crème brûlée"), QStringLiteral("31-Dec-1999"),
                 QStringLiteral("23:59:58"), QStringLiteral("R--A")});
    e.push_back({QStringLiteral("folder\\empty.txt"), QByteArray()});
    QByteArray big(3 << 20, Qt::Uninitialized);
    for (int i = 0; i < big.size(); ++i)
        big[i] = char((quint32(i) * 7919u) >> 3);
    e.push_back({QStringLiteral("folder\\sub\\big.bin"), big});
    return e;
}

class Converting : public ::testing::Test {
protected:
    void SetUp() override {
        staging_ = dir_.path() + "/.quovara-extract-test";
        destination_ = dir_.path() + "/out";
        QDir().mkpath(staging_);
        QDir().mkpath(destination_);
        archive_ = dir_.path() + "/Архив.uha";
        writeFile(archive_, "archive bytes");
        entries_ = sampleEntries();
    }
    // Writes the files as the engine would have extracted them.
    void extract() {
        for (const Listed& e : entries_) {
            const QString path = staging_ + "/" + QString(e.name).replace('\\', '/');
            QDir().mkpath(QFileInfo(path).absolutePath());
            writeFile(path, e.data);
        }
        QDir().mkpath(staging_ + "/folder/nothing/inside");
    }
    ConvertOutcome convert(ConvertFormat format) {
        ConvertRequest request;
        request.archivePath = archive_;
        request.staging = staging_;
        request.destinationFolder = destination_;
        request.format = format;
        request.files = ReadListedFiles(listingLines(entries_));
        return ConvertExtracted(request, nullptr, {});
    }
    QStringList destinationEntries() const {
        return QDir(destination_).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir dir_;
    QString staging_, destination_, archive_;
    std::vector<Listed> entries_;
};

// What an independent reader sees: one line per entry, sorted.
QStringList independentRead(const QString& format, const QString& path) {
    QProcess p;
    p.start(QStringLiteral("python3"),
            {QStringLiteral(QUOVARA_TEST_TOOLS "/read_converted.py"), format, path});
    EXPECT_TRUE(p.waitForFinished(120000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    QStringList lines =
        QString::fromUtf8(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    lines.sort();
    return lines;
}

QString fileLine(const Listed& e, const char* mode, const char* when) {
    return QStringLiteral("f\t%1\t%2\t%3\t%4\t%5")
        .arg(QString::fromLatin1(mode))
        .arg(e.data.size())
        .arg(QStringLiteral("%1").arg(crcOf(e.data), 8, 16, QLatin1Char('0')).toUpper())
        .arg(localSeconds(when))
        .arg(QString(e.name).replace('\\', '/'));
}

class EveryFormat : public Converting, public ::testing::WithParamInterface<ConvertFormat> {};

TEST_P(EveryFormat, WritesEveryEntryWithItsNameDateAndModeAsOtherReadersSeeIt) {
    extract();
    const ConvertOutcome outcome = convert(GetParam());
    ASSERT_TRUE(outcome.ok) << outcome.problem.toStdString();
    const QString name = ConvertFormatName(GetParam());
    EXPECT_EQ(outcome.placedPath, destination_ + QString::fromUtf8("/Архив.") + name);
    EXPECT_EQ(outcome.files, 5);
    // Документы, 予定表, folder, folder/sub, folder/nothing, folder/nothing/inside
    EXPECT_EQ(outcome.folders, 6);
    EXPECT_EQ(destinationEntries(), QStringList{QFileInfo(outcome.placedPath).fileName()});
    EXPECT_TRUE(QFileInfo::exists(staging_)) << "the caller removes the staging folder";

    QStringList lines = independentRead(name, outcome.placedPath);
    const bool zip = GetParam() == ConvertFormat::Zip;
    for (QString& line : lines) {
        if (zip) {
            // Every name beyond ASCII carries the zip's UTF-8 flag; an ASCII one reads the
            // same either way.
            const QString flag = line.section('\t', 6);
            line = line.section('\t', 0, 5);
            const QString entryName = line.section('\t', 5);
            bool ascii = true;
            for (QChar c : entryName)
                ascii = ascii && c.unicode() < 0x80;
            if (!ascii) {
                EXPECT_EQ(flag, "utf8") << line.toStdString();
            }
        }
    }
    const std::vector<Listed>& e = entries_;
    QStringList files;
    for (const QString& line : lines)
        if (line.startsWith('f'))
            files << line;
    QStringList expected{
        fileLine(e[0], "644", "2024-03-15 10:20:30"), fileLine(e[1], "644", "2020-01-01 00:00:02"),
        fileLine(e[2], "444", "1999-12-31 23:59:58"), fileLine(e[3], "644", "2024-03-15 10:20:30"),
        fileLine(e[4], "644", "2024-03-15 10:20:30")};
    expected.sort();
    EXPECT_EQ(files, expected);
    QStringList folders;
    for (const QString& line : lines)
        if (line.startsWith('d'))
            folders << line.section('\t', 5) + " " + line.section('\t', 1, 1);
    folders.sort();
    EXPECT_EQ(folders, (QStringList{"folder 755", "folder/nothing 755", "folder/nothing/inside 755",
                                    "folder/sub 755", QString::fromUtf8("Документы 755"),
                                    QString::fromUtf8("予定表 755")}));
}

TEST_P(EveryFormat, ReadsBackWithBsdtar) {
    if (QStandardPaths::findExecutable("bsdtar").isEmpty())
        GTEST_SKIP() << "bsdtar (libarchive-tools) is not installed";
    extract();
    const ConvertOutcome outcome = convert(GetParam());
    ASSERT_TRUE(outcome.ok) << outcome.problem.toStdString();
    QProcess p;
    p.start("bsdtar", {"-tf", outcome.placedPath});
    ASSERT_TRUE(p.waitForFinished(60000));
    EXPECT_EQ(p.exitCode(), 0);
    const QString listed = QString::fromUtf8(p.readAllStandardOutput());
    EXPECT_TRUE(listed.contains(QString::fromUtf8("Документы/Отчёт.txt"))) << listed.toStdString();
    EXPECT_TRUE(listed.contains(QString::fromUtf8("予定表/図表.txt")));
    EXPECT_TRUE(listed.contains(QString::fromUtf8("Café crème.txt")));
    EXPECT_TRUE(listed.contains("folder/nothing/inside"));
}

INSTANTIATE_TEST_SUITE_P(Formats, EveryFormat,
                         ::testing::Values(ConvertFormat::Zip, ConvertFormat::SevenZip,
                                           ConvertFormat::TarXz, ConvertFormat::TarZst),
                         [](const auto& info) {
                             return ConvertFormatName(info.param)
                                 .replace('.', '_')
                                 .replace("7z", "SevenZip")
                                 .toStdString();
                         });

TEST_F(Converting, ATakenNameGivesTheNextFreeOneAndReplacesNothing) {
    extract();
    writeFile(destination_ + QString::fromUtf8("/Архив.tar.zst"), "mine");
    writeFile(destination_ + QString::fromUtf8("/Архив (2).tar.zst"), "mine too");
    const ConvertOutcome outcome = convert(ConvertFormat::TarZst);
    ASSERT_TRUE(outcome.ok) << outcome.problem.toStdString();
    EXPECT_EQ(QFileInfo(outcome.placedPath).fileName(), QString::fromUtf8("Архив (3).tar.zst"));
    EXPECT_EQ(quovara::testing::readAll(destination_ + QString::fromUtf8("/Архив.tar.zst")),
              "mine");
}

TEST_F(Converting, ASizeOrCrcMismatchNamesTheEntriesAndWritesNothing) {
    extract();
    writeFile(staging_ + "/" + QString(kJapanese).replace('\\', '/'), "something else");
    QFile::remove(staging_ + "/folder/empty.txt");
    writeFile(staging_ + "/folder/stray.txt", "not listed");
    const ConvertOutcome outcome = convert(ConvertFormat::Zip);
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.problem,
              QString::fromUtf8("The engine did not extract these entries of the listing:\n"
                                "  folder\\empty.txt\n\n"
                                "These entries were extracted with another size or CRC-32 than "
                                "the listing gives:\n"
                                "  予定表\\図表.txt (size 14, CRC-32 %1; listed: size 350, CRC-32 "
                                "%2)\n\n"
                                "The engine extracted files the listing does not have:\n"
                                "  folder\\stray.txt")
                  .arg(QStringLiteral("%1")
                           .arg(crcOf("something else"), 8, 16, QLatin1Char('0'))
                           .toUpper(),
                       QStringLiteral("%1")
                           .arg(crcOf(entries_[1].data), 8, 16, QLatin1Char('0'))
                           .toUpper()));
    EXPECT_TRUE(destinationEntries().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(staging_ + "/" + UnfinishedArchiveName));
}

TEST_F(Converting, AStopLeavesNothingInTheDestination) {
    extract();
    std::atomic<bool> stop{false};
    ConvertRequest request;
    request.archivePath = archive_;
    request.staging = staging_;
    request.destinationFolder = destination_;
    request.format = ConvertFormat::TarXz;
    request.files = ReadListedFiles(listingLines(entries_));
    bool sawWriting = false;
    const ConvertOutcome outcome =
        ConvertExtracted(request, &stop, [&](ConvertStage stage, quint64 done, quint64 total) {
            EXPECT_LE(done, total);
            if (stage == ConvertStage::Writing && done > 0) {
                sawWriting = true;
                stop = true;
            }
        });
    EXPECT_TRUE(sawWriting);
    EXPECT_FALSE(outcome.ok);
    EXPECT_TRUE(outcome.stopped);
    EXPECT_EQ(outcome.problem, "The conversion was stopped.");
    EXPECT_TRUE(destinationEntries().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(staging_ + "/" + UnfinishedArchiveName));
}

TEST(ListedFiles, ReadsNamesAndDetailsAndKeepsTheLastOfANameListedTwice) {
    QStringList lines =
        listingLines({{"a\\B.txt", "one"}, {"c.txt", "two"}, {"a\\b.TXT", "three"}});
    const std::vector<ListedFile> files = ReadListedFiles(lines);
    ASSERT_EQ(files.size(), 2u);
    EXPECT_EQ(files[0].name, "a\\b.TXT");
    EXPECT_EQ(files[0].details.size, 5u);
    EXPECT_EQ(files[0].details.crc, crcOf("three"));
    EXPECT_EQ(files[1].name, "c.txt");
    lines.removeLast();
    lines.removeLast(); // no closing separator: an incomplete listing
    EXPECT_TRUE(ReadListedFiles(lines).empty());
}

TEST(ConvertFormats, NamesAndNumberedNames) {
    EXPECT_EQ(ConvertFormatNames(), (QStringList{"zip", "7z", "tar.xz", "tar.zst"}));
    EXPECT_EQ(ConvertFormatByName("TAR.ZST"), ConvertFormat::TarZst);
    EXPECT_FALSE(ConvertFormatByName("rar").has_value());
    EXPECT_EQ(ConvertedNameNumbered("/x/photos.uha", ConvertFormat::TarXz, 1), "photos.tar.xz");
    EXPECT_EQ(ConvertedNameNumbered("/x/photos.uha", ConvertFormat::TarXz, 2), "photos (2).tar.xz");
}

} // namespace
} // namespace quovara

namespace quovara {
namespace {

TEST(EngineMadeCuts, AreThePathsCutBeforeEachLetterWhoseSecondByteIsABackslash) {
    const EngineCodec cp932 = EngineCodec::ForCodePage(932);
    ASSERT_TRUE(cp932.isValid());
    // 予 (0x97 0x5C) and 表 (0x95 0x5C); 定 and 展 are not.
    EXPECT_EQ(EngineMadeCuts(QString::fromUtf8("予定表"), cp932),
              QStringList{QString::fromUtf8("予定")});
    EXPECT_EQ(EngineMadeCuts(QString::fromUtf8("予定表/展開表"), cp932),
              (QStringList{QString::fromUtf8("予定"), QString::fromUtf8("予定表/展開")}));
    EXPECT_TRUE(EngineMadeCuts(QString::fromUtf8("日本語/ファイル"), cp932).isEmpty());
    EXPECT_TRUE(EngineMadeCuts(QString::fromUtf8("予定表"), EngineCodec::Utf8()).isEmpty());
    EXPECT_TRUE(
        EngineMadeCuts(QString::fromUtf8("Документы"), EngineCodec::ForCodePage(866)).isEmpty());
}

TEST(EngineMadeCuts, SuchAnEmptyFolderIsNotTakenIntoTheNewArchive) {
    QTemporaryDir dir;
    const QString staging = dir.path() + "/s";
    QDir().mkpath(staging + QString::fromUtf8("/予定表"));
    QDir().mkpath(staging + QString::fromUtf8("/予定")); // made by the engine's mistake
    QDir().mkpath(staging + "/kept/empty");              // stored empty
    quovara::testing::writeFile(staging + QString::fromUtf8("/予定表/図表.txt"), "x");
    const std::vector<ListedFile> files{
        {QString::fromUtf8("予定表\\図表.txt"),
         ParseDetailLine(u"1  15-Mar-2024  10:20:30  ---A  8CDC1683")}};
    const EngineCodec cp932 = EngineCodec::ForCodePage(932);
    const StagingCheck check = CheckStaging(staging, files, nullptr, {}, &cp932);
    EXPECT_TRUE(check.ok()) << check.problem().toStdString();
    EXPECT_EQ(check.emptyFolders, QStringList{"kept/empty"});
}

} // namespace
} // namespace quovara
