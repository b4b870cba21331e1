// Board control through UiProc in a private sysroot: the exact command
// lines and sysfs writes, the stand-ins' journal, the signals, the clock
// shift under a fixed clock, and slots that must return before their work.
#include "Logger.h"
#include "Shell.h"
#include "LogTap.h"
#include "TestSysroot.h"
#include "UiProc.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

// Runs commands for real (so the sysroot sees every effect), keeping each
// system() and process() command as the product wrote it, in order.
class RecordingRunner : public SystemShellRunner
{
public:
    int system(const QString &line) override
    {
        add(line);
        return failSystem ? -1 : SystemShellRunner::system(line);
    }
    QByteArray process(const QString &program, const QStringList &args, int timeoutMs) override
    {
        add((QStringList{program} + args).join(QLatin1Char(' ')));
        return SystemShellRunner::process(program, args, timeoutMs);
    }
    QStringList lines() const { QMutexLocker lock(&m_mutex); return m_lines; }
    void clear() { QMutexLocker lock(&m_mutex); m_lines.clear(); }
    std::atomic<bool> failSystem{false};

private:
    void add(const QString &line) { QMutexLocker lock(&m_mutex); m_lines << line; }
    mutable QMutex m_mutex;
    QStringList m_lines;
};

// A script of the test's own in place of a sysroot program (a link to the common stand-in).
bool replaceProgram(const TestSysroot &root, const QString &name, const QByteArray &body)
{
    const QString file = root.path(QStringLiteral("/bin/") + name);
    QFile::remove(file);
    return TestSysroot::writeFile(file, "#!/bin/sh\n" + body)
        && QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}
QByteArray journaling(const char *name) { return QByteArray("echo \"") + name + " $*\" >> \"$CS_SYSROOT/commands.log\"\n"; }

using Call = std::function<void(UiProc &)>;

} // namespace

Q_DECLARE_METATYPE(Call)

class TstHardware : public QObject
{
    Q_OBJECT
    RecordingRunner m_runner;
    std::unique_ptr<TestSysroot> m_root;
    std::unique_ptr<UiProc> m_proc;

    QStringList journal() const { return m_root->commands(); }
    QByteArray node(const QString &path) const { return TestSysroot::readFile(m_root->path(path)); }
    void setNode(const QString &path, const QByteArray &bytes) { QVERIFY(TestSysroot::writeFile(m_root->path(path), bytes)); }
    void removeNode(const QString &path) { QVERIFY(QFile::remove(m_root->path(path))); }
    static bool logged(const QString &line) // in the run's log file
    {
        return QString::fromUtf8(TestSysroot::readFile(Logger::instance().currentFile())).contains(": " + line + '\n');
    }

private slots:
    void initTestCase()
    {
        qputenv("CS_LISTEN_PORT", "0");
        qputenv("CS_MEDIA_PORT", "9"); // discard: device commands go nowhere
        Shell::setRunner(&m_runner);
    }
    void cleanupTestCase() { Shell::setRunner(nullptr); }
    void init()
    {
        m_root.reset(new TestSysroot(true));
        QVERIFY(m_root->isValid());
        m_proc.reset(new UiProc);
        Logger::instance().setSwitch(1);
        m_runner.clear();
        m_runner.failSystem = false;
    }
    void cleanup()
    {
        m_proc.reset();
        Logger::instance().close();
        m_root.reset();
    }

    // Every "echo V > node" must also leave "V\n" in the node.
    void sysfsWrites_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QStringList>("commands"); // in order
        QTest::addColumn<QString>("logLine");
        const QStringList init{"echo 0 > /sys/class/pwm/pwmchip1/export", "sleep 1", "echo 50000 > /sys/class/pwm/pwmchip1/pwm0/period",
                               "echo 1 > /sys/class/pwm/pwmchip1/pwm0/enable"};
        const auto duty = [](int v) { return QStringList{QStringLiteral("echo %1 > /sys/class/pwm/pwmchip1/pwm0/duty_cycle").arg(v)}; };
        QTest::newRow("fan 100") << Call([](UiProc &p) { p.connectFans(100); }) << duty(49990) << "UiProc::sendFans ==================== fans rate:49990";
        QTest::newRow("fan 50 with init") << Call([](UiProc &p) { p.connectFans(50, true); }) << init + duty(24995)
                                          << "UiProc::sendFans ==================== fans init";
        QTest::newRow("backlight") << Call([](UiProc &p) { p.connectBrightness(200); })
                                   << QStringList{"echo 200 > /sys/class/backlight/backlight/brightness"}
                                   << "UiProc::sendBrightness ==================== Brightness value:200";
        QTest::newRow("bridge upgrade start")
            << Call([](UiProc &p) { p.connectHdmiUpdate(); })
            << QStringList{"echo 1 > /sys/devices/platform/lt6911_upgrade/upgrade", "echo 1 > /sys/devices/platform/lt6911_update/update"}
            << "UiProc::sendHDMI ==================== HDMI 升级";
    }
    void sysfsWrites()
    {
        QFETCH(Call, call);
        QFETCH(QStringList, commands);
        QFETCH(QString, logLine);
        call(*m_proc);
        QTRY_COMPARE_WITH_TIMEOUT(m_runner.lines().size(), commands.size(), 5000);
        QCOMPARE(m_runner.lines(), commands);
        const QRegularExpression echo(QStringLiteral("^echo (\\d+) > (\\S+)$"));
        for (const QString &command : commands) {
            const QRegularExpressionMatch m = echo.match(command);
            if (m.hasMatch())
                QTRY_COMPARE(node(m.captured(2)), m.captured(1).toLatin1() + '\n');
        }
        QVERIFY(logged(logLine));
    }

    // connectSetDateByTimeZone(h, m, 0, 0) under a fixed clock: the first
    // step shows the shift, the second (no offset) the clock as it is.
    void timeZoneShift_data()
    {
        QTest::addColumn<QDateTime>("now");
        QTest::addColumn<int>("h");
        QTest::addColumn<int>("m");
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("time");
        const auto at = [](int y, int mo, int d, int h, int mi) { return QDateTime(QDate(y, mo, d), QTime(h, mi, 7)); };
        QTest::newRow("00:30 -1 h: 11 o'clock of the day before") << at(2026, 3, 15, 0, 30) << -1 << 0 << "3/14/2026" << "11:30:7";
        QTest::newRow("31 Dec 23:00 +1 h: month 13, day 12") << at(2026, 12, 31, 23, 0) << 1 << 0 << "13/12/2027" << "0:0:7";
        QTest::newRow("1 Jan 00:10 -1 h: last year") << at(2027, 1, 1, 0, 10) << -1 << 0 << "12/31/2026" << "11:10:7";
        QTest::newRow("leap 28 Feb +1 h") << at(2028, 2, 28, 23, 0) << 1 << 0 << "2/29/2028" << "0:0:7";
        QTest::newRow("+5:30 into the next month") << at(2026, 6, 30, 20, 45) << 5 << 30 << "7/1/2026" << "2:15:7";
    }
    void timeZoneShift()
    {
        QFETCH(QDateTime, now);
        QFETCH(int, h);
        QFETCH(int, m);
        QFETCH(QString, date);
        QFETCH(QString, time);
        m_proc->setClock([now] { return now; });
        QSignalSpy done(m_proc.get(), &UiProc::setTimeByTimeZoneSuccess);
        m_proc->connectSetDateByTimeZone(h, m, 0, 0);
        const QString nowDate = now.toString(QStringLiteral("M/d/yyyy"));
        const QString nowTime = now.toString(QStringLiteral("H:m:s"));
        QCOMPARE(journal(), (QStringList{"date -s " + date, "date -s " + time, "date -s " + nowDate, "date -s " + nowTime}));
        QCOMPARE(done.count(), 1);
    }

    void setDate_data()
    {
        QTest::addColumn<bool>("byZone");
        QTest::addColumn<bool>("shellFails");
        QTest::newRow("date set") << false << false;
        QTest::newRow("date, no shell: no signal") << false << true;
        QTest::newRow("zone, no shell: signal anyway") << true << true;
    }
    void setDate()
    {
        QFETCH(bool, byZone);
        QFETCH(bool, shellFails);
        m_proc->setClock([] { return QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5)); });
        m_runner.failSystem = shellFails;
        QSignalSpy done(m_proc.get(), &UiProc::setTimeByTimeZoneSuccess);
        CategoryCapture debug("cs.hardware");
        if (byZone)
            m_proc->connectSetDateByTimeZone(0, 0, 0, 0);
        else
            QVERIFY(m_proc->connectSetDate(2026, 3, 9, 7, 5, 0));
        const QStringList expected = byZone ? QStringList{"date -s 1/2/2026", "date -s 3:4:5", "date -s 1/2/2026", "date -s 3:4:5"}
                                            : QStringList{"date -s 3/9/2026", "date -s 7:5:0"};
        QCOMPARE(m_runner.lines(), expected);
        QCOMPARE(journal(), shellFails ? QStringList() : expected);
        QCOMPARE(done.count(), byZone || !shellFails ? 1 : 0);
        QCOMPARE(debug.contains("set time by timeZone default"), shellFails);
        QCOMPARE(logged("UiProc::sendSetDate ==================== set date"), !byZone);
    }

    void temperature_data()
    {
        QTest::addColumn<QByteArray>("zone1");
        QTest::addColumn<QByteArray>("zone0"); // null: no such node
        QTest::addColumn<int>("expected");     // -1000: no signal
        QTest::newRow("45000 / 51000") << QByteArray("45000\n") << QByteArray("51999\n") << 51;
        QTest::newRow("below zero truncates toward zero") << QByteArray("-5900\n") << QByteArray("-7000\n") << -5;
        QTest::newRow("single line: no signal") << QByteArray("45000") << QByteArray() << -1000;
        // One node missing still leaves an empty second part: the first value counts.
        QTest::newRow("one node with its line end") << QByteArray("45000\n") << QByteArray() << 45;
    }
    void temperature()
    {
        QFETCH(QByteArray, zone1);
        QFETCH(QByteArray, zone0);
        QFETCH(int, expected);
        setNode("/sys/class/thermal/thermal_zone1/temp", zone1);
        if (zone0.isNull())
            removeNode("/sys/class/thermal/thermal_zone0/temp");
        else
            setNode("/sys/class/thermal/thermal_zone0/temp", zone0);
        QSignalSpy temp(m_proc.get(), &UiProc::sigCPUTemperature);
        m_proc->getCPUTemperature();
        QCOMPARE(temp.wait(expected == -1000 ? 1000 : 5000), expected != -1000);
        QCOMPARE(m_runner.lines(), QStringList{"cat /sys/class/thermal/thermal_zone1/temp /sys/class/thermal/thermal_zone0/temp"});
        if (expected != -1000)
            QCOMPARE(temp.at(0), QVariantList{expected});
    }

    // A monitor plugged, a status with trailing NULs, unplugged, plugged again:
    // the sub-display restarts on each rising edge and is stopped on the falling one.
    void subDisplayOnEdges()
    {
        const QList<QByteArray> states{"disconnected\n", "connected\n", QByteArray("connected\n\0\0x", 13), "connected\n", "disconnected\n", "connected\n"};
        const QList<int> kills{0, 1, 1, 1, 2, 3};
        const QList<int> starts{0, 1, 1, 1, 1, 2};
        const QRegularExpression kill(QStringLiteral("^kill -9( \\d+)*$"));
        for (int i = 0; i < states.size(); ++i) {
            setNode("/sys/class/drm/card0-HDMI-A-1/status", states.at(i));
            QVERIFY(m_proc->connectReSubCS());
            QTRY_COMPARE(journal().filter(QStringLiteral("SubCS")).size(), starts.at(i));
            QCOMPARE(journal().filter(kill).size(), kills.at(i));
        }
        QCOMPARE(m_runner.lines().count("ps aux | grep SubCS | grep -v 'grep' | awk '{print $2}' | xargs kill -9"), 3);
        QCOMPARE(m_runner.lines().count("/usr/bin/SubCS &"), 2);
    }

    void bridgeCheck_data()
    {
        QTest::addColumn<QByteArray>("upgrade"); // null: no node
        QTest::addColumn<QByteArray>("update");
        QTest::addColumn<int>("result");
        QTest::newRow("one running") << QByteArray("1\n") << QByteArray("0\n") << 0;
        QTest::newRow("upgrade failed") << QByteArray("2\n") << QByteArray("1\n") << 2;
        QTest::newRow("both done, NUL ends the text") << QByteArray("1\n\0\x7f", 4) << QByteArray("1\n") << 1;
        QTest::newRow("no line end: running") << QByteArray("1") << QByteArray("1") << 0;
        QTest::newRow("no bridge") << QByteArray() << QByteArray("2\n") << 1;
    }
    void bridgeCheck()
    {
        QFETCH(QByteArray, upgrade);
        QFETCH(QByteArray, update);
        QFETCH(int, result);
        if (upgrade.isNull())
            removeNode("/sys/devices/platform/lt6911_upgrade/status");
        else
            setNode("/sys/devices/platform/lt6911_upgrade/status", upgrade);
        setNode("/sys/devices/platform/lt6911_update/status", update);
        CategoryCapture debug("cs.hardware");
        QCOMPARE(m_proc->connectHdmiCheck(), result);
        QCOMPARE(m_runner.lines().size(), upgrade.isNull() ? 0 : 2);
        const QByteArray line = upgrade.isNull() ? QByteArray("NO HDMI FILE")
                                                 : "resultUpgrade: " + upgrade.split('\0').first() + " resultUpdate: " + update;
        QVERIFY2(debug.contains(QString::fromLatin1(line)), qPrintable(debug.lines().join(QLatin1Char('|'))));
    }

    void markers_data()
    {
        QTest::addColumn<QString>("marker");
        QTest::addColumn<bool>("present");
        QTest::newRow("factory present") << "factory" << true;
        QTest::newRow("factory absent") << "factory" << false;
        QTest::newRow("qt_version present") << "qt_version" << true;
    }
    void markers()
    {
        QFETCH(QString, marker);
        QFETCH(bool, present);
        const QString file = m_root->path("/usr/bin/" + marker);
        if (present)
            QVERIFY(TestSysroot::writeFile(file, ""));
        QCOMPARE(marker == "factory" ? m_proc->updateFactory() : m_proc->qtVersion(), present);
        QVERIFY(!QFile::exists(file));
        QCOMPARE(journal(), present && marker == "factory" ? QStringList{"update factory"} : QStringList());
        QCOMPARE(logged("no find " + marker), !present);
    }

    void screenSize()
    {
        QCOMPARE(m_proc->getScreenSize(), QStringLiteral("1080x1920\n"));
        removeNode("/sys/class/drm/card0-DSI-1/mode");
        QCOMPARE(m_proc->getScreenSize(), QString());
    }

    void reachability_data()
    {
        QTest::addColumn<QByteArray>("ping"); // replacement script; empty: the sysroot's stand-in
        QTest::addColumn<bool>("threaded");
        QTest::addColumn<bool>("online");
        QTest::newRow("answer, inline") << QByteArray() << false << true;
        QTest::newRow("TTL in capitals, thread") << journaling("ping") + "echo 'Reply from 127.0.0.1: bytes=1 time<1ms TTL=128'\n" << true << true;
        QTest::newRow("silence, thread") << journaling("ping") << true << false;
    }
    void reachability()
    {
        QFETCH(QByteArray, ping);
        QFETCH(bool, threaded);
        QFETCH(bool, online);
        if (!ping.isEmpty())
            QVERIFY(replaceProgram(*m_root, "ping", ping));
        m_proc->connectGetLocalHost();
        QSignalSpy result(m_proc.get(), &UiProc::sigNetConnectResult);
        for (int round = 1; round <= 2; ++round) {
            threaded ? m_proc->checkNetWorkOnline() : m_proc->tdCheckNetWorkOnline();
            QTRY_COMPARE_WITH_TIMEOUT(result.count(), round, 5000);
            QCOMPARE(result.at(round - 1), (QVariantList{"127.0.0.1", round, online}));
        }
        QCOMPARE(journal(), (QStringList{"ping -s 1 -c 1 127.0.0.1", "ping -s 1 -c 1 127.0.0.1"}));
    }

    // The screens call these on the GUI thread: they hand the work to a
    // thread and return while a 2 s stand-in still runs.
    void threadedSlotsReturnAtOnce_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<Call>("call");
        QTest::addColumn<QString>("journalLine"); // shows the work finished; "" for none
        QTest::newRow("fans") << "sleep" << Call([](UiProc &p) { p.connectFans(30, true); }) << "sleep 1";
        QTest::newRow("ping") << "ping" << Call([](UiProc &p) { p.connectGetLocalHost(), p.checkNetWorkOnline(); }) << "ping -s 1 -c 1 127.0.0.1";
        QTest::newRow("temperature") << "cat" << Call([](UiProc &p) { p.getCPUTemperature(); }) << "";
    }
    void threadedSlotsReturnAtOnce()
    {
        QFETCH(QString, program);
        QFETCH(Call, call);
        QFETCH(QString, journalLine);
        QVERIFY(replaceProgram(*m_root, program, "/usr/bin/sleep 2\n" + journaling(qPrintable(program))));
        QSignalSpy temp(m_proc.get(), &UiProc::sigCPUTemperature);
        QSignalSpy ping(m_proc.get(), &UiProc::sigNetConnectResult);
        QElapsedTimer clock;
        clock.start();
        call(*m_proc);
        const qint64 returned = clock.elapsed();
        QVERIFY2(returned < 100, qPrintable(QString::number(returned)));
        if (journalLine.isEmpty()) {
            QVERIFY(!temp.wait(2500)); // the read gives up after 1 s: no signal
            return;
        }
        QTRY_VERIFY_WITH_TIMEOUT(journal().contains(journalLine), 6000);
        QVERIFY(clock.elapsed() >= 2000);
        if (program == "ping")
            QTRY_COMPARE(ping.count(), 1);
        else
            QTRY_COMPARE(node("/sys/class/pwm/pwmchip1/pwm0/duty_cycle"), QByteArray("14997\n"));
    }

    // Workers are never joined: one that finishes after its UiProc is gone
    // drops its result instead of touching the destroyed object.
    void workerOutlivesOwner()
    {
        QVERIFY(replaceProgram(*m_root, "ping", "/usr/bin/sleep 1\n" + journaling("ping") + "echo ttl=64\n"));
        m_proc->connectGetLocalHost();
        m_proc->checkNetWorkOnline();
        m_proc.reset();
        QTRY_COMPARE_WITH_TIMEOUT(journal(), QStringList{"ping -s 1 -c 1 127.0.0.1"}, 5000);
        QTest::qWait(100); // the worker's reply, had it been posted, would run now
    }
};

QTEST_MAIN(TstHardware)
#include "tst_hardware.moc"
