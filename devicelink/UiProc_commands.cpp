// The command set: every device command the screens can issue, as one
// table entry each, and the QML-facing slots that name them.
#include "LinkCommands.h"
#include "LinkTransport.h"
#include "UiProc.h"

#include "Logger.h"
#include "SettingsStore.h"
#include "biz_CMDSWork.h"

#include <QJsonValue>
#include <QRegularExpression>

#include <cstring>
#include <system_error>
#include <thread>

namespace LinkCommands {

namespace {

constexpr Runs T = Runs::Thread;
constexpr Runs C = Runs::Caller;
constexpr Field Z = K(0);
constexpr Block Text(int arg) { return {BlockKind::Text, static_cast<signed char>(arg)}; }
constexpr Block Mac(int arg) { return {BlockKind::DeviceAddress, static_cast<signed char>(arg)}; }
constexpr Block Raw(int arg) { return {BlockKind::Raw, static_cast<signed char>(arg)}; }
constexpr Block NdiConn{BlockKind::NdiConnection, 0};
constexpr Block StreamParamsBlock{BlockKind::StreamParams, 0};
constexpr Block StreamAddressBlock{BlockKind::StreamAddress, 0};

// Inputs are numbered HDMI 1, HDMI 2, UVC 1, UVC 2, NDI.
const char *const kCurrentFormatLogs[] = {nullptr, nullptr, "sendGetInputCurrentFormat get uvc1 format",
                                          "sendGetInputCurrentFormat get uvc2 format"};

// clang-format off
const Command kTable[] = {
// key                              public sender           runs CMD   DAT1      DAT2     DAT3  DAT4  block                slot log                                                                   logArg sender log                                         inputs
{"connectGetInputSignalFormat",     nullptr,                T, 0xF1, K(0xB3), A(0),    Z,    Z,    NoBlock,            "send connectGetInputSignalFormat",                                        -1, nullptr,                                             5, nullptr},
{"connectGetInputCurrentFormat",    nullptr,                T, 0xF1, K(0xBA), A(0),    Z,    Z,    NoBlock,            "send connectGetInputCurrentFormat",                                       -1, nullptr,                                             4, kCurrentFormatLogs},
{"connectGetAudioSamplingRate",     nullptr,                T, 0xC9, A(0),    K(0x01), A(1), A(2), NoBlock,            "send connectGetAudioSamplingRate",                                        -1, nullptr,                                             0, nullptr},
{"connectGetRecordFileName",        nullptr,                T, 0xF1, K(0x45), Z,       Z,    Z,    NoBlock,            "sned connectGetRecordFileName",                                           -1, nullptr,                                             0, nullptr},
{"connectReadSN",                   nullptr,                T, 0xF1, K(0x44), Z,       Z,    Z,    NoBlock,            "send connectReadSN",                                                      -1, nullptr,                                             0, nullptr},
{"connectVersion",                  nullptr,                T, 0x6A, K(0x00), Z,       Z,    Z,    NoBlock,            "send connectVersion",                                                     -1, nullptr,                                             0, nullptr},
{"connectSystemVersion",            nullptr,                T, 0x6A, K(0x01), Z,       Z,    Z,    NoBlock,            "send connectSystemVersion",                                               -1, nullptr,                                             0, nullptr},
{"connectGetUSBStatus",             nullptr,                T, 0x68, K(0xAD), Z,       Z,    Z,    NoBlock,            "send connectGetUSBStatus",                                                -1, nullptr,                                             0, nullptr},
{"connectGetTypeCStatus",           nullptr,                T, 0xC1, Z,       Z,       Z,    Z,    NoBlock,            "send connectGetTypeCStatus",                                              -1, nullptr,                                             0, nullptr},
{"connectGetPower",                 nullptr,                C, 0x68, K(0xB0), A(0),    Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectGetOutputStatus",          nullptr,                C, 0xD0, K(0x07), K(0x00), Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectResetFactory",             "sendresetFactory",     T, 0x68, K(0x06), Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectPowerOff",                 nullptr,                T, 0x68, K(0x10), K(0x00), Z,    Z,    NoBlock,            nullptr,                                                                   -1, "UiProc::sendPowerOff ==================== power off", 0, nullptr},
{"connectGetLocalHost",             nullptr,                T, 0x89, Z,       Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectVideo",                    nullptr,                C, 0x69, K(0x10), A(0),    Z,    Z,    NoBlock,            "UiProc::sendVideoStatusCode---------------- send video control signal",   -1, nullptr,                                             0, nullptr},
{"connectSwitchAudio",              nullptr,                T, 0xC3, A(0),    Z,       Z,    Z,    NoBlock,            "UiProc::sendSwitchAudio---------------- send audio control signal",       -1, nullptr,                                             0, nullptr},
{"connectRec",                      nullptr,                T, 0xC2, A(0),    A(1),    Z,    Z,    NoBlock,            "UiProc::sendRec---------------- send record video and audio",             -1, nullptr,                                             0, nullptr},
{"connectDeRecordFileName",         nullptr,                T, 0xC2, K(0x03), Z,       Z,    Z,    NoBlock,            "sned connectDeRecordFileName",                                            -1, nullptr,                                             0, nullptr},
{"connectSwitchVideo",              nullptr,                T, 0x78, A(1),    A(0),    Z,    Z,    NoBlock,            nullptr /* chosen by the slot */,                                          -1, nullptr,                                             0, nullptr},
{"connectReadInitInput",            nullptr,                T, 0x78, K(0x02), K(0x00), Z,    Z,    NoBlock,            "UiProc::sendReadInitInput---------------- sendReadInitInput",             -1, nullptr,                                             0, nullptr},
{"connectSetPIP",                   nullptr,                T, 0x68, K(0xAA), A(0),    A(1), Z,    NoBlock,            "send connectSetPIP",                                                      -1, nullptr,                                             0, nullptr},
{"connectGetStatisticPic",          nullptr,                T, 0xC7, K(0x01), A(0),    A(1), A(2), NoBlock,            "send connectGetStatisticPic",                                             -1, nullptr,                                             0, nullptr},
{"connectStreamPlatformStatus",     "getStreamPlatformStatus", T, 0x68, K(0xB5), K(0x00), Z, Z,    NoBlock,            nullptr,                                                                   -1, "UiProc::getStreamPlatformStatus ====================", 0, nullptr},
{"readHDMI2Status",                 nullptr,                T, 0xD0, K(0x0C), Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectSetInputSignalFormat",     nullptr,                C, 0xF0, K(0xB3), A(0),    Z,    Z,    Raw(1),             nullptr /* written by the slot */,                                         -1, nullptr,                                             0, nullptr},
{"connectSetRecordName",            nullptr,                C, 0xF0, K(0xBC), K(0x00), Z,    Z,    Text(0),            "UiProc::connectSetRecordName--------------   go into",                    -1, nullptr,                                             0, nullptr},
{"connectStreamOnAir",              nullptr,                C, 0xF0, K(0xB4), K(0x00), Z,    Z,    StreamAddressBlock, nullptr /* written by the slot */,                                         -1, nullptr,                                             0, nullptr},
{"connectStreamParams",             nullptr,                C, 0xF0, K(0xB5), K(0x00), Z,    Z,    StreamParamsBlock,  nullptr /* written by the slot */,                                         -1, nullptr,                                             0, nullptr},
// Bluetooth
{"connectBluetoothOpen",            "sendBluetoothOpen",    T, 0xC5, A(0),    Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectBluetoothSearch/start",    "sendBluetoothSearch",  T, 0xC5, K(0x03), K(0x05), Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectBluetoothSearch/other",    "sendBluetoothSearch",  T, 0xC5, K(0x04), Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectBluetoothDevInfo",         "getBluetoothDevInfo",  T, 0xF1, K(0xB4), A(0),    Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectBluetoothDev",             "sendBluetoothDev",     T, 0xF0, K(0xB6), K(0x00), Z,    Z,    Mac(0),             nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectBluetoothDev/zor",         "sendBluetoothZorDev",  T, 0xF0, K(0xB6), A(1),    Z,    Z,    Mac(0),             nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"disconnectBluetoothDev",          "breakBluetoothDev",    T, 0xF0, K(0xB7), K(0x00), Z,    Z,    Mac(0),             nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"disconnectBluetoothDev/zor",      nullptr,                T, 0xF0, K(0xB6), K(0x00), Z,    Z,    Mac(0),             nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"sendBluetoothConnect_New/true",   nullptr,                C, 0xC5, K(0xB5), Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"sendBluetoothConnect_New/false",  nullptr,                C, 0xC5, Z,       K(0xB6), Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"sendBluetoothOpen_New/true",      nullptr,                C, 0xC5, K(0xB7), Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"sendBluetoothOpen_New/false",     nullptr,                C, 0xC5, Z,       K(0xB8), Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
// NDI
{"connectNDIMenuSwitch",            nullptr,                T, 0xC6, A(0),    A(1),    Z,    Z,    NoBlock,            nullptr,                                                                   -1, "UiProc::sendNDIMenuSwitch",                         0, nullptr},
{"connectNDIEncodingSwitch",        nullptr,                T, 0xC6, A(0),    A(1),    Z,    Z,    NoBlock,            nullptr,                                                                   -1, "UiProc::sendNDIEncodingSwitch",                     0, nullptr},
{"connectGetNDIDecodingSignal",     nullptr,                T, 0xF1, K(0xBB), Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, "UiProc::sendGetNDIDecodingSignal",                  0, nullptr},
{"connectSetNDIDecodingSignal",     nullptr,                C, 0xF0, K(0xBB), Z,       Z,    Z,    Text(1),            nullptr,                                                                   -1, "UiProc::sendSetNDIEncodingSignal",                  0, nullptr},
{"connectNDIDecodingFormat",        nullptr,                C, 0xC6, A(0),    A(1),    Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectNDIDecodingSwitch",        nullptr,                T, 0xC6, K(0x08), A(0),    Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectRNDISwitch",               "redNDISwitch",         T, 0xC6, K(0x01), Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectSNDISwitch",               "setNDISwitch",         T, 0xC6, K(0x00), A(0),    Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectRNDIGroupName",            "getNDIGroupName",      T, 0xF1, K(0xB8), K(0x00), Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectSNDIGroupName",            "setNDIGroupName",      T, 0xF0, K(0xB8), K(0x00), Z,    Z,    Text(0),            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectRNDIChannelName",          "getNDIChannelName",    T, 0xF1, K(0xB8), K(0x01), Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectSNDIChannelName",          "setNDIchannelName",    T, 0xF0, K(0xB8), K(0x01), Z,    Z,    Text(0),            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectRNDIDeviceName",           "getDNIDeviceName",     T, 0xF1, K(0xB8), K(0x02), Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectSNDIDeviceName",           "setNDIDeviceName",     T, 0xF0, K(0xB8), K(0x02), Z,    Z,    Text(0),            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectRNDIConnection",           "getNDIConnection",     T, 0xF1, K(0xB8), K(0x03), Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectSNDIConnection",           "setNDIConnection",     T, 0xF0, K(0xB8), K(0x03), Z,    Z,    NdiConn,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectRNDIDateType",             "getNDIDataType",       T, 0xC6, K(0x03), Z,       Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectSNDIDateType",             "setNDIDataType",       T, 0xC6, K(0x02), A(0),    A(1), Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
{"connectRNDIBaseInfo",             "setNDIbaseInfo",       T, 0xF1, K(0xB8), K(0x04), Z,    Z,    NoBlock,            nullptr,                                                                   -1, nullptr,                                             0, nullptr},
// UVC camera and HDMI output
{"connectUVCStyleSupport",          nullptr,                T, 0xF1, K(0xB9), A(0),    Z,    Z,    NoBlock,            "send connectUVCStyleSupport",                                             -1, nullptr,                                             0, nullptr},
{"connectUVCStyle",                 nullptr,                T, 0xC8, K(0x00), A(0),    A(1), A(2), NoBlock,            "send connectUVCStyle",                                                    -1, nullptr,                                             0, nullptr},
{"connectUVCControlSupport",        nullptr,                T, 0xC8, K(0x03), A(0),    Z,    Z,    NoBlock,            "send connectUVCControlSupport",                                           -1, nullptr,                                             0, nullptr},
{"connectUVCDirectionAndZoom",      nullptr,                T, 0xC8, K(0x04), A(0),    K(0x00), A(1), NoBlock,         "send connectUVCDirectionAndZoom",                                         -1, nullptr,                                             0, nullptr},
{"connectAutoFocus",                nullptr,                T, 0xC8, A(0),    A(1),    K(0x01), A(2), NoBlock,         "send connectAutoFocus",                                                   -1, nullptr,                                             0, nullptr},
{"connectView",                     nullptr,                T, 0xC8, A(0),    A(1),    A(2), A(3), NoBlock,            "send connectView, controlType:",                                           2, nullptr,                                             0, nullptr},
{"connectHdmiOutStyle",             nullptr,                T, 0xC9, A(0),    K(0x02), A(1), Z,    NoBlock,            "send connectHdmiOutStyle:",                                                1, nullptr,                                             0, nullptr},
};
// clang-format on

uchar fieldValue(const Field &f, const QVariantList &args)
{
    if (f.arg < 0)
        return f.value;
    return f.arg < args.size() ? uchar(args.at(f.arg).toInt()) : uchar(0);
}

QString textArg(const QVariantList &args, int index)
{
    return index >= 0 && index < args.size() ? args.at(index).toString() : QString();
}

int intArg(const QVariantList &args, int index)
{
    return index >= 0 && index < args.size() ? args.at(index).toInt() : 0;
}

// "a.b.c.d" -> four bytes; parts that are missing or not numbers 0..255 become 0.
QByteArray dottedBytes(const QString &text, const char *what)
{
    const QStringList parts = text.split(QLatin1Char('.'));
    QByteArray out(4, '\0');
    bool clean = parts.size() == 4;
    for (int i = 0; i < 4 && i < parts.size(); ++i) {
        bool ok = false;
        const uint v = parts.at(i).trimmed().toUInt(&ok, 10);
        if (ok && v <= 255)
            out[i] = char(v);
        else
            clean = false;
    }
    if (!clean)
        writeLog(QStringLiteral("UiProc::setNDIConnection %1 \"%2\" is not a dotted address, bad parts sent as 0")
                     .arg(QLatin1String(what), text.left(64)));
    return out;
}

} // namespace

const Command *table() { return kTable; }

int tableSize() { return int(sizeof kTable / sizeof kTable[0]); }

const Command *find(const char *key)
{
    for (const Command &c : kTable)
        if (std::strcmp(c.key, key) == 0)
            return &c;
    return nullptr;
}

uchar sum8(const QByteArray &bytes)
{
    uchar sum = 0;
    for (const char b : bytes)
        sum = uchar(sum + uchar(b));
    return sum;
}

QByteArray deviceAddressBlock(const QString &mac)
{
    const QStringList parts = mac.split(QLatin1Char('-'));
    QByteArray block(6, '\0');
    bool clean = parts.size() == 6;
    for (int i = 0; i < 6 && i < parts.size(); ++i) {
        bool ok = false;
        const uint v = parts.at(i).trimmed().toUInt(&ok, 16);
        if (ok && v <= 0xff)
            block[i] = char(v);
        else
            clean = false;
    }
    if (!clean)
        writeLog(QStringLiteral("UiProc::sendBluetoothDev device address \"%1\" is not six hex pairs, bad parts sent as 0")
                     .arg(mac.left(64)));
    block.append(char(sum8(block)));
    return block;
}

QByteArray makeBlock(const Command &c, const QVariantList &args)
{
    QByteArray block;
    switch (c.block.kind) {
    case BlockKind::None:
        break;
    case BlockKind::Text:
        block = textArg(args, c.block.arg).toUtf8();
        if (block.size() > kMaxTextBlock) {
            writeLog(QStringLiteral("UiProc::%1 text of %2 bytes cut to %3")
                         .arg(QLatin1String(c.key))
                         .arg(block.size())
                         .arg(kMaxTextBlock));
            block.truncate(kMaxTextBlock);
        }
        break;
    case BlockKind::DeviceAddress:
        block = deviceAddressBlock(textArg(args, c.block.arg));
        break;
    case BlockKind::NdiConnection: {
        const int a = c.block.arg;
        block.append(char(uchar(intArg(args, a))));
        block.append(char(uchar(intArg(args, a + 1))));
        block.append(dottedBytes(textArg(args, a + 2), "address"));
        block.append(dottedBytes(textArg(args, a + 3), "netmask"));
        block.append(char(sum8(block)));
        break;
    }
    case BlockKind::StreamParams: {
        const int a = c.block.arg;
        const int rate = intArg(args, a + 2);
        block.append(char(uchar(intArg(args, a))));
        block.append(char(uchar(intArg(args, a + 1))));
        block.append(char(uchar(rate & 0xff)));
        block.append(char(uchar((rate >> 8) & 0xff)));
        block.append(char(sum8(block)));
        break;
    }
    case BlockKind::StreamAddress: {
        const int a = c.block.arg;
        QString address = textArg(args, a + 1);
        if (address.size() > kMaxStreamBlock - 4) {
            writeLog(QStringLiteral("UiProc::connectStreamOnAir address of %1 characters cut to %2")
                         .arg(address.size())
                         .arg(kMaxStreamBlock - 4));
            address.truncate(kMaxStreamBlock - 4);
        }
        block.append(char(uchar(intArg(args, a))));
        block.append('"');
        for (const QChar ch : qAsConst(address))
            block.append(ch.unicode() > 255 ? '\0' : char(ch.unicode()));
        block.append('"');
        block.append(char(sum8(block)));
        break;
    }
    case BlockKind::Raw:
        if (c.block.arg >= 0 && c.block.arg < args.size())
            block = args.at(c.block.arg).toByteArray();
        break;
    }
    return block;
}

model_Protocoldata makeRecord(const Command &c, const QVariantList &args)
{
    model_Protocoldata rec;
    rec.CMD = c.cmd;
    rec.DAT1 = fieldValue(c.dat1, args);
    rec.DAT2 = fieldValue(c.dat2, args);
    rec.DAT3 = fieldValue(c.dat3, args);
    rec.DAT4 = fieldValue(c.dat4, args);
    if (c.block.kind != BlockKind::None) {
        rec.arryDatablock = makeBlock(c, args);
        rec.DAT3 = uchar(rec.arryDatablock.size() & 0xff);
        rec.DAT4 = uchar((rec.arryDatablock.size() >> 8) & 0xff);
    }
    rec.sendMode = 0;
    return rec;
}

void send(const Command &c, const QVariantList &args)
{
    if (c.senderLog)
        writeLog(QLatin1String(c.senderLog));
    if (c.inputs <= 0) {
        biz_CMDSWork::enqueueCommand(makeRecord(c, args));
        return;
    }
    // Input selector: -1 queues every input in turn, 0..inputs-1 that one, anything else nothing.
    const int selector = intArg(args, 0);
    if (selector != -1 && (selector < 0 || selector >= c.inputs))
        return;
    const int first = selector == -1 ? 0 : selector;
    const int last = selector == -1 ? c.inputs - 1 : selector;
    QVariantList one = args;
    if (one.isEmpty())
        one.append(0);
    for (int input = first; input <= last; ++input) {
        if (c.inputLogs && c.inputLogs[input])
            writeLog(QLatin1String(c.inputLogs[input]));
        one[0] = input;
        biz_CMDSWork::enqueueCommand(makeRecord(c, one));
    }
}

} // namespace LinkCommands

using LinkCommands::Command;

bool UiProc::runCommand(const char *key, const QVariantList &args, bool writeSlotLog)
{
    const Command *c = LinkCommands::find(key);
    Q_ASSERT_X(c, "UiProc::runCommand", key);
    if (!c)
        return true;
    m_transport->setDestinationAddress(QStringLiteral("127.0.0.1"));
    if (writeSlotLog && c->slotLog) {
        QString line = QLatin1String(c->slotLog);
        if (c->logArg >= 0 && c->logArg < args.size())
            line += QString::number(args.at(c->logArg).toInt());
        writeLog(line);
    }
    if (c->runs == LinkCommands::Runs::Caller) {
        LinkCommands::send(*c, args);
        return true;
    }
    try {
        std::thread(LinkCommands::send, std::cref(*c), args).detach();
    } catch (const std::system_error &e) {
        // No thread to be had: send from here rather than lose the command.
        writeLog(QStringLiteral("UiProc::%1 no thread (%2), sent inline")
                     .arg(QLatin1String(key), QString::fromLocal8Bit(e.what())));
        LinkCommands::send(*c, args);
    }
    return true;
}

// A public sender slot: runs on the caller's thread, without the operation's log.
void UiProc::sendCommandNow(const char *key, const QVariantList &args)
{
    const Command *c = LinkCommands::find(key);
    Q_ASSERT_X(c, "UiProc::sendCommandNow", key);
    if (!c)
        return;
    m_transport->setDestinationAddress(QStringLiteral("127.0.0.1"));
    LinkCommands::send(*c, args);
}

// ---- commands with fixed or argument codes

bool UiProc::connectGetInputSignalFormat() { return connectGetInputSignalFormat(-1); }
bool UiProc::connectGetInputSignalFormat(int type) { return runCommand("connectGetInputSignalFormat", {type}); }
bool UiProc::connectGetInputCurrentFormat() { return connectGetInputCurrentFormat(-1); }
bool UiProc::connectGetInputCurrentFormat(int type) { return runCommand("connectGetInputCurrentFormat", {type}); }
bool UiProc::connectGetAudioSamplingRate(int type, int inputType, int rate)
{
    return runCommand("connectGetAudioSamplingRate", {type, inputType, rate});
}
bool UiProc::connectGetRecordFileName() { return runCommand("connectGetRecordFileName", {}); }
bool UiProc::connectReadSN() { return runCommand("connectReadSN", {}); }
bool UiProc::connectVersion() { return runCommand("connectVersion", {}); }
bool UiProc::connectSystemVersion() { return runCommand("connectSystemVersion", {}); }
bool UiProc::connectGetUSBStatus() { return runCommand("connectGetUSBStatus", {}); }
bool UiProc::heartbeat() { return runCommand("connectGetUSBStatus", {}, false); }
bool UiProc::connectGetTypeCStatus() { return runCommand("connectGetTypeCStatus", {}); }
bool UiProc::connectGetPower()
{
    // Two power sources, asked in order.
    runCommand("connectGetPower", {1});
    return runCommand("connectGetPower", {2});
}
bool UiProc::connectGetOutputStatus() { return runCommand("connectGetOutputStatus", {}); }
bool UiProc::connectResetFactory() { return runCommand("connectResetFactory", {}); }
void UiProc::sendresetFactory() { sendCommandNow("connectResetFactory", {}); }
bool UiProc::connectPowerOff() { return runCommand("connectPowerOff", {}); }
bool UiProc::connectGetLocalHost()
{
    m_targetHost = QStringLiteral("127.0.0.1");
    return runCommand("connectGetLocalHost", {});
}
bool UiProc::connectVideo(uchar code) { return runCommand("connectVideo", {int(code)}); }
bool UiProc::connectSwitchAudio(uchar channel) { return runCommand("connectSwitchAudio", {int(channel)}); }
bool UiProc::connectRec(uchar type, uchar code) { return runCommand("connectRec", {int(type), int(code)}); }
bool UiProc::connectDeRecordFileName() { return runCommand("connectDeRecordFileName", {}); }
bool UiProc::connectSwitchVideo(uchar channel, bool outPGM)
{
    writeLog(outPGM ? QStringLiteral("UiProc::sendSwitchVideo---------------- send video output PGM")
                    : QStringLiteral("UiProc::sendSwitchVideo---------------- send video switch signal"));
    return runCommand("connectSwitchVideo", {int(channel), outPGM});
}
bool UiProc::connectReadInitInput() { return runCommand("connectReadInitInput", {}); }
bool UiProc::connectSetPIP(uchar pipType, uchar pipPosition)
{
    return runCommand("connectSetPIP", {int(pipType), int(pipPosition)});
}
bool UiProc::connectGetStatisticPic(uchar type, bool isOpen, uchar position)
{
    return runCommand("connectGetStatisticPic", {int(type), isOpen, int(position)});
}
bool UiProc::connectStreamPlatformStatus() { return runCommand("connectStreamPlatformStatus", {}); }
void UiProc::getStreamPlatformStatus() { sendCommandNow("connectStreamPlatformStatus", {}); }
bool UiProc::readHDMI2Status() { return runCommand("readHDMI2Status", {}); }

int UiProc::currentInputIndex()
{
    // Read afresh: the screens move the current input through the settings
    // file after the settings object was read at start-up.
    QJsonObject fromFile;
    SettingsStore::read(fromFile);
    const QJsonValue v = fromFile.value(QStringLiteral("curInputIndex"));
    return v.isDouble() ? v.toInt(-1) : -1;
}

namespace {

struct InputFormat
{
    int videoType = 0;
    QString text;
    int width = 0;
    int height = 0;
    int fps = 0;
    bool interlaced = false;
};

// An entry is a resolution text such as "1920x1080@60" or "1920x1080i@60"
// (an "i" marks interlace), given as a string or as an object with
// "Resolution" (or "resolution") and "VideoType" (or "DataType"). A format
// object as the report decoder builds it (width, height, Fps "60"/"60i")
// is accepted too.
bool parseInputFormat(const QJsonValue &entry, InputFormat &out)
{
    QString text;
    if (entry.isString()) {
        text = entry.toString();
    } else if (entry.isObject()) {
        const QJsonObject o = entry.toObject();
        const QJsonValue type = o.contains(QLatin1String("VideoType")) ? o.value(QLatin1String("VideoType"))
                                                                        : o.value(QLatin1String("DataType"));
        out.videoType = type.toVariant().toInt();
        text = o.contains(QLatin1String("Resolution")) ? o.value(QLatin1String("Resolution")).toString()
                                                         : o.value(QLatin1String("resolution")).toString();
        if (text.isEmpty() && o.contains(QLatin1String("width")) && o.contains(QLatin1String("height")))
            text = QStringLiteral("%1x%2@%3")
                       .arg(o.value(QLatin1String("width")).toVariant().toString(),
                            o.value(QLatin1String("height")).toVariant().toString(),
                            o.value(QLatin1String("Fps")).toVariant().toString());
    }
    out.text = text;
    if (text.isEmpty() || out.videoType < 0 || out.videoType > 255)
        return false;
    QString plain = text.trimmed();
    out.interlaced = plain.contains(QLatin1Char('i'), Qt::CaseInsensitive);
    plain.remove(QLatin1Char('i'), Qt::CaseInsensitive);
    const QStringList at = plain.split(QLatin1Char('@'));
    if (at.size() != 2)
        return false;
    const QStringList size = at.at(0).split(QLatin1Char('x'), Qt::KeepEmptyParts, Qt::CaseInsensitive);
    if (size.size() != 2)
        return false;
    bool okW = false, okH = false, okF = false;
    out.width = size.at(0).trimmed().toInt(&okW);
    out.height = size.at(1).trimmed().toInt(&okH);
    out.fps = qRound(at.at(1).trimmed().toDouble(&okF));
    return okW && okH && okF && out.width > 0 && out.width <= 0xffff && out.height > 0 && out.height <= 0xffff
        && out.fps > 0 && out.fps <= 0xff;
}

} // namespace

// Block (8 bytes): VideoType, width low, width high, height low, height
// high, frames per second, interlace flag (1 interlaced, 0 progressive),
// check byte (8-bit sum of the seven before it). DAT2 is the current input.
bool UiProc::connectSetInputSignalFormat(QJsonArray videoFormatList)
{
    m_transport->setDestinationAddress(QStringLiteral("127.0.0.1"));
    writeLog(QStringLiteral("UiProc::connectSetInputSignalFormat--------------   go into"));
    const int input = currentInputIndex();
    if (input < 0 || input > 0xff || input >= videoFormatList.size()) {
        writeLog(QStringLiteral("UiProc::connectSetInputSignalFormat no format for input %1 in a list of %2, nothing sent")
                     .arg(input)
                     .arg(videoFormatList.size()));
        return true;
    }
    InputFormat f;
    const bool ok = parseInputFormat(videoFormatList.at(input), f);
    writeLog(QStringLiteral("UiProc::connectSetInputSignalFormat-------------- currentInputType:") + QString::number(input)
             + QStringLiteral(" VideoType:") + QString::number(f.videoType) + QStringLiteral(" Resolution:")
             + f.text.left(64));
    if (!ok) {
        writeLog(QStringLiteral("UiProc::connectSetInputSignalFormat resolution \"%1\" not understood, nothing sent")
                     .arg(f.text.left(64)));
        return true;
    }
    QByteArray block;
    block.append(char(uchar(f.videoType)));
    block.append(char(uchar(f.width & 0xff)));
    block.append(char(uchar(f.width >> 8)));
    block.append(char(uchar(f.height & 0xff)));
    block.append(char(uchar(f.height >> 8)));
    block.append(char(uchar(f.fps)));
    block.append(char(f.interlaced ? 1 : 0));
    block.append(char(LinkCommands::sum8(block)));
    writeLog(QStringLiteral("UiProc::connectSetInputSignalFormat---------- send set input signal"));
    return runCommand("connectSetInputSignalFormat", {input, block});
}

bool UiProc::connectSetRecordName(QString fileName) { return runCommand("connectSetRecordName", {fileName}); }

bool UiProc::connectStreamOnAir(int nIsRtmpOpen, QString rtmpAddr) { return connectStreamOnAir(nIsRtmpOpen, rtmpAddr, true); }

// isSend false prepares and logs the block without queuing it (the screens
// use it to check what would go out).
bool UiProc::connectStreamOnAir(int nIsRtmpOpen, QString rtmpAddr, bool isSend)
{
    m_transport->setDestinationAddress(QStringLiteral("127.0.0.1"));
    writeLog(QStringLiteral("UiProc::connectStreamOnAir--------------   RtmpAddr:") + rtmpAddr.left(LinkCommands::kMaxStreamBlock));
    const QVariantList args{nIsRtmpOpen, rtmpAddr};
    const model_Protocoldata rec = LinkCommands::makeRecord(*LinkCommands::find("connectStreamOnAir"), args);
    writeLog(QStringLiteral("UiProc::connectStreamOnAir---------- ") + QString::fromLatin1(rec.arryDatablock.toHex()));
    if (!isSend)
        return true;
    biz_CMDSWork::enqueueCommand(rec);
    return true;
}

bool UiProc::connectStreamParams(int isRtmpDefault, int RtmpResolution, int RtmpRate)
{
    writeLog(QStringLiteral("UiProc::connectStreamParams----------isRtmpDefault/isRtmpDefault/isRtmpDefault=%1/%2/%3")
                 .arg(isRtmpDefault)
                 .arg(RtmpResolution)
                 .arg(RtmpRate));
    return runCommand("connectStreamParams", {isRtmpDefault, RtmpResolution, RtmpRate});
}

// ---- Bluetooth

bool UiProc::connectBluetoothOpen(bool isOpen) { return runCommand("connectBluetoothOpen", {isOpen}); }
void UiProc::sendBluetoothOpen(bool isOpen) { sendCommandNow("connectBluetoothOpen", {isOpen}); }

static const char *bluetoothSearchKey(bool isOpen, bool isBroadCast)
{
    return isOpen && !isBroadCast ? "connectBluetoothSearch/start" : "connectBluetoothSearch/other";
}
bool UiProc::connectBluetoothSearch(bool isOpen, bool isBroadCast)
{
    return runCommand(bluetoothSearchKey(isOpen, isBroadCast), {});
}
void UiProc::sendBluetoothSearch(bool isOpen, bool isBroadCast)
{
    sendCommandNow(bluetoothSearchKey(isOpen, isBroadCast), {});
}
bool UiProc::connectBluetoothDevInfo(bool isZor) { return runCommand("connectBluetoothDevInfo", {isZor}); }
void UiProc::getBluetoothDevInfo(bool isZor) { sendCommandNow("connectBluetoothDevInfo", {isZor}); }
bool UiProc::connectBluetoothDev(QString mac, bool isZor)
{
    return isZor ? runCommand("connectBluetoothDev/zor", {mac, true}) : runCommand("connectBluetoothDev", {mac});
}
void UiProc::sendBluetoothDev(QString mac) { sendCommandNow("connectBluetoothDev", {mac}); }
void UiProc::sendBluetoothZorDev(QString mac, bool connect) { sendCommandNow("connectBluetoothDev/zor", {mac, connect}); }
bool UiProc::disconnectBluetoothDev(QString mac, bool isZor)
{
    return runCommand(isZor ? "disconnectBluetoothDev/zor" : "disconnectBluetoothDev", {mac});
}
void UiProc::breakBluetoothDev(QString mac) { sendCommandNow("disconnectBluetoothDev", {mac}); }
void UiProc::sendBluetoothConnect_New(bool isConnect)
{
    runCommand(isConnect ? "sendBluetoothConnect_New/true" : "sendBluetoothConnect_New/false", {});
}
void UiProc::sendBluetoothOpen_New(bool isOpen)
{
    runCommand(isOpen ? "sendBluetoothOpen_New/true" : "sendBluetoothOpen_New/false", {});
}

// ---- NDI

bool UiProc::connectNDIMenuSwitch(uchar action, uchar switchType)
{
    return runCommand("connectNDIMenuSwitch", {int(action), int(switchType)});
}
bool UiProc::connectNDIEncodingSwitch(uchar action, uchar switchType)
{
    return runCommand("connectNDIEncodingSwitch", {int(action), int(switchType)});
}
bool UiProc::connectGetNDIDecodingSignal() { return runCommand("connectGetNDIDecodingSignal", {}); }
bool UiProc::connectSetNDIDecodingSignal(uchar switchType, QString signalName)
{
    return runCommand("connectSetNDIDecodingSignal", {int(switchType), signalName});
}
bool UiProc::connectNDIDecodingFormat(uchar action, uchar type)
{
    return runCommand("connectNDIDecodingFormat", {int(action), int(type)});
}
bool UiProc::connectNDIDecodingSwitch(uchar switchType) { return runCommand("connectNDIDecodingSwitch", {int(switchType)}); }
bool UiProc::connectRNDISwitch() { return runCommand("connectRNDISwitch", {}); }
void UiProc::redNDISwitch() { sendCommandNow("connectRNDISwitch", {}); }
bool UiProc::connectSNDISwitch(uchar switchType) { return runCommand("connectSNDISwitch", {int(switchType)}); }
void UiProc::setNDISwitch(uchar switchType) { sendCommandNow("connectSNDISwitch", {int(switchType)}); }
bool UiProc::connectRNDIGroupName() { return runCommand("connectRNDIGroupName", {}); }
void UiProc::getNDIGroupName() { sendCommandNow("connectRNDIGroupName", {}); }
bool UiProc::connectSNDIGroupName(QString groupName) { return runCommand("connectSNDIGroupName", {groupName}); }
void UiProc::setNDIGroupName(QString groupName) { sendCommandNow("connectSNDIGroupName", {groupName}); }
bool UiProc::connectRNDIChannelName() { return runCommand("connectRNDIChannelName", {}); }
void UiProc::getNDIChannelName() { sendCommandNow("connectRNDIChannelName", {}); }
bool UiProc::connectSNDIChannelName(QString channelName) { return runCommand("connectSNDIChannelName", {channelName}); }
void UiProc::setNDIchannelName(QString channelName) { sendCommandNow("connectSNDIChannelName", {channelName}); }
bool UiProc::connectRNDIDeviceName() { return runCommand("connectRNDIDeviceName", {}); }
void UiProc::getDNIDeviceName() { sendCommandNow("connectRNDIDeviceName", {}); }
bool UiProc::connectSNDIDeviceName(QString deviceName) { return runCommand("connectSNDIDeviceName", {deviceName}); }
void UiProc::setNDIDeviceName(QString deviceName) { sendCommandNow("connectSNDIDeviceName", {deviceName}); }
bool UiProc::connectRNDIConnection() { return runCommand("connectRNDIConnection", {}); }
void UiProc::getNDIConnection() { sendCommandNow("connectRNDIConnection", {}); }
bool UiProc::connectSNDIConnection(uchar connectType, uchar ttlValue, QString addrStr, QString netmaskStr)
{
    return runCommand("connectSNDIConnection", {int(connectType), int(ttlValue), addrStr, netmaskStr});
}
void UiProc::setNDIConnection(uchar connectType, uchar ttlValue, QString addrStr, QString netmaskStr)
{
    sendCommandNow("connectSNDIConnection", {int(connectType), int(ttlValue), addrStr, netmaskStr});
}
bool UiProc::connectRNDIDateType() { return runCommand("connectRNDIDateType", {}); }
void UiProc::getNDIDataType() { sendCommandNow("connectRNDIDateType", {}); }
bool UiProc::connectSNDIDateType(uchar dataType, uchar codeValue)
{
    return runCommand("connectSNDIDateType", {int(dataType), int(codeValue)});
}
void UiProc::setNDIDataType(uchar dataType, uchar codeValue)
{
    sendCommandNow("connectSNDIDateType", {int(dataType), int(codeValue)});
}
bool UiProc::connectRNDIBaseInfo() { return runCommand("connectRNDIBaseInfo", {}); }
void UiProc::setNDIbaseInfo() { sendCommandNow("connectRNDIBaseInfo", {}); }

// ---- UVC camera and HDMI output

bool UiProc::connectUVCStyleSupport(uchar uvcID) { return runCommand("connectUVCStyleSupport", {int(uvcID)}); }
bool UiProc::connectUVCStyle(uchar uvcID, uchar styleType, uchar styleValue)
{
    return runCommand("connectUVCStyle", {int(uvcID), int(styleType), int(styleValue)});
}
bool UiProc::connectUVCControlSupport(uchar uvcID) { return runCommand("connectUVCControlSupport", {int(uvcID)}); }
bool UiProc::connectUVCDirectionAndZoom(uchar uvcID, uchar controlType)
{
    return runCommand("connectUVCDirectionAndZoom", {int(uvcID), int(controlType)});
}
bool UiProc::connectAutoFocus(uchar action, uchar uvcID, uchar controlType)
{
    return runCommand("connectAutoFocus", {int(action), int(uvcID), int(controlType)});
}
bool UiProc::connectView(uchar action, uchar uvcID, uchar controlType, uchar viewIndex)
{
    return runCommand("connectView", {int(action), int(uvcID), int(controlType), int(viewIndex)});
}
bool UiProc::connectHdmiOutStyle(uchar action, uchar type) { return runCommand("connectHdmiOutStyle", {int(action), int(type)}); }
