#pragma once
// Device paths and child-process environment.
//
// On the device every path is used as written. With CS_SYSROOT=<dir> every
// absolute device path resolves under <dir>, the application directory
// becomes <dir>/usr/bin, and child processes only find programs inside
// <dir>: a desktop run or a test can never touch the host's clock, network
// or processes (CommandConfinement keeps the commands run inside).
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace Platform {

// The sysroot in force ("" on the device). Read from CS_SYSROOT on each call
// so tests can switch it with qputenv.
QString sysroot();

// Maps an absolute device path ("/sys/...", "/media/usb0", "/usr/bin/config")
// to the real path; ".." never climbs above the sysroot. Relative paths are
// returned unchanged.
QString path(const QString &devicePath);

// Directory of the executable ("/usr/bin" on the device); config/ lives in it.
QString appDir();

// Directories searched for programs run by the shell layer.
QStringList programDirs();

// Environment for child processes: the inherited one; with a sysroot, PATH
// holds only its program directories and HOME is the sysroot.
QProcessEnvironment childEnvironment();

// Quotes a word for /bin/sh. Words made only of safe characters come back
// unchanged, so command texts stay exactly as on the device.
QString shellQuote(const QString &word);

} // namespace Platform
