// The window that says "Preparing the engine for its first use…" while the engine's wine prefix
// is made (the first job of a new user waits several seconds for it).
#pragma once

class QWidget;

namespace quovara {

// From now on, a small window with that text and a busy bar is shown while the prefix is made,
// centred on `parent` (or the screen); it goes when the prefix is ready.
void InstallPreparingNotice(QWidget* parent = nullptr);

} // namespace quovara
