// The toolbar's input: the hot button under the mouse or chosen with the keyboard, presses,
// clicks, drop-down arrows, tooltips and focus.
#include "controls/uctoolbar.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace quovara {

void ucToolbar::setHot(int id, bool fromKeyboard) {
    if (id == m_hot)
        return;
    const int oldId = m_hot;
    m_hot = id;
    update();
    // The notification rules: a change away from a button leaves it; a change from none to an
    // enabled button enters the toolbar; an enabled new button is entered; none leaves the
    // toolbar.
    if (oldId != 0)
        emit ButtonLeave(oldId);
    else if (ButtonEnabled(id))
        emit ToolbarEnter();
    if (id != 0 && ButtonEnabled(id))
        emit ButtonEnter(id);
    if (id == 0)
        emit ToolbarLeave();
    if (fromKeyboard && id != 0)
        notifyAccessibleFocus(id);
}

void ucToolbar::notifyAccessibleFocus(int id) {
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent ev(this, QAccessible::Focus);
    ev.setChild(id - 1);
    QAccessible::updateAccessibility(&ev);
}

void ucToolbar::moveHot(int step, bool toEnd) {
    QList<int> ids;
    for (const auto& b : m_buttons)
        if (b.style != tbrSeparator && !(b.state & tbrHidden) && (b.state & tbrEnabled))
            ids.append(b.id);
    if (ids.isEmpty())
        return;
    int next = 0;
    if (toEnd) {
        next = step < 0 ? ids.first() : ids.last();
    } else {
        const qsizetype at = ids.indexOf(m_hot);
        if (at < 0)
            next = step < 0 ? ids.last() : ids.first();
        else
            next = ids.at((at + step + ids.size()) % ids.size());
    }
    setHot(next, true);
}

void ucToolbar::ActivateButton(int Button) {
    auto* b = find(Button);
    if (!b || b->style == tbrSeparator || !(b->state & tbrEnabled) || (b->state & tbrHidden))
        return;
    if (b->style & tbrCheck) {
        if ((b->style & tbrGroup) == tbrGroup) {
            // A check group: the clicked button becomes the checked one of its run of
            // neighbouring group buttons.
            const int pos = Button - 1;
            int first = pos, last = pos;
            while (first > 0 &&
                   (m_buttons[first - 1].style & (tbrCheck | tbrGroup)) == (tbrCheck | tbrGroup))
                --first;
            while (last + 1 < m_buttons.size() &&
                   (m_buttons[last + 1].style & (tbrCheck | tbrGroup)) == (tbrCheck | tbrGroup))
                ++last;
            for (int i = first; i <= last; ++i)
                SetButtonChecked(i + 1, i == pos);
        } else {
            SetButtonChecked(Button, !ButtonChecked(Button));
        }
    }
    emit ButtonClick(Button);
}

void ucToolbar::DropDownButton(int Button) {
    const auto* b = find(Button);
    if (!b || !(b->style & tbrDropDown) || !(b->state & tbrEnabled) || b->rect.isEmpty())
        return;
    const QRect r = widgetRect(*b);
    // Bottom-left corner (the bottom edge is exclusive), in the host window's coordinates.
    const QPoint corner(r.left(), r.top() + r.height());
    const QPoint inHost = window() == this ? corner : mapTo(window(), corner);
    emit ButtonDropDown(Button, inHost.x(), inHost.y());
}

bool ucToolbar::event(QEvent* e) {
    if (e->type() == QEvent::ToolTip) {
        auto* he = static_cast<QHelpEvent*>(e);
        const int id = m_initialised ? buttonAt(he->pos()) : 0;
        const QString tip = ButtonTipText(id);
        if (id == 0 || tip.isEmpty()) {
            // No tip text: the request is left unanswered, no tooltip shows.
            QToolTip::hideText();
            e->ignore();
            return true;
        }
        QToolTip::showText(he->globalPos(), tip, this, ButtonRect(id));
        return true;
    }
    return QWidget::event(e);
}

void ucToolbar::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    relayout();
}

void ucToolbar::mouseMoveEvent(QMouseEvent* e) {
    if (!m_initialised)
        return;
    setHot(buttonAt(e->position().toPoint()));
}

void ucToolbar::leaveEvent(QEvent* e) {
    QWidget::leaveEvent(e);
    if (m_initialised)
        setHot(0);
}

void ucToolbar::mousePressEvent(QMouseEvent* e) {
    if (!m_initialised || e->button() != Qt::LeftButton)
        return;
    const QPoint pos = e->position().toPoint();
    const int id = buttonAt(pos);
    const auto* b = find(id);
    if (!b || !(b->state & tbrEnabled))
        return;
    if ((b->style & tbrDropDown) && arrowRect(*b).contains(pos)) {
        DropDownButton(id);
        return;
    }
    m_pressedId = id;
    SetButtonPressed(id, true);
}

void ucToolbar::mouseReleaseEvent(QMouseEvent* e) {
    if (!m_initialised || e->button() != Qt::LeftButton || m_pressedId == 0)
        return;
    const int id = m_pressedId;
    m_pressedId = 0;
    SetButtonPressed(id, false);
    if (buttonAt(e->position().toPoint()) == id)
        ActivateButton(id);
}

void ucToolbar::keyPressEvent(QKeyEvent* e) {
    if (!m_initialised) {
        QWidget::keyPressEvent(e);
        return;
    }
    switch (e->key()) {
    case Qt::Key_Left:
        moveHot(-1);
        break;
    case Qt::Key_Right:
        moveHot(+1);
        break;
    case Qt::Key_Home:
        moveHot(-1, true);
        break;
    case Qt::Key_End:
        moveHot(+1, true);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_hot)
            ActivateButton(m_hot);
        break;
    case Qt::Key_Down:
        if (m_hot && (ButtonStyleOf(m_hot) & tbrDropDown))
            DropDownButton(m_hot);
        else
            QWidget::keyPressEvent(e);
        break;
    default:
        QWidget::keyPressEvent(e);
        return;
    }
}

void ucToolbar::focusInEvent(QFocusEvent* e) {
    // Focus alone makes no button hot (a window that activates would otherwise raise enter
    // events by itself); the first arrow key does.
    QWidget::focusInEvent(e);
    update();
}

void ucToolbar::focusOutEvent(QFocusEvent* e) {
    QWidget::focusOutEvent(e);
    if (m_initialised && !underMouse())
        setHot(0);
    update();
}

} // namespace quovara
