// The main window against the stand-in engine: start-up, command line, browsing folders and
// archives, the toolbar's commands and refusals, search, and single items.
#include "mainwindow_fixture.h"

#include "controls/xp_progressbar.h"
#include "core/places.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDirIterator>
#include <QDropEvent>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QLockFile>
#include <QMenu>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>
#include <QUrl>
#include <functional>
#include <gtest/gtest.h>

#include <csignal>

using namespace quovara;
using namespace quovara::testing;

TEST_F(MainWindow, StartsWithTheSixEngineAndIdleTexts) {
    ASSERT_TRUE(window_.Form_Load(""));
    EXPECT_TRUE(prompter_.shown.isEmpty());
    EXPECT_EQ(readAll(places_.programFolder() + "/uharc.exe"), readAll(kSix));
    EXPECT_EQ(readAll(places_.programFolder() + "/Uharc0.4.fns"), readAll(kFour));
    EXPECT_TRUE(QFileInfo(WorkFolder()).isDir());
    EXPECT_TRUE(window_.windowTitle().contains("demonstration engine"));
    EXPECT_EQ(text("Stato"), "Quovara is ready");
    EXPECT_EQ(text("Consiglio"), "Select an action");
    EXPECT_FALSE(archiveLayout());
    auto* toolbar = child<ucToolbar>("ucToolbar1");
    EXPECT_EQ(toolbar->ButtonCount(), 11);
    const QStringList captions = {"Back", "",     "Add", "Extract", "SFX",  "Verify",
                                  "",     "View", "",    "Update",  "About"};
    for (int id = 1; id <= 11; ++id)
        EXPECT_EQ(toolbar->ButtonCaption(id), captions[id - 1]) << id;
    EXPECT_FALSE(toolbar->ButtonEnabled(5));
    auto* pane = child<TaskPaneBar>("Barra");
    EXPECT_EQ(child<QWidget>("pDettagli")->parentWidget()->parentWidget(), pane);
    EXPECT_EQ(text("NomeAr"), "Files Number:");
    EXPECT_EQ(text("GranNorm"), "Grandezza normale:");
    EXPECT_EQ(text("MetodoC"), "Metodo:");
    EXPECT_EQ(text("GranComp"), "Grandezza compresso:");
    EXPECT_EQ(text("RatioP"), "Ratio:");
    EXPECT_EQ(text("LBCerca"), "Search file in archive");
    EXPECT_EQ(child<QPushButton>("EstFile")->text(), "Extract selected item");
    EXPECT_EQ(child<QPushButton>("EseFile")->text(), "Run selected file");
}

TEST_F(MainWindow, MissingOrEmptyEngineEndsTheProgram) {
    QFile::remove(places_.programFolder() + "/Uharc0.6.fns");
    writeFile(places_.programFolder() + "/uharc.exe", "");
    EXPECT_FALSE(window_.Form_Load(""));
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: Uharc 0.4 not detected, program will be end"}));
}

TEST_F(MainWindow, SecondCopyIsRefusedBeforeTouchingTheWorkFolder) {
    QLockFile other(lockPath_);
    ASSERT_TRUE(other.tryLock(0));
    ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
    writeFile(WorkFile(names::ListLog), "the first copy's log");
    EXPECT_FALSE(window_.Form_Load(""));
    EXPECT_EQ(prompter_.shown, QStringList({"exclamation: Quovara is already running"}));
    EXPECT_EQ(readAll(WorkFile(names::ListLog)), QByteArray("the first copy's log"));
}

TEST_F(MainWindow, BareArchivePathIsListedWithItsTotals) {
    const QString archive = makeArchive(kSix, "plain.uha", {"-m3"});
    ASSERT_TRUE(window_.Form_Load(archive));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    EXPECT_TRUE(archiveLayout());
    EXPECT_EQ(window_.lister().listing().archivePath, archive);
    EXPECT_EQ(window_.lister().listing().previousFolder, places_.path());
    EXPECT_EQ(window_.fileView()->folder(), ScratchFolder());
    EXPECT_EQ(text("NomeAr"), "Files: 4");
    EXPECT_EQ(text("GranNorm"), "Normal size: 0 MB");
    EXPECT_EQ(text("GranComp"), "Packed size: 0 MB");
    EXPECT_EQ(text("MetodoC"), "Mode: ALZ Best");
    EXPECT_TRUE(child<ucToolbar>("ucToolbar1")->ButtonEnabled(5));
    // The Report view shows the entries' details inside an archive.
    EXPECT_TRUE(child<QMenu>("PopView")->actions()[1]->isEnabled());
    EXPECT_TRUE(QFileInfo::exists(ScratchFolder() + "/a/b/dd.txt"));
}

TEST_F(MainWindow, OtherCommandLinesOpenTheWindowNormally) {
    ASSERT_TRUE(window_.Form_Load(src_ + "/root.txt"));
    EXPECT_FALSE(archiveLayout());
    ASSERT_TRUE(window_.Form_Load("something else entirely"));
    EXPECT_FALSE(archiveLayout());
    EXPECT_TRUE(window_.opened.isEmpty());
    EXPECT_TRUE(prompter_.shown.isEmpty());
}

TEST_F(MainWindow, ExtractRequestOpensOnlyTheExtractDialogAndEnds) {
    EXPECT_FALSE(window_.Form_Load("extract  /data/a.uha"));
    EXPECT_TRUE(window_.commandLineJob());
    EXPECT_EQ(window_.opened, QStringList({"extract"}));
    EXPECT_EQ(window_.lister().listing().archivePath, "/data/a.uha");
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(MainWindow, AddRequestPointsTheBrowserAtThePathAndEnds) {
    EXPECT_FALSE(window_.Form_Load("add  " + src_ + "/a"));
    EXPECT_EQ(window_.opened, QStringList({"add"}));
    EXPECT_EQ(window_.fileView()->folder(), src_);
    EXPECT_TRUE(waitFor([&] { return window_.fileView()->selectedPath() == src_ + "/a"; }));
}

TEST_F(MainWindow, SfxRequestListsTheArchiveThenOpensTheSfxDialog) {
    const QString archive = makeArchive(kSix, "plain.uha");
    EXPECT_FALSE(window_.Form_Load("sfx  " + archive));
    EXPECT_EQ(window_.opened, QStringList({"sfx"}));
    EXPECT_EQ(window_.lister().listing().archivePath, archive);
}

TEST_F(MainWindow, SfxRequestForAProtectedArchiveIsRefused) {
    const QString archive = makeArchive(kSix, "protected.uha", {"-pwsecret"});
    prompter_.answers = {"secret"};
    EXPECT_FALSE(window_.Form_Load("sfx  " + archive));
    EXPECT_TRUE(window_.opened.isEmpty());
    EXPECT_EQ(prompter_.shown,
              QStringList({"prompt: Insert Password",
                           "information: You cannot create a SFX with an archive protected by a "
                           "password"}));
}

TEST_F(MainWindow, ProtectedArchiveAsksForItsPassword) {
    const QString archive = makeArchive(kSix, "protected.uha", {"-pwsecret"});
    prompter_.answers = {"secret"};
    ASSERT_TRUE(window_.Form_Load(archive));
    EXPECT_EQ(prompter_.shown, QStringList({"prompt: Insert Password"}));
    EXPECT_EQ(window_.lister().listing().password, "secret");
    EXPECT_EQ(text("NomeAr"), "Files: 4");
    // The SFX command refuses a protected archive.
    clickToolbar(5);
    EXPECT_EQ(prompter_.shown.last(),
              "information: You cannot create a SFX with an archive protected by a password");
    EXPECT_TRUE(window_.opened.isEmpty());
}

TEST_F(MainWindow, OlderArchiveSwitchesTheEngineUntilTheWindowCloses) {
    const QString archive = makeArchive(kFour, "old.uha", {"-mx"});
    ASSERT_TRUE(window_.Form_Load(archive));
    EXPECT_TRUE(prompter_.shown.isEmpty());
    EXPECT_TRUE(window_.engineSwitch().engineSwitched);
    EXPECT_EQ(text("MetodoC"), "Mode: PPM");
    EXPECT_EQ(readAll(places_.programFolder() + "/uharc.exe"), readAll(kFour));
    window_.close();
    EXPECT_FALSE(window_.engineSwitch().engineSwitched);
    EXPECT_EQ(readAll(places_.programFolder() + "/uharc.exe"), readAll(kSix));
    EXPECT_EQ(readAll(places_.programFolder() + "/Uharc0.4.fns"), readAll(kFour));
}

TEST_F(MainWindow, DoubleClickOnAnArchiveListsIt) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    window_.fileView()->setFolder(places_.path());
    clickItem(archive, true);
    ASSERT_TRUE(waitFor([&] { return archiveLayout(); }));
    EXPECT_EQ(text("NomeAr"), "Files: 4");
    EXPECT_EQ(window_.fileView()->folder(), ScratchFolder());
}

TEST_F(MainWindow, CapitalUhaExtensionIsNotAnArchive) {
    const QString archive = makeArchive(kSix, "plain.uha");
    const QString upper = places_.path() + "/COPY.UHA";
    QFile::copy(archive, upper);
    ASSERT_TRUE(window_.Form_Load(""));
    window_.OpenItem(upper);
    EXPECT_FALSE(archiveLayout());
    EXPECT_EQ(opened_, QStringList({upper}));
}

TEST_F(MainWindow, OtherFilesGoToTheDesktop) {
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    window_.fileView()->setFolder(src_);
    clickItem(src_ + "/root.txt", true);
    ASSERT_TRUE(waitFor([&] { return !opened_.isEmpty(); }));
    EXPECT_EQ(opened_, QStringList({src_ + "/root.txt"}));
}

TEST_F(MainWindow, ClimbingIntoTheWorkFolderGoesBackToTheArchivesFolder) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    ASSERT_TRUE(archiveLayout());
    window_.fileView()->setFolder(WorkFolder());
    EXPECT_EQ(window_.fileView()->folder(), places_.path());
    EXPECT_FALSE(archiveLayout());
}

TEST_F(MainWindow, RefusalsOfTheToolbar) {
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    window_.fileView()->setFolder(src_);
    clickToolbar(3); // Add, nothing selected
    clickToolbar(4); // Extract, nothing selected
    clickItem(src_ + "/root.txt");
    clickToolbar(4); // Extract, not an archive
    clickToolbar(6); // Verify, not an archive
    EXPECT_EQ(prompter_.shown,
              QStringList({"exclamation: No item selected", "exclamation: No item selected",
                           "exclamation: No .uha archive selected",
                           "exclamation: No .uha archive selected"}));
    clickToolbar(3); // Add with a selection
    EXPECT_EQ(window_.opened, QStringList({"add"}));
}

TEST_F(MainWindow, UpdateAlwaysAsksForTheSameVersionPage) {
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    clickToolbar(10);
    EXPECT_EQ(opened_,
              QStringList({"http://quovara.example.org/version.php?giorno=1&mese=1&anno=2006"}));
}

TEST_F(MainWindow, AboutAndViewButtons) {
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    window_.PopViewChoose(0);
    EXPECT_EQ(window_.fileView()->viewMode(), 0);
    clickToolbar(8);
    EXPECT_EQ(window_.fileView()->viewMode(), 3);
    const QList<QAction*> modes = child<QMenu>("PopView")->actions();
    EXPECT_EQ(modes[0]->text(), "Large Icon");
    EXPECT_EQ(modes[1]->text(), "Report");
    EXPECT_EQ(modes[2]->text(), "Small Icon");
    EXPECT_EQ(modes[3]->text(), "List");
    EXPECT_FALSE(modes[0]->isChecked());
    EXPECT_TRUE(modes[3]->isChecked());
    clickToolbar(11);
    EXPECT_EQ(window_.opened, QStringList({"about"}));
}

TEST_F(MainWindow, VerifyWritesTheTestScriptWithALineEnd) {
    const QString archive = makeArchive(kSix, "protected.uha", {"-pwsecret"});
    prompter_.answers = {"secret"};
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    clickToolbar(6);
    EXPECT_EQ(window_.opened, QStringList({"testing"}));
    // No password switch, even for a protected archive.
    EXPECT_EQ(readAll(WorkFile(names::TestScript)),
              "@echo off\r\ncls\r\nset uharc_opt= -d2\r\n\"" +
                  (places_.programFolder() + "/UHARC.exe").toLocal8Bit() + "\" t -y+ \"" +
                  archive.toLocal8Bit() + "\" > " + WorkFile(names::ConsoleOutput).toLocal8Bit() +
                  "\r\n");
}

TEST_F(MainWindow, VerifyInTheFileSystemLayoutTakesTheSelectedArchive) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    window_.fileView()->setFolder(places_.path());
    clickItem(archive);
    clickToolbar(6);
    EXPECT_EQ(window_.opened, QStringList({"testing"}));
    EXPECT_TRUE(
        readAll(WorkFile(names::TestScript)).contains("\" t -y+ \"" + archive.toLocal8Bit()));
}

TEST_F(MainWindow, SearchWithoutADotFindsNamesThatBeginWithItDeeperFoldersFirst) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    QTest::keyClicks(child<QLineEdit>("TxtCerca"), "d");
    QTest::mouseClick(child<QToolButton>("ImgCerca"), Qt::LeftButton);
    auto* found = child<QTreeView>("Trovati");
    EXPECT_TRUE(found->isVisible());
    EXPECT_FALSE(window_.fileView()->isVisible());
    ASSERT_TRUE(waitFor([&] { return text("Stato") == "Quovara is ready"; }));
    ASSERT_EQ(found->model()->rowCount(), 2);
    EXPECT_EQ(found->model()->headerData(0, Qt::Horizontal).toString(), "File Name");
    EXPECT_EQ(found->model()->headerData(1, Qt::Horizontal).toString(), "File Path");
    EXPECT_EQ(cell(found, 0, 0), "dd.txt");
    EXPECT_EQ(cell(found, 0, 1), "a\\b");
    EXPECT_EQ(cell(found, 1, 0), "d.txt");
    EXPECT_EQ(cell(found, 1, 1), "a");
    // Back hides the results and shows the browser again.
    clickToolbar(1);
    EXPECT_FALSE(found->isVisible());
    EXPECT_TRUE(window_.fileView()->isVisible());
    EXPECT_EQ(found->model()->rowCount(), 0);
}

TEST_F(MainWindow, SearchWithADotAndARootResult) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    ASSERT_TRUE(searchWithEnter("*.TXT"));
    auto* found = child<QTreeView>("Trovati");
    QStringList rows;
    for (int i = 0; i < found->model()->rowCount(); ++i)
        rows << cell(found, i, 1) + "|" + cell(found, i, 0);
    EXPECT_EQ(rows, QStringList({"a\\b|c.txt", "a\\b|dd.txt", "a|d.txt", "|root.txt"}));
    // A root result makes the selected item begin with "\".
    const QRect r = found->visualRect(found->model()->index(3, 0));
    QTest::mouseClick(found->viewport(), Qt::LeftButton, {}, r.center());
    EXPECT_EQ(window_.selectedItem(), "\\root.txt");
    QTest::mouseClick(found->viewport(), Qt::LeftButton, {},
                      found->visualRect(found->model()->index(0, 0)).center());
    EXPECT_EQ(window_.selectedItem(), "a\\b\\c.txt");
}

TEST_F(MainWindow, SearchWithNoArchiveOpenFindsNothing) {
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    QTest::keyClicks(child<QLineEdit>("TxtCerca"), "a");
    QTest::mouseClick(child<QToolButton>("ImgCerca"), Qt::LeftButton);
    ASSERT_TRUE(waitFor([&] { return text("Stato") == "Quovara is ready"; }));
    EXPECT_EQ(child<QTreeView>("Trovati")->model()->rowCount(), 0);
}

TEST_F(MainWindow, RunSelectedFileExtractsItIntoTheWorkFolderAndOpensIt) {
    const QString archive = makeArchive(kSix, "protected.uha", {"-pwsecret"});
    prompter_.answers = {"secret"};
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    window_.fileView()->setFolder(ScratchFolder() + "/a/b");
    clickItem(ScratchFolder() + "/a/b/c.txt");
    EXPECT_EQ(window_.selectedItem(), "a\\b\\c.txt");
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    // The protected archive's password is reused: no new prompt.
    EXPECT_EQ(prompter_.shown, QStringList({"prompt: Insert Password"}));
    EXPECT_EQ(readAll(WorkFile(names::SingleScript)),
              "@echo off\r\ncls\r\nset uharc_opt= -d2\r\n\"" +
                  (places_.programFolder() + "/UHARC.exe").toLocal8Bit() + "\" e  -o+ -t\"" +
                  WorkFolder().toLocal8Bit() + "\" -y+ -pw\"secret\" \"" + archive.toLocal8Bit() +
                  "\" \"a\\b\\c.txt\"");
    EXPECT_EQ(readAll(WorkFolder() + "/c.txt"), QByteArray("c in a\\b"));
    EXPECT_EQ(opened_, QStringList({WorkFolder() + "/c.txt"}));
    EXPECT_EQ(text("Stato"), "Quovara is ready");
    EXPECT_EQ(text("Consiglio"), "Select an action");
}

TEST_F(MainWindow, DoubleClickOnAnArchivedFileRunsIt) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    clickItem(ScratchFolder() + "/root.txt", true);
    ASSERT_TRUE(waitFor([&] { return !opened_.isEmpty(); }));
    EXPECT_EQ(opened_, QStringList({WorkFolder() + "/root.txt"}));
    EXPECT_EQ(readAll(WorkFolder() + "/root.txt"), QByteArray("root file"));
}

TEST_F(MainWindow, SelectedFolderBecomesAPatternForTheExtractDialogAndTheOpenAction) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    window_.fileView()->setFolder(ScratchFolder() + "/a");
    clickItem(ScratchFolder() + "/a/b");
    EXPECT_EQ(window_.selectedItem(), "a\\b\\*.*");
    QTest::mouseClick(child<QPushButton>("EstFile"), Qt::LeftButton);
    EXPECT_EQ(window_.opened, QStringList({"extract selected"}));
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(opened_, QStringList({WorkFolder() + "/*.*"}));
    EXPECT_EQ(prompter_.shown, QStringList({"critical: Impossibile trovare il file. \r\r"}));
}

TEST_F(MainWindow, SingleItemCommandsWithNothingSelected) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    QTest::mouseClick(child<QPushButton>("EstFile"), Qt::LeftButton);
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(prompter_.shown,
              QStringList({"exclamation: No item selected", "exclamation: No item selected"}));
    EXPECT_TRUE(window_.opened.isEmpty());
}

TEST_F(MainWindow, SameNamedItemsFromTwoFoldersOverwriteEachOther) {
    writeFile(src_ + "/a/b/d.txt", "d in a\\b");
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    window_.fileView()->setFolder(ScratchFolder() + "/a");
    clickItem(ScratchFolder() + "/a/d.txt");
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/d.txt"), QByteArray("d in a"));
    window_.fileView()->setFolder(ScratchFolder() + "/a/b");
    clickItem(ScratchFolder() + "/a/b/d.txt");
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/d.txt"), QByteArray("d in a\\b"));
}

// Names in several scripts, a blank and an apostrophe: listed into the mirror tree, found by a
// search, and extracted one by one under exactly those names, from an archive with such a name
// and such a password.
TEST_F(MainWindow, NamesInEveryScriptAreListedSearchedAndExtractedUnchanged) {
    const QStringList names = MixedScriptNames();
    const QString folder = QString::fromUtf8("Źródła ünï");
    QDir().mkpath(src_ + "/" + folder);
    for (const QString& n : names)
        writeFile(src_ + "/" + folder + "/" + n, n.toUtf8());
    const QString password = QString::fromUtf8("hasło-пароль-🔑");
    const QString archive =
        makeArchive(kSix, QString::fromUtf8("Архив 日本 📦.uha"), {"-pw" + password});
    prompter_.answers = {password};
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    EXPECT_EQ(prompter_.shown, QStringList({"prompt: Insert Password"}));
    QStringList mirrored = QDir(ScratchFolder() + "/" + folder).entryList(QDir::Files);
    QStringList expected = names;
    mirrored.sort();
    expected.sort();
    EXPECT_EQ(mirrored, expected);
    EXPECT_EQ(text("NomeAr"), "Files: 11");

    ASSERT_TRUE(searchWithEnter(QString::fromUtf8("*.txt")));
    auto* found = child<QTreeView>("Trovati");
    QStringList hits;
    for (int i = 0; i < found->model()->rowCount(); ++i)
        if (cell(found, i, 1) == folder)
            hits << cell(found, i, 0);
    hits.sort();
    EXPECT_EQ(hits, expected);

    // Each one extracted alone comes out under its own name with its own bytes.
    clickToolbar(1);
    window_.fileView()->setFolder(ScratchFolder() + "/" + folder);
    for (const QString& n : names) {
        clickItem(ScratchFolder() + "/" + folder + "/" + n);
        EXPECT_EQ(window_.selectedItem(), folder + "\\" + n);
        QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
        EXPECT_EQ(readAll(WorkFolder() + "/" + n), n.toUtf8()) << n.toStdString();
        EXPECT_EQ(opened_.last(), WorkFolder() + "/" + n);
    }
}

// Double quotes in names and passwords stay inside their own argument: no extra switch, no
// redirection, no file anywhere but where the job puts it.
TEST_F(MainWindow, QuotesInNamesAndPasswordsCannotInjectSwitchesOrRedirections) {
    const QString trap = places_.path() + "/FILE";
    // An entry whose name carries a quote, a password switch and a target folder: the stored
    // name is docs\a" -pwX -t\tmp "b.txt (a backslash in a file name here separates folders in
    // the archive).
    QDir().mkpath(src_ + "/docs");
    writeFile(src_ + "/docs/a\" -pwX -t\\tmp \"b.txt", "quoted entry");
    // An archive whose name would pass a password switch of its own.
    const QString archive = makeArchive(kSix, "x\" -pwINJECTED \"y.uha", {"-pwa\"b"});
    ASSERT_TRUE(QFileInfo(archive).isFile());
    // This answer would redirect the list job's output: it is only a wrong password.
    prompter_.answers = {"p\" > " + trap + " \""};
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    EXPECT_EQ(prompter_.shown,
              QStringList({"prompt: Insert Password",
                           "critical: Can't read from archive file / Unexpected end of file "
                           "(maybe corrupt)"}));
    EXPECT_FALSE(QFileInfo::exists(trap));
    // The real password holds a quote too, and opens the archive.
    prompter_.shown.clear();
    prompter_.answers = {"a\"b"};
    window_.OpenItem(archive);
    EXPECT_EQ(prompter_.shown, QStringList({"prompt: Insert Password"}));
    EXPECT_TRUE(archiveLayout());
    const QString placeholder = ScratchFolder() + "/docs/a\" -pwX -t/tmp \"b.txt";
    EXPECT_TRUE(QFileInfo(placeholder).isFile());

    // The entry extracted alone lands in the WorkFolder under its own name, nowhere else.
    window_.fileView()->setFolder(ScratchFolder() + "/docs/a\" -pwX -t");
    clickItem(placeholder);
    EXPECT_EQ(window_.selectedItem(), "docs\\a\" -pwX -t\\tmp \"b.txt");
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/tmp \"b.txt"), QByteArray("quoted entry"));
    EXPECT_EQ(opened_, QStringList({WorkFolder() + "/tmp \"b.txt"}));
    EXPECT_FALSE(QFileInfo::exists("/tmp/b.txt"));
    EXPECT_FALSE(QFileInfo::exists(trap));
}

TEST_F(MainWindow, AnArchiveNameWithALineBreakIsRefusedAndNothingRuns) {
    const QString archive = places_.path() + "/x\n\"" + places_.path() + "/run.sh\" a.uha";
    writeFile(archive, "UHA not really");
    writeExecutable(places_.path() + "/run.sh",
                    "#!/bin/sh\ntouch '" + (places_.path() + "/started").toUtf8() + "'\n");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    window_.OpenItem(archive);
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: The archive holds a line break, which a job line cannot "
                           "carry:\n" +
                           QString(archive).replace("\n", "\\n") + "\nNothing was run."}));
    EXPECT_FALSE(QFileInfo::exists(places_.path() + "/started"));
    EXPECT_FALSE(QFileInfo::exists(WorkFile(names::ListScript)));
    EXPECT_FALSE(archiveLayout());
}

TEST_F(MainWindow, OpeningASecondArchiveShowsAndSearchesOnlyItsOwnEntries) {
    const QString first = makeArchive(kSix, "first.uha");
    QDir(src_).removeRecursively();
    QDir().mkpath(src_ + "/only");
    writeFile(src_ + "/only/b-file.txt", "b");
    const QString second = makeArchive(kSix, "second.uha");
    ASSERT_TRUE(window_.Form_Load(first));
    show();
    EXPECT_TRUE(QFileInfo(ScratchFolder() + "/a/b/c.txt").isFile());
    window_.OpenItem(second);
    QStringList files;
    QDirIterator it(ScratchFolder(), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << QDir(ScratchFolder()).relativeFilePath(it.next());
    EXPECT_EQ(files, QStringList({"only/b-file.txt"}));
    EXPECT_EQ(text("NomeAr"), "Files: 1");
    ASSERT_TRUE(searchWithEnter("*.txt"));
    auto* found = child<QTreeView>("Trovati");
    ASSERT_EQ(found->model()->rowCount(), 1);
    EXPECT_EQ(cell(found, 0, 0), "b-file.txt");
}

namespace {

// An engine that never ends while it lists, for the jobs started while this lives.
class HangingEngine : public ScopedEnv {
public:
    HangingEngine() : ScopedEnv("QUOVARA_STANDIN_FAULT", "hang") {}
};

// The pid of the running stand-in list job of this test's program folder, or 0.
qint64 runningListJob(const QString& programFolder) {
    const QDir proc("/proc");
    for (const QString& pid : proc.entryList(QDir::Dirs)) {
        bool number = false;
        const qint64 id = pid.toLongLong(&number);
        if (!number)
            continue;
        QFile cmdline("/proc/" + pid + "/cmdline");
        if (cmdline.open(QIODevice::ReadOnly) &&
            cmdline.readAll().startsWith((programFolder + "/uharc.exe").toLocal8Bit()))
            return id;
    }
    return 0;
}

// Calls `act` with the pid of the stand-in list job once it runs. It looks from a repeating
// timer, never from a wait of its own, so that whatever event loop the window is in when the
// timer fires can end and let the listing go on.
void whenListJobRuns(const QString& programFolder, std::function<void(qint64)> act) {
    auto* poll = new QTimer;
    poll->setInterval(20);
    QObject::connect(poll, &QTimer::timeout, [poll, programFolder, act] {
        if (const qint64 engine = runningListJob(programFolder)) {
            poll->stop();
            poll->deleteLater();
            act(engine);
        }
    });
    poll->start();
}

} // namespace

TEST_F(MainWindow, AnArchiveFromTheCommandLineIsReadWithTheWindowShownAndEscapeStopsIt) {
    const QString archive = makeArchive(kSix, "endless.uha");
    HangingEngine hang;
    QString titleWhileReading, stateWhileReading;
    bool visibleWhileReading = false;
    qint64 engine = 0;
    whenListJobRuns(places_.programFolder(), [&](qint64 running) {
        engine = running;
        titleWhileReading = window_.windowTitle();
        stateWhileReading = text("Stato") + "|" + text("Consiglio");
        visibleWhileReading = window_.isVisible();
        window_.activateWindow();
        if (!QTest::qWaitForWindowActive(&window_))
            ADD_FAILURE() << "the window never became active";
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window_,
                        Qt::Key_Escape);
    });
    QElapsedTimer t;
    t.start();
    EXPECT_TRUE(window_.Form_Load(archive));
    EXPECT_LT(t.elapsed(), 10000);
    EXPECT_TRUE(visibleWhileReading);
    EXPECT_EQ(titleWhileReading,
              QString::fromUtf8("Reading endless.uha … — Quovara — demonstration engine"));
    EXPECT_EQ(stateWhileReading, "Quovara is reading the archive|Press Escape to stop");
    ASSERT_GT(engine, 0);
    EXPECT_TRUE(waitFor([&] { return ::kill(pid_t(engine), 0) != 0; }));
    // Stopped by the user: no message, no archive layout, the title as before.
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    EXPECT_FALSE(archiveLayout());
    EXPECT_EQ(window_.windowTitle(), QString::fromUtf8("Quovara — demonstration engine"));
}

TEST_F(MainWindow, WhileAnArchiveIsReadTheWindowTakesNoInputButWhatStopsTheReading) {
    const QString endless = makeArchive(kSix, "endless.uha");
    const QString second = makeArchive(kSix, "second.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    window_.fileView()->setFolder(places_.path());
    QAbstractItemView* list = window_.fileView()->currentView();
    ASSERT_TRUE(waitFor([&] { return list->model()->rowCount(list->rootIndex()) >= 2; }));
    list->setFocus();
    auto hang = std::make_unique<HangingEngine>();
    QWidget* focusBefore = nullptr;
    QWidget* focusAfter = nullptr;
    QString selectedWhileReading = "not looked at";
    whenListJobRuns(places_.programFolder(), [&](qint64) {
        window_.activateWindow();
        if (!QTest::qWaitForWindowActive(&window_))
            ADD_FAILURE() << "the window never became active";
        focusBefore = QApplication::focusWidget();
        // A double-click on another archive, the toolbar's Add, Back, Tab: none of them acts.
        clickItem(second, true);
        clickToolbar(3);
        QTest::keyClick(list, Qt::Key_Backspace);
        QTest::keyClick(list, Qt::Key_Tab);
        focusAfter = QApplication::focusWidget();
        selectedWhileReading = window_.fileView()->selectedPath();
        // Escape still stops the reading.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    });
    window_.OpenItem(endless);
    EXPECT_TRUE(selectedWhileReading.isEmpty()) << selectedWhileReading.toStdString();
    EXPECT_EQ(focusAfter, focusBefore);
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    EXPECT_EQ(window_.lister().listing().archivePath, endless);
    EXPECT_EQ(QDir(window_.fileView()->folder()), QDir(places_.path()));
    EXPECT_FALSE(archiveLayout());
    // Once the reading has stopped, the window takes input again.
    hang.reset();
    clickItem(second, true);
    ASSERT_TRUE(waitFor([&] { return archiveLayout(); }));
    EXPECT_EQ(window_.lister().listing().archivePath, second);
}

TEST_F(MainWindow, ClosingTheWindowWhileAnArchiveIsReadEndsTheEngineAndTheProgram) {
    const QString archive = makeArchive(kSix, "endless.uha");
    HangingEngine hang;
    qint64 engine = 0;
    whenListJobRuns(places_.programFolder(), [&](qint64 running) {
        engine = running;
        window_.close();
    });
    EXPECT_FALSE(window_.Form_Load(archive));
    ASSERT_GT(engine, 0);
    EXPECT_TRUE(waitFor([&] { return ::kill(pid_t(engine), 0) != 0; }));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

TEST_F(MainWindow, EndingTheProgramWithASignalEndsTheEngineItWasWaitingFor) {
    const QString archive = makeArchive(kSix, "endless.uha");
    for (const int signal : {SIGTERM, SIGINT}) {
        QProcess program;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QUOVARA_STANDIN_FAULT", "hang");
        env.insert("QT_QPA_PLATFORM", "offscreen");
        // A runtime folder of its own: its single-copy lock is nobody else's.
        const QString runtime = places_.path() + "/run";
        QDir().mkpath(runtime);
        QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        env.insert("XDG_RUNTIME_DIR", runtime);
        program.setProcessEnvironment(env);
        program.start(QUOVARA_PROGRAM, {archive});
        ASSERT_TRUE(program.waitForStarted());
        qint64 engine = 0;
        ASSERT_TRUE(
            waitFor([&] { return (engine = runningListJob(places_.programFolder())) != 0; }));
        ::kill(pid_t(program.processId()), signal);
        EXPECT_TRUE(program.waitForFinished(10000));
        EXPECT_EQ(program.exitCode(), 128 + signal);
        EXPECT_TRUE(waitFor([&] { return ::kill(pid_t(engine), 0) != 0; })) << signal;
    }
}

TEST_F(MainWindow, LeavingTheMirrorTreeByAnyRouteRestoresTheFileSystemLayout) {
    const QString first = makeArchive(kSix, "first.uha");
    const QString second = makeArchive(kSix, "second.uha");
    ASSERT_TRUE(window_.Form_Load(first));
    show();
    ASSERT_TRUE(archiveLayout());
    EXPECT_EQ(window_.windowTitle(),
              QString::fromUtf8("first.uha — Quovara — demonstration engine"));
    EXPECT_TRUE(child<ucToolbar>("ucToolbar1")->ButtonEnabled(5));
    // Deeper inside the mirror tree the layout stays.
    window_.fileView()->setFolder(ScratchFolder() + "/a/b");
    EXPECT_TRUE(archiveLayout());
    // Back climbs out to the archive's folder.
    window_.fileView()->setFolder(places_.path());
    EXPECT_FALSE(archiveLayout());
    EXPECT_FALSE(child<ucToolbar>("ucToolbar1")->ButtonEnabled(5));
    EXPECT_EQ(window_.windowTitle(), QString::fromUtf8("Quovara — demonstration engine"));
    // A double-click on another archive there lists it, not an item of the old mirror tree.
    clickItem(second, true);
    ASSERT_TRUE(waitFor([&] { return archiveLayout(); }));
    EXPECT_EQ(window_.lister().listing().archivePath, second);
    EXPECT_EQ(window_.windowTitle(),
              QString::fromUtf8("second.uha — Quovara — demonstration engine"));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

TEST_F(MainWindow, TheToolbarShowsCaptionsBesideTheImages) {
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    auto* toolbar = child<ucToolbar>("ucToolbar1");
    // List style: the caption stands to the right of its 32-pixel image, so a button is wider
    // than tall and the bar is one button high.
    const QRect back = toolbar->ButtonRect(1);
    EXPECT_GT(back.width(), back.height() + 10) << back.width() << "x" << back.height();
    EXPECT_LT(toolbar->ToolbarHeight(), 60);
}

TEST_F(MainWindow, ARootSearchResultRunsLikeAnyOtherItem) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    ASSERT_TRUE(searchWithEnter("root*"));
    auto* found = child<QTreeView>("Trovati");
    ASSERT_EQ(found->model()->rowCount(), 1);
    QTest::mouseClick(found->viewport(), Qt::LeftButton, {},
                      found->visualRect(found->model()->index(0, 0)).center());
    EXPECT_EQ(window_.selectedItem(), "\\root.txt");
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/root.txt"), QByteArray("root file"));
    EXPECT_EQ(opened_, QStringList({WorkFolder() + "/root.txt"}));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    // The extract dialog's preset names the stored item.
    QTest::mouseClick(child<QPushButton>("EstFile"), Qt::LeftButton);
    EXPECT_EQ(window_.opened, QStringList({"extract selected"}));
}

TEST_F(MainWindow, AServedSfxRequestOnAnOldArchiveEndsWithTheEngineSwitchedBack) {
    const QString archive = makeArchive(kFour, "old.uha");
    EXPECT_FALSE(window_.Form_Load("sfx  " + archive));
    EXPECT_EQ(window_.opened, QStringList({"sfx"}));
    EXPECT_FALSE(window_.engineSwitch().engineSwitched);
    EXPECT_EQ(readAll(places_.programFolder() + "/uharc.exe"), readAll(kSix));
    EXPECT_EQ(readAll(places_.programFolder() + "/Uharc0.4.fns"), readAll(kFour));
}

namespace {

// The main window whose open-archive question answers with a chosen path.
class AnsweringApri : public TestApri {
public:
    QString answer;
    int asked = 0;

protected:
    QString askArchiveToOpen() override {
        ++asked;
        return answer;
    }
};

} // namespace

TEST_F(MainWindow, EverythingIsReachedWithTheKeyboard) {
    const QString archive = makeArchive(kSix, "keys.uha");
    AnsweringApri window;
    window.setPrompter(&prompter_);
    window.setInstanceLockPath(lockPath_ + ".keys");
    ASSERT_TRUE(window.Form_Load(QString()));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto key = [&](int k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : &window;
        QTest::keyClick(target, Qt::Key(k), m);
    };
    // Ctrl+O asks for an archive and opens it.
    window.answer = archive;
    key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(window.asked, 1);
    ASSERT_TRUE(waitFor([&] { return window.lister().listing().archivePath == archive; }));
    auto* pane = window.findChild<TaskPaneBar*>("Barra");
    EXPECT_FALSE(pane->isHidden());
    // Ctrl+F puts the cursor in the search box.
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), window.findChild<QLineEdit*>("TxtCerca"));
    // Backspace typed there edits the text, it does not go back.
    QTest::keyClicks(QApplication::focusWidget(), "ab");
    key(Qt::Key_Backspace);
    EXPECT_EQ(window.findChild<QLineEdit*>("TxtCerca")->text(), "a");
    // F5 lists the archive again.
    QFile::remove(ScratchFolder() + "/root.txt");
    key(Qt::Key_F5);
    EXPECT_TRUE(QFileInfo(ScratchFolder() + "/root.txt").isFile());
    // Alt+Left goes back out of the archive's folder view.
    window.fileView()->setFocus();
    window.fileView()->setFolder(ScratchFolder() + "/a");
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(window.fileView()->folder(), ScratchFolder());
    // Backspace in the file list goes back too.
    window.fileView()->setFolder(ScratchFolder() + "/a/b");
    window.fileView()->setFocus();
    key(Qt::Key_Backspace);
    EXPECT_EQ(window.fileView()->folder(), ScratchFolder());
    // Ctrl+Q ends the program.
    key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

namespace {

// Drops `path` onto `target` the way a file manager's drag does.
bool dropOnto(QWidget* target, const QString& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    const QPoint at = target->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(QPointF(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return drop.isAccepted();
}

} // namespace

TEST_F(MainWindow, ADroppedFolderOrFileOpensTheAddDialogForIt) {
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    const QString folder = src_ + QString::fromUtf8("/a");
    ASSERT_TRUE(dropOnto(&window_, folder));
    ASSERT_TRUE(waitFor([&] { return !window_.opened.isEmpty(); }));
    EXPECT_EQ(window_.opened, QStringList({"add"}));
    EXPECT_EQ(window_.addSources, QStringList({folder}));
    // The browser points at what was dropped, as if it had been selected there.
    EXPECT_EQ(window_.fileView()->folder(), src_);
    // A name in any script comes through unchanged.
    const QString mixed = src_ + "/" + MixedScriptNames().at(4);
    writeFile(mixed, "x");
    ASSERT_TRUE(dropOnto(&window_, mixed));
    ASSERT_TRUE(waitFor([&] { return window_.addSources.size() == 2; }));
    EXPECT_EQ(window_.addSources.last(), mixed);
}

TEST_F(MainWindow, ADroppedArchiveIsOpened) {
    const QString archive = makeArchive(kSix, "dropped.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    ASSERT_TRUE(dropOnto(&window_, archive));
    ASSERT_TRUE(waitFor([&] { return archiveLayout(); }));
    EXPECT_EQ(window_.lister().listing().archivePath, archive);
    EXPECT_TRUE(window_.opened.isEmpty());
}

TEST_F(MainWindow, ADragWithoutALocalFileIsRefused) {
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    QMimeData data;
    data.setUrls({QUrl("https://example.org/a.uha")});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window_, &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(MainWindow, EntriesCanBeDraggedInEveryViewModeOfTheMirrorTree) {
    const QString archive = makeArchive(kSix, "drag.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    EXPECT_TRUE(window_.fileView()->dragOut());
    EXPECT_TRUE(window_.fileView()->currentView()->dragEnabled());
    window_.OpenItem(archive);
    ASSERT_TRUE(archiveLayout());
    for (int mode = 0; mode < 4; ++mode) {
        window_.fileView()->setViewMode(mode);
        EXPECT_TRUE(window_.fileView()->currentView()->dragEnabled()) << mode;
    }
    window_.fileView()->setFolder(places_.path());
    EXPECT_TRUE(window_.fileView()->currentView()->dragEnabled());
}

TEST_F(MainWindow, TheWindowStaysLiveAndCountsEntriesWhileABigArchiveIsRead) {
    // An engine that answers with the listing of 40,000 entries in 40 folders.
    const int count = 40000;
    QList<QByteArray> names;
    for (int i = 0; i < count; ++i)
        names << "d" + QByteArray::number(i % 40) + "\\f" + QByteArray::number(i) + ".txt";
    const QByteArray log = ListingLogOf(names);
    const QString logFile = places_.path() + "/big.log";
    writeFile(logFile, log);
    const QString archive = places_.path() + "/big.uha";
    writeFile(archive, "UHA");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    // In place of the engine once the start-up has put its engine in place.
    const QString engine = places_.programFolder() + "/uharc.exe";
    QFile::remove(engine);
    writeExecutable(engine, "#!/bin/sh\nfor a in \"$@\"; do case \"$a\" in -lg*) cat '" +
                                logFile.toUtf8() + "' >> \"${a#-lg}\";; esac; done\n");
    QStringList states, titles;
    QElapsedTimer sinceTick;
    qint64 longestGap = 0;
    QTimer probe;
    probe.setInterval(10);
    QObject::connect(&probe, &QTimer::timeout, [&] {
        longestGap = std::max(longestGap, sinceTick.restart());
        const QString s = text("Stato");
        if (states.isEmpty() || states.last() != s)
            states << s;
        if (titles.isEmpty() || titles.last() != window_.windowTitle())
            titles << window_.windowTitle();
    });
    sinceTick.start();
    probe.start();
    window_.OpenItem(archive);
    probe.stop();
    ASSERT_TRUE(archiveLayout());
    EXPECT_EQ(text("NomeAr"), "Files: 40000");
    // The window's own loop ran while the tree was made, and it showed the count.
    EXPECT_TRUE(states.filter(QRegularExpression("^Quovara is reading the archive: \\d+ entries$"))
                    .size() >= 1)
        << states.join('|').toStdString();
    // The task pane was hidden (the archive was opened from a folder): the title counts too.
    EXPECT_TRUE(titles
                    .filter(QRegularExpression(QString::fromUtf8(
                        "^Reading big\\.uha … \\d+ entries — Quovara — demonstration engine$")))
                    .size() >= 1)
        << titles.join('|').toStdString();
    EXPECT_EQ(window_.windowTitle(), QString::fromUtf8("big.uha — Quovara — demonstration engine"));
    std::printf("longest gap between two runs of the event loop while listing: %lld ms\n",
                static_cast<long long>(longestGap));
}

TEST_F(MainWindow, TheFileListAndTheTaskPaneShowWhereTheFocusIs) {
    const QString archive = makeArchive(kSix, "focus.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    // Tab moves the focus, as a person without a mouse does.
    auto tabTo = [&](QWidget* target) {
        for (int i = 0; i < 30 && !target->hasFocus(); ++i)
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget()
                                                        : static_cast<QWidget*>(&window_),
                            Qt::Key_Tab);
        return target->hasFocus();
    };
    // The file list, given the focus, marks an item as the current one without selecting it.
    // The item current before, in the folder that held the archive, is not on the screen now.
    QAbstractItemView* list = window_.fileView()->currentView();
    auto* files = static_cast<QFileSystemModel*>(list->model());
    window_.fileView()->setFolder(places_.path());
    ASSERT_TRUE(waitFor([&] { return files->index(archive).isValid(); }));
    list->selectionModel()->setCurrentIndex(files->index(archive), QItemSelectionModel::NoUpdate);
    window_.OpenItem(archive);
    ASSERT_TRUE(archiveLayout());
    ASSERT_TRUE(waitFor([&] { return list->model()->rowCount(list->rootIndex()) > 0; }));
    child<QLineEdit>("TxtCerca")->setFocus();
    const QImage unfocused = list->viewport()->grab().toImage();
    ASSERT_TRUE(tabTo(list));
    EXPECT_TRUE(list->currentIndex().isValid());
    EXPECT_EQ(list->currentIndex().parent(), list->rootIndex());
    EXPECT_TRUE(list->selectionModel()->selectedIndexes().isEmpty());
    EXPECT_TRUE(window_.fileView()->selectedPath().isEmpty());
    // ... and its frame is drawn.
    EXPECT_NE(list->viewport()->grab().toImage(), unfocused);
    // The task pane, given the focus with nothing under the pointer, draws a focus frame.
    auto* pane = child<TaskPaneBar>("Barra");
    const QImage before = pane->grab().toImage();
    ASSERT_TRUE(tabTo(pane));
    EXPECT_NE(pane->grab().toImage(), before);
    ASSERT_TRUE(tabTo(list));
    EXPECT_EQ(pane->grab().toImage(), before);
    // The search box and its button name their shortcut in their tips.
    EXPECT_EQ(child<QToolButton>("ImgCerca")->toolTip(), "Search (Ctrl+F)");
    EXPECT_EQ(child<QLineEdit>("TxtCerca")->toolTip(), "Search file in archive (Ctrl+F)");
    // The toolbar's tips name the other keys: resting the pointer on a button shows its tip.
    auto* toolbar = child<ucToolbar>("ucToolbar1");
    auto tipAt = [&](int id) {
        QHelpEvent help(QEvent::ToolTip, toolbar->ButtonRect(id).center(),
                        toolbar->mapToGlobal(toolbar->ButtonRect(id).center()));
        QApplication::sendEvent(toolbar, &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    EXPECT_EQ(tipAt(1), "Back (Backspace, Alt+Left)");
    EXPECT_EQ(tipAt(11),
              "About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit");
}

TEST_F(MainWindow, AtSixHundredFortyByFourHundredTwentyNothingIsCut) {
    const QString archive = makeArchive(kSix, "small-window.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    window_.resize(640, 420);
    show();
    ASSERT_TRUE(waitFor([&] { return window_.width() == 640 && window_.height() == 420; }));
    ASSERT_TRUE(archiveLayout());
    auto* pane = child<TaskPaneBar>("Barra");
    // A label shows its text whole: on one line within its width, or wrapped within its height.
    auto shownWhole = [](const QLabel* l) {
        const QRect r = l->contentsRect();
        return l->wordWrap() ? l->heightForWidth(l->width()) <= l->height()
                             : l->fontMetrics().horizontalAdvance(l->text()) <= r.width();
    };
    // The longest state text, with a six-digit count, is shown whole as well as the idle one.
    auto* state = child<QLabel>("Stato");
    const QString idle = state->text();
    for (const QString& t : {idle, QString("Quovara is reading the archive: 100000 entries")}) {
        state->setText(t);
        QApplication::processEvents();
        // Wrapped, it has the height it needs, inside the pane.
        EXPECT_TRUE(shownWhole(state)) << t.toStdString();
        EXPECT_LE(state->mapTo(pane, QPoint(state->width(), 0)).x(), pane->width());
        EXPECT_LE(state->mapTo(child<QWidget>("pStato"), QPoint(0, state->height())).y(),
                  child<QWidget>("pStato")->height());
    }
    state->setText(idle);
    // Each caption of the pane is shown whole, inside the pane.
    for (const char* name :
         {"NomeAr", "GranNorm", "GranComp", "MetodoC", "RatioP", "LBCerca", "Consiglio"}) {
        auto* l = child<QLabel>(name);
        EXPECT_TRUE(shownWhole(l)) << name;
        EXPECT_LE(l->mapTo(pane, QPoint(l->width(), 0)).x(), pane->width()) << name;
    }
    for (const char* name : {"EstFile", "EseFile"}) {
        auto* b = child<QPushButton>(name);
        EXPECT_GE(b->width(), b->sizeHint().width()) << name;
        EXPECT_LE(b->mapTo(pane, QPoint(b->width(), 0)).x(), pane->width()) << name;
    }
    // The toolbar's buttons that do not fit are behind its arrow, which is on the screen.
    auto* toolbar = child<ucToolbar>("ucToolbar1");
    auto* more = toolbar->findChild<QToolButton*>("Overflow");
    ASSERT_NE(more, nullptr);
    EXPECT_TRUE(more->isVisible());
    EXPECT_FALSE(toolbar->OverflowButtons().isEmpty());
    EXPECT_LE(more->mapTo(&window_, QPoint(more->width(), 0)).x(), window_.width());
}

TEST_F(MainWindow, AnArchiveNamedRelativeToTheStartingFolderIsOpened) {
    makeArchive(kSix, QString::fromUtf8("względny.uha"));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(places_.path()));
    const bool loaded = window_.Form_Load(QString::fromUtf8("względny.uha"));
    QDir::setCurrent(before);
    ASSERT_TRUE(loaded);
    EXPECT_TRUE(archiveLayout());
    EXPECT_EQ(window_.lister().listing().archivePath,
              places_.path() + QString::fromUtf8("/względny.uha"));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}
