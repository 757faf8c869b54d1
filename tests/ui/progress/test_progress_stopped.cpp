// An extraction stopped from its window (Escape) while the stand-in engine writes big files
// slowly: the file being written goes, the complete ones stay, and the message says which file
// was removed, how many came out whole and whether one of the user's files was lost.
#include "progress_fixture.h"

#include "core/places.h"
#include "core/processcontrol.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

constexpr int kSize = 640 * 1024; // ten pieces of 64 KiB: a second a file at 100 ms a piece

class StoppedExtraction : public ::testing::Test {
protected:
    void SetUp() override {
        bench.makeSource(3, kSize);
        // Stored with an old time, as files usually are.
        for (const QString& name : QDir(bench.src).entryList(QDir::Files)) {
            QFile f(bench.src + "/" + name);
            ASSERT_TRUE(f.open(QIODevice::ReadWrite));
            ASSERT_TRUE(f.setFileTime(QDateTime(QDate(2024, 5, 1), QTime(12, 0)),
                                      QFileDevice::FileModificationTime));
        }
        archive = bench.makeArchive(kSix, "three.uha");
        dest = bench.places.path() + "/dest";
        QDir().mkpath(dest);
        old_ = qgetenv("QUOVARA_STANDIN_WRITE_MS");
        qputenv("QUOVARA_STANDIN_WRITE_MS", "100");
    }
    void TearDown() override {
        bench.window.reset();
        if (old_.isNull())
            qunsetenv("QUOVARA_STANDIN_WRITE_MS");
        else
            qputenv("QUOVARA_STANDIN_WRITE_MS", old_);
    }

    QString out(int i) const { return dest + QStringLiteral("/f%1.bin").arg(i, 2, 10, QChar('0')); }
    bool halfWritten(int i) const {
        const QFileInfo f(out(i));
        return f.exists() && f.size() >= 64 * 1024 && f.size() < kSize;
    }
    // Starts the extraction, waits until file `i` is half written and presses Escape.
    void stopDuring(int i) {
        bench.writeExtractScript(archive, dest);
        frmProgress* w = bench.open(JobKind::Extract);
        ASSERT_TRUE(WaitFor([&] { return halfWritten(i); }, 20000)) << "file " << i;
        QTest::keyClick(w, Qt::Key_Escape);
        ASSERT_TRUE(bench.waitUnloaded(w, 10000));
    }
    QString removedText(int whole, int i) const {
        const QString files = whole == 0 ? QStringLiteral("no file was extracted")
                              : whole == 1
                                  ? QStringLiteral("1 file was extracted whole")
                                  : QStringLiteral("%1 files were extracted whole").arg(whole);
        return "information: The extraction was stopped: " + files + ".\n\n\"" + out(i) +
               "\" was being written and was incomplete: it has been removed.";
    }
    void expectWhole(int i) const {
        EXPECT_EQ(QFileInfo(out(i)).size(), kSize) << i;
        QFile a(out(i));
        QFile b(bench.src + QStringLiteral("/f%1.bin").arg(i, 2, 10, QChar('0')));
        ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
        EXPECT_EQ(a.readAll(), b.readAll()) << i;
    }

    JobBench bench;
    QString archive;
    QString dest;
    QByteArray old_;
};

} // namespace

TEST_F(StoppedExtraction, DuringTheFirstFileNothingIsLeft) {
    stopDuring(0);
    EXPECT_EQ(QDir(dest).entryList(QDir::Files), QStringList());
    EXPECT_EQ(bench.prompter.shown, QStringList({removedText(0, 0)}));
}

TEST_F(StoppedExtraction, InTheMiddleTheFilesBeforeStay) {
    stopDuring(1);
    expectWhole(0);
    EXPECT_FALSE(QFile::exists(out(1)));
    EXPECT_FALSE(QFile::exists(out(2)));
    EXPECT_EQ(bench.prompter.shown, QStringList({removedText(1, 1)}));
}

TEST_F(StoppedExtraction, OnTheLastFileAllOthersStay) {
    stopDuring(2);
    expectWhole(0);
    expectWhole(1);
    EXPECT_FALSE(QFile::exists(out(2)));
    EXPECT_EQ(bench.prompter.shown, QStringList({removedText(2, 2)}));
}

TEST_F(StoppedExtraction, AUsersFileBeingOverwrittenIsNamedAsLost) {
    // The user's own f01.bin, which the extraction (overwrite on) replaces.
    writeFile(out(1), "the user's own notes");
    QTest::qWait(50);
    stopDuring(1);
    EXPECT_FALSE(QFile::exists(out(1)));
    ASSERT_EQ(bench.prompter.shown.size(), 1);
    const QString lost =
        QFileInfo(dest).birthTime().isValid()
            ? "\nIt had replaced a file of yours of the same name; the engine had already "
              "overwritten that file, so its contents are lost."
            : "\nIf a file of yours had that name, the engine had already overwritten it, so "
              "its contents are lost.";
    EXPECT_EQ(bench.prompter.shown.first(), removedText(1, 1) + lost);
}

TEST_F(StoppedExtraction, EndingTheProgramBySignalStillRemovesTheHalfWrittenFile) {
    bench.writeExtractScript(archive, dest);
    frmProgress* w = bench.open(JobKind::Extract);
    ASSERT_TRUE(WaitFor([&] { return halfWritten(1); }, 20000));
    // What the handler of SIGTERM, SIGINT and SIGHUP does once the jobs are ended.
    RunTerminationWork();
    EXPECT_TRUE(w->isUnloaded());
    expectWhole(0);
    EXPECT_FALSE(QFile::exists(out(1)));
    // No window is left to say so: the log does.
    EXPECT_TRUE(bench.prompter.shown.isEmpty());
}
