// Device paths and commands: under a sysroot nothing reaches the host.
#include "Platform.h"
#include "Shell.h"
#include "TestSysroot.h"

#include <QtTest>

namespace {
class RecordingRunner : public ShellRunner
{
public:
    QStringList lines;
    int system(const QString &line) override { lines << QStringLiteral("system: ") + line; return 0; }
    QByteArray output(const QString &line) override { lines << QStringLiteral("output: ") + line; return "out"; }
    QByteArray process(const QString &program, const QStringList &args, int timeoutMs) override
    {
        lines << QStringLiteral("process(%1): ").arg(timeoutMs) + program + QLatin1Char(' ') + args.join(QLatin1Char(' '));
        return {};
    }
};
} // namespace

class TstPlatform : public QObject
{
    Q_OBJECT
private slots:
    void paths_data()
    {
        QTest::addColumn<QString>("sysroot");
        QTest::addColumn<QString>("device");
        QTest::addColumn<QString>("real");
        QTest::newRow("device: unchanged") << QString() << "/sys/class/backlight/backlight/brightness" << "/sys/class/backlight/backlight/brightness";
        QTest::newRow("sysroot: under it") << "/tmp/root" << "/sys/class/backlight/backlight/brightness" << "/tmp/root/sys/class/backlight/backlight/brightness";
        QTest::newRow("trailing slash of root") << "/tmp/root/" << "/CSLog/" << "/tmp/root/CSLog/";
        QTest::newRow("relative stays") << "/tmp/root" << "log/x" << "log/x";
        QTest::newRow("already resolved") << "/tmp/root" << "/tmp/root/media/usb0" << "/tmp/root/media/usb0";
        QTest::newRow("prefix lookalike") << "/tmp/root" << "/tmp/rootless" << "/tmp/root/tmp/rootless";
    }
    void paths()
    {
        QFETCH(QString, sysroot);
        QFETCH(QString, device);
        QFETCH(QString, real);
        const QByteArray old = qgetenv("CS_SYSROOT");
        qputenv("CS_SYSROOT", sysroot.toLocal8Bit());
        QCOMPARE(Platform::path(device), real);
        if (!sysroot.isEmpty())
            QCOMPARE(Platform::appDir(), QDir::cleanPath(sysroot) + QStringLiteral("/usr/bin"));
        qputenv("CS_SYSROOT", old);
    }

    void childPathOnlyInsideSysroot()
    {
        TestSysroot root;
        const QString path = Platform::childEnvironment().value(QStringLiteral("PATH"));
        QCOMPARE(path.split(':'), (QStringList{root.root() + "/bin", root.root() + "/sbin", root.root() + "/usr/bin", root.root() + "/usr/sbin"}));
    }

    void quoting_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("quoted");
        QTest::newRow("plain") << "192.168.0.1" << "192.168.0.1";
        QTest::newRow("path") << "/sys/class/pwm/pwmchip1/pwm0/duty_cycle" << "/sys/class/pwm/pwmchip1/pwm0/duty_cycle";
        QTest::newRow("space") << "a b" << "'a b'";
        QTest::newRow("injection") << "x; rm -rf /" << "'x; rm -rf /'";
        QTest::newRow("single quote") << "it's" << "'it'\\''s'";
        QTest::newRow("subshell") << "$(reboot)" << "'$(reboot)'";
        QTest::newRow("empty") << "" << "''";
    }
    void quoting()
    {
        QFETCH(QString, word);
        QFETCH(QString, quoted);
        QCOMPARE(Platform::shellQuote(word), quoted);
        // What the shell reads back is the word itself.
        const QByteArray echoed = Shell::output(QStringLiteral("printf %s ") + Platform::shellQuote(word));
        QCOMPARE(QString::fromLocal8Bit(echoed), word);
    }

    void changingCommandLandsInJournal_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("journal");
        QTest::newRow("date") << "date -s 1/2/2030" << "date -s 1/2/2030";
        QTest::newRow("ifconfig absolute") << "%1/sbin/ifconfig eth0 down" << "ifconfig eth0 down";
        QTest::newRow("dhcp script") << "%1/etc/init.d/S41dhcpcd start" << "/etc/init.d/S41dhcpcd start";
        QTest::newRow("kill pipeline") << "ps aux | grep SubCS | grep -v 'grep' | awk '{print $2}' | xargs kill -9" << "kill -9";
        QTest::newRow("background helper") << "%1/usr/bin/SubCS &" << "SubCS ";
    }
    void changingCommandLandsInJournal()
    {
        QFETCH(QString, line);
        QFETCH(QString, journal);
        TestSysroot root;
        QVERIFY(root.isValid());
        const int status = Shell::system(line.contains(QLatin1String("%1")) ? line.arg(root.root()) : line);
        QVERIFY(status != -1);
        // The kill pipeline reads the host's process list (read-only); whatever it found, only the stand-in "killed".
        QTRY_COMPARE(root.commands().size(), 1);
        QVERIFY2(root.commands().constFirst().startsWith(journal), qPrintable(root.commands().constFirst()));
    }

    void hostProgramsAreOutOfReach()
    {
        TestSysroot root;
        QTemporaryDir dir;
        const QString victim = dir.filePath(QStringLiteral("touched"));
        // touch exists on the host but not in the sysroot.
        const int status = Shell::system(QStringLiteral("touch ") + Platform::shellQuote(victim));
        QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 127);
        QVERIFY(!QFile::exists(victim));
        QCOMPARE(Shell::process(QStringLiteral("touch"), {victim}, 2000), QByteArray());
        QVERIFY(!QFile::exists(victim));
    }

    void outputAndProcessForms()
    {
        TestSysroot root;
        QCOMPARE(Shell::output(QStringLiteral("cat ") + root.path(QStringLiteral("/sys/class/drm/card0-DSI-1/mode"))), QByteArray("1080x1920\n"));
        QCOMPARE(Shell::process(QStringLiteral("cat"), {root.path(QStringLiteral("/sys/class/thermal/thermal_zone0/temp"))}),
                 QByteArray("45000\n"));
        QVERIFY(Shell::process(QStringLiteral("ping"), {"-s", "1", "-c", "1", "127.0.0.1"}).contains("ttl"));
        QCOMPARE(root.commands(), QStringList{QStringLiteral("ping -s 1 -c 1 127.0.0.1")});
    }

    void processTimesOut()
    {
        TestSysroot root;
        QElapsedTimer t;
        t.start();
        Shell::process(QStringLiteral("sleep"), {QStringLiteral("5")}, 300);
        QVERIFY(t.elapsed() < 4000);
    }

    void recordingRunnerSeesExactTexts()
    {
        RecordingRunner rec;
        Shell::setRunner(&rec);
        Shell::system(QStringLiteral("sync"));
        QCOMPARE(Shell::output(QStringLiteral("df")), QByteArray("out"));
        Shell::process(QStringLiteral("cat"), {QStringLiteral("/x")});
        Shell::setRunner(nullptr);
        QCOMPARE(rec.lines, (QStringList{"system: sync", "output: df", "process(30000): cat /x"}));
    }
};

QTEST_GUILESS_MAIN(TstPlatform)
#include "tst_platform.moc"
