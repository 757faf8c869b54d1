// Whether a window can open: checked before the application object is made, so that a start
// without a display ends with one clear line instead of the platform plugin's failure.
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace quovara {

inline constexpr char NoDisplayMessage[] = QT_TRANSLATE_NOOP(
    "Display", "Quovara needs a graphical display; DISPLAY or WAYLAND_DISPLAY is not set");

// The platform the windows would use: the value of the last "-platform NAME" among `arguments`
// (what Qt reads), else QT_QPA_PLATFORM; empty for Qt's default.
QString RequestedPlatform(const QStringList& arguments, const QProcessEnvironment& env);

// Empty when a window can open; otherwise NoDisplayMessage. Qt's default platform and the X11
// and Wayland ones need DISPLAY or WAYLAND_DISPLAY; a platform that draws elsewhere
// ("offscreen", "vnc", "eglfs", ...) needs neither. QT_QPA_PLATFORM may name several
// platforms to try ("wayland;xcb"): one that needs no display is enough.
QString MissingDisplayMessage(const QStringList& arguments, const QProcessEnvironment& env);

} // namespace quovara
