// Helpers of the SFX and About window tests: acting on a modal window once it is shown, without
// ever leaving a test blocked on it.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace quovara::testing {

// Calls `act` with the first visible top-level window of type T as soon as one is shown
// (checked from a timer, so a modal event loop keeps running meanwhile). A window that never
// shows leaves `*missed` set; any modal window still open after the time-out is rejected, so
// the test goes on and fails instead of hanging.
template <class T> class WhenShown {
public:
    WhenShown(std::function<void(T*)> act, int timeoutMs = 10000) : act_(std::move(act)) {
        timer_ = std::make_unique<QTimer>();
        timer_->setInterval(10);
        QObject::connect(timer_.get(), &QTimer::timeout, [this] { poll(); });
        timer_->start();
        deadline_ = std::make_unique<QTimer>();
        deadline_->setSingleShot(true);
        QObject::connect(deadline_.get(), &QTimer::timeout, [this] {
            timer_->stop();
            for (QWidget* w : QApplication::topLevelWidgets())
                if (auto* d = qobject_cast<QDialog*>(w); d && d->isVisible())
                    d->reject();
        });
        deadline_->start(timeoutMs);
    }
    bool acted() const { return acted_; }

private:
    void poll() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (auto* t = qobject_cast<T*>(w); t && t->isVisible()) {
                timer_->stop();
                deadline_->stop();
                acted_ = true;
                act_(t);
                return;
            }
        }
    }

    std::function<void(T*)> act_;
    std::unique_ptr<QTimer> timer_;
    std::unique_ptr<QTimer> deadline_;
    bool acted_ = false;
};

} // namespace quovara::testing
