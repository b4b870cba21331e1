// Received datagrams to records, without sockets: data blocks taken only
// from their header's sender, expiry on a supplied clock, malformed
// datagrams with their log lines, who may send, and the bounds on what
// a datagram leaves in the log.
#include "BlockCollector.h"
#include "LinkLog.h"
#include "LinkTestSupport.h"
#include "SenderFilter.h"

using namespace LinkTest;

namespace {

// One datagram: from sender "A".."E" (ports 1..5 on loopback), at a time.
struct Step
{
    char sender;
    QByteArray bytes;
    qint64 atMs;
};
using Steps = QList<Step>;

Step from(char sender, const QByteArray &bytes, qint64 atMs = 0) { return {sender, bytes, atMs}; }
QByteArray header(uchar dat1, int length) { return reportFrame(0xF1, dat1, 0, uchar(length & 0xff), uchar(length >> 8)); }

// A record as "cmd:dat1:block-hex".
QString describe(const model_Protocoldata &rec)
{
    return QStringLiteral("%1:%2:%3").arg(rec.CMD, 0, 16).arg(rec.DAT1, 0, 16).arg(QString::fromLatin1(rec.arryDatablock.toHex()));
}

const QString kLengthCheck = QStringLiteral(
    "combineTwoByte(parameters.DAT3, parameters.DAT4) != parameters.arryDatablock.size() return");

} // namespace

Q_DECLARE_METATYPE(Step)

class TstLinkIntake : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Logger::instance().setSwitch(1); }

    void collector_data()
    {
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<QStringList>("records");
        QTest::addColumn<QString>("log");
        const QByteArray report = reportFrame(0x6a, 0x07, 0x08);
        QTest::newRow("plain report") << Steps{from('A', report)} << QStringList{"6a:7:"} << QString();
        QTest::newRow("block in three pieces")
            << Steps{from('A', header(0xB3, 10)), from('A', "abcd"), from('A', QByteArray("\x00\x01\xff\xfe", 4)), from('A', "xy")}
            << QStringList{"f1:b3:61626364" "0001fffe" "7879"}
            << QStringLiteral("============================END==================================");
        QTest::newRow("header-looking piece is data")
            << Steps{from('A', header(0xB3, 10)), from('A', "<F0000"), from('A', "8900")}
            << QStringList{"f1:b3:" + QString::fromLatin1(QByteArray("<F00008900").toHex())} << QString();
        QTest::newRow("overshoot is dropped")
            << Steps{from('A', header(0xB3, 10)), from('A', "abcdef"), from('A', "ghijkl"), from('A', report)}
            << QStringList{"6a:7:"} << kLengthCheck;
        QTest::newRow("another sender's report passes a collecting block")
            << Steps{from('A', header(0x44, 4)), from('B', report), from('A', "wxyz")}
            << QStringList{"6a:7:", "f1:44:" + QString::fromLatin1(QByteArray("wxyz").toHex())} << QString();
        QTest::newRow("another sender cannot fill a block")
            << Steps{from('A', header(0x44, 4)), from('B', "zzzz"), from('A', "wxyz")}
            << QStringList{"f1:44:" + QString::fromLatin1(QByteArray("wxyz").toHex())} << QStringLiteral("datagram.size()!=19 return");
        QTest::newRow("two senders side by side")
            << Steps{from('A', header(0x44, 2)), from('B', header(0x45, 2)), from('B', "bb"), from('A', "aa")}
            << QStringList{"f1:45:6262", "f1:44:6161"} << QString();
        QTest::newRow("expired block: the next datagram is a header")
            << Steps{from('A', header(0x45, 16)), from('A', report, 2100)} << QStringList{"6a:7:"}
            << QStringLiteral("UiProc::readPendingDatagrams data block expired: 0 of 16 bytes after 2100 ms, report dropped");
        QTest::newRow("a fifth sender displaces the oldest block")
            << Steps{from('A', header(1, 2)), from('B', header(2, 2)), from('C', header(3, 2)), from('D', header(4, 2)),
                     from('E', header(5, 2)), from('A', "aa"), from('E', "ee")}
            << QStringList{"f1:5:6565"}
            << QStringLiteral("UiProc::readPendingDatagrams data block displaced by a block from another sender: 0 of 2 bytes after 0 ms, report dropped");
        QTest::newRow("zero length is complete at once") << Steps{from('A', header(0x44, 0)), from('A', report)}
                                                          << QStringList{"f1:44:", "6a:7:"} << QString();
        QTest::newRow("0x8000 is negative") << Steps{from('A', reportFrame(0xF1, 0x44, 0, 0x00, 0x80)), from('A', report)}
                                            << QStringList{"6a:7:"}
                                            << QStringLiteral("UiProc::readPendingDatagrams data block length -32768 out of range, report dropped");
        QTest::newRow("18 bytes") << Steps{from('A', "<F00006a0708000079")} << QStringList{} << QStringLiteral("datagram.size()!=19 return");
        QTest::newRow("empty") << Steps{from('A', "")} << QStringList{} << QStringLiteral("datagram.size()!=19 return");
        QTest::newRow("echoed command") << Steps{from('A', "<T00006a0708000079>")} << QStringList{} << QStringLiteral("no '<' 'F'");
        QTest::newRow("bad hex") << Steps{from('A', "<F0000zz0708000079>")} << QStringList{} << QStringLiteral("CHKSUM Wrong return");
        QTest::newRow("bad checksum") << Steps{from('A', "<F00006a070800007a>")} << QStringList{} << QStringLiteral("CHKSUM Wrong return");
        QTest::newRow("binary noise") << Steps{from('A', QByteArray("\x00\xff<F\n\r\x1b[2J;rm -rf ~\x00\x01", 19))} << QStringList{}
                                      << QStringLiteral("no '<' 'F'");
    }
    void collector()
    {
        QFETCH(Steps, steps);
        QFETCH(QStringList, records);
        QFETCH(QString, log);
        TestSysroot sysroot;
        LogTap logs;
        BlockCollector collector;
        QStringList got;
        for (const Step &s : steps) {
            const BlockCollector::Sender sender{QStringLiteral("127.0.0.1"), quint16(s.sender - 'A' + 1)};
            if (const auto rec = collector.feed(s.bytes, sender, s.atMs))
                got << describe(*rec);
        }
        QCOMPARE(got, records);
        if (!log.isEmpty())
            QCOMPARE(logs.lines().count(log), 1);
    }

    void collectorExpiresOnItsOwn()
    {
        TestSysroot sysroot;
        LogTap logs;
        BlockCollector collector;
        QCOMPARE(collector.nextDeadline(), qint64(-1));
        QVERIFY(!collector.feed(header(0xB3, 100), {QStringLiteral("127.0.0.1"), 9}, 500));
        QVERIFY(!collector.feed(QByteArray(40, 'x'), {QStringLiteral("127.0.0.1"), 9}, 600));
        QCOMPARE(collector.nextDeadline(), qint64(500 + BlockCollector::kLimitMs));
        collector.expire(2499);
        QCOMPARE(collector.openBlocks(), 1);
        collector.expire(2500);
        QCOMPARE(collector.openBlocks(), 0);
        QVERIFY(logs.lines().contains(QStringLiteral("UiProc::readPendingDatagrams data block expired: 40 of 100 bytes after 2000 ms, report dropped")));
    }

    void senders_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("loopback") << "127.0.0.1" << true;
        QTest::newRow("other loopback") << "127.3.2.1" << true;
        QTest::newRow("IPv6 loopback") << "::1" << true;
        QTest::newRow("mapped loopback") << "::ffff:127.0.0.1" << true;
        QTest::newRow("own address") << "192.168.1.20" << true;
        QTest::newRow("own address, mapped") << "::ffff:192.168.1.20" << true;
        QTest::newRow("own IPv6 address") << "2001:db8::20" << true;
        QTest::newRow("neighbour") << "192.168.1.21" << false;
        QTest::newRow("neighbour, mapped") << "::ffff:192.168.1.21" << false;
        QTest::newRow("far away") << "203.0.113.9" << false;
        QTest::newRow("IPv6 neighbour") << "2001:db8::21" << false;
    }
    void senders()
    {
        QFETCH(QString, address);
        QFETCH(bool, accepted);
        SenderFilter filter([] {
            return QList<QHostAddress>{QHostAddress(QStringLiteral("192.168.1.20")), QHostAddress(QStringLiteral("2001:db8::20"))};
        });
        QCOMPARE(filter.accepts(QHostAddress(address), 0), accepted);
    }

    void newOwnAddressAcceptedAfterRefresh()
    {
        QList<QHostAddress> own{QHostAddress(QStringLiteral("10.0.0.5"))};
        int reads = 0;
        SenderFilter filter([&] { ++reads; return own; });
        const QHostAddress leased(QStringLiteral("10.0.0.77"));
        QVERIFY(!filter.accepts(leased, 0));
        own << leased; // a new lease
        QVERIFY(!filter.accepts(leased, SenderFilter::kRefreshMs - 1));
        QVERIFY(filter.accepts(leased, SenderFilter::kRefreshMs));
        QCOMPARE(reads, 2); // not once per datagram
    }

    void loggedBytesAreBounded()
    {
        const QString big = LinkLog::printable(QByteArray(65000, '\x01'));
        QVERIFY(big.size() < LinkLog::kLoggedBytes * 4 + 32);
        QVERIFY(big.endsWith(QLatin1String("... (65000 bytes)")));
        QCOMPARE(LinkLog::printable("<F0000890A0B0C0DB7>"), QStringLiteral("<F0000890A0B0C0DB7>"));
        QCOMPARE(LinkLog::printable(QByteArray("a\\\n", 3)), QStringLiteral("a\\x5c\\x0a"));
    }

    void repeatsAreLoggedOnceAMinute()
    {
        LinkLog::RepeatFilter filter;
        const QByteArray beat("<T000068ad000000 15>");
        int repeats = -1;
        QVERIFY(filter.shouldLog(beat, 0, &repeats));
        QCOMPARE(repeats, 0);
        for (qint64 t = 2000; t < LinkLog::RepeatFilter::kWindowMs; t += 2000)
            QVERIFY(!filter.shouldLog(beat, t, &repeats));
        QVERIFY(filter.shouldLog("<F000068ad010000 16>", 30000, &repeats)); // another frame is logged
        QVERIFY(filter.shouldLog(beat, LinkLog::RepeatFilter::kWindowMs, &repeats));
        QCOMPARE(repeats, 29);
    }
};

QTEST_GUILESS_MAIN(TstLinkIntake)
#include "tst_linkintake.moc"
