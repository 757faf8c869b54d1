// Helpers shared by the controls tests: log and message-box capture, colour checks, mouse.
#pragma once

#include "controls/messagehook.h"

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace quovara::test {

// Collects the debug lines of one logging category while alive.
class LogCapture {
public:
    explicit LogCapture(const char* category);
    ~LogCapture();
    QStringList lines() const;
    bool contains(const QString& line) const { return lines().contains(line); }
    void clear();
};

// Replaces the controls' message-box hook while alive and records what would be shown.
class MessageBoxCapture {
public:
    struct Shown {
        ControlMessageIcon icon;
        QString title;
        QString text;
    };
    MessageBoxCapture();
    ~MessageBoxCapture();
    QList<Shown> shown;

private:
    ControlMessageHook m_previous;
};

// Moves the cursor (and so the mouse) to `pos` in `w`.
void MoveMouse(QWidget* w, QPoint pos);
// Moves the cursor well outside every window.
void MoveMouseAway();
// Shows a top-level widget and waits until it is exposed.
void ShowAndWait(QWidget* w);

bool Near(const QColor& a, const QColor& b, int tolerance = 8);
QImage Grab(QWidget* w);
// Share (0..1) of the pixels of row `y` between x0 and x1 (exclusive) that are near `c`.
double RowShare(const QImage& img, int y, int x0, int x1, const QColor& c, int tolerance = 8);

} // namespace quovara::test
