// The companion app from end to end: the real application against the
// simulator, cs-phone playing the phone on the sysroot's /dev/rfcomm0, and
// an HTTPS server on loopback standing in for the companion streaming
// service. The destination the phone sends is accepted on the Bluetooth
// page and replaces the service's address in the event; going live opens a
// session with the service, kept up by heartbeats, and tells the phone to
// start; the phone's stop request, once confirmed, stops the stream, ends
// the session and tells the phone.
#include "AppRun.h"
#include "HttpsTestServer.h"

#include <QElapsedTimer>
#include <QSettings>
#include <QtTest>

namespace {

// What a program printed, line by line, each with the time it arrived.
struct Transcript
{
    QList<QPair<qint64, QString>> lines;
    QByteArray partial;

    void take(QProcess &p, const QElapsedTimer &clock)
    {
        partial += p.readAll();
        for (int end; (end = partial.indexOf('\n')) >= 0; partial.remove(0, end + 1))
            lines.append({clock.elapsed(), QString::fromLocal8Bit(partial.left(end))});
    }
    // When the first line containing `text` arrived, -1 when none did.
    qint64 at(const QString &text) const
    {
        for (const auto &l : lines)
            if (l.second.contains(text))
                return l.first;
        return -1;
    }
    QByteArray all() const
    {
        QString out;
        for (const auto &l : lines)
            out += QStringLiteral("%1 %2\n").arg(l.first).arg(l.second);
        return out.right(4000).toLocal8Bit();
    }
};

} // namespace

class TstCompanionE2e : public QObject
{
    Q_OBJECT
private slots:
    void sessionFromDestinationToStop()
    {
        TestSysroot root(true);
        QVERIFY(root.isValid());
        QByteArray ini = TestSysroot::readFile(root.configFile());
        ini.replace("isBlueToothZor=0", "isBlueToothZor=1");
        QVERIFY(ini.contains("isBlueToothZor=1"));
        QVERIFY(TestSysroot::writeFile(root.configFile(), ini));

        QTemporaryDir certDir;
        HttpsTestServer service;
        QString error;
        QVERIFY2(service.start(certDir.path(), &error), qPrintable(error));
        for (const char *path : {"/api/Live/beginLive", "/api/Live/headBeat", "/api/Live/endLive"})
            service.answers[path] = {200, R"({"code":"SUCCEED","msg":"ok"})", 0};
        const QString domain = QStringLiteral("127.0.0.1:%1").arg(service.serverPort());

        // "Current" holds an older address of the service, switched off,
        // and another platform's, also off, which the phone must not touch.
        const QString url = QStringLiteral("rtmp://%1/live/e2e-key").arg(domain);
        const QString other = QStringLiteral("rtmp://a.rtmp.youtube.com/live2/stays-off");
        const QString events = root.path(QStringLiteral("/usr/bin/config/CS_event.ini"));
        QVERIFY(TestSysroot::writeFile(events, QStringLiteral("[Current]\nPlatformNum=2\nstreamUrl_0=rtmp://%1/live/yesterday\n"
                                                              "streamStatus_0=false\nstreamUrl_1=%2\nstreamStatus_1=false\n")
                                                   .arg(domain, other)
                                                   .toUtf8()));

        AppRun run(root, 0x6c000000);
        run.env.insert(QStringLiteral("CS_COMPANION_DOMAIN"), domain);
        QVERIFY(run.startSimulator());

        QElapsedTimer &clock = service.clock;
        // Transcripts first: a process's last output can arrive while it is destroyed.
        Transcript phoneOut;
        QProcess phone;
        connect(&phone, &QProcess::readyRead, this, [&] { phoneOut.take(phone, clock); });
        phone.setProcessEnvironment(run.env);
        phone.setProcessChannelMode(QProcess::MergedChannels);
        phone.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-phone"),
                    {"--url", url, "--token", "e2e-token", "--room", "ROOM 7&8", "--send-after", "1", "--stop-after", "-1",
                     "--seconds", "90"});
        QVERIFY(phone.waitForStarted(5000));
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(root.path(QStringLiteral("/dev/rfcomm0"))).isSymLink(), 5000);
        // The phone asks to stop once the service has seen a heartbeat.
        bool stopSent = false;
        service.onRequest = [&](const QByteArray &path) {
            if (path == "/api/Live/headBeat" && !stopSent) {
                stopSent = true;
                phone.write("StopPush\n");
            }
        };

        Transcript appOut;
        QProcess app;
        connect(&app, &QProcess::readyRead, this, [&] { appOut.take(app, clock); });
        QProcessEnvironment appEnv = run.env;
        appEnv.insert(QStringLiteral("CS_MAIN_QML"), QStringLiteral(CS_SOURCE_DIR "/tests/bluetooth/companionflow.qml"));
        app.setProcessEnvironment(appEnv);
        app.setProcessChannelMode(QProcess::MergedChannels);
        app.start(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"), QStringList());
        QVERIFY(app.waitForStarted(5000));
        // Waited for with the event loop running: the service answers from here.
        QTRY_VERIFY_WITH_TIMEOUT(app.state() == QProcess::NotRunning, 60000);
        appOut.take(app, clock);
        for (const auto &l : appOut.lines)
            if (l.second.contains(QStringLiteral("PROBE ")))
                qInfo().noquote() << l.first << l.second.mid(l.second.indexOf(QStringLiteral("PROBE ")));
        // The last answer may still be on its way to the phone; checked below.
        (void)QTest::qWaitFor([&] { return phoneOut.at(QStringLiteral("receives: StopPush")) >= 0; }, 3000);
        phone.terminate();
        phone.waitForFinished(5000);
        const QString simOut = run.stopSimulator();

        // The operator's view, step by step.
        const QStringList probe = {
            QStringLiteral("PROBE offer shown page=bluetooth offer=") + url,
            QStringLiteral("PROBE accepted room=ROOM 7&8 token=e2e-token"),
            QStringLiteral("PROBE phone connected {\"mac\":\"5c-f9-38-12-34-56\",\"connect\":true,\"ok\":true} "
                           "phones=[{\"mac\":\"5c-f9-38-12-34-56\",\"name\":\"Director Phone\",\"connected\":true}]"),
            QStringLiteral("PROBE session live address=") + url,
            QStringLiteral("PROBE stop asked"),
            QStringLiteral("PROBE stopped streams=[0,0,0,0] stopAsked=false"),
        };
        for (const QString &line : probe)
            QVERIFY2(appOut.at(line) >= 0, qPrintable(line + QStringLiteral("\n") + appOut.all() + simOut.right(2000)));

        // Accepting answered the phone and put the address in place of the old one, switched on.
        QVERIFY2(phoneOut.at(QStringLiteral("cs-phone receives: RecvSuccess\\r\\n<0a>")) >= 0, phoneOut.all());
        QVERIFY(TestSysroot::readFile(root.path(QStringLiteral("/usr/bin/config/CS_Zor_event.ini"))).contains(url.toUtf8()));
        QSettings kept(events, QSettings::IniFormat);
        kept.beginGroup(QStringLiteral("Current"));
        QCOMPARE(kept.value(QStringLiteral("streamUrl_0")).toString(), url);
        QCOMPARE(kept.value(QStringLiteral("streamStatus_0")).toString(), QStringLiteral("true"));
        QCOMPARE(kept.value(QStringLiteral("streamUrl_1")).toString(), other);
        QCOMPARE(kept.value(QStringLiteral("streamStatus_1")).toString(), QStringLiteral("false"));

        // The simulator streamed to the phone's address alone, and stopped.
        QVERIFY2(simOut.contains(QStringLiteral("stream 0 on air to ") + url), qPrintable(simOut.right(3000)));
        QVERIFY2(simOut.contains(QStringLiteral("stream 0 off, was ") + url), qPrintable(simOut.right(3000)));
        QVERIFY(!simOut.contains(other));

        // The service saw: the start, heartbeats, the end, and nothing after
        // it; each with the token as cookie and the room id as the form body.
        const QList<QByteArray> paths = service.paths();
        QVERIFY2(paths.size() >= 3, paths.join(' ').constData());
        QCOMPARE(paths.first(), QByteArray("/api/Live/beginLive"));
        QCOMPARE(paths.last(), QByteArray("/api/Live/endLive"));
        for (int i = 1; i < paths.size() - 1; ++i)
            QCOMPARE(paths.at(i), QByteArray("/api/Live/headBeat"));
        for (const QByteArray &req : service.requests) {
            QVERIFY2(req.startsWith("POST " + HttpsTestServer::pathOf(req) + " HTTP/1.1\r\n"), req.constData());
            QVERIFY2(req.contains("\r\ncookie: api_token=e2e-token\r\n"), req.constData());
            QVERIFY2(req.endsWith("\r\n\r\nlive_room_id=ROOM 7&8"), req.constData());
        }

        // The timing as the service and the phone saw it: the first
        // heartbeat about 10 s after the start, "StartPush" about 6 s (coarse
        // timers may fire up to 5 % early).
        const qint64 begun = service.receivedAtMs.first();
        const qint64 beat = service.receivedAtMs.at(1) - begun;
        const qint64 startPush = phoneOut.at(QStringLiteral("cs-phone receives: StartPush\\r\\n<0a>")) - begun;
        qInfo("heartbeat %lld ms, StartPush %lld ms after the start", beat, startPush);
        QVERIFY2(beat >= 9000 && beat <= 12500, qPrintable(QString::number(beat)));
        QVERIFY2(startPush >= 5500 && startPush <= 8500, qPrintable(phoneOut.all()));
        // The end follows the phone's request (and the operator's yes); the
        // phone hears "StopPush" back once the service has the end.
        const qint64 asked = phoneOut.at(QStringLiteral("cs-phone sends: StopPush"));
        const qint64 ended = service.receivedAtMs.last();
        const qint64 told = phoneOut.at(QStringLiteral("cs-phone receives: StopPush\\r\\n<0a>"));
        QVERIFY2(asked > 0 && ended > asked && told > ended, qPrintable(QStringLiteral("%1 %2 %3").arg(asked).arg(ended).arg(told)));
    }
};

QTEST_GUILESS_MAIN(TstCompanionE2e)
#include "tst_companion_e2e.moc"
