// The pointer over things that can be opened or clicked like a link.
#pragma once

class QWidget;

namespace quovara {

// The pointer over `widget` becomes the hand when `hand` is true, the arrow otherwise.
void SetHandCursor(QWidget* widget, bool hand);

} // namespace quovara
