// Accessible view of TaskPaneBar: headers are expandable buttons, items are links, the
// details text is static text; hosted child widgets and the scroll bar follow.
#pragma once

#include "controls/accessiblefactory.h"
#include "controls/taskpanebar.h"

#include <QAccessibleWidget>
#include <QPointer>

namespace quovara {

class TaskPaneAccessible : public QAccessibleWidget {
public:
    explicit TaskPaneAccessible(TaskPaneBar* pane);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    TaskPaneBar* pane() const { return static_cast<TaskPaneBar*>(widget()); }
    QAccessibleInterface* elementInterface(const TaskPaneBar::Element& e) const;
    mutable AccessibleChildCache m_children;
};

class TaskPaneElementAccessible : public AccessibleLeaf {
public:
    TaskPaneElementAccessible(TaskPaneBar* pane, const TaskPaneBar::Element& e)
        : m_pane(pane), m_element(e) {}

    const TaskPaneBar::Element& element() const { return m_element; }

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
    QPointer<TaskPaneBar> m_pane;
    TaskPaneBar::Element m_element;
};

} // namespace quovara
