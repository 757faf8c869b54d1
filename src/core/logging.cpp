#include "logging.h"

// Debug output is off unless asked for, e.g. QT_LOGGING_RULES="quovara.*.debug=true".

Q_LOGGING_CATEGORY(lcFiles, "quovara.files", QtInfoMsg)
Q_LOGGING_CATEGORY(lcRunner, "quovara.runner", QtInfoMsg)
Q_LOGGING_CATEGORY(lcListing, "quovara.listing", QtInfoMsg)
Q_LOGGING_CATEGORY(lcEngineSwitch, "quovara.engineswitch", QtInfoMsg)
Q_LOGGING_CATEGORY(lcDesktop, "quovara.desktop", QtInfoMsg)
