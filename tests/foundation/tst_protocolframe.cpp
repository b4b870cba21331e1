// Frames built and parsed byte for byte, including every rejection and its log line.
#include "Logger.h"
#include "ProtocolFrame.h"
#include "LogTap.h"
#include "TestSysroot.h"

#include <QtTest>

class TstProtocolFrame : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Logger::instance().setSwitch(1); }

    void build_data()
    {
        QTest::addColumn<QByteArray>("fields"); // ADDR SN CMD DAT1..DAT4
        QTest::addColumn<QByteArray>("block");
        QTest::addColumn<QByteArray>("frame");
        QTest::newRow("extended get wraps the sum") << QByteArray::fromHex("0000f1b3010000") << QByteArray() << QByteArray("<T0000f1b3010000a5>");
        QTest::newRow("switch video") << QByteArray::fromHex("00007801020000") << QByteArray() << QByteArray("<T000078010200007b>");
        QTest::newRow("lower-case digits") << QByteArray::fromHex("ffeeddccbbaa99") << QByteArray() << QByteArray("<Tffeeddccbbaa9994>");
        QTest::newRow("block raw, not in the sum") << QByteArray::fromHex("0000f0b8000300") << QByteArray("ab\0", 3) << QByteArray("<T0000f0b8000300ab>ab\0", 22);
    }
    void build()
    {
        QFETCH(QByteArray, fields);
        QFETCH(QByteArray, block);
        QFETCH(QByteArray, frame);
        model_Protocoldata rec;
        uchar *f[] = {&rec.ADDR, &rec.SN, &rec.CMD, &rec.DAT1, &rec.DAT2, &rec.DAT3, &rec.DAT4};
        for (int i = 0; i < 7; ++i)
            *f[i] = uchar(fields[i]);
        rec.arryDatablock = block;
        QCOMPARE(ProtocolFrame::build(rec), frame);
        QCOMPARE(QByteArray::number(rec.CHKSUM, 16).rightJustified(2, '0'), frame.mid(16, 2)); // stored in the record
    }

    void parse_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        QTest::addColumn<int>("error");
        QTest::addColumn<QByteArray>("fields"); // ADDR..CHKSUM, all 0 on rejection
        QTest::addColumn<QString>("log");
        const QByteArray zero(8, '\0');
        QTest::newRow("valid lower") << QByteArray("<F0000890a0b0c0db7>") << 0 << QByteArray::fromHex("0000890a0b0c0db7") << QString();
        QTest::newRow("valid upper") << QByteArray("<F0000890A0B0C0DB7>") << 0 << QByteArray::fromHex("0000890a0b0c0db7") << QString();
        QTest::newRow("byte 18 not examined") << QByteArray("<F0000f1b3010000a5X") << 0 << QByteArray::fromHex("0000f1b3010000a5") << QString();
        QTest::newRow("cmd 0 is a valid report") << QByteArray("<F0000000000000000>") << 0 << zero << QString();
        QTest::newRow("18 bytes") << QByteArray("<F0000f1b3010000a5") << 1 << zero << "datagram.size()!=19 return";
        QTest::newRow("20 bytes, size checked first") << QByteArray("xx0000f1b3010000a5>>") << 1 << zero << "datagram.size()!=19 return";
        QTest::newRow("echoed command") << QByteArray("<T0000f1b3010000a5>") << 2 << zero << "no '<' 'F'";
        QTest::newRow("no angle") << QByteArray("[F0000f1b3010000a5>") << 2 << zero << "no '<' 'F'";
        QTest::newRow("bad checksum") << QByteArray("<F0000f1b3010000a6>") << 3 << zero << "CHKSUM Wrong return";
        QTest::newRow("bad hex reads 0") << QByteArray("<F0000zzb3010000b4>") << 0 << QByteArray::fromHex("000000b3010000b4") << QString();
        QTest::newRow("nul stops the text") << QByteArray("<F0000\0\0b3010000b4>", 19) << 0 << zero << QString();
    }
    void parse()
    {
        QFETCH(QByteArray, datagram);
        QFETCH(int, error);
        QFETCH(QByteArray, fields);
        QFETCH(QString, log);
        CategoryCapture logs;
        ProtocolFrame::ParseError e;
        const model_Protocoldata rec = ProtocolFrame::parseReport(datagram, &e);
        QCOMPARE(int(e), error);
        const char got[] = {char(rec.ADDR), char(rec.SN), char(rec.CMD), char(rec.DAT1), char(rec.DAT2), char(rec.DAT3), char(rec.DAT4), char(rec.CHKSUM)};
        QCOMPARE(QByteArray(got, 8).toHex(), fields.toHex());
        QVERIFY(rec.arryDatablock.isEmpty() && rec.Datablock.isEmpty());
        QCOMPARE(logs.lines(), log.isEmpty() ? QStringList() : QStringList{log});
    }

    void combineTakesTheLowByteFirst()
    {
        QCOMPARE(int(combineTwoByte(0x34, 0x12)), 0x1234);
        QCOMPARE(int(combineTwoByte(0x00, 0x80)), -32768); // signed
    }
};

QTEST_GUILESS_MAIN(TstProtocolFrame)
#include "tst_protocolframe.moc"
