// The "Make SFX" dialog, driven through its controls with real mouse and key events: its
// controls and texts, the tabs, the length limit of the SFX window text, and building an SFX
// from an archive made by the stand-in engine, checked byte for byte. Also the main window's
// side: the SFX button, the refusal for a protected archive and the "sfx" request word.
#include "../../core/recording_prompter.h"
#include "../../core/test_support.h"
#include "sfx_test_helpers.h"

#include "core/places.h"
#include "engine/sfx.h"
#include "ui/browser/frmapri.h"
#include "ui/jobs/frmsfx.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

const QString kSix = QStringLiteral(QUOVARA_STANDIN_06);
const QString kInitialText =
    QStringLiteral("Setup will install PROGRAM NAME HERE into the following folder. To continue, "
                   "click Install.If you would like to select a different folder, click Browse");

// Bytes that are not text, standing for the stub program.
QByteArray stubBytes() {
    QByteArray b("MZ");
    quint32 x = 2463534242u;
    for (int i = 0; i < 5000; ++i) {
        x ^= x << 13;
        x ^= x >> 17;
        x ^= x << 5;
        b += char(x & 0xff);
    }
    return b;
}

// Records what paints the state and hint lines show.
class PaintRecorder : public QObject {
public:
    QStringList painted;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            painted << static_cast<QLabel*>(watched)->text();
        return false;
    }
};

class SfxDialog : public ::testing::Test {
protected:
    void SetUp() override {
        program_ = places_.programFolder();
        ASSERT_TRUE(QFile::copy(kSix, program_ + "/uharc.exe"));
        stub_ = stubBytes();
        writeFile(program_ + "/SFX.exe", stub_);
        engine_ = readAll(program_ + "/uharc.exe");
        ASSERT_FALSE(engine_.isEmpty());

        const QString src = places_.path() + "/src";
        QDir().mkpath(src + "/docs");
        writeFile(src + "/readme.txt", "Quovara SFX test\r\n");
        writeFile(src + "/docs/data.bin", QByteArray(70000, '\x7f'));
        archive_ = makeArchive(src, "sample.uha", {});
        archiveBytes_ = readAll(archive_);
        ASSERT_FALSE(archiveBytes_.isEmpty());

        QDir().mkpath(places_.path() + "/out");
        output_ = places_.path() + "/out/setup.exe";
        SetSfxSaveDialog([this](QWidget*, const SfxSaveRequest& request) {
            requests_ << request;
            // The file is looked at when the user confirms it, as a save dialog does.
            existedWhenChosen_ = QFile::exists(answer_);
            return answer_;
        });
        answer_ = output_;

        host_.resize(300, 80);
        stato_ = new QLabel(QString::fromLatin1(ReadyState), &host_);
        stato_->setObjectName("Stato");
        stato_->setGeometry(0, 0, 300, 30);
        consiglio_ = new QLabel(QString::fromLatin1(ReadyHint), &host_);
        consiglio_->setObjectName("Consiglio");
        consiglio_->setGeometry(0, 40, 300, 30);
        host_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&host_));
    }

    void TearDown() override { SetSfxSaveDialog({}); }

    QString makeArchive(const QString& src, const QString& name, const QStringList& switches) {
        const QString archive = places_.path() + "/" + name;
        QProcess p;
        p.setWorkingDirectory(src);
        p.start(kSix, QStringList{"a"} + switches + QStringList{"-r+", "-y+", "-d0", archive, "*"});
        EXPECT_TRUE(p.waitForFinished(30000));
        EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString();
        return archive;
    }

    // A shown dialog on the test archive.
    std::unique_ptr<frmSFX> openDialog() {
        auto dialog = std::make_unique<frmSFX>(archive_, stato_, consiglio_, prompter_);
        dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        return dialog;
    }

    template <class T> static T* control(QWidget* dialog, const char* name) {
        T* w = dialog->findChild<T*>(QLatin1String(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }

    static void clickTab(QWidget* dialog, int index) {
        auto* tabs = control<QTabBar>(dialog, "TabStrip1");
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(index).center());
    }

    static void typeInto(QWidget* box, const QString& text) {
        box->setFocus();
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(box, Qt::Key_Delete);
        // Characters beyond ASCII come as key events that carry only their text.
        for (const QChar c : text) {
            if (c.unicode() < 128)
                QTest::keyClick(box, c.toLatin1());
            else
                QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(c), Qt::NoModifier);
        }
    }

    static void create(QWidget* dialog) {
        QTest::mouseClick(control<QPushButton>(dialog, "cmdOk"), Qt::LeftButton);
    }

    QByteArray expectedSfx(const QByteArray& info) const {
        return stub_ + QByteArray("FileSFX\x05", 8) + archiveBytes_ +
               QByteArray("UharcSFX\x05", 9) + engine_ + QByteArray("InfoScript\x05", 11) + info;
    }

    ScopedPlaces places_;
    RecordingPrompter prompter_;
    QWidget host_;
    QLabel* stato_ = nullptr;
    QLabel* consiglio_ = nullptr;
    QString program_, archive_, output_, answer_;
    QByteArray stub_, engine_, archiveBytes_;
    QList<SfxSaveRequest> requests_;
    bool existedWhenChosen_ = false;
};

} // namespace

TEST_F(SfxDialog, ControlsAndTheirTexts) {
    auto dialog = openDialog();
    EXPECT_EQ(dialog->windowTitle(), "Make SFX");

    auto* tabs = control<QTabBar>(dialog.get(), "TabStrip1");
    ASSERT_EQ(tabs->count(), 3);
    const QStringList keys{"General", "Text", "Advanced"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(tabs->tabText(i).remove('&'), keys[i]);
        EXPECT_EQ(tabs->tabData(i).toString(), keys[i]);
    }

    EXPECT_EQ(control<QGroupBox>(dialog.get(), "Frame1")->title(), "&Path To Extract");
    EXPECT_EQ(control<QGroupBox>(dialog.get(), "Frame2")->title(), "Setup Program");
    EXPECT_EQ(control<QGroupBox>(dialog.get(), "Frame3")->title(), "Text of SFX");
    EXPECT_EQ(control<QGroupBox>(dialog.get(), "Frame4")->title(), "License Text");
    EXPECT_EQ(control<QLabel>(dialog.get(), "Label2")->text(), "Run &Before Extraction");
    EXPECT_EQ(control<QLabel>(dialog.get(), "Label1")->text(), "Run &After Extraction");
    EXPECT_EQ(control<QLabel>(dialog.get(), "Label5")->text(), "Tit&le of SFX window");
    // The caption keeps its spelling and its trailing blank.
    EXPECT_EQ(control<QLabel>(dialog.get(), "Label3")->text().remove('&'),
              "Text to display in SFX window (Max lenght 156) ");
    EXPECT_EQ(control<QLabel>(dialog.get(), "Label6")->text().remove('&'),
              "Title of License window");
    EXPECT_EQ(control<QLabel>(dialog.get(), "Label4")->text().remove('&'),
              "Text to display in License window");
    EXPECT_EQ(control<QPushButton>(dialog.get(), "cmdOk")->text(), "&Create");
    EXPECT_EQ(control<QPushButton>(dialog.get(), "cmdCancel")->text(), "Cancel");

    auto* path = control<QComboBox>(dialog.get(), "cmbPath");
    EXPECT_TRUE(path->isEditable());
    ASSERT_EQ(path->count(), 5);
    const QStringList items{"Start Menu", "Favorites", "Programs", "Desktop", "StartUp"};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(path->itemText(i), items[i]);
    EXPECT_EQ(path->currentText(), "");

    EXPECT_EQ(control<QPlainTextEdit>(dialog.get(), "TextSFX")->toPlainText(), kInitialText);
    for (const char* name : {"TxTRunB", "TxTRunA", "TxtCaptionSFX", "TxtCaptionLicense"})
        EXPECT_EQ(control<QLineEdit>(dialog.get(), name)->text(), "") << name;
    EXPECT_EQ(control<QPlainTextEdit>(dialog.get(), "TextLicense")->toPlainText(), "");

    // The pages and where each box lives.
    QWidget* general = control<QWidget>(dialog.get(), "pic(0)");
    QWidget* text = control<QWidget>(dialog.get(), "pic(1)");
    for (const char* name : {"Frame1", "cmbPath", "Frame2", "TxTRunB", "TxTRunA"})
        EXPECT_TRUE(general->isAncestorOf(control<QWidget>(dialog.get(), name))) << name;
    for (const char* name : {"Frame3", "TxtCaptionSFX", "TextSFX", "Frame4", "TextLicense"})
        EXPECT_TRUE(text->isAncestorOf(control<QWidget>(dialog.get(), name))) << name;
    EXPECT_TRUE(general->isVisible());
    EXPECT_FALSE(text->isVisible());
    EXPECT_EQ(dialog->visiblePage(), 0);

    // The save dialog's filter as the form has it, and as Qt takes it.
    EXPECT_STREQ(sfxdlg::SaveFilter, "Application (*.exe)|*.exe");
    EXPECT_EQ(SfxSaveFilterForQt(), "Application (*.exe)");
}

TEST_F(SfxDialog, TabsShowTheirPagesAndAdvancedShowsNone) {
    auto dialog = openDialog();
    QWidget* general = control<QWidget>(dialog.get(), "pic(0)");
    QWidget* text = control<QWidget>(dialog.get(), "pic(1)");

    clickTab(dialog.get(), 1);
    EXPECT_FALSE(general->isVisible());
    EXPECT_TRUE(text->isVisible());
    EXPECT_EQ(dialog->visiblePage(), 1);

    clickTab(dialog.get(), 2);
    EXPECT_FALSE(general->isVisible());
    EXPECT_FALSE(text->isVisible());
    EXPECT_EQ(dialog->visiblePage(), -1);
    // Nothing of either page can be reached.
    for (const char* name : {"cmbPath", "TxTRunB", "TxtCaptionSFX", "TextSFX", "TextLicense"})
        EXPECT_FALSE(control<QWidget>(dialog.get(), name)->isVisible()) << name;

    clickTab(dialog.get(), 0);
    EXPECT_TRUE(general->isVisible());
    EXPECT_FALSE(text->isVisible());

    // The keyboard changes tabs too.
    auto* tabs = control<QTabBar>(dialog.get(), "TabStrip1");
    tabs->setFocus();
    QTest::keyClick(tabs, Qt::Key_Right);
    EXPECT_EQ(dialog->visiblePage(), 1);
    QTest::keyClick(tabs, Qt::Key_Right);
    EXPECT_EQ(dialog->visiblePage(), -1);
}

TEST_F(SfxDialog, SfxTextNeverExceeds156Characters) {
    auto dialog = openDialog();
    clickTab(dialog.get(), 1);
    auto* text = control<QPlainTextEdit>(dialog.get(), "TextSFX");

    // The initial text has room for five more characters.
    text->setFocus();
    QTest::keyClick(text, Qt::Key_End, Qt::ControlModifier);
    QTest::keyClicks(text, "1234567890");
    EXPECT_EQ(text->toPlainText(), kInitialText + "12345");
    EXPECT_EQ(text->toPlainText().size(), 156);

    typeInto(text, QString(200, 'x'));
    EXPECT_EQ(text->toPlainText(), QString(156, 'x'));

    // A pasted text is cut at the limit as well.
    typeInto(text, "");
    text->insertPlainText(QString(300, 'p'));
    EXPECT_EQ(text->toPlainText(), QString(156, 'p'));

    // A line break is written as CR LF and counts two.
    typeInto(text, QString(150, 'a'));
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, "bcdefgh");
    EXPECT_EQ(text->toPlainText(), QString(150, 'a') + "\nbcde");
    EXPECT_EQ(dialog->settings().sfxText, QString(150, 'a') + "\r\nbcde");
    EXPECT_EQ(dialog->settings().sfxText.size(), 156);

    // The licence text has no limit.
    auto* licence = control<QPlainTextEdit>(dialog.get(), "TextLicense");
    typeInto(licence, QString(400, 'L'));
    EXPECT_EQ(licence->toPlainText().size(), 400);
}

TEST_F(SfxDialog, CreateBuildsTheSfxByteForByte) {
    auto dialog = openDialog();
    PaintRecorder paints;
    stato_->installEventFilter(&paints);
    consiglio_->installEventFilter(&paints);

    typeInto(control<QComboBox>(dialog.get(), "cmbPath"), "Programs\\Quovara Demo");
    typeInto(control<QLineEdit>(dialog.get(), "TxTRunB"), "prepare.exe /quiet");
    typeInto(control<QLineEdit>(dialog.get(), "TxTRunA"), "readme.txt");
    clickTab(dialog.get(), 1);
    typeInto(control<QLineEdit>(dialog.get(), "TxtCaptionSFX"),
             QString::fromUtf8("Caf\u00e9 Setup"));
    auto* text = control<QPlainTextEdit>(dialog.get(), "TextSFX");
    typeInto(text, "Line one");
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, "Line two");
    typeInto(control<QLineEdit>(dialog.get(), "TxtCaptionLicense"), "Licence");
    auto* licence = control<QPlainTextEdit>(dialog.get(), "TextLicense");
    typeInto(licence, "You may copy it.");
    QTest::keyClick(licence, Qt::Key_Return);
    QTest::keyClicks(licence, "<|>kept as typed");

    create(dialog.get());

    ASSERT_EQ(requests_.size(), 1);
    EXPECT_EQ(requests_[0].title, "Save the SFX");
    EXPECT_EQ(requests_[0].filter, "Application (*.exe)");
    EXPECT_EQ(requests_[0].proposal, places_.path() + "/sample.exe");
    EXPECT_TRUE(requests_[0].confirmOverwrite);

    const QByteArray info("Programs\\Quovara Demo<|>prepare.exe /quiet<|>readme.txt<|>"
                          "Line one\r\nLine two<|>Caf\xe9 Setup<|>"
                          "You may copy it.\r\n<|>kept as typed<|>Licence");
    const QByteArray out = readAll(output_);
    ASSERT_EQ(out.size(), expectedSfx(info).size());
    EXPECT_TRUE(out == expectedSfx(info));
    const qsizetype S = stub_.size(), A = archiveBytes_.size(), E = engine_.size();
    EXPECT_EQ(out.left(S), stub_);
    EXPECT_EQ(out.mid(S, 8), QByteArray("FileSFX\x05"));
    EXPECT_EQ(out.mid(S + 8, A), archiveBytes_);
    EXPECT_TRUE(out.mid(S + 8 + A).startsWith("UharcSFX\x05"));
    EXPECT_EQ(out.mid(S + 17 + A, E), engine_);
    EXPECT_EQ(out.mid(S + 17 + A + E, 11), QByteArray("InfoScript\x05"));
    EXPECT_EQ(out.mid(S + 28 + A + E), info);

    // The state lines showed the work while it ran and are back to rest; the user is told.
    EXPECT_TRUE(paints.painted.contains("Quovara is creating the SFX"));
    EXPECT_TRUE(paints.painted.contains("Please Wait ..."));
    EXPECT_EQ(stato_->text(), "Quovara is ready");
    EXPECT_EQ(consiglio_->text(), "Select an action");
    EXPECT_EQ(prompter_.shown, QStringList{"information: SFX Created"});
    EXPECT_TRUE(dialog->created());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(SfxDialog, AllFieldsEmptyGiveSixSeparators) {
    auto dialog = openDialog();
    clickTab(dialog.get(), 1);
    typeInto(control<QPlainTextEdit>(dialog.get(), "TextSFX"), "");
    create(dialog.get());
    const QByteArray out = readAll(output_);
    EXPECT_TRUE(out == expectedSfx("<|><|><|><|><|><|>"));
    EXPECT_TRUE(out.endsWith(QByteArray("InfoScript\x05<|><|><|><|><|><|>", 29)));
}

TEST_F(SfxDialog, PathItemChosenWithTheKeyboard) {
    auto dialog = openDialog();
    auto* path = control<QComboBox>(dialog.get(), "cmbPath");
    path->setFocus();
    QTest::keyClick(path, Qt::Key_Down);
    QTest::keyClick(path, Qt::Key_Down);
    QTest::keyClick(path, Qt::Key_Down);
    QTest::keyClick(path, Qt::Key_Down);
    EXPECT_EQ(path->currentText(), "Desktop");
    create(dialog.get());
    EXPECT_TRUE(readAll(output_).endsWith(QByteArray("InfoScript\x05") + "Desktop<|><|><|>" +
                                          kInitialText.toLatin1() + "<|><|><|>"));
}

TEST_F(SfxDialog, AnExistingOutputIsReplaced) {
    writeFile(output_, QByteArray(100000, 'o'));
    auto dialog = openDialog();
    create(dialog.get());
    EXPECT_TRUE(existedWhenChosen_);
    EXPECT_TRUE(readAll(output_).startsWith(stub_));
    EXPECT_FALSE(readAll(output_).contains(QByteArray(100, 'o')));
}

TEST_F(SfxDialog, AnExistingOutputIsGoneEvenWhenTheAssemblyFails) {
    writeFile(output_, "old file");
    ASSERT_TRUE(QFile::remove(program_ + "/SFX.exe"));
    auto dialog = openDialog();
    create(dialog.get());
    EXPECT_TRUE(existedWhenChosen_);
    EXPECT_FALSE(QFile::exists(output_));
    ASSERT_EQ(prompter_.shown.size(), 1);
    EXPECT_EQ(prompter_.shown[0], "critical: Cannot create the SFX: the stub file " + program_ +
                                      "/SFX.exe is missing.");
    // Nothing half-written is left in the folder, and the dialog stays open with its texts.
    EXPECT_EQ(QDir(places_.path() + "/out").entryList(QDir::Files | QDir::Hidden), QStringList());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->created());
    EXPECT_EQ(stato_->text(), "Quovara is ready");
    EXPECT_EQ(consiglio_->text(), "Select an action");
}

TEST_F(SfxDialog, MissingEngineIsNamedAndNothingIsWritten) {
    ASSERT_TRUE(QFile::remove(program_ + "/uharc.exe"));
    auto dialog = openDialog();
    create(dialog.get());
    ASSERT_EQ(prompter_.shown.size(), 1);
    EXPECT_EQ(prompter_.shown[0], "critical: Cannot create the SFX: the engine file " + program_ +
                                      "/Uharc.exe is missing.");
    EXPECT_EQ(QDir(places_.path() + "/out").entryList(QDir::Files | QDir::Hidden), QStringList());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(SfxDialog, CancelledSaveDialogDoesNothing) {
    answer_.clear();
    auto dialog = openDialog();
    create(dialog.get());
    EXPECT_EQ(requests_.size(), 1);
    EXPECT_TRUE(prompter_.shown.isEmpty());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(stato_->text(), "Quovara is ready");
    EXPECT_EQ(QDir(places_.path() + "/out").entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(SfxDialog, TheArchiveItselfIsNeverReplaced) {
    answer_ = archive_;
    auto dialog = openDialog();
    create(dialog.get());
    EXPECT_EQ(readAll(archive_), archiveBytes_);
    ASSERT_EQ(prompter_.shown.size(), 1);
    EXPECT_EQ(prompter_.shown[0], "critical: Cannot create the SFX: " + archive_ +
                                      " is one of the files it is made from.");
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(SfxDialog, CancelClosesWithoutWriting) {
    auto dialog = openDialog();
    QTest::mouseClick(control<QPushButton>(dialog.get(), "cmdCancel"), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_TRUE(requests_.isEmpty());
    EXPECT_FALSE(QFile::exists(output_));
}

TEST_F(SfxDialog, KeyboardOrderFollowsTheForm) {
    auto dialog = openDialog();
    QStringList order;
    QWidget* w = control<QWidget>(dialog.get(), "TabStrip1");
    w->setFocus();
    for (int i = 0; i < 5; ++i) {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, QStringList({"TabStrip1", "cmbPath", "TxTRunB", "TxTRunA", "cmdOk"}));

    clickTab(dialog.get(), 1);
    w->setFocus();
    order.clear();
    for (int i = 0; i < 6; ++i) {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, QStringList({"TabStrip1", "TxtCaptionSFX", "TextSFX", "TxtCaptionLicense",
                                  "TextLicense", "cmdOk"}));

    // The labels name their boxes for assistive technology and take the mnemonic's focus.
    EXPECT_EQ(control<QLabel>(dialog.get(), "Label5")->buddy(),
              control<QWidget>(dialog.get(), "TxtCaptionSFX"));
    EXPECT_EQ(control<QComboBox>(dialog.get(), "cmbPath")->accessibleName(), "Path To Extract");
    QTest::keyClick(dialog.get(), Qt::Key_I, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "TxtCaptionLicense");
}

// The main window's side.

class SfxFromMainWindow : public SfxDialog {
protected:
    void SetUp() override {
        SfxDialog::SetUp();
        main_.setPrompter(&prompter_);
        main_.setInstanceLockPath(places_.path() + "/instance.lock");
    }
    frmApri main_;
};

TEST_F(SfxFromMainWindow, SfxButtonOpensTheDialogOnTheOpenArchive) {
    ASSERT_TRUE(main_.Form_Load(archive_));
    main_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&main_));
    ASSERT_EQ(main_.lister().listing().archivePath, archive_);
    auto* stato = main_.findChild<QLabel*>("Stato");
    auto* consiglio = main_.findChild<QLabel*>("Consiglio");
    ASSERT_NE(stato, nullptr);
    PaintRecorder paints;
    stato->installEventFilter(&paints);
    consiglio->installEventFilter(&paints);

    WhenShown<frmSFX> act([](frmSFX* dialog) {
        EXPECT_TRUE(dialog->isModal());
        typeInto(control<QComboBox>(dialog, "cmbPath"), "StartUp");
        create(dialog);
    });
    main_.ButtonClick(5);
    EXPECT_TRUE(act.acted());
    EXPECT_TRUE(readAll(output_) == expectedSfx(QByteArray("StartUp<|><|><|>") +
                                                kInitialText.toLatin1() + "<|><|><|>"));
    EXPECT_TRUE(paints.painted.contains("Quovara is creating the SFX"));
    EXPECT_TRUE(paints.painted.contains("Please Wait ..."));
    EXPECT_EQ(stato->text(), "Quovara is ready");
    EXPECT_EQ(consiglio->text(), "Select an action");
    EXPECT_EQ(prompter_.shown, QStringList{"information: SFX Created"});
    main_.close();
}

TEST_F(SfxFromMainWindow, ProtectedArchiveIsRefused) {
    const QString src = places_.path() + "/src";
    const QString locked = makeArchive(src, "locked.uha", {"-pwsecret"});
    prompter_.answers << "secret";
    ASSERT_TRUE(main_.Form_Load(locked));
    ASSERT_EQ(main_.lister().listing().password, "secret");
    prompter_.shown.clear();

    WhenShown<frmSFX> act([](frmSFX* dialog) { dialog->reject(); }, 300);
    main_.ButtonClick(5);
    QTest::qWait(50);
    EXPECT_FALSE(act.acted());
    EXPECT_EQ(prompter_.shown,
              QStringList{
                  "information: You cannot create a SFX with an archive protected by a password"});
    EXPECT_TRUE(requests_.isEmpty());
    main_.close();
}

TEST_F(SfxFromMainWindow, SfxRequestWordOpensOnlyTheDialog) {
    WhenShown<frmSFX> act([](frmSFX* dialog) { create(dialog); });
    // The program ends when the dialog has closed.
    EXPECT_FALSE(main_.Form_Load("sfx  " + archive_));
    EXPECT_TRUE(act.acted());
    EXPECT_TRUE(main_.commandLineJob());
    EXPECT_FALSE(main_.isVisible());
    EXPECT_TRUE(readAll(output_).startsWith(stub_));
    EXPECT_EQ(prompter_.shown, QStringList{"information: SFX Created"});
}

TEST_F(SfxFromMainWindow, SfxRequestWordOnAProtectedArchiveIsRefused) {
    const QString locked = makeArchive(places_.path() + "/src", "locked.uha", {"-pwsecret"});
    prompter_.answers << "secret";
    WhenShown<frmSFX> act([](frmSFX* dialog) { dialog->reject(); }, 300);
    EXPECT_FALSE(main_.Form_Load("sfx  " + locked));
    QTest::qWait(50);
    EXPECT_FALSE(act.acted());
    EXPECT_TRUE(prompter_.shown.contains(
        "information: You cannot create a SFX with an archive protected by a password"));
}

TEST(SfxSaveDialog, ANameWithDoubleQuotesIsTakenWhole) {
    QTemporaryDir dir;
    SfxSaveRequest request;
    request.title = "Save the SFX";
    request.filter = "Application (*.exe)";
    request.suffix = "exe";
    request.proposal = dir.filePath("it's \"q\".exe");
    // Accept the proposal as it stands, with Enter in the name box.
    QTimer poll;
    poll.setInterval(20);
    QObject::connect(&poll, &QTimer::timeout, [&poll] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* d = qobject_cast<QFileDialog*>(w); d && d->isVisible()) {
                poll.stop();
                auto* edit = d->findChild<QLineEdit*>("fileNameEdit");
                ASSERT_NE(edit, nullptr);
                QTest::keyClick(edit, Qt::Key_Return);
                return;
            }
    });
    poll.start();
    EXPECT_EQ(PlatformSfxSaveDialog(nullptr, request), request.proposal);
}
