// The user at another program: a window that is none of the program's widgets takes the focus,
// as the desktop gives it to another program's window, so that no window of the program is the
// active one.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace quovara::testing {

class AnotherProgramsWindow {
public:
    // Asks for the focus; it comes with the events that follow.
    void requestFocus() {
        if (!window_.isVisible()) {
            window_.resize(200, 100);
            window_.show();
        }
        window_.requestActivate();
    }
    // True once it has the focus and no widget window of the program is active.
    bool takeFocus() {
        requestFocus();
        return QTest::qWaitForWindowActive(&window_) && QApplication::activeWindow() == nullptr;
    }

private:
    QWindow window_;
};

} // namespace quovara::testing
