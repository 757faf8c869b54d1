#include "controls/taskpanebar_accessible.h"

#include <QWindow>

namespace quovara {

namespace {
quint64 keyOf(const TaskPaneBar::Element& e) {
    return (quint64(e.kind) << 48) | (quint64(quint32(e.group + 16)) << 16) |
           quint64(quint16(e.item));
}
} // namespace

TaskPaneAccessible::TaskPaneAccessible(TaskPaneBar* pane)
    : QAccessibleWidget(pane, QAccessible::Pane) {}

int TaskPaneAccessible::childCount() const {
    return int(pane()->Elements().size()) + QAccessibleWidget::childCount();
}

QAccessibleInterface* TaskPaneAccessible::elementInterface(const TaskPaneBar::Element& e) const {
    return m_children.get(keyOf(e), [&] { return new TaskPaneElementAccessible(pane(), e); });
}

QAccessibleInterface* TaskPaneAccessible::child(int index) const {
    const auto elements = pane()->Elements();
    if (index < 0)
        return nullptr;
    if (index < elements.size())
        return elementInterface(elements.at(index));
    return QAccessibleWidget::child(index - int(elements.size()));
}

int TaskPaneAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto elements = pane()->Elements();
    if (auto* e = dynamic_cast<const TaskPaneElementAccessible*>(child))
        return int(elements.indexOf(e->element()));
    const int i = QAccessibleWidget::indexOfChild(child);
    return i < 0 ? -1 : i + int(elements.size());
}

QAccessibleInterface* TaskPaneAccessible::childAt(int x, int y) const {
    const QPoint local = pane()->mapFromGlobal(QPoint(x, y));
    for (const auto& e : pane()->Elements())
        if (pane()->ElementRect(e).contains(local))
            return elementInterface(e);
    return QAccessibleWidget::childAt(x, y);
}

QAccessibleInterface* TaskPaneAccessible::focusChild() const {
    if (!pane()->hasFocus())
        return nullptr;
    if (pane()->HotItemIndex() != 0)
        return elementInterface(
            {TaskPaneBar::Element::Item, pane()->HotItemGroup(), pane()->HotItemIndex()});
    if (pane()->HotHeader() != 0)
        return elementInterface({TaskPaneBar::Element::Header, pane()->HotHeader(), 0});
    return nullptr;
}

bool TaskPaneElementAccessible::isValid() const {
    return m_pane && m_pane->Elements().contains(m_element);
}

QWindow* TaskPaneElementAccessible::window() const {
    return m_pane ? m_pane->window()->windowHandle() : nullptr;
}

QAccessibleInterface* TaskPaneElementAccessible::parent() const {
    return m_pane ? QAccessible::queryAccessibleInterface(m_pane.data()) : nullptr;
}

QString TaskPaneElementAccessible::text(QAccessible::Text t) const {
    if (!isValid())
        return QString();
    if (t == QAccessible::Name)
        return m_pane->ElementText(m_element);
    if (t == QAccessible::Description && m_element.kind == TaskPaneBar::Element::DetailsText)
        return m_pane->DetailsText();
    return QString();
}

QRect TaskPaneElementAccessible::rect() const {
    if (!isValid())
        return QRect();
    const QRect r = m_pane->ElementRect(m_element);
    return QRect(m_pane->mapToGlobal(r.topLeft()), r.size());
}

QAccessible::Role TaskPaneElementAccessible::role() const {
    switch (m_element.kind) {
    case TaskPaneBar::Element::Header:
        return QAccessible::PushButton;
    case TaskPaneBar::Element::Item:
        return QAccessible::Link;
    case TaskPaneBar::Element::DetailsText:
        return QAccessible::StaticText;
    }
    return QAccessible::NoRole;
}

QAccessible::State TaskPaneElementAccessible::state() const {
    QAccessible::State s;
    if (!isValid()) {
        s.invalid = true;
        return s;
    }
    const QRect r = m_pane->ElementRect(m_element);
    s.invisible = !m_pane->isVisible();
    s.offscreen = r.isEmpty() || !m_pane->rect().intersects(r);
    switch (m_element.kind) {
    case TaskPaneBar::Element::Header: {
        const bool expanded = m_pane->GroupExpanded(m_element.group);
        s.expandable = true;
        s.expanded = expanded;
        s.collapsed = !expanded;
        s.focusable = true;
        s.hotTracked = m_pane->HotHeader() == m_element.group;
        s.focused = s.hotTracked && m_pane->HotItemIndex() == 0 && m_pane->hasFocus();
        break;
    }
    case TaskPaneBar::Element::Item:
        s.focusable = true;
        s.linked = true;
        s.hotTracked =
            m_pane->HotItemGroup() == m_element.group && m_pane->HotItemIndex() == m_element.item;
        s.focused = s.hotTracked && m_pane->hasFocus();
        break;
    case TaskPaneBar::Element::DetailsText:
        s.readOnly = true;
        break;
    }
    return s;
}

QStringList TaskPaneElementAccessible::actionNames() const {
    switch (m_element.kind) {
    case TaskPaneBar::Element::Header:
        return {pressAction(), toggleAction()};
    case TaskPaneBar::Element::Item:
        return {pressAction()};
    case TaskPaneBar::Element::DetailsText:
        break;
    }
    return {};
}

void TaskPaneElementAccessible::doAction(const QString& actionName) {
    if (!isValid() || m_element.kind == TaskPaneBar::Element::DetailsText)
        return;
    if (actionName == pressAction() || actionName == toggleAction())
        m_pane->ActivateElement(m_element);
}

} // namespace quovara
