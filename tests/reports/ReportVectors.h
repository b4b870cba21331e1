#pragma once
// Test vectors for report dispatch: the record that comes in, the signal
// the screens must see with its arguments, and the exact log lines. Every
// row of the report vocabulary needs at least one vector here (checked by
// tst_reportdispatch::everyRowHasAVector).
#include "ProtocolRecord.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include <initializer_list>

namespace ReportVectors {

struct Vector
{
    const char *tag;
    model_Protocoldata rec;
    QString signal;                // the signal this report is about ("" when none)
    QList<QStringList> emissions;  // its emissions, arguments as text (JSON compact)
    QStringList logs;              // every line written to the log, in order
    bool warns = false;            // the block ends early: a warning says so
};

inline QByteArray bytes(std::initializer_list<int> list)
{
    QByteArray out;
    for (int b : list)
        out.append(char(uchar(b)));
    return out;
}

// Text plus the terminating zero byte.
inline QByteArray text0(const char *text)
{
    return QByteArray(text) + '\0';
}

inline model_Protocoldata rec(int cmd, int d1 = 0, int d2 = 0, int d3 = 0, int d4 = 0, const QByteArray &block = {})
{
    return makeRecord(cmd, d1, d2, d3, d4, block);
}

// An extended report whose announced length is `announced` (the real block
// may differ).
inline model_Protocoldata block(int d1, int d2, const QByteArray &data, int announced)
{
    return rec(0xF1, d1, d2, announced & 0xff, (announced >> 8) & 0xff, data);
}
inline model_Protocoldata block(int d1, int d2, const QByteArray &data)
{
    return block(d1, d2, data, data.size());
}

inline QString P(const char *part)
{
    return QStringLiteral("---UiprocVideo_Desktop::taskCmdProcess()") + QLatin1String(part);
}

inline QVector<Vector> all()
{
    const QByteArray twoHdmiFormats = bytes({0, 0x80, 0x07, 0x1C, 0x02, 60, 0, 0x80, 0x07, 0x38, 0x04, 60, 0xFF});
    const QByteArray bt = bytes({2, 1, 0x00, 0x1A, 0x7D, 0xDA, 0x71, 0x0B, 5}) + "Phone"
        + bytes({0, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF, 0});
    const QByteArray ndi2 = bytes({2}) + "CAM1,A1;CAM2,A2;";
    const QByteArray ndi3 = bytes({3}) + "CAM1,A1;CAM2,A2;";
    const QString hdmiPair = QStringLiteral(
        R"([{"Weights":3061,"DataType":0,"width":1920,"height":1080,"Fps":"60i"},)"
        R"({"Weights":3060,"DataType":0,"width":1920,"height":1080,"Fps":"60"}])");
    const QString uvcPair = QStringLiteral(
        R"([{"Weights":3060,"DataType":0,"width":1920,"height":1080,"Fps":"60"},)"
        R"({"Weights":2520,"DataType":0,"width":1920,"height":540,"Fps":"60"}])");

    return {
        // PTZ tally: block byte 13 as one decimal digit.
        {"tally", rec(0x00, 0, 0, 0, 0, QByteArray("0123456789ABC7EF")), "pushPTZTally", {{"7"}}, {}},
        {"tally not a digit", rec(0x00, 0, 0, 0, 0, QByteArray("0123456789ABCxEF")), "pushPTZTally", {{"0"}}, {}},
        {"tally block too short", rec(0x00, 0, 0, 0, 0, QByteArray("0123456789ABC")), "pushPTZTally", {}, {}, true},

        {"usb", rec(0x68, 0xAD, 1), "pushUSBStatus", {{"1"}}, {P(" get usb")}},
        {"reset factory", rec(0x68, 0x06, 1), "pushResetStatus", {{"1"}}, {P(" Resetfactory fin")}},
        {"power 1", rec(0x68, 0xB0, 1, 80), "pushPower", {{"1", "80"}}, {}},
        {"power 2", rec(0x68, 0xB0, 2, 3), "pushPower", {{"2", "3"}}, {}},
        {"streaming bits 0x0a", rec(0x68, 0xB5, 0x0A), "pushRtmpStatus", {{"1", "1"}, {"3", "1"}}, {}},
        {"streaming bits 0x0f", rec(0x68, 0xB5, 0x0F), "pushRtmpStatus", {{"0", "1"}, {"1", "1"}, {"2", "1"}, {"3", "1"}}, {}},
        {"streaming bits high only", rec(0x68, 0xB5, 0xF0), "pushRtmpStatus", {}, {}},
        {"streaming bits none", rec(0x68, 0xB5, 0x00), "pushRtmpStatus", {}, {}},

        {"play or pause", rec(0x69, 0x10, 1), "", {}, {P(" play or pause video")}},
        {"software version", rec(0x6A, 0, 2, 5), "pushSoftwareVersion", {{"2", "5"}}, {P(" get software version")}},
        {"system version", rec(0x6A, 1, 1, 9), "pushSystemVersion", {{"1", "9"}}, {P(" get system version")}},
        {"switch video", rec(0x78, 0, 3), "", {}, {P(" switch video")}},
        {"cut finished", rec(0x78, 1, 4), "pushPGMCutFinish", {{"4"}}, {P(" switch video")}},
        {"init input", rec(0x78, 2, 0, 1, 3), "pushInitInput", {{"1", "3"}}, {P(" read init input")}},
        {"local ip", rec(0x89, 192, 168, 0, 100), "pushLocalIP", {{"192.168.0.100"}}, {P(" get IP192.168.0.100")}},
        {"local ip zero", rec(0x89, 0, 0, 0, 0), "pushLocalIP", {{"0.0.0.0"}}, {P(" get IP0.0.0.0")}},
        {"typec status", rec(0xC1, 1), "pushTypeCStatus", {{"1"}}, {P(" TypeCStatus")}},
        {"recording status", rec(0xC2, 1, 3, 1), "pushRecordingStatus", {{"1"}}, {P(" readRec")}},
        {"playback end", rec(0xC2, 4), "pushRecordPlayEndInitiative", {{}}, {P(" playRec end")}},
        {"bluetooth search", rec(0xC5, 3), "pushBluetoothFin", {{}}, {P(" bluetooth Search")}},
        {"bluetooth search broadcast", rec(0xC5, 5), "pushBluetoothFinBroadCast", {{}}, {P(" bluetooth Search")}},
        {"ndi status", rec(0xC6, 1, 1), "pushNdiStatus", {{"1"}}, {}},
        {"ndi data type", rec(0xC6, 3, 2, 5), "pushNdiDataType", {{"2", "5"}}, {}},
        {"ndi decoding format", rec(0xC6, 7, 3), "pushNDIDecodingVideoFormat", {{"3"}}, {}},
        {"ndi decoding status", rec(0xC6, 8, 1), "pushNDIDecodingStatus", {{"1"}}, {}},
        {"ptz status 0x05", rec(0xC8, 3, 0, 0x05), "pushPTZStatus", {{"1", "0", "1", "0"}}, {P(" pushPTZStatus")}},
        {"ptz status 0xfa", rec(0xC8, 3, 0, 0xFA), "pushPTZStatus", {{"0", "1", "0", "1"}}, {P(" pushPTZStatus")}},
        {"ptz autofocus 4", rec(0xC8, 4, 0, 1, 1), "pushPTZAutoFocus", {{"1"}}, {P(" pushPTZAutoFocus")}},
        {"ptz autofocus 5", rec(0xC8, 5, 0, 1, 0), "pushPTZAutoFocus", {{"0"}}, {P(" pushPTZAutoFocus")}},
        {"ptz view 4", rec(0xC8, 4, 0, 2, 3), "pushPTZView", {{"3"}}, {P(" pushPTZView")}},
        {"ptz view 5", rec(0xC8, 5, 0, 2, 6), "pushPTZView", {{"6"}}, {P(" pushPTZView")}},
        {"audio sampling rate", rec(0xC9, 1, 1, 0, 48), "pushAudioSamplingRate", {{"0", "48"}}, {P(" get audio sampling rate")}},
        {"hdmi out style", rec(0xC9, 1, 2, 1), "pushHDMIOutStyle", {{"1"}}, {P(" get hdmi out style")}},

        {"init input initiative", rec(0xD0, 0, 2), "pushInitInputInitiative", {{"2"}}, {P(" InitInputInitiative")}},
        {"input initiative", rec(0xD0, 1, 1, 4), "pushInputInitiative", {{"1", "4"}}, {P(" pushInputInitiative")}},
        {"change hdmi", rec(0xD0, 2, 1), "pushChangeHDMIInitiative", {{"1"}}, {P(" pushChangeHDMIInitiative")}},
        {"usb initiative", rec(0xD0, 3, 0), "pushUSBInitiative", {{"0"}}, {P(" pushUSBInitiative")}},
        {"rtmp initiative reversed", rec(0xD0, 4, 1, 2), "pushRtmpStatus", {{"2", "1"}}, {P(" pushRtmpStatus")}},
        {"typec initiative", rec(0xD0, 5, 1), "pushTypeCInitiative", {{"1"}}, {P(" pushTypeCInitiative")}},
        {"net initiative", rec(0xD0, 6, 1), "pushNetConCInitiative", {{"1"}}, {P(" pushNetConCInitiative")}},
        {"output initiative", rec(0xD0, 7, 1), "pushOutputInitiative", {{"1"}}, {P(" pushOutputInitiative")}},
        {"input click", rec(0xD0, 8, 3), "pushInputClick", {{"3"}}, {P(" pushInputClick")}},
        {"ndi status initiative", rec(0xD0, 9, 1), "pushNDIStatusInitiative", {{"1"}}, {P(" pushNDIStatusInitiative")}},
        {"ndi decoding status initiative", rec(0xD0, 10, 0), "pushNDIDecodingStatusInitiative", {{"0"}}, {P(" pushNDIDecodingStatusInitiative")}},
        {"ndi decoding format initiative", rec(0xD0, 11, 2), "pushNDIDecodingFormatInitiative", {{"2"}}, {P(" pushNDIDecodingFormatInitiative")}},
        {"hdmi2 status", rec(0xD0, 12, 1), "pushHDMI2Status", {{"1"}}, {P(" pushHDMI2Status")}},

        {"set input signal return", rec(0xF0, 0xB3, 1), "", {}, {P("  set input signal return")}},
        {"bluetooth connect ok", rec(0xF0, 0xB6, 1, 0), "pushConnectResult", {{"1", "true"}}, {P("  set Bluetooth dev connect return")}},
        {"bluetooth connect failed", rec(0xF0, 0xB6, 1, 5), "pushConnectResult", {{"1", "false"}}, {P("  set Bluetooth dev connect return")}},

        // Serial number
        {"sn", block(0x44, 0, text0("CS2024A1")), "pushSN", {{"CS2024A1"}}, {P(" 0x44  bufflen:9"), P(" SN :CS2024A1")}},
        {"sn len 0", block(0x44, 0, {}), "pushSN", {{"No Device ID"}}, {P(" 0x44  bufflen:0"), P(" SN len == 0")}},
        {"sn len 1", block(0x44, 0, text0("")), "pushSN", {{""}}, {P(" 0x44  bufflen:1"), P(" SN :")}},
        {"sn block shorter than announced", block(0x44, 0, "ABC", 10), "pushSN", {{"ABC"}}, {P(" 0x44  bufflen:10"), P(" SN :ABC")}},
        {"sn huge announced length", block(0x44, 0, "Z", 0xFFFF), "pushSN", {{"Z"}}, {P(" 0x44  bufflen:65535"), P(" SN :Z")}},
        {"sn control characters", block(0x44, 0, text0("A\nB")), "pushSN", {{"A\nB"}}, {P(" 0x44  bufflen:4"), P(" SN :A\\x0aB")}},

        // Record file name
        {"record name", block(0x45, 0, text0("/media/usb/REC_0001.mp4")), "pushRecordFileName",
         {{"/media/usb/REC_0001.mp4", "REC_0001"}}, {P(" 0x45  bufflen:24"), P(" recordFilePath :/media/usb/REC_0001.mp4 name:REC_0001")}},
        {"record name two dots", block(0x45, 0, text0("/x/a.b.mp4")), "pushRecordFileName",
         {{"/x/a.b.mp4", "a"}}, {P(" 0x45  bufflen:11"), P(" recordFilePath :/x/a.b.mp4 name:a")}},
        {"record name len 0", block(0x45, 0, {}), "pushRecordFileName", {{"", ""}},
         {P(" 0x45  bufflen:0"), P(" record file name len == 0")}},
        {"record name cut short", block(0x45, 0, "/media/usb/RE", 40), "pushRecordFileName", {{"/media/usb/RE", "RE"}},
         {P(" 0x45  bufflen:40"), P(" recordFilePath :/media/usb/RE name:RE")}},

        // Input format lists
        {"formats hdmi1 interlaced", block(0xB3, 0, twoHdmiFormats), "pushVideoFormatData", {{"0", "13", hdmiPair}},
         {P("  get input signal"), P("  bufflen:13"), P(" HDMI1 sendformat")}},
        {"formats hdmi2", block(0xB3, 1, twoHdmiFormats), "pushVideoFormatData", {{"1", "13", hdmiPair}},
         {P("  get input signal"), P("  bufflen:13"), P(" HDMI2 sendformat")}},
        {"formats hdmi2 13 announced 12 sent", block(0xB3, 1, twoHdmiFormats.left(12), 13), "pushVideoFormatData", {{"1", "0", "[]"}},
         {P("  get input signal"), P("  bufflen:13"), P(" HDMI2 not find")}},
        {"formats uvc1 no interlace", block(0xB3, 2, twoHdmiFormats), "pushVideoFormatData", {{"2", "13", uvcPair}},
         {P("  get input signal"), P("  bufflen:13"), P("UVC1 sendformat")}},
        {"formats uvc1 len 0", block(0xB3, 2, {}), "pushVideoFormatData", {{"2", "0", "[]"}},
         {P("  get input signal"), P("  bufflen:0"), P(" UVC1 not find")}},
        {"formats uvc2 no interlace", block(0xB3, 3, bytes({1, 0x00, 0x05, 0xD0, 0x02, 30, 0, 0x80, 0x07, 0x1C, 0x02, 30, 0})),
         "pushVideoFormatData",
         {{"3", "13", R"([{"Weights":2490,"DataType":0,"width":1920,"height":540,"Fps":"30"},)"
                      R"({"Weights":2029,"DataType":1,"width":1280,"height":720,"Fps":"30"}])"}},
         {P("  get input signal"), P("  bufflen:13"), P(" UVC2 sendformat")}},
        {"formats uvc2 longer than announced", block(0xB3, 3, bytes({1, 0, 5, 0xD0, 2, 30, 0, 9}), 7), "pushVideoFormatData",
         {{"3", "0", "[]"}}, {P("  get input signal"), P("  bufflen:7"), P(" UVC2 not find")}},
        {"formats ndi len 0", block(0xB3, 4, {}), "pushVideoFormatData", {{"4", "0", "[]"}},
         {P("  get input signal"), P("  bufflen:0"), P(" NDI not find")}},
        {"formats ndi", block(0xB3, 4, bytes({0, 0x80, 0x07, 0x1C, 0x02, 50, 0})), "pushVideoFormatData",
         {{"4", "7", R"([{"Weights":2510,"DataType":0,"width":1920,"height":540,"Fps":"50"}])"}},
         {P("  get input signal"), P("  bufflen:7"), P(" NDI sendformat")}},
        {"formats announced 6", block(0xB3, 0, bytes({0, 0x80, 0x07, 0x38, 0x04, 60})), "pushVideoFormatData", {{"0", "6", "[]"}},
         {P("  get input signal"), P("  bufflen:6"), P(" HDMI1 sendformat")}},

        // Bluetooth device lists
        {"bluetooth devices", block(0xB4, 0, bt), "pushBluetoothDevInfo",
         {{"1", "0-1a-7d-da-71-b", "Phone"}, {"0", "aa-bb-cc-dd-ee-ff", ""}}, {}},
        {"bluetooth devices broadcast", block(0xB4, 1, bytes({1, 1, 1, 2, 3, 4, 5, 6, 6}) + "Spk" + bytes({0, 'x', 'y'})),
         "pushBluetoothDevInfoBroadCast", {{"1", "1-2-3-4-5-6", "Spk"}}, {}},
        {"bluetooth no devices", block(0xB4, 0, bytes({0, 1, 2, 3})), "pushBluetoothDevInfo", {}, {}},
        {"bluetooth empty block", block(0xB4, 0, {}), "pushBluetoothDevInfo", {}, {}},
        {"bluetooth second entry cut", block(0xB4, 0, bt.left(20)), "pushBluetoothDevInfo", {{"1", "0-1a-7d-da-71-b", "Phone"}}, {}, true},
        {"bluetooth name cut", block(0xB4, 0, bt.left(12)), "pushBluetoothDevInfo", {}, {}, true},
        {"bluetooth count beyond block", block(0xB4, 0, bytes({200}) + bt.mid(1)), "pushBluetoothDevInfo",
         {{"1", "0-1a-7d-da-71-b", "Phone"}, {"0", "aa-bb-cc-dd-ee-ff", ""}}, {}, true},

        // NDI settings
        {"ndi group name", block(0xB8, 0, text0("StudioA")), "pushNdiGroupName", {{"StudioA"}}, {}},
        {"ndi group name len 0", block(0xB8, 0, {}), "pushNdiGroupName", {{"NO Group Name"}}, {}},
        {"ndi group name len 1", block(0xB8, 0, text0("")), "pushNdiGroupName", {{""}}, {}},
        {"ndi channel name", block(0xB8, 1, text0("Ch1")), "pushNdiChannelName", {{"Ch1"}}, {}},
        {"ndi channel name len 0", block(0xB8, 1, {}), "pushNdiChannelName", {{"NO Channel Name"}}, {}},
        {"ndi device name", block(0xB8, 2, text0("Dev")), "pushNdiDeviceName", {{"Dev"}}, {}},
        {"ndi device name len 0", block(0xB8, 2, {}), "pushNdiDeviceName", {{"NO Channel Name"}}, {}},
        {"ndi device name cut", block(0xB8, 2, "Dev", 9), "pushNdiDeviceName", {{"Dev"}}, {}},
        {"ndi connection", block(0xB8, 3, bytes({1, 64, 239, 255, 0, 1, 255, 255, 255, 0, 0})), "pushNdiConnectType",
         {{R"({"type":1,"ttlValue":64,"addr1":239,"addr2":255,"addr3":0,"addr4":1,)"
           R"("netmask1":255,"netmask2":255,"netmask3":255,"netmask4":0})"}}, {}},
        {"ndi connection cut", block(0xB8, 3, bytes({1, 64, 239, 255, 0, 1, 255, 255, 255}), 11), "pushNdiConnectType", {}, {}, true},
        {"ndi base info", block(0xB8, 4, bytes({0x80, 0x07, 0x38, 0x04, 60, 30, 0x10, 0x27, 0x80, 0xBB, 0})), "pushNdiBaseInfo",
         {{"1920x1080@60", "30", "10000", "48000"}}, {}},
        {"ndi base info cut", block(0xB8, 4, bytes({0x80, 0x07, 0x38}), 11), "pushNdiBaseInfo", {}, {}, true},

        // Camera style list
        {"style list", block(0xB9, 1, bytes({1, 0, 1, 1, 0})), "pushStyleStatus", {{"[1,0,1,1]"}},
         {P(" 0xb9  bufflen:5"), P(" uvc style enable")}},
        {"style list len 0", block(0xB9, 1, {}), "pushStyleStatus", {{"[]"}},
         {P(" 0xb9  bufflen:0"), P(" uvc style enable len == 0")}},
        {"style list cut", block(0xB9, 1, bytes({3, 4}), 10), "pushStyleStatus", {{"[3,4]"}},
         {P(" 0xb9  bufflen:10"), P(" uvc style enable")}},

        // Current input format
        {"current format", block(0xBA, 1, bytes({2, 0x00, 0x05, 0xD0, 0x02, 50, 0})), "pushInputFormatInitiative",
         {{"1", R"({"DataType":2,"width":1280,"height":720,"Fps":50})"}}, {P(" 0xba  bufflen:7"), "puc-==========2"}},
        {"current format 540 kept", block(0xBA, 0, bytes({0, 0x80, 0x07, 0x1C, 0x02, 60, 0})), "pushInputFormatInitiative",
         {{"0", R"({"DataType":0,"width":1920,"height":540,"Fps":60})"}}, {P(" 0xba  bufflen:7"), "puc-==========0"}},
        {"current format len 0", block(0xBA, 3, {}), "pushInputFormatInitiative", {{"3", "{}"}},
         {P(" 0xba  bufflen:0"), P(" InputFormatInitiative len == 0")}},
        {"current format cut", block(0xBA, 1, bytes({2, 0, 5}), 7), "pushInputFormatInitiative", {}, {P(" 0xba  bufflen:7")}, true},

        // NDI source list
        {"ndi sources", block(0xBB, 0, ndi2), "pushNDISignalData",
         {{"17", R"([{"name":"CAM1","addr":"A1"},{"name":"CAM2","addr":"A2"}])"}},
         {P(" 0xbb bufflen:17"), P("  NDI Signal sendformat")}},
        {"ndi sources count wrong", block(0xBB, 0, ndi3), "pushNDISignalData",
         {{"17", R"([{"name":"CAM1","addr":"A1"},{"name":"CAM2","addr":"A2"}])"}},
         {P(" 0xbb bufflen:17"), "UiprocVideo_Desktop::dealNDISignalToJson no correct signal number:3", P("  NDI Signal sendformat")}},
        {"ndi sources len 0", block(0xBB, 0, {}), "pushNDISignalData", {{"0", "[]"}},
         {P(" 0xbb bufflen:0"), P(" NDI Signal no find")}},
        {"ndi sources length mismatch", block(0xBB, 0, ndi2, 30), "pushNDISignalData", {{"0", "[]"}},
         {P(" 0xbb bufflen:30"), P(" NDI Signal no find")}},
        {"ndi sources name reused", block(0xBB, 0, bytes({2}) + "A,1;2;x"), "pushNDISignalData",
         {{"8", R"([{"name":"A","addr":"1"},{"name":"A","addr":"2"}])"}},
         {P(" 0xbb bufflen:8"), P("  NDI Signal sendformat")}},
    };
}

} // namespace ReportVectors
