#include "controls/xp_progressbar_accessible.h"

#include "controls/xp_progressbar.h"

namespace quovara {

ProgressBarAccessible::ProgressBarAccessible(XP_ProgressBar* bar)
    : QAccessibleWidget(bar, QAccessible::ProgressBar) {}

XP_ProgressBar* ProgressBarAccessible::bar() const {
    return static_cast<XP_ProgressBar*>(widget());
}

QString ProgressBarAccessible::text(QAccessible::Text t) const {
    if (t == QAccessible::Value)
        return bar()->DisplayText();
    if (t == QAccessible::Name && widget()->accessibleName().isEmpty())
        return bar()->objectName();
    return QAccessibleWidget::text(t);
}

void* ProgressBarAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QVariant ProgressBarAccessible::currentValue() const {
    return bar()->Value();
}
QVariant ProgressBarAccessible::maximumValue() const {
    return bar()->Max();
}
QVariant ProgressBarAccessible::minimumValue() const {
    return bar()->Min();
}

} // namespace quovara
