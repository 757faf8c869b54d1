#include "controls/xp_progressbar.h"

#include "controls/accessiblefactory.h"
#include "controls/controlslog.h"
#include "controls/olecolor.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>

namespace quovara {

namespace {
constexpr std::uint32_t kDefaultColor = 0x8000000Du; // the system highlight colour
} // namespace

XP_ProgressBar::XP_ProgressBar(QWidget* parent) : QWidget(parent), m_color(kDefaultColor) {
    InstallControlsAccessibleFactory();
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_font = QFont(QStringLiteral("Tahoma"));
    m_font.setPointSizeF(font().pointSizeF() > 0 ? font().pointSizeF() : 8.25);
    ensureSurface();
    pDraw();
}

XP_ProgressBar::~XP_ProgressBar() {
    // Release the off-screen surface.
    m_surface = QPixmap();
    ReleaseAccessibleInterface(this);
}

QColor XP_ProgressBar::Color() const {
    return TranslateColor(m_color, palette());
}

void XP_ProgressBar::SetColor(const QColor& color) {
    SetColorValue(ColorToValue(color));
}

void XP_ProgressBar::SetColorValue(std::uint32_t value) {
    m_color = value;
    pDraw();
}

void XP_ProgressBar::SetFont(const QFont& font) {
    m_font = font;
    pDraw();
}

void XP_ProgressBar::SetImage(const QPixmap& image) {
    m_image = image;
    pDraw();
}

void XP_ProgressBar::SetOrientation(qint32 value) {
    m_orientation = value;
    pDraw();
}

void XP_ProgressBar::SetScrolling(qint32 mode) {
    m_scrolling = mode;
    pDraw();
}

void XP_ProgressBar::SetShowText(bool show) {
    m_showText = show;
    pDraw();
}

void XP_ProgressBar::SetValue(int value) {
    const bool changed = value != m_value;
    m_value = value;
    pDraw();
    if (changed && QAccessible::isActive()) {
        QAccessibleValueChangeEvent ev(this, value);
        QAccessible::updateAccessibility(&ev);
    }
}

QString XP_ProgressBar::DisplayText() const {
    if (m_scrolling == 2)
        return tr("Searching..");
    if (m_max == 0)
        return tr("%1 %").arg(0); // no percentage can be made; show nought
    // Whole part (rounded down) of Value / Max * 100, worked out exactly in integers.
    const qint64 scaled = qint64(m_value) * 100;
    qint64 whole = scaled / m_max;
    if ((scaled % m_max != 0) && ((scaled < 0) != (m_max < 0)))
        --whole;
    return tr("%1 %").arg(whole);
}

void XP_ProgressBar::ReadProperties(const QVariantMap& PropBag) {
    const QVariant color = PropBag.value(QStringLiteral("Color"));
    if (!color.isValid())
        m_color = kDefaultColor;
    else if (color.metaType().id() == QMetaType::QColor)
        m_color = ColorToValue(color.value<QColor>());
    else
        m_color = std::uint32_t(color.toLongLong());
    m_brushStyle = PropBag.value(QStringLiteral("BrushStyle"), 4).toInt();
    m_fillOrEmpty = PropBag.value(QStringLiteral("FillOrEmpty"), 1).toInt();
    const QVariant image = PropBag.value(QStringLiteral("Image"));
    m_image = image.canConvert<QPixmap>() ? image.value<QPixmap>() : QPixmap();
    m_max = PropBag.value(QStringLiteral("Max"), 100).toInt();
    m_min = PropBag.value(QStringLiteral("Min"), 0).toInt();
    m_orientation = PropBag.value(QStringLiteral("Orientation"), 0).toInt();
    m_scrolling = PropBag.value(QStringLiteral("Scrolling"), 0).toInt();
    m_showText = PropBag.value(QStringLiteral("ShowText"), false).toBool();
    m_value = PropBag.value(QStringLiteral("Value"), 0).toInt();
    pDraw();
}

void XP_ProgressBar::WriteProperties(QVariantMap& PropBag) const {
    PropBag.insert(QStringLiteral("Color"), qlonglong(m_color));
    PropBag.insert(QStringLiteral("BrushStyle"), m_brushStyle);
    PropBag.insert(QStringLiteral("FillOrEmpty"), m_fillOrEmpty);
    PropBag.insert(QStringLiteral("Image"), m_image.isNull() ? QVariant() : QVariant(m_image));
    PropBag.insert(QStringLiteral("Max"), m_max);
    PropBag.insert(QStringLiteral("Min"), m_min);
    PropBag.insert(QStringLiteral("Orientation"), m_orientation);
    PropBag.insert(QStringLiteral("Scrolling"), m_scrolling);
    PropBag.insert(QStringLiteral("ShowText"), m_showText);
    PropBag.insert(QStringLiteral("Value"), m_value);
}

void XP_ProgressBar::ensureSurface() {
    const qreal dpr = devicePixelRatioF();
    const QSize want = size().expandedTo(QSize(1, 1)) * dpr;
    if (m_surface.size() == want && qFuzzyCompare(m_surface.devicePixelRatio(), dpr))
        return;
    m_surface = QPixmap(want);
    m_surface.setDevicePixelRatio(dpr);
    m_surface.fill(palette().color(QPalette::Window));
}

void XP_ProgressBar::pDraw() {
    ensureSurface();
    {
        QPainter p(&m_surface);
        p.fillRect(QRect(QPoint(0, 0), size()),
                   m_scrolling == 6 ? QColor(Qt::white) : palette().color(QPalette::Window));
    }
    DrawProgressBar();
    {
        QPainter p(&m_surface);
        drawText(p);
    }
    update();
}

void XP_ProgressBar::paintEvent(QPaintEvent*) {
    if (!qFuzzyCompare(m_surface.devicePixelRatio(), devicePixelRatioF())) {
        ensureSurface();
        pDraw();
    }
    QPainter p(this);
    p.drawPixmap(0, 0, m_surface);
}

void XP_ProgressBar::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    ensureSurface();
    pDraw();
}

void XP_ProgressBar::changeEvent(QEvent* e) {
    QWidget::changeEvent(e);
    if (e->type() == QEvent::PaletteChange || e->type() == QEvent::StyleChange)
        pDraw();
}

void XP_ProgressBar::drawText(QPainter& p) {
    if (!m_showText)
        return;
    const QString text = DisplayText();
    const QRect r(QPoint(0, 0), size());
    p.setFont(m_font);
    const int flags = Qt::AlignCenter | Qt::TextSingleLine;
    if (m_scrolling == 6) {
        // Text over the filled part in white, over the empty part in the bar's colour.
        const QRect filled = filledRect(barRect().adjusted(2, 2, -2, -2));
        p.save();
        p.setClipRect(filled);
        p.setPen(Qt::white);
        p.drawText(r, flags, text);
        p.setClipRegion(QRegion(r).subtracted(QRegion(filled)));
        p.setPen(Color());
        p.drawText(r, flags, text);
        p.restore();
        return;
    }
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(r, flags, text);
}

} // namespace quovara
