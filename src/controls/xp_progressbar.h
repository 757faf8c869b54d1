// XP_ProgressBar: a progress bar drawn in one of ten display modes, with an optional
// percentage text. Drawing goes to an off-screen surface that is copied to the screen in one
// piece; the surface is redrawn by pDraw (which the repainting setters call), on resize and
// when the property bag is read. Setters that do not repaint (Max, Min, eBrushStyle,
// FillOrEmpty) show their effect at the next pDraw.
//
// Properties (getter = name, setter = "Set" + name), with property-bag key and default:
//   Color        "Color"        system highlight colour (value 0x8000000D)   repaints
//   eBrushStyle  "BrushStyle"   4 (0 horizontal, 1 vertical, 2 "\" diagonal,  no repaint
//                               3 "/" diagonal, 4 cross, 5 diagonal cross)
//   FillOrEmpty  "FillOrEmpty"  1 (1: the bar grows with Value; 0: the bar    no repaint
//                               shows the remaining part, Max - Value)
//   Font         (not kept)     Tahoma                                          repaints
//   Image        "Image"        none (pattern of mode 8)                        repaints
//   Max          "Max"          100                                             no repaint
//   Min          "Min"          0                                               no repaint
//   Orientation  "Orientation"  0 (0 horizontal, left to right;                 repaints
//                               1 vertical, bottom to top)
//   Scrolling    "Scrolling"    0 (display mode 0..9, see below)                repaints
//   ShowText     "ShowText"     false                                           repaints
//   Value        "Value"        0 (not clamped to Min..Max)                     repaints
//   hDC()  the off-screen surface; hWnd() the window id.
// Colours may be given as a QColor or as a 32-bit value (red in the low byte; with the high
// bit set, a system colour index): SetColorValue / ColorValue.
//
// Display modes: 0 solid, 1 blocks, 2 "Searching.." (a run of blocks at Value's position),
// 3 rounded glossy bar, 4 sunken edge, 5 gradient, 6 on white with two-colour text,
// 7 hatched (eBrushStyle) with an edge, 8 pattern made from Image, 9 cylinder.
//
// Text (ShowText): "Searching.." in mode 2, else the whole part of Value / Max * 100 and
// " %" ("45 %"); Min is not taken into account; with Max = 0 the text is "0 %".
//
// Methods: DrawGradient(lngEndColor, lngStartcolor, rect), DrawLine(lngX, lngY, lngX2, lngY2,
// color), DrawProgressBar(), pDraw(), ReadProperties(bag), WriteProperties(bag).
#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QVariantMap>
#include <QWidget>
#include <cstdint>

namespace quovara {

class XP_ProgressBar : public QWidget {
    Q_OBJECT
public:
    explicit XP_ProgressBar(QWidget* parent = nullptr);
    ~XP_ProgressBar() override;

    QColor Color() const;
    void SetColor(const QColor& color);
    std::uint32_t ColorValue() const { return m_color; }
    void SetColorValue(std::uint32_t value);
    int eBrushStyle() const { return m_brushStyle; }
    void SeteBrushStyle(int style) { m_brushStyle = style; }
    qint32 FillOrEmpty() const { return m_fillOrEmpty; }
    void SetFillOrEmpty(qint32 value) { m_fillOrEmpty = value; }
    QFont Font() const { return m_font; }
    void SetFont(const QFont& font);
    QPixmap Image() const { return m_image; }
    void SetImage(const QPixmap& image);
    int Max() const { return m_max; }
    void SetMax(int value) { m_max = value; }
    int Min() const { return m_min; }
    void SetMin(int value) { m_min = value; }
    qint32 Orientation() const { return m_orientation; }
    void SetOrientation(qint32 value);
    qint32 Scrolling() const { return m_scrolling; }
    void SetScrolling(qint32 mode);
    bool ShowText() const { return m_showText; }
    void SetShowText(bool show);
    int Value() const { return m_value; }
    void SetValue(int value);

    const QPixmap& hDC() const { return m_surface; }
    WId hWnd() const { return effectiveWinId(); }

    // The text that the bar shows when ShowText is on.
    QString DisplayText() const;

    void DrawGradient(const QColor& lngEndColor, const QColor& lngStartcolor, const QRect& rect);
    void DrawLine(int lngX, int lngY, int lngX2, int lngY2, const QColor& color);
    void DrawProgressBar();
    void pDraw();

    void ReadProperties(const QVariantMap& PropBag);
    void WriteProperties(QVariantMap& PropBag) const;

    QSize sizeHint() const override { return QSize(150, 18); }

protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void changeEvent(QEvent* e) override;

private:
    void ensureSurface();
    double filledFraction() const;
    QRect barRect() const;
    QRect filledRect(const QRect& inner) const;
    void drawFrame(class QPainter& p, const QRect& r, bool rounded) const;
    void drawBlocks(QPainter& p, const QRect& inner, const QRect& filled, bool marquee) const;
    void drawText(QPainter& p);

    std::uint32_t m_color;
    int m_brushStyle = 4;
    qint32 m_fillOrEmpty = 1;
    QFont m_font;
    QPixmap m_image;
    int m_max = 100;
    int m_min = 0;
    qint32 m_orientation = 0;
    qint32 m_scrolling = 0;
    bool m_showText = false;
    int m_value = 0;
    QPixmap m_surface;
};

} // namespace quovara
