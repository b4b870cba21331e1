// Report dispatch against golden vectors (record in; every signal with its
// arguments and every log line out), codes that must stay silent, and
// signals no report may ever fire.
#include "Logger.h"
#include "ProtocolRecord.h"
#include "SignalRecorder.h"
#include "LogTap.h"
#include "TestSysroot.h"
#include "UiprocVideo_Desktop.h"

#include <QtTest>

#include <initializer_list>
#include <memory>

namespace {

QByteArray bytes(std::initializer_list<int> list)
{
    QByteArray out;
    for (int b : list)
        out.append(char(uchar(b)));
    return out;
}

QByteArray text0(const char *text)
{
    return QByteArray(text) + '\0';
}

model_Protocoldata rec(int cmd, int d1 = 0, int d2 = 0, int d3 = 0, int d4 = 0, const QByteArray &block = {})
{
    return makeRecord(cmd, d1, d2, d3, d4, block);
}

// An extended report whose announced length may differ from the real block.
model_Protocoldata block(int d1, int d2, const QByteArray &data, int announced = -1)
{
    if (announced < 0)
        announced = data.size();
    return rec(0xF1, d1, d2, announced & 0xff, announced >> 8, data);
}

QString P(const char *part)
{
    return QStringLiteral("---UiprocVideo_Desktop::taskCmdProcess()") + QLatin1String(part);
}

struct Vector
{
    QByteArray tag;
    model_Protocoldata rec;
    QStringList emitted;
    QStringList logs;
    bool warns = false; // the block ends early: a warning says so
};

QVector<Vector> vectors()
{
    const QByteArray hdmiFormats = bytes({0, 0x80, 0x07, 0x1C, 0x02, 60, 0, 0x80, 0x07, 0x38, 0x04, 60, 0xFF});
    const QString hdmiPair = R"([{"DataType":0,"Fps":"60i","Weights":3061,"height":1080,"width":1920},)"
                             R"({"DataType":0,"Fps":"60","Weights":3060,"height":1080,"width":1920}])";
    const QString uvcPair = R"([{"DataType":0,"Fps":"60","Weights":3060,"height":1080,"width":1920},)"
                            R"({"DataType":0,"Fps":"60","Weights":2520,"height":540,"width":1920}])";
    const QByteArray bt = bytes({2, 1, 0x00, 0x1A, 0x7D, 0xDA, 0x71, 0x0B, 5}) + "Phone" + bytes({0, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF, 0});
    const QStringList btBoth = {R"(pushBluetoothDevInfo(1,"0-1a-7d-da-71-b","Phone"))", R"(pushBluetoothDevInfo(0,"aa-bb-cc-dd-ee-ff",""))"};
    const QByteArray ndi2 = bytes({2}) + "CAM1,A1;CAM2,A2;";
    const QString ndiPair = R"(pushNDISignalData(17,[{"addr":"A1","name":"CAM1"},{"addr":"A2","name":"CAM2"}]))";

    QVector<Vector> v = {
        // PTZ tally: block byte 13 as one decimal digit.
        {"tally", rec(0x00, 0, 0, 0, 0, "0123456789ABC7EF"), {"pushPTZTally(7)"}, {}},
        {"tally not a digit", rec(0x00, 0, 0, 0, 0, "0123456789ABCxEF"), {"pushPTZTally(0)"}, {}},
        {"tally block too short", rec(0x00, 0, 0, 0, 0, "0123456789ABC"), {}, {}, true},
        {"usb", rec(0x68, 0xAD, 1), {"pushUSBStatus(1)"}, {P(" get usb")}},
        {"reset factory", rec(0x68, 0x06, 1), {"pushResetStatus(1)"}, {P(" Resetfactory fin")}},
        {"power 1", rec(0x68, 0xB0, 1, 80), {"pushPower(1,80)"}, {}},
        {"streaming bits 0x0a", rec(0x68, 0xB5, 0x0A), {"pushRtmpStatus(1,1)", "pushRtmpStatus(3,1)"}, {}},
        {"streaming bits above 3 ignored", rec(0x68, 0xB5, 0xF0), {}, {}},
        {"play or pause", rec(0x69, 0x10, 1), {}, {P(" play or pause video")}},
        {"software version", rec(0x6A, 0, 2, 5), {"pushSoftwareVersion(2,5)"}, {P(" get software version")}},
        {"system version", rec(0x6A, 1, 1, 9), {"pushSystemVersion(1,9)"}, {P(" get system version")}},
        {"switch video", rec(0x78, 0, 3), {}, {P(" switch video")}},
        {"cut finished", rec(0x78, 1, 4), {"pushPGMCutFinish(4)"}, {P(" switch video")}},
        {"init input", rec(0x78, 2, 0, 1, 3), {"pushInitInput(1,3)"}, {P(" read init input")}},
        {"local ip", rec(0x89, 192, 168, 0, 100), {R"(pushLocalIP("192.168.0.100"))"}, {P(" get IP192.168.0.100")}},
        {"typec status", rec(0xC1, 1), {"pushTypeCStatus(1)"}, {P(" TypeCStatus")}},
        {"recording status", rec(0xC2, 1, 3, 1), {"pushRecordingStatus(1)"}, {P(" readRec")}},
        {"playback end", rec(0xC2, 4), {"pushRecordPlayEndInitiative()"}, {P(" playRec end")}},
        {"bluetooth search", rec(0xC5, 3), {"pushBluetoothFin()"}, {P(" bluetooth Search")}},
        {"bluetooth search broadcast", rec(0xC5, 5), {"pushBluetoothFinBroadCast()"}, {P(" bluetooth Search")}},
        {"ndi status", rec(0xC6, 1, 1), {"pushNdiStatus(1)"}, {}},
        {"ndi data type", rec(0xC6, 3, 2, 5), {"pushNdiDataType(2,5)"}, {}},
        {"ndi decoding format", rec(0xC6, 7, 3), {"pushNDIDecodingVideoFormat(3)"}, {}},
        {"ndi decoding status", rec(0xC6, 8, 1), {"pushNDIDecodingStatus(1)"}, {}},
        {"ptz status 0x05", rec(0xC8, 3, 0, 0x05), {"pushPTZStatus(1,0,1,0)"}, {P(" pushPTZStatus")}},
        {"ptz status 0xfa", rec(0xC8, 3, 0, 0xFA), {"pushPTZStatus(0,1,0,1)"}, {P(" pushPTZStatus")}},
        {"ptz autofocus 4", rec(0xC8, 4, 0, 1, 1), {"pushPTZAutoFocus(1)"}, {P(" pushPTZAutoFocus")}},
        {"ptz autofocus 5", rec(0xC8, 5, 0, 1, 0), {"pushPTZAutoFocus(0)"}, {P(" pushPTZAutoFocus")}},
        {"ptz view 4", rec(0xC8, 4, 0, 2, 3), {"pushPTZView(3)"}, {P(" pushPTZView")}},
        {"ptz view 5", rec(0xC8, 5, 0, 2, 6), {"pushPTZView(6)"}, {P(" pushPTZView")}},
        {"audio sampling rate", rec(0xC9, 1, 1, 0, 48), {"pushAudioSamplingRate(0,48)"}, {P(" get audio sampling rate")}},
        {"hdmi out style", rec(0xC9, 1, 2, 1), {"pushHDMIOutStyle(1)"}, {P(" get hdmi out style")}},
        {"init input initiative", rec(0xD0, 0, 2), {"pushInitInputInitiative(2)"}, {P(" InitInputInitiative")}},
        {"input initiative", rec(0xD0, 1, 1, 4), {"pushInputInitiative(1,4)"}, {P(" pushInputInitiative")}},
        {"change hdmi", rec(0xD0, 2, 1), {"pushChangeHDMIInitiative(1)"}, {P(" pushChangeHDMIInitiative")}},
        {"usb initiative", rec(0xD0, 3, 0), {"pushUSBInitiative(0)"}, {P(" pushUSBInitiative")}},
        {"rtmp initiative reversed", rec(0xD0, 4, 1, 2), {"pushRtmpStatus(2,1)"}, {P(" pushRtmpStatus")}},
        {"typec initiative", rec(0xD0, 5, 1), {"pushTypeCInitiative(1)"}, {P(" pushTypeCInitiative")}},
        {"net initiative", rec(0xD0, 6, 1), {"pushNetConCInitiative(1)"}, {P(" pushNetConCInitiative")}},
        {"output initiative", rec(0xD0, 7, 1), {"pushOutputInitiative(1)"}, {P(" pushOutputInitiative")}},
        {"input click", rec(0xD0, 8, 3), {"pushInputClick(3)"}, {P(" pushInputClick")}},
        {"ndi status initiative", rec(0xD0, 9, 1), {"pushNDIStatusInitiative(1)"}, {P(" pushNDIStatusInitiative")}},
        {"ndi decoding status initiative", rec(0xD0, 10, 0), {"pushNDIDecodingStatusInitiative(0)"}, {P(" pushNDIDecodingStatusInitiative")}},
        {"ndi decoding format initiative", rec(0xD0, 11, 2), {"pushNDIDecodingFormatInitiative(2)"}, {P(" pushNDIDecodingFormatInitiative")}},
        {"hdmi2 status", rec(0xD0, 12, 1), {"pushHDMI2Status(1)"}, {P(" pushHDMI2Status")}},
        {"set input signal return", rec(0xF0, 0xB3, 1), {}, {P("  set input signal return")}},
        {"bluetooth connect ok", rec(0xF0, 0xB6, 1, 0), {"pushConnectResult(1,true)"}, {P("  set Bluetooth dev connect return")}},
        {"bluetooth connect failed", rec(0xF0, 0xB6, 1, 5), {"pushConnectResult(1,false)"}, {P("  set Bluetooth dev connect return")}},

        {"sn", block(0x44, 0, text0("CS2024A1")), {R"(pushSN("CS2024A1"))"}, {P(" 0x44  bufflen:9"), P(" SN :CS2024A1")}},
        {"sn len 0", block(0x44, 0, {}), {R"(pushSN("No Device ID"))"}, {P(" 0x44  bufflen:0"), P(" SN len == 0")}},
        {"sn huge announced length", block(0x44, 0, "Z", 0xFFFF), {R"(pushSN("Z"))"}, {P(" 0x44  bufflen:65535"), P(" SN :Z")}},
        {"sn control characters logged escaped", block(0x44, 0, text0("A\nB")), {"pushSN(\"A\nB\")"},
         {P(" 0x44  bufflen:4"), P(" SN :A\\x0aB")}},
        {"record name", block(0x45, 0, text0("/media/usb/REC_0001.mp4")), {R"(pushRecordFileName("/media/usb/REC_0001.mp4","REC_0001"))"},
         {P(" 0x45  bufflen:24"), P(" recordFilePath :/media/usb/REC_0001.mp4 name:REC_0001")}},
        {"record name two dots", block(0x45, 0, text0("/x/a.b.mp4")), {R"(pushRecordFileName("/x/a.b.mp4","a"))"},
         {P(" 0x45  bufflen:11"), P(" recordFilePath :/x/a.b.mp4 name:a")}},
        {"record name len 0", block(0x45, 0, {}), {R"(pushRecordFileName("",""))"},
         {P(" 0x45  bufflen:0"), P(" record file name len == 0")}},

        {"bluetooth devices", block(0xB4, 0, bt), btBoth, {}},
        {"bluetooth devices broadcast", block(0xB4, 1, bytes({1, 1, 1, 2, 3, 4, 5, 6, 6}) + "Spk" + bytes({0, 'x', 'y'})),
         {R"(pushBluetoothDevInfoBroadCast(1,"1-2-3-4-5-6","Spk"))"}, {}},
        {"bluetooth empty block", block(0xB4, 0, {}), {}, {}},
        {"bluetooth second entry cut", block(0xB4, 0, bt.left(20)), btBoth.mid(0, 1), {}, true},
        {"bluetooth name cut", block(0xB4, 0, bt.left(12)), {}, {}, true},
        {"bluetooth count beyond block", block(0xB4, 0, bytes({200}) + bt.mid(1)), btBoth, {}, true},

        {"ndi group name", block(0xB8, 0, text0("StudioA")), {R"(pushNdiGroupName("StudioA"))"}, {}},
        {"ndi group name len 0", block(0xB8, 0, {}), {R"(pushNdiGroupName("NO Group Name"))"}, {}},
        {"ndi channel name", block(0xB8, 1, text0("Ch1")), {R"(pushNdiChannelName("Ch1"))"}, {}},
        {"ndi channel name len 0", block(0xB8, 1, {}), {R"(pushNdiChannelName("NO Channel Name"))"}, {}},
        {"ndi device name", block(0xB8, 2, text0("Dev")), {R"(pushNdiDeviceName("Dev"))"}, {}},
        {"ndi device name len 0", block(0xB8, 2, {}), {R"(pushNdiDeviceName("NO Channel Name"))"}, {}},
        {"ndi connection", block(0xB8, 3, bytes({1, 64, 239, 255, 0, 1, 255, 255, 255, 0, 0})),
         {R"(pushNdiConnectType({"addr1":239,"addr2":255,"addr3":0,"addr4":1,"netmask1":255,"netmask2":255,)"
          R"("netmask3":255,"netmask4":0,"ttlValue":64,"type":1}))"}, {}},
        {"ndi connection cut", block(0xB8, 3, bytes({1, 64, 239, 255, 0, 1, 255, 255, 255}), 11), {}, {}, true},
        {"ndi base info", block(0xB8, 4, bytes({0x80, 0x07, 0x38, 0x04, 60, 30, 0x10, 0x27, 0x80, 0xBB, 0})),
         {R"(pushNdiBaseInfo("1920x1080@60",30,10000,48000))"}, {}},
        {"ndi base info cut", block(0xB8, 4, bytes({0x80, 0x07, 0x38}), 11), {}, {}, true},

        {"style list", block(0xB9, 1, bytes({1, 0, 1, 1, 0})), {"pushStyleStatus([1,0,1,1])"}, {P(" 0xb9  bufflen:5"), P(" uvc style enable")}},
        {"style list len 0", block(0xB9, 1, {}), {"pushStyleStatus([])"}, {P(" 0xb9  bufflen:0"), P(" uvc style enable len == 0")}},
        {"style list cut", block(0xB9, 1, bytes({3, 4}), 10), {"pushStyleStatus([3,4])"}, {P(" 0xb9  bufflen:10"), P(" uvc style enable")}},
        {"current format", block(0xBA, 1, bytes({2, 0x00, 0x05, 0xD0, 0x02, 50, 0})),
         {R"(pushInputFormatInitiative(1,{"DataType":2,"Fps":50,"height":720,"width":1280}))"}, {P(" 0xba  bufflen:7"), "puc-==========2"}},
        {"current format 540 kept", block(0xBA, 0, bytes({0, 0x80, 0x07, 0x1C, 0x02, 60, 0})),
         {R"(pushInputFormatInitiative(0,{"DataType":0,"Fps":60,"height":540,"width":1920}))"}, {P(" 0xba  bufflen:7"), "puc-==========0"}},
        {"current format len 0", block(0xBA, 3, {}), {"pushInputFormatInitiative(3,{})"},
         {P(" 0xba  bufflen:0"), P(" InputFormatInitiative len == 0")}},
        {"current format cut", block(0xBA, 1, bytes({2, 0, 5}), 7), {}, {P(" 0xba  bufflen:7")}, true},

        {"ndi sources", block(0xBB, 0, ndi2), {ndiPair}, {P(" 0xbb bufflen:17"), P("  NDI Signal sendformat")}},
        {"ndi sources count wrong", block(0xBB, 0, bytes({3}) + ndi2.mid(1)), {ndiPair},
         {P(" 0xbb bufflen:17"), "UiprocVideo_Desktop::dealNDISignalToJson no correct signal number:3", P("  NDI Signal sendformat")}},
        {"ndi sources len 0", block(0xBB, 0, {}), {"pushNDISignalData(0,[])"}, {P(" 0xbb bufflen:0"), P(" NDI Signal no find")}},
        {"ndi sources length mismatch", block(0xBB, 0, ndi2, 30), {"pushNDISignalData(0,[])"}, {P(" 0xbb bufflen:30"), P(" NDI Signal no find")}},

        // Codes and sub-codes outside the vocabulary: nothing emitted, nothing logged.
        {"ignored: unknown code", rec(0x01, 0, 1, 2, 3), {}, {}},
        {"ignored: tally DAT1 1", rec(0x00, 1, 0, 0, 0, "0123456789ABC7EF"), {}, {}},
        {"ignored: power DAT2 3", rec(0x68, 0xB0, 3, 5), {}, {}},
        {"ignored: init input DAT2 1", rec(0x78, 2, 1, 1, 3), {}, {}},
        {"ignored: ptz DAT1 4 DAT3 3", rec(0xC8, 4, 0, 3, 1), {}, {}},
        {"ignored: 0xD0 DAT1 13", rec(0xD0, 13, 1), {}, {}},
        {"ignored: 0xF1 0xB5", block(0xB5, 0, text0("x")), {}, {}},
        {"ignored: formats DAT2 5", block(0xB3, 5, bytes({0, 0x80, 0x07, 0x38, 0x04, 60, 0})), {}, {}},
        {"ignored: ndi settings DAT2 5", block(0xB8, 5, text0("x")), {}, {}},
    };

    // Format lists of each input: the interlace rule of HDMI only, the
    // input's own log texts, and a block that is empty or not as long as
    // announced taken as no list.
    const char *const found[] = {" HDMI1 sendformat", " HDMI2 sendformat", "UVC1 sendformat", " UVC2 sendformat", " NDI sendformat"};
    const char *const missing[] = {" HDMI1 not find", " HDMI2 not find", " UVC1 not find", " UVC2 not find", " NDI not find"};
    const QByteArray wrongBlock[] = {{}, hdmiFormats.left(12), hdmiFormats, {}, hdmiFormats};
    const int announced[] = {0, 13, 7, 13, 0};
    for (int in = 0; in < 5; ++in) {
        const QString n = QString::number(in);
        v.append({"formats of input " + n.toLatin1(), block(0xB3, in, hdmiFormats),
                  {"pushVideoFormatData(" + n + ",13," + (in < 2 ? hdmiPair : uvcPair) + ")"},
                  {P("  get input signal"), P("  bufflen:13"), P(found[in])}});
        v.append({"formats of input " + n.toLatin1() + " not as announced", block(0xB3, in, wrongBlock[in], announced[in]),
                  {"pushVideoFormatData(" + n + ",0,[])"},
                  {P("  get input signal"), P("  bufflen:") + QString::number(announced[in]), P(missing[in])}});
    }
    return v;
}

} // namespace

class TstReportDispatch : public QObject
{
    Q_OBJECT
    std::unique_ptr<TestSysroot> sysroot;

private slots:
    void initTestCase()
    {
        sysroot.reset(new TestSysroot);
        QVERIFY(sysroot->isValid());
        Logger::instance().setSwitch(1);
    }
    void cleanupTestCase()
    {
        Logger::instance().close();
        sysroot.reset();
    }

    void dispatch_data()
    {
        QTest::addColumn<int>("index");
        const QVector<Vector> all = vectors();
        for (int i = 0; i < all.size(); ++i)
            QTest::newRow(all.at(i).tag.constData()) << i;
    }
    void dispatch()
    {
        QFETCH(int, index);
        const Vector v = vectors().at(index);
        UiprocVideo_Desktop video;
        Emissions emissions(&video);
        CategoryCapture log("cs.log");
        if (v.warns)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^report [0-9a-f]{2}/[0-9a-f]{2}: .* needs \\d+ block bytes, got \\d+; ignored$")));
        video.taskCmdProcess(v.rec);
        QCOMPARE(emissions.all(), v.emitted);
        QCOMPARE(log.lines(), v.logs);
    }

    // The log line is written before the signal reaches the screens.
    void logBeforeSignal()
    {
        UiprocVideo_Desktop video;
        CategoryCapture log("cs.log");
        QStringList seenAtEmit;
        connect(&video, &UiprocVideo_Desktop::pushUSBStatus, this, [&] { seenAtEmit = log.lines(); });
        video.cmdProcess(rec(0x68, 0xAD, 1));
        QCOMPARE(seenAtEmit, QStringList{P(" get usb")});
    }

    // The five signals kept for the screens never fire, whatever arrives;
    // and no record, however its block is cut, brings the object down.
    void silentSignalsNeverFire()
    {
        Logger::instance().close(); // logging off: it only slows the sweep down
        Logger::instance().setSwitch(0);
        QLoggingCategory::setFilterRules(QStringLiteral("cs.report.warning=false\ncs.report.debug=false"));
        UiprocVideo_Desktop video;
        Emissions emissions(&video);
        const QByteArray blocks[] = {QByteArray(), bytes({3}), bytes({2}) + "A,b;c,d;", QByteArray(40, '\x01'), QByteArray(13, '\xff')};
        int handled = 0;
        for (int cmd = 0; cmd < 256; ++cmd)
            for (int d1 = 0; d1 < 256; ++d1) {
                bool known = cmd == 0x01;
                for (const model_Protocoldata &probe : {rec(cmd, d1, 0), rec(cmd, d1, 1, 1), rec(cmd, d1, 2, 2), rec(cmd, d1, 3, 1)})
                    known = known || UiprocVideo_Desktop::matchReport(probe) >= 0;
                for (int d2 = 0; known && d2 < 6; ++d2)
                    for (int d3 = 0; d3 < 3; ++d3)
                        for (const QByteArray &b : blocks)
                            for (int d4 : {0, 1, 0xff}) {
                                video.taskCmdProcess(rec(cmd, d1, d2, d3, d4, b));
                                ++handled;
                            }
            }
        QVERIFY(handled > 1000);
        for (const char *name : {"pushNetInitiative", "pushConnectResult_Zor", "pushConnectResult_new", "pushOpenResult_new", "pushNdiSwitchType"}) {
            QVERIFY2(emissions.has(name), name);
            QCOMPARE(emissions.all(name), QStringList());
        }
        QLoggingCategory::setFilterRules(QString());
        Logger::instance().setSwitch(1);
    }

    // Disconnecting with no worker (no UiProc in this process) is harmless,
    // and connecting says why reports will not arrive.
    void bizConnectWithoutWorker()
    {
        UiprocVideo_Desktop video;
        CategoryCapture log("cs.log");
        video.bizDisconnect();
        video.bizConnect();
        QCOMPARE(log.lines(), QStringList{"---UiprocVideo_Desktop::bizConnect() no command worker, reports are not received"});
    }
};

QTEST_GUILESS_MAIN(TstReportDispatch)
#include "tst_reportdispatch.moc"
