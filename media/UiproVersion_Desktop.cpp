#include "UiproVersion_Desktop.h"

#include "CommandConfinement.h"
#include "LineThrottle.h"
#include "LogCategories.h"
#include "Platform.h"
#include "Shell.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThreadPool>

#include <algorithm>
#include <cstdio>
#include <sys/statfs.h>
#include <unistd.h>

namespace {

const QString kUsbMount = QStringLiteral("/media/usb0");

void say(const char *text)
{
    std::fputs(text, stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

// The settings survive the upgrade through /userdata, then the watchdog is
// stopped so it does not restart the program the script replaces, then the
// script takes over. Runs off the GUI thread: killall is waited for.
void runUpgrade(const QString &fileName)
{
    const QString config = Platform::appDir() + QStringLiteral("/config/CS_Config.ini");
    const QString kept = Platform::path(QStringLiteral("/userdata/CS_Config.ini"));
    if (QFile::exists(config))
        QFile::copy(config, kept); // leaves an existing file as it is
    Shell::system(QStringLiteral("killall WatchCS"));

    QProcess script;
    script.setProgram(Platform::path(QStringLiteral("/usr/bin/execupdate.sh")));
    script.setArguments({fileName});
    script.setProcessEnvironment(Platform::childEnvironment());
    script.setWorkingDirectory(CommandConfinement().workingDirectory());
    qint64 pid = 0;
    if (!script.startDetached(&pid))
        qCWarning(lcHardware).noquote() << "cannot start the update script for" << LineThrottle::shown(fileName, 200);
}

} // namespace

UiproVersion_Desktop::UiproVersion_Desktop(QObject *parent)
    : QObject(parent)
{
}

QString UiproVersion_Desktop::versionEntry(const QString &fileName)
{
    const int i = fileName.indexOf(QLatin1Char('_'), 8);
    if (i < 0)
        return fileName;
    return fileName.mid(i + 1) + QLatin1Char('_') + fileName.left(i + 1);
}

int UiproVersion_Desktop::versionNumber(const QString &entry)
{
    QString digits;
    for (const QChar c : entry) {
        if (c.isNumber())
            digits += c;
    }
    bool ok = false;
    const int value = digits.toInt(&ok);
    return ok ? value : 0;
}

int UiproVersion_Desktop::check_is_usb_disk_ok_for_version()
{
    if (::access(QFile::encodeName(Platform::path(QStringLiteral("/sys/bus/usb/devices/1-1/"))).constData(), F_OK) != 0) {
        say("usb disk not input");
        return -1;
    }
    struct statfs fs;
    if (::statfs(QFile::encodeName(Platform::path(kUsbMount)).constData(), &fs) != 0) {
        say("statfs error");
        return -2;
    }
    return 0;
}

QStringList UiproVersion_Desktop::getUpgradeVersionList()
{
    const QDir dir(Platform::path(kUsbMount));
    if (!dir.exists())
        qCDebug(lcHardware) << "Dir not exist";
    const QStringList names = dir.entryList({QStringLiteral("ZORVANE_RELEASE_*.img"), QStringLiteral("ZORVANE_ALPHA_*.img")},
                                            QDir::Files | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    QStringList versions;
    for (const QString &name : names)
        versions << versionEntry(name);
    std::stable_sort(versions.begin(), versions.end(),
                     [](const QString &a, const QString &b) { return versionNumber(a) < versionNumber(b); });
    m_versions = versions;
    return m_versions;
}

int UiproVersion_Desktop::start_upgrade_software(QString fileName)
{
    if (fileName.isEmpty())
        return 0;
    // Images lie directly on the disk: a name with a folder in it is not one.
    if (fileName.contains(QLatin1Char('/')) || fileName.contains(QChar(0))) {
        qCWarning(lcHardware).noquote() << "upgrade refused, not an image name:" << LineThrottle::shown(fileName, 200);
        return 0;
    }
    QThreadPool::globalInstance()->start([fileName] { runUpgrade(fileName); });
    return 0;
}
