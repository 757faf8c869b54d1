// A private D-Bus bus for one test and a fake desktop notification service on it. The bus is a
// dbus-daemon of its own, with a configuration of its own (no service of the system is ever
// started on it); the service registers as org.freedesktop.Notifications, records every call
// and can say, as a real one does, that a button was chosen or a notice closed.
#pragma once

#include <QList>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariantMap>

namespace quovara::testing {

class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    // The bus's address; empty when dbus-daemon could not be started (see problem()).
    QString address() const { return address_; }
    QString problem() const { return problem_; }

private:
    QTemporaryDir dir_;
    QProcess daemon_;
    QString address_;
    QString problem_;
};

// One Notify call as the service received it, and the id it answered.
struct ReceivedNotice {
    QString appName;
    uint replacesId = 0;
    QString appIcon;
    QString summary;
    QString body;
    QStringList actions;
    QVariantMap hints;
    int expireTimeout = 0;
    uint id = 0;
};

class FakeNotificationService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    // Connects to the bus at `address` and takes the service's name; `capabilities` is what
    // GetCapabilities answers.
    FakeNotificationService(const QString& address,
                            QStringList capabilities = {QStringLiteral("actions"),
                                                        QStringLiteral("body")});
    ~FakeNotificationService() override;

    // The name was taken and the object exported.
    bool registered() const { return registered_; }

    // As the user choosing a notice's button, or closing it.
    void chooseButton(uint id, const QString& key) { emit ActionInvoked(id, key); }
    void closeNotice(uint id, uint reason = 2) { emit NotificationClosed(id, reason); }

    QList<ReceivedNotice> notices;
    QList<uint> withdrawn; // CloseNotification calls
    int capabilityQuestions = 0;

public slots:
    uint Notify(const QString& app_name, uint replaces_id, const QString& app_icon,
                const QString& summary, const QString& body, const QStringList& actions,
                const QVariantMap& hints, int expire_timeout);
    QStringList GetCapabilities();
    void CloseNotification(uint id);
    QString GetServerInformation(QString& vendor, QString& version, QString& protocolVersion);

signals:
    void ActionInvoked(uint id, const QString& action_key);
    void NotificationClosed(uint id, uint reason);

private:
    QString connection_;
    QStringList capabilities_;
    bool registered_ = false;
    uint nextId_ = 41;
};

} // namespace quovara::testing
