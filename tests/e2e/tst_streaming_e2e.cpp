// Streaming from end to end: the real application against the simulator,
// driven through its controls. Addresses come from rtmp.ini on the USB
// disk; what reaches the simulator, what the event file and the settings
// keep, and what the screens show are checked.
#include "AppRun.h"

#include <QDateTime>
#include <QSettings>
#include <QtTest>

class TstStreamingE2e : public QObject
{
    Q_OBJECT
private slots:
    void importChooseGoLiveAndStop()
    {
        TestSysroot root(true);
        QVERIFY(root.isValid());
        const QString youtube = QStringLiteral("rtmp://a.rtmp.youtube.com/live2/e2e-key-1");
        const QString twitch = QStringLiteral("rtmp://live.twitch.com/app/e2e-key-2");
        const QString facebook = QStringLiteral("rtmps://live-api-s.facebook.com:443/rtmp/e2e-key-3");
        // Blank line, padding and a CR LF end, as a computer may leave them.
        QVERIFY(TestSysroot::writeFile(root.path(QStringLiteral("/media/usb0/rtmp.ini")),
                                       (youtube + "\n\n  " + twitch + "  \r\n" + facebook + "\n").toUtf8()));

        AppRun run(root);
        QVERIFY(run.startSimulator());
        const QString out = run.runApp(QStringLiteral("e2e/streamprobe.qml"));
        const QString simOut = run.stopSimulator();

        const auto done = QRegularExpression(QStringLiteral("PROBE done tomorrow18=(\\d+)")).match(out);
        QVERIFY2(done.hasMatch(), qPrintable(out.right(4000)));
        // The status line names the live channels while streaming.
        QVERIFY2(out.contains(QStringLiteral("PROBE status CH1 live,CH2 live,-,-")), qPrintable(out.right(4000)));

        // The simulator was sent both addresses in one block, in list order,
        // and switched the same two off.
        QVERIFY2(simOut.contains(QStringLiteral("stream 0 on air to ") + youtube), qPrintable(simOut.right(3000)));
        QVERIFY2(simOut.contains(QStringLiteral("stream 1 on air to ") + twitch), qPrintable(simOut.right(3000)));
        QVERIFY2(simOut.contains(QStringLiteral("stream 0 off, was ") + youtube), qPrintable(simOut.right(3000)));
        QVERIFY2(simOut.contains(QStringLiteral("stream 1 off, was ") + twitch), qPrintable(simOut.right(3000)));
        QVERIFY(!simOut.contains(facebook));

        // The event keeps its start time after its addresses were saved.
        // Tomorrow as the probe saw it (a run across midnight sees two days).
        const qint64 tomorrow18 = done.captured(1).toLongLong();
        const QDateTime start = QDateTime::fromMSecsSinceEpoch(tomorrow18);
        QCOMPARE(start.time(), QTime(18, 0));
        QVERIFY(start.date() == QDate::currentDate().addDays(1) || start.date() == QDate::currentDate());
        QSettings events(root.path(QStringLiteral("/usr/bin/config/CS_event.ini")), QSettings::IniFormat);
        events.setIniCodec("UTF-8");
        events.beginGroup(QStringLiteral("Tomorrow show"));
        QCOMPARE(events.value(QStringLiteral("StartTime")).toLongLong(), tomorrow18);
        QCOMPARE(events.value(QStringLiteral("PlatformNum")).toInt(), 2);
        QCOMPARE(events.value(QStringLiteral("streamUrl_0")).toString(), youtube);
        QCOMPARE(events.value(QStringLiteral("streamUrl_1")).toString(), twitch);
        QCOMPARE(events.value(QStringLiteral("streamStatus_0")).toString(), QStringLiteral("true"));
        QCOMPARE(events.value(QStringLiteral("streamStatus_1")).toString(), QStringLiteral("true"));
        events.endGroup();

        QSettings settings(root.configFile(), QSettings::IniFormat);
        settings.setIniCodec("UTF-8");
        settings.beginGroup(QStringLiteral("setting"));
        QCOMPARE(settings.value(QStringLiteral("eventName")).toString(), QStringLiteral("Tomorrow show"));
        QCOMPARE(settings.value(QStringLiteral("rtmpSwitch")).toInt(), 0);
        QCOMPARE(settings.value(QStringLiteral("rtmpAddr")).toString(), youtube + QLatin1Char(',') + twitch);
    }
};

QTEST_GUILESS_MAIN(TstStreamingE2e)
#include "tst_streaming_e2e.moc"
