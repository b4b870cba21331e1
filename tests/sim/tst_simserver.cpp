// The simulator on the wire: a UDP peer talks to the server in this process
// and to the built executable, on private ports and System V keys.
#include "SimMedia.h"
#include "SimServer.h"
#include "SimTestSupport.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QUdpSocket>
#include <QtTest>

#include <csignal>

using SimTest::cmd;

namespace {

// Sends the datagram (unless null), then collects datagrams until `count`
// arrived or the time is up; the event loop runs so a server in this
// process can answer.
QByteArrayList exchange(QUdpSocket &peer, quint16 port, const QByteArray &datagram, int count, int timeoutMs = 3000)
{
    if (!datagram.isNull())
        peer.writeDatagram(datagram, QHostAddress::LocalHost, port);
    QByteArrayList out;
    QElapsedTimer t;
    t.start();
    while (out.size() < count && t.elapsed() < timeoutMs) {
        QTest::qWait(10);
        while (peer.hasPendingDatagrams()) {
            QByteArray d(int(peer.pendingDatagramSize()), '\0');
            d.resize(int(peer.readDatagram(d.data(), d.size())));
            out.append(d);
        }
    }
    return out;
}

quint16 freePort()
{
    QUdpSocket s;
    s.bind(QHostAddress(QHostAddress::LocalHost), 0);
    return s.localPort();
}

} // namespace

class TstSimServer : public QObject
{
    Q_OBJECT
private slots:
    // One server and one peer: a block report after its header, malformed
    // datagrams unanswered and not applied, answers and the preview scene
    // following the state, unsolicited reports to the last sender, and a
    // search that ends later.
    void serverSession()
    {
        Sim::Device device;
        Sim::Server server(&device);
        QSignalSpy changed(&server, &Sim::Server::stateChanged);
        QVERIFY(server.start(0, 0));
        QUdpSocket peer;
        QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        const quint16 port = server.port();

        const QByteArrayList sources = exchange(peer, port, cmd(0xF1, 0xBB), 2);
        QCOMPARE(sources.size(), 2);
        QCOMPARE(sources.at(0), QByteArray("<F0000f1bb00680014>"));
        QCOMPARE(sources.at(1), Sim::Device::ndiSourceList());

        for (const QByteArray &bad : {QByteArray("<T0000"), QByteArray("[T000078010100007a>"), QByteArray("<T0000780101000000>"),
                                      QByteArray("<T0000f0b8000300ab>ab"), QByteArray("<T0000f0b800ffffa6>") + QByteArray(1000, 'z'),
                                      QByteArray(60000, '\0')})
            peer.writeDatagram(bad, QHostAddress::LocalHost, port);
        QCOMPARE(exchange(peer, port, cmd(0x78, 1, 2), 2, 500), QByteArrayList{"<F000078010200007b>"});
        QCOMPARE(server.datagramsRejected(), 4); // the two with bad blocks have sound headers
        QCOMPARE(device.state().ndiGroup, QByteArray("public"));
        QVERIFY(changed.count() >= 1);

        // Layout 1: one picture in the corner the position names.
        QCOMPARE(exchange(peer, port, cmd(0x68, 0xAA, 1, 1), 1), QByteArrayList{"<F000068aa01010014>"});
        const Sim::Scene scene = Sim::Scene::from(device.state());
        QCOMPARE(scene.programme, 2);
        QVERIFY(scene.pipOn);
        QCOMPARE(scene.pipPosition, 1);

        Sim::ScriptEvent usbRemoved;
        usbRemoved.kind = Sim::ScriptEvent::Usb;
        server.apply(usbRemoved);
        QCOMPARE(exchange(peer, port, QByteArray(), 1), QByteArrayList{"<F0000d003000000d3>"});

        QVERIFY(exchange(peer, port, cmd(0xC5, 4), 1, 300).isEmpty());
        QCOMPARE(exchange(peer, port, QByteArray(), 1, 4000), QByteArrayList{"<F0000c505000000ca>"});
    }

    // The built executable answers commands, sends its script's reports to
    // the listening port, writes preview frames and audio levels under the
    // keys from the environment, and on SIGTERM or SIGINT stops cleanly and
    // removes its segments as asked.
    void executable_data()
    {
        QTest::addColumn<int>("signalNumber");
        QTest::newRow("SIGTERM") << int(SIGTERM);
        QTest::newRow("SIGINT") << int(SIGINT);
    }
    void executable()
    {
        QFETCH(int, signalNumber);
        const int shmKey = SimTest::privateKey(8), semKey = SimTest::privateKey(9), audioKey = SimTest::privateKey(10);
        const quint16 port = freePort();
        QUdpSocket frontEnd, peer;
        QVERIFY(frontEnd.bind(QHostAddress(QHostAddress::LocalHost), 0) && peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        QTemporaryFile script;
        QVERIFY(script.open());
        script.write("# test\n0.5 stream 2 1\n");
        script.flush();
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("CS_PREVIEW_SHM_KEY"), QStringLiteral("0x%1").arg(shmKey, 0, 16));
        env.insert(QStringLiteral("CS_PREVIEW_SEM_KEY"), QString::number(semKey));
        env.insert(QStringLiteral("CS_AUDIO_SHM_KEY"), QString::number(audioKey));
        env.insert(QStringLiteral("CS_MEDIA_PORT"), QString::number(port));
        QProcess sim;
        sim.setProcessEnvironment(env);
        sim.setProcessChannelMode(QProcess::MergedChannels);
        sim.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-mediasim"),
                  {"--listen-port", QString::number(frontEnd.localPort()), "--size", "320x180", "--fps", "20", "--seconds", "30",
                   "--script", script.fileName(), "--verbose", "--remove-ipc-on-exit"});
        QVERIFY(sim.waitForStarted(5000));
        QByteArrayList answer;
        for (int i = 0; i < 20 && answer.isEmpty(); ++i) // until it has bound its port
            answer = exchange(peer, port, cmd(0x6A, 1), 1, 250);
        QCOMPARE(answer, QByteArrayList{"<F00006a0102030070>"});
        QCOMPARE(exchange(frontEnd, 0, QByteArray(), 1), QByteArrayList{"<F0000d004010200d7>"});
        {
            SimTest::Consumer preview;
            QVERIFY(preview.attach(shmKey, semKey, Sim::kPreviewShmSize));
            for (int i = 0; i < 3; ++i) {
                QVERIFY(preview.waitFrame());
                QCOMPARE(preview.word(0), quint32(320));
                QCOMPARE(preview.word(4), quint32(180));
                preview.release();
            }
            const int id = shmget(key_t(audioKey), 0, 0);
            auto *levels = static_cast<const uchar *>(id < 0 ? reinterpret_cast<void *>(-1) : shmat(id, nullptr, SHM_RDONLY));
            QVERIFY(levels != reinterpret_cast<const uchar *>(-1));
            int sum = 0;
            for (int i = 0; i < Sim::kAudioLevels; ++i) {
                const qint32 v = qFromLittleEndian<qint32>(levels + 4 * i);
                QVERIFY2(v >= 0 && v <= 100, qPrintable(QString::number(v)));
                sum += v;
            }
            shmdt(levels);
            QVERIFY(sum > 0);
        }
        ::kill(pid_t(sim.processId()), signalNumber);
        QVERIFY(sim.waitForFinished(5000));
        QCOMPARE(sim.exitStatus(), QProcess::NormalExit);
        QCOMPARE(sim.exitCode(), 0);
        const QString out = QString::fromLocal8Bit(sim.readAll());
        QVERIFY2(out.contains(QStringLiteral("signal received")), qPrintable(out));
        QVERIFY2(out.contains(QStringLiteral("<- 127.0.0.1")), qPrintable(out)); // --verbose logs frames
        QCOMPARE(shmget(key_t(shmKey), 0, 0), -1);
        QCOMPARE(semget(key_t(semKey), 0, 0), -1);
        QCOMPARE(shmget(key_t(audioKey), 0, 0), -1);
        SimTest::removeIpc(shmKey, semKey);
        SimTest::removeIpc(audioKey);
    }

    // Sizes the segment cannot carry, and other nonsense, end the run at once.
    void executableRefusesBadOptions()
    {
        for (const QStringList &args : {QStringList{"--size", "1366x768"}, QStringList{"--size", "2052x1536"}, QStringList{"--size", "big"},
                                        QStringList{"--fps", "0"}, QStringList{"--port", "70000"}}) {
            QProcess sim;
            sim.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-mediasim"), args + QStringList{"--no-preview", "--no-audio"});
            QVERIFY(sim.waitForFinished(5000));
            QVERIFY2(sim.exitCode() == 2, qPrintable(args.join(' ')));
        }
    }
};

QTEST_GUILESS_MAIN(TstSimServer)
#include "tst_simserver.moc"
