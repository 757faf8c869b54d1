// The toolbar's buttons and their layout: adding, captions, images, tips, states, sizes and
// the overflow menu for buttons that do not fit.
#include "controls/uctoolbar.h"

#include "controls/accessiblefactory.h"
#include "controls/controlslog.h"
#include "controls/uctoolbar_metrics.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QMenu>
#include <QToolButton>

namespace quovara {

using namespace toolbar_metrics;

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
    m_overflow->setToolTip(tr("More buttons"));
    m_overflow->setAccessibleName(tr("More buttons"));
    m_overflow->hide();
    connect(m_overflow, &QToolButton::clicked, this, &ucToolbar::showOverflowMenu);
}

bool ucToolbar::overflowing() const {
    return m_initialised && m_contentSize.width() > width();
}

bool ucToolbar::behindArrow(const Button& b) const {
    return overflowing() && b.style != tbrSeparator && !b.rect.isEmpty() &&
           b.rect.right() >= width() - kOverflowWidth;
}

QList<int> ucToolbar::OverflowButtons() const {
    QList<int> out;
    for (const auto& b : m_buttons)
        if (behindArrow(b))
            out << b.id;
    return out;
}

void ucToolbar::placeOverflow() {
    const bool needed = overflowing();
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

    // Buttons are as wide as the widest caption needs, as platform toolbars make them. When
    // that does not fit (long translated captions, a narrow window) each button takes only
    // what its own caption needs, and what still does not fit goes behind the arrow.
    auto place = [&](bool compact) {
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
                w = (b.autosize || compact ? naturalWidth(b) : uniform) +
                    ((b.style & tbrDropDown) ? kArrowWidth : 0);
            b.rect = QRect(x, 0, w, height);
            x += w;
        }
        return x;
    };
    const int preferred = place(false);
    int x = preferred;
    if (preferred > width() && width() > 0)
        x = place(true);
    const bool hintChanged = preferred != m_preferredWidth || height != m_contentSize.height();
    m_preferredWidth = preferred;
    m_contentSize = QSize(x, height);
    placeOverflow();
    if (hintChanged)
        updateGeometry();
    update();
}

QSize ucToolbar::sizeHint() const {
    if (!m_initialised)
        return QSize(0, 0);
    return QSize(m_preferredWidth, m_contentSize.height() + clientTop());
}

QSize ucToolbar::minimumSizeHint() const {
    return QSize(0, sizeHint().height());
}

int ucToolbar::buttonAt(const QPoint& pos) const {
    for (const auto& b : m_buttons) {
        if (b.style == tbrSeparator || b.rect.isEmpty() || behindArrow(b))
            continue;
        if (widgetRect(b).contains(pos))
            return b.id;
    }
    return 0;
}

} // namespace quovara
