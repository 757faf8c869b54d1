#include "logging.h"

Q_LOGGING_CATEGORY(lcFiles, "quovara.files")
Q_LOGGING_CATEGORY(lcRunner, "quovara.runner")
Q_LOGGING_CATEGORY(lcListing, "quovara.listing")
Q_LOGGING_CATEGORY(lcEngineSwitch, "quovara.engineswitch")
Q_LOGGING_CATEGORY(lcDesktop, "quovara.desktop")
