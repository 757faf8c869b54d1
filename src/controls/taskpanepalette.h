// Colours of the task pane's four styles.
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace quovara {

struct TaskPanePalette {
    QColor paneTop, paneBottom;  // pane background (vertical gradient)
    QColor headerFrom, headerTo; // ordinary and details headers (horizontal gradient, or
                                 // one flat colour when both are the same)
    QColor headerText, headerHotText;
    QColor specialFrom, specialTo; // special group header
    QColor specialText, specialHotText;
    QColor body, specialBody, bodyBorder;
    QColor buttonFace, buttonBorder, buttonHotBorder; // the round expand button
    QColor chevron, chevronHot;
    QColor specialButtonFace, specialButtonBorder, specialChevron;
    // Item rows: system colours in every style.
    QColor itemText, itemHotText, itemFocus, grayText;
};

// The palette of a style: "Classic", "Metallic", "HomeStead", anything else = default blue.
TaskPanePalette PaletteForStyle(const QString& styleName, const QPalette& system);

// A two-colour linear gradient over a rectangle, horizontal (DrawHorVer true) or vertical.
void DoGradient(class QPainter& p, const QColor& FromColor, const QColor& ToColor, bool DrawHorVer,
                int Left, int Top, int Width, int Height);

// The colour as plain red-green-blue; system colour values are translated.
QColor SoftColor(std::uint32_t lColor, const QPalette& system);

} // namespace quovara
