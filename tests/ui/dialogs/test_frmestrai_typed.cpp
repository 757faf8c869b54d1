// The Extract dialog's "Extract To:" box typed into: Enter (or OK) selects the typed folder in
// the tree, a missing folder is made when the user says Yes, and OK extracts into exactly the
// folder the box shows.
#include "dialog_test_support.h"

#include "ui/jobs/frmestrai.h"

#include <QApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeView>

using namespace quovara;
using namespace quovara::testing;

namespace {

class TypedDestination : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
        base_ = places_.path() + "/data";
        QDir().mkpath(base_ + "/out/inner");
        archive_ = base_ + "/x.uha";
        writeFile(archive_, "archive");
        // A script of an earlier job: a refused OK leaves it as it is.
        writeFile(WorkFile(names::ExtractScript), "older script");
    }

    void open() {
        dialog_ = std::make_unique<frmEstrai>(archive_, prompter_,
                                              [this](const QString& a) { handedOver_ << a; });
        showAndWait(dialog_.get());
        dialog_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    }

    template <typename T> T* c(const char* name) { return control<T>(dialog_.get(), name); }
    QLineEdit* box() { return c<QLineEdit>("TxTDir"); }

    // Types `path` into "Extract To:" with the keyboard, the box having the focus.
    void type(const QString& path) {
        box()->setFocus();
        typeInto(box(), path);
    }
    void enter() { QTest::keyClick(box(), Qt::Key_Return); }
    void ok() { click(c<QPushButton>("Command2")); }

    // The script OK writes for a flat extraction into `folder`.
    QByteArray scriptInto(const QString& folder) const {
        return scriptBytes(engineText() + "e -t\"" + folder + "\" -o- \"" + archive_ + "\"" +
                           redirectText());
    }

    ScopedPlaces places_;
    RecordingPrompter prompter_;
    QString base_;
    QString archive_;
    QStringList handedOver_;
    std::unique_ptr<frmEstrai> dialog_;
};

} // namespace

TEST_F(TypedDestination, EnterSelectsAnExistingFolderInTheTreeAndASecondEnterExtractsThere) {
    open();
    type(base_ + "/out/inner");
    enter();
    EXPECT_EQ(dialog_->selectedFolder(), base_ + "/out/inner");
    EXPECT_EQ(box()->text(), base_ + "/out/inner");
    EXPECT_TRUE(dialog_->isVisible()) << "the first Enter only selects the folder";
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_EQ(extractScript(), "older script");
    // The folder shows selected in the tree.
    auto* tree = c<QTreeView>("FolderView1");
    auto* model = qobject_cast<FolderTreeModel*>(tree->model());
    EXPECT_EQ(tree->currentIndex(), model->find(base_ + "/out/inner"));
    enter();
    EXPECT_EQ(extractScript(), scriptInto(base_ + "/out/inner"));
    EXPECT_EQ(handedOver_, QStringList({archive_}));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

TEST_F(TypedDestination, OkAfterTypingExtractsIntoTheTypedFolderAsTheBoxShowsIt) {
    open();
    // Doubled and trailing separators go: OK uses the folder as the box then shows it.
    type(base_ + "//out/inner/");
    ok();
    EXPECT_EQ(box()->text(), base_ + "/out/inner");
    EXPECT_EQ(dialog_->selectedFolder(), base_ + "/out/inner");
    EXPECT_EQ(extractScript(), scriptInto(base_ + "/out/inner"));
    EXPECT_EQ(handedOver_, QStringList({archive_}));
}

TEST_F(TypedDestination, AMissingFolderIsMadeAfterYesAndTheJobGoesThere) {
    open();
    const QString made = base_ + "/new/deeper";
    prompter_.questionAnswers = {true};
    type(made);
    enter();
    EXPECT_EQ(prompter_.shown,
              QStringList({"question: The folder \"" + made + "\" does not exist. Create it?"}));
    EXPECT_TRUE(QFileInfo(made).isDir());
    EXPECT_EQ(dialog_->selectedFolder(), made);
    EXPECT_EQ(box()->text(), made);
    EXPECT_TRUE(handedOver_.isEmpty());
    enter();
    EXPECT_EQ(extractScript(), scriptInto(made));
    EXPECT_EQ(handedOver_, QStringList({archive_}));
    EXPECT_EQ(prompter_.shown.size(), 1);
}

TEST_F(TypedDestination, AMissingFolderAnsweredNoIsNotMadeAndTheDialogStaysOpen) {
    open();
    c<QTreeView>("FolderView1")->setFocus();
    clickFolder(c<QTreeView>("FolderView1"), base_ + "/out");
    const QString missing = base_ + "/not-made";
    prompter_.questionAnswers = {false, false};
    type(missing);
    enter();
    ok();
    EXPECT_EQ(prompter_.shown,
              QStringList({"question: The folder \"" + missing + "\" does not exist. Create it?",
                           "question: The folder \"" + missing + "\" does not exist. Create it?"}));
    EXPECT_FALSE(QFileInfo::exists(missing));
    EXPECT_TRUE(dialog_->isVisible());
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_EQ(extractScript(), "older script");
    // The tree keeps its selection and the box what was typed.
    EXPECT_EQ(dialog_->selectedFolder(), base_ + "/out");
    EXPECT_EQ(box()->text(), missing);
    EXPECT_EQ(QApplication::focusWidget(), box());
}

TEST_F(TypedDestination, AFolderThatCannotBeMadeIsReportedAndNothingRuns) {
    open();
    // A name longer than any folder's name may be.
    const QString tooLong = base_ + "/" + QString(300, 'n');
    prompter_.questionAnswers = {true};
    type(tooLong);
    ok();
    ASSERT_EQ(prompter_.shown.size(), 2);
    EXPECT_EQ(prompter_.shown[1], "critical: The folder \"" + tooLong +
                                      "\" cannot be created.\n\nCheck the folder's name and "
                                      "that the disk has room.");
    EXPECT_FALSE(QFileInfo::exists(tooLong));
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_EQ(extractScript(), "older script");
    EXPECT_TRUE(dialog_->isVisible());
}

TEST_F(TypedDestination, AFolderBelowAFileIsRefusedWithoutAQuestion) {
    writeFile(base_ + "/notes.txt", "a file");
    open();
    type(base_ + "/notes.txt/sub");
    ok();
    EXPECT_EQ(prompter_.shown, QStringList({"critical: The folder \"" + base_ +
                                            "/notes.txt/sub\" cannot be created.\n\n\"" + base_ +
                                            "/notes.txt\" is a file, not a folder."}));
    type(base_ + "/notes.txt");
    enter();
    EXPECT_EQ(prompter_.shown.last(), "exclamation: \"" + base_ +
                                          "/notes.txt\" is a file, not a folder. Type the folder "
                                          "to extract into.");
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_EQ(extractScript(), "older script");
}

TEST_F(TypedDestination, ATildeStandsForTheHomeFolder) {
    const ScopedEnv home("HOME", base_.toUtf8());
    open();
    type("~/out");
    enter();
    EXPECT_EQ(dialog_->selectedFolder(), base_ + "/out");
    EXPECT_EQ(box()->text(), base_ + "/out");
    type("~");
    ok();
    EXPECT_EQ(extractScript(), scriptInto(base_));
}

TEST_F(TypedDestination, ARelativePathOrAnEmptyBoxIsRefused) {
    open();
    const QString before = dialog_->selectedFolder();
    type("out/inner");
    enter();
    EXPECT_EQ(prompter_.shown,
              QStringList({"exclamation: \"out/inner\" is not a full path. Type a path that "
                           "begins with \"/\", or with \"~/\" for a folder in your home folder."}));
    type("");
    ok();
    EXPECT_EQ(prompter_.shown.last(), "exclamation: Type the folder to extract into, or choose "
                                      "it in the list of folders.");
    EXPECT_EQ(dialog_->selectedFolder(), before);
    EXPECT_TRUE(handedOver_.isEmpty());
    EXPECT_EQ(extractScript(), "older script");
}

TEST_F(TypedDestination, AFolderClickedAfterTypingIsTheDestination) {
    open();
    type(base_ + "/typed-then-clicked-away");
    clickFolder(c<QTreeView>("FolderView1"), base_ + "/out");
    EXPECT_EQ(box()->text(), base_ + "/out");
    // The box shows the clicked folder again: Enter there is OK.
    box()->setFocus();
    enter();
    EXPECT_EQ(extractScript(), scriptInto(base_ + "/out"));
    EXPECT_TRUE(prompter_.shown.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(base_ + "/typed-then-clicked-away"));
}
