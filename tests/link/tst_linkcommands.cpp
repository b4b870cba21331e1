// Every device command leaves as the exact datagram bytes: one vector per
// table entry (and per public sender that takes arguments of its own), the
// input selectors, and the blocks with their check bytes.
#include "LinkCommands.h"
#include "LinkTestSupport.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMetaMethod>
#include <QSettings>

using namespace LinkTest;

namespace {

struct V
{
    const char *frame; // the 19-byte header text
    const char *block; // hex of the raw block that follows it
};

struct Vector
{
    const char *entry;  // table key it exercises
    const char *method; // slot invoked
    QVariantList args;
    QList<V> datagrams; // in the order they must arrive
    const char *log;    // a line that must be in the log ("" for none)
};

const QList<Vector> &vectors()
{
    static const QList<Vector> list{
        {"connectGetInputSignalFormat", "connectGetInputSignalFormat", QVariantList{2}, {V{"<T0000f1b3020000a6>", ""}}, "send connectGetInputSignalFormat"},
        {"connectGetInputSignalFormat", "connectGetInputSignalFormat", QVariantList{}, {V{"<T0000f1b3000000a4>", ""}, V{"<T0000f1b3010000a5>", ""}, V{"<T0000f1b3020000a6>", ""}, V{"<T0000f1b3030000a7>", ""}, V{"<T0000f1b3040000a8>", ""}}, "send connectGetInputSignalFormat"},
        {"connectGetInputSignalFormat", "connectGetInputSignalFormat", QVariantList{7}, {}, "send connectGetInputSignalFormat"},
        {"connectGetInputSignalFormat", "connectGetInputSignalFormat", QVariantList{-2}, {}, ""},
        {"connectGetInputCurrentFormat", "connectGetInputCurrentFormat", QVariantList{3}, {V{"<T0000f1ba030000ae>", ""}}, "sendGetInputCurrentFormat get uvc2 format"},
        {"connectGetInputCurrentFormat", "connectGetInputCurrentFormat", QVariantList{}, {V{"<T0000f1ba000000ab>", ""}, V{"<T0000f1ba010000ac>", ""}, V{"<T0000f1ba020000ad>", ""}, V{"<T0000f1ba030000ae>", ""}}, "send connectGetInputCurrentFormat"},
        {"connectGetInputCurrentFormat", "connectGetInputCurrentFormat", QVariantList{4}, {}, "send connectGetInputCurrentFormat"},
        {"connectGetAudioSamplingRate", "connectGetAudioSamplingRate", QVariantList{1, 2, 48}, {V{"<T0000c901010230fd>", ""}}, "send connectGetAudioSamplingRate"},
        {"connectGetRecordFileName", "connectGetRecordFileName", QVariantList{}, {V{"<T0000f14500000036>", ""}}, "sned connectGetRecordFileName"},
        {"connectReadSN", "connectReadSN", QVariantList{}, {V{"<T0000f14400000035>", ""}}, "send connectReadSN"},
        {"connectVersion", "connectVersion", QVariantList{}, {V{"<T00006a000000006a>", ""}}, "send connectVersion"},
        {"connectSystemVersion", "connectSystemVersion", QVariantList{}, {V{"<T00006a010000006b>", ""}}, "send connectSystemVersion"},
        {"connectGetUSBStatus", "connectGetUSBStatus", QVariantList{}, {V{"<T000068ad00000015>", ""}}, "send connectGetUSBStatus"},
        {"connectGetTypeCStatus", "connectGetTypeCStatus", QVariantList{}, {V{"<T0000c100000000c1>", ""}}, "send connectGetTypeCStatus"},
        {"connectGetPower", "connectGetPower", QVariantList{}, {V{"<T000068b001000019>", ""}, V{"<T000068b00200001a>", ""}}, ""},
        {"connectGetOutputStatus", "connectGetOutputStatus", QVariantList{}, {V{"<T0000d007000000d7>", ""}}, ""},
        {"connectResetFactory", "connectResetFactory", QVariantList{}, {V{"<T000068060000006e>", ""}}, ""},
        {"connectPowerOff", "connectPowerOff", QVariantList{}, {V{"<T0000681000000078>", ""}}, "UiProc::sendPowerOff ==================== power off"},
        {"connectGetLocalHost", "connectGetLocalHost", QVariantList{}, {V{"<T0000890000000089>", ""}}, ""},
        {"connectVideo", "connectVideo", QVariantList{5}, {V{"<T000069100500007e>", ""}}, "UiProc::sendVideoStatusCode---------------- send video control signal"},
        {"connectSwitchAudio", "connectSwitchAudio", QVariantList{3}, {V{"<T0000c303000000c6>", ""}}, "UiProc::sendSwitchAudio---------------- send audio control signal"},
        {"connectRec", "connectRec", QVariantList{1, 2}, {V{"<T0000c201020000c5>", ""}}, "UiProc::sendRec---------------- send record video and audio"},
        {"connectDeRecordFileName", "connectDeRecordFileName", QVariantList{}, {V{"<T0000c203000000c5>", ""}}, "sned connectDeRecordFileName"},
        {"connectSwitchVideo", "connectSwitchVideo", QVariantList{2, true}, {V{"<T000078010200007b>", ""}}, "UiProc::sendSwitchVideo---------------- send video output PGM"},
        {"connectSwitchVideo", "connectSwitchVideo", QVariantList{3, false}, {V{"<T000078000300007b>", ""}}, "UiProc::sendSwitchVideo---------------- send video switch signal"},
        {"connectReadInitInput", "connectReadInitInput", QVariantList{}, {V{"<T000078020000007a>", ""}}, "UiProc::sendReadInitInput---------------- sendReadInitInput"},
        {"connectSetPIP", "connectSetPIP", QVariantList{1, 3}, {V{"<T000068aa01030016>", ""}}, "send connectSetPIP"},
        {"connectGetStatisticPic", "connectGetStatisticPic", QVariantList{2, true, 4}, {V{"<T0000c701020104cf>", ""}}, "send connectGetStatisticPic"},
        {"connectStreamPlatformStatus", "connectStreamPlatformStatus", QVariantList{}, {V{"<T000068b50000001d>", ""}}, "UiProc::getStreamPlatformStatus ===================="},
        {"readHDMI2Status", "readHDMI2Status", QVariantList{}, {V{"<T0000d00c000000dc>", ""}}, ""},
        {"connectSetInputSignalFormat", "connectSetInputSignalFormat", QVariantList{QJsonArray{QJsonObject{{"VideoType", 1}, {"Resolution", "1920x1080i@60"}}}}, {V{"<T0000f0b3000800ab>", "01800738043c0101"}}, "UiProc::connectSetInputSignalFormat---------- send set input signal"},
        {"connectSetRecordName", "connectSetRecordName", QVariantList{QStringLiteral("rec_0001.mp4")}, {V{"<T0000f0bc000c00b8>", "7265635f303030312e6d7034"}}, "UiProc::connectSetRecordName--------------   go into"},
        {"connectStreamOnAir", "connectStreamOnAir", QVariantList{1, QStringLiteral("rtmp://a.b/live")}, {V{"<T0000f0b4001300b7>", "012272746d703a2f2f612e622f6c6976652270"}}, "UiProc::connectStreamOnAir--------------   RtmpAddr:rtmp://a.b/live"},
        {"connectStreamOnAir", "connectStreamOnAir", QVariantList{0, QStringLiteral("x"), true}, {V{"<T0000f0b4000500a9>", "00227822bc"}}, ""},
        {"connectStreamOnAir", "connectStreamOnAir", QVariantList{1, QStringLiteral("rtmp://a.b/live"), false}, {}, "UiProc::connectStreamOnAir--------------   RtmpAddr:rtmp://a.b/live"},
        {"connectStreamOnAir", "connectStreamOnAir", QVariantList{1, QString::fromUtf8("rtmp://\xc3\xa9\xe2\x82\xac")}, {V{"<T0000f0b4000d00b1>", "012272746d703a2f2fe9002289"}}, ""},
        {"connectStreamParams", "connectStreamParams", QVariantList{1, 2, 3000}, {V{"<T0000f0b5000500aa>", "0102b80bc6"}}, "UiProc::connectStreamParams----------isRtmpDefault/isRtmpDefault/isRtmpDefault=1/2/3000"},
        {"connectBluetoothOpen", "connectBluetoothOpen", QVariantList{true}, {V{"<T0000c501000000c6>", ""}}, ""},
        {"connectBluetoothOpen", "sendBluetoothOpen", QVariantList{false}, {V{"<T0000c500000000c5>", ""}}, ""},
        {"connectBluetoothSearch/start", "connectBluetoothSearch", QVariantList{true, false}, {V{"<T0000c503050000cd>", ""}}, ""},
        {"connectBluetoothSearch/other", "connectBluetoothSearch", QVariantList{true, true}, {V{"<T0000c504000000c9>", ""}}, ""},
        {"connectBluetoothSearch/other", "sendBluetoothSearch", QVariantList{false, true}, {V{"<T0000c504000000c9>", ""}}, ""},
        {"connectBluetoothDevInfo", "connectBluetoothDevInfo", QVariantList{true}, {V{"<T0000f1b4010000a6>", ""}}, ""},
        {"connectBluetoothDevInfo", "getBluetoothDevInfo", QVariantList{false}, {V{"<T0000f1b4000000a5>", ""}}, ""},
        {"connectBluetoothDev", "connectBluetoothDev", QVariantList{QStringLiteral("11-22-33-44-55-66"), false}, {V{"<T0000f0b6000700ad>", "11223344556665"}}, ""},
        {"connectBluetoothDev", "sendBluetoothDev", QVariantList{QStringLiteral("AA-bb-CC-dd-EE-ff")}, {V{"<T0000f0b6000700ad>", "aabbccddeefffb"}}, ""},
        {"connectBluetoothDev/zor", "connectBluetoothDev", QVariantList{QStringLiteral("11-22-33-44-55-66"), true}, {V{"<T0000f0b6010700ae>", "11223344556665"}}, ""},
        {"connectBluetoothDev/zor", "sendBluetoothZorDev", QVariantList{QStringLiteral("11-22-33-44-55-66"), false}, {V{"<T0000f0b6000700ad>", "11223344556665"}}, ""},
        {"disconnectBluetoothDev", "disconnectBluetoothDev", QVariantList{QStringLiteral("11-22-33-44-55-66"), false}, {V{"<T0000f0b7000700ae>", "11223344556665"}}, ""},
        {"disconnectBluetoothDev", "breakBluetoothDev", QVariantList{QStringLiteral("11-22-33-44-55-66")}, {V{"<T0000f0b7000700ae>", "11223344556665"}}, ""},
        {"disconnectBluetoothDev/zor", "disconnectBluetoothDev", QVariantList{QStringLiteral("11-22-33-44-55-66"), true}, {V{"<T0000f0b6000700ad>", "11223344556665"}}, ""},
        {"sendBluetoothConnect_New/true", "sendBluetoothConnect_New", QVariantList{true}, {V{"<T0000c5b50000007a>", ""}}, ""},
        {"sendBluetoothConnect_New/false", "sendBluetoothConnect_New", QVariantList{false}, {V{"<T0000c500b600007b>", ""}}, ""},
        {"sendBluetoothOpen_New/true", "sendBluetoothOpen_New", QVariantList{true}, {V{"<T0000c5b70000007c>", ""}}, ""},
        {"sendBluetoothOpen_New/false", "sendBluetoothOpen_New", QVariantList{false}, {V{"<T0000c500b800007d>", ""}}, ""},
        {"connectNDIMenuSwitch", "connectNDIMenuSwitch", QVariantList{1, 2}, {V{"<T0000c601020000c9>", ""}}, "UiProc::sendNDIMenuSwitch"},
        {"connectNDIEncodingSwitch", "connectNDIEncodingSwitch", QVariantList{4, 1}, {V{"<T0000c604010000cb>", ""}}, "UiProc::sendNDIEncodingSwitch"},
        {"connectGetNDIDecodingSignal", "connectGetNDIDecodingSignal", QVariantList{}, {V{"<T0000f1bb000000ac>", ""}}, "UiProc::sendGetNDIDecodingSignal"},
        {"connectSetNDIDecodingSignal", "connectSetNDIDecodingSignal", QVariantList{1, QStringLiteral("CAM (A)")}, {V{"<T0000f0bb000700b2>", "43414d20284129"}}, "UiProc::sendSetNDIEncodingSignal"},
        {"connectNDIDecodingFormat", "connectNDIDecodingFormat", QVariantList{6, 2}, {V{"<T0000c606020000ce>", ""}}, ""},
        {"connectNDIDecodingSwitch", "connectNDIDecodingSwitch", QVariantList{1}, {V{"<T0000c608010000cf>", ""}}, ""},
        {"connectRNDISwitch", "connectRNDISwitch", QVariantList{}, {V{"<T0000c601000000c7>", ""}}, ""},
        {"connectSNDISwitch", "connectSNDISwitch", QVariantList{1}, {V{"<T0000c600010000c7>", ""}}, ""},
        {"connectSNDISwitch", "setNDISwitch", QVariantList{0}, {V{"<T0000c600000000c6>", ""}}, ""},
        {"connectRNDIGroupName", "connectRNDIGroupName", QVariantList{}, {V{"<T0000f1b8000000a9>", ""}}, ""},
        {"connectSNDIGroupName", "connectSNDIGroupName", QVariantList{QStringLiteral("public")}, {V{"<T0000f0b8000600ae>", "7075626c6963"}}, ""},
        {"connectSNDIGroupName", "setNDIGroupName", QVariantList{QString()}, {V{"<T0000f0b8000000a8>", ""}}, ""},
        {"connectRNDIChannelName", "connectRNDIChannelName", QVariantList{}, {V{"<T0000f1b8010000aa>", ""}}, ""},
        {"connectSNDIChannelName", "connectSNDIChannelName", QVariantList{QStringLiteral("ch1")}, {V{"<T0000f0b8010300ac>", "636831"}}, ""},
        {"connectSNDIChannelName", "setNDIchannelName", QVariantList{QString::fromUtf8("K\xc3\xa4")}, {V{"<T0000f0b8010300ac>", "4bc3a4"}}, ""},
        {"connectRNDIDeviceName", "connectRNDIDeviceName", QVariantList{}, {V{"<T0000f1b8020000ab>", ""}}, ""},
        {"connectSNDIDeviceName", "connectSNDIDeviceName", QVariantList{QStringLiteral("dev")}, {V{"<T0000f0b8020300ad>", "646576"}}, ""},
        {"connectSNDIDeviceName", "setNDIDeviceName", QVariantList{QStringLiteral("d2")}, {V{"<T0000f0b8020200ac>", "6432"}}, ""},
        {"connectRNDIConnection", "connectRNDIConnection", QVariantList{}, {V{"<T0000f1b8030000ac>", ""}}, ""},
        {"connectSNDIConnection", "connectSNDIConnection", QVariantList{1, 64, QStringLiteral("192.168.1.20"), QStringLiteral("255.255.255.0")}, {V{"<T0000f0b8030b00b6>", "0140c0a80114ffffff00bb"}}, ""},
        {"connectSNDIConnection", "setNDIConnection", QVariantList{0, 1, QStringLiteral("10.0.0.2"), QStringLiteral("255.0.0.0")}, {V{"<T0000f0b8030b00b6>", "00010a000002ff0000000c"}}, ""},
        {"connectRNDIDateType", "connectRNDIDateType", QVariantList{}, {V{"<T0000c603000000c9>", ""}}, ""},
        {"connectSNDIDateType", "connectSNDIDateType", QVariantList{2, 9}, {V{"<T0000c602020900d3>", ""}}, ""},
        {"connectSNDIDateType", "setNDIDataType", QVariantList{1, 4}, {V{"<T0000c602010400cd>", ""}}, ""},
        {"connectRNDIBaseInfo", "connectRNDIBaseInfo", QVariantList{}, {V{"<T0000f1b8040000ad>", ""}}, ""},
        {"connectUVCStyleSupport", "connectUVCStyleSupport", QVariantList{1}, {V{"<T0000f1b9010000ab>", ""}}, "send connectUVCStyleSupport"},
        {"connectUVCStyle", "connectUVCStyle", QVariantList{1, 2, 3}, {V{"<T0000c800010203ce>", ""}}, "send connectUVCStyle"},
        {"connectUVCControlSupport", "connectUVCControlSupport", QVariantList{2}, {V{"<T0000c803020000cd>", ""}}, "send connectUVCControlSupport"},
        {"connectUVCDirectionAndZoom", "connectUVCDirectionAndZoom", QVariantList{1, 5}, {V{"<T0000c804010005d2>", ""}}, "send connectUVCDirectionAndZoom"},
        {"connectAutoFocus", "connectAutoFocus", QVariantList{2, 1, 3}, {V{"<T0000c802010103cf>", ""}}, "send connectAutoFocus"},
        {"connectView", "connectView", QVariantList{1, 2, 3, 4}, {V{"<T0000c801020304d2>", ""}}, "send connectView, controlType:3"},
        {"connectHdmiOutStyle", "connectHdmiOutStyle", QVariantList{1, 3}, {V{"<T0000c901020300cf>", ""}}, "send connectHdmiOutStyle:3"},
    };
    return list;
}

// Invokes a slot of obj by name with arguments converted to its parameter
// types, as QML would; the bool result (if any) lands in *result.
bool invokeSlot(QObject *obj, const QByteArray &name, const QVariantList &args, bool *result, QString *why)
{
    const QMetaObject *mo = obj->metaObject();
    for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
        const QMetaMethod m = mo->method(i);
        if (m.name() != name || m.parameterCount() != args.size())
            continue;
        QVariantList converted;
        for (int p = 0; p < args.size(); ++p) {
            QVariant v = args.at(p);
            if (v.userType() != m.parameterType(p) && !v.convert(m.parameterType(p))) {
                *why = QStringLiteral("argument %1 does not convert").arg(p);
                return false;
            }
            converted << v;
        }
        const QList<QByteArray> types = m.parameterTypes();
        QGenericArgument a[6];
        for (int p = 0; p < converted.size() && p < 6; ++p)
            a[p] = QGenericArgument(types.at(p).constData(), converted.at(p).constData());
        bool ret = false;
        const bool ok = m.returnType() == QMetaType::Bool
            ? m.invoke(obj, Qt::DirectConnection, Q_RETURN_ARG(bool, ret), a[0], a[1], a[2], a[3], a[4], a[5])
            : m.invoke(obj, Qt::DirectConnection, a[0], a[1], a[2], a[3], a[4], a[5]);
        if (result)
            *result = m.returnType() == QMetaType::Bool ? ret : true;
        if (!ok)
            *why = QStringLiteral("invoke failed");
        return ok;
    }
    *why = QStringLiteral("no slot %1 with %2 arguments").arg(QString::fromLatin1(name)).arg(args.size());
    return false;
}

QByteArray expectedBytes(const V &v)
{
    return QByteArray(v.frame) + QByteArray::fromHex(v.block);
}

void setConfigValue(const TestSysroot &root, const QString &key, const QVariant &value)
{
    QSettings ini(root.configFile(), QSettings::IniFormat);
    ini.setIniCodec("utf-8");
    ini.setValue(QStringLiteral("/setting/") + key, value);
}

} // namespace

class TstLinkCommands : public QObject
{
    Q_OBJECT
private:
    std::unique_ptr<LinkFixture> fx;
    std::unique_ptr<LogTap> logs;

    // Invokes, then checks the datagrams at the peer: exactly these, in order, nothing more.
    void expectDatagrams(const QByteArray &method, const QVariantList &args, const QList<QByteArray> &expected)
    {
        bool result = false;
        QString why;
        QVERIFY2(invokeSlot(fx->proc.get(), method, args, &result, &why), qPrintable(why));
        QVERIFY(result); // device commands return true at once, whatever they queue
        for (const QByteArray &want : expected) {
            const QByteArray got = fx->nextCommand(3000);
            QCOMPARE(got.toHex(), want.toHex());
        }
        const QList<QByteArray> extra = fx->drainCommands(expected.isEmpty() ? 250 : 60);
        QVERIFY2(extra.isEmpty(), extra.isEmpty() ? "" : extra.first().constData());
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

    void commandBytes_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<QList<QByteArray>>("expected");
        QTest::addColumn<QString>("log");
        QHash<QByteArray, int> seen;
        for (const Vector &v : vectors()) {
            QList<QByteArray> expected;
            for (const V &d : v.datagrams)
                expected << expectedBytes(d);
            const QByteArray name = QByteArray(v.entry) + " via " + v.method + " #" + QByteArray::number(seen[QByteArray(v.entry) + v.method]++);
            QTest::newRow(name.constData()) << QByteArray(v.method) << v.args << expected << QString::fromUtf8(v.log);
        }
    }
    void commandBytes()
    {
        QFETCH(QByteArray, method);
        QFETCH(QVariantList, args);
        QFETCH(QList<QByteArray>, expected);
        QFETCH(QString, log);
        expectDatagrams(method, args, expected);
        if (!log.isEmpty())
            QVERIFY2(logs->lines().contains(log), qPrintable(logs->lines().join(QLatin1Char('\n'))));
    }

    void inputSignalFormat_data()
    {
        QTest::addColumn<int>("curInputIndex"); // in the settings file
        QTest::addColumn<QJsonArray>("list");
        QTest::addColumn<QByteArray>("expected"); // empty: nothing sent
        QTest::addColumn<QString>("log");
        const QJsonArray four{QJsonObject{{"VideoType", 0}, {"Resolution", "1920x1080@60"}},
                              QJsonObject{{"VideoType", 1}, {"Resolution", "1920x1080i@50"}},
                              QJsonObject{{"VideoType", 2}, {"Resolution", "1280x720@30"}},
                              QJsonObject{{"VideoType", 3}, {"Resolution", "3840x2160@29.97"}}};
        QTest::newRow("index 2, progressive")
            << 2 << four << QByteArray("<T0000f0b3020800ad>") + QByteArray::fromHex("020005d0021e00f7")
            << "UiProc::connectSetInputSignalFormat-------------- currentInputType:2 VideoType:2 Resolution:1280x720@30";
        QTest::newRow("fractional rate rounds")
            << 3 << four << QByteArray("<T0000f0b3030800ae>") + QByteArray::fromHex("03000f70081e00a8")
            << "UiProc::connectSetInputSignalFormat---------- send set input signal";
        QTest::newRow("plain string entry")
            << 0 << QJsonArray{"720x576i@50"} << QByteArray("<T0000f0b3000800ab>") + QByteArray::fromHex("00d0024002320147")
            << "UiProc::connectSetInputSignalFormat-------------- currentInputType:0 VideoType:0 Resolution:720x576i@50";
        QTest::newRow("decoded format object")
            << 0 << QJsonArray{QJsonObject{{"Weights", 3061}, {"DataType", 4}, {"width", 1920}, {"height", 1080}, {"Fps", "60i"}}}
            << QByteArray("<T0000f0b3000800ab>") + QByteArray::fromHex("04800738043c0104")
            << "UiProc::connectSetInputSignalFormat---------- send set input signal";
        QTest::newRow("index beyond the list") << 4 << four << QByteArray()
            << "UiProc::connectSetInputSignalFormat no format for input 4 in a list of 4, nothing sent";
        QTest::newRow("unreadable resolution") << 0 << QJsonArray{QJsonObject{{"VideoType", 0}, {"Resolution", "big@fast"}}} << QByteArray()
            << "UiProc::connectSetInputSignalFormat resolution \"big@fast\" not understood, nothing sent";
    }
    void inputSignalFormat()
    {
        QFETCH(int, curInputIndex);
        QFETCH(QJsonArray, list);
        QFETCH(QByteArray, expected);
        QFETCH(QString, log);
        setConfigValue(fx->sysroot, QStringLiteral("curInputIndex"), curInputIndex);
        QVERIFY(fx->proc->connectSetInputSignalFormat(list));
        QVERIFY(logs->lines().contains(QStringLiteral("UiProc::connectSetInputSignalFormat--------------   go into")));
        if (expected.isEmpty())
            QVERIFY(fx->drainCommands(200).isEmpty());
        else
            QCOMPARE(fx->nextCommand().toHex(), expected.toHex());
        QVERIFY2(logs->lines().contains(log), qPrintable(logs->lines().join(QLatin1Char('\n'))));
    }

    // Oversized or odd text from the screens: bounded blocks, log lines, no crash.
    void hostileArguments_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<QByteArray>("header");
        QTest::addColumn<int>("blockSize");
        QTest::addColumn<QByteArray>("blockHex"); // when short enough to state
        QTest::addColumn<QString>("log");
        QTest::newRow("group name of 2000 characters is cut")
            << QByteArray("connectSNDIGroupName") << QVariantList{QString(2000, QLatin1Char('g'))}
            << QByteArray("<T0000f0b8000004ac>") << 1024 << QByteArray()
            << "UiProc::connectSNDIGroupName text of 2000 bytes cut to 1024";
        QTest::newRow("stream address of 1100 characters is cut")
            << QByteArray("connectStreamOnAir") << QVariantList{1, QString(1100, QLatin1Char('r'))}
            << QByteArray("<T0000f0b4000004a8>") << 1024 << QByteArray()
            << "UiProc::connectStreamOnAir address of 1100 characters cut to 1020";
        QTest::newRow("device address with bad parts")
            << QByteArray("connectBluetoothDev") << QVariantList{QStringLiteral("zz-11-;rm -rf /"), false}
            << QByteArray("<T0000f0b6000700ad>") << 7 << QByteArray("00110000000011")
            << "UiProc::sendBluetoothDev device address \"zz-11-;rm -rf /\" is not six hex pairs, bad parts sent as 0";
        QTest::newRow("NDI address with a part over 255")
            << QByteArray("connectSNDIConnection") << QVariantList{1, 2, QStringLiteral("10.0.300.1"), QStringLiteral("255.255.255")}
            << QByteArray("<T0000f0b8030b00b6>") << 11 << QByteArray("01020a000001ffffff000b")
            << "UiProc::setNDIConnection netmask \"255.255.255\" is not a dotted address, bad parts sent as 0";
    }
    void hostileArguments()
    {
        QFETCH(QByteArray, method);
        QFETCH(QVariantList, args);
        QFETCH(QByteArray, header);
        QFETCH(int, blockSize);
        QFETCH(QByteArray, blockHex);
        QFETCH(QString, log);
        bool result = false;
        QString why;
        QVERIFY2(invokeSlot(fx->proc.get(), method, args, &result, &why), qPrintable(why));
        const QByteArray got = fx->nextCommand();
        QCOMPARE(got.left(19), header);
        QCOMPARE(got.size() - 19, blockSize);
        if (!blockHex.isEmpty())
            QCOMPARE(got.mid(19).toHex(), blockHex);
        uchar sum = 0;
        for (int i = 0; i < blockSize - 1; ++i)
            sum = uchar(sum + uchar(got[19 + i]));
        if (method != "connectSNDIGroupName")
            QCOMPARE(uchar(got.back()), sum);
        QVERIFY2(logs->lines().contains(log), qPrintable(logs->lines().join(QLatin1Char('\n'))));
    }

};

QTEST_GUILESS_MAIN(TstLinkCommands)
#include "tst_linkcommands.moc"
