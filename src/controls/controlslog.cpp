#include "controls/controlslog.h"

namespace quovara {
Q_LOGGING_CATEGORY(lcTaskPane, "quovara.controls.taskpane")
Q_LOGGING_CATEGORY(lcToolbar, "quovara.controls.toolbar")
Q_LOGGING_CATEGORY(lcProgressBar, "quovara.controls.progressbar")
} // namespace quovara
