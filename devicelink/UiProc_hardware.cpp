// Board control: backlight, fan, the HDMI bridge firmware upgrade, the
// sub-display process, clock and time zone, temperature, marker files, the
// ping check and the panel size. Everything goes through sysfs and the
// shell layer, so a sysroot run keeps it inside the sysroot. The pure
// decisions live in BoardControl.
#include "UiProc.h"

#include "BoardControl.h"
#include "LogCategories.h"
#include "Logger.h"
#include "Platform.h"
#include "Shell.h"

#include <QFile>
#include <QFileInfo>

#include <system_error>
#include <thread>

namespace {

const char kBridgeUpgradeStatus[] = "/sys/devices/platform/lt6911_upgrade/status";
const char kBridgeUpdateStatus[] = "/sys/devices/platform/lt6911_update/status";
const char kKillSubDisplay[] = "ps aux | grep SubCS | grep -v 'grep' | awk '{print $2}' | xargs kill -9";

// Board work that may take seconds runs on its own detached thread, so the
// screens never wait for it. Without a thread the work is dropped, said in
// the log, rather than run on the GUI thread.
void runDetached(const char *slot, std::function<void()> work)
{
    try {
        std::thread(std::move(work)).detach();
    } catch (const std::system_error &e) {
        ::writeLog(QStringLiteral("UiProc::%1 no thread (%2), not run").arg(QLatin1String(slot), QString::fromLocal8Bit(e.what())));
    }
}

QByteArray readNode(const char *node, int timeoutMs = Shell::kProcessTimeoutMs)
{
    return BoardControl::untilNul(Shell::process(QStringLiteral("cat"), {QLatin1String(node)}, timeoutMs));
}

bool pingHost(const QString &host)
{
    QStringList args{QStringLiteral("-s"), QStringLiteral("1"), QStringLiteral("-c"), QStringLiteral("1")};
    if (!host.isEmpty())
        args << host; // one argument, never through a shell
    return BoardControl::pingAnswered(Shell::process(QStringLiteral("ping"), args, Shell::kProcessTimeoutMs));
}

} // namespace

void UiProc::setClock(std::function<QDateTime()> clock) { m_clock = std::move(clock); }

bool UiProc::connectBrightness(int value)
{
    ::writeLog(QStringLiteral("UiProc::sendBrightness ==================== Brightness value"));
    ::writeLog(QStringLiteral("UiProc::sendBrightness ==================== Brightness value:") + QString::number(value));
    Shell::system(QStringLiteral("echo %1 > /sys/class/backlight/backlight/brightness").arg(value));
    return true;
}

bool UiProc::connectFans(int ratePercent) { return connectFans(ratePercent, false); }

bool UiProc::connectFans(int ratePercent, bool bInit)
{
    runDetached("connectFans", [ratePercent, bInit] {
        ::writeLog(QStringLiteral("UiProc::sendFans ==================== fans rate"));
        if (bInit) {
            ::writeLog(QStringLiteral("UiProc::sendFans ==================== fans init"));
            Shell::system(QStringLiteral("echo 0 > /sys/class/pwm/pwmchip1/export"));
            Shell::system(QStringLiteral("sleep 1")); // the pwm0 node appears after the export
            Shell::system(QStringLiteral("echo 50000 > /sys/class/pwm/pwmchip1/pwm0/period"));
            Shell::system(QStringLiteral("echo 1 > /sys/class/pwm/pwmchip1/pwm0/enable"));
        }
        const int duty = BoardControl::fanDuty(ratePercent);
        ::writeLog(QStringLiteral("UiProc::sendFans ==================== fans rate:") + QString::number(duty));
        Shell::system(QStringLiteral("echo %1 > /sys/class/pwm/pwmchip1/pwm0/duty_cycle").arg(duty));
    });
    return true;
}

bool UiProc::connectHdmiUpdate()
{
    runDetached("connectHdmiUpdate", [] {
        ::writeLog(QStringLiteral("UiProc::sendHDMI ==================== HDMI 升级"));
        ::writeLog(QStringLiteral("UiProc::sendFans ==================== fans init"));
        Shell::system(QStringLiteral("echo 1 > /sys/devices/platform/lt6911_upgrade/upgrade"));
        Shell::system(QStringLiteral("echo 1 > /sys/devices/platform/lt6911_update/update"));
    });
    return true;
}

int UiProc::connectHdmiCheck()
{
    // A board without the bridge's upgrade node has nothing to wait for.
    if (!QFileInfo::exists(Platform::path(QLatin1String(kBridgeUpgradeStatus)))) {
        qCDebug(lcHardware).noquote() << "NO HDMI FILE";
        return 1;
    }
    const QByteArray upgrade = readNode(kBridgeUpgradeStatus);
    const QByteArray update = readNode(kBridgeUpdateStatus);
    qCDebug(lcHardware).noquote() << "resultUpgrade:" << upgrade << "resultUpdate:" << update;
    return BoardControl::bridgeStatus(upgrade, update);
}

bool UiProc::connectReSubCS()
{
    // Called every 200 ms: act on a change of the monitor only.
    const bool connected = readNode("/sys/class/drm/card0-HDMI-A-1/status") == "connected\n";
    if (connected && !m_hdmiOutConnected) {
        m_hdmiOutConnected = true;
        Shell::system(QLatin1String(kKillSubDisplay));
        Shell::system(QStringLiteral("/usr/bin/SubCS &"));
    } else if (!connected && m_hdmiOutConnected) {
        m_hdmiOutConnected = false;
        Shell::system(QLatin1String(kKillSubDisplay));
    }
    return true;
}

bool UiProc::connectSetDate(int year, int month, int days, int hours, int minutes, int seconds)
{
    ::writeLog(QStringLiteral("UiProc::sendSetDate ==================== set date"));
    const BoardControl::ClockTexts texts = BoardControl::setDateTexts(year, month, days, hours, minutes, seconds);
    qCDebug(lcHardware).noquote() << "---------r---ggg-----------------------------------------------------------setTime"
                                  << texts.date << texts.time;
    const int dateRun = Shell::system(QStringLiteral("date -s ") + texts.date);
    const int timeRun = Shell::system(QStringLiteral("date -s ") + texts.time);
    if (dateRun != -1 && timeRun != -1)
        emit setTimeByTimeZoneSuccess();
    else
        qCDebug(lcHardware).noquote() << "set time by timeZone default";
    return true;
}

void UiProc::shiftClock(int hours, int minutes)
{
    const QDateTime now = m_clock ? m_clock() : QDateTime::currentDateTime();
    const BoardControl::ClockTexts texts = BoardControl::timeZoneStep(now, hours, minutes);
    qCDebug(lcHardware).noquote() << "---------r--------------------------------------------------------------setTime"
                                  << texts.date << texts.time << "hour" << texts.hour;
    const int dateRun = Shell::system(QStringLiteral("date -s ") + texts.date);
    const int timeRun = Shell::system(QStringLiteral("date -s ") + texts.time);
    if (dateRun == -1 || timeRun == -1)
        qCDebug(lcHardware).noquote() << "set time by timeZone default";
}

void UiProc::connectSetDateByTimeZone(int hourDif, int minutesDif, int curHour, int curMinutes)
{
    // Undo the old zone's offset, then apply the new one, each from the clock as it is then.
    shiftClock(hourDif, minutesDif);
    shiftClock(curHour, curMinutes);
    emit setTimeByTimeZoneSuccess();
}

void UiProc::getCPUTemperature()
{
    const WorkerReplies::Channel replies = m_workerReplies.channel();
    runDetached("getCPUTemperature", [this, replies] {
        const QByteArray out = Shell::process(QStringLiteral("cat"),
                                              {QStringLiteral("/sys/class/thermal/thermal_zone1/temp"),
                                               QStringLiteral("/sys/class/thermal/thermal_zone0/temp")},
                                              1000);
        const std::optional<int> temperature = BoardControl::maxTemperature(out);
        if (!temperature)
            return;
        qCDebug(lcHardware).noquote() << "----nMaxTemp=" << *temperature;
        replies.post([this, t = *temperature] { emit sigCPUTemperature(t); });
    });
}

void UiProc::checkNetWorkOnline()
{
    // The ping runs on the worker; the count and the signal are the
    // GUI thread's, as for tdCheckNetWorkOnline.
    const QString host = m_targetHost;
    const WorkerReplies::Channel replies = m_workerReplies.channel();
    runDetached("checkNetWorkOnline", [this, host, replies] {
        const bool online = pingHost(host);
        replies.post([this, host, online] { emit sigNetConnectResult(host, ++m_pingCount, online); });
    });
}

void UiProc::tdCheckNetWorkOnline()
{
    const QString host = m_targetHost;
    const bool online = pingHost(host);
    emit sigNetConnectResult(host, ++m_pingCount, online);
}

bool UiProc::updateFactory()
{
    const QString marker = Platform::path(QStringLiteral("/usr/bin/factory"));
    if (!QFileInfo::exists(marker)) {
        ::writeLog(QStringLiteral("no find factory"));
        return false;
    }
    QFile::remove(marker);
    Shell::system(QStringLiteral("update factory"));
    return true;
}

bool UiProc::qtVersion()
{
    // Left by an upgrade of this software: present once, on the first start after it.
    const QString marker = Platform::path(QStringLiteral("/usr/bin/qt_version"));
    if (!QFileInfo::exists(marker)) {
        ::writeLog(QStringLiteral("no find qt_version"));
        return false;
    }
    QFile::remove(marker);
    return true;
}

QString UiProc::getScreenSize()
{
    QFile mode(Platform::path(QStringLiteral("/sys/class/drm/card0-DSI-1/mode")));
    if (!mode.exists() || !mode.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    // A sysfs attribute is at most one page.
    return QString::fromUtf8(mode.read(4096));
}
