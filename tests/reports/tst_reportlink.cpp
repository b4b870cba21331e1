// Reports end to end: datagrams from a stand-in media service reach a real
// UiProc, pass through the command worker's receive loop and arrive at
// UiprocVideo_Desktop as push signals, exactly once per report while
// connected and not at all after bizDisconnect.
#include "Logger.h"
#include "ReportFrame.h"
#include "TestSysroot.h"
#include "UiProc.h"
#include "UiprocVideo_Desktop.h"
#include "biz_CMDSWork.h"

#include <QSignalSpy>
#include <QUdpSocket>
#include <QtTest>

#include <atomic>
#include <memory>

namespace {

quint16 freeUdpPort()
{
    QUdpSocket probe;
    probe.bind(QHostAddress(QHostAddress::LocalHost), 0);
    return probe.localPort();
}


void clearSharedQueues()
{
    QMutexLocker r(&biz_CMDSWork::receiveHexCmdlock);
    biz_CMDSWork::receivequeueHexCmd.clear();
    QMutexLocker c(&biz_CMDSWork::HexCmdlock);
    biz_CMDSWork::queueHexCmd.clear();
}

} // namespace

class TstReportLink : public QObject
{
    Q_OBJECT
    std::unique_ptr<TestSysroot> sysroot;
    std::unique_ptr<QUdpSocket> service;
    std::unique_ptr<UiProc> proc;
    quint16 listenPort = 0;
    // Reports the receive loop has finished handing over: counted by a
    // direct connection made after the dispatcher's, so when it moves, the
    // dispatcher (if connected) is done with that report.
    std::atomic<int> handedOver{0};
    QMetaObject::Connection tap;

    void send(const QByteArray &datagram)
    {
        service->writeDatagram(datagram, QHostAddress::LocalHost, listenPort);
    }
    bool sendAndWait(const QByteArray &datagram)
    {
        const int before = handedOver.load();
        send(datagram);
        return QTest::qWaitFor([&] { return handedOver.load() > before; }, 5000);
    }
    void addTap()
    {
        QObject::disconnect(tap);
        tap = connect(UiProc::processWorker(), &biz_CMDSWork::signalSendReceiveMessage, UiProc::processWorker(),
                      [this](const model_Protocoldata &) { ++handedOver; }, Qt::DirectConnection);
    }

private slots:
    void init()
    {
        sysroot.reset(new TestSysroot(true));
        QVERIFY(sysroot->isValid());
        clearSharedQueues();
        service.reset(new QUdpSocket);
        QVERIFY(service->bind(QHostAddress(QHostAddress::LocalHost), 0));
        listenPort = freeUdpPort();
        qputenv("CS_MEDIA_PORT", QByteArray::number(service->localPort()));
        qputenv("CS_LISTEN_PORT", QByteArray::number(listenPort));
        proc.reset(new UiProc);
        QVERIFY(UiProc::processWorker());
        Logger::instance().setSwitch(1);
    }
    void cleanup()
    {
        QObject::disconnect(tap);
        proc.reset();
        service.reset();
        Logger::instance().close();
        clearSharedQueues();
        sysroot.reset();
    }

    void reportReachesScreens()
    {
        UiprocVideo_Desktop video;
        video.bizConnect();
        addTap();
        QSignalSpy ip(&video, &UiprocVideo_Desktop::pushLocalIP);
        QVERIFY(sendAndWait(reportFrame(0x89, 192, 168, 0, 100)));
        QCOMPARE(ip.count(), 1);
        QCOMPARE(ip.at(0).at(0).toString(), QStringLiteral("192.168.0.100"));
    }

    void blockReportAcrossDatagrams()
    {
        UiprocVideo_Desktop video;
        video.bizConnect();
        addTap();
        QSignalSpy sn(&video, &UiprocVideo_Desktop::pushSN);
        send(reportFrame(0xF1, 0x44, 0, 9, 0));
        send(QByteArray("CS20"));
        QVERIFY(sendAndWait(QByteArray("24A1", 4) + '\0'));
        QCOMPARE(sn.count(), 1);
        QCOMPARE(sn.at(0).at(0).toString(), QStringLiteral("CS2024A1"));
    }

    void connectTwiceDeliversOnce()
    {
        UiprocVideo_Desktop video;
        video.bizConnect();
        video.bizConnect();
        addTap();
        QSignalSpy usb(&video, &UiprocVideo_Desktop::pushUSBStatus);
        QVERIFY(sendAndWait(reportFrame(0x68, 0xAD, 1)));
        QVERIFY(sendAndWait(reportFrame(0x68, 0xAD, 0)));
        QCOMPARE(usb.count(), 2);
        QCOMPARE(usb.at(0).at(0).toInt(), 1);
        QCOMPARE(usb.at(1).at(0).toInt(), 0);
    }

    void disconnectStopsDelivery()
    {
        UiprocVideo_Desktop video;
        video.bizConnect();
        addTap();
        QSignalSpy power(&video, &UiprocVideo_Desktop::pushPower);
        QVERIFY(sendAndWait(reportFrame(0x68, 0xB0, 1, 50)));
        QCOMPARE(power.count(), 1);

        video.bizDisconnect();
        QVERIFY(sendAndWait(reportFrame(0x68, 0xB0, 2, 60)));
        QCOMPARE(power.count(), 1);

        // And back again.
        video.bizConnect();
        addTap();
        QVERIFY(sendAndWait(reportFrame(0x68, 0xB0, 2, 70)));
        QCOMPARE(power.count(), 2);
        QCOMPARE(power.at(1), (QList<QVariant>{2, 70}));
    }

    // Reports in a burst arrive in order, each once.
    void burstInOrder()
    {
        UiprocVideo_Desktop video;
        video.bizConnect();
        addTap();
        QSignalSpy cut(&video, &UiprocVideo_Desktop::pushPGMCutFinish);
        for (int i = 0; i < 20; ++i)
            send(reportFrame(0x78, 1, uchar(i)));
        QVERIFY(QTest::qWaitFor([&] { return cut.count() >= 20; }, 10000));
        QTest::qWait(50);
        QCOMPARE(cut.count(), 20);
        for (int i = 0; i < 20; ++i)
            QCOMPARE(cut.at(i).at(0).toInt(), i);
    }

    // A dispatcher destroyed while connected leaves the link working.
    void dispatcherGoesAway()
    {
        {
            UiprocVideo_Desktop gone;
            gone.bizConnect();
        }
        UiprocVideo_Desktop video;
        video.bizConnect();
        addTap();
        QSignalSpy ver(&video, &UiprocVideo_Desktop::pushSoftwareVersion);
        QVERIFY(sendAndWait(reportFrame(0x6A, 0, 3, 4)));
        QCOMPARE(ver.count(), 1);
    }
};

QTEST_GUILESS_MAIN(TstReportLink)
#include "tst_reportlink.moc"
