// The simulator's reports as the front end understands them: each answer is
// reassembled the way the transport collects it and decoded by the real
// report dispatcher; the signals that come out are compared.
#include "SimDevice.h"
#include "SimServer.h"
#include "SimTestSupport.h"
#include "UiprocVideo_Desktop.h"

#include <QJsonDocument>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <vector>

using SimTest::cmd;

namespace {

QString argText(const QVariant &v)
{
    switch (int(v.userType())) {
    case QMetaType::QString: return QLatin1Char('"') + v.toString() + QLatin1Char('"');
    case QMetaType::Bool: return v.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::QJsonArray: return QString::fromUtf8(QJsonDocument(v.toJsonArray()).toJson(QJsonDocument::Compact));
    case QMetaType::QJsonObject: return QString::fromUtf8(QJsonDocument(v.toJsonObject()).toJson(QJsonDocument::Compact));
    default: return v.toString();
    }
}

// Header datagram first, block pieces after it, as the transport collects them.
model_Protocoldata reassemble(const QByteArrayList &datagrams)
{
    model_Protocoldata rec = ProtocolFrame::parseReport(datagrams.value(0));
    for (int i = 1; i < datagrams.size(); ++i)
        rec.arryDatablock += datagrams.at(i);
    return rec;
}

// Every push signal emitted while decoding the reports, as "name(args)".
QStringList decode(const QVector<model_Protocoldata> &reports)
{
    UiprocVideo_Desktop video;
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    std::vector<QByteArray> names;
    const QMetaObject *mo = video.metaObject();
    for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
        const QMetaMethod m = mo->method(i);
        if (m.methodType() != QMetaMethod::Signal || !m.name().startsWith("push"))
            continue;
        spies.emplace_back(new QSignalSpy(&video, ("2" + m.methodSignature()).constData()));
        names.push_back(m.name());
    }
    for (const model_Protocoldata &r : reports)
        video.taskCmdProcess(r);
    QStringList out;
    for (size_t s = 0; s < spies.size(); ++s) {
        for (const QList<QVariant> &args : *spies[s]) {
            QStringList parts;
            for (const QVariant &a : args)
                parts << argText(a);
            out << QString::fromLatin1(names[s]) + QLatin1Char('(') + parts.join(QLatin1Char(',')) + QLatin1Char(')');
        }
    }
    return out;
}

QVector<model_Protocoldata> answers(Sim::Device &device, const QByteArray &frame)
{
    model_Protocoldata rec;
    QString why;
    QVector<model_Protocoldata> out;
    if (!Sim::Server::parseCommand(frame, &rec, &why))
        return out;
    for (const Sim::Report &r : device.handle(rec))
        out << reassemble(Sim::Device::datagrams(r.rec, 7)); // small pieces: many datagrams
    return out;
}

QByteArray summed(QByteArray b)
{
    uchar s = 0;
    for (char c : b)
        s = uchar(s + uchar(c));
    return b.append(char(s));
}

} // namespace

class TstSimDecode : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { registerProtocolTypes(); }

    void answersDecode_data()
    {
        QTest::addColumn<QByteArrayList>("commands"); // the last one's answers are decoded
        QTest::addColumn<QStringList>("signals_");
        auto row = [](const char *name, QByteArrayList c, QStringList s) { QTest::newRow(name) << c << s; };
        const QByteArray stream = summed(QByteArray("\x01\"rtmp://x/y\"", 13));
        row("cut", {cmd(0x78, 1, 2)}, {"pushPGMCutFinish(2)"});
        row("init input after cut", {cmd(0x78, 1, 3), cmd(0x78, 2, 0)}, {"pushInitInput(3,1)"});
        row("usb", {cmd(0x68, 0xAD)}, {"pushUSBStatus(1)"});
        row("factory reset", {cmd(0x68, 0x06)}, {"pushResetStatus(1)"});
        row("battery", {cmd(0x68, 0xB0, 1)}, {"pushPower(1,80)"});
        row("power source", {cmd(0x68, 0xB0, 2)}, {"pushPower(2,1)"});
        row("stream status bits", {cmd(0xF0, 0xB4, 1, 0, 0, stream), cmd(0xF0, 0xB4, 3, 0, 0, stream), cmd(0x68, 0xB5, 0)},
            {"pushRtmpStatus(1,1)", "pushRtmpStatus(3,1)"});
        row("stream on answer", {cmd(0xF0, 0xB4, 2, 0, 0, stream)}, {"pushRtmpStatus(2,1)"});
        row("software version", {cmd(0x6A, 0)}, {"pushSoftwareVersion(1,8)"});
        row("system version", {cmd(0x6A, 1)}, {"pushSystemVersion(2,3)"});
        row("local ip", {cmd(0x89)}, {"pushLocalIP(\"192.168.1.88\")"});
        row("type-c", {cmd(0xC1)}, {"pushTypeCStatus(1)"});
        row("recording", {cmd(0xC2, 1, 1)}, {"pushRecordingStatus(1)"});
        row("bluetooth search end", {cmd(0xC5, 3, 5)}, {"pushBluetoothFin()"});
        row("bluetooth broadcast search end", {cmd(0xC5, 4)}, {"pushBluetoothFinBroadCast()"});
        row("ndi switch", {cmd(0xC6, 0, 1)}, {"pushNdiStatus(1)"});
        row("ndi data type", {cmd(0xC6, 2, 3, 4)}, {"pushNdiDataType(3,4)"});
        row("ndi decoding format", {cmd(0xC6, 6, 2)}, {"pushNDIDecodingVideoFormat(2)"});
        row("ndi decoding", {cmd(0xC6, 8, 1)}, {"pushNDIDecodingStatus(1)"});
        row("ptz uvc 1", {cmd(0xC8, 3, 0)}, {"pushPTZStatus(1,1,1,1)"});
        row("ptz uvc 2", {cmd(0xC8, 3, 1)}, {"pushPTZStatus(1,0,1,0)"});
        row("auto focus", {cmd(0xC8, 4, 0, 1, 0)}, {"pushPTZAutoFocus(0)"});
        row("view", {cmd(0xC8, 4, 1, 2, 5), cmd(0xC8, 5, 1, 2)}, {"pushPTZView(5)"});
        row("sampling rate", {cmd(0xC9, 0, 1, 3, 2)}, {"pushAudioSamplingRate(3,2)"});
        row("hdmi out style", {cmd(0xC9, 0, 2, 1)}, {"pushHDMIOutStyle(1)"});
        row("output", {cmd(0xD0, 7, 0)}, {"pushOutputInitiative(1)"});
        row("hdmi 2", {cmd(0xD0, 0x0C)}, {"pushHDMI2Status(1)"});
        row("bluetooth connect", {cmd(0xF0, 0xB6, 0, 0, 0, summed(QByteArray::fromHex("001a7dda710b")))},
            {"pushConnectResult(0,true)"});
        row("bluetooth connect unknown", {cmd(0xF0, 0xB6, 0, 0, 0, summed(QByteArray::fromHex("010203040506")))},
            {"pushConnectResult(0,false)"});
        row("serial number", {cmd(0xF1, 0x44)}, {"pushSN(\"CS2026SIM00001\")"});
        row("record file name", {cmd(0xF0, 0xBC, 0, 0, 0, "show1"), cmd(0xC2, 1, 1), cmd(0xF1, 0x45)},
            {"pushRecordFileName(\"/media/usb0/CSRecord/show1.mp4\",\"show1\")"});
        row("no record file", {cmd(0xF1, 0x45)}, {"pushRecordFileName(\"\",\"\")"});
        row("bluetooth devices", {cmd(0xF1, 0xB4, 0)},
            {"pushBluetoothDevInfo(0,\"0-1a-7d-da-71-b\",\"CS Speaker\")", "pushBluetoothDevInfo(0,\"a4-c1-38-5-9e-21\",\"Studio Headset\")"});
        row("companion devices", {cmd(0xF1, 0xB4, 1)}, {"pushBluetoothDevInfoBroadCast(0,\"5c-f9-38-12-34-56\",\"Director Phone\")"});
        row("ndi group", {cmd(0xF1, 0xB8, 0)}, {"pushNdiGroupName(\"public\")"});
        row("ndi channel set and read", {cmd(0xF0, 0xB8, 1, 0, 0, "Wide"), cmd(0xF1, 0xB8, 1)}, {"pushNdiChannelName(\"Wide\")"});
        row("ndi device", {cmd(0xF1, 0xB8, 2)}, {"pushNdiDeviceName(\"CS-MEDIASIM\")"});
        row("ndi connection", {cmd(0xF1, 0xB8, 3)},
            {"pushNdiConnectType({\"addr1\":239,\"addr2\":255,\"addr3\":0,\"addr4\":1,\"netmask1\":255,\"netmask2\":255,"
             "\"netmask3\":255,\"netmask4\":0,\"ttlValue\":1,\"type\":0})"});
        row("ndi connection set and read", {cmd(0xF0, 0xB8, 3, 0, 0, summed(QByteArray::fromHex("0204c0a80001ffff0000"))), cmd(0xF1, 0xB8, 3)},
            {"pushNdiConnectType({\"addr1\":192,\"addr2\":168,\"addr3\":0,\"addr4\":1,\"netmask1\":255,\"netmask2\":255,"
             "\"netmask3\":0,\"netmask4\":0,\"ttlValue\":4,\"type\":2})"});
        row("ndi base information", {cmd(0xF1, 0xB8, 4)}, {"pushNdiBaseInfo(\"1920x1080@60\",60,8000,48000)"});
        row("uvc styles", {cmd(0xF1, 0xB9, 1)}, {"pushStyleStatus([0,2])"});
        row("current format", {cmd(0xF1, 0xBA, 1)}, {"pushInputFormatInitiative(1,{\"DataType\":0,\"Fps\":60,\"height\":1080,\"width\":1920})"});
        row("current format, no signal", {cmd(0xF1, 0xBA, 3)}, {"pushInputFormatInitiative(3,{})"});
        row("ndi sources", {cmd(0xF1, 0xBB)},
            {"pushNDISignalData(104,[{\"addr\":\"192.168.1.20:5961\",\"name\":\"STUDIO-PC (OBS)\"},"
             "{\"addr\":\"192.168.1.31:5961\",\"name\":\"CAM-NORTH (PTZ1)\"},{\"addr\":\"192.168.1.45:5962\",\"name\":\"TABLET (Slides)\"}])"});
        row("uvc format list", {cmd(0xF1, 0xB3, 3)},
            {"pushVideoFormatData(3,25,[{\"DataType\":1,\"Fps\":\"30\",\"Weights\":3029,\"height\":1080,\"width\":1920},"
             "{\"DataType\":1,\"Fps\":\"30\",\"Weights\":2029,\"height\":720,\"width\":1280},"
             "{\"DataType\":1,\"Fps\":\"30\",\"Weights\":1149,\"height\":480,\"width\":640},"
             "{\"DataType\":2,\"Fps\":\"30\",\"Weights\":1148,\"height\":480,\"width\":640}])"});
    }
    void answersDecode()
    {
        QFETCH(QByteArrayList, commands);
        QFETCH(QStringList, signals_);
        Sim::Device device;
        QVector<model_Protocoldata> last;
        for (const QByteArray &c : commands)
            last = answers(device, c);
        QCOMPARE(decode(last), signals_);
    }

    // HDMI lists carry 1080i as 540 lines; the front end turns them back.
    void hdmiListShowsInterlacedFormats()
    {
        Sim::Device device;
        const QStringList got = decode(answers(device, cmd(0xF1, 0xB3, 0)));
        QCOMPARE(got.size(), 1);
        const QString s = got.first();
        QVERIFY2(s.startsWith(QStringLiteral("pushVideoFormatData(0,43,")), qPrintable(s));
        const QString list = s.mid(s.indexOf(QLatin1Char('[')));
        const QJsonArray a = QJsonDocument::fromJson(list.chopped(1).toUtf8()).array();
        QCOMPARE(a.size(), 7);
        QCOMPARE(a.at(0).toObject().value(QStringLiteral("Weights")).toInt(), 6030);
        QCOMPARE(a.at(1).toObject().value(QStringLiteral("Fps")).toString(), QStringLiteral("60i"));
        QCOMPARE(a.at(1).toObject().value(QStringLiteral("height")).toInt(), 1080);
        QCOMPARE(a.at(2).toObject().value(QStringLiteral("Fps")).toString(), QStringLiteral("60"));
    }

    void unsolicitedReportsDecode_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("signal");
        QTest::newRow("unplug") << 0 << "pushInputInitiative(0,2)";
        QTest::newRow("usb removed") << 1 << "pushUSBInitiative(0)";
        QTest::newRow("stream 3 on") << 2 << "pushRtmpStatus(3,1)";
        QTest::newRow("type-c") << 3 << "pushTypeCInitiative(0)";
    }
    void unsolicitedReportsDecode()
    {
        QFETCH(int, kind);
        QFETCH(QString, signal);
        Sim::Device device;
        model_Protocoldata r;
        switch (kind) {
        case 0: r = device.plug(2, false); break;
        case 1: r = device.usbDisk(false); break;
        case 2: r = device.streamStatus(3, 1); break;
        default: r = device.typeC(0); break;
        }
        QCOMPARE(decode({reassemble(Sim::Device::datagrams(r))}), QStringList{signal});
    }
};

QTEST_GUILESS_MAIN(TstSimDecode)
#include "tst_simdecode.moc"
