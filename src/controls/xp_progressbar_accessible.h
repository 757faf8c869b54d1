// Accessible view of XP_ProgressBar: a progress bar with a value.
#pragma once

#include <QAccessibleWidget>

namespace quovara {

class XP_ProgressBar;

class ProgressBarAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit ProgressBarAccessible(XP_ProgressBar* bar);

    QString text(QAccessible::Text t) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1; }

private:
    XP_ProgressBar* bar() const;
};

} // namespace quovara
