// Named debug logging categories. Errors that the behaviour goes on past (a failed delete,
// rename or folder creation) are still checked and reported here, never swallowed unseen.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcFiles)
Q_DECLARE_LOGGING_CATEGORY(lcRunner)
Q_DECLARE_LOGGING_CATEGORY(lcListing)
Q_DECLARE_LOGGING_CATEGORY(lcEngineSwitch)
Q_DECLARE_LOGGING_CATEGORY(lcDesktop)
