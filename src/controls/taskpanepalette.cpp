#include "controls/taskpanepalette.h"

#include "controls/olecolor.h"

#include <QLinearGradient>
#include <QPainter>

namespace quovara {

QColor SoftColor(std::uint32_t lColor, const QPalette& system) {
    return TranslateColor(lColor, system);
}

void DoGradient(QPainter& p, const QColor& FromColor, const QColor& ToColor, bool DrawHorVer,
                int Left, int Top, int Width, int Height) {
    // The two stops sit on the rectangle's opposite corners' edges.
    QLinearGradient g = DrawHorVer ? QLinearGradient(Left, 0, Left + Width, 0)
                                   : QLinearGradient(0, Top, 0, Top + Height);
    g.setColorAt(0, FromColor);
    g.setColorAt(1, ToColor);
    p.fillRect(QRect(Left, Top, Width, Height), g);
}

TaskPanePalette PaletteForStyle(const QString& styleName, const QPalette& sys) {
    TaskPanePalette t;
    auto sc = [&](std::uint32_t index) { return SystemColor(index, sys); };
    t.itemText = sc(SysButtonText);
    t.itemHotText = sc(SysHighlight);
    t.itemFocus = sc(SysGradientActiveCaption);
    t.grayText = sc(SysGrayText);

    if (styleName == QLatin1String("Classic")) {
        t.paneTop = t.paneBottom = sc(SysButtonFace);
        t.headerFrom = sc(Sys3DDarkShadow);
        t.headerTo = sc(SysButtonText);
        t.headerText = sc(SysWindow);
        t.headerHotText = sc(SysGradientActiveCaption);
        t.specialFrom = sc(SysButtonFace);
        t.specialTo = sc(Sys3DHighlight);
        t.specialText = sc(SysButtonText);
        t.specialHotText = sc(SysHighlight);
        t.body = t.specialBody = sc(SysWindow);
        t.bodyBorder = sc(SysButtonShadow);
        t.buttonFace = sc(SysWindow);
        t.buttonBorder = sc(SysButtonShadow);
        t.buttonHotBorder = sc(SysHighlight);
        t.chevron = sc(SysButtonText);
        t.chevronHot = sc(SysHighlight);
        t.specialButtonFace = sc(SysWindow);
        t.specialButtonBorder = sc(SysButtonShadow);
        t.specialChevron = sc(SysButtonText);
        return t;
    }
    if (styleName == QLatin1String("Metallic")) {
        t.paneTop = QColor(196, 200, 212);
        t.paneBottom = QColor(177, 179, 200);
        // The silver headers are one flat colour.
        t.headerFrom = QColor(214, 215, 224);
        t.headerTo = QColor(214, 215, 224);
        t.headerText = QColor(63, 61, 61);
        t.headerHotText = QColor(126, 124, 124);
        t.specialFrom = QColor(119, 119, 146);
        t.specialTo = QColor(180, 182, 199);
        t.specialText = QColor(255, 255, 255);
        t.specialHotText = QColor(230, 230, 230);
        t.body = t.specialBody = QColor(240, 241, 245);
        t.bodyBorder = QColor(255, 255, 255);
        t.buttonFace = QColor(255, 255, 255);
        t.buttonBorder = QColor(178, 179, 194);
        t.buttonHotBorder = QColor(126, 124, 124);
        t.chevron = QColor(63, 61, 61);
        t.chevronHot = QColor(126, 124, 124);
        t.specialButtonFace = QColor(146, 148, 170);
        t.specialButtonBorder = QColor(230, 230, 236);
        t.specialChevron = QColor(255, 255, 255);
        return t;
    }
    if (styleName == QLatin1String("HomeStead")) {
        t.paneTop = QColor(204, 217, 173);
        t.paneBottom = QColor(165, 189, 132);
        t.headerFrom = QColor(255, 252, 236);
        t.headerTo = QColor(224, 231, 184);
        t.headerText = QColor(86, 102, 45);
        t.headerHotText = QColor(114, 146, 29);
        t.specialFrom = QColor(119, 140, 64);
        t.specialTo = QColor(150, 168, 103);
        t.specialText = QColor(255, 255, 255);
        t.specialHotText = QColor(224, 231, 184);
        t.body = t.specialBody = QColor(246, 246, 236);
        t.bodyBorder = QColor(255, 255, 255);
        t.buttonFace = QColor(255, 255, 255);
        t.buttonBorder = QColor(185, 196, 150);
        t.buttonHotBorder = QColor(114, 146, 29);
        t.chevron = QColor(86, 102, 45);
        t.chevronHot = QColor(114, 146, 29);
        t.specialButtonFace = QColor(136, 156, 84);
        t.specialButtonBorder = QColor(224, 231, 184);
        t.specialChevron = QColor(255, 255, 255);
        return t;
    }
    // The default blue scheme.
    t.paneTop = QColor(123, 162, 231);
    t.paneBottom = QColor(99, 117, 214);
    t.headerFrom = QColor(255, 255, 255);
    t.headerTo = QColor(198, 211, 247);
    t.headerText = QColor(33, 93, 198);
    t.headerHotText = QColor(66, 142, 255);
    t.specialFrom = QColor(0, 73, 181);
    t.specialTo = QColor(41, 102, 222);
    t.specialText = QColor(255, 255, 255);
    t.specialHotText = QColor(198, 211, 247);
    t.body = QColor(214, 223, 247);
    t.specialBody = QColor(239, 243, 255);
    t.bodyBorder = QColor(255, 255, 255);
    t.buttonFace = QColor(255, 255, 255);
    t.buttonBorder = QColor(181, 196, 236);
    t.buttonHotBorder = QColor(66, 142, 255);
    t.chevron = QColor(33, 93, 198);
    t.chevronHot = QColor(66, 142, 255);
    t.specialButtonFace = QColor(36, 96, 214);
    t.specialButtonBorder = QColor(198, 211, 247);
    t.specialChevron = QColor(255, 255, 255);
    return t;
}

} // namespace quovara
