// The Add dialog driven through its controls: the archive name it proposes, the state of its
// controls, and the exact bytes of the add script that OK writes.
#include "dialog_test_support.h"

#include "engine/unsafenames.h"
#include "ui/jobs/frmaggiungi.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace quovara;
using namespace quovara::testing;

namespace {

class AddDialog : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
        src_ = places_.path() + "/Src";
        QDir().mkpath(src_ + "/sub");
        writeFile(src_ + "/a.txt", "a");
        file_ = places_.path() + "/a.txt";
        writeFile(file_, "single file");
    }

    // Opens the dialog for `source` as the browser's selection and shows it.
    frmAggiungi& open(const QString& source) {
        selection_ = source;
        dialog_ = std::make_unique<frmAggiungi>([this] { return selection_; }, prompter_,
                                                [this](const QString& archive) {
                                                    handedOver_ << archive;
                                                    EXPECT_TRUE(dialog_->isHidden());
                                                });
        dialog_->setSaveFileHook(
            [this](QWidget*, const QString& title, const QString& filter, const QString& proposed) {
                saveCalls_ << title + "|" + filter + "|" + proposed;
                return saveAnswer_;
            });
        showAndWait(dialog_.get());
        return *dialog_;
    }

    template <typename T> T* c(const char* name) { return control<T>(dialog_.get(), name); }
    void ok() { click(c<QPushButton>("Command3")); }

    // The add line of this test's places, from the switches on.
    // An Add runs in the folder that holds its source, both of which lie in places_.
    QByteArray expected(const QString& rest) const {
        return scriptPreamble() + "cd /d \"" + places_.path().toUtf8() + "\"\r\n" +
               (engineText() + rest).toUtf8();
    }

    ScopedPlaces places_;
    RecordingPrompter prompter_;
    QString src_;
    QString file_;
    QString selection_;
    QStringList handedOver_;
    QStringList saveCalls_;
    QString saveAnswer_;
    std::unique_ptr<frmAggiungi> dialog_;
};

} // namespace

TEST_F(AddDialog, CaptionsAndInitialStateOfEveryControl) {
    open(src_);
    EXPECT_EQ(dialog_->windowTitle(), "Add " + src_);
    EXPECT_EQ(c<QLabel>("Label1")->text(), "Save Archive To:");
    EXPECT_EQ(c<QPushButton>("Command1")->text(), "Browse");
    EXPECT_EQ(c<QGroupBox>("Frame1")->title(), "Options");
    EXPECT_EQ(c<QCheckBox>("Check1")->text(), "Include Subdirectories ");
    EXPECT_TRUE(c<QCheckBox>("Check1")->isChecked());
    EXPECT_EQ(c<QCheckBox>("Check4")->text(), "Password");
    EXPECT_FALSE(c<QCheckBox>("Check4")->isChecked());
    EXPECT_FALSE(c<QLineEdit>("Text2")->isEnabled());
    EXPECT_EQ(c<QLineEdit>("Text2")->echoMode(), QLineEdit::Password);
    EXPECT_EQ(c<QLineEdit>("Text2")->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter,
                                                        nullptr, c<QLineEdit>("Text2")),
              '*');
    EXPECT_EQ(c<QGroupBox>("Frame2")->title(), "Compression");
    QStringList methods;
    for (int i = 0; i < c<QComboBox>("Combo1")->count(); ++i)
        methods << c<QComboBox>("Combo1")->itemText(i);
    EXPECT_EQ(methods, QStringList({"Store", "ALZ Fast", "ALZ Normal", "ALZ Best", "PPM", "LZP"}));
    EXPECT_EQ(c<QComboBox>("Combo1")->currentIndex(), 2);
    EXPECT_EQ(c<QCheckBox>("Check2")->text(), "Multimedia Compression");
    EXPECT_TRUE(c<QCheckBox>("Check2")->isChecked());
    EXPECT_EQ(c<QCheckBox>("Check3")->text(), "Dictionary");
    EXPECT_TRUE(c<QCheckBox>("Check3")->isChecked());
    QStringList sizes;
    for (int i = 0; i < c<QComboBox>("Combo2")->count(); ++i)
        sizes << c<QComboBox>("Combo2")->itemText(i);
    EXPECT_EQ(sizes, QStringList({"1024", "2048", "4096", "8192", "16384", "32768"}));
    EXPECT_EQ(c<QComboBox>("Combo2")->currentIndex(), 2);
    EXPECT_EQ(c<QGroupBox>("Frame3")->title(), "File to Extract");
    EXPECT_EQ(c<QRadioButton>("OpAllFile")->text(), "All Files");
    EXPECT_TRUE(c<QRadioButton>("OpAllFile")->isChecked());
    EXPECT_EQ(c<QRadioButton>("OpFileType")->text(), "Only These Files: (e.g: *.dll,*.exe)");
    EXPECT_EQ(c<QLineEdit>("TxtFileType")->text(), "");
    EXPECT_EQ(c<QRadioButton>("OpFileList")->text(), "By File List (Full Path)");
    EXPECT_EQ(c<QLineEdit>("TxtFileList")->text(), "");
    EXPECT_EQ(c<QCheckBox>("ChkExclude")->text(), "Exclude: (e.g: *.dll *.exe)");
    EXPECT_FALSE(c<QCheckBox>("ChkExclude")->isChecked());
    EXPECT_EQ(c<QLineEdit>("TxtExclude")->text(), "");
    EXPECT_EQ(c<QRadioButton>("Option1")->text(), "Create and Add File");
    EXPECT_TRUE(c<QRadioButton>("Option1")->isChecked());
    EXPECT_EQ(c<QRadioButton>("Option2")->text(), "Create and Move File");
    EXPECT_FALSE(c<QRadioButton>("Option2")->isChecked());
    EXPECT_EQ(c<QPushButton>("Command2")->text(), "Default");
    EXPECT_EQ(c<QPushButton>("Command3")->text(), "OK");
    EXPECT_EQ(c<QPushButton>("Command4")->text(), "Cancel");
    // The text boxes of the file group are always enabled.
    EXPECT_TRUE(c<QLineEdit>("TxtFileType")->isEnabled());
    EXPECT_TRUE(c<QLineEdit>("TxtFileList")->isEnabled());
    EXPECT_TRUE(c<QLineEdit>("TxtExclude")->isEnabled());
    // Controls without a caption of their own have an accessible name.
    for (const char* name :
         {"Text1", "Text2", "Combo1", "Combo2", "TxtFileType", "TxtFileList", "TxtExclude"})
        EXPECT_FALSE(c<QWidget>(name)->accessibleName().isEmpty()) << name;
}

TEST_F(AddDialog, AFolderProposesItsPathDotUhaAndKeepsSubdirectories) {
    open(src_);
    EXPECT_EQ(c<QLineEdit>("Text1")->text(), src_ + ".uha");
    EXPECT_TRUE(c<QCheckBox>("Check1")->isChecked());
    EXPECT_TRUE(c<QCheckBox>("Check1")->isEnabled());
    ok();
    EXPECT_EQ(addScript(), expected("a -r+ -m2 -mm+ -md+ -md4096 \"" + src_ + ".uha\" \"" +
                                    "Src\\*.*\"" + redirectText()));
    EXPECT_EQ(handedOver_, QStringList({src_ + ".uha"}));
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    EXPECT_TRUE(prompter_.shown.isEmpty());
}

TEST_F(AddDialog, AFileProposesItsNameUpToTheDotAndWritesNoRecursion) {
    open(file_);
    EXPECT_EQ(dialog_->windowTitle(), "Add " + file_);
    EXPECT_EQ(c<QLineEdit>("Text1")->text(), places_.path() + "/a.uha");
    EXPECT_FALSE(c<QCheckBox>("Check1")->isChecked());
    EXPECT_FALSE(c<QCheckBox>("Check1")->isEnabled());
    ok();
    EXPECT_EQ(addScript(), expected("a -r- -m2 -mm+ -md+ -md4096 \"" + places_.path() +
                                    "/a.uha\" \"a.txt\"" + redirectText()));
}

TEST_F(AddDialog, AFileWithoutExtensionProposesItsWholePathDotUha) {
    const QString plain = places_.path() + "/README";
    writeFile(plain, "no extension");
    open(plain);
    EXPECT_EQ(c<QLineEdit>("Text1")->text(), plain + ".uha");
}

TEST_F(AddDialog, TheLastDotOfTheWholePathCutsInsideAFolderName) {
    QDir().mkpath(places_.path() + "/my.folder");
    const QString plain = places_.path() + "/my.folder/README";
    writeFile(plain, "no extension");
    open(plain);
    EXPECT_EQ(c<QLineEdit>("Text1")->text(), places_.path() + "/my.uha");
    EXPECT_EQ(ProposedArchiveName("/x/my.folder/README", false), "/x/my.uha");
    EXPECT_EQ(ProposedArchiveName("/x/my.folder", true), "/x/my.folder.uha");
    EXPECT_EQ(ProposedArchiveName("/x/archive.tar.gz", false), "/x/archive.tar.uha");
}

TEST_F(AddDialog, PasswordBoxFollowsItsTickAndAnEmptyPasswordIsStillWritten) {
    open(src_);
    auto* box = c<QLineEdit>("Text2");
    QTest::keyClicks(box, "ignored");
    EXPECT_EQ(box->text(), "") << "a disabled box takes no typing";
    click(c<QCheckBox>("Check4"));
    EXPECT_TRUE(box->isEnabled());
    click(c<QCheckBox>("Check4"));
    EXPECT_FALSE(box->isEnabled());
    click(c<QCheckBox>("Check4"));
    EXPECT_TRUE(box->isEnabled());
    ok();
    EXPECT_EQ(addScript(), expected("a -r+ -m2 -mm+ -md+ -md4096 -pw\"\" \"" + src_ + ".uha\" \"" +
                                    "Src\\*.*\"" + redirectText()));
}

TEST_F(AddDialog, PasswordTypedIsWrittenAsItStands) {
    open(src_);
    click(c<QCheckBox>("Check4"));
    QTest::keyClicks(c<QLineEdit>("Text2"), "a b&c;$x");
    ok();
    EXPECT_EQ(addScript(), expected("a -r+ -m2 -mm+ -md+ -md4096 -pw\"a b&c;$x\" \"" + src_ +
                                    ".uha\" \"" + "Src\\*.*\"" + redirectText()));
}

TEST_F(AddDialog, OnlyTheseFilesHasNoEffectOnASingleFile) {
    open(file_);
    click(c<QRadioButton>("OpFileType"));
    QTest::keyClicks(c<QLineEdit>("TxtFileType"), "*.dll,*.exe");
    ok();
    EXPECT_EQ(addScript(), expected("a -r- -m2 -mm+ -md+ -md4096 \"" + places_.path() +
                                    "/a.uha\" \"a.txt\"" + redirectText()));
}

TEST_F(AddDialog, OnlyTheseFilesOnAFolderGivesOnePatternEach) {
    open(src_);
    click(c<QRadioButton>("OpFileType"));
    QTest::keyClicks(c<QLineEdit>("TxtFileType"), "*.dll, *.exe");
    ok();
    // The blank after the comma stays inside the quotes; one blank between two patterns.
    EXPECT_EQ(addScript(), expected("a -r+ -m2 -mm+ -md+ -md4096 \"" + src_ + ".uha\" \"" +
                                    "Src\\*.dll\" \"" + "Src\\ *.exe\" " + redirectText()));
}

TEST_F(AddDialog, AFileListWithAFolderAddsTheWholeFolderAndTheList) {
    open(src_);
    click(c<QRadioButton>("OpFileList"));
    QTest::keyClicks(c<QLineEdit>("TxtFileList"), "/lists/names.txt");
    ok();
    EXPECT_EQ(addScript(), expected("a -r+ -m2 -mm+ -md+ -md4096 \"" + src_ + ".uha\" \"" +
                                    "Src\\*.*\" @\"/lists/names.txt\"" + redirectText()));
}

TEST_F(AddDialog, MultimediaAndDictionaryTicksChangeNothing) {
    open(src_);
    ok();
    const QByteArray ticked = addScript();
    open(src_);
    click(c<QCheckBox>("Check2"));
    click(c<QCheckBox>("Check3"));
    EXPECT_FALSE(c<QCheckBox>("Check2")->isChecked());
    EXPECT_FALSE(c<QCheckBox>("Check3")->isChecked());
    ok();
    EXPECT_EQ(addScript(), ticked);
}

TEST_F(AddDialog, EmptyPatternsWriteNoSourceAndNoExclusion) {
    open(src_);
    click(c<QRadioButton>("OpFileType"));
    click(c<QCheckBox>("ChkExclude"));
    ok();
    EXPECT_EQ(addScript(),
              expected("a -r+ -m2 -mm+ -md+ -md4096 \"" + src_ + ".uha\" " + redirectText()));
}

TEST_F(AddDialog, ExclusionsAreSplitAtCommasAndFollowTheSourceWithoutABlank) {
    open(src_);
    click(c<QCheckBox>("ChkExclude"));
    QTest::keyClicks(c<QLineEdit>("TxtExclude"), "*.bak,,*.tmp *.log");
    ok();
    EXPECT_EQ(addScript(),
              expected("a -r+ -m2 -mm+ -md+ -md4096 \"" + src_ + ".uha\" \"" +
                       "Src\\*.*\" !\"*.bak\" !\"\" !\"*.tmp *.log\"" + redirectText()));
}

TEST_F(AddDialog, MoveStoreAndPasswordOnAFile) {
    open(file_);
    click(c<QRadioButton>("Option2"));
    choosePosition(c<QComboBox>("Combo1"), 0);
    click(c<QCheckBox>("Check4"));
    QTest::keyClicks(c<QLineEdit>("Text2"), "pw");
    click(c<QCheckBox>("ChkExclude"));
    QTest::keyClicks(c<QLineEdit>("TxtExclude"), "*.bak");
    ok();
    EXPECT_EQ(addScript(), expected("m -r- -m0 -mm+ -md+ -md4096 -pw\"pw\" \"" + places_.path() +
                                    "/a.uha\" \"a.txt\" !\"*.bak\"" + redirectText()));
}

TEST_F(AddDialog, EveryMethodAndDictionaryPosition) {
    const QStringList switches{"-m0 ", "-m1 ", "-m2 ", "-m3 ", "-mx ", "-mz "};
    const QStringList sizes{"1024", "2048", "4096", "8192", "16384", "32768"};
    for (int position = 0; position < 6; ++position) {
        open(src_);
        choosePosition(c<QComboBox>("Combo1"), position);
        choosePosition(c<QComboBox>("Combo2"), 5 - position);
        ok();
        EXPECT_EQ(addScript(),
                  expected("a -r+ " + switches[position] + "-mm+ -md+ -md" + sizes[5 - position] +
                           " \"" + src_ + ".uha\" \"" + "Src\\*.*\"" + redirectText()))
            << position;
    }
}

TEST_F(AddDialog, NoMethodChosenWritesTheLastOneThisDialogWrote) {
    open(src_);
    // A drop-down list offers no way to choose nothing; the program can leave it so.
    c<QComboBox>("Combo1")->setCurrentIndex(-1);
    ok();
    EXPECT_EQ(addScript(), expected("a -r+ -mm+ -md+ -md4096 \"" + src_ + ".uha\" \"" +
                                    "Src\\*.*\"" + redirectText()));
    EXPECT_EQ(dialog_->methodSwitch(), "");

    showAndWait(dialog_.get());
    choosePosition(c<QComboBox>("Combo1"), 4);
    ok();
    EXPECT_EQ(dialog_->methodSwitch(), "-mx ");
    showAndWait(dialog_.get());
    c<QComboBox>("Combo1")->setCurrentIndex(-1);
    ok();
    EXPECT_EQ(addScript(), expected("a -r+ -mx -mm+ -md+ -md4096 \"" + src_ + ".uha\" \"" +
                                    "Src\\*.*\"" + redirectText()));
}

TEST_F(AddDialog, DefaultResetsOnlyModeTicksAndLists) {
    open(src_);
    click(c<QRadioButton>("Option2"));
    click(c<QCheckBox>("Check1"));
    click(c<QCheckBox>("Check2"));
    click(c<QCheckBox>("Check3"));
    choosePosition(c<QComboBox>("Combo1"), 5);
    choosePosition(c<QComboBox>("Combo2"), 0);
    click(c<QCheckBox>("Check4"));
    QTest::keyClicks(c<QLineEdit>("Text2"), "secret");
    click(c<QRadioButton>("OpFileType"));
    QTest::keyClicks(c<QLineEdit>("TxtFileType"), "*.txt");
    click(c<QCheckBox>("ChkExclude"));
    QTest::keyClicks(c<QLineEdit>("TxtExclude"), "*.bak");
    typeInto(c<QLineEdit>("Text1"), "/elsewhere/x.uha");

    click(c<QPushButton>("Command2"));
    EXPECT_TRUE(c<QRadioButton>("Option1")->isChecked());
    EXPECT_TRUE(c<QCheckBox>("Check1")->isChecked());
    EXPECT_TRUE(c<QCheckBox>("Check2")->isChecked());
    EXPECT_TRUE(c<QCheckBox>("Check3")->isChecked());
    EXPECT_EQ(c<QComboBox>("Combo1")->currentIndex(), 2);
    EXPECT_EQ(c<QComboBox>("Combo2")->currentIndex(), 2);
    // What "Default" leaves alone.
    EXPECT_TRUE(c<QCheckBox>("Check4")->isChecked());
    EXPECT_TRUE(c<QLineEdit>("Text2")->isEnabled());
    EXPECT_EQ(c<QLineEdit>("Text2")->text(), "secret");
    EXPECT_TRUE(c<QRadioButton>("OpFileType")->isChecked());
    EXPECT_EQ(c<QLineEdit>("TxtFileType")->text(), "*.txt");
    EXPECT_TRUE(c<QCheckBox>("ChkExclude")->isChecked());
    EXPECT_EQ(c<QLineEdit>("TxtExclude")->text(), "*.bak");
    EXPECT_EQ(c<QLineEdit>("Text1")->text(), "/elsewhere/x.uha");
    ok();
    EXPECT_EQ(addScript(),
              expected("a -r+ -m2 -mm+ -md+ -md4096 -pw\"secret\" \"/elsewhere/x.uha\" "
                       "\"Src\\*.txt\"  !\"*.bak\"" +
                       redirectText()));
}

TEST_F(AddDialog, DefaultTicksSubdirectoriesEvenForAFileAndLeavesItDisabled) {
    open(file_);
    click(c<QPushButton>("Command2"));
    EXPECT_TRUE(c<QCheckBox>("Check1")->isChecked());
    EXPECT_FALSE(c<QCheckBox>("Check1")->isEnabled());
    ok();
    EXPECT_EQ(addScript(), expected("a -r+ -m2 -mm+ -md+ -md4096 \"" + places_.path() +
                                    "/a.uha\" \"a.txt\"" + redirectText()));
}

TEST_F(AddDialog, AnEmptyArchiveNameIsRefusedAndNothingIsWritten) {
    open(src_);
    typeInto(c<QLineEdit>("Text1"), "");
    ok();
    EXPECT_EQ(prompter_.shown,
              QStringList({"information: You have to specify the name of the archive"}));
    EXPECT_FALSE(QFile::exists(WorkFile(names::AddScript)));
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_TRUE(dialog_->isVisible());
    // A name typed afterwards is taken.
    QTest::keyClicks(c<QLineEdit>("Text1"), places_.path() + "/typed.uha");
    ok();
    EXPECT_EQ(handedOver_, QStringList({places_.path() + "/typed.uha"}));
}

TEST_F(AddDialog, ANameHoldingABackslashOrAColonIsRefusedByNameAndNothingIsWritten) {
    // A Linux name the engine would store as a path ("..\\..\\x.txt" climbs out when extracted).
    const QString bad = src_ + "/sub/..\\..\\x.txt";
    writeFile(bad, "x");
    open(src_);
    ok();
    EXPECT_EQ(prompter_.shown, QStringList({"critical: " + AddSourceProblem(src_, true)}));
    EXPECT_TRUE(prompter_.shown.value(0).contains(bad)) << prompter_.shown.value(0).toStdString();
    EXPECT_FALSE(QFile::exists(WorkFile(names::AddScript)));
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_TRUE(dialog_->isVisible());
    // Renamed, the folder is taken.
    QFile::rename(bad, src_ + "/sub/x.txt");
    prompter_.shown.clear();
    ok();
    EXPECT_TRUE(prompter_.shown.isEmpty());
    EXPECT_EQ(handedOver_.size(), 1);
}

TEST_F(AddDialog, CancelWritesNothing) {
    writeFile(WorkFile(names::AddScript), "older script");
    open(src_);
    click(c<QPushButton>("Command4"));
    EXPECT_EQ(dialog_->result(), QDialog::Rejected);
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(addScript(), "older script");
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_TRUE(prompter_.shown.isEmpty());
}

TEST_F(AddDialog, EscapeCancelsAndEnterIsOk) {
    open(src_);
    QTest::keyClick(c<QLineEdit>("Text1"), Qt::Key_Escape);
    EXPECT_EQ(dialog_->result(), QDialog::Rejected);
    EXPECT_FALSE(QFile::exists(WorkFile(names::AddScript)));
    open(src_);
    QTest::keyClick(c<QLineEdit>("Text1"), Qt::Key_Return);
    EXPECT_EQ(handedOver_, QStringList({src_ + ".uha"}));
    EXPECT_TRUE(QFile::exists(WorkFile(names::AddScript)));
}

TEST_F(AddDialog, BrowseUsesTheSaveDialogAndDeletesAnExistingArchiveAtOnce) {
    const QString existing = places_.path() + "/old.uha";
    writeFile(existing, "an older archive");
    open(src_);
    saveAnswer_ = existing;
    click(c<QPushButton>("Command1"));
    EXPECT_EQ(saveCalls_, QStringList({"Salva il file|Uha File (*.uha)|*.uha|" + src_ + ".uha"}));
    EXPECT_FALSE(QFile::exists(existing)) << "deleted before OK";
    EXPECT_EQ(c<QLineEdit>("Text1")->text(), existing);
    // The deletion stands even when the dialog is cancelled.
    click(c<QPushButton>("Command4"));
    EXPECT_FALSE(QFile::exists(existing));
    EXPECT_FALSE(QFile::exists(WorkFile(names::AddScript)));
}

TEST_F(AddDialog, BrowseToANewNameDeletesNothing) {
    open(src_);
    saveAnswer_ = places_.path() + "/new.uha";
    click(c<QPushButton>("Command1"));
    EXPECT_EQ(c<QLineEdit>("Text1")->text(), places_.path() + "/new.uha");
    ok();
    EXPECT_EQ(handedOver_, QStringList({places_.path() + "/new.uha"}));
    EXPECT_TRUE(QFileInfo(src_ + "/a.txt").exists());
}

TEST_F(AddDialog, BrowseCancelledKeepsTheNameAndTheFile) {
    writeFile(src_ + ".uha", "an archive to add to");
    open(src_);
    saveAnswer_.clear();
    click(c<QPushButton>("Command1"));
    EXPECT_EQ(saveCalls_.size(), 1);
    EXPECT_EQ(c<QLineEdit>("Text1")->text(), src_ + ".uha");
    EXPECT_EQ(readAll(src_ + ".uha"), "an archive to add to");
}

TEST_F(AddDialog, TheSaveFilterInQtForm) {
    EXPECT_STREQ(aggiungi::SaveFilter, "Uha File (*.uha)|*.uha");
    EXPECT_STREQ(aggiungi::SaveTitle, "Salva il file");
    EXPECT_EQ(QtNameFilters(aggiungi::SaveFilter), QStringList({"Uha File (*.uha)"}));
    EXPECT_EQ(QtNameFilters("Text|*.txt;*.log|All (*.*)|*.*"),
              QStringList({"Text (*.txt *.log)", "All (*.*)"}));
}

TEST_F(AddDialog, TheSourceIsReadAgainAtOk) {
    open(src_);
    selection_ = file_;
    ok();
    // The archive name stays what the dialog proposed; the source is the new selection.
    EXPECT_EQ(addScript(), expected("a -r+ -m2 -mm+ -md+ -md4096 \"" + src_ + ".uha\" \"a.txt\"" +
                                    redirectText()));
}

TEST_F(AddDialog, AScriptThatCannotBeWrittenIsReportedAndNotHandedOver) {
    QDir(WorkFolder()).removeRecursively();
    writeFile(WorkFolder(), "a file where the work folder belongs");
    open(src_);
    ok();
    ASSERT_EQ(prompter_.shown.size(), 1);
    EXPECT_EQ(prompter_.shown[0],
              "critical: Quovara cannot use its work folder\n" + WorkFolder() +
                  "\nbecause it is not a folder.\nNothing is written there, and no job runs "
                  "until this is put right.");
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_TRUE(dialog_->isVisible());
}

TEST_F(AddDialog, TabOrderFollowsTheForm) {
    open(src_);
    click(c<QCheckBox>("Check4")); // the password box takes part once enabled
    dialog_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    c<QLineEdit>("Text1")->setFocus();
    QStringList visited{QApplication::focusWidget()->objectName()};
    for (int i = 0; i < 17; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited << QApplication::focusWidget()->objectName();
    }
    // The options of a group are one stop: the chosen one.
    EXPECT_EQ(visited, QStringList({"Text1", "Command1", "Check1", "Check4", "Text2", "Combo1",
                                    "Check2", "Check3", "Combo2", "OpAllFile", "TxtFileType",
                                    "TxtFileList", "ChkExclude", "TxtExclude", "Option1",
                                    "Command2", "Command3", "Command4"}));
}
