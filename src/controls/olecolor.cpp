#include "controls/olecolor.h"

namespace quovara {

QColor SystemColor(std::uint32_t index, const QPalette& p) {
    switch (index) {
    case SysScrollBar:
        return p.color(QPalette::Button);
    case SysDesktop:
        return p.color(QPalette::Dark);
    case SysActiveCaption:
    case SysHotLight:
        return p.color(QPalette::Highlight);
    case SysInactiveCaption:
        return p.color(QPalette::Inactive, QPalette::Highlight);
    case SysMenu:
    case SysWindow:
    case SysInfoBackground:
        return p.color(QPalette::Base);
    case SysWindowFrame:
    case Sys3DDarkShadow:
        return p.color(QPalette::Shadow);
    case SysMenuText:
    case SysWindowText:
    case SysInfoText:
        return p.color(QPalette::WindowText);
    case SysCaptionText:
    case SysHighlightText:
        return p.color(QPalette::HighlightedText);
    case SysHighlight:
        return p.color(QPalette::Highlight);
    case SysButtonFace:
        return p.color(QPalette::Button);
    case SysButtonShadow:
        return p.color(QPalette::Dark);
    case SysGrayText:
        return p.color(QPalette::Disabled, QPalette::Text);
    case SysButtonText:
        return p.color(QPalette::ButtonText);
    case Sys3DHighlight:
        return p.color(QPalette::Light);
    case Sys3DLight:
        return p.color(QPalette::Midlight);
    case SysGradientActiveCaption:
        return p.color(QPalette::Highlight).lighter(140);
    default:
        return p.color(QPalette::Window);
    }
}

QColor TranslateColor(std::uint32_t value, const QPalette& palette) {
    if (value & 0x80000000u)
        return SystemColor(value & 0xFFu, palette);
    int r = 0, g = 0, b = 0;
    Long2RGB(value, r, g, b);
    return QColor(r, g, b);
}

std::uint32_t ColorToValue(const QColor& c) {
    return std::uint32_t(c.red()) | (std::uint32_t(c.green()) << 8) |
           (std::uint32_t(c.blue()) << 16);
}

void Long2RGB(std::uint32_t nColor, int& Red, int& Green, int& Blue) {
    Red = int(nColor & 0xFFu);
    Green = int((nColor >> 8) & 0xFFu);
    Blue = int((nColor >> 16) & 0xFFu);
}

} // namespace quovara
