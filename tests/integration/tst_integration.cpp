// The whole path on a desktop: the real application against the simulator,
// on private ports, keys and sysroot.
#include "AppRun.h"

#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

class TstIntegration : public QObject
{
    Q_OBJECT
private slots:
    void switchSeePreviewAndLevels_data()
    {
        QTest::addColumn<bool>("restartSimulator");
        QTest::newRow("simulator running throughout") << false;
        QTest::newRow("simulator restarted while the application runs") << true;
    }
    void switchSeePreviewAndLevels()
    {
        QFETCH(bool, restartSimulator);
        TestSysroot root(true);
        AppRun run(root, 0x6c000000 + (restartSimulator ? 4 : 0));
        const QStringList options{"--size", "640x360", "--fps", "30", "--seconds"};
        // Restarted: the first simulator ends on its own about 2 s in, and
        // another takes over about a second later while the application runs.
        QVERIFY(run.startSimulator(options + QStringList{restartSimulator ? "2" : "60"}));
        QProcess next;
        if (restartSimulator) {
            next.setProcessEnvironment(run.env);
            next.start(QStringLiteral("/bin/sh"), QStringList{"-c", "sleep 3; exec \"$0\" \"$@\"", CS_BINARY_DIR "/sim/cs-mediasim"} + options + QStringList{"60"});
            QVERIFY(next.waitForStarted(5000));
        }
        const QString out = run.runApp(QStringLiteral("integration/probe.qml"), 60000,
                                       {restartSimulator ? QStringLiteral("probe-seconds=9") : QStringLiteral("probe-seconds=0")});
        next.terminate();
        next.waitForFinished(5000);

        QVERIFY2(out.contains(QStringLiteral("PROBE cut 2")), qPrintable(out.right(3000)));
        QVERIFY2(out.contains(QStringLiteral("PROBE frame 640x360")), qPrintable(out.right(3000)));
        const auto m = QRegularExpression(QStringLiteral("PROBE result cut=(\\d+) frames=(\\d+) levelsMoved=(\\w+)")).match(out);
        QVERIFY2(m.hasMatch(), qPrintable(out.right(3000)));
        QCOMPARE(m.captured(1).toInt(), 2);
        QVERIFY(m.captured(2).toInt() > 20);
        QCOMPARE(m.captured(3), QStringLiteral("true"));
        if (restartSimulator) {
            // Frames flow again after the restart (it happened about 2 s in).
            QMap<int, int> framesAt;
            auto it = QRegularExpression(QStringLiteral("PROBE second (\\d+) frames (\\d+)")).globalMatch(out);
            while (it.hasNext()) {
                const auto s = it.next();
                framesAt[s.captured(1).toInt()] = s.captured(2).toInt();
            }
            QVERIFY2(framesAt.contains(4) && framesAt.contains(9), qPrintable(out.right(3000)));
            QVERIFY2(framesAt.value(9) - framesAt.value(4) > 30, qPrintable(out.right(3000)));
        }
        // The programme input the simulator keeps agrees with the switch.
        QVERIFY2(out.contains(QStringLiteral("PROBE init 2 ")), qPrintable(out.right(3000)));
    }

    // CS_START_PAGE opens a page of the menu at start; any other text leaves
    // the main screen and says so on the console and in the run's log.
    void startPage_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        QTest::newRow("about") << QStringLiteral("about") << QStringLiteral("about");
        QTest::newRow("unknown name") << QStringLiteral("no-such-page") << QString();
        QTest::newRow("a document path") << QStringLiteral("../CSQML/AboutPage.qml") << QString();
    }
    void startPage()
    {
        QFETCH(QString, name);
        QFETCH(QString, shown);
        TestSysroot root(true);
        AppRun run(root, 0x6d000000);
        run.env.remove(QStringLiteral("QT_LOGGING_RULES"));
        run.env.insert(QStringLiteral("CS_START_PAGE"), name);
        QVERIFY(run.startSimulator());
        const QString out = run.runApp(QStringLiteral("integration/startprobe.qml"), 60000);

        QVERIFY2(out.contains(QStringLiteral("PROBE page=%1 visible=%2").arg(shown, shown.isEmpty() ? "false" : "true")),
                 qPrintable(out.right(3000)));
        QString log;
        for (const QFileInfo &f : QDir(root.path(QStringLiteral("/CSLog"))).entryInfoList({QStringLiteral("*.CSLOG")}))
            log += QString::fromUtf8(TestSysroot::readFile(f.filePath()));
        QVERIFY2(log.contains(QStringLiteral("qml start")), qPrintable(log.right(2000)));
        const bool refused = shown.isEmpty();
        QCOMPARE(out.contains(QStringLiteral("CS_START_PAGE: no page named \"%1\"").arg(name)), refused);
        QCOMPARE(log.contains(QStringLiteral("CS_START_PAGE: no page named %1,").arg(name)), refused);
        if (!refused) { // what the simulator answered, on the page; FFmpeg's version once it is loaded
            QVERIFY2(out.contains(QStringLiteral("PROBE about software=1.8 system=2.3 serial=CS2026SIM00001 address=192.168.1.88")),
                     qPrintable(out.right(3000)));
            QVERIFY2(out.contains(QRegularExpression(QStringLiteral("PROBE about library=FFmpeg \\d"))), qPrintable(out.right(3000)));
        }
    }
};

QTEST_GUILESS_MAIN(TstIntegration)
#include "tst_integration.moc"
