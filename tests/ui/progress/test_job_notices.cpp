// Jobs that end while the user is at another program, or while their window is in the
// notification area, are told of by a desktop notification: how the job ended and the archive's
// name; after an extraction an "Open folder" button opens the destination. The same for the
// SFX window. A private bus with a fake notification service records what is sent; nothing is
// sent while a window of the program is active.
#include "progress_fixture.h"

#include "core/desktop.h"
#include "core/notifications.h"
#include "elsewhere.h"
#include "fake_notifications.h"
#include "ui/jobs/frmsfx.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

class JobNotices : public ::testing::Test {
protected:
    void SetUp() override {
        if (bus.address().isEmpty())
            GTEST_SKIP() << bus.problem().toStdString();
        service = std::make_unique<FakeNotificationService>(bus.address());
        ASSERT_TRUE(service->registered());
        DesktopNotifications::instance().useBus(bus.address());
        SetDesktopOpener([this](const QString& target, const QString&, const QString&) {
            opened << target;
            return 42;
        });
        bench.makeSource(6, 20000);
        archive = bench.makeArchive(kSix, "six.uha");
        dest = bench.places.path() + "/dest";
        bench.main->show();
    }
    void TearDown() override {
        SetSfxSaveDialog({});
        SetDesktopOpener({});
        DesktopNotifications::instance().useBus(QString());
    }

    // A job of `kind` whose window has begun to follow the engine, slowed down so that the
    // user can go elsewhere before it ends.
    frmProgress* slowJob(JobKind kind) {
        bench.setDelay(150);
        frmProgress* w = bench.open(kind);
        auto* job = w->findChild<QLineEdit*>("JobTxt");
        EXPECT_TRUE(WaitFor([&] { return !job->text().isEmpty(); }));
        return w;
    }

    bool noticesArrive(int count) {
        return WaitFor([&] { return service->notices.size() >= count; }, 10000);
    }

    JobBench bench;
    PrivateBus bus;
    std::unique_ptr<FakeNotificationService> service;
    QStringList opened;
    QString archive;
    QString dest;
};

} // namespace

TEST_F(JobNotices, AnExtractionEndingWhileTheUserIsElsewhereHasAnOpenFolderButton) {
    bench.writeExtractScript(archive, dest);
    frmProgress* w = slowJob(JobKind::Extract);
    AnotherProgramsWindow elsewhere;
    ASSERT_TRUE(elsewhere.takeFocus());
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_TRUE(w->succeeded());
    ASSERT_TRUE(noticesArrive(1));
    const ReceivedNotice& n = service->notices.first();
    EXPECT_EQ(n.summary, "Extraction of six.uha finished");
    EXPECT_EQ(n.body, "Extracted to " + dest);
    EXPECT_EQ(n.actions, QStringList({"open-folder", "Open folder"}));
    EXPECT_EQ(n.appName, "Quovara");
    EXPECT_TRUE(opened.isEmpty());
    // The user chooses the button: the desktop's opener gets the destination.
    service->chooseButton(n.id, "open-folder");
    ASSERT_TRUE(WaitFor([&] { return !opened.isEmpty(); }, 5000));
    EXPECT_EQ(opened, QStringList({dest}));
    EXPECT_EQ(readAll(dest + "/f03.bin"), readAll(bench.src + "/f03.bin"));
    EXPECT_EQ(service->notices.size(), 1);
}

TEST_F(JobNotices, NothingIsSentWhileAWindowOfTheProgramIsActive) {
    bench.writeTestScript(archive);
    frmProgress* w = slowJob(JobKind::Test);
    w->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(w));
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown,
              QStringList({"information: No errors found during test operation"}));
    QTest::qWait(500);
    EXPECT_TRUE(service->notices.isEmpty());
    EXPECT_EQ(service->capabilityQuestions, 0);

    // The same job while the user is elsewhere is told of; a test has no button.
    bench.writeTestScript(archive);
    w = slowJob(JobKind::Test);
    AnotherProgramsWindow elsewhere;
    ASSERT_TRUE(elsewhere.takeFocus());
    ASSERT_TRUE(bench.waitUnloaded(w));
    ASSERT_TRUE(noticesArrive(1));
    EXPECT_EQ(service->notices[0].summary, "Test of six.uha finished");
    EXPECT_EQ(service->notices[0].body, archive);
    EXPECT_TRUE(service->notices[0].actions.isEmpty());
}

TEST_F(JobNotices, AnAddInTheNotificationAreaIsToldOfWhenItFinishes) {
    const QString target = bench.places.path() + "/new.uha";
    bench.writeAddScript(target);
    frmProgress* w = slowJob(JobKind::Add);
    // Minimised: the window and the main window go to the notification area.
    w->setWindowState(Qt::WindowMinimized);
    ASSERT_TRUE(WaitFor([&] { return !w->isVisible(); }, 5000));
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_TRUE(w->succeeded());
    ASSERT_TRUE(noticesArrive(1));
    EXPECT_EQ(service->notices[0].summary, "Adding to new.uha finished");
    EXPECT_EQ(service->notices[0].body, target);
    EXPECT_TRUE(service->notices[0].actions.isEmpty());
}

TEST_F(JobNotices, AFailureIsToldOfWithTheFirstLineOfItsReason) {
    // A damaged archive: stored (not packed), with a byte of f02.bin changed.
    const QString stored = bench.makeArchive(kSix, "stored.uha", {"-m0"});
    QByteArray bytes = readAll(stored);
    const qsizetype at = bytes.indexOf(readAll(bench.src + "/f02.bin").left(64));
    ASSERT_GT(at, 0);
    bytes[at + 100] = bytes[at + 100] == 'x' ? 'y' : 'x';
    writeFile(stored, bytes);
    bench.writeTestScript(stored);
    frmProgress* w = slowJob(JobKind::Test);
    AnotherProgramsWindow elsewhere;
    ASSERT_TRUE(elsewhere.takeFocus());
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown, QStringList({"critical:  CRC-failure (file \"f02.bin\")"}));
    ASSERT_TRUE(noticesArrive(1));
    EXPECT_EQ(service->notices[0].summary, "Test of stored.uha failed");
    EXPECT_EQ(service->notices[0].body, "CRC-failure (file \"f02.bin\")");
}

TEST_F(JobNotices, AJobStoppedWhileTheUserIsElsewhereIsToldOfAsStopped) {
    bench.writeExtractScript(archive, dest);
    frmProgress* w = slowJob(JobKind::Extract);
    AnotherProgramsWindow elsewhere;
    ASSERT_TRUE(elsewhere.takeFocus());
    // Closed from the desktop (its window list, say) without coming back to the program.
    w->close();
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_FALSE(w->succeeded());
    ASSERT_TRUE(noticesArrive(1));
    EXPECT_EQ(service->notices[0].summary, "Extraction of six.uha stopped");
    EXPECT_EQ(service->notices[0].body, archive);
    EXPECT_TRUE(service->notices[0].actions.isEmpty());
}

TEST_F(JobNotices, WithNoNotificationServiceTheJobEndsAsUsual) {
    service.reset();
    bench.writeExtractScript(archive, dest);
    frmProgress* w = slowJob(JobKind::Extract);
    AnotherProgramsWindow elsewhere;
    ASSERT_TRUE(elsewhere.takeFocus());
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_TRUE(w->succeeded());
    EXPECT_TRUE(bench.prompter.shown.isEmpty()) << bench.prompter.shown.join('|').toStdString();
    EXPECT_EQ(readAll(dest + "/f05.bin"), readAll(bench.src + "/f05.bin"));
    EXPECT_TRUE(WaitFor([] { return !DesktopNotifications::instance().busy(); }, 10000));
    EXPECT_EQ(DesktopNotifications::instance().waitingForAction(), 0);
}

TEST_F(JobNotices, AnSfxMadeWhileTheUserIsElsewhereIsToldOfWithItsFileOrTheReason) {
    writeFile(bench.programFile("SFX.exe"), "MZ stands for the stub");
    const QString output = bench.places.path() + "/setup.exe";
    SetSfxSaveDialog([&](QWidget*, const SfxSaveRequest&) { return output; });
    QLabel stato, consiglio;
    AnotherProgramsWindow elsewhere;
    auto make = [&](bool away) {
        auto dialog = std::make_unique<frmSFX>(archive, &stato, &consiglio, bench.prompter);
        dialog->show();
        if (away) {
            EXPECT_TRUE(elsewhere.takeFocus());
        } else {
            dialog->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        }
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
        return dialog->created();
    };

    // Made while its window is the active one: nothing is sent.
    ASSERT_TRUE(make(false));
    QTest::qWait(300);
    EXPECT_TRUE(service->notices.isEmpty());

    ASSERT_TRUE(make(true));
    ASSERT_TRUE(noticesArrive(1));
    EXPECT_EQ(service->notices[0].summary, "Making the SFX of six.uha finished");
    EXPECT_EQ(service->notices[0].body, "Saved as " + output);
    EXPECT_TRUE(service->notices[0].actions.isEmpty());

    // A failure names its reason.
    ASSERT_TRUE(QFile::remove(bench.programFile("SFX.exe")));
    ASSERT_FALSE(make(true));
    ASSERT_TRUE(noticesArrive(2));
    EXPECT_EQ(service->notices[1].summary, "Making the SFX of six.uha failed");
    EXPECT_EQ(service->notices[1].body, "Cannot create the SFX: the stub file " +
                                            bench.programFile("SFX.exe") + " is missing.");
    EXPECT_EQ(bench.prompter.shown,
              QStringList({"information: SFX Created", "information: SFX Created",
                           "critical: Cannot create the SFX: the stub file " +
                               bench.programFile("SFX.exe") + " is missing."}));
}
