// Frames built and parsed byte for byte, including every rejection and its log line.
#include "Logger.h"
#include "ProtocolFrame.h"
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
        QTest::addColumn<int>("checksum");
        QTest::newRow("extended get wraps the sum")
            << QByteArray::fromHex("0000f1b3010000") << QByteArray() << QByteArray("<T0000f1b3010000a5>") << 0xa5;
        QTest::newRow("switch video")
            << QByteArray::fromHex("00007801020000") << QByteArray() << QByteArray("<T000078010200007b>") << 0x7b;
        QTest::newRow("all zero") << QByteArray(7, '\0') << QByteArray() << QByteArray("<T0000000000000000>") << 0;
        QTest::newRow("high bytes lower-case digits")
            << QByteArray::fromHex("ffeeddccbbaa99") << QByteArray() << QByteArray("<Tffeeddccbbaa9994>") << 0x94;
        QTest::newRow("block appended raw, not in the sum")
            << QByteArray::fromHex("0000f0b8000300") << QByteArray("ab\0", 3) << QByteArray("<T0000f0b8000300ab>ab\0", 22) << 0xab;
    }
    void build()
    {
        QFETCH(QByteArray, fields);
        QFETCH(QByteArray, block);
        QFETCH(QByteArray, frame);
        QFETCH(int, checksum);
        model_Protocoldata rec;
        rec.ADDR = uchar(fields[0]); rec.SN = uchar(fields[1]); rec.CMD = uchar(fields[2]);
        rec.DAT1 = uchar(fields[3]); rec.DAT2 = uchar(fields[4]); rec.DAT3 = uchar(fields[5]); rec.DAT4 = uchar(fields[6]);
        rec.arryDatablock = block;
        QCOMPARE(ProtocolFrame::build(rec), frame);
        QCOMPARE(int(rec.CHKSUM), checksum); // the record passed in is updated
    }

    void parse_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        QTest::addColumn<int>("error");
        QTest::addColumn<QByteArray>("fields"); // expected ADDR..CHKSUM
        QTest::addColumn<QString>("log");
        const QByteArray zero(8, '\0');
        QTest::newRow("valid lower") << QByteArray("<F0000890a0b0c0db7>") << 0 << QByteArray::fromHex("0000890a0b0c0db7") << QString();
        QTest::newRow("valid upper") << QByteArray("<F0000890A0B0C0DB7>") << 0 << QByteArray::fromHex("0000890a0b0c0db7") << QString();
        QTest::newRow("checksum case differs") << QByteArray("<F0000f1b3010000A5>") << 0 << QByteArray::fromHex("0000f1b3010000a5") << QString();
        QTest::newRow("byte 18 not examined") << QByteArray("<F0000f1b3010000a5X") << 0 << QByteArray::fromHex("0000f1b3010000a5") << QString();
        QTest::newRow("cmd 0 is a valid report") << QByteArray("<F0000000000000000>") << 0 << zero << QString();
        QTest::newRow("18 bytes") << QByteArray("<F0000f1b3010000a5") << 1 << zero << "datagram.size()!=19 return";
        QTest::newRow("20 bytes") << QByteArray("<F0000f1b3010000a5>>") << 1 << zero << "datagram.size()!=19 return";
        QTest::newRow("20 bytes bad start too") << QByteArray("xx0000f1b3010000a5>>") << 1 << zero << "datagram.size()!=19 return";
        QTest::newRow("echoed command") << QByteArray("<T0000f1b3010000a5>") << 2 << zero << "no '<' 'F'";
        QTest::newRow("no angle") << QByteArray("[F0000f1b3010000a5>") << 2 << zero << "no '<' 'F'";
        QTest::newRow("bad checksum") << QByteArray("<F0000f1b3010000a6>") << 3 << zero << "CHKSUM Wrong return";
        QTest::newRow("bad hex reads 0, sum mismatches") << QByteArray("<F0000zzb3010000a5>") << 3 << zero << "CHKSUM Wrong return";
        QTest::newRow("bad hex reads 0, sum matches") << QByteArray("<F0000zzb3010000b4>") << 0 << QByteArray::fromHex("000000b3010000b4") << QString();
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
        const QByteArray got = QByteArray(1, char(rec.ADDR)) + char(rec.SN) + char(rec.CMD) + char(rec.DAT1)
            + char(rec.DAT2) + char(rec.DAT3) + char(rec.DAT4) + char(rec.CHKSUM);
        if (error == 0)
            QCOMPARE(got.toHex(), fields.toHex());
        else
            QCOMPARE(got, QByteArray(8, '\0'));
        QVERIFY(rec.arryDatablock.isEmpty());
        QVERIFY(rec.Datablock.isEmpty());
        QCOMPARE(logs.lines(), log.isEmpty() ? QStringList() : QStringList{log});
    }

    void roundTripThroughReportDirection()
    {
        // The simulator builds "<F" frames with the same code; they must parse back.
        for (int cmd = 0; cmd < 256; cmd += 7) {
            model_Protocoldata rec;
            rec.CMD = uchar(cmd); rec.DAT1 = uchar(255 - cmd); rec.DAT2 = uchar(cmd * 3); rec.DAT3 = 9; rec.DAT4 = 200;
            const QByteArray frame = ProtocolFrame::build(rec, 'F');
            ProtocolFrame::ParseError e;
            const model_Protocoldata back = ProtocolFrame::parseReport(frame, &e);
            QCOMPARE(int(e), 0);
            QCOMPARE(back.CMD, rec.CMD); QCOMPARE(back.DAT1, rec.DAT1); QCOMPARE(back.DAT2, rec.DAT2);
            QCOMPARE(back.DAT3, rec.DAT3); QCOMPARE(back.DAT4, rec.DAT4); QCOMPARE(back.CHKSUM, rec.CHKSUM);
        }
    }

    void parseHeaderKeepsBlock()
    {
        model_Protocoldata rec;
        rec.CMD = 0xF0; rec.DAT1 = 0xB8; rec.DAT3 = 4;
        rec.arryDatablock = QByteArray("abc\0", 4);
        const QByteArray frame = ProtocolFrame::build(rec);
        ProtocolFrame::ParseError e;
        const model_Protocoldata back = ProtocolFrame::parseHeader(frame, 'T', &e);
        QCOMPARE(int(e), 0);
        QCOMPARE(back.arryDatablock, rec.arryDatablock);
        ProtocolFrame::parseHeader(frame.left(10), 'T', &e);
        QCOMPARE(e, ProtocolFrame::ParseError::WrongSize);
    }

    void combine_data()
    {
        QTest::addColumn<int>("low");
        QTest::addColumn<int>("high");
        QTest::addColumn<int>("value");
        QTest::newRow("0x1234") << 0x34 << 0x12 << 0x1234;
        QTest::newRow("negative") << 0x00 << 0x80 << -32768;
        QTest::newRow("max positive") << 0xff << 0x7f << 32767;
        QTest::newRow("all ones") << 0xff << 0xff << -1;
        QTest::newRow("low only") << 0x0d << 0x00 << 13;
    }
    void combine()
    {
        QFETCH(int, low);
        QFETCH(int, high);
        QFETCH(int, value);
        QCOMPARE(int(combineTwoByte(uchar(low), uchar(high))), value);
    }
};

QTEST_GUILESS_MAIN(TstProtocolFrame)
#include "tst_protocolframe.moc"
