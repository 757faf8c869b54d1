// The address bar (`ShComboBox1`): inside an archive it shows the archive's path and the folder
// inside it, never the work folder that holds the archive's mirror tree; an address typed,
// pasted or chosen in its drop-down goes there, opening the archive when it is not open.
#include "mainwindow_fixture.h"

#include "core/places.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

class AddressBar : public MainWindow {
protected:
    QComboBox* bar() { return child<QComboBox>("ShComboBox1"); }
    QLineEdit* edit() { return bar()->lineEdit(); }

    // The widget that takes the keys typed into the bar: the bar itself, which hands them to
    // its text box.
    QWidget* keys() {
        bar()->setFocus();
        EXPECT_EQ(QApplication::focusWidget(), bar());
        return bar();
    }

    // Replaces the bar's text by typing `address`, then presses Enter.
    void typeAddress(const QString& address) {
        QWidget* w = keys();
        QTest::keyClick(w, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(w, Qt::Key_Backspace);
        QTest::keyClicks(w, address);
        ASSERT_EQ(edit()->text(), address);
        QTest::keyClick(w, Qt::Key_Return);
    }

    // The items of the drop-down: their texts without the indentation.
    QStringList itemTexts() {
        QStringList texts;
        for (int i = 0; i < bar()->count(); ++i)
            texts << bar()->itemText(i).trimmed();
        return texts;
    }

    // Nothing the bar holds (its text, the items' texts and their addresses) names the work
    // folder.
    void expectNoWorkFolder() {
        QStringList all{edit()->text()};
        for (int i = 0; i < bar()->count(); ++i)
            all << bar()->itemText(i) << bar()->itemData(i).toString();
        for (const QString& s : all) {
            EXPECT_FALSE(s.contains(WorkFolder())) << s.toStdString();
            EXPECT_FALSE(s.contains("Corvana")) << s.toStdString();
            EXPECT_FALSE(s.contains("Tessimo")) << s.toStdString();
        }
    }

    QString folder() { return window_.fileView()->folder(); }
};

} // namespace

TEST_F(AddressBar, InsideAnArchiveItShowsTheArchivesPathAndTheFolderInsideIt) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    ASSERT_TRUE(archiveLayout());
    EXPECT_EQ(edit()->text(), archive);
    expectNoWorkFolder();
    // Double-clicks into the folders of the archive.
    clickItem(ScratchFolder() + "/a", true);
    ASSERT_TRUE(waitFor([&] { return folder() == ScratchFolder() + "/a"; }));
    clickItem(ScratchFolder() + "/a/b", true);
    ASSERT_TRUE(waitFor([&] { return folder() == ScratchFolder() + "/a/b"; }));
    EXPECT_EQ(edit()->text(), archive + "/a/b");
    // The drop-down: the folders that hold the archive, the archive, the folders inside it.
    const QStringList texts = itemTexts();
    ASSERT_GE(texts.size(), 4);
    EXPECT_EQ(texts.mid(texts.size() - 4),
              QStringList({QFileInfo(places_.path()).fileName(), "plain.uha", "a", "b"}));
    EXPECT_EQ(bar()->itemData(bar()->count() - 1).toString(), archive + "/a/b");
    EXPECT_EQ(bar()->itemData(bar()->count() - 3).toString(), archive);
    EXPECT_EQ(bar()->itemData(bar()->count() - 4).toString(), places_.path());
    EXPECT_EQ(bar()->currentIndex(), bar()->count() - 1);
    expectNoWorkFolder();
}

TEST_F(AddressBar, ATypedArchivePathWithAFolderInsideItOpensTheArchiveThere) {
    const QString archive = makeArchive(kSix, "typed.uha");
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    ASSERT_FALSE(archiveLayout());
    typeAddress(archive + "/a/b");
    ASSERT_TRUE(archiveLayout());
    EXPECT_EQ(window_.lister().listing().archivePath, archive);
    EXPECT_EQ(folder(), ScratchFolder() + "/a/b");
    EXPECT_EQ(edit()->text(), archive + "/a/b");
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    expectNoWorkFolder();
}

TEST_F(AddressBar, APastedArchivePathOpensTheArchive) {
    const QString archive = makeArchive(kSix, "pasted.uha");
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    QApplication::clipboard()->setText(archive);
    QTest::keyClick(keys(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(keys(), Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(edit()->text(), archive);
    QTest::keyClick(keys(), Qt::Key_Return);
    ASSERT_TRUE(archiveLayout());
    EXPECT_EQ(folder(), ScratchFolder());
    EXPECT_EQ(edit()->text(), archive);
    // Pasted with the quotes a shell puts around a path, and as a file's address.
    typeAddress(places_.path());
    ASSERT_FALSE(archiveLayout());
    typeAddress("'" + archive + "/a'");
    ASSERT_TRUE(archiveLayout());
    EXPECT_EQ(folder(), ScratchFolder() + "/a");
    typeAddress("file://" + archive);
    EXPECT_EQ(folder(), ScratchFolder());
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

TEST_F(AddressBar, InsideTheArchiveTypedFoldersFullOrRelativeGoThere) {
    const QString archive = makeArchive(kSix, "inside.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    typeAddress(archive + "/a");
    EXPECT_EQ(folder(), ScratchFolder() + "/a");
    typeAddress("b");
    EXPECT_EQ(folder(), ScratchFolder() + "/a/b");
    EXPECT_EQ(edit()->text(), archive + "/a/b");
    typeAddress("..");
    EXPECT_EQ(folder(), ScratchFolder() + "/a");
    EXPECT_TRUE(archiveLayout());
    // A folder the archive does not hold: the browser stays where it was.
    typeAddress(archive + "/nothing");
    EXPECT_EQ(prompter_.shown, QStringList({"exclamation: The archive \"" + archive +
                                            "\" holds no folder \"nothing\"."}));
    EXPECT_EQ(folder(), ScratchFolder() + "/a");
    // Climbing above the archive's root leaves it for the folder that holds it.
    typeAddress("../..");
    EXPECT_EQ(folder(), places_.path());
    EXPECT_FALSE(archiveLayout());
    EXPECT_EQ(edit()->text(), places_.path());
}

TEST_F(AddressBar, TheDropDownClimbsThroughTheArchiveAndOut) {
    const QString archive = makeArchive(kSix, "climb.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    typeAddress(archive + "/a/b");
    ASSERT_EQ(folder(), ScratchFolder() + "/a/b");
    QTest::keyClick(keys(), Qt::Key_Up);
    EXPECT_EQ(folder(), ScratchFolder() + "/a");
    EXPECT_EQ(edit()->text(), archive + "/a");
    QTest::keyClick(bar(), Qt::Key_Up);
    EXPECT_EQ(folder(), ScratchFolder());
    EXPECT_EQ(edit()->text(), archive);
    EXPECT_TRUE(archiveLayout());
    QTest::keyClick(bar(), Qt::Key_Up);
    EXPECT_EQ(folder(), places_.path());
    EXPECT_FALSE(archiveLayout());
    EXPECT_EQ(edit()->text(), places_.path());
}

TEST_F(AddressBar, FilesMissingPathsAndTheWorkFolder) {
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    // A file is shown selected in its folder.
    typeAddress(src_ + "/root.txt");
    EXPECT_EQ(folder(), src_);
    ASSERT_TRUE(waitFor([&] { return window_.fileView()->selectedPath() == src_ + "/root.txt"; }));
    // A path that leads nowhere is reported; the browser stays.
    typeAddress(src_ + "/nowhere/deeper");
    EXPECT_EQ(prompter_.shown,
              QStringList({"exclamation: \"" + src_ +
                           "/nowhere/deeper\" cannot be found. Check the spelling of the address "
                           "and try again."}));
    typeAddress(src_ + "/root.txt/inside");
    EXPECT_EQ(prompter_.shown.last(), "exclamation: \"" + src_ +
                                          "/root.txt/inside\" cannot be found: \"" + src_ +
                                          "/root.txt\" is a file, not a folder or an archive.");
    EXPECT_EQ(folder(), src_);
    // The work folder is not a place to go.
    typeAddress(WorkFolder());
    EXPECT_EQ(folder(), src_);
    typeAddress(ScratchFolder());
    EXPECT_EQ(folder(), src_);
    // "~" is the home folder.
    const ScopedEnv home("HOME", src_.toUtf8());
    typeAddress("~/a");
    EXPECT_EQ(folder(), src_ + "/a");
    expectNoWorkFolder();
}
