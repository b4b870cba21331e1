// The whole path on a desktop: the real application against the simulator,
// on private ports, keys and sysroot.
#include "AppRun.h"

#include <QProcess>
#include <QRegularExpression>
#include <QUdpSocket>
#include <QtTest>

#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/shm.h>

namespace {
struct Keys
{
    int preview, sem, audio;
};

void removeIpc(const Keys &k)
{
    int id = shmget(k.preview, 0, 0);
    if (id >= 0) shmctl(id, IPC_RMID, nullptr);
    id = shmget(k.audio, 0, 0);
    if (id >= 0) shmctl(id, IPC_RMID, nullptr);
    id = semget(k.sem, 0, 0);
    if (id >= 0) semctl(id, 0, IPC_RMID);
}
} // namespace

class TstIntegration : public QObject
{
    Q_OBJECT
private:
    QProcessEnvironment environment(const TestSysroot &root, quint16 media, quint16 listen, const Keys &k)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("CS_SYSROOT"), root.root());
        env.insert(QStringLiteral("CS_MEDIA_PORT"), QString::number(media));
        env.insert(QStringLiteral("CS_LISTEN_PORT"), QString::number(listen));
        env.insert(QStringLiteral("CS_PREVIEW_SHM_KEY"), QString::number(k.preview));
        env.insert(QStringLiteral("CS_PREVIEW_SEM_KEY"), QString::number(k.sem));
        env.insert(QStringLiteral("CS_AUDIO_SHM_KEY"), QString::number(k.audio));
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
        return env;
    }
    static bool startSim(QProcess &sim, const QProcessEnvironment &env, int seconds)
    {
        sim.setProcessEnvironment(env);
        sim.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        sim.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-mediasim"),
                  {QStringLiteral("--size"), QStringLiteral("640x360"), QStringLiteral("--fps"), QStringLiteral("30"),
                   QStringLiteral("--seconds"), QString::number(seconds)});
        return sim.waitForStarted(5000);
    }

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
        const int base = 0x6c000000 + (QCoreApplication::applicationPid() % 0x7fff) * 8 + (restartSimulator ? 4 : 0);
        const Keys keys{base, base + 1, base + 2};
        const quint16 media = AppRun::freeUdpPort();
        const quint16 listen = AppRun::freeUdpPort();
        const QProcessEnvironment env = environment(root, media, listen, keys);

        QProcess sim;
        QVERIFY(startSim(sim, env, 60));

        QProcess app;
        QProcessEnvironment appEnv = env;
        appEnv.insert(QStringLiteral("CS_MAIN_QML"), QStringLiteral(CS_SOURCE_DIR "/tests/integration/probe.qml"));
        app.setProcessEnvironment(appEnv);
        app.setProcessChannelMode(QProcess::MergedChannels);
        app.start(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"),
                  {restartSimulator ? QStringLiteral("probe-seconds=9") : QStringLiteral("probe-seconds=0")});
        QVERIFY(app.waitForStarted(5000));

        QProcess sim2;
        if (restartSimulator) {
            QTest::qWait(1500);
            sim.terminate();
            QVERIFY(sim.waitForFinished(5000));
            QVERIFY(app.state() == QProcess::Running); // the application keeps running
            QTest::qWait(500);
            QVERIFY(startSim(sim2, env, 60));
        }

        QVERIFY(app.waitForFinished(60000));
        const QString out = QString::fromLocal8Bit(app.readAll());
        sim.terminate();
        sim.waitForFinished(5000);
        sim2.terminate();
        sim2.waitForFinished(5000);
        removeIpc(keys);

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
