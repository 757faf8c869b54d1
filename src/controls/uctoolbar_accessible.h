// Accessible view of ucToolbar: a tool bar whose children are its buttons.
#pragma once

#include "controls/accessiblefactory.h"

#include <QAccessibleWidget>
#include <QPointer>

namespace quovara {

class ucToolbar;

class ToolbarAccessible : public QAccessibleWidget {
public:
    explicit ToolbarAccessible(ucToolbar* toolbar);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    ucToolbar* toolbar() const;
    mutable AccessibleChildCache m_children;
};

// One toolbar button (or separator).
class ToolbarButtonAccessible : public AccessibleLeaf {
public:
    ToolbarButtonAccessible(ucToolbar* toolbar, int id) : m_toolbar(toolbar), m_id(id) {}

    int buttonId() const { return m_id; }

    bool isValid() const override;
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text t) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

private:
    QPointer<ucToolbar> m_toolbar;
    int m_id;
};

} // namespace quovara
