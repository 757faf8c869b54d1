// Where a job runs and which paths reach the engine: the Add job's own folder, and the plain
// stand-ins (a link, a drive) for paths a Windows engine cannot take letter for letter.
#include "core/enginelocale.h"
#include "core/jobprocess.h"
#include "core/jobscript.h"
#include "core/launcherpaths.h"
#include "core/launcherprefix.h"
#include "core/letternames.h"
#include "core/places.h"
#include "core/runner.h"
#include "test_support.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

// Records its arguments and its folder, and what the file named by $QV_PEEK holds while it
// runs.
const QByteArray kRecordingEngine = "#!/bin/sh\n"
                                    "printf '%s\\n' \"$@\" > \"$QV_RECORD\"\n"
                                    "echo \"cwd=$(pwd)\" >> \"$QV_RECORD\"\n"
                                    "if [ -n \"$QV_PEEK\" ]; then cat \"$QV_PEEK\" >> "
                                    "\"$QV_RECORD\"; fi\n";

class RunnerPaths : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(EnsurePrivateWorkFolder().isEmpty());
        qputenv("QV_RECORD", record().toLocal8Bit());
    }
    void TearDown() override {
        qunsetenv("QV_RECORD");
        qunsetenv("QV_PEEK");
        qunsetenv("QUOVARA_WINE");
    }
    QString engine() const { return places.programFolder() + "/uharc.exe"; }
    QString record() const { return places.path() + "/record.txt"; }
    QStringList recorded() const {
        return QString::fromUtf8(readAll(record())).split('\n', Qt::SkipEmptyParts);
    }
    // A Windows engine behind a launcher that records what it is given.
    void windowsEngine() {
        writeFile(engine(), "MZ\x90\x00 a Windows program");
        const QString launcher = places.path() + "/fake-wine";
        writeExecutable(launcher, kRecordingEngine);
        qputenv("QUOVARA_WINE", launcher.toLocal8Bit());
    }
    CommandPieces listOf(const QString& archive) const {
        return {"\"" + Fragment::Value(engine(), "program folder") + "\"", " l -d2 -y+ -lg",
                Fragment::Value(WorkFile(names::ListLog), "temporary folder") + " ",
                "\"" + Fragment::Value(archive, "archive") + "\""};
    }
    ScopedPlaces places;
    // English: code pages 437 and 1252, which have no Cyrillic letter.
    ScopedEnv locale{"LC_ALL", "C.UTF-8"};
};

} // namespace

TEST_F(RunnerPaths, AnAddRunsInTheFolderItsScriptNames) {
    writeExecutable(engine(), kRecordingEngine);
    const QString docs = places.path() + QString::fromUtf8("/Документы");
    ASSERT_TRUE(QDir().mkpath(docs));
    CommandPieces pieces{"\"" + Fragment::Value(engine(), "program folder") + "\" ", "a ",
                         "\"" + Fragment::Value(places.path() + "/d.uha", "archive") + "\" ",
                         "\"" + Fragment::Value(QString::fromUtf8("Документы\\*.*"), "source") +
                             "\""};
    pieces.setWorkingFolder(places.path());
    ASSERT_TRUE(WriteJobScript(WorkFile(names::AddScript), Preamble::Job, pieces));
    // The folder the caller names gives way to the script's own.
    EXPECT_TRUE(RunAndWait(WorkFile(names::AddScript), 0, docs));
    EXPECT_EQ(recorded(),
              QStringList({"a", places.path() + "/d.uha", QString::fromUtf8("Документы\\*.*"),
                           "cwd=" + places.path()}));
}

TEST_F(RunnerPaths, AnArchiveWhosePathTheEngineCannotTakeIsReadThroughAPlainLink) {
    windowsEngine();
    const QString archive = places.path() + QString::fromUtf8("/Документы/Отчёт.uha");
    writeFile(archive, "UHA archive bytes\n");
    ASSERT_TRUE(WriteJobScript(WorkFile(names::ListScript), Preamble::List, listOf(archive)));
    const QString link = WorkFolder() + "/Archivio1.uha";
    qputenv("QV_PEEK", link.toLocal8Bit());
    EXPECT_TRUE(RunAndWait(WorkFile(names::ListScript), 0, places.path()));
    const QStringList got = recorded();
    ASSERT_EQ(got.size(), 8) << got.join('|').toStdString();
    EXPECT_EQ(got[0], engine());
    EXPECT_EQ(got[5], ToLauncherPath(link));
    // While the job ran the link read as the archive; it is gone after the job, the archive
    // stays.
    EXPECT_EQ(got[7], "UHA archive bytes");
    EXPECT_FALSE(QFileInfo(link).isSymLink());
    EXPECT_EQ(readAll(archive), QByteArray("UHA archive bytes\n"));
}

TEST_F(RunnerPaths, AnArchiveWithAPlainPathIsGivenAsItIs) {
    windowsEngine();
    const QString archive = places.path() + QString::fromUtf8("/Zażółć/café.uha");
    writeFile(archive, "x");
    // "ż", "ó", "ł", "ć" are not all in code page 1252: only under a Polish locale is the path
    // plain.
    ScopedEnv polish("LC_ALL", "pl_PL.UTF-8");
    ASSERT_TRUE(WriteJobScript(WorkFile(names::ListScript), Preamble::List, listOf(archive)));
    EXPECT_TRUE(RunAndWait(WorkFile(names::ListScript), 0, places.path()));
    const QStringList got = recorded();
    ASSERT_GE(got.size(), 6);
    EXPECT_EQ(got[5], ToLauncherPath(archive));
}

TEST_F(RunnerPaths, AnAddGetsTheArchivesFolderAsADriveAndNamesTheArchiveAsItIs) {
    windowsEngine();
    const QString folder = places.path() + QString::fromUtf8("/Архив");
    ASSERT_TRUE(QDir().mkpath(folder));
    CommandPieces pieces{"\"" + Fragment::Value(engine(), "program folder") + "\" ", "a ",
                         "\"" + Fragment::Value(folder + "/new.uha", "archive") + "\" ",
                         "\"" + Fragment::Value("src\\*.*", "source") + "\""};
    pieces.setWorkingFolder(places.path());
    ASSERT_TRUE(WriteJobScript(WorkFile(names::AddScript), Preamble::Job, pieces));
    JobProcess job;
    ASSERT_TRUE(job.start(WorkFile(names::AddScript))) << job.errorText().toStdString();
    EXPECT_EQ(job.arguments().value(2), "Y:\\new.uha");
    EXPECT_EQ(job.arguments().value(3), "src\\*.*");
    EXPECT_EQ(QFileInfo(LauncherPrefixFolder() + "/dosdevices/y:").symLinkTarget(), folder);
    // What the engine says of "Y:\new.uha" is shown as the archive the user named.
    EXPECT_EQ(HostPathsInText(job.withDriveShownAsFolder("Creating archive \"Y:\\new.uha\".")),
              "Creating archive \"" + folder + "/new.uha\".");
    QEventLoop loop;
    QObject::connect(&job, &JobProcess::finished, &loop, &QEventLoop::quit);
    if (job.isRunning())
        loop.exec();
    EXPECT_FALSE(QFileInfo(LauncherPrefixFolder() + "/dosdevices/y:").isSymLink());
}

TEST(LetterNames, EveryLetterIsNamedAsUnicodeNamesIt) {
    EXPECT_EQ(UnicodeName(QString::fromUtf8("о")), "CYRILLIC SMALL LETTER O");
    EXPECT_EQ(UnicodeName("o"), "LATIN SMALL LETTER O");
    EXPECT_EQ(UnicodeName(QString::fromUtf8("表")), "CJK UNIFIED IDEOGRAPH-8868");
    EXPECT_EQ(UnicodeName(QString::fromUtf8("📦")), "PACKAGE");
    EXPECT_EQ(UnicodeName(QString(QChar(0xE000))), "U+E000");
}

TEST(LetterNames, TheLocaleToGoOnWithHasEveryLetter) {
    EXPECT_EQ(LocaleForLetters(QString::fromUtf8("Документы")), "ru_RU.UTF-8");
    EXPECT_EQ(LocaleForLetters(QString::fromUtf8("Łódź")), "pl_PL.UTF-8");
    EXPECT_EQ(LocaleForLetters(QString::fromUtf8("日本語")), "ja_JP.UTF-8");
    // Code page 932 has Cyrillic letters too.
    EXPECT_EQ(LocaleForLetters(QString::fromUtf8("Дж日")), "ja_JP.UTF-8");
    // No one code page has Polish, Cyrillic and Arabic letters together (949 has the first
    // two).
    EXPECT_EQ(LocaleForLetters(QString::fromUtf8("Łжب")), QString());
}
