// Message boxes raised by the controls go through one replaceable hook, so that a test (or
// a host) can see the text without a modal dialog blocking it.
#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace quovara {

enum class ControlMessageIcon { Critical, Information };

using ControlMessageHook = std::function<void(QWidget* parent, ControlMessageIcon icon,
                                              const QString& title, const QString& text)>;

// Replaces the hook; an empty function restores the default (a modal QMessageBox).
// Returns the previous hook.
ControlMessageHook SetControlMessageHook(ControlMessageHook hook);

// Shows a message through the current hook.
void ShowControlMessage(QWidget* parent, ControlMessageIcon icon, const QString& title,
                        const QString& text);

} // namespace quovara
