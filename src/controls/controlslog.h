// Debug logging categories of the custom controls. The controls report their own problems
// here (nothing is shown to the user); the task pane's texts are fixed and tested.
#pragma once

#include <QLoggingCategory>

namespace quovara {
Q_DECLARE_LOGGING_CATEGORY(lcTaskPane)
Q_DECLARE_LOGGING_CATEGORY(lcToolbar)
Q_DECLARE_LOGGING_CATEGORY(lcProgressBar)
} // namespace quovara
