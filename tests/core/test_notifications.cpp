// Desktop notifications through the freedesktop Notifications service, on a private bus with a
// fake service: what is sent, the buttons, markup, a service that is not there, and the wait
// before the program ends.
#include "core/notifications.h"
#include "fake_notifications.h"
#include "test_support.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <memory>

using namespace quovara;
using namespace quovara::testing;

namespace {

class Notices : public ::testing::Test {
protected:
    void SetUp() override {
        if (bus.address().isEmpty())
            GTEST_SKIP() << bus.problem().toStdString();
        notifier().useBus(bus.address());
    }
    void TearDown() override { notifier().useBus(QString()); }

    static DesktopNotifications& notifier() { return DesktopNotifications::instance(); }

    // The fake service on the bus, with `capabilities`.
    void startService(QStringList capabilities = {"actions", "body"}) {
        service = std::make_unique<FakeNotificationService>(bus.address(), capabilities);
        ASSERT_TRUE(service->registered());
    }

    // Sends `notice` and waits for the service's id; 0 when it was not delivered.
    uint sendAndWait(const DesktopNotice& notice) {
        QSignalSpy delivered(&notifier(), &DesktopNotifications::delivered);
        QSignalSpy failed(&notifier(), &DesktopNotifications::notDelivered);
        notifier().send(notice);
        if (!QTest::qWaitFor([&] { return delivered.size() + failed.size() > 0; }, 10000))
            return 0;
        return delivered.isEmpty() ? 0 : delivered.first().first().toUInt();
    }

    static DesktopNotice withButton(QStringList* chosen) {
        DesktopNotice notice{"Extraction of a.uha finished",
                             "Extracted to /home/u/a",
                             {"open-folder", "Open folder"},
                             [chosen](const QString& key) { *chosen << key; }};
        return notice;
    }

    PrivateBus bus;
    std::unique_ptr<FakeNotificationService> service;
};

} // namespace

TEST_F(Notices, TheServiceGetsTheSummaryTheBodyTheButtonsAndTheProgramsName) {
    startService();
    QStringList chosen;
    const uint id = sendAndWait(withButton(&chosen));
    ASSERT_NE(id, 0u);
    ASSERT_EQ(service->notices.size(), 1);
    const ReceivedNotice& n = service->notices.first();
    EXPECT_EQ(n.id, id);
    EXPECT_EQ(n.appName, "Quovara");
    EXPECT_EQ(n.appIcon, "quovara");
    EXPECT_EQ(n.replacesId, 0u);
    EXPECT_EQ(n.summary, "Extraction of a.uha finished");
    EXPECT_EQ(n.body, "Extracted to /home/u/a");
    EXPECT_EQ(n.actions, QStringList({"open-folder", "Open folder"}));
    EXPECT_EQ(n.hints.value("desktop-entry").toString(), "quovara");
    EXPECT_EQ(n.expireTimeout, -1);
    EXPECT_EQ(notifier().waitingForAction(), 1);
    // A second notice does not ask the service again what it reads.
    ASSERT_NE(sendAndWait({"Test of a.uha finished", "/home/u/a.uha", {}, {}}), 0u);
    EXPECT_EQ(service->capabilityQuestions, 1);
    EXPECT_EQ(notifier().waitingForAction(), 1); // no button, nothing waits
}

TEST_F(Notices, AChosenButtonReachesItsNoticesHandlerOnce) {
    startService();
    QStringList chosen;
    const uint id = sendAndWait(withButton(&chosen));
    ASSERT_NE(id, 0u);
    // Another program's notice.
    service->chooseButton(id + 100, "open-folder");
    QTest::qWait(200);
    EXPECT_TRUE(chosen.isEmpty());
    service->chooseButton(id, "open-folder");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !chosen.isEmpty(); }, 5000));
    EXPECT_EQ(chosen, QStringList({"open-folder"}));
    EXPECT_EQ(notifier().waitingForAction(), 0);
    service->chooseButton(id, "open-folder");
    QTest::qWait(200);
    EXPECT_EQ(chosen.size(), 1);
}

TEST_F(Notices, AClosedNoticeForgetsItsButton) {
    startService();
    QStringList chosen;
    const uint id = sendAndWait(withButton(&chosen));
    ASSERT_NE(id, 0u);
    service->closeNotice(id);
    ASSERT_TRUE(QTest::qWaitFor([&] { return notifier().waitingForAction() == 0; }, 5000));
    service->chooseButton(id, "open-folder");
    QTest::qWait(200);
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(Notices, TheBodyIsEscapedOnlyForAServiceThatReadsMarkup) {
    startService({"actions", "body", "body-markup"});
    ASSERT_NE(sendAndWait({"Test of <a & b>.uha failed", "<a & b>.uha: damaged", {}, {}}), 0u);
    ASSERT_EQ(service->notices.size(), 1);
    EXPECT_EQ(service->notices[0].summary, "Test of <a & b>.uha failed"); // never markup
    EXPECT_EQ(service->notices[0].body, "&lt;a &amp; b&gt;.uha: damaged");

    notifier().useBus(bus.address()); // forgets what the service said
    service.reset();
    startService({"body"});
    ASSERT_NE(sendAndWait({"Test of <a & b>.uha failed", "<a & b>.uha: damaged", {}, {}}), 0u);
    ASSERT_EQ(service->notices.size(), 1);
    EXPECT_EQ(service->notices[0].body, "<a & b>.uha: damaged");
}

TEST_F(Notices, WithNoServiceOnTheBusNothingIsShownAndTheNextNoticeAsksAgain) {
    QSignalSpy failed(&notifier(), &DesktopNotifications::notDelivered);
    QStringList chosen;
    notifier().send(withButton(&chosen));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !failed.isEmpty(); }, 10000));
    EXPECT_TRUE(failed.first().first().toString().contains("ServiceUnknown"))
        << failed.first().first().toString().toStdString();
    EXPECT_FALSE(notifier().busy());
    EXPECT_EQ(notifier().waitingForAction(), 0);
    // Nothing to wait for at the end.
    QElapsedTimer t;
    t.start();
    notifier().settle(5000);
    EXPECT_LT(t.elapsed(), 1000);
    // A service that starts later is used.
    startService();
    ASSERT_NE(sendAndWait(withButton(&chosen)), 0u);
    EXPECT_EQ(service->notices.size(), 1);
}

TEST_F(Notices, WithNoBusAtAllNothingHappens) {
    QTemporaryDir empty;
    notifier().useBus("unix:path=" + empty.path() + "/no-bus-here");
    QSignalSpy failed(&notifier(), &DesktopNotifications::notDelivered);
    notifier().send({"Adding to a.uha finished", "/home/u/a.uha", {}, {}});
    EXPECT_EQ(failed.size(), 1);
    EXPECT_FALSE(notifier().busy());
}

TEST_F(Notices, BeforeTheEndTheProgramWaitsForTheButtonAndWithdrawsANoticeLeftWaiting) {
    startService();
    QStringList chosen;
    // Sent and not yet delivered: the wait covers the way to the service too.
    notifier().send(withButton(&chosen));
    EXPECT_TRUE(notifier().busy());
    QElapsedTimer t;
    t.start();
    notifier().settle(300);
    EXPECT_GE(t.elapsed(), 280); // a coarse timer may fire up to 5 % early
    ASSERT_EQ(service->notices.size(), 1);
    // Nobody chose the button: the notice was withdrawn.
    EXPECT_EQ(service->withdrawn, QList<uint>({service->notices[0].id}));
    EXPECT_EQ(notifier().waitingForAction(), 0);
    EXPECT_TRUE(chosen.isEmpty());

    // A button chosen during the wait ends it at once and does its work.
    const uint id = sendAndWait(withButton(&chosen));
    ASSERT_NE(id, 0u);
    QTimer::singleShot(100, service.get(), [&] { service->chooseButton(id, "open-folder"); });
    t.restart();
    notifier().settle(10000);
    EXPECT_LT(t.elapsed(), 5000);
    EXPECT_EQ(chosen, QStringList({"open-folder"}));
    EXPECT_EQ(service->withdrawn.size(), 1);
}
