// TaskPaneBar: hit testing, hover and leave detection, clicks, wheel and keyboard.
#include "controls/controlslog.h"
#include "controls/taskpanebar.h"

#include <QAccessible>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimer>
#include <QWheelEvent>

namespace quovara {

namespace {
// Hit test with the pane's rule: left <= x < right and top <= y < bottom.
bool inside(const QRect& r, const QPoint& p) {
    return !r.isEmpty() && p.x() >= r.left() && p.x() < r.left() + r.width() && p.y() >= r.top() &&
           p.y() < r.top() + r.height();
}
constexpr int kWheelNotch = 120;
constexpr int kWheelStep = 32;
} // namespace

void TaskPaneBar::headerAt(const QPoint& pos, int& header) const {
    header = 0;
    if (m_special.visible && inside(m_special.headerRect, pos)) {
        header = SpecialGroupIndex;
        return;
    }
    for (int i = 1; i < m_groups.size(); ++i)
        if (inside(m_groups.at(i).headerRect, pos)) {
            header = i;
            return;
        }
    if (m_details.visible && inside(m_details.headerRect, pos))
        header = DetailsGroupIndex;
}

void TaskPaneBar::itemAt(const QPoint& pos, int& groupIndex, int& item) const {
    groupIndex = item = 0;
    auto scan = [&](int index) {
        const Group* g = group(index);
        if (!g->expanded)
            return false;
        for (int i = 0; i < g->items.size(); ++i)
            if (inside(g->items.at(i).rect, pos)) {
                groupIndex = index;
                item = i + 1;
                return true;
            }
        return false;
    };
    if (m_special.visible && scan(SpecialGroupIndex))
        return;
    for (int i = 1; i < m_groups.size(); ++i)
        if (scan(i))
            return;
}

QString TaskPaneBar::hotTraceGroup(int index, bool enter) const {
    const Group* g = group(index);
    const QString key = g ? g->key : QString();
    if (index == SpecialGroupIndex)
        return (enter ? QStringLiteral("Over Special Group ")
                      : QStringLiteral("Exit Special Group ")) +
               key;
    if (index == DetailsGroupIndex)
        return (enter ? QStringLiteral("Over Details Group ")
                      : QStringLiteral("Exit Details Group ")) +
               key;
    return (enter ? QStringLiteral("over Group ") : QStringLiteral("Exit Group ")) + key;
}

void TaskPaneBar::setHot(int header, int itemGroup, int item) {
    if (header != m_hotHeader) {
        const int old = m_hotHeader;
        m_hotHeader = header;
        if (Group* g = group(old)) {
            g->headerState = 0;
            update(g->headerRect);
            qCDebug(lcTaskPane).noquote() << hotTraceGroup(old, false);
            emit GroupOut(g->key);
        }
        if (Group* g = group(header)) {
            g->headerState = 2;
            update(g->headerRect);
            qCDebug(lcTaskPane).noquote() << hotTraceGroup(header, true);
            emit GroupHover(g->key);
        }
    }
    if (itemGroup != m_hotItemGroup || item != m_hotItem) {
        const int oldGroup = m_hotItemGroup;
        const int oldItem = m_hotItem;
        m_hotItemGroup = itemGroup;
        m_hotItem = item;
        if (const Group* g = group(oldGroup); g && oldItem >= 1 && oldItem <= g->items.size()) {
            const Item& it = g->items.at(oldItem - 1);
            update(it.rect);
            qCDebug(lcTaskPane).noquote()
                << (oldGroup == SpecialGroupIndex ? QStringLiteral("Out Special Item: ")
                                                  : QStringLiteral("Out Item: ")) +
                       it.key;
            emit ItemOut(it.groupKey, it.key);
        }
        if (const Group* g = group(itemGroup); g && item >= 1 && item <= g->items.size()) {
            const Item& it = g->items.at(item - 1);
            update(it.rect);
            qCDebug(lcTaskPane).noquote() << QStringLiteral("Hover Item: ") + it.key;
            emit ItemHover(it.groupKey, it.key);
        }
    }
}

void TaskPaneBar::handleMove(const QPoint& pos, bool synthetic) {
    int header = 0, itemGroup = 0, item = 0;
    headerAt(pos, header);
    itemAt(pos, itemGroup, item);
    setHot(header, itemGroup, item);
    SetHandCur(header != 0 || item != 0);
    if (!synthetic && !m_timUpdate->isActive())
        m_timUpdate->start();
}

void TaskPaneBar::SetHandCur(bool Hand) {
    if (Hand)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

void TaskPaneBar::pollCursor() {
    const QRect windowRect(mapToGlobal(QPoint(0, 0)), size());
    if (windowRect.contains(QCursor::pos())) {
        if (!m_mouseInside) {
            m_mouseInside = true;
            repaintPane();
            emit MouseOver();
        }
        m_mouseInside = true;
        return;
    }
    // Outside: the poll stops until the next mouse move.
    m_timUpdate->stop();
    const bool wasInside = m_mouseInside;
    m_mouseInside = false;
    if (wasInside)
        emit MouseOut();
    // A move at (1, 1), where nothing is hot, leaves every hot header and item.
    handleMove(QPoint(1, 1), true);
}

void TaskPaneBar::mouseMoveEvent(QMouseEvent* e) {
    // A move with no button held starts the leave poll.
    handleMove(e->position().toPoint(), e->buttons() != Qt::NoButton);
}

void TaskPaneBar::leaveEvent(QEvent* e) {
    QWidget::leaveEvent(e);
    // Check at once rather than waiting for the next tick.
    if (m_timUpdate->isActive())
        pollCursor();
}

void TaskPaneBar::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton)
        return;
    const QPoint pos = e->position().toPoint();
    int header = 0, itemGroup = 0, item = 0;
    headerAt(pos, header);
    if (header != 0) {
        ActivateElement({Element::Header, header, 0});
        return;
    }
    itemAt(pos, itemGroup, item);
    if (item != 0)
        ActivateElement({Element::Item, itemGroup, item});
}

void TaskPaneBar::ActivateElement(const Element& e) {
    Group* g = group(e.group);
    if (!g)
        return;
    if (e.kind == Element::Header) {
        g->expanded = !g->expanded;
        g->headerState = 2;
        repaintPane();
        // The host may assign the flag to veto or force the toggle; the pane is laid out again
        // for the state it chose, so that what is shown is also what can be clicked.
        const bool laidOutExpanded = g->expanded;
        emit GroupClick(e.group, g->expanded);
        if (g->expanded != laidOutExpanded)
            repaintPane();
        update();
        if (QAccessible::isActive()) {
            QAccessible::State changed;
            changed.expanded = true;
            changed.collapsed = true;
            QAccessibleStateChangeEvent ev(this, changed);
            QAccessible::updateAccessibility(&ev);
        }
        return;
    }
    if (e.kind == Element::Item && g->expanded && e.item >= 1 && e.item <= g->items.size()) {
        const Item it = g->items.at(e.item - 1);
        emit ItemClick(it.groupKey, it.key);
    }
}

void TaskPaneBar::wheelEvent(QWheelEvent* e) {
    if (m_ScrollBar->isHidden()) {
        e->ignore();
        return;
    }
    const int delta = e->angleDelta().y();
    if (e->modifiers() != Qt::NoModifier || e->angleDelta().x() != 0 ||
        (delta != kWheelNotch && delta != -kWheelNotch)) {
        // Only a single plain notch scrolls; anything else is left alone.
        qCDebug(lcTaskPane) << "Wheel message ignored, delta" << delta << "modifiers"
                            << e->modifiers();
        e->ignore();
        return;
    }
    const int value = m_ScrollBar->value() + (delta > 0 ? -kWheelStep : kWheelStep);
    m_ScrollBar->setValue(std::clamp(value, m_ScrollBar->minimum(), m_ScrollBar->maximum()));
    e->accept();
}

void TaskPaneBar::moveKeyboardHot(int step) {
    QList<Element> all = Elements();
    all.removeIf([](const Element& e) { return e.kind == Element::DetailsText; });
    if (all.isEmpty())
        return;
    qsizetype at = -1;
    for (qsizetype i = 0; i < all.size(); ++i) {
        const Element& e = all.at(i);
        if ((e.kind == Element::Header && e.group == m_hotHeader && m_hotItem == 0) ||
            (e.kind == Element::Item && e.group == m_hotItemGroup && e.item == m_hotItem))
            at = i;
    }
    qsizetype next = at < 0 ? (step > 0 ? 0 : all.size() - 1)
                            : std::clamp<qsizetype>(at + step, 0, all.size() - 1);
    const Element e = all.at(next);
    if (e.kind == Element::Header)
        setHot(e.group, 0, 0);
    else
        setHot(0, e.group, e.item);
    ensureVisible(ElementRect(e));
    if (QAccessible::isActive()) {
        QAccessibleEvent ev(this, QAccessible::Focus);
        ev.setChild(int(Elements().indexOf(e)));
        QAccessible::updateAccessibility(&ev);
    }
}

void TaskPaneBar::ensureVisible(const QRect& r) {
    if (m_ScrollBar->isHidden() || r.isEmpty())
        return;
    if (r.top() < 0)
        m_ScrollBar->setValue(m_ScrollBar->value() + r.top() - 8);
    else if (r.bottom() >= height())
        m_ScrollBar->setValue(m_ScrollBar->value() + r.bottom() - height() + 9);
}

void TaskPaneBar::keyPressEvent(QKeyEvent* e) {
    switch (e->key()) {
    case Qt::Key_Down:
    case Qt::Key_Right:
        moveKeyboardHot(+1);
        return;
    case Qt::Key_Up:
    case Qt::Key_Left:
        moveKeyboardHot(-1);
        return;
    case Qt::Key_Home:
        setHot(0, 0, 0);
        moveKeyboardHot(+1);
        return;
    case Qt::Key_End:
        setHot(0, 0, 0);
        moveKeyboardHot(-1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_hotItem != 0)
            ActivateElement({Element::Item, m_hotItemGroup, m_hotItem});
        else if (m_hotHeader != 0)
            ActivateElement({Element::Header, m_hotHeader, 0});
        return;
    default:
        QWidget::keyPressEvent(e);
    }
}

bool TaskPaneBar::focusNextPrevChild(bool next) {
    // Tab leaves the pane rather than walking its hot elements.
    return QWidget::focusNextPrevChild(next);
}

void TaskPaneBar::focusInEvent(QFocusEvent* e) {
    // Focus alone makes nothing hot; the first arrow key does.
    QWidget::focusInEvent(e);
    update();
}

void TaskPaneBar::focusOutEvent(QFocusEvent* e) {
    QWidget::focusOutEvent(e);
    if (!m_mouseInside)
        handleMove(QPoint(1, 1), true);
    update();
}

} // namespace quovara
