// Device paths and commands: under a sysroot nothing reaches the host, on the
// device everything is used exactly as written.
#include "Platform.h"
#include "Shell.h"
#include "LogTap.h"
#include "TestSysroot.h"

#include <QtTest>

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
        QTest::newRow("device: dots kept") << QString() << "/media/usb0/../../etc" << "/media/usb0/../../etc";
        QTest::newRow("sysroot: under it") << "/tmp/root" << "/sys/class/backlight/backlight/brightness" << "/tmp/root/sys/class/backlight/backlight/brightness";
        QTest::newRow("trailing slash of root") << "/tmp/root/" << "/CSLog/" << "/tmp/root/CSLog/";
        QTest::newRow("relative stays") << "/tmp/root" << "log/x" << "log/x";
        QTest::newRow("already resolved") << "/tmp/root" << "/tmp/root/media/usb0" << "/tmp/root/media/usb0";
        QTest::newRow("prefix lookalike") << "/tmp/root" << "/tmp/rootless" << "/tmp/root/tmp/rootless";
        QTest::newRow("no climbing above it") << "/tmp/root" << "/media/usb0/../../../etc/passwd" << "/tmp/root/etc/passwd";
        QTest::newRow("nor from a resolved path") << "/tmp/root" << "/tmp/root/../x/./y/.." << "/tmp/root/x/";
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

    void quoting_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<bool>("asIs");
        QTest::newRow("address") << "192.168.0.1" << true;
        QTest::newRow("space") << "a b" << false;
        QTest::newRow("quotes") << "it's \"x\"" << false;
        QTest::newRow("substitution") << "$(reboot)" << false;
        QTest::newRow("backquotes") << "`reboot`" << false;
        QTest::newRow("separator") << "10.0.0.5;touch /tmp/x" << false;
        QTest::newRow("inner newline") << "a\nreboot" << false;
        QTest::newRow("final newline") << "abc\n" << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("non-ASCII") << QString::fromUtf8("直播 Grüße") << false;
    }
    void quoting()
    {
        QFETCH(QString, word);
        QFETCH(bool, asIs);
        const QString quoted = Platform::shellQuote(word);
        QCOMPARE(quoted == word, asIs); // safe words keep command texts as on the device
        QProcess sh;
        sh.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QStringLiteral("printf %s ") + quoted});
        QVERIFY(sh.waitForFinished(5000));
        QCOMPARE(QString::fromUtf8(sh.readAllStandardOutput()), word);
    }

    void commandTexts_data()
    {
        QTest::addColumn<QString>("line");   // %1: a host folder outside the sysroot
        QTest::addColumn<QString>("inside"); // its output under the sysroot (%2 is the sysroot); null: not run at all
        QTest::addColumn<QString>("device"); // its output without a sysroot; null: not tried on the host
        QTest::newRow("paths, quoted or not") << "printf '%s|' /sys/a \"/etc/b c\" '/media/usb0' if=/dev/zero $(printf /x)"
                                              << "%2/sys/a|%2/etc/b c|%2/media/usb0|if=%2/dev/zero|%2/x|" << "/sys/a|/etc/b c|/media/usb0|if=/dev/zero|/x|";
        QTest::newRow("data as written") << "printf '%s|' rtmp://h/live/k '# /etc/x' a/b $((6/3)) # /x" << "rtmp://h/live/k|# /etc/x|a/b|2|" << "rtmp://h/live/k|# /etc/x|a/b|2|";
        QTest::newRow("no climbing") << "printf %s /media/../../../../etc" << "%2/etc" << "/media/../../../../etc";
        QTest::newRow("host path") << "mkdir -p %1 && echo x > %1/victim && cat %1/victim" << "x\n" << QString();
        QTest::newRow("starts inside") << "pwd; cd; pwd" << "%2\n%2\n" << QString();
        QTest::newRow("link out") << "echo x > /media/out" << QString() << QString();
        QTest::newRow("backquotes") << "echo `touch %1/victim`" << QString() << QString();
        QTest::newRow("unbalanced quote") << "echo 'x" << QString() << QString();
    }
    void commandTexts()
    {
        QFETCH(QString, line);
        QFETCH(QString, inside);
        QFETCH(QString, device);
        QTemporaryDir host;
        TestSysroot root;
        QVERIFY(QFile::link(host.filePath(QStringLiteral("victim")), root.path(QStringLiteral("/media/out"))));
        const QString text = QString(line).replace(QLatin1String("%1"), host.path());
        QCOMPARE(QString::fromUtf8(Shell::output(text)), QString(inside).replace(QLatin1String("%1"), host.path()).replace(QLatin1String("%2"), root.root()));
        QCOMPARE(Shell::system(text) == -1, inside.isNull());
        QVERIFY(!QFile::exists(host.filePath(QStringLiteral("victim"))));
        qunsetenv("CS_SYSROOT");
        if (!device.isNull())
            QCOMPARE(QString::fromUtf8(Shell::output(text)), device);
    }

    void refusalsLoggedAtMostOnceASecond()
    {
        TestSysroot root;
        CategoryCapture log("cs.shell");
        QTest::qWait(1100);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(Shell::system(QStringLiteral("echo `reboot`")), -1);
        QTest::qWait(1100);
        QCOMPARE(Shell::output(QStringLiteral("echo 'x")), QByteArray());
        const QStringList lines = log.lines().filter(QStringLiteral("not run"));
        QCOMPARE(lines.size(), 2);
        QVERIFY2(lines[0].contains(QLatin1String("backquote")) && lines[1].contains(QLatin1String("(2 more not run")), qPrintable(lines.join('\n')));
    }

    void processTimesOut()
    {
        TestSysroot root;
        QElapsedTimer t;
        t.start();
        Shell::process(QStringLiteral("sleep"), {QStringLiteral("5")}, 300);
        QVERIFY(t.elapsed() < 4000);
    }
};

QTEST_GUILESS_MAIN(TstPlatform)
#include "tst_platform.moc"
