// The transport on real loopback sockets: reports on either socket, the
// send path and its log lines, queue clearing, socket re-initialisation,
// and a second UiProc coming and going without losing anything or leaving
// threads behind. (Block collection and malformed datagrams in detail:
// tst_linkintake; floods: tst_linkhostile.)
#include "LinkTestSupport.h"

#include <QDir>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QThread>

#include <thread>

using namespace LinkTest;

namespace {

int threadCount()
{
    return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

// Fields of one uiChangeUI emission: ADDR SN CMD DAT1..DAT4 CHKSUM, then Datablock.
QString fields(const QList<QVariant> &args)
{
    QStringList parts;
    for (int i = 0; i < 8; ++i)
        parts << QString::number(args.at(i).toInt(), 16);
    return parts.join(QLatin1Char(' ')) + QLatin1Char('|') + args.at(10).toString();
}

} // namespace

class TstLinkTransport : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<LinkFixture> fx;
    std::unique_ptr<LogTap> logs;

    // Sends a marker report and waits until it is the latest thing handed over.
    bool reportFlows(QSignalSpy &spy, bool toCommandSocket = false)
    {
        const int before = spy.count();
        const QByteArray marker = reportFrame(0x6a, 0x07, 0x08);
        if (toCommandSocket)
            fx->sendToCommandSocket(marker);
        else
            fx->sendToListener(marker);
        if (!QTest::qWaitFor([&] { return spy.count() > before; }, 3000))
            return false;
        return fields(spy.last()) == QLatin1String("0 0 6a 7 8 0 0 79|");
    }

private slots:
    void init()
    {
        logs.reset(new LogTap);
        fx.reset(new LinkFixture);
    }
    void cleanup()
    {
        fx.reset();
        logs.reset();
    }

    void reportOnEitherSocket_data()
    {
        QTest::addColumn<bool>("toCommandSocket");
        QTest::newRow("listening port") << false;
        QTest::newRow("command socket's own port") << true;
    }
    void reportOnEitherSocket()
    {
        QFETCH(bool, toCommandSocket);
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        // The command socket gets its port from its first send.
        QVERIFY(fx->proc->connectVersion());
        QCOMPARE(fx->nextCommand(), QByteArray("<T00006a000000006a>"));
        QCOMPARE(fx->lastCommandPort, fx->proc->commandSocketPort());
        const QByteArray report("<F0000890A0B0C0DB7>");
        if (toCommandSocket)
            fx->sendToCommandSocket(report);
        else
            fx->sendToListener(report);
        QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 3000);
        QCOMPARE(fields(spy.first()), QStringLiteral("0 0 89 a b c d b7|"));
        QVERIFY(logs->lines().contains(QStringLiteral("UiProc::readPendingDatagrams--------------- data:recv from:127.0.0.1-- udp data:<F0000890A0B0C0DB7>")));
    }

    void sendLogLines()
    {
        QVERIFY(fx->proc->connectSetPIP(1, 3));
        QCOMPARE(fx->nextCommand(), QByteArray("<T000068aa01030016>"));
        QTRY_VERIFY(!logs->lines("cs.link").isEmpty());
        QVERIFY(logs->lines().contains(QStringLiteral("------------------------- fa song:<T000068aa01030016>")));
        const QStringList sent = logs->lines().filter(QRegularExpression(QStringLiteral("^\\d{6}-send toIP:127\\.0\\.0\\.1-- udp data:<T000068aa01030016>$")));
        QCOMPARE(sent.size(), 1);
        const QStringList debug = logs->lines("cs.link");
        QCOMPARE(debug.size(), 1);
        QVERIFY2(QRegularExpression(QStringLiteral("^send data: CMD: 68  Data1: aa  Data2: 1  Data3: 3   Data4: 0  \\d\\d:\\d\\d:\\d\\d$"))
                     .match(debug.first()).hasMatch(), qPrintable(debug.first()));
    }

    void broadcastSendMode()
    {
        model_Protocoldata rec;
        rec.CMD = 0x6A;
        rec.sendMode = 1;
        // Nothing to broadcast to: nothing sent, nothing logged as sent.
        biz_CMDSWork::enqueueCommand(rec);
        QVERIFY(fx->drainCommands(200).isEmpty());
        QCOMPARE(logs->lines().count(QStringLiteral("Send Broadcast successful")), 0);
        fx->proc->setBroadcastAddresses({QHostAddress::LocalHost, QHostAddress(QStringLiteral("127.0.0.1"))});
        biz_CMDSWork::enqueueCommand(rec);
        QCOMPARE(fx->nextCommand(), QByteArray("<T00006a000000006a>"));
        QCOMPARE(fx->nextCommand(), QByteArray("<T00006a000000006a>"));
        QCOMPARE(logs->lines().count(QStringLiteral("Send Broadcast successful")), 2);
        QVERIFY(logs->lines().filter(QStringLiteral("fa song")).isEmpty()); // unicast lines only for unicast
        QVERIFY(logs->lines("cs.link").isEmpty());
    }

    void commandsWaitForThePeer()
    {
        // Nobody listens on the media port for a while.
        fx->peer.close();
        // A first command goes out into the void; the link must survive that.
        QVERIFY(fx->proc->connectVersion());
        QTest::qWait(100);
        // Issued without serving events: the send loop holds at most one, the rest stay queued.
        for (int i = 0; i < 5; ++i)
            fx->proc->setNDISwitch(uchar(i));
        QVERIFY(fx->peer.bind(QHostAddress::LocalHost, fx->mediaPort));
        for (int i = 0; i < 5; ++i)
            QCOMPARE(fx->nextCommand(), QByteArray("<T0000c60000000000>").replace(10, 2, QByteArray::number(i, 16).rightJustified(2, '0')).replace(16, 2, QByteArray::number(0xc6 + i, 16).rightJustified(2, '0')));
        QVERIFY(fx->drainCommands(100).isEmpty());
        // And the command socket still hears replies after the unanswered send.
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        QVERIFY(reportFlows(spy, true));
    }

    void clearCMDQueueDropsUnsent()
    {
        // Not serving events: the loop can hand over at most the first.
        for (int i = 0; i < 6; ++i)
            fx->proc->setNDISwitch(uchar(i));
        fx->proc->clearCMDQueue();
        const QList<QByteArray> got = fx->drainCommands(300);
        QVERIFY(got.size() <= 1);
        if (!got.isEmpty())
            QCOMPARE(got.first(), QByteArray("<T0000c600000000c6>"));
        QVERIFY(fx->proc->connectReadSN());
        QCOMPARE(fx->nextCommand(), QByteArray("<T0000f14400000035>"));
    }

    void reInitUdpKeepsTheLink()
    {
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        QVERIFY(reportFlows(spy));
        emit fx->proc->signalReInitUdp(); // queued request
        QTest::qWait(50);
        QVERIFY(reportFlows(spy));
        fx->proc->reInitUdp();
        QVERIFY(reportFlows(spy));
        QVERIFY(fx->proc->connectVersion());
        QCOMPARE(fx->nextCommand(), QByteArray("<T00006a000000006a>"));
        QVERIFY(reportFlows(spy, true));
        QCOMPARE(spy.count(), 4);
    }

    void secondUiProcComesAndGoes()
    {
        biz_CMDSWork *first = UiProc::processWorker();
        const int threadsBefore = threadCount();
        const quint16 secondListen = freeUdpPort();
        qputenv("CS_LISTEN_PORT", QByteArray::number(secondListen));
        auto second = std::make_unique<UiProc>();
        QVERIFY(UiProc::processWorker() != first); // the last constructed wins
        QCOMPARE(threadCount(), threadsBefore + 3); // two queue loops and the report intake
        // Commands queued while both live, without serving events: either
        // worker may hold one in flight when the second goes away.
        for (int i = 0; i < 4; ++i)
            fx->proc->setNDISwitch(uchar(i));
        // Make sure the going one really holds a record (no events served meanwhile).
        QElapsedTimer waited;
        waited.start();
        while (!UiProc::processWorker()->isHandingOver() && waited.elapsed() < 2000)
            QThread::msleep(1);
        QVERIFY(UiProc::processWorker()->isHandingOver());
        second.reset();
        QCOMPARE(UiProc::processWorker(), first);
        QSet<QByteArray> got;
        for (int i = 0; i < 4; ++i)
            got.insert(fx->nextCommand());
        QCOMPARE(got.size(), 4);
        for (int i = 0; i < 4; ++i)
            QVERIFY(got.contains(QByteArray("<T0000c600") + QByteArray::number(i, 16).rightJustified(2, '0') + "0000"
                                 + QByteArray::number(0xc6 + i, 16) + ">"));
        // The second one's loops have ended.
        QTRY_COMPARE_WITH_TIMEOUT(threadCount(), threadsBefore, 3000);

        // Everything later goes through the first: ten commands in order...
        for (int i = 0; i < 10; ++i)
            fx->proc->setNDIDataType(uchar(i), 0);
        for (int i = 0; i < 10; ++i) {
            const QByteArray d = fx->nextCommand();
            QCOMPARE(d.mid(6, 4), QByteArray("c602"));
            QCOMPARE(d.mid(10, 2), QByteArray::number(i, 16).rightJustified(2, '0'));
        }
        // ...and ten reports, each handed over once, in order, by the first worker.
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        ReportTap tap(first);
        for (int i = 0; i < 10; ++i)
            fx->sendToListener(reportFrame(0xD0, 0x0C, uchar(i)));
        QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 10, 5000);
        QCOMPARE(tap.size(), 10);
        for (int i = 0; i < 10; ++i)
            QCOMPARE(spy.at(i).at(4).toInt(), i);
        QTest::qWait(100);
        QCOMPARE(spy.count(), 10);
        // With none left there is no worker to hand out.
        fx->proc.reset();
        QCOMPARE(UiProc::processWorker(), static_cast<biz_CMDSWork *>(nullptr));
    }
};

QTEST_GUILESS_MAIN(TstLinkTransport)
#include "tst_linktransport.moc"
