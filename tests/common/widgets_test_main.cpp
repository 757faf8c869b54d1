// Test main for widget tests: a QApplication on the offscreen platform unless the caller
// chose another one (e.g. xcb under Xvfb), and no session bus.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Jobs that end while no window is active send desktop notifications: never to the
    // desktop of the person running the tests (the tests of notifications run a bus of their
    // own). The programs the tests start inherit this.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/quovara-tests-use-no-session-bus");
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
