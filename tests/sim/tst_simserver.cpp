// The simulator on the wire: a UDP peer talks to the server in this process
// and to the built executable, on private ports.
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

QByteArrayList receive(QUdpSocket &s, int count, int timeoutMs = 3000)
{
    QByteArrayList out;
    QElapsedTimer t;
    t.start();
    while (out.size() < count && t.elapsed() < timeoutMs) {
        if (!s.hasPendingDatagrams() && !s.waitForReadyRead(50))
            continue;
        while (s.hasPendingDatagrams()) {
            QByteArray d(int(s.pendingDatagramSize()), '\0');
            d.resize(int(s.readDatagram(d.data(), d.size())));
            out.append(d);
        }
    }
    return out;
}

// Lets the event loop run so the server reads and answers.
QByteArrayList exchange(QUdpSocket &peer, quint16 port, const QByteArray &datagram, int expected, int timeoutMs = 3000)
{
    peer.writeDatagram(datagram, QHostAddress::LocalHost, port);
    QByteArrayList out;
    QElapsedTimer t;
    t.start();
    while (out.size() < expected && t.elapsed() < timeoutMs) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        while (peer.hasPendingDatagrams()) {
            QByteArray d(int(peer.pendingDatagramSize()), '\0');
            d.resize(int(peer.readDatagram(d.data(), d.size())));
            out.append(d);
        }
    }
    return out;
}

void settle(int ms)
{
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
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
    void blockReportArrivesAfterItsHeader()
    {
        Sim::Device device;
        Sim::Server server(&device);
        QVERIFY(server.start(0, 0));
        QUdpSocket peer;
        QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        const QByteArrayList got = exchange(peer, server.port(), cmd(0xF1, 0xBB), 2);
        QCOMPARE(got.size(), 2);
        ProtocolFrame::ParseError e = ProtocolFrame::ParseError::WrongSize;
        const model_Protocoldata h = ProtocolFrame::parseReport(got.at(0), &e);
        QCOMPARE(int(e), int(ProtocolFrame::ParseError::None));
        QCOMPARE(int(h.CMD), 0xF1);
        QCOMPARE(int(h.DAT1), 0xBB);
        QCOMPARE(int(combineTwoByte(h.DAT3, h.DAT4)), got.at(1).size());
        QVERIFY(got.at(1).startsWith("\x03STUDIO-PC (OBS),"));
    }

    void malformedDatagramsGetNoAnswer_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        QTest::newRow("wrong size") << QByteArray("<T0000");
        QTest::newRow("wrong start") << QByteArray("[T000078010100007a>");
        QTest::newRow("bad hex") << QByteArray("<T00007801010000xx>");
        QTest::newRow("bad checksum") << QByteArray("<T0000780101000000>");
        QTest::newRow("truncated block") << QByteArray("<T0000f0b8000300ab>ab");
        QTest::newRow("huge announced length") << QByteArray("<T0000f0b800ffffa6>") + QByteArray(1000, 'z');
        QTest::newRow("large noise") << QByteArray(60000, '\0');
    }
    void malformedDatagramsGetNoAnswer()
    {
        QFETCH(QByteArray, datagram);
        Sim::Device device;
        Sim::Server server(&device);
        QVERIFY(server.start(0, 0));
        QUdpSocket peer;
        QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        QVERIFY(exchange(peer, server.port(), datagram, 1, 300).isEmpty());
        // Still answering afterwards.
        QCOMPARE(exchange(peer, server.port(), cmd(0x6A, 0), 1), QByteArrayList{"<F00006a0001080073>"});
        QCOMPARE(device.state().ndiGroup, QByteArray("public"));
    }

    void answersFollowTheState()
    {
        Sim::Device device;
        Sim::Server server(&device);
        QSignalSpy changed(&server, &Sim::Server::stateChanged);
        QVERIFY(server.start(0, 0));
        QUdpSocket peer;
        QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        QCOMPARE(exchange(peer, server.port(), cmd(0x78, 1, 2), 1), QByteArrayList{"<F000078010200007b>"});
        QVERIFY(changed.count() >= 1);
        QCOMPARE(Sim::Scene::from(device.state()).programme, 2);
        // Programme 2 and the default sub input 1.
        QCOMPARE(exchange(peer, server.port(), cmd(0x78, 2, 0), 1), QByteArrayList{"<F000078020002017d>"});
    }

    void scriptEventsGoToTheListeningPort()
    {
        Sim::Device device;
        Sim::Server server(&device);
        QUdpSocket frontEnd;
        QVERIFY(frontEnd.bind(QHostAddress(QHostAddress::LocalHost), 0));
        QVERIFY(server.start(0, frontEnd.localPort()));
        server.runScript(Sim::Script::parse(QStringLiteral("0.05 unplug 1\n0.1 report d0 08 01 00\nnonsense line\n")));
        settle(400);
        QCOMPARE(receive(frontEnd, 2), (QByteArrayList{"<F0000d001000100d2>", "<F0000d008010000d9>"}));
        QVERIFY(!device.state().plugged[1]);
    }

    void unsolicitedGoesToLastSenderWithoutListenPort()
    {
        Sim::Device device;
        Sim::Server server(&device);
        QVERIFY(server.start(0, 0));
        QUdpSocket peer;
        QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        exchange(peer, server.port(), cmd(0xC1), 1);
        Sim::ScriptEvent e;
        e.kind = Sim::ScriptEvent::Usb;
        e.args[0] = 0;
        server.apply(e);
        QCOMPARE(receive(peer, 1), QByteArrayList{"<F0000d003000000d3>"});
    }

    void searchEndArrivesLater()
    {
        Sim::Device device;
        Sim::Server server(&device);
        QVERIFY(server.start(0, 0));
        QUdpSocket peer;
        QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        QVERIFY(exchange(peer, server.port(), cmd(0xC5, 4), 1, 300).isEmpty());
        QCOMPARE(exchange(peer, server.port(), QByteArray(), 1, 4000), QByteArrayList{"<F0000c505000000ca>"});
    }

    // ---- the executable ----

    void executableAnswersRunsScriptAndStopsOnSignal_data()
    {
        QTest::addColumn<int>("signalNumber");
        QTest::newRow("SIGTERM") << int(SIGTERM);
        QTest::newRow("SIGINT") << int(SIGINT);
    }
    void executableAnswersRunsScriptAndStopsOnSignal()
    {
        QFETCH(int, signalNumber);
        const quint16 port = freePort();
        QUdpSocket frontEnd;
        QVERIFY(frontEnd.bind(QHostAddress(QHostAddress::LocalHost), 0));
        QTemporaryFile script;
        QVERIFY(script.open());
        script.write("# test\n0.5 stream 2 1\n");
        script.flush();
        QProcess sim;
        sim.setProcessChannelMode(QProcess::MergedChannels);
        sim.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-mediasim"),
                  {QStringLiteral("--port"), QString::number(port), QStringLiteral("--listen-port"), QString::number(frontEnd.localPort()),
                   QStringLiteral("--no-preview"), QStringLiteral("--no-audio"), QStringLiteral("--seconds"), QStringLiteral("30"),
                   QStringLiteral("--script"), script.fileName(), QStringLiteral("--verbose")});
        QVERIFY(sim.waitForStarted(5000));
        QUdpSocket peer;
        QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        QByteArrayList answer;
        for (int i = 0; i < 20 && answer.isEmpty(); ++i) { // until it has bound its port
            peer.writeDatagram(cmd(0x6A, 1), QHostAddress::LocalHost, port);
            answer = receive(peer, 1, 250);
        }
        QCOMPARE(answer, QByteArrayList{"<F00006a0102030070>"});
        QCOMPARE(receive(frontEnd, 1, 3000), QByteArrayList{"<F0000d004010200d7>"});
        ::kill(pid_t(sim.processId()), signalNumber);
        QVERIFY(sim.waitForFinished(5000));
        QCOMPARE(sim.exitStatus(), QProcess::NormalExit);
        QCOMPARE(sim.exitCode(), 0);
        const QString out = QString::fromLocal8Bit(sim.readAll());
        QVERIFY2(out.contains(QStringLiteral("signal received")), qPrintable(out));
        QVERIFY2(out.contains(QStringLiteral("<- 127.0.0.1")), qPrintable(out)); // --verbose logs frames
    }

    void executableProducesPreviewAndRemovesIpcOnRequest()
    {
        const int shmKey = SimTest::privateKey(8), semKey = SimTest::privateKey(9), audioKey = SimTest::privateKey(10);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("CS_PREVIEW_SHM_KEY"), QStringLiteral("0x%1").arg(shmKey, 0, 16));
        env.insert(QStringLiteral("CS_PREVIEW_SEM_KEY"), QString::number(semKey));
        env.insert(QStringLiteral("CS_AUDIO_SHM_KEY"), QString::number(audioKey));
        env.insert(QStringLiteral("CS_MEDIA_PORT"), QString::number(freePort()));
        QProcess sim;
        sim.setProcessEnvironment(env);
        sim.setProcessChannelMode(QProcess::MergedChannels);
        sim.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-mediasim"),
                  {QStringLiteral("--size"), QStringLiteral("320x180"), QStringLiteral("--fps"), QStringLiteral("20"),
                   QStringLiteral("--listen-port"), QStringLiteral("0"), QStringLiteral("--remove-ipc-on-exit")});
        QVERIFY(sim.waitForStarted(5000));
        int semId = -1;
        for (int i = 0; i < 50 && (semId < 0 || shmget(key_t(audioKey), 0, 0) < 0); ++i) {
            QTest::qWait(100);
            semId = semget(key_t(semKey), 2, 0);
        }
        QVERIFY(semId >= 0);
        const int shmId = shmget(key_t(shmKey), 0, 0);
        QVERIFY(shmId >= 0);
        auto *seg = static_cast<uchar *>(shmat(shmId, nullptr, SHM_RDONLY));
        QVERIFY(seg != reinterpret_cast<uchar *>(-1));
        // Consume three frames under the hand-shake.
        semctl(semId, 0, SETVAL, 1);
        semctl(semId, 1, SETVAL, 0);
        for (int i = 0; i < 3; ++i) {
            sembuf wait{1, -1, 0};
            timespec t{3, 0};
            QCOMPARE(semtimedop(semId, &wait, 1, &t), 0);
            QCOMPARE(qFromLittleEndian<quint32>(seg), quint32(320));
            QCOMPARE(qFromLittleEndian<quint32>(seg + 4), quint32(180));
            sembuf post{0, 1, 0};
            semop(semId, &post, 1);
        }
        shmdt(seg);
        sim.terminate();
        QVERIFY(sim.waitForFinished(5000));
        QCOMPARE(sim.exitCode(), 0);
        QCOMPARE(shmget(key_t(shmKey), 0, 0), -1);
        QCOMPARE(semget(key_t(semKey), 0, 0), -1);
        QCOMPARE(shmget(key_t(audioKey), 0, 0), -1);
        SimTest::removeIpc(shmKey, semKey);
        SimTest::removeIpc(audioKey);
    }

    void executableRefusesBadOptions_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::newRow("unaligned width") << QStringList{QStringLiteral("--size"), QStringLiteral("1366x768")};
        QTest::newRow("size not WxH") << QStringList{QStringLiteral("--size"), QStringLiteral("big")};
        QTest::newRow("fps zero") << QStringList{QStringLiteral("--fps"), QStringLiteral("0")};
        QTest::newRow("port out of range") << QStringList{QStringLiteral("--port"), QStringLiteral("70000")};
    }
    void executableRefusesBadOptions()
    {
        QFETCH(QStringList, args);
        QProcess sim;
        sim.setProcessChannelMode(QProcess::MergedChannels);
        sim.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-mediasim"), args + QStringList{QStringLiteral("--no-preview"), QStringLiteral("--no-audio")});
        QVERIFY(sim.waitForFinished(5000));
        QCOMPARE(sim.exitCode(), 2);
    }
};

QTEST_GUILESS_MAIN(TstSimServer)
#include "tst_simserver.moc"
