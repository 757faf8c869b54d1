// The main window against the stand-in engine: start-up, the command line, opening archives
// and other items, and the toolbar's commands and refusals.
#include "mainwindow_fixture.h"

#include "core/places.h"

#include <QLockFile>
#include <QMenu>
#include <QPushButton>
#include <gtest/gtest.h>

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
