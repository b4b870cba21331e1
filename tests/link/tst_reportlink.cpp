// Reports end to end: datagrams from a stand-in media service reach a real
// UiProc, pass through the receive loop and arrive at UiprocVideo_Desktop as
// push signals, in order, exactly once per report while connected (however
// often bizConnect was called) and not at all after bizDisconnect.
#include "LinkTestSupport.h"
#include "UiprocVideo_Desktop.h"

#include <QSignalSpy>

using namespace LinkTest;

class TstReportLink : public QObject
{
    Q_OBJECT
    std::unique_ptr<LinkFixture> fx;

private slots:
    void init() { fx.reset(new LinkFixture); }
    void cleanup() { fx.reset(); }

    void reportsReachTheScreensOnce()
    {
        UiprocVideo_Desktop video;
        video.bizConnect();
        video.bizConnect(); // twice: still one delivery per report
        QSignalSpy ip(&video, &UiprocVideo_Desktop::pushLocalIP);
        QSignalSpy sn(&video, &UiprocVideo_Desktop::pushSN);
        QSignalSpy cut(&video, &UiprocVideo_Desktop::pushPGMCutFinish);
        fx->sendToListener(reportFrame(0x89, 192, 168, 0, 100));
        fx->sendToListener(reportFrame(0xF1, 0x44, 0, 9, 0)); // a serial number in two pieces
        fx->sendToListener("CS20");
        fx->sendToListener(QByteArray("24A1", 4) + '\0');
        for (int i = 0; i < 20; ++i)
            fx->sendToListener(reportFrame(0x78, 1, uchar(i)));
        QTRY_COMPARE_WITH_TIMEOUT(cut.count(), 20, 10000);
        QTest::qWait(50);
        QCOMPARE(ip.count(), 1);
        QCOMPARE(ip.at(0).at(0).toString(), QStringLiteral("192.168.0.100"));
        QCOMPARE(sn.count(), 1);
        QCOMPARE(sn.at(0).at(0).toString(), QStringLiteral("CS2024A1"));
        QCOMPARE(cut.count(), 20);
        for (int i = 0; i < 20; ++i)
            QCOMPARE(cut.at(i).at(0).toInt(), i);
    }

    void disconnectStopsDelivery()
    {
        {
            UiprocVideo_Desktop gone; // destroyed while connected: the link goes on
            gone.bizConnect();
        }
        UiprocVideo_Desktop video;
        video.bizConnect();
        QSignalSpy power(&video, &UiprocVideo_Desktop::pushPower);
        ReportTap tap(UiProc::processWorker());
        fx->sendToListener(reportFrame(0x68, 0xB0, 1, 50));
        QTRY_COMPARE(power.count(), 1);
        video.bizDisconnect();
        fx->sendToListener(reportFrame(0x68, 0xB0, 2, 60));
        QTRY_COMPARE(tap.size(), 2); // handed over, but to no one
        QCOMPARE(power.count(), 1);
        video.bizConnect();
        fx->sendToListener(reportFrame(0x68, 0xB0, 2, 70));
        QTRY_COMPARE(power.count(), 2);
        QCOMPARE(power.at(1), (QList<QVariant>{2, 70}));
    }
};

QTEST_GUILESS_MAIN(TstReportLink)
#include "tst_reportlink.moc"
