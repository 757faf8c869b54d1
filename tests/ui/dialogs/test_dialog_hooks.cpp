// The main window's hooks that open the Add and Extract dialogs: the request words of the
// command line, the toolbar and the task pane, with the jobs run by the progress windows against
// the stand-in engine.
#include "dialog_test_support.h"

#include "ui/browser/filebrowser.h"
#include "ui/browser/frmapri.h"
#include "ui/jobs/frmaggiungi.h"
#include "ui/jobs/frmestrai.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

using namespace quovara;
using namespace quovara::testing;

namespace {

const QString kSix = QStringLiteral(QUOVARA_STANDIN_06);
const QString kFour = QStringLiteral(QUOVARA_STANDIN_04);

// Runs `act` on the window of type T as soon as it is shown (the caller is about to enter its
// modal loop).
template <typename T> void whenShown(std::function<void(T*)> act) {
    auto* timer = new QTimer();
    timer->setInterval(20);
    QObject::connect(timer, &QTimer::timeout, [timer, act] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* window = qobject_cast<T*>(w);
            if (window && window->isVisible()) {
                timer->stop();
                timer->deleteLater();
                act(window);
                return;
            }
        }
    });
    timer->start();
}

class DialogHooks : public ::testing::Test {
protected:
    void SetUp() override {
        QFile::copy(kFour, places_.programFolder() + "/uharc.exe");
        QFile::copy(kSix, places_.programFolder() + "/Uharc0.6.fns");
        src_ = places_.path() + "/data";
        QDir().mkpath(src_ + "/a");
        writeFile(src_ + "/root.txt", "root file");
        writeFile(src_ + "/a/d.txt", "d in a");
        window_.setPrompter(&prompter_);
        window_.setInstanceLockPath(places_.path() + "/quovara.lock");
    }

    QString makeArchive(const QString& name) {
        const QString archive = places_.path() + "/" + name;
        QProcess p;
        p.setWorkingDirectory(src_);
        p.start(kSix, QStringList{"a", "-r+", "-y+", archive, "*"});
        EXPECT_TRUE(p.waitForFinished(30000));
        EXPECT_EQ(p.exitCode(), 0);
        return archive;
    }

    // Selects `path` in the main window's browser.
    void selectInBrowser(const QString& path) {
        window_.fileView()->setFolder(QFileInfo(path).absolutePath());
        window_.fileView()->selectFile(QFileInfo(path).fileName());
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return SamePath(window_.fileView()->selectedPath(), path); }, 10000));
    }

    ScopedPlaces places_;
    RecordingPrompter prompter_;
    QString src_;
    frmApri window_;
};

} // namespace

TEST_F(DialogHooks, TheAddRequestWordOpensOnlyTheAddDialogAndTheProgramEnds) {
    QString caption;
    QString proposed;
    whenShown<frmAggiungi>([&](frmAggiungi* d) {
        caption = d->windowTitle();
        proposed = control<QLineEdit>(d, "Text1")->text();
        click(control<QPushButton>(d, "Command3"));
    });
    EXPECT_FALSE(window_.Form_Load("add  " + src_));
    EXPECT_TRUE(window_.commandLineJob());
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(caption, "Add " + src_);
    EXPECT_EQ(proposed, src_ + ".uha");
    // The job ran in its progress window: the archive is there and holds the folder.
    EXPECT_TRUE(QFileInfo(src_ + ".uha").isFile());
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

TEST_F(DialogHooks, TheExtractRequestWordOpensOnlyTheExtractDialogAndTheProgramEnds) {
    const QString archive = makeArchive("x.uha");
    QString caption;
    whenShown<frmEstrai>([&](frmEstrai* d) {
        caption = d->windowTitle();
        click(control<QRadioButton>(d, "Option1"));
        click(control<QCheckBox>(d, "Check3"));
        click(control<QPushButton>(d, "Command2"));
    });
    EXPECT_FALSE(window_.Form_Load("extract  " + archive));
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(caption, "Extract " + archive);
    // "Extract files to current dir": the job works in the archive's folder.
    EXPECT_EQ(readAll(places_.path() + "/root.txt"), "root file");
    EXPECT_EQ(readAll(places_.path() + "/a/d.txt"), "d in a");
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

TEST_F(DialogHooks, ExtractFromTheBrowserTakesTheSelectedArchiveNotAnOldOne) {
    const QString archive = makeArchive("picked.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    window_.lister().listing().archivePath = places_.path() + "/listed-before.uha";
    selectInBrowser(archive);
    QString caption;
    whenShown<frmEstrai>([&](frmEstrai* d) {
        caption = d->windowTitle();
        click(control<QPushButton>(d, "Command3"));
    });
    window_.ButtonClick(4);
    EXPECT_EQ(caption, "Extract " + archive);
    EXPECT_FALSE(QFile::exists(WorkFile(names::ExtractScript)));
}

TEST_F(DialogHooks, ExtractSelectedItemPresetsTheItem) {
    const QString archive = makeArchive("shown.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    window_.OpenItem(archive);
    ASSERT_TRUE(window_.archiveLayout());
    selectInBrowser(ScratchFolder() + "/root.txt");
    ASSERT_EQ(window_.selectedItem(), "root.txt");
    bool preset = false;
    QString caption;
    whenShown<frmEstrai>([&](frmEstrai* d) {
        caption = d->windowTitle();
        preset = control<QRadioButton>(d, "OpFileType")->isChecked() &&
                 control<QLineEdit>(d, "TxtFileType")->text() == "root.txt";
        click(control<QPushButton>(d, "Command3"));
    });
    control<QPushButton>(&window_, "EstFile")->click();
    EXPECT_EQ(caption, "Extract " + archive);
    EXPECT_TRUE(preset);
}

// The engine cannot add to an existing archive: it asks at its console whether to replace it.
TEST_F(DialogHooks, AnAddToTheShownArchiveAnsweredYesReplacesItAndListsItAgain) {
    const QString archive = makeArchive("grow.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    window_.OpenItem(archive);
    ASSERT_TRUE(window_.archiveLayout());
    EXPECT_EQ(control<QLabel>(&window_, "NomeAr")->text(), "Files: 2");
    const QString extra = places_.path() + "/extra.txt";
    writeFile(extra, "one more");
    // The browser shows the archive; its selection is the source of the add.
    selectInBrowser(ScratchFolder() + "/root.txt");
    whenShown<frmAggiungi>([&](frmAggiungi* d) {
        typeInto(control<QLineEdit>(d, "Text1"), archive);
        click(control<QPushButton>(d, "Command3"));
    });
    prompter_.questionAnswers = {true};
    window_.ButtonClick(3);
    ASSERT_EQ(prompter_.shown.size(), 1);
    EXPECT_TRUE(prompter_.shown[0].startsWith("question: The engine asks:\n\nArchive \""))
        << prompter_.shown[0].toStdString();
    EXPECT_TRUE(window_.archiveLayout());
    // Only the file of this add is left.
    EXPECT_EQ(control<QLabel>(&window_, "NomeAr")->text(), "Files: 1");
    EXPECT_EQ(window_.lister().listing().archivePath, archive);
}

TEST_F(DialogHooks, AfterAnAddListsTheShownArchiveAgainGoingUpStillReturnsToItsFolder) {
    const QString archive = makeArchive("climb.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    selectInBrowser(archive);
    window_.OpenItem(archive);
    ASSERT_TRUE(window_.archiveLayout());
    writeFile(places_.path() + "/extra.txt", "one more");
    selectInBrowser(ScratchFolder() + "/root.txt");
    whenShown<frmAggiungi>([&](frmAggiungi* d) {
        typeInto(control<QLineEdit>(d, "Text1"), archive);
        click(control<QPushButton>(d, "Command3"));
    });
    prompter_.questionAnswers = {true};
    window_.ButtonClick(3);
    ASSERT_EQ(control<QLabel>(&window_, "NomeAr")->text(), "Files: 1");
    ASSERT_TRUE(window_.archiveLayout());
    ASSERT_EQ(window_.fileView()->folder(), ScratchFolder());
    // One folder up in the folder drop-down is the work folder, above the archive's root.
    auto* folders = control<QComboBox>(&window_, "ShComboBox1");
    folders->setFocus();
    QTest::keyClick(folders, Qt::Key_Up);
    EXPECT_EQ(window_.fileView()->folder(), places_.path());
    EXPECT_FALSE(window_.archiveLayout());
}

TEST_F(DialogHooks, AnAddToTheShownArchiveAnsweredNoLeavesItAsItWas) {
    const QString archive = makeArchive("kept-by-no.uha");
    const QByteArray before = readAll(archive);
    ASSERT_TRUE(window_.Form_Load(QString()));
    window_.OpenItem(archive);
    ASSERT_TRUE(window_.archiveLayout());
    selectInBrowser(ScratchFolder() + "/root.txt");
    whenShown<frmAggiungi>([&](frmAggiungi* d) {
        typeInto(control<QLineEdit>(d, "Text1"), archive);
        click(control<QPushButton>(d, "Command3"));
    });
    prompter_.questionAnswers = {false};
    window_.ButtonClick(3);
    ASSERT_EQ(prompter_.shown.size(), 2);
    EXPECT_EQ(prompter_.shown[1], "information: The archive was left as it was.");
    EXPECT_EQ(readAll(archive), before);
    EXPECT_EQ(control<QLabel>(&window_, "NomeAr")->text(), "Files: 2");
}

TEST_F(DialogHooks, AnAddToAnotherArchiveKeepsTheShownOne) {
    const QString archive = makeArchive("kept.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    window_.OpenItem(archive);
    selectInBrowser(ScratchFolder() + "/root.txt");
    const QString other = places_.path() + "/other.uha";
    whenShown<frmAggiungi>([&](frmAggiungi* d) {
        typeInto(control<QLineEdit>(d, "Text1"), other);
        click(control<QPushButton>(d, "Command3"));
    });
    window_.ButtonClick(3);
    EXPECT_TRUE(QFileInfo(other).isFile());
    EXPECT_EQ(control<QLabel>(&window_, "NomeAr")->text(), "Files: 2");
    EXPECT_EQ(window_.lister().listing().archivePath, archive);
}
