#include "galleryicons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace quovara::gallery {

namespace {

void drawBox(QPainter& p, const QRectF& r, const QColor& fill) {
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0, fill.lighter(130));
    g.setColorAt(1, fill);
    p.setPen(QPen(fill.darker(170), 1.2));
    p.setBrush(g);
    p.drawRoundedRect(r, r.width() * 0.08, r.width() * 0.08);
}

void drawArrow(QPainter& p, QPointF from, QPointF to, const QColor& c, qreal w) {
    p.setPen(QPen(c, w, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawLine(from, to);
    const QLineF line(to, from);
    QLineF a = line;
    a.setLength(w * 2.2);
    a.setAngle(line.angle() + 40);
    QLineF b = line;
    b.setLength(w * 2.2);
    b.setAngle(line.angle() - 40);
    p.drawLine(a);
    p.drawLine(b);
}

void paintNamed(QPainter& p, const QString& name, qreal s) {
    p.setRenderHint(QPainter::Antialiasing, true);
    const QColor blue(40, 110, 210), green(46, 150, 70), orange(230, 140, 30), red(200, 60, 50);
    const QColor tan(214, 170, 90), grey(120, 125, 135);
    if (name == QLatin1String("back")) {
        p.setPen(Qt::NoPen);
        p.setBrush(green);
        p.drawEllipse(QRectF(s * 0.06, s * 0.06, s * 0.88, s * 0.88));
        drawArrow(p, QPointF(s * 0.72, s * 0.5), QPointF(s * 0.28, s * 0.5), Qt::white, s * 0.1);
    } else if (name == QLatin1String("add") || name == QLatin1String("extract") ||
               name == QLatin1String("archive")) {
        drawBox(p, QRectF(s * 0.12, s * 0.38, s * 0.76, s * 0.52), tan);
        p.setPen(QPen(tan.darker(170), s * 0.04));
        p.drawLine(QPointF(s * 0.12, s * 0.52), QPointF(s * 0.88, s * 0.52));
        if (name == QLatin1String("add"))
            drawArrow(p, QPointF(s * 0.5, s * 0.04), QPointF(s * 0.5, s * 0.46), green, s * 0.09);
        else if (name == QLatin1String("extract"))
            drawArrow(p, QPointF(s * 0.5, s * 0.46), QPointF(s * 0.5, s * 0.04), blue, s * 0.09);
    } else if (name == QLatin1String("sfx")) {
        drawBox(p, QRectF(s * 0.1, s * 0.16, s * 0.8, s * 0.68), QColor(90, 100, 120));
        p.setPen(QPen(QColor(120, 230, 120), s * 0.07, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(s * 0.24, s * 0.34), QPointF(s * 0.38, s * 0.46));
        p.drawLine(QPointF(s * 0.38, s * 0.46), QPointF(s * 0.24, s * 0.58));
        p.drawLine(QPointF(s * 0.46, s * 0.62), QPointF(s * 0.7, s * 0.62));
    } else if (name == QLatin1String("verify")) {
        p.setPen(Qt::NoPen);
        p.setBrush(blue);
        QPainterPath shield;
        shield.moveTo(s * 0.5, s * 0.06);
        shield.lineTo(s * 0.88, s * 0.2);
        shield.quadTo(s * 0.86, s * 0.72, s * 0.5, s * 0.95);
        shield.quadTo(s * 0.14, s * 0.72, s * 0.12, s * 0.2);
        shield.closeSubpath();
        p.drawPath(shield);
        p.setPen(QPen(Qt::white, s * 0.09, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPolyline(QPolygonF(
            {QPointF(s * 0.32, s * 0.5), QPointF(s * 0.45, s * 0.64), QPointF(s * 0.7, s * 0.36)}));
    } else if (name == QLatin1String("view")) {
        p.setPen(QPen(grey.darker(130), 1));
        p.setBrush(QColor(245, 247, 250));
        p.drawRoundedRect(QRectF(s * 0.1, s * 0.12, s * 0.8, s * 0.76), 2, 2);
        p.setPen(Qt::NoPen);
        p.setBrush(blue);
        for (int row = 0; row < 2; ++row)
            for (int col = 0; col < 2; ++col)
                p.drawRect(
                    QRectF(s * (0.2 + col * 0.32), s * (0.22 + row * 0.32), s * 0.26, s * 0.24));
    } else if (name == QLatin1String("update")) {
        p.setPen(QPen(green, s * 0.1, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(Qt::NoBrush);
        const QRectF arc(s * 0.18, s * 0.18, s * 0.64, s * 0.64);
        p.drawArc(arc, 30 * 16, 150 * 16);
        p.drawArc(arc, 210 * 16, 150 * 16);
        p.setPen(Qt::NoPen);
        p.setBrush(green);
        p.drawPolygon(QPolygonF({QPointF(s * 0.62, s * 0.08), QPointF(s * 0.84, s * 0.3),
                                 QPointF(s * 0.56, s * 0.34)}));
        p.drawPolygon(QPolygonF({QPointF(s * 0.38, s * 0.92), QPointF(s * 0.16, s * 0.7),
                                 QPointF(s * 0.44, s * 0.66)}));
    } else if (name == QLatin1String("about")) {
        p.setPen(Qt::NoPen);
        p.setBrush(blue);
        p.drawEllipse(QRectF(s * 0.06, s * 0.06, s * 0.88, s * 0.88));
        p.setBrush(Qt::white);
        p.drawEllipse(QRectF(s * 0.44, s * 0.22, s * 0.12, s * 0.12));
        p.drawRoundedRect(QRectF(s * 0.44, s * 0.4, s * 0.12, s * 0.38), s * 0.04, s * 0.04);
    } else if (name == QLatin1String("folder")) {
        p.setPen(QPen(orange.darker(150), 1));
        p.setBrush(orange.lighter(120));
        QPainterPath f;
        f.moveTo(s * 0.06, s * 0.22);
        f.lineTo(s * 0.4, s * 0.22);
        f.lineTo(s * 0.48, s * 0.32);
        f.lineTo(s * 0.94, s * 0.32);
        f.lineTo(s * 0.94, s * 0.86);
        f.lineTo(s * 0.06, s * 0.86);
        f.closeSubpath();
        p.drawPath(f);
    } else if (name == QLatin1String("file")) {
        p.setPen(QPen(grey, 1));
        p.setBrush(Qt::white);
        QPainterPath f;
        f.moveTo(s * 0.18, s * 0.06);
        f.lineTo(s * 0.62, s * 0.06);
        f.lineTo(s * 0.84, s * 0.28);
        f.lineTo(s * 0.84, s * 0.94);
        f.lineTo(s * 0.18, s * 0.94);
        f.closeSubpath();
        p.drawPath(f);
        p.setPen(QPen(grey.lighter(130), s * 0.06));
        for (int i = 0; i < 3; ++i)
            p.drawLine(QPointF(s * 0.3, s * (0.45 + i * 0.15)),
                       QPointF(s * 0.72, s * (0.45 + i * 0.15)));
    } else if (name == QLatin1String("search")) {
        p.setPen(QPen(grey.darker(130), s * 0.12, Qt::SolidLine, Qt::RoundCap));
        p.setBrush(QColor(220, 235, 255));
        p.drawEllipse(QRectF(s * 0.1, s * 0.1, s * 0.52, s * 0.52));
        p.drawLine(QPointF(s * 0.58, s * 0.58), QPointF(s * 0.88, s * 0.88));
    } else if (name == QLatin1String("mail")) {
        p.setPen(QPen(grey.darker(120), 1));
        p.setBrush(QColor(255, 250, 225));
        p.drawRect(QRectF(s * 0.08, s * 0.2, s * 0.84, s * 0.6));
        p.drawPolyline(QPolygonF(
            {QPointF(s * 0.08, s * 0.2), QPointF(s * 0.5, s * 0.55), QPointF(s * 0.92, s * 0.2)}));
    } else if (name == QLatin1String("web")) {
        p.setPen(QPen(blue.darker(120), s * 0.06));
        p.setBrush(QColor(200, 225, 255));
        p.drawEllipse(QRectF(s * 0.08, s * 0.08, s * 0.84, s * 0.84));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QRectF(s * 0.3, s * 0.08, s * 0.4, s * 0.84));
        p.drawLine(QPointF(s * 0.08, s * 0.5), QPointF(s * 0.92, s * 0.5));
    } else {
        p.setPen(Qt::NoPen);
        p.setBrush(red);
        p.drawEllipse(QRectF(0, 0, s, s));
    }
}

class PaintedIconEngine : public QIconEngine {
public:
    explicit PaintedIconEngine(QString name) : m_name(std::move(name)) {}
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const qreal dpr = painter->device()->devicePixelRatioF();
        QImage img(rect.size() * dpr, QImage::Format_ARGB32_Premultiplied);
        img.setDevicePixelRatio(dpr);
        img.fill(Qt::transparent);
        {
            QPainter p(&img);
            paintNamed(p, m_name, std::min(rect.width(), rect.height()));
        }
        if (mode == QIcon::Disabled) {
            for (int y = 0; y < img.height(); ++y) {
                auto* line = reinterpret_cast<QRgb*>(img.scanLine(y));
                for (int x = 0; x < img.width(); ++x) {
                    const int gray = qGray(line[x]);
                    const int a = qAlpha(line[x]) / 2;
                    const int v = std::min(255, gray / 2 + 110) * a / 255;
                    line[x] = qRgba(v, v, v, a);
                }
            }
        }
        painter->drawImage(rect, img);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pm(size);
        pm.fill(Qt::transparent);
        QPainter p(&pm);
        paint(&p, QRect(QPoint(0, 0), size), mode, state);
        return pm;
    }
    QIconEngine* clone() const override { return new PaintedIconEngine(m_name); }

private:
    QString m_name;
};

} // namespace

QIcon PaintedIcon(const QString& name) {
    return QIcon(new PaintedIconEngine(name));
}

} // namespace quovara::gallery
