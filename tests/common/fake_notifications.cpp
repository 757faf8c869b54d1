#include "fake_notifications.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QFile>
#include <QStandardPaths>

namespace quovara::testing {

namespace {

// A session bus that listens in `folder`, lets every client own names and talk to every
// other, and starts nothing by itself.
QByteArray BusConfiguration(const QString& folder) {
    return "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
           " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
           "<busconfig>\n"
           "  <type>session</type>\n"
           "  <listen>unix:dir=" +
           folder.toLocal8Bit() +
           "</listen>\n"
           "  <auth>EXTERNAL</auth>\n"
           "  <policy context=\"default\">\n"
           "    <allow send_destination=\"*\" eavesdrop=\"true\"/>\n"
           "    <allow eavesdrop=\"true\"/>\n"
           "    <allow own=\"*\"/>\n"
           "  </policy>\n"
           "</busconfig>\n";
}

} // namespace

PrivateBus::PrivateBus() {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    if (program.isEmpty()) {
        problem_ = QStringLiteral("dbus-daemon is not installed (Debian package dbus-daemon; "
                                  "scripts/deps.sh installs it)");
        return;
    }
    const QString config = dir_.filePath(QStringLiteral("bus.conf"));
    QFile file(config);
    if (!file.open(QIODevice::WriteOnly) || file.write(BusConfiguration(dir_.path())) < 0) {
        problem_ = QStringLiteral("cannot write ") + config;
        return;
    }
    file.close();
    daemon_.setProgram(program);
    daemon_.setArguments({QStringLiteral("--config-file=") + config, QStringLiteral("--nofork"),
                          QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")});
    daemon_.start();
    // The daemon prints its address once it listens.
    while (daemon_.waitForReadyRead(10000)) {
        if (daemon_.canReadLine()) {
            address_ = QString::fromLocal8Bit(daemon_.readLine()).trimmed();
            return;
        }
    }
    problem_ = QStringLiteral("dbus-daemon did not say its address: ") +
               QString::fromLocal8Bit(daemon_.readAllStandardError());
}

PrivateBus::~PrivateBus() {
    if (daemon_.state() != QProcess::NotRunning) {
        daemon_.terminate();
        if (!daemon_.waitForFinished(5000))
            daemon_.kill();
        daemon_.waitForFinished(5000);
    }
}

FakeNotificationService::FakeNotificationService(const QString& address, QStringList capabilities)
    : capabilities_(std::move(capabilities)) {
    static int count = 0;
    connection_ = QStringLiteral("fake-notification-service-%1").arg(++count);
    QDBusConnection bus = QDBusConnection::connectToBus(address, connection_);
    registered_ =
        bus.isConnected() &&
        bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                           QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) &&
        bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
}

FakeNotificationService::~FakeNotificationService() {
    QDBusConnection bus(connection_);
    if (bus.isConnected()) {
        bus.unregisterService(QStringLiteral("org.freedesktop.Notifications"));
        bus.unregisterObject(QStringLiteral("/org/freedesktop/Notifications"));
    }
    QDBusConnection::disconnectFromBus(connection_);
}

uint FakeNotificationService::Notify(const QString& app_name, uint replaces_id,
                                     const QString& app_icon, const QString& summary,
                                     const QString& body, const QStringList& actions,
                                     const QVariantMap& hints, int expire_timeout) {
    ReceivedNotice notice{app_name, replaces_id, app_icon,       summary,  body,
                          actions,  hints,       expire_timeout, ++nextId_};
    notices << notice;
    return notice.id;
}

QStringList FakeNotificationService::GetCapabilities() {
    ++capabilityQuestions;
    return capabilities_;
}

void FakeNotificationService::CloseNotification(uint id) {
    withdrawn << id;
    emit NotificationClosed(id, 3);
}

QString FakeNotificationService::GetServerInformation(QString& vendor, QString& version,
                                                      QString& protocolVersion) {
    vendor = QStringLiteral("Quovara tests");
    version = QStringLiteral("1");
    protocolVersion = QStringLiteral("1.2");
    return QStringLiteral("fake notification service");
}

} // namespace quovara::testing
