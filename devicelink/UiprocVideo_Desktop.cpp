#include "UiprocVideo_Desktop.h"

#include "LogCategories.h"
#include "Logger.h"
#include "ProtocolFrame.h"
#include "UiProc.h"
#include "VideoFormatList.h"
#include "biz_CMDSWork.h"

#include <QFileInfo>

namespace {

using D = UiprocVideo_Desktop;
using C = ReportContext;
using Tail = ReportRow::LogTail;
constexpr short ANY = -1;

// Values emitted when a report carries nothing to deliver.
const QString kNoDeviceId = QStringLiteral("No Device ID");
const QString kNoGroupName = QStringLiteral("NO Group Name");
const QString kNoChannelName = QStringLiteral("NO Channel Name");

// Text from the device goes into the log as one line: control characters
// are shown escaped there (the signal still carries the text unchanged).
QString loggable(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (const QChar ch : text) {
        const ushort u = ch.unicode();
        if (u < 0x20 || u == 0x7f)
            out += QStringLiteral("\\x%1").arg(u, 2, 16, QLatin1Char('0'));
        else
            out += ch;
    }
    return out;
}

void logLine(const QString &part)
{
    writeLog(D::logPrefix() + part);
}

QString addressText(const model_Protocoldata &rec)
{
    return QStringLiteral("%1.%2.%3.%4").arg(int(rec.DAT1)).arg(int(rec.DAT2)).arg(int(rec.DAT3)).arg(int(rec.DAT4));
}

// Block bytes 0..len-2 (the last announced byte is a terminator), one
// Latin-1 character each; the text ends early where the real block does.
QString blockText(const C &c)
{
    const int end = qMin(int(c.len) - 1, int(c.bytes.size()));
    return end > 0 ? QString::fromLatin1(c.bytes.constData(), end) : QString();
}

// A fixed-layout record needs its first n bytes; a block that ends earlier
// holds no record at all.
bool holds(const C &c, int n, const char *what)
{
    if (c.bytes.size() >= n)
        return true;
    qCWarning(lcReport).noquote() << QStringLiteral("report %1/%2: %3 needs %4 block bytes, got %5; ignored")
                                         .arg(int(c.rec.CMD), 2, 16, QLatin1Char('0'))
                                         .arg(int(c.rec.DAT1), 2, 16, QLatin1Char('0'))
                                         .arg(QLatin1String(what))
                                         .arg(n)
                                         .arg(c.bytes.size());
    return false;
}

// ---- decoders needing more than one line

void ptzTally(D &s, const C &c)
{
    if (!holds(c, 14, "tally"))
        return;
    const int ch = c.byte(13);
    emit s.pushPTZTally(ch >= '0' && ch <= '9' ? ch - '0' : 0);
}

void streamingBits(D &s, const C &c)
{
    qCDebug(lcReport).noquote() << "streaming status" << QString::number(c.rec.DAT2, 2).rightJustified(2, QLatin1Char('0'));
    for (int bit = 0; bit < 4; ++bit) {
        if (c.rec.DAT2 & (1 << bit)) {
            qCDebug(lcReport).noquote() << "-------i/status" << bit << 1;
            emit s.pushRtmpStatus(bit, 1);
        }
    }
}

void serialNumber(D &s, const C &c)
{
    if (c.len == 0) {
        logLine(QStringLiteral(" SN len == 0"));
        emit s.pushSN(kNoDeviceId);
        return;
    }
    const QString text = blockText(c);
    logLine(QStringLiteral(" SN :") + loggable(text));
    emit s.pushSN(text);
}

void recordFileName(D &s, const C &c)
{
    if (c.len == 0) {
        logLine(QStringLiteral(" record file name len == 0"));
        emit s.pushRecordFileName(QString(), QString());
        return;
    }
    const QString path = blockText(c);
    const QString name = QFileInfo(path).baseName();
    logLine(QStringLiteral(" recordFilePath :") + loggable(path) + QStringLiteral(" name:") + loggable(name));
    emit s.pushRecordFileName(path, name);
}

struct InputFormats
{
    const char *found;
    const char *missing;
    bool interlace;
};
// Indexed by DAT2: HDMI 1, HDMI 2, UVC 1, UVC 2, NDI.
const InputFormats kInputs[] = {
    {" HDMI1 sendformat", " HDMI1 not find", true},
    {" HDMI2 sendformat", " HDMI2 not find", true},
    {"UVC1 sendformat", " UVC1 not find", false},
    {" UVC2 sendformat", " UVC2 not find", false},
    {" NDI sendformat", " NDI not find", false},
};

void inputFormats(D &s, const C &c)
{
    const int input = c.rec.DAT2;
    if (input >= int(sizeof kInputs / sizeof kInputs[0]))
        return;
    logLine(QStringLiteral("  bufflen:") + QString::number(c.len));
    if (c.len == 0 || c.len != c.bytes.size()) {
        logLine(QLatin1String(kInputs[input].missing));
        emit s.pushVideoFormatData(input, 0, QJsonArray());
        return;
    }
    const QJsonArray formats = VideoFormatList::buildFormatArray(c.bytes, c.len, kInputs[input].interlace);
    logLine(QLatin1String(kInputs[input].found));
    emit s.pushVideoFormatData(input, c.len, formats);
}

void ndiSources(D &s, const C &c)
{
    if (c.len == 0 || c.len != c.bytes.size()) {
        logLine(QStringLiteral(" NDI Signal no find"));
        emit s.pushNDISignalData(0, QJsonArray());
        return;
    }
    const QJsonArray sources = dealNDISignalToJson(c.bytes, c.len);
    logLine(QStringLiteral("  NDI Signal sendformat"));
    emit s.pushNDISignalData(c.len, sources);
}

void styleList(D &s, const C &c)
{
    if (c.len == 0) {
        logLine(QStringLiteral(" uvc style enable len == 0"));
        emit s.pushStyleStatus(QJsonArray());
        return;
    }
    QJsonArray styles;
    for (int k = 0; k + 1 < int(c.len) && k < c.bytes.size(); ++k)
        styles.append(c.byte(k));
    logLine(QStringLiteral(" uvc style enable"));
    emit s.pushStyleStatus(styles);
}

void currentFormat(D &s, const C &c)
{
    if (c.len == 0) {
        logLine(QStringLiteral(" InputFormatInitiative len == 0"));
        emit s.pushInputFormatInitiative(c.rec.DAT2, QJsonObject());
        return;
    }
    if (!holds(c, 6, "current input format"))
        return;
    writeLog(QStringLiteral("puc-==========") + QString::number(c.byte(0)));
    QJsonObject format;
    format.insert(QStringLiteral("DataType"), c.byte(0));
    format.insert(QStringLiteral("width"), c.byte(1) + 256 * c.byte(2));
    format.insert(QStringLiteral("height"), c.byte(3) + 256 * c.byte(4));
    format.insert(QStringLiteral("Fps"), c.byte(5));
    emit s.pushInputFormatInitiative(c.rec.DAT2, format);
}

QString nameOr(const C &c, const QString &placeholder)
{
    return c.len == 0 ? placeholder : blockText(c);
}

void ndiConnection(D &s, const C &c)
{
    if (!holds(c, 10, "NDI connection"))
        return;
    QJsonObject o;
    o.insert(QStringLiteral("type"), c.byte(0));
    o.insert(QStringLiteral("ttlValue"), c.byte(1));
    for (int i = 0; i < 4; ++i) {
        o.insert(QStringLiteral("addr%1").arg(i + 1), c.byte(2 + i));
        o.insert(QStringLiteral("netmask%1").arg(i + 1), c.byte(6 + i));
    }
    emit s.pushNdiConnectType(o);
}

void ndiBaseInfo(D &s, const C &c)
{
    if (!holds(c, 10, "NDI base info"))
        return;
    const int width = c.byte(0) + 256 * c.byte(1);
    const int height = c.byte(2) + 256 * c.byte(3);
    const int rate = c.byte(4);
    const int fps = c.byte(5);
    const int bitrate = c.byte(6) + 256 * c.byte(7);
    const int sampleRate = c.byte(8) + 256 * c.byte(9);
    const QString format = QStringLiteral("%1x%2@%3").arg(width).arg(height).arg(rate);
    qCDebug(lcReport).noquote() << "format:" << format << "fps:" << fps << "bitrate:" << bitrate << "sampleRate" << sampleRate;
    emit s.pushNdiBaseInfo(format, fps, bitrate, sampleRate);
}

// Entries: connect state, six address bytes, name length NL, NL name bytes.
template<void (D::*Signal)(int, QString, QString)>
void bluetoothDevices(D &s, const C &c)
{
    const int count = qMax(0, c.byte(0));
    int at = 1;
    for (int i = 0; i < count; ++i) {
        if (!holds(c, at + 8, "Bluetooth entry"))
            return;
        const int nameLength = c.byte(at + 7);
        if (!holds(c, at + 8 + nameLength, "Bluetooth name"))
            return;
        QStringList mac;
        for (int k = 1; k <= 6; ++k)
            mac << QString::number(c.byte(at + k), 16);
        QByteArray name = c.bytes.mid(at + 8, nameLength);
        const int zero = name.indexOf('\0');
        if (zero >= 0)
            name.truncate(zero);
        emit(s.*Signal)(c.byte(at), mac.join(QLatin1Char('-')), QString::fromLocal8Bit(name));
        at += nameLength + 8;
    }
}

} // namespace

const QString &UiprocVideo_Desktop::logPrefix()
{
    static const QString prefix = QStringLiteral("---UiprocVideo_Desktop::taskCmdProcess()");
    return prefix;
}

const QVector<ReportRow> &UiprocVideo_Desktop::reportTable()
{
    // CMD, DAT1, DAT2, DAT3 selectors; log text after the prefix; signal; decoder.
    static const QVector<ReportRow> table = {
        {0x00, 0, ANY, ANY, nullptr, Tail::None, "pushPTZTally", ptzTally},
        {0x68, 0xAD, ANY, ANY, " get usb", Tail::None, "pushUSBStatus", [](D &s, const C &c) { emit s.pushUSBStatus(c.rec.DAT2); }},
        {0x68, 0x06, ANY, ANY, " Resetfactory fin", Tail::None, "pushResetStatus", [](D &s, const C &c) { emit s.pushResetStatus(c.rec.DAT2); }},
        {0x68, 0xB0, 1, ANY, nullptr, Tail::None, "pushPower", [](D &s, const C &c) { emit s.pushPower(c.rec.DAT2, c.rec.DAT3); }},
        {0x68, 0xB0, 2, ANY, nullptr, Tail::None, "pushPower", [](D &s, const C &c) { emit s.pushPower(c.rec.DAT2, c.rec.DAT3); }},
        {0x68, 0xB5, ANY, ANY, nullptr, Tail::None, "pushRtmpStatus", streamingBits},
        {0x69, 0x10, ANY, ANY, " play or pause video", Tail::None, "", nullptr},
        {0x6A, 0, ANY, ANY, " get software version", Tail::None, "pushSoftwareVersion", [](D &s, const C &c) { emit s.pushSoftwareVersion(c.rec.DAT2, c.rec.DAT3); }},
        {0x6A, 1, ANY, ANY, " get system version", Tail::None, "pushSystemVersion", [](D &s, const C &c) { emit s.pushSystemVersion(c.rec.DAT2, c.rec.DAT3); }},
        {0x78, 0, ANY, ANY, " switch video", Tail::None, "", nullptr},
        {0x78, 1, ANY, ANY, " switch video", Tail::None, "pushPGMCutFinish", [](D &s, const C &c) { emit s.pushPGMCutFinish(c.rec.DAT2); }},
        {0x78, 2, 0, ANY, " read init input", Tail::None, "pushInitInput", [](D &s, const C &c) { emit s.pushInitInput(c.rec.DAT3, c.rec.DAT4); }},
        {0x89, ANY, ANY, ANY, " get IP", Tail::Address, "pushLocalIP", [](D &s, const C &c) { emit s.pushLocalIP(addressText(c.rec)); }},
        {0xC1, ANY, ANY, ANY, " TypeCStatus", Tail::None, "pushTypeCStatus", [](D &s, const C &c) { emit s.pushTypeCStatus(c.rec.DAT1); }},
        {0xC2, 1, 3, ANY, " readRec", Tail::None, "pushRecordingStatus", [](D &s, const C &c) { emit s.pushRecordingStatus(c.rec.DAT3); }},
        {0xC2, 4, ANY, ANY, " playRec end", Tail::None, "pushRecordPlayEndInitiative", [](D &s, const C &) { emit s.pushRecordPlayEndInitiative(); }},
        {0xC5, 3, ANY, ANY, " bluetooth Search", Tail::None, "pushBluetoothFin", [](D &s, const C &) { emit s.pushBluetoothFin(); }},
        {0xC5, 5, ANY, ANY, " bluetooth Search", Tail::None, "pushBluetoothFinBroadCast", [](D &s, const C &) { emit s.pushBluetoothFinBroadCast(); }},
        {0xC6, 1, ANY, ANY, nullptr, Tail::None, "pushNdiStatus", [](D &s, const C &c) { emit s.pushNdiStatus(c.rec.DAT2); }},
        {0xC6, 3, ANY, ANY, nullptr, Tail::None, "pushNdiDataType", [](D &s, const C &c) { emit s.pushNdiDataType(c.rec.DAT2, c.rec.DAT3); }},
        {0xC6, 7, ANY, ANY, nullptr, Tail::None, "pushNDIDecodingVideoFormat", [](D &s, const C &c) { emit s.pushNDIDecodingVideoFormat(c.rec.DAT2); }},
        {0xC6, 8, ANY, ANY, nullptr, Tail::None, "pushNDIDecodingStatus", [](D &s, const C &c) { emit s.pushNDIDecodingStatus(c.rec.DAT2); }},
        {0xC8, 3, ANY, ANY, " pushPTZStatus", Tail::None, "pushPTZStatus", [](D &s, const C &c) {
             const int b = c.rec.DAT3;
             emit s.pushPTZStatus(b & 1, (b >> 1) & 1, (b >> 2) & 1, (b >> 3) & 1);
         }},
        {0xC8, 4, ANY, 1, " pushPTZAutoFocus", Tail::None, "pushPTZAutoFocus", [](D &s, const C &c) { emit s.pushPTZAutoFocus(c.rec.DAT4); }},
        {0xC8, 5, ANY, 1, " pushPTZAutoFocus", Tail::None, "pushPTZAutoFocus", [](D &s, const C &c) { emit s.pushPTZAutoFocus(c.rec.DAT4); }},
        {0xC8, 4, ANY, 2, " pushPTZView", Tail::None, "pushPTZView", [](D &s, const C &c) { emit s.pushPTZView(c.rec.DAT4); }},
        {0xC8, 5, ANY, 2, " pushPTZView", Tail::None, "pushPTZView", [](D &s, const C &c) { emit s.pushPTZView(c.rec.DAT4); }},
        {0xC9, 1, 1, ANY, " get audio sampling rate", Tail::None, "pushAudioSamplingRate", [](D &s, const C &c) { emit s.pushAudioSamplingRate(c.rec.DAT3, c.rec.DAT4); }},
        {0xC9, 1, 2, ANY, " get hdmi out style", Tail::None, "pushHDMIOutStyle", [](D &s, const C &c) { emit s.pushHDMIOutStyle(c.rec.DAT3); }},
        {0xD0, 0, ANY, ANY, " InitInputInitiative", Tail::None, "pushInitInputInitiative", [](D &s, const C &c) { emit s.pushInitInputInitiative(c.rec.DAT2); }},
        {0xD0, 1, ANY, ANY, " pushInputInitiative", Tail::None, "pushInputInitiative", [](D &s, const C &c) { emit s.pushInputInitiative(c.rec.DAT2, c.rec.DAT3); }},
        {0xD0, 2, ANY, ANY, " pushChangeHDMIInitiative", Tail::None, "pushChangeHDMIInitiative", [](D &s, const C &c) { emit s.pushChangeHDMIInitiative(c.rec.DAT2); }},
        {0xD0, 3, ANY, ANY, " pushUSBInitiative", Tail::None, "pushUSBInitiative", [](D &s, const C &c) { emit s.pushUSBInitiative(c.rec.DAT2); }},
        // Channel from DAT3, status from DAT2: the service sends them that way round.
        {0xD0, 4, ANY, ANY, " pushRtmpStatus", Tail::None, "pushRtmpStatus", [](D &s, const C &c) { emit s.pushRtmpStatus(c.rec.DAT3, c.rec.DAT2); }},
        {0xD0, 5, ANY, ANY, " pushTypeCInitiative", Tail::None, "pushTypeCInitiative", [](D &s, const C &c) { emit s.pushTypeCInitiative(c.rec.DAT2); }},
        {0xD0, 6, ANY, ANY, " pushNetConCInitiative", Tail::None, "pushNetConCInitiative", [](D &s, const C &c) { emit s.pushNetConCInitiative(c.rec.DAT2); }},
        {0xD0, 7, ANY, ANY, " pushOutputInitiative", Tail::None, "pushOutputInitiative", [](D &s, const C &c) { emit s.pushOutputInitiative(c.rec.DAT2); }},
        {0xD0, 8, ANY, ANY, " pushInputClick", Tail::None, "pushInputClick", [](D &s, const C &c) { emit s.pushInputClick(c.rec.DAT2); }},
        {0xD0, 9, ANY, ANY, " pushNDIStatusInitiative", Tail::None, "pushNDIStatusInitiative", [](D &s, const C &c) { emit s.pushNDIStatusInitiative(c.rec.DAT2); }},
        {0xD0, 10, ANY, ANY, " pushNDIDecodingStatusInitiative", Tail::None, "pushNDIDecodingStatusInitiative", [](D &s, const C &c) { emit s.pushNDIDecodingStatusInitiative(c.rec.DAT2); }},
        {0xD0, 11, ANY, ANY, " pushNDIDecodingFormatInitiative", Tail::None, "pushNDIDecodingFormatInitiative", [](D &s, const C &c) { emit s.pushNDIDecodingFormatInitiative(c.rec.DAT2); }},
        {0xD0, 12, ANY, ANY, " pushHDMI2Status", Tail::None, "pushHDMI2Status", [](D &s, const C &c) { emit s.pushHDMI2Status(c.rec.DAT2); }},
        {0xF0, 0xB3, ANY, ANY, "  set input signal return", Tail::None, "", nullptr},
        {0xF0, 0xB6, ANY, ANY, "  set Bluetooth dev connect return", Tail::None, "pushConnectResult", [](D &s, const C &c) { emit s.pushConnectResult(c.rec.DAT2, c.rec.DAT3 == 0); }},
        {0xF1, 0x44, ANY, ANY, " 0x44  bufflen:", Tail::Length, "pushSN", serialNumber},
        {0xF1, 0x45, ANY, ANY, " 0x45  bufflen:", Tail::Length, "pushRecordFileName", recordFileName},
        {0xF1, 0xB3, 0, ANY, "  get input signal", Tail::None, "pushVideoFormatData", inputFormats},
        {0xF1, 0xB3, 1, ANY, "  get input signal", Tail::None, "pushVideoFormatData", inputFormats},
        {0xF1, 0xB3, 2, ANY, "  get input signal", Tail::None, "pushVideoFormatData", inputFormats},
        {0xF1, 0xB3, 3, ANY, "  get input signal", Tail::None, "pushVideoFormatData", inputFormats},
        {0xF1, 0xB3, 4, ANY, "  get input signal", Tail::None, "pushVideoFormatData", inputFormats},
        {0xF1, 0xB4, 0, ANY, nullptr, Tail::None, "pushBluetoothDevInfo", bluetoothDevices<&D::pushBluetoothDevInfo>},
        {0xF1, 0xB4, 1, ANY, nullptr, Tail::None, "pushBluetoothDevInfoBroadCast", bluetoothDevices<&D::pushBluetoothDevInfoBroadCast>},
        {0xF1, 0xB8, 0, ANY, nullptr, Tail::None, "pushNdiGroupName", [](D &s, const C &c) { emit s.pushNdiGroupName(nameOr(c, kNoGroupName)); }},
        {0xF1, 0xB8, 1, ANY, nullptr, Tail::None, "pushNdiChannelName", [](D &s, const C &c) { emit s.pushNdiChannelName(nameOr(c, kNoChannelName)); }},
        // The device name shares the channel placeholder on purpose.
        {0xF1, 0xB8, 2, ANY, nullptr, Tail::None, "pushNdiDeviceName", [](D &s, const C &c) { emit s.pushNdiDeviceName(nameOr(c, kNoChannelName)); }},
        {0xF1, 0xB8, 3, ANY, nullptr, Tail::None, "pushNdiConnectType", ndiConnection},
        {0xF1, 0xB8, 4, ANY, nullptr, Tail::None, "pushNdiBaseInfo", ndiBaseInfo},
        {0xF1, 0xB9, ANY, ANY, " 0xb9  bufflen:", Tail::Length, "pushStyleStatus", styleList},
        {0xF1, 0xBA, ANY, ANY, " 0xba  bufflen:", Tail::Length, "pushInputFormatInitiative", currentFormat},
        {0xF1, 0xBB, ANY, ANY, " 0xbb bufflen:", Tail::Length, "pushNDISignalData", ndiSources},
    };
    return table;
}

int UiprocVideo_Desktop::matchReport(const model_Protocoldata &rec)
{
    const QVector<ReportRow> &table = reportTable();
    for (int i = 0; i < table.size(); ++i) {
        const ReportRow &r = table.at(i);
        if (r.cmd == rec.CMD && (r.dat1 == ANY || r.dat1 == rec.DAT1) && (r.dat2 == ANY || r.dat2 == rec.DAT2)
            && (r.dat3 == ANY || r.dat3 == rec.DAT3))
            return i;
    }
    return -1;
}

UiprocVideo_Desktop::UiprocVideo_Desktop(QObject *parent)
    : QObject(parent)
{
    registerProtocolTypes();
    m_clock.start();
}

void UiprocVideo_Desktop::cmdProcess(model_Protocoldata pData)
{
    const model_Protocoldata copy = pData;
    taskCmdProcess(copy);
}

void UiprocVideo_Desktop::taskCmdProcess(model_Protocoldata pData)
{
    const int index = matchReport(pData);
    if (index < 0)
        return; // not a report the screens care about
    const ReportRow &row = reportTable().at(index);
    const ReportContext ctx{pData, pData.arryDatablock, quint16(pData.DAT3 | (pData.DAT4 << 8))};

    // The same report again and again (the answer to the keep-alive) is
    // logged once a minute.
    int repeats = 0;
    if (row.log && m_logRepeats.shouldLog(ProtocolFrame::build(pData, 'F') + pData.arryDatablock, m_clock.elapsed(), &repeats)) {
        QString line = logPrefix() + QLatin1String(row.log);
        if (row.tail == ReportRow::LogTail::Length)
            line += QString::number(ctx.len);
        else if (row.tail == ReportRow::LogTail::Address)
            line += addressText(pData);
        if (repeats > 0)
            line += QStringLiteral(" (and %1 identical reports not logged)").arg(repeats);
        writeLog(line);
    }
    if (row.decode)
        row.decode(*this, ctx);
}

void UiprocVideo_Desktop::bizConnect()
{
    biz_CMDSWork *worker = UiProc::processWorker();
    if (!worker) {
        writeLog(QStringLiteral("---UiprocVideo_Desktop::bizConnect() no command worker, reports are not received"));
        return;
    }
    // Undo any earlier connection first, so each report arrives exactly once.
    bizDisconnect();
    connect(worker, &biz_CMDSWork::signalSendReceiveMessage, this, &UiprocVideo_Desktop::taskCmdProcess,
            Qt::BlockingQueuedConnection);
    m_connectedWorker = worker;
}

void UiprocVideo_Desktop::bizDisconnect()
{
    if (m_connectedWorker)
        disconnect(m_connectedWorker.data(), &biz_CMDSWork::signalSendReceiveMessage, this,
                   &UiprocVideo_Desktop::taskCmdProcess);
    if (biz_CMDSWork *worker = UiProc::processWorker())
        disconnect(worker, &biz_CMDSWork::signalSendReceiveMessage, this, &UiprocVideo_Desktop::taskCmdProcess);
    m_connectedWorker.clear();
}
