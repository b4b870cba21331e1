#include "LogCategories.h"

Q_LOGGING_CATEGORY(lcApp, "cs.app")
Q_LOGGING_CATEGORY(lcLog, "cs.log")
Q_LOGGING_CATEGORY(lcSettings, "cs.settings")
Q_LOGGING_CATEGORY(lcShell, "cs.shell")
Q_LOGGING_CATEGORY(lcLink, "cs.link")
Q_LOGGING_CATEGORY(lcReport, "cs.report")
Q_LOGGING_CATEGORY(lcPreview, "cs.preview")
Q_LOGGING_CATEGORY(lcHardware, "cs.hardware")
Q_LOGGING_CATEGORY(lcSim, "cs.sim")
