// A stopped extraction: what the engine's console output says it finished and was writing
// (read from captures of the real engine stopped in the middle of a 48 MB file), and the
// clean-up that removes the truncated file and nothing else.
#include "engine/progress.h"
#include "engine/stoppedextract.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

using namespace quovara;

namespace {

QByteArray capture(const char* name) {
    QFile f(QStringLiteral(QUOVARA_TEST_DATA "/console/") + name);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << name;
    return f.readAll();
}

ExtractTrail trailOf(const QByteArray& console) {
    return ReadExtractTrail(SplitConsoleLines(console));
}

void write(const QString& path, qsizetype size, const QDateTime& time = {}) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(QByteArray(size, 'x'));
    f.flush();
    if (time.isValid()) {
        ASSERT_TRUE(f.setFileTime(time, QFileDevice::FileModificationTime));
    }
}

const QDateTime kStored = QDateTime(QDate(2026, 11, 24), QTime(1, 42, 56));

} // namespace

TEST(ExtractTrail, TheRealEngineStoppedInABigFileNamesItAndTheTwoBefore) {
    const ExtractTrail trail = trailOf(capture("extract-stopped-in-big-file.out"));
    EXPECT_EQ(trail.wholeFiles, 2);
    EXPECT_EQ(trail.writing, "Z:\\tmp\\stopx\\out\\src\\big.bin");
    EXPECT_FALSE(trail.writingCut);
    const ExtractTrail over = trailOf(capture("extract-stopped-replacing-a-file.out"));
    EXPECT_EQ(over.wholeFiles, 2);
    EXPECT_EQ(over.writing, "Z:\\tmp\\stopx\\out\\src\\big.bin");
}

TEST(ExtractTrail, ACompleteExtractionLeavesNothingBeingWritten) {
    const ExtractTrail trail = trailOf(capture("extract-with-paths.out"));
    EXPECT_EQ(trail.wholeFiles, 8);
    EXPECT_EQ(trail.writing, "");
}

TEST(ExtractTrail, AStopOnALongNameKeepsTheEndTheEngineShowed) {
    // The real output cut right after the progress line of the long name.
    QByteArray console = capture("extract-stopped-in-big-file.out");
    const QByteArray cutAt = "Extracting ... and on beyond the column width of the line.txt";
    const qsizetype at = console.indexOf(cutAt);
    ASSERT_GT(at, 0);
    console.truncate(at + cutAt.size() + 18);
    const ExtractTrail trail = trailOf(console);
    EXPECT_EQ(trail.wholeFiles, 1);
    EXPECT_TRUE(trail.writingCut);
    EXPECT_EQ(trail.writing, " and on beyond the column width of the line.txt");
}

TEST(ExtractTrail, AStopBeforeTheFirstFileNamesNothing) {
    QByteArray console = capture("extract-stopped-in-big-file.out");
    console.truncate(console.indexOf("Extracting Z:"));
    EXPECT_EQ(trailOf(console), ExtractTrail{});
    EXPECT_EQ(trailOf(QByteArray()), ExtractTrail{});
}

TEST(StoppedExtract, TheTruncatedFileGoesAndTheCompleteOnesStay) {
    QTemporaryDir dir;
    const QString out = dir.path() + "/out";
    write(out + "/src/small.txt", 3, kStored);
    write(out + "/src/big.bin", 7863808); // being written: the current time
    StoppedExtractJob job;
    job.destination = out;
    job.workingFolder = dir.path();
    job.started = QDateTime::currentDateTime().addSecs(-8);
    ExtractTrail trail;
    trail.wholeFiles = 2;
    trail.writing = QDir::toNativeSeparators(out + "/src/big.bin");
    const StoppedExtract r = CleanUpStoppedExtract(trail, job);
    EXPECT_EQ(r.removed, out + "/src/big.bin");
    EXPECT_FALSE(QFile::exists(out + "/src/big.bin"));
    EXPECT_TRUE(QFile::exists(out + "/src/small.txt"));
    EXPECT_EQ(r.wholeFiles, 2);
    EXPECT_EQ(StoppedExtractMessage(r),
              "The extraction was stopped: 2 files were extracted whole.\n\n\"" + out +
                  "/src/big.bin\" was being written and was incomplete: it has been removed.");
}

TEST(StoppedExtract, UnderTheLauncherTheDriveFormNamesTheHostFile) {
    QTemporaryDir dir;
    write(dir.path() + "/out/big.bin", 100);
    StoppedExtractJob job;
    job.destination = dir.path() + "/out";
    job.workingFolder = dir.path();
    job.underLauncher = true;
    job.started = QDateTime::currentDateTime().addSecs(-1);
    ExtractTrail trail;
    trail.writing = "Z:" + QString(dir.path() + "/out/big.bin").replace('/', '\\');
    const StoppedExtract r = CleanUpStoppedExtract(trail, job);
    EXPECT_EQ(r.removed, dir.path() + "/out/big.bin");
    EXPECT_FALSE(QFile::exists(dir.path() + "/out/big.bin"));
}

TEST(StoppedExtract, ACutNameIsFoundByItsEndAmongTheFilesWrittenByTheJob) {
    QTemporaryDir dir;
    const QString out = dir.path() + "/out";
    const QString name =
        "/src/deep/folder/a very long file name that goes on and on and on beyond the column "
        "width of the line.txt";
    // An older file with the same end, which the job did not write, stays.
    write(out + "/older" + name, 2, kStored);
    write(out + name, 1);
    StoppedExtractJob job;
    job.destination = out;
    job.workingFolder = dir.path();
    job.started = QDateTime::currentDateTime().addSecs(-1);
    ExtractTrail trail;
    trail.writing = " and on beyond the column width of the line.txt";
    trail.writingCut = true;
    trail.wholeFiles = 1;
    const StoppedExtract r = CleanUpStoppedExtract(trail, job);
    EXPECT_EQ(r.removed, out + name);
    EXPECT_FALSE(QFile::exists(out + name));
    EXPECT_TRUE(QFile::exists(out + "/older" + name));
}

TEST(StoppedExtract, AFileStampedWithItsStoredTimeWasCompleteAndStays) {
    QTemporaryDir dir;
    write(dir.path() + "/last.txt", 10, kStored);
    StoppedExtractJob job;
    job.destination = dir.path();
    job.workingFolder = dir.path();
    job.started = QDateTime::currentDateTime().addSecs(-1);
    ExtractTrail trail;
    trail.writing = QDir::toNativeSeparators(dir.path() + "/last.txt");
    trail.wholeFiles = 4;
    const StoppedExtract r = CleanUpStoppedExtract(trail, job);
    EXPECT_TRUE(QFile::exists(dir.path() + "/last.txt"));
    EXPECT_EQ(r.kept, dir.path() + "/last.txt");
    EXPECT_EQ(r.wholeFiles, 5);
    EXPECT_EQ(StoppedExtractMessage(r),
              "The extraction was stopped: 5 files were extracted whole.");
}

TEST(StoppedExtract, NothingOutsideWhereTheJobWroteIsTouched) {
    QTemporaryDir dir;
    QTemporaryDir elsewhere;
    write(elsewhere.path() + "/precious.txt", 5);
    StoppedExtractJob job;
    job.destination = dir.path() + "/out";
    job.workingFolder = dir.path();
    job.started = QDateTime::currentDateTime().addSecs(-1);
    ExtractTrail trail;
    trail.writing = QDir::toNativeSeparators(
        dir.path() + "/out/../../" + QFileInfo(elsewhere.path()).fileName() + "/precious.txt");
    const StoppedExtract r = CleanUpStoppedExtract(trail, job);
    EXPECT_TRUE(QFile::exists(elsewhere.path() + "/precious.txt"));
    EXPECT_TRUE(r.removed.isEmpty());
    EXPECT_FALSE(r.notFound.isEmpty());
}

TEST(StoppedExtract, AUsersFileTheEngineWasOverwritingIsNamedAsLost) {
    QTemporaryDir dir;
    const QString path = dir.path() + "/out/big.bin";
    write(path, 11); // the user's own file, there before the job
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    const QDateTime started = QDateTime::currentDateTime(); // the job starts
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    {
        QFile f(path); // the engine writes into it: same file, new contents
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(QByteArray(9436672, 'y'));
    }
    StoppedExtractJob job;
    job.destination = dir.path() + "/out";
    job.workingFolder = dir.path();
    job.overwrite = true;
    job.started = started;
    ExtractTrail trail;
    trail.writing = QDir::toNativeSeparators(path);
    trail.wholeFiles = 2;
    const StoppedExtract r = CleanUpStoppedExtract(trail, job);
    EXPECT_FALSE(QFile::exists(path));
    const QString removed = "The extraction was stopped: 2 files were extracted whole.\n\n\"" +
                            path + "\" was being written and was incomplete: it has been removed.";
    if (QFileInfo(dir.path()).birthTime().isValid()) {
        EXPECT_TRUE(r.replacedUsersFile);
        EXPECT_EQ(StoppedExtractMessage(r),
                  removed + "\nIt had replaced a file of yours of the same name; the engine had "
                            "already overwritten that file, so its contents are lost.");
    } else {
        // A file system that keeps no creation time: with overwriting on, the user is warned.
        EXPECT_TRUE(r.replacedUnsure);
        EXPECT_EQ(StoppedExtractMessage(r),
                  removed + "\nIf a file of yours had that name, the engine had already "
                            "overwritten it, so its contents are lost.");
    }
}
