// Minimising a progress window sends it and the main window to the notification area;
// the icon's tip follows the job; a left click brings both back without starting the job again;
// the icon goes away at unload. The notification area is a recording double here (there is
// none on the offscreen platform).
#include "progress_fixture.h"

#include "core/places.h"

#include <QDir>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

class ProgressTray : public ::testing::Test {
protected:
    // As the title bar's button does; the window goes to the tray once the change is complete.
    void minimise(frmProgress* w) {
        w->setWindowState(Qt::WindowMinimized);
        if (bench.tray->available)
            EXPECT_TRUE(WaitFor([&] { return !w->isVisible(); }, 5000));
        else
            QTest::qWait(50);
    }

    frmProgress* startLongExtract(int files = 10, int delay = 250) {
        bench.makeSource(files, 20000);
        archive = bench.makeArchive(kSix, "six.uha");
        bench.writeExtractScript(archive, bench.places.path() + "/dest");
        bench.setDelay(delay);
        bench.main->show();
        frmProgress* w = bench.open(JobKind::Extract);
        auto* job = w->findChild<QLineEdit*>("JobTxt");
        EXPECT_TRUE(WaitFor([&] { return !job->text().isEmpty(); }));
        return w;
    }

    JobBench bench;
    QString archive;
};

} // namespace

TEST(TrayTip, AShortTipIsFollowedByItsNulAndBlanks) {
    const QByteArray field = TrayTipField("Completed: 50 % Remaining: 00:00:30");
    ASSERT_EQ(field.size(), 64);
    EXPECT_TRUE(field.startsWith("Completed: 50 % Remaining: 00:00:30"));
    EXPECT_EQ(field.at(35), '\0');
    EXPECT_EQ(field.mid(36), QByteArray(28, ' '));
    EXPECT_EQ(TrayTipShown("Completed: 50 % Remaining: 00:00:30"),
              "Completed: 50 % Remaining: 00:00:30");
    EXPECT_EQ(TrayTipField(""), QByteArray(1, '\0') + QByteArray(63, ' '));
}

TEST(TrayTip, ATipOfSixtyFourCharactersOrMoreFillsTheFieldWithoutNul) {
    const QString sixtyFour(64, QLatin1Char('x'));
    EXPECT_EQ(TrayTipField(sixtyFour), QByteArray(64, 'x'));
    EXPECT_EQ(TrayTipField(sixtyFour + "yz"), QByteArray(64, 'x'));
    EXPECT_EQ(TrayTipShown(sixtyFour + "yz"), sixtyFour);
    EXPECT_FALSE(TrayTipField(sixtyFour).contains('\0'));
}

TEST_F(ProgressTray, MinimisingHidesBothWindowsAndShowsTheIconWithTheWindowsPicture) {
    frmProgress* w = startLongExtract();
    RecordingTray* tray = bench.tray;
    EXPECT_FALSE(TrayUsed());
    minimise(w);
    EXPECT_TRUE(TrayUsed());
    EXPECT_FALSE(w->isVisible());
    EXPECT_FALSE(bench.main->isVisible());
    ASSERT_TRUE(tray->shown);
    EXPECT_EQ(tray->calls.first(), "add");
    EXPECT_EQ(tray->tips.first(), ""); // TrayAdd with an empty tip ...
    EXPECT_EQ(tray->icon.cacheKey(), w->windowIcon().cacheKey());
    // ... then the tip is kept current: per cent and remaining time of the latest round.
    const QRegularExpression tip("^Completed: \\d+(\\.\\d+)? % Remaining: \\d\\d:\\d\\d:\\d\\d$");
    ASSERT_TRUE(WaitFor([&] { return tray->tips.size() >= 3; }));
    for (qsizetype i = 1; i < tray->tips.size(); ++i)
        EXPECT_TRUE(tip.match(tray->tips[i]).hasMatch()) << tray->tips[i].toStdString();
    EXPECT_EQ(tray->tips.last(),
              TrayTipText(w->timeState().percent, w->timeState().remainingSeconds));
    // The job goes on while hidden.
    EXPECT_TRUE(w->jobRunning());
}

TEST_F(ProgressTray, ALeftClickRestoresBothWindowsWithoutStartingTheJobAgain) {
    frmProgress* w = startLongExtract();
    RecordingTray* tray = bench.tray;
    const qint64 pid = w->jobProcessId();
    minimise(w);
    ASSERT_FALSE(w->isVisible());
    // Right clicks, double clicks and the middle button do nothing.
    tray->click(TrayClick::Right);
    tray->click(TrayClick::Double);
    tray->click(TrayClick::Middle);
    QTest::qWait(50);
    EXPECT_FALSE(w->isVisible());
    EXPECT_FALSE(bench.main->isVisible());
    EXPECT_TRUE(tray->shown);

    tray->click(TrayClick::Left);
    EXPECT_TRUE(w->isVisible());
    EXPECT_FALSE(w->isMinimized());
    EXPECT_TRUE(bench.main->isVisible());
    EXPECT_FALSE(tray->shown);
    EXPECT_EQ(tray->calls.last(), "remove");
    EXPECT_TRUE(TrayUsed());
    // Activate runs again on the showing and does nothing: the same job goes on.
    QTest::qWait(200);
    EXPECT_EQ(w->runs(), 1);
    EXPECT_EQ(w->jobProcessId(), pid);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(w->runs(), 1);
    EXPECT_TRUE(bench.prompter.shown.isEmpty()) << bench.prompter.shown.join('|').toStdString();
    EXPECT_TRUE(QFileInfo(bench.places.path() + "/dest/f09.bin").isFile());
}

TEST_F(ProgressTray, AJobThatEndsWhileHiddenRemovesTheIconAndShowsTheMainWindow) {
    frmProgress* w = startLongExtract(4, 150);
    RecordingTray* tray = bench.tray;
    minimise(w);
    ASSERT_TRUE(tray->shown);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_FALSE(tray->shown);
    EXPECT_EQ(tray->calls.last(), "remove");
    EXPECT_TRUE(bench.main->isVisible());
    EXPECT_FALSE(w->isVisible());
}

TEST_F(ProgressTray, AnErrorAfterTheHeaderWhileHiddenRemovesTheIconButLeavesTheMainWindowHidden) {
    bench.makeSource(6, 20000);
    archive = bench.makeArchive(kSix, "damaged.uha", {"-m0"});
    QByteArray bytes = readAll(archive);
    const qsizetype at = bytes.indexOf(readAll(bench.src + "/f03.bin").left(64));
    ASSERT_GT(at, 0);
    bytes[at + 10] = bytes[at + 10] == 'x' ? 'y' : 'x';
    writeFile(archive, bytes);
    bench.writeTestScript(archive);
    bench.setDelay(200);
    bench.main->show();
    frmProgress* w = bench.open(JobKind::Test);
    RecordingTray* tray = bench.tray;
    auto* job = w->findChild<QLineEdit*>("JobTxt");
    ASSERT_TRUE(WaitFor([&] { return !job->text().isEmpty(); }));
    minimise(w);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown, QStringList({"critical:  CRC-failure (file \"f03.bin\")"}));
    EXPECT_FALSE(tray->shown);
    EXPECT_FALSE(bench.main->isVisible());
}

TEST_F(ProgressTray, ClosingAHiddenWindowsJobRemovesTheIcon) {
    frmProgress* w = startLongExtract();
    RecordingTray* tray = bench.tray;
    minimise(w);
    ASSERT_TRUE(tray->shown);
    w->close();
    EXPECT_FALSE(tray->shown);
    EXPECT_TRUE(bench.main->isVisible());
}

TEST_F(ProgressTray, WithoutANotificationAreaMinimisingLeavesAPlainMinimisedWindow) {
    frmProgress* w = startLongExtract(4, 150);
    RecordingTray* tray = bench.tray;
    tray->available = false;
    minimise(w);
    EXPECT_FALSE(tray->shown);
    EXPECT_TRUE(tray->calls.isEmpty());
    EXPECT_TRUE(bench.main->isVisible());
    EXPECT_FALSE(TrayUsed());
    ASSERT_TRUE(bench.waitUnloaded(w));
}

TEST_F(ProgressTray, TheNextWindowClearsTrayUsed) {
    frmProgress* w = startLongExtract(3, 100);
    minimise(w);
    ASSERT_TRUE(TrayUsed());
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_TRUE(TrayUsed()); // stays set until the next window is loaded
    bench.writeTestScript(archive);
    frmProgress* next = bench.open(JobKind::Test);
    EXPECT_FALSE(TrayUsed());
    ASSERT_TRUE(bench.waitUnloaded(next));
    EXPECT_EQ(next->runs(), 1);
}

TEST_F(ProgressTray, ShowMinimizedEndsInTheNotificationAreaToo) {
    // QWidget::showMinimized() shows the window after setting the state: it still ends hidden.
    frmProgress* w = startLongExtract(4, 150);
    w->showMinimized();
    EXPECT_TRUE(WaitFor([&] { return !w->isVisible(); }, 5000));
    EXPECT_TRUE(bench.tray->shown);
    EXPECT_FALSE(bench.main->isVisible());
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_FALSE(bench.tray->shown);
}

TEST_F(ProgressTray, AfterAVersionRequestTheRestartedRunHonoursTrayUsed) {
    bench.makeSource(4, 20000);
    archive = bench.makeArchive(kFour, "four.uha");
    bench.writeExtractScript(archive, bench.places.path() + "/dest");
    bench.setDelay(300);
    // As soon as the job has started, the window has been to the notification area: before
    // the engine's request is read (the first round comes 100 ms after the start).
    QTimer probe;
    probe.setInterval(1);
    QObject::connect(&probe, &QTimer::timeout, [&] {
        auto* p = bench.main->findChild<frmProgress*>("frmExtracting");
        if (p && p->runs() == 1 && !TrayUsed())
            SetTrayUsed(true);
    });
    probe.start();
    frmProgress* w = bench.open(JobKind::Extract);
    ASSERT_TRUE(WaitFor([&] { return bench.main->engineSwitch().engineSwitched; }));
    probe.stop();
    // The Activate run starts again from its first step and returns at once: no second run.
    QTest::qWait(400);
    EXPECT_EQ(w->runs(), 1);
    EXPECT_FALSE(w->jobRunning());
    EXPECT_FALSE(QFileInfo(bench.places.path() + "/dest/f00.bin").exists());
    // Closing the window undoes the switch.
    w->close();
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_FALSE(bench.main->engineSwitch().engineSwitched);
    EXPECT_EQ(readAll(bench.programFile("uharc.exe")), readAll(kSix));
}
