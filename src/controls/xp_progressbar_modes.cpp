// The drawing of the ten display modes of XP_ProgressBar.
#include "controls/controlslog.h"
#include "controls/xp_progressbar.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <qdrawutil.h>

namespace quovara {

namespace {

const QColor kFrameColor(104, 104, 104);
const QColor kTrackColor(255, 255, 255);

Qt::BrushStyle hatchStyle(int style) {
    switch (style) {
    case 0:
        return Qt::HorPattern;
    case 1:
        return Qt::VerPattern;
    case 2:
        return Qt::FDiagPattern;
    case 3:
        return Qt::BDiagPattern;
    case 5:
        return Qt::DiagCrossPattern;
    default:
        return Qt::CrossPattern;
    }
}

} // namespace

double XP_ProgressBar::filledFraction() const {
    if (m_max == m_min)
        return 0.0;
    double f = double(m_value - m_min) / double(m_max - m_min);
    if (m_fillOrEmpty == 0)
        f = 1.0 - f;
    return f;
}

QRect XP_ProgressBar::barRect() const {
    return QRect(QPoint(0, 0), size());
}

QRect XP_ProgressBar::filledRect(const QRect& inner) const {
    // The drawn length stays inside the bar; the property itself is never clamped.
    const double f = std::clamp(filledFraction(), 0.0, 1.0);
    if (m_orientation == 1) {
        const int h = int(std::lround(inner.height() * f));
        return QRect(inner.left(), inner.bottom() + 1 - h, inner.width(), h);
    }
    const int w = int(std::lround(inner.width() * f));
    return QRect(inner.left(), inner.top(), w, inner.height());
}

void XP_ProgressBar::drawFrame(QPainter& p, const QRect& r, bool rounded) const {
    p.save();
    p.setPen(kFrameColor);
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(0, 0, -1, -1));
    if (rounded) {
        // Corners: one pixel of the background each, and a softer pixel inside.
        const QColor bg = m_scrolling == 6 ? QColor(Qt::white) : palette().color(QPalette::Window);
        const QColor soft =
            QColor((bg.red() + kFrameColor.red()) / 2, (bg.green() + kFrameColor.green()) / 2,
                   (bg.blue() + kFrameColor.blue()) / 2);
        p.setPen(bg);
        p.drawPoint(r.topLeft());
        p.drawPoint(r.topRight());
        p.drawPoint(r.bottomLeft());
        p.drawPoint(r.bottomRight());
        p.setPen(soft);
        p.drawPoint(r.topLeft() + QPoint(1, 1));
        p.drawPoint(r.topRight() + QPoint(-1, 1));
        p.drawPoint(r.bottomLeft() + QPoint(1, -1));
        p.drawPoint(r.bottomRight() + QPoint(-1, -1));
    }
    p.restore();
}

void XP_ProgressBar::drawBlocks(QPainter& p, const QRect& inner, const QRect& filled,
                                bool marquee) const {
    const QColor c = Color();
    const bool vertical = m_orientation == 1;
    const int thickness = vertical ? inner.width() : inner.height();
    const int block = std::max(4, thickness * 2 / 3);
    const int gap = 2;
    const int length = vertical ? inner.height() : inner.width();

    int from = 0;
    int to = vertical ? filled.height() : filled.width();
    if (marquee) {
        // A run of five blocks whose front is at the value's position.
        const int run = 5 * (block + gap);
        to = std::max(0, to);
        from = to - run;
        if (to <= 0)
            return;
    }
    p.save();
    p.setClipRect(inner);
    QLinearGradient g;
    if (vertical)
        g = QLinearGradient(inner.left(), 0, inner.right() + 1, 0);
    else
        g = QLinearGradient(0, inner.top(), 0, inner.bottom() + 1);
    g.setColorAt(0.0, c.lighter(170));
    g.setColorAt(0.45, c);
    g.setColorAt(1.0, c.darker(110));
    for (int pos = 0; pos < length && pos < to; pos += block + gap) {
        if (pos + block <= from)
            continue;
        QRect b = vertical
                      ? QRect(inner.left(), inner.bottom() + 1 - pos - block, inner.width(), block)
                      : QRect(inner.left() + pos, inner.top(), block, inner.height());
        p.fillRect(b, g);
    }
    p.restore();
}

void XP_ProgressBar::DrawGradient(const QColor& lngEndColor, const QColor& lngStartcolor,
                                  const QRect& rect) {
    ensureSurface();
    QPainter p(&m_surface);
    QLinearGradient g = m_orientation == 1 ? QLinearGradient(0, rect.bottom() + 1, 0, rect.top())
                                           : QLinearGradient(rect.left(), 0, rect.right() + 1, 0);
    g.setColorAt(0.0, lngStartcolor);
    g.setColorAt(1.0, lngEndColor);
    p.fillRect(rect, g);
    update(rect);
}

void XP_ProgressBar::DrawLine(int lngX, int lngY, int lngX2, int lngY2, const QColor& color) {
    ensureSurface();
    QPainter p(&m_surface);
    p.setPen(QPen(color, 1));
    p.drawLine(lngX, lngY, lngX2, lngY2);
    update();
}

void XP_ProgressBar::DrawProgressBar() {
    ensureSurface();
    const QRect r = barRect();
    if (r.width() < 3 || r.height() < 3)
        return;
    const QRect inner = r.adjusted(2, 2, -2, -2);
    const QRect filled = filledRect(inner);
    const QColor c = Color();
    QPainter p(&m_surface);

    switch (m_scrolling) {
    case 0: // solid
        p.fillRect(r.adjusted(1, 1, -1, -1), kTrackColor);
        drawFrame(p, r, true);
        p.fillRect(filled, c);
        break;
    case 1: // blocks
        p.fillRect(r.adjusted(1, 1, -1, -1), kTrackColor);
        drawFrame(p, r, true);
        drawBlocks(p, inner, filled, false);
        break;
    case 2: // a run of blocks, for "Searching.."
        p.fillRect(r.adjusted(1, 1, -1, -1), kTrackColor);
        drawFrame(p, r, true);
        drawBlocks(p, inner, filled, true);
        break;
    case 3: { // rounded glossy bar
        p.setRenderHint(QPainter::Antialiasing, true);
        const QRectF outer = QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5);
        const qreal radius = std::min(outer.width(), outer.height()) / 2.0;
        QLinearGradient track(0, r.top(), 0, r.bottom());
        track.setColorAt(0, QColor(226, 226, 226));
        track.setColorAt(1, QColor(250, 250, 250));
        p.setPen(QPen(kFrameColor, 1));
        p.setBrush(track);
        p.drawRoundedRect(outer, radius, radius);
        if (!filled.isEmpty()) {
            QPainterPath clip;
            clip.addRoundedRect(QRectF(inner), radius - 2, radius - 2);
            p.setClipPath(clip);
            QLinearGradient fill(0, inner.top(), 0, inner.bottom() + 1);
            if (m_orientation == 1)
                fill = QLinearGradient(inner.left(), 0, inner.right() + 1, 0);
            fill.setColorAt(0.0, c.lighter(160));
            fill.setColorAt(0.5, c);
            fill.setColorAt(1.0, c.darker(120));
            p.setPen(Qt::NoPen);
            p.setBrush(fill);
            p.drawRoundedRect(QRectF(filled), radius - 2, radius - 2);
            QColor shine(255, 255, 255, 90);
            QRectF top = QRectF(filled);
            if (m_orientation == 1)
                top.setWidth(top.width() / 2);
            else
                top.setHeight(top.height() / 2);
            p.fillRect(top, shine);
        }
        break;
    }
    case 4: // sunken edge
        qDrawShadePanel(&p, r, palette(), true, 2, nullptr);
        p.fillRect(filled, c);
        break;
    case 5: { // gradient
        p.fillRect(r.adjusted(1, 1, -1, -1), kTrackColor);
        drawFrame(p, r, true);
        p.end();
        if (!filled.isEmpty()) {
            // The gradient spans the whole bar, so the filled part shows its share of it.
            QRect full = inner;
            if (m_orientation == 1)
                full.setTop(filled.top());
            else
                full.setRight(filled.right());
            DrawGradient(c, c.lighter(185), full);
        }
        break;
    }
    case 6: // on white, frame in the bar's colour; the text is drawn in two colours
        p.setPen(c);
        p.drawRect(r.adjusted(0, 0, -1, -1));
        p.fillRect(filled, c);
        break;
    case 7: // hatched, with an edge
        qDrawShadePanel(&p, r, palette(), true, 1, nullptr);
        p.fillRect(r.adjusted(1, 1, -1, -1), kTrackColor);
        if (!filled.isEmpty()) {
            p.fillRect(filled, c.lighter(185));
            p.fillRect(filled, QBrush(c, hatchStyle(m_brushStyle)));
            p.setPen(c);
            p.drawRect(filled.adjusted(0, 0, -1, -1));
        }
        break;
    case 8: // pattern made from Image
        p.fillRect(r.adjusted(1, 1, -1, -1), kTrackColor);
        drawFrame(p, r, false);
        if (m_image.isNull()) {
            qCDebug(lcProgressBar) << "Image pattern mode without an image; solid fill used";
            p.fillRect(filled, c);
        } else {
            p.setBrushOrigin(inner.topLeft());
            p.fillRect(filled, QBrush(m_image));
        }
        break;
    case 9: { // cylinder
        const bool vertical = m_orientation == 1;
        QLinearGradient tube = vertical ? QLinearGradient(r.left(), 0, r.right() + 1, 0)
                                        : QLinearGradient(0, r.top(), 0, r.bottom() + 1);
        tube.setColorAt(0.0, QColor(170, 170, 170));
        tube.setColorAt(0.35, QColor(245, 245, 245));
        tube.setColorAt(1.0, QColor(150, 150, 150));
        p.fillRect(r, tube);
        QLinearGradient body = tube;
        body.setStops({});
        body.setColorAt(0.0, c.darker(150));
        body.setColorAt(0.35, c.lighter(150));
        body.setColorAt(1.0, c.darker(170));
        const QRect bodyRect =
            vertical ? QRect(r.left(), filled.top(), r.width(), r.bottom() + 1 - filled.top())
                     : QRect(r.left(), r.top(), filled.right() + 1, r.height());
        if (!filled.isEmpty()) {
            p.fillRect(bodyRect, body);
            // The end cap of the liquid column.
            p.setPen(c.lighter(170));
            if (vertical)
                p.drawLine(bodyRect.left(), bodyRect.top(), bodyRect.right(), bodyRect.top());
            else
                p.drawLine(bodyRect.right(), bodyRect.top(), bodyRect.right(), bodyRect.bottom());
        }
        p.setPen(kFrameColor);
        p.drawRect(r.adjusted(0, 0, -1, -1));
        break;
    }
    default:
        qCDebug(lcProgressBar) << "Unknown display mode" << m_scrolling << "; nothing drawn";
        drawFrame(p, r, true);
        break;
    }
}

} // namespace quovara
