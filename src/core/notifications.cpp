#include "notifications.h"

#include "logging.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEventLoop>
#include <QTimer>
#include <QVariantMap>

namespace quovara {

namespace {

// How long the service may take to answer; a service that hangs delays nothing but the notice.
constexpr int kAnswerMs = 10000;
// How long the program, about to end, waits for a notice to be withdrawn.
constexpr int kWithdrawMs = 2000;
// At most this many notices keep their buttons: a service that never says that a notice has
// gone cannot make the list grow for ever.
constexpr std::size_t kMostWaiting = 32;

// The characters that markup reads.
QString escapedForMarkup(const QString& text) {
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar c : text) {
        if (c == QLatin1Char('&'))
            escaped += QStringLiteral("&amp;");
        else if (c == QLatin1Char('<'))
            escaped += QStringLiteral("&lt;");
        else if (c == QLatin1Char('>'))
            escaped += QStringLiteral("&gt;");
        else
            escaped += c;
    }
    return escaped;
}

QDBusMessage serviceCall(const char* method) {
    return QDBusMessage::createMethodCall(
        QLatin1String(DesktopNotifications::Service), QLatin1String(DesktopNotifications::Path),
        QLatin1String(DesktopNotifications::Interface), QLatin1String(method));
}

} // namespace

DesktopNotifications& DesktopNotifications::instance() {
    static DesktopNotifications notifier;
    return notifier;
}

QDBusConnection DesktopNotifications::bus() const {
    return connectionName_.isEmpty() ? QDBusConnection::sessionBus()
                                     : QDBusConnection(connectionName_);
}

void DesktopNotifications::useBus(const QString& address) {
    if (signalsConnected_) {
        QDBusConnection old = bus();
        old.disconnect(QLatin1String(Service), QLatin1String(Path), QLatin1String(Interface),
                       QStringLiteral("ActionInvoked"), this, SLOT(actionInvoked(uint, QString)));
        old.disconnect(QLatin1String(Service), QLatin1String(Path), QLatin1String(Interface),
                       QStringLiteral("NotificationClosed"), this,
                       SLOT(notificationClosed(uint, uint)));
    }
    if (!connectionName_.isEmpty())
        QDBusConnection::disconnectFromBus(connectionName_);
    ++generation_;
    connectionName_.clear();
    signalsConnected_ = false;
    asking_ = false;
    calls_ = 0;
    markup_.reset();
    queued_.clear();
    waiting_.clear();
    if (address.isEmpty())
        return;
    connectionName_ = QStringLiteral("quovara-notifications-%1").arg(generation_);
    if (!QDBusConnection::connectToBus(address, connectionName_).isConnected())
        qCDebug(lcDesktop) << "notifications: cannot connect to the bus" << address;
}

bool DesktopNotifications::connectBus() {
    QDBusConnection connection = bus();
    if (!connection.isConnected()) {
        qCDebug(lcDesktop) << "notifications: no bus:" << connection.lastError().message();
        return false;
    }
    if (!signalsConnected_) {
        const bool invoked = connection.connect(
            QLatin1String(Service), QLatin1String(Path), QLatin1String(Interface),
            QStringLiteral("ActionInvoked"), this, SLOT(actionInvoked(uint, QString)));
        const bool closed = connection.connect(
            QLatin1String(Service), QLatin1String(Path), QLatin1String(Interface),
            QStringLiteral("NotificationClosed"), this, SLOT(notificationClosed(uint, uint)));
        if (!invoked || !closed)
            qCDebug(lcDesktop) << "notifications: the service's signals are not heard:"
                               << connection.lastError().message();
        signalsConnected_ = true;
    }
    return true;
}

void DesktopNotifications::send(const DesktopNotice& notice) {
    if (!connectBus()) {
        emit notDelivered(QStringLiteral("no bus"));
        return;
    }
    if (markup_) {
        notify(notice);
        return;
    }
    // The first notice asks the service what it reads; the notices meanwhile wait for it.
    queued_.push_back(notice);
    askCapabilities();
}

void DesktopNotifications::askCapabilities() {
    if (asking_)
        return;
    asking_ = true;
    ++calls_;
    auto* call = new QDBusPendingCallWatcher(
        bus().asyncCall(serviceCall("GetCapabilities"), kAnswerMs), this);
    connect(call, &QDBusPendingCallWatcher::finished, this,
            [this, generation = generation_](QDBusPendingCallWatcher* answered) {
                answered->deleteLater();
                if (generation != generation_)
                    return;
                capabilitiesAnswered(answered);
                callAnswered();
            });
}

void DesktopNotifications::capabilitiesAnswered(QDBusPendingCallWatcher* call) {
    asking_ = false;
    const QDBusPendingReply<QStringList> reply = *call;
    std::vector<DesktopNotice> queued;
    queued.swap(queued_);
    if (reply.isError()) {
        // No notification service runs: nothing is shown, and the next notice asks again.
        const QString why = reply.error().name() + QStringLiteral(": ") + reply.error().message();
        qCDebug(lcDesktop) << "notifications: no service," << queued.size()
                           << "notice(s) not shown:" << why;
        for (std::size_t i = 0; i < queued.size(); ++i)
            emit notDelivered(why);
        return;
    }
    markup_ = reply.value().contains(QLatin1String("body-markup"));
    for (const DesktopNotice& notice : queued)
        notify(notice);
}

void DesktopNotifications::notify(const DesktopNotice& notice) {
    QDBusMessage call = serviceCall("Notify");
    QVariantMap hints;
    hints.insert(QStringLiteral("desktop-entry"), QStringLiteral("quovara"));
    call << QStringLiteral("Quovara") << uint(0) << QStringLiteral("quovara") << notice.summary
         << (*markup_ ? escapedForMarkup(notice.body) : notice.body) << notice.actions << hints
         << int(-1);
    ++calls_;
    auto* pending = new QDBusPendingCallWatcher(bus().asyncCall(call, kAnswerMs), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this, generation = generation_, hasButtons = !notice.actions.isEmpty(),
             onAction = notice.onAction](QDBusPendingCallWatcher* answered) {
                answered->deleteLater();
                if (generation != generation_)
                    return;
                const QDBusPendingReply<uint> reply = *answered;
                if (reply.isError()) {
                    const QString why =
                        reply.error().name() + QStringLiteral(": ") + reply.error().message();
                    qCDebug(lcDesktop) << "notifications: not shown:" << why;
                    emit notDelivered(why);
                    callAnswered();
                    return;
                }
                const uint id = reply.value();
                if (hasButtons && onAction) {
                    // A service may give an id again once its notice has gone.
                    std::erase_if(waiting_, [id](const Waiting& w) { return w.id == id; });
                    waiting_.push_back({id, onAction});
                    if (waiting_.size() > kMostWaiting)
                        waiting_.erase(waiting_.begin());
                }
                emit delivered(id);
                callAnswered();
            });
}

void DesktopNotifications::callAnswered() {
    --calls_;
    emitIfSettled();
}

void DesktopNotifications::emitIfSettled() {
    if (!busy())
        emit settled();
}

void DesktopNotifications::actionInvoked(uint id, const QString& key) {
    for (auto it = waiting_.begin(); it != waiting_.end(); ++it) {
        if (it->id != id)
            continue;
        const std::function<void(const QString&)> onAction = std::move(it->onAction);
        waiting_.erase(it);
        qCDebug(lcDesktop) << "notifications: button" << key << "of notice" << id;
        onAction(key);
        emitIfSettled();
        return;
    }
    // Another program's notice, or one of ours whose button was used already.
}

void DesktopNotifications::notificationClosed(uint id, uint reason) {
    Q_UNUSED(reason);
    forget(id);
}

void DesktopNotifications::forget(uint id) {
    if (std::erase_if(waiting_, [id](const Waiting& w) { return w.id == id; }) != 0)
        emitIfSettled();
}

void DesktopNotifications::settle(int ms) {
    if (!busy())
        return;
    qCDebug(lcDesktop) << "notifications: waiting up to" << ms << "ms for" << calls_
                       << "call(s) and" << waiting_.size() << "notice(s) with buttons";
    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    connect(this, &DesktopNotifications::settled, &loop, &QEventLoop::quit);
    limit.start(ms);
    loop.exec();
    // What still waits would keep a button that nobody answers once the program has gone.
    if (waiting_.empty())
        return;
    QEventLoop withdrawing;
    int unanswered = int(waiting_.size());
    for (const Waiting& w : waiting_) {
        QDBusMessage close = serviceCall("CloseNotification");
        close << w.id;
        auto* call = new QDBusPendingCallWatcher(bus().asyncCall(close, kWithdrawMs), this);
        connect(call, &QDBusPendingCallWatcher::finished, call, &QObject::deleteLater);
        connect(call, &QDBusPendingCallWatcher::finished, &withdrawing,
                [&withdrawing, &unanswered, id = w.id](QDBusPendingCallWatcher* answered) {
                    if (answered->isError())
                        qCDebug(lcDesktop) << "notifications: notice" << id
                                           << "not withdrawn:" << answered->error().message();
                    if (--unanswered == 0)
                        withdrawing.quit();
                });
    }
    QTimer::singleShot(kWithdrawMs, &withdrawing, &QEventLoop::quit);
    withdrawing.exec();
    waiting_.clear();
}

} // namespace quovara
