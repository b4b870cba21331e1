// The simulated device without sockets: command frames in, report
// datagrams out, and the state the answers are drawn from.
#include "SimDevice.h"
#include "SimPicture.h"
#include "SimScript.h"
#include "SimServer.h"
#include "SimTestSupport.h"

#include <QRandomGenerator>
#include <QtTest>

using SimTest::cmd;

namespace {

struct Vector
{
    const char *name;
    QByteArray frame;
    QByteArrayList expected;
};

QByteArray hex(const char *h)
{
    return QByteArray::fromHex(h);
}

QByteArray summed(QByteArray b)
{
    uchar s = 0;
    for (char c : b)
        s = uchar(s + uchar(c));
    return b.append(char(s));
}

const QByteArray kSpeakerMac = summed(hex("001a7dda710b"));

// Every command the device knows, with the exact datagrams it answers.
QVector<Vector> vectors()
{
    const QByteArray streamOn = summed(QByteArray("\x01\"rtmp://a/b\"", 13));
    return {
        {"cut to HDMI 2", cmd(0x78, 1, 1), {"<F000078010100007a>"}},
        {"preview to UVC 1", cmd(0x78, 0, 2), {"<F000078000200007a>"}},
        {"init input", cmd(0x78, 2, 0), {"<F000078020000017b>"}},
        {"pip on", cmd(0x68, 0xAA, 1, 3), {"<F000068aa01030016>"}},
        {"usb status", cmd(0x68, 0xAD), {"<F000068ad01000016>"}},
        {"factory reset", cmd(0x68, 0x06), {"<F000068060100006f>"}},
        {"power off", cmd(0x68, 0x10), {}},
        {"battery level", cmd(0x68, 0xB0, 1), {"<F000068b001500069>"}},
        {"power source", cmd(0x68, 0xB0, 2), {"<F000068b00201001b>"}},
        {"stream platform status", cmd(0x68, 0xB5, 0), {"<F000068b50000001d>"}},
        {"video control", cmd(0x69, 0x10, 2), {"<F000069100200007b>"}},
        {"software version", cmd(0x6A, 0), {"<F00006a0001080073>"}},
        {"system version", cmd(0x6A, 1), {"<F00006a0102030070>"}},
        {"local ip", cmd(0x89), {"<F000089c0a801584a>"}},
        {"type-c", cmd(0xC1), {"<F0000c101000000c2>"}},
        {"record status", cmd(0xC2, 1, 3), {"<F0000c201030000c6>"}},
        {"clear record file name", cmd(0xC2, 3), {"<F0000c203000000c5>"}},
        {"audio channel", cmd(0xC3, 2), {"<F0000c302000000c5>"}},
        {"bluetooth off", cmd(0xC5, 0), {"<F0000c500000000c5>"}},
        {"bluetooth on", cmd(0xC5, 1), {"<F0000c501000000c6>"}},
        {"bluetooth search", cmd(0xC5, 3, 5), {"<F0000c503000000c8>"}},
        {"bluetooth broadcast search", cmd(0xC5, 4), {"<F0000c505000000ca>"}},
        {"bluetooth connect new", cmd(0xC5, 0xB5), {"<F0000c5b50000007a>"}},
        {"bluetooth connect new off", cmd(0xC5, 0, 0xB6), {"<F0000c500b600007b>"}},
        {"bluetooth open new", cmd(0xC5, 0xB7), {"<F0000c5b70000007c>"}},
        {"ndi switch set", cmd(0xC6, 0, 1), {"<F0000c601010000c8>"}},
        {"ndi switch read", cmd(0xC6, 1), {"<F0000c601000000c7>"}},
        {"ndi data type set", cmd(0xC6, 2, 3, 4), {"<F0000c603030400d0>"}},
        {"ndi data type read", cmd(0xC6, 3), {"<F0000c603000000c9>"}},
        {"ndi decoding format set", cmd(0xC6, 6, 2), {"<F0000c607020000cf>"}},
        {"ndi decoding format read", cmd(0xC6, 7), {"<F0000c607000000cd>"}},
        {"ndi decoding switch", cmd(0xC6, 8, 1), {"<F0000c608010000cf>"}},
        {"ndi menu switch (log only)", cmd(0xC6, 4, 1), {}},
        {"scope (log only)", cmd(0xC7, 1, 2, 1, 3), {}},
        {"uvc style (log only)", cmd(0xC8, 0, 0, 1, 2), {}},
        {"ptz support uvc 1", cmd(0xC8, 3, 0), {"<F0000c803000f00da>"}},
        {"auto focus off", cmd(0xC8, 4, 1, 1, 0), {"<F0000c804010100ce>"}},
        {"view set", cmd(0xC8, 4, 0, 2, 3), {"<F0000c804000203d1>"}},
        {"view read", cmd(0xC8, 5, 1, 2), {"<F0000c805010200d0>"}},
        {"ptz move (no answer)", cmd(0xC8, 4, 0, 0, 3), {}},
        {"sampling rate set", cmd(0xC9, 0, 1, 2, 3), {"<F0000c901010203d0>"}},
        {"hdmi out style set", cmd(0xC9, 0, 2, 1), {"<F0000c901020100cd>"}},
        {"output status", cmd(0xD0, 7, 0), {"<F0000d007010000d8>"}},
        {"hdmi2 status", cmd(0xD0, 0x0C), {"<F0000d00c010000dd>"}},
        {"set input format", cmd(0xF0, 0xB3, 1, 0, 0, hex("0080073804003c00")), {"<F0000f0b3010000a4>"}},
        {"stream 1 on air", cmd(0xF0, 0xB4, 1, 0, 0, streamOn), {"<F0000d004010100d6>"}},
        {"stream parameters", cmd(0xF0, 0xB5, 0, 0, 0, summed(hex("01027017"))), {"<F0000f0b5000500aa>"}},
        {"bluetooth connect", cmd(0xF0, 0xB6, 0, 0, 0, kSpeakerMac), {"<F0000f0b6000000a6>"}},
        {"bluetooth connect unknown", cmd(0xF0, 0xB6, 0, 0, 0, summed(hex("112233445566"))), {"<F0000f0b6000500ab>"}},
        {"bluetooth disconnect", cmd(0xF0, 0xB7, 0, 0, 0, kSpeakerMac), {"<F0000f0b7000000a7>"}},
        {"ndi group name set", cmd(0xF0, 0xB8, 0, 0, 0, "abc"), {"<F0000f0b8000000a8>"}},
        {"ndi decoding source", cmd(0xF0, 0xBB, 0, 0, 0, "CAM"), {"<F0000f0bb000000ab>"}},
        {"record name", cmd(0xF0, 0xBC, 0, 0, 0, "show1"), {"<F0000f0bc000000ac>"}},
        {"serial number", cmd(0xF1, 0x44), {"<F0000f144000f0044>", QByteArray("CS2026SIM00001\0", 15)}},
        {"record file name, none yet", cmd(0xF1, 0x45), {"<F0000f14500000036>"}},
        {"format list uvc 1", cmd(0xF1, 0xB3, 2),
         {"<F0000f1b3021900bf>", hex("01800738041e" "010005d0021e" "018002e0011e" "028002e0011e" "00")}},
        {"format list hdmi 2 with 1080i as 540 lines", cmd(0xF1, 0xB3, 1),
         {"<F0000f1b3011f00c4>", hex("00800738043c" "008007380432" "008007""1c023c" "008007""1c0232" "000005d0023c" "00")}},
        {"bluetooth companion devices", cmd(0xF1, 0xB4, 1),
         {"<F0000f1b4011700bd>", hex("01" "005cf938123456" "0e") + "Director Phone"}},
        {"ndi group name", cmd(0xF1, 0xB8, 0), {"<F0000f1b8000700b0>", QByteArray("public\0", 7)}},
        {"ndi connection", cmd(0xF1, 0xB8, 3), {"<F0000f1b8030a00b6>", hex("0001efff0001ffffff00")}},
        {"ndi base information", cmd(0xF1, 0xB8, 4), {"<F0000f1b8040a00b7>", hex("800738043c3c401f80bb")}},
        {"uvc 1 styles", cmd(0xF1, 0xB9, 0), {"<F0000f1b9000500af>", hex("0001020300")}},
        {"current format hdmi 1", cmd(0xF1, 0xBA, 0), {"<F0000f1ba000700b2>", hex("00800738043c00")}},
        {"current format of unplugged uvc 2", cmd(0xF1, 0xBA, 3), {"<F0000f1ba030000ae>"}},
        {"ndi sources", cmd(0xF1, 0xBB),
         {"<F0000f1bb00680014>", QByteArray("\x03STUDIO-PC (OBS),192.168.1.20:5961;CAM-NORTH (PTZ1),192.168.1.31:5961;"
                                            "TABLET (Slides),192.168.1.45:5962;")}},
        // Arguments the device refuses: nothing comes back.
        {"cut to a missing input", cmd(0x78, 1, 9), {}},
        {"format list of input 5", cmd(0xF1, 0xB3, 5), {}},
        {"stream address with a bad check byte", cmd(0xF0, 0xB4, 0, 0, 0, QByteArray("\x01\"x\"\x00", 5)), {}},
        {"ndi connection with a bad check byte", cmd(0xF0, 0xB8, 3, 0, 0, hex("0001efff0001ffffff0000")), {}},
        {"unknown command", cmd(0x55, 1), {}},
        {"non-extended command with a block", cmd(0x78, 1, 1) + "x", {}},
    };
}

QByteArrayList answer(Sim::Device &device, const QByteArray &frame, int *delayMs = nullptr)
{
    model_Protocoldata rec;
    QString why;
    if (!Sim::Server::parseCommand(frame, &rec, &why))
        return {"unparsable: " + why.toUtf8()};
    QByteArrayList out;
    for (const Sim::Report &r : device.handle(rec)) {
        out += Sim::Device::datagrams(r.rec);
        if (delayMs)
            *delayMs = r.delayMs;
    }
    return out;
}

model_Protocoldata parsed(const QByteArray &reportHeader)
{
    return ProtocolFrame::parseReport(reportHeader);
}

} // namespace

class TstSimDevice : public QObject
{
    Q_OBJECT
private slots:
    void commandVectors_data()
    {
        QTest::addColumn<QByteArray>("frame");
        QTest::addColumn<QByteArrayList>("expected");
        for (const Vector &v : vectors())
            QTest::newRow(v.name) << v.frame << v.expected;
    }
    void commandVectors()
    {
        QFETCH(QByteArray, frame);
        QFETCH(QByteArrayList, expected);
        Sim::Device device;
        const QByteArrayList got = answer(device, frame);
        QCOMPARE(got, expected);
        // Every report header is one the front end's parser accepts.
        for (const QByteArray &d : got) {
            if (!d.startsWith("<F"))
                continue;
            ProtocolFrame::ParseError e = ProtocolFrame::ParseError::WrongSize;
            ProtocolFrame::parseReport(d, &e);
            QCOMPARE(int(e), int(ProtocolFrame::ParseError::None));
        }
    }

    // Adding a handler without a vector fails here.
    void everyHandlerHasAVector()
    {
        const QVector<Vector> all = vectors();
        for (const Sim::Device::HandlerKey &key : Sim::Device::handlerKeys()) {
            bool covered = false;
            for (const Vector &v : all) {
                model_Protocoldata rec;
                QString why;
                if (Sim::Server::parseCommand(v.frame, &rec, &why) && rec.CMD == key.cmd
                    && Sim::Device::handlerName(rec.CMD, rec.DAT1) == key.name)
                    covered = true;
            }
            QVERIFY2(covered, qPrintable(QStringLiteral("no vector for %1 (%2/%3)").arg(key.name).arg(key.cmd, 0, 16).arg(key.dat1)));
        }
    }

    void searchEndComesLater()
    {
        Sim::Device device;
        int delay = 0;
        answer(device, cmd(0xC5, 3, 5), &delay);
        QVERIFY(delay >= 500);
    }

    void malformedCommands_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        QTest::addColumn<QString>("reason");
        const QByteArray good = cmd(0x78, 1, 1);
        QTest::newRow("empty") << QByteArray() << "shorter";
        QTest::newRow("18 bytes") << good.left(18) << "shorter";
        QTest::newRow("report echoed back") << QByteArray("<F000078010100007a>") << "start";
        QTest::newRow("no '<'") << QByteArray("xT000078010100007a>") << "start";
        QTest::newRow("bad hex") << QByteArray("<T0000780g0100007a>") << "hex";
        QTest::newRow("all blanks") << QByteArray("<T                >") << "hex";
        QTest::newRow("no '>'") << QByteArray("<T000078010100007a)") << "'>'";
        QTest::newRow("checksum off by one") << QByteArray("<T000078010100007b>") << "checksum";
        QTest::newRow("binary noise") << QByteArray(64, '\xff') << "start";
    }
    void malformedCommands()
    {
        QFETCH(QByteArray, datagram);
        QFETCH(QString, reason);
        model_Protocoldata rec;
        QString why;
        QVERIFY(!Sim::Server::parseCommand(datagram, &rec, &why));
        QVERIFY2(why.contains(reason), qPrintable(why));
    }

    void blockLengthMustMatch_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        // Header announces 3 bytes (DAT3 = 3).
        const QByteArray header = "<T0000f0b8000300ab>";
        QTest::newRow("truncated block") << header + "ab";
        QTest::newRow("overlong block") << header + "abcd";
        QTest::newRow("huge announced length") << QByteArray("<T0000f0b800ffffa6>") + "abc";
    }
    void blockLengthMustMatch()
    {
        QFETCH(QByteArray, datagram);
        Sim::Device device;
        QVERIFY(answer(device, datagram).isEmpty());
        QCOMPARE(device.state().ndiGroup, QByteArray("public")); // nothing applied
    }

    void ndiNamesReadBackAsSet_data()
    {
        QTest::addColumn<int>("item");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("group") << 0 << QByteArray("Studio A");
        QTest::newRow("channel") << 1 << QByteArray("Wide shot");
        QTest::newRow("device, Latin-1 byte") << 2 << QByteArray("Cam\xe9ra");
        QTest::newRow("empty channel") << 1 << QByteArray();
    }
    void ndiNamesReadBackAsSet()
    {
        QFETCH(int, item);
        QFETCH(QByteArray, name);
        Sim::Device device;
        QCOMPARE(answer(device, cmd(0xF0, 0xB8, item, 0, 0, name)).size(), 1);
        const QByteArrayList got = answer(device, cmd(0xF1, 0xB8, item));
        QCOMPARE(got.size(), 2);
        const model_Protocoldata h = parsed(got.at(0));
        QCOMPARE(int(h.DAT2), item);
        QCOMPARE(int(combineTwoByte(h.DAT3, h.DAT4)), name.size() + 1);
        QCOMPARE(got.at(1), name + '\0');
    }

    void switchesShowInInitInput()
    {
        Sim::Device device;
        answer(device, cmd(0x78, 1, 3)); // UVC 2 to programme
        answer(device, cmd(0x78, 0, 4)); // NDI as sub
        const model_Protocoldata r = parsed(answer(device, cmd(0x78, 2, 0)).value(0));
        QCOMPARE(int(r.CMD), 0x78);
        QCOMPARE(int(r.DAT3), 3);
        QCOMPARE(int(r.DAT4), 4);
        answer(device, cmd(0x68, 0xAA, 2, 1));
        const Sim::Scene scene = Sim::Scene::from(device.state());
        QCOMPARE(scene.programme, 3);
        QCOMPARE(scene.pipInput, 4);
        QVERIFY(scene.pipOn);
        QCOMPARE(scene.pipPosition, 1);
    }

    void streamStatusAgreesWithStreamsSet()
    {
        Sim::Device device;
        auto address = [](int open) { return summed(QByteArray(1, char(open)) + "\"rtmp://live.example/app/key\""); };
        answer(device, cmd(0xF0, 0xB4, 1, 0, 0, address(1)));
        answer(device, cmd(0xF0, 0xB4, 3, 0, 0, address(1)));
        QCOMPARE(parsed(answer(device, cmd(0x68, 0xB5, 0)).value(0)).DAT2, uchar(0x0A));
        const model_Protocoldata off = parsed(answer(device, cmd(0xF0, 0xB4, 1, 0, 0, address(0))).value(0));
        QCOMPARE(int(off.CMD), 0xD0);
        QCOMPARE(int(off.DAT1), 4);
        QCOMPARE(int(off.DAT2), 0); // status
        QCOMPARE(int(off.DAT3), 1); // channel
        QCOMPARE(parsed(answer(device, cmd(0x68, 0xB5, 0)).value(0)).DAT2, uchar(0x08));
        QCOMPARE(device.state().streamAddress[3], QByteArray("rtmp://live.example/app/key"));
    }

    void recordingAndItsFileName()
    {
        Sim::Device device;
        answer(device, cmd(0xF0, 0xBC, 0, 0, 0, "../../etc/passwd;rm"));
        QCOMPARE(parsed(answer(device, cmd(0xC2, 1, 1)).value(0)).DAT3, uchar(1));
        QCOMPARE(parsed(answer(device, cmd(0xC2, 1, 3)).value(0)).DAT3, uchar(1));
        const QByteArrayList name = answer(device, cmd(0xF1, 0x45));
        QCOMPARE(name.size(), 2);
        QCOMPARE(name.at(1), QByteArray("/media/usb0/CSRecord/etcpasswdrm.mp4") + '\0');
        QCOMPARE(parsed(answer(device, cmd(0xC2, 1, 2)).value(0)).DAT3, uchar(0));
        // Without a disk nothing records.
        device.usbDisk(false);
        QCOMPARE(parsed(answer(device, cmd(0xC2, 1, 1)).value(0)).DAT3, uchar(0));
    }

    void bluetoothConnectShowsInList()
    {
        Sim::Device device;
        answer(device, cmd(0xF0, 0xB6, 0, 0, 0, kSpeakerMac));
        const QByteArray list = answer(device, cmd(0xF1, 0xB4, 0)).value(1);
        QCOMPARE(int(uchar(list.at(0))), 2);
        QCOMPARE(int(uchar(list.at(1))), 1); // first entry now connected
        QCOMPARE(list.mid(2, 6), hex("001a7dda710b"));
        QCOMPARE(list.mid(9, 10), QByteArray("CS Speaker"));
        answer(device, cmd(0xC5, 0)); // off: the list is empty
        QCOMPARE(answer(device, cmd(0xF1, 0xB4, 0)).value(1), hex("00"));
    }

    void factoryResetRestoresDefaults()
    {
        Sim::Device device;
        answer(device, cmd(0xF0, 0xB8, 0, 0, 0, "changed"));
        answer(device, cmd(0x78, 1, 2));
        answer(device, cmd(0x68, 0x06));
        QCOMPARE(device.state().ndiGroup, QByteArray("public"));
        QCOMPARE(device.state().programme, 0);
    }

    void unsolicitedReports_data()
    {
        QTest::addColumn<QString>("event");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("unplug hdmi 1") << "unplug 0" << QByteArray("<F0000d001000000d1>");
        QTest::newRow("plug uvc 2") << "plug 3" << QByteArray("<F0000d001010300d5>");
        QTest::newRow("usb removed") << "usb 0" << QByteArray("<F0000d003000000d3>");
        QTest::newRow("stream 2 on") << "stream 2 1" << QByteArray("<F0000d004010200d7>");
    }
    void unsolicitedReports()
    {
        QFETCH(QString, event);
        QFETCH(QByteArray, expected);
        Sim::Device device;
        const Sim::Script s = Sim::Script::parse(QStringLiteral("1 ") + event);
        QCOMPARE(s.events.size(), 1);
        const Sim::ScriptEvent &e = s.events.first();
        model_Protocoldata r;
        switch (e.kind) {
        case Sim::ScriptEvent::Plug: r = device.plug(e.args[0], true); break;
        case Sim::ScriptEvent::Unplug: r = device.plug(e.args[0], false); break;
        case Sim::ScriptEvent::Usb: r = device.usbDisk(e.args[0]); break;
        case Sim::ScriptEvent::Stream: r = device.streamStatus(e.args[0], e.args[1]); break;
        default: QFAIL("unexpected kind");
        }
        QCOMPARE(Sim::Device::datagrams(r).value(0), expected);
    }

    void longBlocksSpanDatagrams()
    {
        model_Protocoldata r;
        r.CMD = 0xF1;
        r.DAT1 = 0xBB;
        QByteArray block(1300, 'n');
        block[0] = 3;
        r.arryDatablock = block;
        r.DAT3 = uchar(block.size() & 0xff);
        r.DAT4 = uchar(block.size() >> 8);
        const QByteArrayList d = Sim::Device::datagrams(r);
        QCOMPARE(d.size(), 4); // header + 512 + 512 + 276
        QCOMPARE(d.at(0).size(), 19);
        QCOMPARE(d.at(1).size(), Sim::kBlockChunk);
        QCOMPARE(d.at(3).size(), 1300 - 2 * Sim::kBlockChunk);
        QCOMPARE(d.mid(1).join(), block);
    }

    void scriptLines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("events");
        QTest::addColumn<int>("errors");
        QTest::addColumn<int>("firstAtMs");
        QTest::newRow("example") << "5.0 unplug 0\n6 plug 0\n8 usb 1\n10 stream 2 1\n12 report d0 08 01 00\n" << 5 << 0 << 5000;
        QTest::newRow("comments and blanks") << "# demo\n\n  0.25 typec 0  \n" << 1 << 0 << 250;
        QTest::newRow("unknown verb") << "1 explode 3\n2 usb 1" << 1 << 1 << 2000;
        QTest::newRow("input out of range") << "1 unplug 7" << 0 << 1 << -1;
        QTest::newRow("negative time") << "-1 usb 1" << 0 << 1 << -1;
        QTest::newRow("bad report byte") << "1 report d0 1ff" << 0 << 1 << -1;
        QTest::newRow("shell text is just a bad line") << "1 $(reboot)\n`id`" << 0 << 2 << -1;
    }
    void scriptLines()
    {
        QFETCH(QString, text);
        QFETCH(int, events);
        QFETCH(int, errors);
        QFETCH(int, firstAtMs);
        const Sim::Script s = Sim::Script::parse(text);
        QCOMPARE(s.events.size(), events);
        QCOMPARE(s.errors.size(), errors);
        if (firstAtMs >= 0)
            QCOMPARE(s.events.first().atMs, firstAtMs);
    }

    // Mutated and random datagrams: never a crash, an answer only with a
    // header the front end accepts, and the state stays in range.
    void hostileDatagramsLeaveADeviceInRange()
    {
        QRandomGenerator rng(20261122);
        const QVector<Vector> all = vectors();
        Sim::Device device;
        int answered = 0;
        for (int i = 0; i < 20000; ++i) {
            QByteArray d = all.at(int(rng.bounded(all.size()))).frame;
            switch (rng.bounded(6)) {
            case 5: { // a known command with random arguments
                model_Protocoldata r;
                QString why;
                if (Sim::Server::parseCommand(d, &r, &why)) {
                    r.DAT2 = uchar(rng.bounded(256));
                    if (r.CMD != 0xF0) {
                        r.DAT3 = uchar(rng.bounded(256));
                        r.DAT4 = uchar(rng.bounded(256));
                    }
                    d = ProtocolFrame::build(r, 'T');
                }
                break;
            }
            case 0: d[int(rng.bounded(d.size()))] = char(rng.bounded(256)); break;
            case 1: d.truncate(int(rng.bounded(d.size() + 1))); break;
            case 2: d.append(QByteArray(int(rng.bounded(600)), char(rng.bounded(256)))); break;
            case 3: {
                d = QByteArray(int(rng.bounded(64)), '\0');
                for (char &c : d)
                    c = char(rng.bounded(256));
                break;
            }
            default: { // a well-formed frame with random bytes
                d = cmd(int(rng.bounded(256)), int(rng.bounded(256)), int(rng.bounded(256)), int(rng.bounded(256)),
                        int(rng.bounded(256)));
                break;
            }
            }
            model_Protocoldata rec;
            QString why;
            if (!Sim::Server::parseCommand(d, &rec, &why))
                continue;
            for (const Sim::Report &r : device.handle(rec)) {
                ++answered;
                const QByteArrayList out = Sim::Device::datagrams(r.rec);
                ProtocolFrame::ParseError e = ProtocolFrame::ParseError::WrongSize;
                ProtocolFrame::parseReport(out.first(), &e);
                QCOMPARE(int(e), int(ProtocolFrame::ParseError::None));
                int block = 0;
                for (int k = 1; k < out.size(); ++k)
                    block += out.at(k).size();
                QCOMPARE(block, r.rec.CMD == 0xF1 ? int(combineTwoByte(r.rec.DAT3, r.rec.DAT4)) : 0);
            }
            const Sim::DeviceState &s = device.state();
            QVERIFY(s.programme >= 0 && s.programme < Sim::kInputCount);
            QVERIFY(s.sub >= 0 && s.sub < Sim::kInputCount);
            QVERIFY(s.ndiGroup.size() <= 255 && s.ndiChannel.size() <= 255 && s.ndiDevice.size() <= 255);
        }
        QVERIFY(answered > 1000); // the mutations still reach the handlers
    }

    void rawScriptReport()
    {
        const Sim::Script s = Sim::Script::parse(QStringLiteral("12 report d0 08 01 00"));
        QCOMPARE(s.events.size(), 1);
        const auto &a = s.events.first().args;
        QCOMPARE(a[0], 0xD0);
        QCOMPARE(a[1], 0x08);
        QCOMPARE(a[2], 0x01);
        QCOMPARE(a[3], 0x00);
    }
};

QTEST_GUILESS_MAIN(TstSimDevice)
#include "tst_simdevice.moc"
