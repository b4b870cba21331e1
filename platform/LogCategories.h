#pragma once
// Debug categories per subsystem, so QT_LOGGING_RULES can filter them
// (for example QT_LOGGING_RULES="cs.link.debug=false").
#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcApp)       // cs.app: start-up, languages
Q_DECLARE_LOGGING_CATEGORY(lcLog)       // cs.log: lines written by writeLog
Q_DECLARE_LOGGING_CATEGORY(lcSettings)  // cs.settings
Q_DECLARE_LOGGING_CATEGORY(lcShell)     // cs.shell: commands run
Q_DECLARE_LOGGING_CATEGORY(lcLink)      // cs.link: transport and commands
Q_DECLARE_LOGGING_CATEGORY(lcReport)    // cs.report: report dispatch
Q_DECLARE_LOGGING_CATEGORY(lcPreview)   // cs.preview: frames and levels
Q_DECLARE_LOGGING_CATEGORY(lcHardware)  // cs.hardware: board control
Q_DECLARE_LOGGING_CATEGORY(lcSim)       // cs.sim: the media service simulator
