#pragma once
// Pieces of the start-up sequence that tests drive without a main().
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

class QObject;
class QQmlEngine;

namespace Startup {

// Pins the calling thread to one processor core (threads started later inherit it).
void pinCurrentThread(int cpu);

// Registers every QML-facing class under its import URI, version 1.0.
void registerQmlTypes();

// True when the first argument after the program name contains "watch" (case-sensitive).
bool isWatchStart(const QStringList &arguments);

// "qrc:/main.qml", or the file named by CS_MAIN_QML (development only).
QUrl mainDocument();

// Optional screenshot for unattended desktop runs: with CS_SCREENSHOT=<file>
// the first window is saved after CS_SCREENSHOT_AFTER_MS (default 5000) ms;
// with CS_QUIT_AFTER_MS the application quits after that many ms (root may be null).
// with CS_EXIT_AFTER_FIRST_FRAME the time from markProcessStart() to the first
// frame and the peak RSS are printed, then the application quits (benchmarks).
void scheduleDevelopmentHooks(QObject *root);

// Starts the clock the first-frame report measures from.
void markProcessStart();

// The page to open at start (CS_START_PAGE), "" for the main screen.
QString startPage();

// What the About page shows of this program itself: its version and build
// date, and the versions and licences of the libraries it is built on.
QVariantMap aboutInfo();

// Text entry goes through Qt Virtual Keyboard, drawn inside the window:
// selects its input method unless the environment already chose one.
void selectVirtualKeyboard();

// Points fontconfig at the panel's own font configuration (config/fonts.conf
// beside the executable: DejaVu Sans and WenQuanYi Micro Hei only) unless
// FONTCONFIG_FILE is already set or either font is missing. The fonts are
// part of the software image, like Qt's plugins, so they are looked for on
// this machine and never under CS_SYSROOT. Call before the application object.
void selectFontConfiguration();

// Builds the font database (fontconfig's configuration and font list) on a
// pool thread free to run on any core, while the main document loads: the
// first text of the first frame would otherwise wait for it. Call after the
// application object exists.
void warmFontDatabase();

} // namespace Startup
