#pragma once
// The toolbar's layout measures, shared by its layout and painting code.

namespace quovara::toolbar_metrics {
// Characters of a tip text that are kept.
constexpr int kTipTextLimit = 80;
// Characters that fit the caption buffer besides the NUL.
constexpr int kCaptionBuffer = 260;
// Room round a button's image and caption.
constexpr int kPadX = 6;
constexpr int kPadY = 4;
// Between a button's image and its caption.
constexpr int kImageTextGap = 3;
constexpr int kSeparatorWidth = 8;
// The drop-down arrow of a drop-down button.
constexpr int kArrowWidth = 13;
// The overflow arrow at the right end.
constexpr int kOverflowWidth = 18;
} // namespace quovara::toolbar_metrics
