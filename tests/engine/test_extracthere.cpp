// Placing an extraction beside its archive: free names, the three layouts, nothing replaced.
#include "engine/extracthere.h"

#include "../core/test_support.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quovara {
namespace {
using quovara::testing::readAll;
using quovara::testing::writeFile;

QByteArray readFile(const QString& path) {
    return QFileInfo::exists(path) ? readAll(path) : QByteArray("<missing>");
}

QStringList entries(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                  QDir::Name);
}

class Placing : public ::testing::Test {
protected:
    void SetUp() override {
        folder_ = dir_.path() + "/here";
        QDir().mkpath(folder_);
        archive_ = folder_ + "/photos.uha";
        writeFile(archive_, "archive bytes");
    }
    QString staging() {
        QString problem;
        const QString s = MakeExtractStaging(archive_, &problem);
        EXPECT_FALSE(s.isEmpty()) << problem.toStdString();
        return s;
    }
    QTemporaryDir dir_;
    QString folder_;
    QString archive_;
};

TEST(FreeNameTest, TakenNamesGetTheNextNumberBeforeTheExtension) {
    QTemporaryDir dir;
    EXPECT_EQ(FreeName(dir.path(), "photos", false), "photos");
    QDir(dir.path()).mkdir("photos");
    EXPECT_EQ(FreeName(dir.path(), "photos", false), "photos (2)");
    QDir(dir.path()).mkdir("photos (2)");
    EXPECT_EQ(FreeName(dir.path(), "photos", false), "photos (3)");
    writeFile(dir.path() + "/report.txt", "x");
    EXPECT_EQ(FreeName(dir.path(), "report.txt", true), "report (2).txt");
    // A folder's dot is part of its name; a name that starts with a dot has no extension.
    QDir(dir.path()).mkdir("v1.2");
    EXPECT_EQ(FreeName(dir.path(), "v1.2", false), "v1.2 (2)");
    writeFile(dir.path() + "/.hidden", "x");
    EXPECT_EQ(FreeName(dir.path(), ".hidden", true), ".hidden (2)");
}

TEST(FreeNameTest, ADanglingLinkCountsAsTaken) {
    QTemporaryDir dir;
    ASSERT_TRUE(QFile::link(dir.path() + "/nowhere", dir.path() + "/photos"));
    EXPECT_EQ(FreeName(dir.path(), "photos", false), "photos (2)");
}

TEST(ArchiveBaseNameTest, TheNameWithoutItsExtension) {
    EXPECT_EQ(ArchiveBaseName("/a/b/photos.uha"), "photos");
    EXPECT_EQ(ArchiveBaseName("/a/b/my.photos.UHA"), "my.photos");
    EXPECT_EQ(ArchiveBaseName("/a/b/.uha"), ".uha");
    EXPECT_EQ(ArchiveBaseName("/a/b/Zdjęcia — Фото 写真.uha"), "Zdjęcia — Фото 写真");
}

TEST_F(Placing, TheStagingFolderIsHiddenPrivateAndBesideTheArchive) {
    const QString s = staging();
    EXPECT_EQ(QFileInfo(s).absolutePath(), folder_);
    EXPECT_TRUE(QFileInfo(s).fileName().startsWith(".quovara-extract-"));
    EXPECT_EQ(QFileInfo(s).permissions() & (QFile::ReadOther | QFile::WriteOther | QFile::ExeOther |
                                            QFile::ReadGroup | QFile::WriteGroup),
              QFile::Permissions());
    DiscardExtractStaging(s);
    EXPECT_FALSE(QFileInfo::exists(s));
}

TEST_F(Placing, OneTopLevelFolderIsMovedAsItIs) {
    const QString s = staging();
    writeFile(s + "/Holiday/beach.jpg", "beach");
    writeFile(s + "/Holiday/2026/sea.jpg", "sea");
    const PlacedExtraction placed = PlaceExtraction(s, archive_);
    ASSERT_TRUE(placed.ok) << placed.problem.toStdString();
    EXPECT_EQ(placed.placedPath, folder_ + "/Holiday");
    EXPECT_EQ(readFile(folder_ + "/Holiday/2026/sea.jpg"), "sea");
    EXPECT_EQ(entries(folder_), QStringList({"Holiday", "photos.uha"}));
}

TEST_F(Placing, OneFileIsMovedAsItIsAndATakenNameNumbered) {
    writeFile(folder_ + "/report.txt", "mine");
    const QString s = staging();
    writeFile(s + "/report.txt", "from the archive");
    const PlacedExtraction placed = PlaceExtraction(s, archive_);
    ASSERT_TRUE(placed.ok) << placed.problem.toStdString();
    EXPECT_EQ(placed.placedPath, folder_ + "/report (2).txt");
    EXPECT_EQ(readFile(folder_ + "/report.txt"), "mine");
    EXPECT_EQ(readFile(folder_ + "/report (2).txt"), "from the archive");
    EXPECT_EQ(entries(folder_), QStringList({"photos.uha", "report (2).txt", "report.txt"}));
}

TEST_F(Placing, ManyEntriesGetAFolderNamedAfterTheArchiveThatOthersCanRead) {
    QDir(folder_).mkdir("photos");
    writeFile(folder_ + "/photos/keep.txt", "mine");
    const QString s = staging();
    writeFile(s + "/a.txt", "a");
    writeFile(s + "/b/c.txt", "c");
    const PlacedExtraction placed = PlaceExtraction(s, archive_);
    ASSERT_TRUE(placed.ok) << placed.problem.toStdString();
    EXPECT_EQ(placed.placedPath, folder_ + "/photos (2)");
    EXPECT_EQ(entries(folder_ + "/photos (2)"), QStringList({"a.txt", "b"}));
    EXPECT_EQ(entries(folder_ + "/photos"), QStringList({"keep.txt"}));
    // The private staging folder became an ordinary one (the user's umask decides).
    EXPECT_TRUE(QFileInfo(folder_ + "/photos (2)").permissions() & QFile::ExeOther);
    EXPECT_FALSE(QFileInfo::exists(s));
}

TEST_F(Placing, AnEmptyArchiveGetsAnEmptyFolder) {
    const QString s = staging();
    const PlacedExtraction placed = PlaceExtraction(s, archive_);
    ASSERT_TRUE(placed.ok);
    EXPECT_EQ(placed.placedPath, folder_ + "/photos");
    EXPECT_TRUE(entries(placed.placedPath).isEmpty());
}

TEST(Staging, AFolderThatCannotBeWrittenToSaysSo) {
    QTemporaryDir dir;
    const QString archive = dir.path() + "/missing-folder/photos.uha";
    QString problem;
    EXPECT_TRUE(MakeExtractStaging(archive, &problem).isEmpty());
    EXPECT_TRUE(problem.startsWith("the folder " + dir.path() +
                                   "/missing-folder cannot be "
                                   "written to ("))
        << problem.toStdString();
}

} // namespace
} // namespace quovara
