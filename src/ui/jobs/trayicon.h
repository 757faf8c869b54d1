// modSystemTray: the notification-area icon of a progress window sent out of the way,
// and the hide and restore procedures beside it.
//
// The icon sits behind a small interface: the program uses a QSystemTrayIcon, headless tests
// (where no notification area exists) put a recording double in its place.
#pragma once

#include <QByteArray>
#include <QIcon>
#include <QString>

#include <functional>
#include <memory>

class QWidget;

namespace quovara {

// The pointer events over the icon that the platform reports.
enum class TrayClick { Left, Right, Double, Middle };

// One notification-area icon, owned by one progress window.
class TrayIcon {
public:
    virtual ~TrayIcon() = default;

    // False when the desktop has no notification area to put the icon in.
    virtual bool isAvailable() const = 0;
    // TrayAdd: shows the icon with the window's picture and the tip.
    virtual void add(const QIcon& icon, const QString& tip) = 0;
    // TrayModify: a new tip for the icon shown.
    virtual void modify(const QString& tip) = 0;
    // TrayDelete: removes the icon; nothing happens when none is shown.
    virtual void remove() = 0;
    virtual bool isShown() const = 0;

    // Called for every click over the icon.
    void setClickHandler(std::function<void(TrayClick)> handler) { onClick_ = std::move(handler); }

protected:
    void clicked(TrayClick click) {
        if (onClick_)
            onClick_(click);
    }

private:
    std::function<void(TrayClick)> onClick_;
};

// Makes the icon of a new progress window. The default makes a QSystemTrayIcon; tests put a
// factory of their double here (an empty function brings the default back).
using TrayIconFactory = std::function<std::unique_ptr<TrayIcon>()>;
void SetTrayIconFactory(TrayIconFactory factory);
std::unique_ptr<TrayIcon> MakeTrayIcon();

// The platform's tip field: 64 characters, the tip followed by one NUL and padded with blanks;
// a tip of 64 characters or more fills it with its first 64 characters and has no NUL.
inline constexpr int TrayTipFieldSize = 64;
QByteArray TrayTipField(const QString& tip);
// The text the platform shows for a tip: the field up to its NUL (its first 64 characters in
// any script).
QString TrayTipShown(const QString& tip);

// trayUsed: set once a progress window has been hidden to or restored from the notification
// area; cleared when the next progress window is loaded.
bool TrayUsed();
void SetTrayUsed(bool used);

// HideToTray: the icon with an empty tip, the main window and the progress window hidden.
void HideToTray(QWidget& progressWindow, QWidget& mainWindow, TrayIcon& icon);
// RestoreFromTray: the main window shown, the progress window shown in its normal state with
// the focus, the icon removed.
void RestoreFromTray(QWidget& progressWindow, QWidget& mainWindow, TrayIcon& icon);

} // namespace quovara
