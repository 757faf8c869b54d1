// Colours given the old way: a 32-bit value that is either a plain colour (red in the low
// byte, then green, then blue) or, with the high bit set, the index of a system colour.
#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace quovara {

// System colour indices used by the controls.
enum SystemColorIndex : std::uint32_t {
    SysScrollBar = 0,
    SysDesktop = 1,
    SysActiveCaption = 2,
    SysInactiveCaption = 3,
    SysMenu = 4,
    SysWindow = 5,
    SysWindowFrame = 6,
    SysMenuText = 7,
    SysWindowText = 8,
    SysCaptionText = 9,
    SysHighlight = 13,
    SysHighlightText = 14,
    SysButtonFace = 15,
    SysButtonShadow = 16,
    SysGrayText = 17,
    SysButtonText = 18,
    Sys3DHighlight = 20,
    Sys3DDarkShadow = 21,
    Sys3DLight = 22,
    SysInfoText = 23,
    SysInfoBackground = 24,
    SysHotLight = 26,
    SysGradientActiveCaption = 27,
};

// The 32-bit value that names system colour `index` (high bit set).
constexpr std::uint32_t SystemColorValue(std::uint32_t index) {
    return 0x80000000u | index;
}

// A system colour taken from a palette.
QColor SystemColor(std::uint32_t index, const QPalette& palette);

// Translates a 32-bit colour value: system colour indices through the palette, plain values
// split into red (low byte), green and blue.
QColor TranslateColor(std::uint32_t value, const QPalette& palette);

// The plain 32-bit value of a colour (red in the low byte).
std::uint32_t ColorToValue(const QColor& color);

// Splits a plain colour value into its channels: red = low byte, green, blue = third byte.
void Long2RGB(std::uint32_t nColor, int& Red, int& Green, int& Blue);

} // namespace quovara
