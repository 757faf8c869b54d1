#include "trayicon.h"

#include <QLoggingCategory>
#include <QSystemTrayIcon>
#include <QWidget>

Q_LOGGING_CATEGORY(lcTray, "quovara.tray", QtWarningMsg)

namespace quovara {

namespace {

// The icon in the desktop's notification area. A left click ("trigger") restores; a double
// click, the context button and the middle button are passed on as such and do nothing.
class SystemTrayIcon : public TrayIcon {
public:
    SystemTrayIcon() {
        QObject::connect(&icon_, &QSystemTrayIcon::activated, &icon_,
                         [this](QSystemTrayIcon::ActivationReason reason) {
                             qCDebug(lcTray) << "icon activated" << reason;
                             switch (reason) {
                             case QSystemTrayIcon::Trigger:
                                 clicked(TrayClick::Left);
                                 break;
                             case QSystemTrayIcon::DoubleClick:
                                 clicked(TrayClick::Double);
                                 break;
                             case QSystemTrayIcon::Context:
                                 clicked(TrayClick::Right);
                                 break;
                             case QSystemTrayIcon::MiddleClick:
                                 clicked(TrayClick::Middle);
                                 break;
                             default:
                                 break;
                             }
                         });
    }

    bool isAvailable() const override { return QSystemTrayIcon::isSystemTrayAvailable(); }

    void add(const QIcon& icon, const QString& tip) override {
        icon_.setIcon(icon);
        icon_.setToolTip(TrayTipShown(tip));
        icon_.show();
        qCDebug(lcTray) << "icon added, visible:" << icon_.isVisible();
    }

    void modify(const QString& tip) override { icon_.setToolTip(TrayTipShown(tip)); }

    void remove() override { icon_.hide(); }

    bool isShown() const override { return icon_.isVisible(); }

private:
    QSystemTrayIcon icon_;
};

TrayIconFactory& factory() {
    static TrayIconFactory f;
    return f;
}

bool trayUsed = false;

} // namespace

void SetTrayIconFactory(TrayIconFactory f) {
    factory() = std::move(f);
}

std::unique_ptr<TrayIcon> MakeTrayIcon() {
    if (factory())
        return factory()();
    return std::make_unique<SystemTrayIcon>();
}

QByteArray TrayTipField(const QString& tip) {
    QByteArray field = tip.toLatin1().left(TrayTipFieldSize);
    if (field.size() < TrayTipFieldSize)
        field.append('\0');
    while (field.size() < TrayTipFieldSize)
        field.append(' ');
    return field;
}

QString TrayTipShown(const QString& tip) {
    // The field's characters, taken from the text itself rather than from its Latin-1 bytes:
    // a tip in the user's language keeps its letters, whatever the script.
    QString shown = tip.left(TrayTipFieldSize);
    if (shown.size() == TrayTipFieldSize && shown.back().isHighSurrogate())
        shown.chop(1);
    const qsizetype nul = shown.indexOf(QChar(u'\0'));
    return nul < 0 ? shown : shown.left(nul);
}

bool TrayUsed() {
    return trayUsed;
}

void SetTrayUsed(bool used) {
    trayUsed = used;
}

void HideToTray(QWidget& progressWindow, QWidget& mainWindow, TrayIcon& icon) {
    icon.add(progressWindow.windowIcon(), QString());
    mainWindow.setVisible(false);
    progressWindow.setVisible(false);
    SetTrayUsed(true);
}

void RestoreFromTray(QWidget& progressWindow, QWidget& mainWindow, TrayIcon& icon) {
    SetTrayUsed(true);
    mainWindow.setVisible(true);
    progressWindow.setWindowState(progressWindow.windowState() & ~Qt::WindowMinimized);
    progressWindow.setVisible(true);
    progressWindow.raise();
    progressWindow.activateWindow();
    progressWindow.setFocus();
    icon.remove();
}

} // namespace quovara
