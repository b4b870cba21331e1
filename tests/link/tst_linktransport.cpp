// The transport on real loopback sockets: reports on either socket, data
// blocks across datagrams (complete, overshooting, never completing,
// impossible lengths), malformed datagrams, the send path and its log
// lines, queue clearing, socket re-initialisation, and a second UiProc
// coming and going without losing anything.
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

const QString kLengthCheck = QStringLiteral(
    "combineTwoByte(parameters.DAT3, parameters.DAT4) != parameters.arryDatablock.size() return");

} // namespace

class TstLinkTransport : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<LinkFixture> fx;
    std::unique_ptr<MessageCapture> logs;

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
        logs.reset(new MessageCapture);
        fx.reset(new LinkFixture);
    }
    void cleanup()
    {
        fx.reset();
        logs.reset();
    }

    void environmentChoosesThePorts()
    {
        QCOMPARE(fx->proc->destinationPort(), fx->mediaPort);
        QCOMPARE(fx->proc->listenPort(), fx->listenPort);
        QCOMPARE(UiProc::processWorker() != nullptr, true);
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
        ReportTap tap(UiProc::processWorker());
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
        QCOMPARE(tap.size(), 1);
        QCOMPARE(int(tap.records().first().CMD), 0x89);
        QVERIFY(logs->contains(QStringLiteral("UiProc::readPendingDatagrams--------------- data:recv from:127.0.0.1-- udp data:<F0000890A0B0C0DB7>")));
    }

    void blockAcrossDatagrams_data()
    {
        QTest::addColumn<QList<QByteArray>>("pieces");
        QTest::addColumn<bool>("delivered");
        QTest::newRow("three pieces") << QList<QByteArray>{"abcd", QByteArray("\x00\x01\xff\xfe", 4), "xy"} << true;
        QTest::newRow("one piece") << QList<QByteArray>{QByteArray("abcd\x00\x01\xff\xfexy", 10)} << true;
        QTest::newRow("header-looking piece is data") << QList<QByteArray>{"<F0000", "8900"} << true;
        QTest::newRow("overshoot by two") << QList<QByteArray>{"abcdef", "ghijkl"} << false;
    }
    void blockAcrossDatagrams()
    {
        QFETCH(QList<QByteArray>, pieces);
        QFETCH(bool, delivered);
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        ReportTap tap(UiProc::processWorker());
        fx->sendToListener(reportFrame(0xF1, 0xB3, 0x01, 10, 0)); // announces 10 bytes
        QByteArray all;
        for (int i = 0; i < pieces.size(); ++i) {
            QTest::qWait(30);
            QCOMPARE(spy.count(), 0); // nothing before the last piece
            QTRY_VERIFY(fx->proc->isCollectingBlock());
            fx->sendToListener(pieces.at(i));
            all += pieces.at(i);
        }
        if (delivered) {
            QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 3000);
            QCOMPARE(tap.size(), 1);
            const model_Protocoldata rec = tap.records().first();
            QCOMPARE(int(rec.CMD), 0xF1);
            QCOMPARE(int(rec.DAT1), 0xB3);
            QCOMPARE(rec.arryDatablock, all);
            QCOMPARE(spy.first().at(10).toString(), QString::fromLatin1(all.toHex()));
            QVERIFY(logs->contains(QStringLiteral("============================END==================================")));
            QTest::qWait(100);
            QCOMPARE(spy.count(), 1); // once
        } else {
            QTRY_VERIFY_WITH_TIMEOUT(logs->contains(kLengthCheck), 3000);
            QTest::qWait(100);
            QCOMPARE(spy.count(), 0);
        }
        QVERIFY(!fx->proc->isCollectingBlock());
        QVERIFY(reportFlows(spy));
    }

    void blockThatNeverCompletes()
    {
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        fx->sendToListener(reportFrame(0xF1, 0xB3, 0x00, 0xff, 0x7f)); // 32767 bytes announced
        QTRY_VERIFY(fx->proc->isCollectingBlock());
        fx->sendToListener(QByteArray(100, 'z'));
        // While collecting, a report is swallowed as block data.
        fx->sendToListener(reportFrame(0x6a, 1, 2));
        QTest::qWait(300);
        QCOMPARE(spy.count(), 0);
        QVERIFY(fx->proc->isCollectingBlock());
        // The time limit returns the collector to idle on its own.
        QTRY_VERIFY_WITH_TIMEOUT(!fx->proc->isCollectingBlock(), UiProc::kBlockCollectLimitMs + 1500);
        const QStringList lines = logs->lines().filter(QStringLiteral("UiProc::readPendingDatagrams data block expired: 119 of 32767 bytes after"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().endsWith(QLatin1String(" ms, report dropped")));
        QCOMPARE(spy.count(), 0);
        QVERIFY(reportFlows(spy));
    }

    void expiredBlockFoundByNextDatagram()
    {
        // Even if the timer has not run, the next datagram after the limit starts afresh.
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        fx->sendToListener(reportFrame(0xF1, 0x45, 0x00, 0x10, 0x00));
        QTRY_VERIFY(fx->proc->isCollectingBlock());
        QTest::qSleep(UiProc::kBlockCollectLimitMs + 100); // no event processing meanwhile
        fx->sendToListener(reportFrame(0x6a, 0x07, 0x08));
        QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 3000);
        QCOMPARE(fields(spy.first()), QStringLiteral("0 0 6a 7 8 0 0 79|"));
        QCOMPARE(logs->lines().filter(QStringLiteral("data block expired: 0 of 16 bytes")).size(), 1);
    }

    void impossibleBlockLengths_data()
    {
        QTest::addColumn<int>("dat3");
        QTest::addColumn<int>("dat4");
        QTest::addColumn<bool>("deliveredEmpty");
        QTest::addColumn<QString>("log");
        QTest::newRow("zero: complete at once") << 0 << 0 << true << QString();
        QTest::newRow("0x8000 is negative") << 0x00 << 0x80 << false
            << "UiProc::readPendingDatagrams data block length -32768 out of range, report dropped";
        QTest::newRow("0xffff is -1") << 0xff << 0xff << false
            << "UiProc::readPendingDatagrams data block length -1 out of range, report dropped";
    }
    void impossibleBlockLengths()
    {
        QFETCH(int, dat3);
        QFETCH(int, dat4);
        QFETCH(bool, deliveredEmpty);
        QFETCH(QString, log);
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        ReportTap tap(UiProc::processWorker());
        fx->sendToListener(reportFrame(0xF1, 0x44, 0x00, uchar(dat3), uchar(dat4)));
        if (deliveredEmpty) {
            QTRY_COMPARE_WITH_TIMEOUT(spy.count(), 1, 3000);
            QCOMPARE(int(tap.records().first().DAT1), 0x44);
            QVERIFY(tap.records().first().arryDatablock.isEmpty());
        } else {
            QTRY_VERIFY_WITH_TIMEOUT(logs->contains(log), 3000);
        }
        QVERIFY(!fx->proc->isCollectingBlock());
        // The very next datagram is a header again, not swallowed as data.
        QVERIFY(reportFlows(spy));
        QCOMPARE(spy.count(), deliveredEmpty ? 2 : 1);
    }

    void malformedDatagrams_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        QTest::addColumn<QString>("log");
        QTest::newRow("18 bytes") << QByteArray("<F00006a0708000079") << "datagram.size()!=19 return";
        QTest::newRow("20 bytes") << QByteArray("<F00006a07080000079>") << "datagram.size()!=19 return";
        QTest::newRow("empty") << QByteArray() << "datagram.size()!=19 return";
        QTest::newRow("echoed command") << QByteArray("<T00006a0708000079>") << "no '<' 'F'";
        QTest::newRow("bad hex") << QByteArray("<F0000zz0708000079>") << "CHKSUM Wrong return";
        QTest::newRow("bad checksum") << QByteArray("<F00006a070800007a>") << "CHKSUM Wrong return";
        QTest::newRow("binary noise") << QByteArray("\x00\xff<F\n\r\x1b[2J;rm -rf ~\x00\x01", 19) << "no '<' 'F'";
    }
    void malformedDatagrams()
    {
        QFETCH(QByteArray, datagram);
        QFETCH(QString, log);
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        ReportTap tap(UiProc::processWorker());
        fx->sendToListener(datagram);
        QTRY_VERIFY_WITH_TIMEOUT(logs->contains(log), 3000);
        QCOMPARE(sharedReportQueueSize(), 0);
        // The next good report is the first and only thing handed over.
        QVERIFY(reportFlows(spy));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(tap.size(), 1);
        QCOMPARE(logs->count(log), 1);
    }

    void sendLogLines()
    {
        QVERIFY(fx->proc->connectSetPIP(1, 3));
        QCOMPARE(fx->nextCommand(), QByteArray("<T000068aa01030016>"));
        QTRY_VERIFY(!logs->lines(QStringLiteral("cs.link").toLatin1()).isEmpty());
        QVERIFY(logs->contains(QStringLiteral("------------------------- fa song:<T000068aa01030016>")));
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
        QCOMPARE(logs->count(QStringLiteral("Send Broadcast successful")), 0);
        fx->proc->setBroadcastAddresses({QHostAddress::LocalHost, QHostAddress(QStringLiteral("127.0.0.1"))});
        biz_CMDSWork::enqueueCommand(rec);
        QCOMPARE(fx->nextCommand(), QByteArray("<T00006a000000006a>"));
        QCOMPARE(fx->nextCommand(), QByteArray("<T00006a000000006a>"));
        QCOMPARE(logs->count(QStringLiteral("Send Broadcast successful")), 2);
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
        {
            QMutexLocker lock(&biz_CMDSWork::HexCmdlock);
            QCOMPARE(biz_CMDSWork::queueHexCmd.size(), 0);
        }
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
        QCOMPARE(threadCount(), threadsBefore + 2);
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
    }

    void stoppedReceiveLoopPutsBackWhatItHeld()
    {
        fx->proc.reset(); // no other loop may take from the shared queues here
        clearSharedQueues();
        auto *worker = new biz_CMDSWork; // never deleted, as in UiProc
        QObject receiver;
        QList<int> got;
        QObject::connect(worker, &biz_CMDSWork::signalSendReceiveMessage, &receiver,
                         [&](const model_Protocoldata &rec) { got << rec.DAT2; }, Qt::BlockingQueuedConnection);
        {
            // Six reports queued at once: the loop takes them as one batch.
            QMutexLocker lock(&biz_CMDSWork::receiveHexCmdlock);
            for (int i = 0; i < 6; ++i) {
                model_Protocoldata rec;
                rec.CMD = 0xD0;
                rec.DAT2 = uchar(i);
                biz_CMDSWork::receivequeueHexCmd.append(rec);
            }
        }
        worker->bReceiveRun = true;
        std::thread(&biz_CMDSWork::x1_receiveGetQueueWork, worker).detach();
        QElapsedTimer waited;
        waited.start();
        while (!worker->isHandingOver() && waited.elapsed() < 2000)
            QThread::msleep(1);
        QVERIFY(worker->isHandingOver());
        QCOMPARE(sharedReportQueueSize(), 0); // all six are with the loop
        worker->stop();
        while (worker->isHandingOver())
            QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        QCOMPARE(got, QList<int>{0}); // the one in flight was handed over...
        QMutexLocker lock(&biz_CMDSWork::receiveHexCmdlock);
        QList<int> left;
        for (const model_Protocoldata &rec : qAsConst(biz_CMDSWork::receivequeueHexCmd))
            left << rec.DAT2;
        QCOMPARE(left, (QList<int>{1, 2, 3, 4, 5})); // ...the rest is back in order
        biz_CMDSWork::receivequeueHexCmd.clear();
    }

    void noWorkerWithoutUiProc()
    {
        fx->proc.reset();
        QCOMPARE(UiProc::processWorker(), static_cast<biz_CMDSWork *>(nullptr));
        fx->proc.reset(new UiProc);
        QVERIFY(UiProc::processWorker() != nullptr);
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        QVERIFY(reportFlows(spy));
    }

    void destroyedUiProcEndsItsLoops()
    {
        const int before = threadCount();
        {
            qputenv("CS_LISTEN_PORT", QByteArray::number(freeUdpPort()));
            UiProc extra;
            QCOMPARE(threadCount(), before + 2);
        }
        QTRY_COMPARE_WITH_TIMEOUT(threadCount(), before, 3000);
        // The remaining one still works both ways.
        QVERIFY(fx->proc->connectSystemVersion());
        QCOMPARE(fx->nextCommand(), QByteArray("<T00006a010000006b>"));
        QSignalSpy spy(fx->proc.get(), &UiProc::uiChangeUI);
        QVERIFY(reportFlows(spy));
    }
};

QTEST_GUILESS_MAIN(TstLinkTransport)
#include "tst_linktransport.moc"
