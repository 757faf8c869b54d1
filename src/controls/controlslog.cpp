#include "controls/controlslog.h"

namespace quovara {
// Quiet unless asked for (QT_LOGGING_RULES="quovara.controls.*.debug=true").
Q_LOGGING_CATEGORY(lcTaskPane, "quovara.controls.taskpane", QtInfoMsg)
Q_LOGGING_CATEGORY(lcToolbar, "quovara.controls.toolbar", QtInfoMsg)
Q_LOGGING_CATEGORY(lcProgressBar, "quovara.controls.progressbar", QtInfoMsg)
} // namespace quovara
