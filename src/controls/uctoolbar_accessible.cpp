#include "controls/uctoolbar_accessible.h"

#include "controls/uctoolbar.h"

#include <QWidget>
#include <QWindow>

namespace quovara {

ToolbarAccessible::ToolbarAccessible(ucToolbar* toolbar)
    : QAccessibleWidget(toolbar, QAccessible::ToolBar) {}

ucToolbar* ToolbarAccessible::toolbar() const {
    return static_cast<ucToolbar*>(widget());
}

namespace {
// The overflow arrow while it is shown: a real button, the toolbar's last child.
QWidget* visibleOverflow(const ucToolbar* toolbar) {
    QWidget* w =
        toolbar->findChild<QWidget*>(QStringLiteral("Overflow"), Qt::FindDirectChildrenOnly);
    return w && w->isVisible() ? w : nullptr;
}
} // namespace

int ToolbarAccessible::childCount() const {
    return toolbar()->ButtonCount() + (visibleOverflow(toolbar()) ? 1 : 0);
}

QAccessibleInterface* ToolbarAccessible::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    if (index == toolbar()->ButtonCount())
        return QAccessible::queryAccessibleInterface(visibleOverflow(toolbar()));
    const int id = index + 1;
    return m_children.get(quint64(id), [&] { return new ToolbarButtonAccessible(toolbar(), id); });
}

int ToolbarAccessible::indexOfChild(const QAccessibleInterface* child) const {
    for (int i = 0; i < childCount(); ++i)
        if (this->child(i) == child)
            return i;
    return -1;
}

QAccessibleInterface* ToolbarAccessible::childAt(int x, int y) const {
    const QPoint local = toolbar()->mapFromGlobal(QPoint(x, y));
    for (int id = 1; id <= toolbar()->ButtonCount(); ++id)
        if (toolbar()->ButtonRect(id).contains(local))
            return child(id - 1);
    return nullptr;
}

QAccessibleInterface* ToolbarAccessible::focusChild() const {
    if (toolbar()->hasFocus() && toolbar()->HotButton() > 0)
        return child(toolbar()->HotButton() - 1);
    return nullptr;
}

bool ToolbarButtonAccessible::isValid() const {
    return m_toolbar && m_id >= 1 && m_id <= m_toolbar->ButtonCount();
}

QWindow* ToolbarButtonAccessible::window() const {
    return m_toolbar ? m_toolbar->window()->windowHandle() : nullptr;
}

QAccessibleInterface* ToolbarButtonAccessible::parent() const {
    return m_toolbar ? QAccessible::queryAccessibleInterface(m_toolbar.data()) : nullptr;
}

QString ToolbarButtonAccessible::text(QAccessible::Text t) const {
    if (!isValid())
        return QString();
    const QString caption = m_toolbar->ButtonCaption(m_id);
    const QString tip = m_toolbar->ButtonTipText(m_id);
    switch (t) {
    case QAccessible::Name:
        return caption.isEmpty() ? tip : caption;
    case QAccessible::Description:
        return tip;
    default:
        return QString();
    }
}

QRect ToolbarButtonAccessible::rect() const {
    if (!isValid())
        return QRect();
    const QRect r = m_toolbar->ButtonRect(m_id);
    return QRect(m_toolbar->mapToGlobal(r.topLeft()), r.size());
}

QAccessible::Role ToolbarButtonAccessible::role() const {
    if (!isValid())
        return QAccessible::NoRole;
    const int style = m_toolbar->ButtonStyleOf(m_id);
    if (style == ucToolbar::tbrSeparator)
        return QAccessible::Separator;
    if (style & ucToolbar::tbrDropDown)
        return QAccessible::ButtonDropDown;
    return QAccessible::PushButton;
}

QAccessible::State ToolbarButtonAccessible::state() const {
    QAccessible::State s;
    if (!isValid()) {
        s.invalid = true;
        return s;
    }
    const int style = m_toolbar->ButtonStyleOf(m_id);
    s.disabled = !m_toolbar->ButtonEnabled(m_id);
    s.invisible = !m_toolbar->ButtonVisible(m_id) || !m_toolbar->isVisible();
    // Behind the overflow arrow: still there, reached through the arrow's menu.
    s.offscreen = m_toolbar->OverflowButtons().contains(m_id);
    s.checkable = (style & ucToolbar::tbrCheck) != 0;
    s.checked = m_toolbar->ButtonChecked(m_id);
    s.pressed = m_toolbar->ButtonPressed(m_id);
    s.hotTracked = m_toolbar->HotButton() == m_id;
    s.hasPopup = (style & ucToolbar::tbrDropDown) != 0;
    if (style != ucToolbar::tbrSeparator) {
        s.focusable = true;
        s.focused = m_toolbar->hasFocus() && m_toolbar->HotButton() == m_id;
    }
    return s;
}

QStringList ToolbarButtonAccessible::actionNames() const {
    if (!isValid() || m_toolbar->ButtonStyleOf(m_id) == ucToolbar::tbrSeparator)
        return {};
    QStringList names{pressAction()};
    if (m_toolbar->ButtonStyleOf(m_id) & ucToolbar::tbrDropDown)
        names << showMenuAction();
    return names;
}

void ToolbarButtonAccessible::doAction(const QString& actionName) {
    if (!isValid())
        return;
    if (actionName == pressAction())
        m_toolbar->ActivateButton(m_id);
    else if (actionName == showMenuAction())
        m_toolbar->DropDownButton(m_id);
}

} // namespace quovara
