// Archives whose stored names climb out of the folder they are extracted into, made by the
// stand-in engine as the real engine makes them ("-pr" keeps "..", a Linux name holding
// backslashes is stored as a path): shown, never extracted, the good entries extracted, the bad
// ones named; and, with the name check switched off, the confinement alone keeps every write
// inside the destination.
#include "core/confinement.h"
#include "core/launcherprefix.h"
#include "core/launcherserver.h"
#include "engine/unsafenames.h"
#include "mainwindow_fixture.h"
#include "ui/common/foldertree.h"
#include "ui/jobs/extractherejob.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDirIterator>
#include <QPushButton>
#include <QTimer>
#include <unistd.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

const QString kWine = QStringLiteral(QUOVARA_WINE_STANDIN);

// Every file below `root` whose name is `name`, relative to `root`; the empty placeholders of
// the program's own folder view (in its work folder, "tmp/") are not files of the archive.
QStringList filesNamed(const QString& root, const QString& name) {
    QStringList found;
    QDirIterator it(root, {name}, QDir::Files | QDir::Hidden | QDir::System,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString f = QDir(root).relativeFilePath(it.next());
        if (!f.startsWith("tmp/"))
            found << f;
    }
    found.sort();
    return found;
}

class UnsafeEntries : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        here_ = places_.path() + "/x/y/here";
        QDir().mkpath(here_);
    }
    void TearDown() override {
        SetUnsafeNameCheckForTesting(true);
        MainWindow::TearDown();
    }

    // An archive in `here_` holding "..\..\evil1.txt", "good.txt", "sub\inner.txt" and, when
    // `backslashName`, "bs\..\..\bs.txt" (a Linux file whose name holds backslashes).
    QString crafted(const QString& name, bool withGood = true, bool backslashName = true,
                    bool climbsAfterGoingIn = false) {
        const QString cwd = places_.path() + "/craft/a/b";
        QDir().mkpath(cwd);
        writeFile(cwd + "/../../evil1.txt", "payload evil1");
        QStringList names{"..\\..\\evil1.txt"};
        if (climbsAfterGoingIn) {
            // Stored as "in\..\..\..\stage\evil1.txt".
            QDir().mkpath(cwd + "/in");
            writeFile(places_.path() + "/craft/stage/evil1.txt", "payload evil1");
            names << "in\\..\\..\\..\\stage\\evil1.txt";
        }
        if (withGood) {
            writeFile(cwd + "/good.txt", "good");
            writeFile(cwd + "/sub/inner.txt", "inner");
            names << "good.txt"
                  << "sub\\inner.txt";
        }
        if (backslashName) {
            writeFile(cwd + "/bs/..\\..\\bs.txt", "payload bs");
            names << "bs\\*";
        }
        QProcess p;
        p.setWorkingDirectory(cwd);
        p.start(kSix, QStringList{"a", "-m0", "-pr", "-y+", here_ + "/" + name} + names);
        EXPECT_TRUE(p.waitForFinished(30000));
        EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString();
        QFile::remove(places_.path() + "/craft/evil1.txt");
        QDir(places_.path() + "/craft/stage").removeRecursively();
        return here_ + "/" + name;
    }

    // Nothing of the crafted payloads stands anywhere but below `inside`.
    void expectNothingOutside(const QString& inside) {
        for (const QString& name : {QStringLiteral("evil1.txt"), QStringLiteral("bs.txt")}) {
            for (const QString& f : filesNamed(places_.path(), name))
                EXPECT_TRUE((places_.path() + "/" + f).startsWith(inside + "/")) << f.toStdString();
        }
    }

    QString named(const QString& archive, const QString& text) {
        return QString::fromLatin1(extract_here::AboutArchive)
            .arg(QFileInfo(archive).fileName(), text);
    }

    QString here_;
};

TEST_F(UnsafeEntries, ExtractHereExtractsTheGoodEntriesNamesTheBadOnesAndEndsWithStatusOne) {
    const QString archive = crafted("mix.uha");
    EXPECT_EQ(window_.ExtractHere({archive}), 1);
    EXPECT_EQ(folderEntries(here_), QStringList({"mix", "mix.uha"}));
    EXPECT_EQ(folderEntries(here_ + "/mix"), QStringList({"good.txt", "sub"}));
    EXPECT_EQ(readAll(here_ + "/mix/sub/inner.txt"), "inner");
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: " +
                           named(archive, "2 entries were not extracted: their names would place "
                                          "them outside the destination folder.\n\n"
                                          "bs\\..\\..\\bs.txt\n..\\..\\evil1.txt")}));
    expectNothingOutside(here_ + "/nowhere");
    EXPECT_TRUE(filesNamed(places_.path(), "evil1.txt").isEmpty());
}

TEST_F(UnsafeEntries, AnArchiveOfOnlyUnsafeEntriesWritesNothingAndSaysSo) {
    const QString archive = crafted("only.uha", false, false);
    EXPECT_EQ(window_.ExtractHere({archive}), 1);
    EXPECT_EQ(folderEntries(here_), QStringList({"only.uha"}));
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: " +
                           named(archive, "Nothing was extracted: every entry of the archive has "
                                          "a name that would place it outside the destination "
                                          "folder.\n\n..\\..\\evil1.txt")}));
    EXPECT_TRUE(filesNamed(places_.path(), "evil1.txt").isEmpty());
}

TEST_F(UnsafeEntries, WithTheCheckOffANativeEngineIsStillKeptInsideItsDestination) {
    QString why;
    const int probe = MakeWriteConfinement(places_.path(), &why);
    if (probe < 0)
        GTEST_SKIP() << "no Landlock on this kernel: " << why.toStdString();
    ::close(probe);
    const QString archive = crafted("mix.uha");
    SetUnsafeNameCheckForTesting(false);
    // The engine tries to write above the folder it extracts into and is refused by the
    // kernel: the job fails, and nothing stands outside.
    EXPECT_EQ(window_.ExtractHere({archive}), 1);
    EXPECT_EQ(folderEntries(here_), QStringList({"mix.uha"}));
    EXPECT_TRUE(filesNamed(places_.path(), "evil1.txt").isEmpty());
    EXPECT_TRUE(filesNamed(places_.path(), "bs.txt").isEmpty());
}

TEST_F(UnsafeEntries, TheWindowShowsThemUnderSafeNamesAndRefusesToRunOne) {
    const QString archive = crafted("mix.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    ASSERT_EQ(prompter_.shown.size(), 1);
    EXPECT_EQ(prompter_.shown[0],
              "information: " +
                  UnsafeEntriesMessage(archive, {"bs\\..\\..\\bs.txt", "..\\..\\evil1.txt"}, 2));
    EXPECT_EQ(folderEntries(ScratchFolder()),
              QStringList({QString::fromUtf8("..∖..∖evil1.txt"),
                           QString::fromUtf8("bs∖..∖..∖bs.txt"), "good.txt", "sub"}));
    // A double click on an unsafe entry is refused by name; nothing runs.
    clickItem(ScratchFolder() + QString::fromUtf8("/..∖..∖evil1.txt"), true);
    EXPECT_EQ(window_.selectedStoredName(), "..\\..\\evil1.txt");
    EXPECT_EQ(prompter_.shown.last(), "exclamation: " + UnsafeItemMessage("..\\..\\evil1.txt"));
    EXPECT_FALSE(QFileInfo::exists(WorkFolder() + "/evil1.txt"));
    // "Run selected file" on a good one runs it, with the unsafe names excluded.
    clickItem(ScratchFolder() + "/good.txt");
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/good.txt"), "good");
    EXPECT_EQ(opened_.last(), WorkFolder() + "/good.txt");
    expectNothingOutside(here_ + "/nowhere");
}

TEST_F(UnsafeEntries, TheExtractWindowExtractsTheGoodEntriesWithTheirPathsAndNamesTheBadOnes) {
    const QString archive = crafted("mix.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    prompter_.shown.clear();
    const QString out = places_.path() + "/x/out";
    QDir().mkpath(out);
    extractWithTheWindowInto(out);
    EXPECT_EQ(folderEntries(out), QStringList({"good.txt", "sub"}));
    EXPECT_EQ(readAll(out + "/sub/inner.txt"), "inner");
    EXPECT_EQ(prompter_.shown.value(0),
              "information: " + LeftOutMessage({"bs\\..\\..\\bs.txt", "..\\..\\evil1.txt"}));
    EXPECT_TRUE(filesNamed(places_.path(), "evil1.txt").isEmpty());
    EXPECT_TRUE(filesNamed(places_.path(), "bs.txt").isEmpty());
    // Asked for by itself from the entry's selection, an unsafe entry is refused by name.
    prompter_.shown.clear();
    clickItem(ScratchFolder() + QString::fromUtf8("/..∖..∖evil1.txt"));
    window_.realExtractDialog(true);
    EXPECT_EQ(prompter_.shown,
              QStringList({"exclamation: " + UnsafeItemMessage("..\\..\\evil1.txt")}));
}

// The engine as a Windows program under the stand-in launcher: its destination is the root of
// a drive of its own, and Windows path rules stop ".." there.
class UnsafeEntriesUnderTheLauncher : public UnsafeEntries {
protected:
    void SetUp() override {
        UnsafeEntries::SetUp();
        emptyProgramFolder();
        writeFile(places_.programFolder() + "/uharc.exe", "MZ\nstandin=" + kSix.toUtf8() + "\n");
        writeFile(places_.programFolder() + "/Uharc0.4.fns",
                  "MZ\nstandin=" + kFour.toUtf8() + "\n");
        QFile::link(kWine, places_.path() + "/wineserver");
    }
    ScopedEnv wine_{"QUOVARA_WINE", kWine.toUtf8()};
    ScopedEnv server_{"QUOVARA_WINESERVER", (QDir::tempPath() + "/none").toUtf8()};
};

TEST_F(UnsafeEntriesUnderTheLauncher, WithTheCheckOffEveryWriteStaysInsideTheDestination) {
    qputenv("QUOVARA_WINESERVER", (places_.path() + "/wineserver").toUtf8());
    const QString archive = crafted("mix.uha", true, false);
    SetUnsafeNameCheckForTesting(false);
    EXPECT_EQ(window_.ExtractHere({archive}), 0) << prompter_.shown.join("|").toStdString();
    // "..\..\evil1.txt" stopped at the drive's root: the destination itself.
    EXPECT_EQ(folderEntries(here_), QStringList({"mix", "mix.uha"}));
    EXPECT_EQ(folderEntries(here_ + "/mix"), QStringList({"evil1.txt", "good.txt", "sub"}));
    EXPECT_EQ(filesNamed(places_.path(), "evil1.txt"), QStringList({"x/y/here/mix/evil1.txt"}));
    // The drive was the job's alone: no link is left in the prefix, and nothing went to C:.
    EXPECT_EQ(QDir(LauncherPrefixFolder() + "/dosdevices")
                  .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
              QStringList());
    EXPECT_TRUE(filesNamed(LauncherPrefixFolder(), "evil1.txt").isEmpty());
    LauncherServer::Shutdown();
}

TEST_F(UnsafeEntriesUnderTheLauncher, TheEmptyFoldersTheEngineMakesForLeftOutEntriesAreRemoved) {
    qputenv("QUOVARA_WINESERVER", (places_.path() + "/wineserver").toUtf8());
    const QString archive = crafted("mix.uha", true, false, true);
    // The engine makes "in" and "stage" (".." stops at the drive's root) before it skips the
    // entry; they go again, and nothing else of the destination is touched.
    EXPECT_EQ(window_.ExtractHere({archive}), 1);
    EXPECT_EQ(folderEntries(here_ + "/mix"), QStringList({"good.txt", "sub"}));
    EXPECT_TRUE(filesNamed(places_.path(), "evil1.txt").isEmpty());
    LauncherServer::Shutdown();
}

TEST_F(UnsafeEntriesUnderTheLauncher, TheGoodEntriesAreExtractedAndTheBadOnesNamed) {
    qputenv("QUOVARA_WINESERVER", (places_.path() + "/wineserver").toUtf8());
    const QString archive = crafted("mix.uha", true, false);
    EXPECT_EQ(window_.ExtractHere({archive}), 1);
    EXPECT_EQ(folderEntries(here_ + "/mix"), QStringList({"good.txt", "sub"}));
    EXPECT_EQ(prompter_.shown.size(), 1);
    EXPECT_TRUE(prompter_.shown.value(0).contains("..\\..\\evil1.txt"));
    EXPECT_TRUE(filesNamed(places_.path(), "evil1.txt").isEmpty());
    LauncherServer::Shutdown();
}

} // namespace
