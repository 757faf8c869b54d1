#include "controls/uctoolbar.h"

#include "controls/accessiblefactory.h"
#include "controls/controlslog.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolButton>
#include <QToolTip>

namespace quovara {

namespace {
constexpr int kTipTextLimit = 80;
constexpr int kCaptionBuffer = 260; // characters that fit the caption buffer besides the NUL
constexpr int kPadX = 6;
constexpr int kPadY = 4;
constexpr int kImageTextGap = 3;
constexpr int kSeparatorWidth = 8;
constexpr int kArrowWidth = 13;
// The overflow arrow at the right end.
constexpr int kOverflowWidth = 18;
} // namespace

ucToolbar::ucToolbar(QWidget* parent) : QWidget(parent) {
    InstallControlsAccessibleFactory();
    setAttribute(Qt::WA_Hover, false);
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    m_font = font();
    // Buttons that do not fit stay reachable through an arrow at the right end, as desktop
    // toolbars have it.
    m_overflow = new QToolButton(this);
    m_overflow->setObjectName(QStringLiteral("Overflow"));
    m_overflow->setArrowType(Qt::DownArrow);
    m_overflow->setAutoRaise(true);
    m_overflow->setToolTip(QStringLiteral("More buttons"));
    m_overflow->setAccessibleName(QStringLiteral("More buttons"));
    m_overflow->hide();
    connect(m_overflow, &QToolButton::clicked, this, &ucToolbar::showOverflowMenu);
}

QList<int> ucToolbar::OverflowButtons() const {
    QList<int> out;
    if (!m_initialised || m_contentSize.width() <= width())
        return out;
    const int limit = width() - kOverflowWidth;
    for (const auto& b : m_buttons)
        if (b.style != tbrSeparator && !b.rect.isEmpty() && b.rect.right() >= limit)
            out << b.id;
    return out;
}

void ucToolbar::placeOverflow() {
    const bool needed = m_initialised && m_contentSize.width() > width();
    if (needed) {
        m_overflow->setGeometry(width() - kOverflowWidth, clientTop(), kOverflowWidth,
                                m_contentSize.height());
        m_overflow->raise();
    }
    m_overflow->setVisible(needed);
}

void ucToolbar::showOverflowMenu() {
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("OverflowMenu"));
    // The tips go with the buttons: some name the keys that do the same.
    menu.setToolTipsVisible(true);
    for (const int id : OverflowButtons()) {
        const Button* b = find(id);
        const QString tip = ButtonTipText(id);
        QAction* a = menu.addAction(b->caption.isEmpty() ? tip : b->caption);
        if (b->image >= 0 && b->image < m_images.size())
            a->setIcon(m_images.at(b->image));
        a->setToolTip(tip);
        a->setEnabled(b->state & tbrEnabled);
        connect(a, &QAction::triggered, this, [this, id] { ActivateButton(id); });
    }
    menu.exec(m_overflow->mapToGlobal(QPoint(0, m_overflow->height())));
}

ucToolbar::~ucToolbar() {
    ReleaseAccessibleInterface(this);
}

bool ucToolbar::Initialize(int ImageSize, bool FlatStyle, bool ListStyle, bool Divider) {
    if (m_initialised) {
        qCDebug(lcToolbar) << "Initialize called twice; the toolbar is kept as it is";
        return true;
    }
    m_imageSize = ImageSize > 0 ? ImageSize : 16;
    m_flat = FlatStyle;
    m_list = ListStyle;
    m_divider = Divider;
    m_initialised = true;
    m_tipTexts = QStringList{QString()};
    setFocusPolicy(Qt::TabFocus);
    // The host's font is the toolbar's font.
    SetFont(parentWidget() ? parentWidget()->font() : font());
    updateGeometry();
    update();
    return true;
}

int ucToolbar::AddBitmap(const QPixmap& hBitmap, const QColor& MaskColor) {
    if (!m_initialised || hBitmap.isNull())
        return -1;
    QPixmap pm = hBitmap;
    if (MaskColor.isValid())
        pm.setMask(pm.createMaskFromColor(MaskColor, Qt::MaskInColor));
    m_images.append(QIcon(pm));
    return int(m_images.size()) - 1;
}

int ucToolbar::AddIcon(const QIcon& hIcon) {
    if (!m_initialised || hIcon.isNull())
        return -1;
    m_images.append(hIcon);
    return int(m_images.size()) - 1;
}

void ucToolbar::AddButton(const QString& Caption, int Image, const QString& TipText, int Style,
                          bool Autosize, qint32 ItemData) {
    if (!m_initialised)
        return;
    Button b;
    b.id = int(m_buttons.size()) + 1;
    b.caption = Caption;
    b.image = Image;
    b.style = Style;
    b.autosize = Autosize && Style != tbrSeparator;
    b.itemData = ItemData;
    m_buttons.append(b);
    while (m_tipTexts.size() <= b.id)
        m_tipTexts.append(QString());
    m_tipTexts[b.id] = TipText.left(kTipTextLimit);
    relayout();
    if (QAccessible::isActive()) {
        QAccessibleEvent ev(this, QAccessible::ObjectCreated);
        ev.setChild(b.id - 1);
        QAccessible::updateAccessibility(&ev);
    }
}

int ucToolbar::ToolbarHeight() const {
    if (!m_initialised)
        return 0;
    // The button at zero-based position 1 is measured; a missing or hidden one counts as an
    // empty rectangle.
    const Button* b = find(2);
    const int bottom = (b && !b->rect.isEmpty()) ? b->rect.top() + b->rect.height() : 0;
    return bottom + (m_divider ? 2 : 0);
}

int ucToolbar::ButtonCount() const {
    return m_initialised ? int(m_buttons.size()) : 0;
}

ucToolbar::Button* ucToolbar::find(int id) {
    if (!m_initialised || id < 1 || id > m_buttons.size())
        return nullptr;
    return &m_buttons[id - 1];
}

const ucToolbar::Button* ucToolbar::find(int id) const {
    if (!m_initialised || id < 1 || id > m_buttons.size())
        return nullptr;
    return &m_buttons[id - 1];
}

QString ucToolbar::ButtonCaption(int Button) const {
    const auto* b = find(Button);
    if (!b)
        return QString();
    QString text = b->caption.left(kCaptionBuffer);
    const int nul = text.indexOf(QChar(u'\0'));
    return nul >= 0 ? text.left(nul) : text;
}

void ucToolbar::SetButtonCaption(int Button, const QString& Caption) {
    if (auto* b = find(Button)) {
        b->caption = Caption;
        relayout();
        if (QAccessible::isActive()) {
            QAccessibleEvent ev(this, QAccessible::NameChanged);
            ev.setChild(Button - 1);
            QAccessible::updateAccessibility(&ev);
        }
    }
}

int ucToolbar::ButtonImage(int Button) const {
    const auto* b = find(Button);
    return b ? b->image : 0;
}

void ucToolbar::SetButtonImage(int Button, int Image) {
    if (auto* b = find(Button)) {
        b->image = Image;
        update();
    }
}

QString ucToolbar::ButtonTipText(int Button) const {
    if (!m_initialised)
        return QString();
    if (Button < 0 || Button >= m_tipTexts.size()) {
        qCDebug(lcToolbar) << "ButtonTipText: no tip text for button" << Button;
        return QString();
    }
    return m_tipTexts.at(Button);
}

void ucToolbar::SetButtonTipText(int Button, const QString& TipText) {
    if (!m_initialised)
        return;
    if (Button < 0 || Button >= m_tipTexts.size()) {
        qCDebug(lcToolbar) << "ButtonTipText: no tip text for button" << Button;
        return;
    }
    m_tipTexts[Button] = TipText.left(kTipTextLimit);
}

bool ucToolbar::hasState(int id, int mask) const {
    const auto* b = find(id);
    return b && (b->state & mask) == mask;
}

void ucToolbar::setState(int id, int mask, bool on) {
    auto* b = find(id);
    if (!b)
        return;
    const int before = b->state;
    b->state = on ? (b->state | mask) : (b->state & ~mask);
    if (before == b->state)
        return;
    if (mask & tbrHidden)
        relayout();
    if ((mask & tbrEnabled) && !on && m_pressedId == id)
        m_pressedId = 0;
    update();
    if (QAccessible::isActive()) {
        QAccessible::State changed;
        changed.disabled = (mask & tbrEnabled) != 0;
        changed.checked = (mask & tbrChecked) != 0;
        changed.pressed = (mask & tbrPressed) != 0;
        changed.invisible = (mask & tbrHidden) != 0;
        QAccessibleStateChangeEvent ev(this, changed);
        ev.setChild(id - 1);
        QAccessible::updateAccessibility(&ev);
    }
}

bool ucToolbar::ButtonEnabled(int Button) const {
    return hasState(Button, tbrEnabled);
}
void ucToolbar::SetButtonEnabled(int Button, bool bState) {
    setState(Button, tbrEnabled, bState);
}
bool ucToolbar::ButtonChecked(int Button) const {
    return hasState(Button, tbrChecked);
}
void ucToolbar::SetButtonChecked(int Button, bool bState) {
    setState(Button, tbrChecked, bState);
}
bool ucToolbar::ButtonPressed(int Button) const {
    return hasState(Button, tbrPressed);
}
void ucToolbar::SetButtonPressed(int Button, bool bState) {
    setState(Button, tbrPressed, bState);
}

bool ucToolbar::ButtonVisible(int Button) const {
    return find(Button) && !hasState(Button, tbrHidden);
}

void ucToolbar::SetButtonVisible(int Button, bool bState) {
    setState(Button, tbrHidden, !bState);
}

QFont ucToolbar::Font() const {
    return m_initialised ? m_font : QFont();
}

void ucToolbar::SetFont(const QFont& New_Font) {
    if (!m_initialised)
        return;
    m_font = New_Font;
    relayout();
}

QRect ucToolbar::ButtonRect(int Button) const {
    const auto* b = find(Button);
    return b ? widgetRect(*b) : QRect();
}

int ucToolbar::ButtonStyleOf(int Button) const {
    const auto* b = find(Button);
    return b ? b->style : 0;
}

qint32 ucToolbar::ButtonItemData(int Button) const {
    const auto* b = find(Button);
    return b ? b->itemData : 0;
}

QRect ucToolbar::widgetRect(const Button& b) const {
    return b.rect.isEmpty() ? QRect() : b.rect.translated(0, clientTop());
}

QRect ucToolbar::arrowRect(const Button& b) const {
    if (!(b.style & tbrDropDown) || b.rect.isEmpty())
        return QRect();
    const QRect r = widgetRect(b);
    return QRect(r.right() - kArrowWidth + 1, r.top(), kArrowWidth, r.height());
}

void ucToolbar::relayout() {
    if (!m_initialised)
        return;
    const QFontMetrics fm(m_font);
    bool anyText = false;
    for (const auto& b : m_buttons)
        if (b.style != tbrSeparator && !b.caption.isEmpty())
            anyText = true;

    auto naturalWidth = [&](const Button& b) {
        const int textW = b.caption.isEmpty() ? 0 : fm.horizontalAdvance(b.caption);
        if (m_list)
            return m_imageSize + (textW ? kImageTextGap + textW : 0) + 2 * kPadX;
        return std::max(m_imageSize, textW) + 2 * kPadX;
    };
    int height = m_list ? std::max(m_imageSize, anyText ? fm.height() : 0) + 2 * kPadY
                        : m_imageSize + (anyText ? kImageTextGap + fm.height() : 0) + 2 * kPadY;
    int uniform = m_imageSize + 2 * kPadX;
    for (const auto& b : m_buttons)
        if (b.style != tbrSeparator && !b.autosize && !(b.state & tbrHidden))
            uniform = std::max(uniform, naturalWidth(b));

    int x = 0;
    for (auto& b : m_buttons) {
        if (b.state & tbrHidden) {
            b.rect = QRect();
            continue;
        }
        int w = 0;
        if (b.style == tbrSeparator)
            w = kSeparatorWidth;
        else
            w = (b.autosize ? naturalWidth(b) : uniform) +
                ((b.style & tbrDropDown) ? kArrowWidth : 0);
        b.rect = QRect(x, 0, w, height);
        x += w;
    }
    m_contentSize = QSize(x, height);
    placeOverflow();
    updateGeometry();
    update();
}

QSize ucToolbar::sizeHint() const {
    if (!m_initialised)
        return QSize(0, 0);
    return QSize(m_contentSize.width(), m_contentSize.height() + clientTop());
}

QSize ucToolbar::minimumSizeHint() const {
    return QSize(0, sizeHint().height());
}

int ucToolbar::buttonAt(const QPoint& pos) const {
    for (const auto& b : m_buttons) {
        if (b.style == tbrSeparator || b.rect.isEmpty())
            continue;
        if (widgetRect(b).contains(pos))
            return b.id;
    }
    return 0;
}

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
    placeOverflow();
    update();
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

void ucToolbar::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), palette().color(QPalette::Window));
    if (!m_initialised)
        return;
    if (m_divider) {
        p.setPen(palette().color(QPalette::Mid));
        p.drawLine(0, 0, width() - 1, 0);
        p.setPen(palette().color(QPalette::Light));
        p.drawLine(0, 1, width() - 1, 1);
    }
    p.setFont(m_font);
    for (const auto& b : m_buttons)
        if (!b.rect.isEmpty())
            paintButton(p, b);
    if (hasFocus() && m_hot == 0) {
        // Focused, no button chosen yet: a frame round the buttons.
        QStyleOptionFocusRect opt;
        opt.initFrom(this);
        opt.rect =
            QRect(0, clientTop(), std::min(width(), m_contentSize.width()), m_contentSize.height())
                .adjusted(1, 1, -1, -1);
        opt.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &opt, &p, this);
    }
}

void ucToolbar::paintButton(QPainter& p, const Button& b) const {
    const QRect r = widgetRect(b);
    const QPalette& pal = palette();
    if (b.style == tbrSeparator) {
        const int x = r.left() + r.width() / 2 - 1;
        p.setPen(pal.color(QPalette::Mid));
        p.drawLine(x, r.top() + 3, x, r.bottom() - 3);
        p.setPen(pal.color(QPalette::Light));
        p.drawLine(x + 1, r.top() + 3, x + 1, r.bottom() - 3);
        return;
    }
    const bool enabled = b.state & tbrEnabled;
    const bool hot = enabled && m_hot == b.id;
    const bool down = enabled && (b.state & tbrPressed);
    const bool checked = b.state & tbrChecked;
    const QColor accent = pal.color(QPalette::Highlight);

    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    const QRectF frame = QRectF(r).adjusted(1.5, 1.5, -1.5, -1.5);
    if (m_flat) {
        if (down || checked || hot) {
            QColor fill = accent;
            fill.setAlpha(down ? 90 : checked ? 60 : 35);
            QColor edge = accent;
            edge.setAlpha(down || checked ? 200 : 140);
            p.setPen(QPen(edge, 1));
            p.setBrush(fill);
            p.drawRoundedRect(frame, 3, 3);
        }
    } else {
        const bool sunk = down || checked;
        p.setPen(Qt::NoPen);
        p.setBrush(sunk ? pal.color(QPalette::Midlight) : pal.color(QPalette::Button));
        p.drawRect(QRectF(r).adjusted(1, 1, -1, -1));
        p.setRenderHint(QPainter::Antialiasing, false);
        const QColor tl = sunk ? pal.color(QPalette::Dark) : pal.color(QPalette::Light);
        const QColor br = sunk ? pal.color(QPalette::Light) : pal.color(QPalette::Dark);
        p.setPen(tl);
        p.drawLine(r.left() + 1, r.top() + 1, r.right() - 1, r.top() + 1);
        p.drawLine(r.left() + 1, r.top() + 1, r.left() + 1, r.bottom() - 1);
        p.setPen(br);
        p.drawLine(r.left() + 1, r.bottom() - 1, r.right() - 1, r.bottom() - 1);
        p.drawLine(r.right() - 1, r.top() + 1, r.right() - 1, r.bottom() - 1);
    }
    p.restore();

    QRect face = r;
    QRect arrow;
    if (b.style & tbrDropDown) {
        arrow = arrowRect(b);
        face.setRight(arrow.left() - 1);
        if (hot || down) {
            p.setPen(pal.color(QPalette::Mid));
            p.drawLine(arrow.left(), r.top() + 4, arrow.left(), r.bottom() - 4);
        }
        const QPointF c = QRectF(arrow).center() + QPointF(0, 1);
        QPainterPath tri;
        tri.moveTo(c + QPointF(-3.5, -2));
        tri.lineTo(c + QPointF(3.5, -2));
        tri.lineTo(c + QPointF(0, 2));
        tri.closeSubpath();
        p.save();
        p.setRenderHint(QPainter::Antialiasing, true);
        p.fillPath(tri, enabled ? pal.color(QPalette::ButtonText)
                                : pal.color(QPalette::Disabled, QPalette::ButtonText));
        p.restore();
    }
    if (down)
        face.translate(1, 1);

    const QIcon::Mode mode = !enabled ? QIcon::Disabled : hot ? QIcon::Active : QIcon::Normal;
    const QColor textColor = enabled ? pal.color(QPalette::ButtonText)
                                     : pal.color(QPalette::Disabled, QPalette::ButtonText);
    const QFontMetrics fm(m_font);
    QRect imageRect;
    QRect textRect;
    if (m_list) {
        imageRect = QRect(face.left() + kPadX, face.top() + (face.height() - m_imageSize) / 2,
                          m_imageSize, m_imageSize);
        textRect = QRect(imageRect.right() + 1 + kImageTextGap, face.top(),
                         face.right() - imageRect.right() - kImageTextGap, face.height());
    } else {
        imageRect = QRect(face.left() + (face.width() - m_imageSize) / 2, face.top() + kPadY,
                          m_imageSize, m_imageSize);
        textRect =
            QRect(face.left(), imageRect.bottom() + 1 + kImageTextGap, face.width(), fm.height());
    }
    if (b.image >= 0 && b.image < m_images.size())
        m_images.at(b.image).paint(&p, imageRect, Qt::AlignCenter, mode,
                                   checked ? QIcon::On : QIcon::Off);
    if (!b.caption.isEmpty()) {
        p.setPen(textColor);
        p.drawText(textRect,
                   (m_list ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignHCenter | Qt::AlignTop) |
                       Qt::TextSingleLine,
                   ButtonCaption(b.id));
    }
    if (hasFocus() && m_hot == b.id) {
        // The keyboard's hot button.
        QStyleOptionFocusRect opt;
        opt.initFrom(this);
        opt.rect = r.adjusted(3, 3, -3, -3);
        opt.backgroundColor = pal.color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &opt, &p, this);
    }
}

} // namespace quovara
