// The command texts the product runs, run for real under strace in a fresh
// sysroot: whatever they execute, write or signal stays inside it, and their
// effect lands there.
#include "Platform.h"
#include "Shell.h"
#include "TestSysroot.h"

#include <QtTest>

namespace {
// The traced child: runs one command the way the product does.
int runCommand(const QStringList &a)
{
    if (a[0] == QLatin1String("system"))
        return Shell::system(a[1]) == -1;
    const QByteArray out = a[0] == QLatin1String("output") ? Shell::output(a[1]) : Shell::process(a[1], a.mid(2), 4000);
    return fwrite(out.constData(), 1, size_t(out.size()), stdout) != size_t(out.size());
}

// Where a path (a relative one starts in the sysroot) really is; with followLink, where writing it lands.
QString realPath(QString path, const QString &root, bool followLink)
{
    path = QDir::cleanPath(QDir(root).absoluteFilePath(path));
    for (int hop = 0; followLink && hop < 40 && QFileInfo(path).isSymLink(); ++hop)
        path = QFileInfo(path).symLinkTarget();
    const QFileInfo info(path);
    const QString dir = QFileInfo(info.absolutePath()).canonicalFilePath();
    return followLink && info.exists() ? info.canonicalFilePath() : (dir.isEmpty() ? info.absolutePath() : dir) + QLatin1Char('/') + info.fileName();
}

// Lines of an strace -f log that execute, change or signal something outside the sysroot.
QStringList outsideTouches(const QString &trace, const QString &root)
{
    static const QRegularExpression call(QStringLiteral("^(\\d+) +(\\w+)\\((.*)$")), text(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\""));
    static const QRegularExpression writing(QStringLiteral("O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND"));
    const QString inside = QFileInfo(root).canonicalFilePath() + QLatin1Char('/');
    QStringList bad;
    for (const QString &line : trace.split(QLatin1Char('\n')).mid(1)) { // the first line starts the test binary itself
        const QRegularExpressionMatch m = call.match(line);
        const QString name = m.captured(2), args = m.captured(3);
        if (!m.hasMatch())
            continue;
        QStringList paths;
        for (auto it = text.globalMatch(args); it.hasNext();)
            paths << it.next().captured(1);
        if (name.contains(QLatin1String("kill"))) {
            if (!trace.contains(QLatin1Char('\n') + args.section(QLatin1Char(','), 0, 0) + QLatin1Char(' '))) // not a traced process
                bad << line;
        } else if (name == QLatin1String("execve")) { // judged by the path run: a link to a harmless host tool is fine
            if (paths[0] != QLatin1String("/bin/sh") && !realPath(paths[0], root, false).startsWith(inside))
                bad << line;
        } else if (!name.startsWith(QLatin1String("open")) || writing.match(args).hasMatch()) {
            for (const QString &path : paths.mid(name.startsWith(QLatin1String("symlink")) ? 1 : 0)) { // a link's text is not opened
                const QString real = realPath(path, root, true);
                if (!real.startsWith(inside) && real != QLatin1String("/dev/null") && real != QLatin1String("/dev/tty") && !path.startsWith(QLatin1String("/proc/self/")))
                    bad << line;
            }
        }
    }
    return bad;
}
} // namespace

class TstSandbox : public QObject
{
    Q_OBJECT
    const bool m_traced = QProcess::execute(QStringLiteral("strace"), {"-f", "-qq", "-o", "/dev/null", "true"}) == 0;

private slots:

    void commandStaysInside_data()
    {
        QTest::addColumn<QStringList>("command"); // form, then the text or the program and its arguments
        QTest::addColumn<QString>("file");        // device file holding the effect; "" for the output
        QTest::addColumn<QString>("effect");      // pattern for its whole content; %1 is the sysroot
        const QString log = QStringLiteral("/commands.log");
        const auto sys = [](const QString &text) { return QStringList{"system", text}; };
        QTest::newRow("backlight") << sys("echo 255 > /sys/class/backlight/backlight/brightness") << "/sys/class/backlight/backlight/brightness" << "255\n";
        QTest::newRow("fan period") << sys("echo 50000 > /sys/class/pwm/pwmchip1/pwm0/period") << "/sys/class/pwm/pwmchip1/pwm0/period" << "50000\n";
        QTest::newRow("fan duty") << sys("echo 49990 > /sys/class/pwm/pwmchip1/pwm0/duty_cycle") << "/sys/class/pwm/pwmchip1/pwm0/duty_cycle" << "49990\n";
        QTest::newRow("bridge upgrade") << sys("echo 1 > /sys/devices/platform/lt6911_upgrade/upgrade") << "/sys/devices/platform/lt6911_upgrade/upgrade" << "1\n";
        QTest::newRow("hdmi status") << QStringList{"process", "cat", "/sys/class/drm/card0-HDMI-A-1/status"} << "" << "disconnected\n";
        QTest::newRow("temperatures") << QStringList{"process", "cat", "/sys/class/thermal/thermal_zone1/temp", "/sys/class/thermal/thermal_zone0/temp"} << "" << "47000\n45000\n";
        QTest::newRow("kill pipeline") << sys("ps aux | grep SubCS | grep -v 'grep' | awk '{print $2}' | xargs kill -9") << log << "kill -9( \\d+)*\n";
        QTest::newRow("kill built-in") << sys("kill -0 1") << log << "kill -0 1\n";
        QTest::newRow("sub display") << sys("/usr/bin/SubCS &") << log << "SubCS \n";
        QTest::newRow("date") << sys("date -s 13/12/2027") << log << "date -s 13/12/2027\n";
        QTest::newRow("sync") << sys("sync") << log << "sync \n";
        QTest::newRow("ping") << QStringList{"process", "ping", "-s", "1", "-c", "1", "127.0.0.1"} << "" << "PING 127.0.0.1 .*ttl=64.*";
        QTest::newRow("dhcp stop") << QStringList{"process", "/etc/init.d/S41dhcpcd", "stop"} << log << "/etc/init.d/S41dhcpcd stop\n";
        QTest::newRow("static address") << QStringList{"process", "/sbin/ifconfig", "eth0", "10.0.0.5", "netmask", "255.0.0.0", "broadcast", "192.168.0.255"}
                                        << log << "ifconfig eth0 10.0.0.5 netmask 255.0.0.0 broadcast 192.168.0.255\n";
        QTest::newRow("link down") << sys("ifconfig eth0 down") << log << "ifconfig eth0 down\n";
        QTest::newRow("gateway") << sys("route add default gw 10.0.0.1") << log << "route add default gw 10.0.0.1\n";
        QTest::newRow("routes") << QStringList{"output", "route -n"} << "" << "Kernel IP routing table\n.*192.168.0.1 .* eth0\n.*";
        const char *resolv = "# Generated by dhcpcd from dhcp\n# /etc/resolv.conf.head can replace this line\n"
                             "# /etc/resolv.conf.tail can replace this line\nnameserver 114.114.114.114\nnameserver 8.8.8.8\n";
        QTest::newRow("resolver") << sys(QStringLiteral("cat > /etc/resolv.conf <<'EOF'\n") + resolv + "EOF") << "/etc/resolv.conf" << resolv;
        QTest::newRow("settings copy") << sys("cp /usr/bin/config/CS_Config.ini /userdata/CS_Config.ini") << "/userdata/CS_Config.ini" << "\\[setting\\]\n.*";
        QTest::newRow("stop watchdog") << sys("killall WatchCS") << log << "killall WatchCS\n";
        QTest::newRow("upgrade") << sys("/usr/bin/execupdate.sh ZORVANE_RELEASE_1.2.3.img &") << log << "execupdate.sh ZORVANE_RELEASE_1.2.3.img\n";
        QTest::newRow("usb mount") << QStringList{"output", "df | grep '/media/usb' | awk '{print $4,$6}' | sort -n | tail -n 1 | awk '{print $2}'"} << "" << "%1/media/usb0\n";
        QTest::newRow("companion answer") << sys("echo RecvSuccess\\r\\n > /dev/rfcomm0") << "/dev/rfcomm0" << "RecvSuccessrn\n";
        QTest::newRow("quoted address") << sys("ping -s 1 -c 1 " + Platform::shellQuote("10.0.0.5;touch /tmp/x")) << log << "ping -s 1 -c 1 10\\.0\\.0\\.5;touch /tmp/x\n";
        QTest::newRow("quoted substitutions") << sys("ping -s 1 -c 1 " + Platform::shellQuote("$(kill -9 1)`reboot`\n")) << log << "ping -s 1 -c 1 \\$\\(kill -9 1\\)`reboot`\n\n";
    }
    void commandStaysInside()
    {
        QFETCH(QStringList, command);
        QFETCH(QString, file);
        QFETCH(QString, effect);
        TestSysroot root(true);
        QVERIFY(root.isValid() && QDir().mkpath(root.path(QStringLiteral("/media/usb0"))));
        QTemporaryDir traceDir;
        const QString trace = traceDir.filePath(QStringLiteral("trace"));
        QProcess run;
        run.setWorkingDirectory(root.root());
        const QStringList self = QStringList{QCoreApplication::applicationFilePath(), QStringLiteral("--run")} + command;
        if (m_traced) {
            // In a sanitizer build: LeakSanitizer cannot run under ptrace.
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.insert(QStringLiteral("ASAN_OPTIONS"), env.value(QStringLiteral("ASAN_OPTIONS")) + QStringLiteral(":detect_leaks=0"));
            run.setProcessEnvironment(env);
            run.start(QStringLiteral("strace"), QStringList{"-f", "-qq", "-s", "4096", "-o", trace, "-e",
                      "trace=execve,openat,?open,?creat,?unlink,unlinkat,?rename,renameat,renameat2,?mkdir,mkdirat,kill,tkill,tgkill,"
                      "truncate,?chmod,fchmodat,?symlink,symlinkat,?link,linkat"} + self);
        } else {
            run.start(self.first(), self.mid(1));
        }
        QVERIFY2(run.waitForFinished(5000), "the command took more than 5 s");
        QCOMPARE(run.exitCode(), 0);
        if (m_traced) {
            const QStringList outside = outsideTouches(QString::fromUtf8(TestSysroot::readFile(trace)), root.root());
            QVERIFY2(outside.isEmpty(), qPrintable(outside.join(QLatin1Char('\n'))));
        }
        const QByteArray landed = file.isEmpty() ? run.readAllStandardOutput() : TestSysroot::readFile(root.path(file));
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(effect.replace(QLatin1String("%1"), QRegularExpression::escape(root.root()))), QRegularExpression::DotMatchesEverythingOption);
        QVERIFY2(pattern.match(QString::fromUtf8(landed)).hasMatch(), landed.constData());
        if (!m_traced)
            QSKIP("effect checked; strace cannot trace here, so what the command touched is not");
    }
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc > 3 && qstrcmp(argv[1], "--run") == 0)
        return runCommand(app.arguments().mid(2));
    TstSandbox test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_sandbox.moc"
