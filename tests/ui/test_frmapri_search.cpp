// The main window's search and single items: finding entries, running and extracting one,
// names in every script, quotes that must not inject anything, a second archive.
#include "mainwindow_fixture.h"

#include "core/places.h"

#include <QDirIterator>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

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
