// The simulated device without sockets: command frames (and script events)
// in, the exact report datagrams out, and what the front end's own parser
// and report dispatcher make of them. Answers the end-to-end runs already
// rely on (switching, streaming, recording, NDI, formats) are not repeated.
#include "../reports/SignalRecorder.h"
#include "SimDevice.h"
#include "SimPicture.h"
#include "SimScript.h"
#include "SimServer.h"
#include "SimTestSupport.h"
#include "UiprocVideo_Desktop.h"

#include <QRandomGenerator>
#include <QtTest>

using SimTest::cmd;
using SimTest::summed;

namespace {

QByteArray hex(const char *h)
{
    return QByteArray::fromHex(h);
}

struct Row
{
    const char *name;
    QByteArrayList steps;      // command frames, or "@" and a script event
    QByteArrayList datagrams;  // what the last step sends
    QStringList emitted;       // and the signals the front end makes of it
};

QVector<Row> rows()
{
    const QByteArray on = summed(QByteArray("\x01\"rtmp://a/b\"", 13)), off = summed(QByteArray("\x00\"rtmp://a/b\"", 13));
    const QByteArray speaker = summed(hex("001a7dda710b"));
    const QByteArray publicGroup[] = {"<F0000f1b8000700b0>", QByteArray("public\0", 7)};
    return {
        {"cut to a missing input", {cmd(0x78, 1, 9)}, {}, {}},
        {"usb status", {cmd(0x68, 0xAD)}, {"<F000068ad01000016>"}, {"pushUSBStatus(1)"}},
        {"factory reset", {cmd(0x68, 0x06)}, {"<F000068060100006f>"}, {"pushResetStatus(1)"}},
        {"factory reset restores the inputs", {cmd(0x78, 1, 2), cmd(0x78, 0, 4), cmd(0x68, 0x06), cmd(0x78, 2, 0)}, {"<F000078020000017b>"}, {"pushInitInput(0,1)"}},
        {"power off (no answer)", {cmd(0x68, 0x10)}, {}, {}},
        {"battery level", {cmd(0x68, 0xB0, 1)}, {"<F000068b001500069>"}, {"pushPower(1,80)"}},
        {"stream status after a stop", {cmd(0xF0, 0xB4, 1, 0, 0, on), cmd(0xF0, 0xB4, 3, 0, 0, on), cmd(0xF0, 0xB4, 1, 0, 0, off), cmd(0x68, 0xB5, 0)},
         {"<F000068b508000025>"}, {"pushRtmpStatus(3,1)"}},
        {"stream status with 1 live after 0 stopped", {cmd(0xF0, 0xB4, 0, 0, 0, on), cmd(0xF0, 0xB4, 1, 0, 0, on), cmd(0xF0, 0xB4, 0, 0, 0, off), cmd(0x68, 0xB5, 0)},
         {"<F000068b50200001f>"}, {"pushRtmpStatus(1,1)"}},
        {"stream address with a bad check byte", {cmd(0xF0, 0xB4, 0, 0, 0, QByteArray("\x01\"x\"\x00", 5))}, {}, {}},
        {"stream parameters", {cmd(0xF0, 0xB5, 0, 0, 0, summed(hex("01027017")))}, {"<F0000f0b5000500aa>"}, {}},
        {"type-c", {cmd(0xC1)}, {"<F0000c101000000c2>"}, {"pushTypeCStatus(1)"}},
        {"no recording without the disk", {"@usb 0", cmd(0xC2, 1, 1)}, {"<F0000c201030000c6>"}, {"pushRecordingStatus(0)"}},
        {"record name", {cmd(0xF0, 0xBC, 0, 0, 0, "show1")}, {"<F0000f0bc000000ac>"}, {}},
        {"record file name keeps harmless characters", {cmd(0xF0, 0xBC, 0, 0, 0, "../../etc/passwd;rm"), cmd(0xC2, 1, 1), cmd(0xF1, 0x45)},
         {"<F0000f145001c0052>", QByteArray("/media/usb0/etcpasswdrm.mp4", 28)},
         {R"(pushRecordFileName("/media/usb0/etcpasswdrm.mp4","etcpasswdrm"))"}},
        {"record file name cleared", {cmd(0xC2, 1, 1), cmd(0xC2, 3), cmd(0xF1, 0x45)}, {"<F0000f14500000036>"}, {R"(pushRecordFileName("",""))"}},
        {"bluetooth on", {cmd(0xC5, 1)}, {"<F0000c501000000c6>"}, {}},
        {"bluetooth off empties the list", {cmd(0xC5, 0), cmd(0xF1, 0xB4, 0)}, {"<F0000f1b4000100a6>", hex("00")}, {}},
        {"bluetooth broadcast search", {cmd(0xC5, 4)}, {"<F0000c505000000ca>"}, {"pushBluetoothFinBroadCast()"}},
        {"bluetooth connect", {cmd(0xF0, 0xB6, 0, 0, 0, speaker)}, {"<F0000f0b6000000a6>"}, {"pushConnectResult(0,true)"}},
        {"bluetooth connect unknown", {cmd(0xF0, 0xB6, 0, 0, 0, summed(hex("112233445566")))}, {"<F0000f0b6000500ab>"}, {"pushConnectResult(0,false)"}},
        {"bluetooth list shows the connected device", {cmd(0xF0, 0xB6, 0, 0, 0, speaker), cmd(0xF1, 0xB4, 0)},
         {"<F0000f1b4002900ce>", hex("02" "01001a7dda710b0a") + "CS Speaker" + hex("00a4c138059e210e") + "Studio Headset"},
         {R"(pushBluetoothDevInfo(1,"0-1a-7d-da-71-b","CS Speaker"))", R"(pushBluetoothDevInfo(0,"a4-c1-38-5-9e-21","Studio Headset"))"}},
        {"ndi switch read", {cmd(0xC6, 0, 1), cmd(0xC6, 1)}, {"<F0000c601010000c8>"}, {"pushNdiStatus(1)"}},
        {"ndi data type set", {cmd(0xC6, 2, 3, 4)}, {"<F0000c603030400d0>"}, {"pushNdiDataType(3,4)"}},
        {"ndi decoding switch", {cmd(0xC6, 8, 1)}, {"<F0000c608010000cf>"}, {"pushNDIDecodingStatus(1)"}},
        {"ndi menu switch (no answer)", {cmd(0xC6, 4, 1)}, {}, {}},
        {"ndi device name read back, Latin-1", {cmd(0xF0, 0xB8, 2, 0, 0, "Cam\xe9ra"), cmd(0xF1, 0xB8, 2)},
         {"<F0000f1b8020700b2>", QByteArray("Cam\xe9ra\0", 7)}, {"pushNdiDeviceName(\"Cam\u00e9ra\")"}},
        {"ndi name of 256 bytes refused", {cmd(0xF0, 0xB8, 0, 0, 0, QByteArray(256, 'n')), cmd(0xF1, 0xB8, 0)},
         {publicGroup[0], publicGroup[1]}, {R"(pushNdiGroupName("public"))"}},
        {"ndi connection set and read", {cmd(0xF0, 0xB8, 3, 0, 0, summed(hex("0204c0a80001ffff0000"))), cmd(0xF1, 0xB8, 3)},
         {"<F0000f1b8030a00b6>", hex("0204c0a80001ffff0000")},
         {R"(pushNdiConnectType({"addr1":192,"addr2":168,"addr3":0,"addr4":1,"netmask1":255,"netmask2":255,"netmask3":0,)"
          R"("netmask4":0,"ttlValue":4,"type":2}))"}},
        {"ndi base information", {cmd(0xF1, 0xB8, 4)}, {"<F0000f1b8040a00b7>", hex("800738043c3c401f80bb")},
         {R"(pushNdiBaseInfo("1920x1080@60",60,8000,48000))"}},
        {"ndi decoding source without a name", {cmd(0xF0, 0xBB)}, {}, {}},
        {"ptz support uvc 1", {cmd(0xC8, 3, 0)}, {"<F0000c803000f00da>"}, {"pushPTZStatus(1,1,1,1)"}},
        {"auto focus off", {cmd(0xC8, 4, 1, 1, 0)}, {"<F0000c804010100ce>"}, {"pushPTZAutoFocus(0)"}},
        {"view read", {cmd(0xC8, 4, 1, 2, 5), cmd(0xC8, 5, 1, 2)}, {"<F0000c805010205d5>"}, {"pushPTZView(5)"}},
        {"preset out of range", {cmd(0xC8, 4, 0, 2, 9)}, {}, {}},
        {"sampling rate set", {cmd(0xC9, 0, 1, 2, 3)}, {"<F0000c901010203d0>"}, {"pushAudioSamplingRate(2,3)"}},
        {"hdmi2 status", {cmd(0xD0, 0x0C)}, {"<F0000d00c010000dd>"}, {"pushHDMI2Status(1)"}},
        // Type, width, height, fps, interlace flag, check byte.
        {"set input format", {cmd(0xF0, 0xB3, 1, 0, 0, hex("00800738043c00ff"))}, {"<F0000f0b3010000a4>"}, {}},
        {"format the input does not offer", {cmd(0xF0, 0xB3, 0, 0, 0, hex("0080073804190085"))}, {}, {}},
        {"format block without its check byte", {cmd(0xF0, 0xB3, 1, 0, 0, hex("00800738043c0000"))}, {}, {}},
        {"pip second picture of no input", {cmd(0x68, 0xAA, 3, 7)}, {}, {}},
        {"audio source out of range", {cmd(0xC3, 0x09)}, {}, {}},
        {"format list of input 5", {cmd(0xF1, 0xB3, 5)}, {}, {}},
        {"uvc 2 styles", {cmd(0xF1, 0xB9, 1)}, {"<F0000f1b9010300ae>", hex("000200")}, {"pushStyleStatus([0,2])"}},
        {"script: unplug hdmi 1", {"@unplug 0"}, {"<F0000d001000000d1>"}, {"pushInputInitiative(0,0)"}},
        {"script: unplugged input has no current format", {"@unplug 1", cmd(0xF1, 0xBA, 1)}, {"<F0000f1ba010000ac>"}, {"pushInputFormatInitiative(1,{})"}},
        {"script: usb removed", {"@usb 0"}, {"<F0000d003000000d3>"}, {"pushUSBInitiative(0)"}},
        {"script: any report", {"@report d0 08 01 00"}, {"<F0000d008010000d9>"}, {"pushInputClick(1)"}},
        // Frames the device refuses: no answer, nothing applied.
        {"unknown command", {cmd(0x55, 1)}, {}, {}},
        {"non-extended command with a block", {cmd(0x78, 1, 1) + "x"}, {}, {}},
        {"empty datagram", {QByteArray()}, {}, {}},
        {"report echoed back", {"<F000078010100007a>"}, {}, {}},
        {"bad hex", {"<T0000780g0100007a>"}, {}, {}},
        {"checksum off by one", {"<T000078010100007b>"}, {}, {}},
        {"truncated block not applied", {"<T0000f0b8000300ab>ab", cmd(0xF1, 0xB8, 0)}, {publicGroup[0], publicGroup[1]}, {R"(pushNdiGroupName("public"))"}},
        {"huge announced length", {"<T0000f0b800ffffa6>abc"}, {}, {}},
    };
}

// One step on the device; the answer's datagrams, and the signals the
// report dispatcher emits for them once the blocks are reassembled.
QPair<QByteArrayList, QStringList> step(Sim::Device &device, const QByteArray &input)
{
    QVector<Sim::Report> reports;
    model_Protocoldata rec;
    QString why;
    if (input.startsWith('@')) {
        const Sim::ScriptEvent e = Sim::Script::parse("0 " + QString::fromLatin1(input.mid(1))).events.value(0);
        switch (e.kind) {
        case Sim::ScriptEvent::Plug: rec = device.plug(e.args[0], true); break;
        case Sim::ScriptEvent::Unplug: rec = device.plug(e.args[0], false); break;
        case Sim::ScriptEvent::Usb: rec = device.usbDisk(e.args[0]); break;
        case Sim::ScriptEvent::TypeC: rec = device.typeC(e.args[0]); break;
        case Sim::ScriptEvent::Stream: rec = device.streamStatus(e.args[0], e.args[1]); break;
        case Sim::ScriptEvent::Report: rec = makeRecord(e.args[0], e.args[1], e.args[2], e.args[3], e.args[4]); break;
        }
        reports = {Sim::Report{rec, 0}};
    } else if (Sim::Server::parseCommand(input, &rec, &why)) {
        reports = device.handle(rec);
    }
    QPair<QByteArrayList, QStringList> out;
    UiprocVideo_Desktop video;
    Emissions emissions(&video);
    for (const Sim::Report &r : reports) {
        const QByteArrayList d = Sim::Device::datagrams(r.rec);
        out.first += d;
        ProtocolFrame::ParseError error = ProtocolFrame::ParseError::WrongSize;
        model_Protocoldata got = ProtocolFrame::parseReport(d.first(), &error);
        if (error != ProtocolFrame::ParseError::None)
            out.second << "unparsable " + d.first();
        got.arryDatablock = d.mid(1).join();
        video.taskCmdProcess(got);
    }
    out.second += emissions.all();
    return out;
}

} // namespace

class TstSimDevice : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        registerProtocolTypes();
        QLoggingCategory::setFilterRules(QStringLiteral("cs.report.debug=false"));
    }

    void answers_data()
    {
        QTest::addColumn<QByteArrayList>("steps");
        QTest::addColumn<QByteArrayList>("datagrams");
        QTest::addColumn<QStringList>("emitted");
        for (const Row &r : rows())
            QTest::newRow(r.name) << r.steps << r.datagrams << r.emitted;
    }
    void answers()
    {
        QFETCH(QByteArrayList, steps);
        QFETCH(QByteArrayList, datagrams);
        QFETCH(QStringList, emitted);
        Sim::Device device;
        QPair<QByteArrayList, QStringList> last;
        for (const QByteArray &s : steps)
            last = step(device, s);
        QCOMPARE(last.first, datagrams);
        QCOMPARE(last.second, emitted);
    }

    // Presets, styles and scopes are kept, so the picture and later answers
    // agree with them; what the camera or the scopes lack is refused.
    void stateFollowsCommands_data()
    {
        QTest::addColumn<QByteArrayList>("steps");
        QTest::addColumn<QString>("state");
        const QByteArray right = cmd(0xC8, 4, 0, 0, 4), stop = cmd(0xC8, 4, 0, 0, 0);
        QTest::newRow("stored preset recalled") << QByteArrayList{right, stop, cmd(0xC8, 4, 0, 3, 1), cmd(0xC8, 4, 0, 2, 0), cmd(0xC8, 4, 0, 2, 1)}
                                                << "moved 1 view 1 styles 0,0 scopes ----";
        QTest::newRow("styles") << QByteArrayList{cmd(0xC8, 0, 0, 1, 1), cmd(0xC8, 0, 1, 2, 1)} << "moved 0 view 0 styles 1,2 scopes ----";
        QTest::newRow("style the camera lacks") << QByteArrayList{cmd(0xC8, 0, 1, 1, 1), cmd(0xC8, 0, 2, 0, 1)} << "moved 0 view 0 styles 0,0 scopes ----";
        QTest::newRow("scopes open and closed") << QByteArrayList{cmd(0xC7, 1, 0, 1, 1), cmd(0xC7, 1, 1, 1, 2), cmd(0xC7, 1, 3, 1, 3), cmd(0xC7, 1, 0, 0, 1)}
                                                << "moved 0 view 0 styles 0,0 scopes -2-3";
        QTest::newRow("scope out of range") << QByteArrayList{cmd(0xC7, 1, 4, 1, 0), cmd(0xC7, 1, 0, 1, 4), cmd(0xC7, 1, 0, 2, 0)}
                                            << "moved 0 view 0 styles 0,0 scopes ----";
    }
    void stateFollowsCommands()
    {
        QFETCH(QByteArrayList, steps);
        QFETCH(QString, state);
        Sim::Device device;
        for (const QByteArray &s : steps)
            step(device, s);
        const Sim::DeviceState &d = device.state();
        const auto &p = d.camera[0];
        QString scopes;
        for (int i = 0; i < Sim::DeviceState::kScopes; ++i)
            scopes += d.scopeOpen[size_t(i)] ? QString::number(d.scopeCorner[size_t(i)]) : QStringLiteral("-");
        QCOMPARE(QStringLiteral("moved %1 view %2 styles %3,%4 scopes %5").arg(p.pan || p.tilt || p.zoom ? 1 : 0).arg(d.view[0])
                     .arg(d.cameraStyle[0]).arg(d.cameraStyle[1]).arg(scopes),
                 state);
    }

    // PIP layouts, sound sources and input formats are kept, and the
    // picture shows the layout.
    void switcherStateAndPicture_data()
    {
        QTest::addColumn<QByteArrayList>("steps");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("picture"); // in the top-right third, in the bottom-right third
        QTest::newRow("corner") << QByteArrayList{cmd(0x78, 0, 1), cmd(0x68, 0xAA, 1, 3)} << "pip 1/3 second - audio 1/15" << "programme picture";
        QTest::newRow("side by side keeps the corner") << QByteArrayList{cmd(0x68, 0xAA, 1, 2), cmd(0x68, 0xAA, 2, 0)}
                                                       << "pip 2/2 second - audio 1/15" << "picture picture";
        QTest::newRow("two pictures") << QByteArrayList{cmd(0x78, 0, 3), cmd(0x68, 0xAA, 3, 2)} << "pip 3/0 second 2 audio 1/15" << "picture picture";
        QTest::newRow("off remembers the layout") << QByteArrayList{cmd(0x68, 0xAA, 3, 2), cmd(0x68, 0xAA, 0, 2)}
                                                  << "pip 0/0 second 2 audio 1/15" << "programme programme";
        QTest::newRow("sound for programme and pip") << QByteArrayList{cmd(0xC3, 0x03), cmd(0xC3, 0x16), cmd(0xC3, 0x1F), cmd(0xC3, 0x40)}
                                                     << "pip 0/0 second - audio 3/15" << "programme programme";
    }
    void switcherStateAndPicture()
    {
        QFETCH(QByteArrayList, steps);
        QFETCH(QString, state);
        QFETCH(QString, picture);
        Sim::Device device;
        for (const QByteArray &s : steps)
            step(device, s);
        const Sim::DeviceState &d = device.state();
        QCOMPARE(QStringLiteral("pip %1/%2 second %3 audio %4/%5")
                     .arg(d.pipType).arg(d.pipPosition)
                     .arg(d.pipInput2 == 255 ? QStringLiteral("-") : QString::number(d.pipInput2))
                     .arg(d.programmeAudio).arg(d.pipAudio),
                 state);

        // What shows at two points: the programme as drawn without PIP, a
        // black empty picture, or another picture.
        const int w = 320, h = 180;
        const auto draw = [&](const Sim::Scene &scene) {
            QByteArray f(w * h * 3, 0);
            Sim::Picture::render(reinterpret_cast<uchar *>(f.data()), w, h, scene, 1000, 30);
            return f;
        };
        const auto at = [&](const QByteArray &f, QPoint p) { return f.mid((p.y() * w + p.x()) * 3, 3); };
        const Sim::Scene scene = Sim::Scene::from(d);
        Sim::Scene programmeOnly = scene;
        programmeOnly.pipOn = false;
        const QByteArray frame = draw(scene), prog = draw(programmeOnly);
        QStringList seen;
        for (const QPoint p : {QPoint(w * 3 / 4 + 7, h / 3 + 3), QPoint(w * 5 / 6, h * 3 / 4)})
            seen << (at(frame, p) == QByteArray(3, 0) ? QStringLiteral("black")
                     : at(frame, p) == at(prog, p) ? QStringLiteral("programme") : QStringLiteral("picture"));
        QCOMPARE(seen.join(' '), picture);
    }

    // Blocks go out in pieces of 512 bytes after the header.
    void longBlocksSpanDatagrams()
    {
        QByteArray block(1300, 'n');
        block[0] = 3;
        const QByteArrayList d = Sim::Device::datagrams(makeRecord(0xF1, 0xBB, 0, 1300 & 0xff, 1300 >> 8, block));
        QCOMPARE(d.size(), 4);
        QCOMPARE(d.at(0), QByteArray("<F0000f1bb001405c5>"));
        QCOMPARE(d.at(1).size(), Sim::kBlockChunk);
        QCOMPARE(d.at(3).size(), 1300 - 2 * Sim::kBlockChunk);
        QCOMPARE(d.mid(1).join(), block);
    }

    void scriptLines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("parsed"); // events, errors, time of the first event
        QTest::newRow("example") << "5.0 unplug 0\n6 plug 0\n8 usb 1\n10 stream 2 1\n12 report d0 08 01 00\n" << "5 0 5000";
        QTest::newRow("comments and blanks") << "# demo\n\n  0.25 typec 0  \n" << "1 0 250";
        QTest::newRow("unknown verb") << "1 explode 3\n2 usb 1" << "1 1 2000";
        QTest::newRow("input out of range") << "1 unplug 7" << "0 1 -";
        QTest::newRow("bad report byte") << "1 report d0 1ff" << "0 1 -";
        QTest::newRow("shell text is just a bad line") << "1 $(reboot)\n`id`" << "0 2 -";
    }
    void scriptLines()
    {
        QFETCH(QString, text);
        QFETCH(QString, parsed);
        const Sim::Script s = Sim::Script::parse(text);
        QCOMPARE(QStringLiteral("%1 %2 %3").arg(s.events.size()).arg(s.errors.size())
                     .arg(s.events.isEmpty() ? QStringLiteral("-") : QString::number(s.events.first().atMs)), parsed);
    }

    // Mutated and random datagrams: never a crash, an answer only with a
    // header the front end accepts and a block as long as announced, and
    // the state stays in range.
    void hostileDatagramsLeaveADeviceInRange()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("cs.sim.warning=false\ncs.sim.info=false\ncs.report.debug=false"));
        QByteArrayList seeds;
        for (const Row &r : rows())
            for (const QByteArray &s : r.steps)
                if (s.startsWith("<T"))
                    seeds << s;
        // Commands whose answers only the end-to-end runs check are mutated too.
        seeds << cmd(0x6A, 0) << cmd(0x89) << cmd(0xF1, 0x44) << cmd(0xF1, 0xBB) << cmd(0xD0, 7, 0) << cmd(0xC7, 1, 3, 1, 2)
              << cmd(0xF0, 0xB4, 0, 0, 0, summed(QByteArray("\x01\"rtmp://a,rtmp://b\"", 20)));
        QRandomGenerator rng(20261122);
        Sim::Device device;
        int answered = 0;
        for (int i = 0; i < 20000; ++i) {
            QByteArray d = seeds.at(int(rng.bounded(seeds.size())));
            model_Protocoldata r;
            QString why;
            switch (rng.bounded(5)) {
            case 0: d[int(rng.bounded(d.size()))] = char(rng.bounded(256)); break;
            case 1: d.truncate(int(rng.bounded(d.size() + 1))); break;
            case 2: d.append(QByteArray(int(rng.bounded(600)), char(rng.bounded(256)))); break;
            case 3: // a known command with random arguments
                if (Sim::Server::parseCommand(d, &r, &why)) {
                    r.DAT2 = uchar(rng.bounded(256));
                    if (r.CMD != 0xF0)
                        r = makeRecord(r.CMD, r.DAT1, r.DAT2, int(rng.bounded(256)), int(rng.bounded(256)));
                    d = ProtocolFrame::build(r, 'T');
                }
                break;
            default: d = cmd(int(rng.bounded(256)), int(rng.bounded(256)), int(rng.bounded(256)), int(rng.bounded(256)), int(rng.bounded(256)));
            }
            const auto [out, emitted] = step(device, d);
            QVERIFY2(!emitted.join(' ').contains("unparsable"), qPrintable(emitted.join(' ')));
            if (!out.isEmpty()) {
                ++answered;
                const model_Protocoldata h = ProtocolFrame::parseReport(out.first());
                if (h.CMD == 0xD0) // an address block answers once per channel it names
                    for (const QByteArray &o : out)
                        QCOMPARE(ProtocolFrame::parseReport(o).CMD, h.CMD);
                else if (h.CMD == 0xF0 && h.DAT1 == 0xBB) // choosing a source also reports receiving it
                    QCOMPARE(out.size(), 2);
                else
                    QCOMPARE(out.mid(1).join().size(), h.CMD == 0xF1 ? h.DAT3 | h.DAT4 << 8 : 0);
            }
            const Sim::DeviceState &s = device.state();
            QVERIFY(s.programme >= 0 && s.programme < Sim::kInputCount && s.sub >= 0 && s.sub < Sim::kInputCount);
            QVERIFY(s.ndiGroup.size() <= 255 && s.ndiChannel.size() <= 255 && s.ndiDevice.size() <= 255);
        }
        QVERIFY(answered > 1000); // the mutations still reach the handlers
    }
};

QTEST_GUILESS_MAIN(TstSimDevice)
#include "tst_simdevice.moc"
