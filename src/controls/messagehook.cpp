#include "controls/messagehook.h"

#include <QMessageBox>
#include <utility>

namespace quovara {

namespace {
ControlMessageHook& currentHook() {
    static ControlMessageHook hook;
    return hook;
}
} // namespace

ControlMessageHook SetControlMessageHook(ControlMessageHook hook) {
    return std::exchange(currentHook(), std::move(hook));
}

void ShowControlMessage(QWidget* parent, ControlMessageIcon icon, const QString& title,
                        const QString& text) {
    if (const auto& hook = currentHook()) {
        hook(parent, icon, title, text);
        return;
    }
    if (icon == ControlMessageIcon::Critical)
        QMessageBox::critical(parent, title, text);
    else
        QMessageBox::information(parent, title, text);
}

} // namespace quovara
