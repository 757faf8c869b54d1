#include "handcursor.h"

#include <QWidget>

namespace quovara {

void SetHandCursor(QWidget* widget, bool hand) {
    if (widget)
        widget->setCursor(hand ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

} // namespace quovara
