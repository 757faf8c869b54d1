// Desktop notifications through the freedesktop Notifications service on the session bus
// (org.freedesktop.Notifications at /org/freedesktop/Notifications). A notice is handed over
// without waiting for the service; when no service runs, or there is no session bus, nothing
// happens but a debug line. A notice may carry buttons; the one the user chooses is reported
// to the notice's own handler.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class QDBusConnection;
class QDBusPendingCallWatcher;

namespace quovara {

struct DesktopNotice {
    QString summary;
    // Plain text: escaped for a service that reads markup in the body.
    QString body;
    // Buttons as pairs of key and label, such as {"open-folder", "Open folder"}.
    QStringList actions;
    // Called with the key of the button the user chose (once at most).
    std::function<void(const QString& key)> onAction;
};

class DesktopNotifications : public QObject {
    Q_OBJECT
public:
    // The service's names.
    static constexpr char Service[] = "org.freedesktop.Notifications";
    static constexpr char Path[] = "/org/freedesktop/Notifications";
    static constexpr char Interface[] = "org.freedesktop.Notifications";

    // The program's one notifier, on the session bus.
    static DesktopNotifications& instance();

    // The bus at `address` (a D-Bus address such as "unix:path=/tmp/bus") in place of the
    // session bus; an empty address brings the session bus back. Forgets the notices sent on
    // the bus used before.
    void useBus(const QString& address);

    // Hands `notice` to the service.
    void send(const DesktopNotice& notice);

    // How many notices the service has shown whose buttons still wait for the user.
    int waitingForAction() const { return int(waiting_.size()); }
    // A notice is on its way to the service, or one waits for a button.
    bool busy() const { return calls_ > 0 || !waiting_.empty(); }

    // Before the program ends: waits (in an event loop) until every notice has reached the
    // service and none waits for a button, at most `ms` milliseconds, so that a button chosen
    // meanwhile still does its work; a notice still waiting then is withdrawn, so that no
    // button is left that does nothing.
    void settle(int ms);

signals:
    // The service has taken a notice and given it this id.
    void delivered(uint id);
    // The notice could not be shown (no service, no bus); `why` is the bus's error.
    void notDelivered(const QString& why);
    // No notice is on its way and none waits for a button any more.
    void settled();

private slots:
    void actionInvoked(uint id, const QString& key);
    void notificationClosed(uint id, uint reason);

private:
    DesktopNotifications() = default;
    struct Waiting {
        uint id;
        std::function<void(const QString&)> onAction;
    };
    QDBusConnection bus() const;
    bool connectBus();
    void askCapabilities();
    void capabilitiesAnswered(QDBusPendingCallWatcher* call);
    void notify(const DesktopNotice& notice);
    void forget(uint id);
    void callAnswered();
    void emitIfSettled();

    QString connectionName_;
    // Counts the buses used, so that an answer from the one used before is ignored.
    int generation_ = 0;
    bool signalsConnected_ = false;
    bool asking_ = false;
    // Calls to the service not yet answered.
    int calls_ = 0;
    // Whether the service reads markup in the body; unknown until it has answered once.
    std::optional<bool> markup_;
    std::vector<DesktopNotice> queued_;
    std::vector<Waiting> waiting_;
};

} // namespace quovara
