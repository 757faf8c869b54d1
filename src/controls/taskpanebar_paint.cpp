// TaskPaneBar: style detection, layout and painting.
#include "controls/controlslog.h"
#include "controls/desktoptheme.h"
#include "controls/taskpanebar.h"
#include "controls/taskpanepalette.h"

#include <QDir>
#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>

namespace quovara {

namespace {
constexpr int kMargin = 12;      // around the groups
constexpr int kGap = 15;         // between groups
constexpr int kRadius = 5;       // header's top corners
constexpr int kPadX = 12;        // body's left and right padding
constexpr int kPadTop = 9;       // body's top padding
constexpr int kPadBottom = 9;    // body's bottom padding
constexpr int kIcon = 16;        // item icon
constexpr int kIconGap = 6;      // between item icon and text
constexpr int kRowGap = 3;       // between item rows
constexpr int kSpecialIcon = 32; // the special group's picture
constexpr int kButton = 18;      // the round expand button

QFont boldFont(const QFont& f) {
    QFont b = f;
    b.setBold(true);
    return b;
}

// Where a header's caption begins, from the header's left edge: beside the special group's
// picture, else 12 pixels in. It ends kButton + 10 pixels before the header's right edge.
int captionInset(bool besidePicture) {
    return besidePicture ? 4 + kSpecialIcon + 5 : 12;
}
constexpr int kCaptionRightGap = kButton + 10;

int headerHeight(const QFont& f) {
    return std::max(25, QFontMetrics(boldFont(f)).height() + 10);
}

QString cutAtNul(const QString& s) {
    const int nul = s.indexOf(QChar(u'\0'));
    return nul >= 0 ? s.left(nul) : s;
}
} // namespace

void TaskPaneBar::detectTheme() {
    const QString before = m_styleName;
    auto* theme = DesktopTheme::instance();
    const bool overridden = !m_styleOverride.isEmpty();
    const bool themed =
        overridden ? m_styleOverride != QLatin1String("Classic") : theme->ThemeDataAvailable();
    if (!themed) {
        if (before != QLatin1String("Classic"))
            qCDebug(lcTaskPane).noquote()
                << QStringLiteral("No theme data for class 'ExplorerBar'.  - ") +
                       QStringLiteral("no visual style is active");
        m_styleName = QStringLiteral("Classic");
        m_themeFile.clear();
        m_shellStylePath.clear();
    } else {
        m_themeFile = overridden ? QString() : cutAtNul(theme->ThemeFilePath());
        const QString scheme = cutAtNul(overridden ? m_styleOverride : theme->ColorSchemeName());
        m_styleName = scheme;
        const qsizetype cut = std::max(m_themeFile.lastIndexOf(QLatin1Char('\\')),
                                       m_themeFile.lastIndexOf(QLatin1Char('/')));
        const QString folder = m_themeFile.left(cut + 1);
        const QString sep = QDir::separator();
        m_shellStylePath = folder + QStringLiteral("Shell") + sep + scheme + sep +
                           QStringLiteral("ShellStyle.dll");
    }
    if (before != m_styleName)
        for (int i = 1; i < m_groups.size(); ++i)
            applyContainerColours(m_groups.at(i).container);
}

void TaskPaneBar::applyContainerColours(QWidget* container) {
    if (!container)
        return;
    QPalette cp = container->palette();
    cp.setColor(QPalette::Window, PaletteForStyle(m_styleName, palette()).body);
    container->setPalette(cp);
}

int TaskPaneBar::layoutGroup(Group& g, int index, int top, int left, int width) {
    const QFontMetrics fm(font());
    const int hh = headerHeight(font());
    if (index == SpecialGroupIndex && !g.icon.isNull())
        top += std::max(0, kSpecialIcon - hh + 6);
    g.headerRect = QRect(left, top, width, hh);
    int y = top + hh;
    if (!g.expanded) {
        for (auto& it : g.items)
            it.rect = QRect();
        g.bodyRect = QRect();
        g.detailsTextRect = QRect();
        if (g.container)
            g.container->hide();
        return y;
    }
    const int bodyTop = y;
    y += kPadTop;
    const int inner = std::max(0, width - 2 * kPadX);
    const int row = std::max(kIcon, fm.height()) + 4;
    for (auto& it : g.items) {
        const int textW = fm.horizontalAdvance(it.caption);
        it.rect = QRect(left + kPadX, y, std::min(kIcon + kIconGap + textW + 2, inner), row);
        y += row + kRowGap;
    }
    if (!g.items.isEmpty())
        y -= kRowGap;
    if (index == DetailsGroupIndex) {
        const int textTop = y;
        if (!g.image.isNull()) {
            const QSize s = g.image.deviceIndependentSize()
                                .toSize()
                                .scaled(QSize(inner, 10000), Qt::KeepAspectRatio)
                                .boundedTo(g.image.deviceIndependentSize().toSize());
            y += s.height() + 6;
        }
        const QFontMetrics bfm(boldFont(font()));
        if (!g.title.isEmpty())
            y +=
                bfm.boundingRect(QRect(0, 0, inner, 10000), Qt::TextWordWrap, g.title).height() + 4;
        if (!g.text.isEmpty())
            y += fm.boundingRect(QRect(0, 0, inner, 10000), Qt::TextWordWrap, g.text).height();
        g.detailsTextRect = QRect(left + kPadX, textTop, inner, y - textTop);
    }
    if (g.container && g.child) {
        const int childH = std::max(g.child->height(), g.child->minimumSizeHint().height());
        const int cy = g.items.isEmpty() ? bodyTop + 1 : y + 6;
        const QRect cr(left + 1, cy, width - 2, childH + 12);
        g.container->setGeometry(cr);
        g.child->setGeometry(QRect(6, 6, std::max(0, cr.width() - 12), childH));
        g.container->show();
        y = cr.bottom() + 2;
        g.bodyRect = QRect(left, bodyTop, width, y - bodyTop);
        return y;
    }
    y += kPadBottom;
    g.bodyRect = QRect(left, bodyTop, width, y - bodyTop);
    return y;
}

int TaskPaneBar::WidthToShowWhole(int childWidth) const {
    const QFontMetrics bfm(boldFont(font()));
    // A group's child sits inside the group's frame and a 6-pixel border; a caption has the
    // header's width less its inset and the expand button (paintHeader).
    int widest = childWidth + 2 + 12;
    auto take = [&](const Group& g, bool besidePicture) {
        if (!g.caption.isEmpty())
            widest = std::max(widest, captionInset(besidePicture) +
                                          bfm.horizontalAdvance(g.caption) + kCaptionRightGap + 1);
    };
    if (m_special.visible)
        take(m_special, !m_special.icon.isNull());
    for (int i = 1; i < m_groups.size(); ++i)
        take(m_groups[i], false);
    if (m_details.visible)
        take(m_details, false);
    const int sbw = m_ScrollBar ? m_ScrollBar->sizeHint().width() : 0;
    // A few pixels more: the advance is rounded, the drawn text is not.
    return widest + 2 * kMargin + sbw + 4;
}

void TaskPaneBar::relayout() {
    if (m_inLayout || !m_ScrollBar)
        return;
    m_inLayout = true;
    const int sbw = m_ScrollBar->sizeHint().width();
    auto layoutAll = [&](int width) {
        int y = kMargin;
        const int w = std::max(0, width - 2 * kMargin);
        bool any = false;
        if (m_special.visible) {
            y = layoutGroup(m_special, SpecialGroupIndex, y, kMargin, w) + kGap;
            any = true;
        } else {
            m_special.headerRect = m_special.bodyRect = QRect();
            for (auto& it : m_special.items)
                it.rect = QRect();
        }
        for (int i = 1; i < m_groups.size(); ++i) {
            y = layoutGroup(m_groups[i], i, y, kMargin, w) + kGap;
            any = true;
        }
        if (m_details.visible) {
            y = layoutGroup(m_details, DetailsGroupIndex, y, kMargin, w) + kGap;
            any = true;
        } else {
            m_details.headerRect = m_details.bodyRect = m_details.detailsTextRect = QRect();
        }
        return any ? y - kGap + kMargin : 0;
    };
    m_contentHeight = layoutAll(width());
    if (m_contentHeight > height()) {
        m_contentHeight = layoutAll(width() - sbw);
        // A failure is reported and the pane goes on with the bar as it is.
        if (!SetScrollBarProperties(QRect(width() - sbw, 0, sbw, height()),
                                    std::max(0, m_contentHeight - height()), height()))
            qCDebug(lcTaskPane).noquote() << QStringLiteral("Couldn't Set ScrollBar Properties");
        m_ScrollBar->show();
    } else {
        m_ScrollBar->setValue(0);
        m_ScrollBar->hide();
    }
    // The content is drawn shifted up by the bar's value.
    const int dy = m_ScrollBar->isHidden() ? 0 : -m_ScrollBar->value();
    if (dy != 0) {
        auto shift = [dy](Group& g) {
            g.headerRect.translate(0, dy);
            g.bodyRect.translate(0, dy);
            g.detailsTextRect.translate(0, dy);
            for (auto& it : g.items)
                it.rect.translate(0, dy);
            if (g.container && g.expanded)
                g.container->move(g.container->x(), g.container->y() + dy);
        };
        shift(m_special);
        for (int i = 1; i < m_groups.size(); ++i)
            shift(m_groups[i]);
        shift(m_details);
    }
    m_inLayout = false;
}

bool TaskPaneBar::SetScrollBarProperties(const QRect& geometry, int maximum, int pageStep) {
    m_ScrollBar->setGeometry(geometry);
    m_ScrollBar->setRange(0, maximum);
    m_ScrollBar->setPageStep(pageStep);
    return m_ScrollBar->geometry() == geometry && m_ScrollBar->minimum() == 0 &&
           m_ScrollBar->maximum() == maximum && m_ScrollBar->pageStep() == pageStep;
}

void TaskPaneBar::SetStyleOverride(const QString& schemeName) {
    m_styleOverride = schemeName;
    repaintPane();
}

void TaskPaneBar::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    repaintPane();
}

void TaskPaneBar::changeEvent(QEvent* e) {
    QWidget::changeEvent(e);
    switch (e->type()) {
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::ThemeChange:
    case QEvent::ApplicationPaletteChange:
        // Let pending events run, then repaint; the paint detects the style again.
        QTimer::singleShot(0, this, &TaskPaneBar::repaintPane);
        break;
    case QEvent::FontChange:
        repaintPane();
        break;
    default:
        break;
    }
}

void TaskPaneBar::reportIcon(const Item& it) {
    const quint64 key =
        (quint64(qHash(it.groupKey)) << 32) ^ (quint64(it.index) << 16) ^ quint64(quint16(it.icon));
    if (m_reportedIcons.contains(key))
        return;
    m_reportedIcons.insert(key);
    qCDebug(lcTaskPane).noquote() << QStringLiteral("No Defined Imagelist or invalid Image Index");
}

QIcon TaskPaneBar::iconFor(const Item& it) {
    // Icons count from 1 in the image list.
    if (m_images.isEmpty() || it.icon < 1 || it.icon > m_images.size()) {
        reportIcon(it);
        return QIcon();
    }
    return m_images.at(it.icon - 1);
}

void TaskPaneBar::paintEvent(QPaintEvent*) {
    QPainter out(this);
    if (!m_updatesEnabled) {
        // Nothing new is drawn; the last picture stays.
        if (!m_frame.isNull())
            out.drawPixmap(0, 0, m_frame);
        else
            out.fillRect(rect(), palette().color(QPalette::Window));
        return;
    }
    detectTheme();
    const qreal dpr = devicePixelRatioF();
    if (m_frame.size() != size() * dpr)
        m_frame = QPixmap(size() * dpr);
    m_frame.setDevicePixelRatio(dpr);
    {
        QPainter p(&m_frame);
        paintPane(p, PaletteForStyle(m_styleName, palette()));
    }
    out.drawPixmap(0, 0, m_frame);
    ++m_paintCount;
}

void TaskPaneBar::paintPane(QPainter& p, const TaskPanePalette& pal) {
    DoGradient(p, pal.paneTop, pal.paneBottom, false, 0, 0, width(), height());
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setRenderHint(QPainter::TextAntialiasing, true);
    auto paintGroup = [&](int index) {
        const Group& g = *group(index);
        if (g.expanded)
            paintBody(p, pal, g, index);
        paintHeader(p, pal, g, index);
    };
    if (m_special.visible)
        paintGroup(SpecialGroupIndex);
    for (int i = 1; i < m_groups.size(); ++i)
        paintGroup(i);
    if (m_details.visible)
        paintGroup(DetailsGroupIndex);

    if (hasFocus()) {
        QRect r;
        if (m_hotItem != 0)
            r = ItemRect(m_hotItemGroup, m_hotItem).adjusted(-2, 0, 2, 0);
        else if (m_hotHeader != 0)
            r = GroupHeaderRect(m_hotHeader).adjusted(2, 2, -2, -2);
        else
            r = rect().adjusted(4, 4, -5, -5); // focused, nothing hot yet: the whole pane
        if (!r.isEmpty()) {
            // A solid frame in a dark shade of the selection colour: the style's dotted focus
            // rectangle is barely visible on the pane's blue.
            p.save();
            p.setRenderHint(QPainter::Antialiasing);
            p.setPen(QPen(palette().color(QPalette::Highlight).darker(170), 2));
            p.setBrush(Qt::NoBrush);
            p.drawRoundedRect(QRectF(r).adjusted(1, 1, -1, -1), 3, 3);
            p.restore();
        }
    }
}

void TaskPaneBar::paintHeader(QPainter& p, const TaskPanePalette& pal, const Group& g, int index) {
    const QRect r = g.headerRect;
    if (r.isEmpty())
        return;
    const bool special = index == SpecialGroupIndex;
    const bool hot = g.headerState == 2;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(QRectF(r), kRadius, kRadius);
    path.addRect(QRectF(r.left(), r.top() + kRadius, r.width(), r.height() - kRadius));
    p.save();
    p.setClipPath(path.simplified());
    DoGradient(p, special ? pal.specialFrom : pal.headerFrom,
               special ? pal.specialTo : pal.headerTo, true, r.left(), r.top(), r.width(),
               r.height());
    p.restore();

    const bool besidePicture = special && !g.icon.isNull();
    if (besidePicture)
        p.drawPixmap(
            QRect(r.left() + 4, r.bottom() + 1 - kSpecialIcon - 2, kSpecialIcon, kSpecialIcon),
            g.icon);
    const int textLeft = r.left() + captionInset(besidePicture);
    const QRect textRect(textLeft, r.top(), r.right() - kCaptionRightGap - textLeft, r.height());
    p.setFont(boldFont(font()));
    p.setPen(special ? (hot ? pal.specialHotText : pal.specialText)
                     : (hot ? pal.headerHotText : pal.headerText));
    const QFontMetrics bfm(p.font());
    p.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
               bfm.elidedText(g.caption, Qt::ElideRight, std::max(0, textRect.width())));
    paintChevron(p, pal, r, g.expanded, hot, special);
}

void TaskPaneBar::paintChevron(QPainter& p, const TaskPanePalette& pal, const QRect& header,
                               bool expanded, bool hot, bool special) {
    const QRectF circle(header.right() - 6 - kButton + 1,
                        header.top() + (header.height() - kButton) / 2.0, kButton, kButton);
    p.save();
    p.setPen(QPen(
        special ? pal.specialButtonBorder : (hot ? pal.buttonHotBorder : pal.buttonBorder), 1));
    p.setBrush(special ? pal.specialButtonFace : pal.buttonFace);
    p.drawEllipse(circle.adjusted(0.5, 0.5, -0.5, -0.5));
    QPen pen(special ? (hot ? pal.specialHotText : pal.specialChevron)
                     : (hot ? pal.chevronHot : pal.chevron),
             1.6);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    const QPointF c = circle.center();
    const qreal dir = expanded ? -1 : 1; // chevrons point up when expanded, down when collapsed
    for (const qreal y : {c.y() - 2.25, c.y() + 2.25}) {
        QPolygonF v;
        v << QPointF(c.x() - 3.5, y - dir * 1.75) << QPointF(c.x(), y + dir * 1.75)
          << QPointF(c.x() + 3.5, y - dir * 1.75);
        p.drawPolyline(v);
    }
    p.restore();
}

void TaskPaneBar::paintBody(QPainter& p, const TaskPanePalette& pal, const Group& g, int index) {
    const QRect r = g.bodyRect;
    if (r.isEmpty())
        return;
    const bool special = index == SpecialGroupIndex;
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    p.fillRect(r, special ? pal.specialBody : pal.body);
    p.setPen(pal.bodyBorder);
    p.drawLine(r.left(), r.top(), r.left(), r.bottom());
    p.drawLine(r.right(), r.top(), r.right(), r.bottom());
    p.drawLine(r.left(), r.bottom(), r.right(), r.bottom());
    if (special && !g.background.isNull()) {
        const QSize s =
            g.background.deviceIndependentSize().toSize().boundedTo(r.size() - QSize(2, 2));
        p.setOpacity(0.35);
        p.drawPixmap(QRect(r.right() - s.width(), r.bottom() - s.height(), s.width(), s.height()),
                     g.background);
        p.setOpacity(1.0);
    }
    p.restore();

    const QFontMetrics fm(font());
    for (const Item& it : g.items) {
        if (it.rect.isEmpty())
            continue;
        const bool hot = m_hotItemGroup == index && m_hotItem == it.index;
        const QRect iconRect(it.rect.left(), it.rect.top() + (it.rect.height() - kIcon) / 2, kIcon,
                             kIcon);
        const QIcon icon = iconFor(it);
        if (!icon.isNull())
            icon.paint(&p, iconRect);
        QFont f = font();
        f.setUnderline(hot);
        p.setFont(f);
        p.setPen(hot ? pal.itemHotText : pal.itemText);
        const QRect textRect(iconRect.right() + 1 + kIconGap, it.rect.top(),
                             it.rect.right() - iconRect.right() - kIconGap, it.rect.height());
        p.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   fm.elidedText(it.caption, Qt::ElideRight, std::max(0, textRect.width() + 2)));
    }
    if (index == DetailsGroupIndex && !g.detailsTextRect.isEmpty()) {
        QRect t = g.detailsTextRect;
        int y = t.top();
        if (!g.image.isNull()) {
            const QSize s = g.image.deviceIndependentSize()
                                .toSize()
                                .scaled(QSize(t.width(), 10000), Qt::KeepAspectRatio)
                                .boundedTo(g.image.deviceIndependentSize().toSize());
            p.drawPixmap(QRect(t.left(), y, s.width(), s.height()), g.image);
            y += s.height() + 6;
        }
        if (!g.title.isEmpty()) {
            p.setFont(boldFont(font()));
            p.setPen(pal.itemText);
            const QRect br =
                p.boundingRect(QRect(t.left(), y, t.width(), 10000), Qt::TextWordWrap, g.title);
            p.drawText(QRect(t.left(), y, t.width(), br.height()), Qt::TextWordWrap, g.title);
            y += br.height() + 4;
        }
        if (!g.text.isEmpty()) {
            p.setFont(font());
            p.setPen(pal.itemText);
            p.drawText(QRect(t.left(), y, t.width(), t.bottom() - y + 1), Qt::TextWordWrap, g.text);
        }
    }
}

} // namespace quovara
