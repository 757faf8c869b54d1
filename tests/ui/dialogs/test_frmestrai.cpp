// The Extract dialog driven through its controls: the folder tree and the box that shows it,
// the options, and the exact bytes of the extract script that OK writes.
#include "dialog_test_support.h"

#include "ui/jobs/frmestrai.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>

using namespace quovara;
using namespace quovara::testing;

namespace {

class ExtractDialog : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
        base_ = places_.path() + "/data";
        QDir().mkpath(base_ + "/out/inner");
        archive_ = base_ + "/x.uha";
        writeFile(archive_, "archive");
    }

    frmEstrai& open(const QString& archive) {
        dialog_ = std::make_unique<frmEstrai>(archive, prompter_, [this](const QString& a) {
            handedOver_ << a;
            EXPECT_TRUE(dialog_->isHidden());
        });
        showAndWait(dialog_.get());
        return *dialog_;
    }

    template <typename T> T* c(const char* name) { return control<T>(dialog_.get(), name); }
    void ok() { click(c<QPushButton>("Command2")); }

    QTreeView* tree() { return c<QTreeView>("FolderView1"); }
    FolderTreeModel* model() { return qobject_cast<FolderTreeModel*>(tree()->model()); }

    void clickFolder(const QString& path) { quovara::testing::clickFolder(tree(), path); }

    QByteArray expected(const QString& rest) const { return scriptBytes(engineText() + rest); }
    QString archiveText() const { return "\"" + archive_ + "\""; }

    ScopedPlaces places_;
    RecordingPrompter prompter_;
    QString base_;
    QString archive_;
    QStringList handedOver_;
    std::unique_ptr<frmEstrai> dialog_;
};

} // namespace

TEST_F(ExtractDialog, CaptionsAndInitialStateOfEveryControl) {
    open(archive_);
    EXPECT_EQ(dialog_->windowTitle(), "Extract " + archive_);
    EXPECT_EQ(c<QLabel>("Label2")->text(), "Extract To:");
    EXPECT_EQ(c<QLineEdit>("TxTDir")->text(), base_) << "the tree starts at the archive's folder";
    EXPECT_EQ(dialog_->selectedFolder(), base_);
    EXPECT_EQ(c<QPushButton>("Command1")->text(), "Create New Folder");
    EXPECT_EQ(c<QRadioButton>("Option1")->text(), "Extract files to current dir");
    EXPECT_FALSE(c<QRadioButton>("Option1")->isChecked());
    EXPECT_EQ(c<QGroupBox>("Frame1")->title(), "Option");
    EXPECT_EQ(c<QCheckBox>("Check3")->text(), "Extract files with full path");
    EXPECT_FALSE(c<QCheckBox>("Check3")->isChecked());
    EXPECT_EQ(c<QCheckBox>("Check2")->text(), "Password");
    EXPECT_FALSE(c<QCheckBox>("Check2")->isChecked());
    EXPECT_FALSE(c<QLineEdit>("TxTPwd")->isEnabled());
    EXPECT_EQ(c<QLineEdit>("TxTPwd")->echoMode(), QLineEdit::Password);
    EXPECT_EQ(c<QLineEdit>("TxTPwd")->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter,
                                                         nullptr, c<QLineEdit>("TxTPwd")),
              '*');
    EXPECT_EQ(c<QCheckBox>("Check1")->text(), "Overwrite files");
    EXPECT_FALSE(c<QCheckBox>("Check1")->isChecked());
    EXPECT_EQ(c<QGroupBox>("Frame2")->title(), "File to Extract");
    EXPECT_EQ(c<QRadioButton>("OpAllFile")->text(), "All Files");
    EXPECT_TRUE(c<QRadioButton>("OpAllFile")->isChecked());
    EXPECT_EQ(c<QRadioButton>("OpFileType")->text(), "Only These Files:  (e.g: *.dll,*.exe)");
    EXPECT_EQ(c<QRadioButton>("OpFileList")->text(), "By File List (Full Path)");
    EXPECT_EQ(c<QCheckBox>("ChkExclude")->text(), "Exclude: (e.g: *.dll *.exe)");
    EXPECT_EQ(c<QPushButton>("Command2")->text(), "OK");
    EXPECT_EQ(c<QPushButton>("Command3")->text(), "Cancel");
    for (const char* name :
         {"TxTDir", "FolderView1", "TxTPwd", "TxtFileType", "TxtFileList", "TxtExclude"})
        EXPECT_FALSE(c<QWidget>(name)->accessibleName().isEmpty()) << name;
    // The tree shows folders only: the archive's folder lists "out" and not the archive.
    const QModelIndex folder = model()->find(base_);
    tree()->expand(folder);
    ASSERT_TRUE(QTest::qWaitFor([&] { return model()->rowCount(folder) > 0; }));
    QTest::qWait(100);
    QStringList shown;
    for (int row = 0; row < model()->rowCount(folder); ++row)
        shown << model()->index(row, 0, folder).data().toString();
    EXPECT_EQ(shown, QStringList({"out"}));
}

TEST_F(ExtractDialog, DefaultsExtractFlatIntoTheSelectedFolderWithoutOverwriting) {
    open(archive_);
    clickFolder(base_ + "/out");
    EXPECT_EQ(c<QLineEdit>("TxTDir")->text(), base_ + "/out");
    ok();
    EXPECT_EQ(extractScript(),
              expected("e -t\"" + base_ + "/out\" -o- " + archiveText() + redirectText()));
    EXPECT_EQ(handedOver_, QStringList({archive_}));
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    EXPECT_TRUE(prompter_.shown.isEmpty());
}

TEST_F(ExtractDialog, FullPathAloneKeepsTheTarget) {
    open(archive_);
    click(c<QCheckBox>("Check3"));
    ok();
    EXPECT_EQ(extractScript(),
              expected("x -t\"" + base_ + "\" -o- " + archiveText() + redirectText()));
}

TEST_F(ExtractDialog, CurrentDirWithFullPathGivesTwoBlanksAfterTheX) {
    open(archive_);
    click(c<QRadioButton>("Option1"));
    click(c<QCheckBox>("Check3"));
    ok();
    EXPECT_EQ(extractScript(), expected("x  -o- " + archiveText() + redirectText()));
    open(archive_);
    click(c<QRadioButton>("Option1"));
    click(c<QCheckBox>("Check3"));
    click(c<QCheckBox>("Check1"));
    ok();
    EXPECT_EQ(extractScript(), expected("x  -o+ " + archiveText() + redirectText()));
}

TEST_F(ExtractDialog, CurrentDirAloneExtractsFlatWithoutATarget) {
    open(archive_);
    click(c<QRadioButton>("Option1"));
    ok();
    EXPECT_EQ(extractScript(), expected("e  -o- " + archiveText() + redirectText()));
}

TEST_F(ExtractDialog, CurrentDirCannotBeClearedOnceChosen) {
    open(archive_);
    auto* option = c<QRadioButton>("Option1");
    click(option);
    EXPECT_TRUE(option->isChecked());
    click(option);
    EXPECT_TRUE(option->isChecked());
    option->setFocus();
    QTest::keyClick(option, Qt::Key_Space);
    EXPECT_TRUE(option->isChecked());
    // Nothing else in the dialog clears it either.
    click(c<QRadioButton>("OpFileType"));
    click(c<QRadioButton>("OpAllFile"));
    click(c<QCheckBox>("Check3"));
    click(c<QCheckBox>("Check3"));
    EXPECT_TRUE(option->isChecked());
    ok();
    EXPECT_EQ(extractScript(), expected("e  -o- " + archiveText() + redirectText()));
}

TEST_F(ExtractDialog, ARootDestinationLosesItsSeparator) {
    open(archive_);
    dialog_->selectFolder("/");
    EXPECT_EQ(c<QLineEdit>("TxTDir")->text(), "/");
    ok();
    // The root of this file system, like a bare drive C: of another, is written without its
    // separator.
    EXPECT_EQ(extractScript(), expected("e -t\"\" -o- " + archiveText() + redirectText()));
}

TEST_F(ExtractDialog, OnlyTheseFilesWithAnEmptyTextWritesNoPattern) {
    open(archive_);
    click(c<QRadioButton>("OpFileType"));
    ok();
    EXPECT_EQ(extractScript(),
              expected("e -t\"" + base_ + "\" -o- " + archiveText() + redirectText()));
}

TEST_F(ExtractDialog, PatternsExclusionsAndListFile) {
    open(archive_);
    click(c<QRadioButton>("OpFileType"));
    QTest::keyClicks(c<QLineEdit>("TxtFileType"), "*.dll,*.exe, *.txt");
    click(c<QCheckBox>("ChkExclude"));
    QTest::keyClicks(c<QLineEdit>("TxtExclude"), "a*,b*");
    click(c<QCheckBox>("Check1"));
    ok();
    EXPECT_EQ(extractScript(),
              expected("e -t\"" + base_ + "\" -o+ " + archiveText() +
                       " \"*.dll\" \"*.exe\" \" *.txt\" !\"a*\" !\"b*\"" + redirectText()));
    open(archive_);
    click(c<QRadioButton>("OpFileList"));
    QTest::keyClicks(c<QLineEdit>("TxtFileList"), "/l/names.lst");
    ok();
    EXPECT_EQ(extractScript(), expected("e -t\"" + base_ + "\" -o- " + archiveText() +
                                        " @\"/l/names.lst\"" + redirectText()));
}

TEST_F(ExtractDialog, PasswordTickedButEmptyIsWritten) {
    open(archive_);
    QTest::keyClicks(c<QLineEdit>("TxTPwd"), "ignored");
    EXPECT_EQ(c<QLineEdit>("TxTPwd")->text(), "");
    click(c<QCheckBox>("Check2"));
    EXPECT_TRUE(c<QLineEdit>("TxTPwd")->isEnabled());
    ok();
    EXPECT_EQ(extractScript(),
              expected("e -t\"" + base_ + "\" -o- -pw\"\" " + archiveText() + redirectText()));
    open(archive_);
    click(c<QCheckBox>("Check2"));
    QTest::keyClicks(c<QLineEdit>("TxTPwd"), "se cret");
    click(c<QCheckBox>("Check2"));
    EXPECT_FALSE(c<QLineEdit>("TxTPwd")->isEnabled());
    ok();
    EXPECT_EQ(extractScript(),
              expected("e -t\"" + base_ + "\" -o- " + archiveText() + redirectText()));
}

TEST_F(ExtractDialog, CreateNewFolderMakesOneUnderTheSelectionAndOffersItsName) {
    open(archive_);
    clickFolder(base_ + "/out");
    click(c<QPushButton>("Command1"));
    EXPECT_TRUE(QFileInfo(base_ + "/out/New Folder").isDir());
    EXPECT_EQ(c<QLineEdit>("TxTDir")->text(), base_ + "/out/New Folder");
    // The new folder's name is open for editing in the tree, and has the keyboard.
    ASSERT_NE(qobject_cast<QLineEdit*>(QApplication::focusWidget()), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->parentWidget(), tree()->viewport());
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), "New Folder");
    // The user types the name and confirms it.
    QWidget* editor = QApplication::focusWidget();
    ASSERT_NE(qobject_cast<QLineEdit*>(editor), nullptr);
    typeInto(qobject_cast<QLineEdit*>(editor), "Photos");
    QTest::keyClick(editor, Qt::Key_Return);
    // The editor hands its text over once control is back in the event loop.
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFileInfo(base_ + "/out/Photos").isDir(); }));
    EXPECT_FALSE(QFileInfo(base_ + "/out/New Folder").exists());
    EXPECT_EQ(c<QLineEdit>("TxTDir")->text(), base_ + "/out/Photos");
    EXPECT_EQ(dialog_->selectedFolder(), base_ + "/out/Photos");
    EXPECT_TRUE(handedOver_.isEmpty()) << "Enter in the name editor is not OK";
    ok();
    EXPECT_EQ(extractScript(),
              expected("e -t\"" + base_ + "/out/Photos\" -o- " + archiveText() + redirectText()));
}

TEST_F(ExtractDialog, ASecondNewFolderGetsANumber) {
    open(archive_);
    clickFolder(base_ + "/out");
    click(c<QPushButton>("Command1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(dialog_->isVisible()) << "Escape in the name editor keeps the dialog";
    clickFolder(base_ + "/out");
    click(c<QPushButton>("Command1"));
    EXPECT_TRUE(QFileInfo(base_ + "/out/New Folder (2)").isDir());
    EXPECT_EQ(c<QLineEdit>("TxTDir")->text(), base_ + "/out/New Folder (2)");
}

TEST_F(ExtractDialog, CancelWritesNothing) {
    writeFile(WorkFile(names::ExtractScript), "older script");
    open(archive_);
    click(c<QCheckBox>("Check3"));
    click(c<QPushButton>("Command3"));
    EXPECT_EQ(dialog_->result(), QDialog::Rejected);
    EXPECT_EQ(extractScript(), "older script");
    EXPECT_TRUE(handedOver_.isEmpty());
}

TEST_F(ExtractDialog, ThePresetForOneItemChoosesOnlyTheseFiles) {
    open(archive_);
    dialog_->presetItem("docs\\readme.txt");
    EXPECT_TRUE(c<QRadioButton>("OpFileType")->isChecked());
    EXPECT_EQ(c<QLineEdit>("TxtFileType")->text(), "docs\\readme.txt");
    ok();
    EXPECT_EQ(extractScript(), expected("e -t\"" + base_ + "\" -o- " + archiveText() +
                                        " \"docs\\readme.txt\"" + redirectText()));
}

TEST_F(ExtractDialog, AnArchiveInAMissingFolderStartsTheTreeAtHome) {
    open("/no/such/folder/x.uha");
    EXPECT_EQ(dialog_->windowTitle(), "Extract /no/such/folder/x.uha");
    EXPECT_EQ(c<QLineEdit>("TxTDir")->text(), QDir::homePath());
}

TEST_F(ExtractDialog, TabOrderFollowsTheForm) {
    open(archive_);
    click(c<QCheckBox>("Check2"));
    dialog_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    c<QLineEdit>("TxTDir")->setFocus();
    QStringList visited{QApplication::focusWidget()->objectName()};
    for (int i = 0; i < 14; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(visited,
              QStringList({"TxTDir", "FolderView1", "Command1", "Option1", "Check3", "Check2",
                           "TxTPwd", "Check1", "OpAllFile", "TxtFileType", "TxtFileList",
                           "ChkExclude", "TxtExclude", "Command2", "Command3"}));
}

TEST_F(ExtractDialog, AnEnterThatReachesTheDialogWhileANewFolderIsRenamedDoesNotPressOk) {
    open(archive_);
    clickFolder(base_ + "/out");
    click(c<QPushButton>("Command1"));
    QWidget* editor = QApplication::focusWidget();
    ASSERT_NE(qobject_cast<QLineEdit*>(editor), nullptr);
    // The editor lets Return go on to its window, as a line edit does.
    QTest::keyClick(dialog_.get(), Qt::Key_Return);
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_TRUE(dialog_->isVisible());
}

TEST_F(ExtractDialog, TheFolderTreeShowsTheArchivesFolderSelectedWithoutWaiting) {
    // An archive several folders deep, each level with many sibling folders.
    QString deep = base_;
    for (int level = 0; level < 5; ++level) {
        for (int i = 0; i < 40; ++i)
            QDir().mkpath(deep + QString("/sibling%1").arg(i));
        deep += QString("/level%1").arg(level);
    }
    QDir().mkpath(deep);
    archive_ = deep + "/deep.uha";
    writeFile(archive_, "archive");
    QElapsedTimer shown;
    shown.start();
    open(archive_);
    auto visible = [&] {
        const QModelIndex current = tree()->currentIndex();
        if (!current.isValid() || model()->filePath(current) != deep)
            return false;
        const QRect r = tree()->visualRect(current);
        return !r.isEmpty() && tree()->viewport()->rect().contains(r.center());
    };
    ASSERT_TRUE(QTest::qWaitFor(visible, 10000));
    std::printf("the archive's folder showed selected after %lld ms\n",
                static_cast<long long>(shown.elapsed()));
    EXPECT_EQ(c<QLineEdit>("TxTDir")->text(), deep);
}
