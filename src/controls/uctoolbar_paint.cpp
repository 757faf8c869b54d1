// The toolbar's painting: the buttons in flat or raised style, separators, drop-down arrows
// and the keyboard's focus frame.
#include "controls/uctoolbar.h"
#include "controls/uctoolbar_metrics.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace quovara {

using namespace toolbar_metrics;

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
        if (!b.rect.isEmpty() && !behindArrow(b))
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
