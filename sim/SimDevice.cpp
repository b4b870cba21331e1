#include "SimDevice.h"

#include "LogCategories.h"
#include "ProtocolFrame.h"

#include <QDateTime>
#include <QFileInfo>

namespace Sim {

const char *inputName(int input)
{
    static const char *const names[kInputCount] = {"HDMI 1", "HDMI 2", "UVC 1", "UVC 2", "NDI"};
    return input >= 0 && input < kInputCount ? names[input] : "NONE";
}

DeviceState::DeviceState()
{
    BluetoothDevice speaker;
    speaker.mac = {{0x00, 0x1A, 0x7D, 0xDA, 0x71, 0x0B}};
    speaker.name = "CS Speaker";
    BluetoothDevice headset;
    headset.mac = {{0xA4, 0xC1, 0x38, 0x05, 0x9E, 0x21}};
    headset.name = "Studio Headset";
    bluetooth = {speaker, headset};
    BluetoothDevice phone;
    phone.mac = {{0x5C, 0xF9, 0x38, 0x12, 0x34, 0x56}};
    phone.name = "Director Phone";
    bluetoothZor = {phone};
}

namespace {

model_Protocoldata report(uchar cmd, uchar d1 = 0, uchar d2 = 0, uchar d3 = 0, uchar d4 = 0)
{
    model_Protocoldata r;
    r.CMD = cmd;
    r.DAT1 = d1;
    r.DAT2 = d2;
    r.DAT3 = d3;
    r.DAT4 = d4;
    return r;
}

// The front end reads block lengths as signed 16-bit: stay below 0x8000.
constexpr int kMaxBlock = 0x7fff;
// Names the device keeps (NDI group, channel, device).
constexpr int kMaxNameBytes = 255;

model_Protocoldata blockReport(uchar d1, uchar d2, QByteArray block)
{
    if (block.size() > kMaxBlock)
        block.truncate(kMaxBlock);
    model_Protocoldata r = report(0xF1, d1, d2, uchar(block.size() & 0xff), uchar(block.size() >> 8));
    r.arryDatablock = block;
    return r;
}

// Text blocks end with one terminator byte that the reader drops.
QByteArray textBlock(const QByteArray &text)
{
    return text + '\0';
}

uchar sum8(const QByteArray &bytes, int count)
{
    uchar s = 0;
    for (int i = 0; i < count && i < bytes.size(); ++i)
        s = uchar(s + uchar(bytes.at(i)));
    return s;
}

// Fixed blocks close with the 8-bit sum of the bytes before it.
bool checkSummed(const QByteArray &block, int expectedSize)
{
    return block.size() == expectedSize && expectedSize > 0
        && uchar(block.at(expectedSize - 1)) == sum8(block, expectedSize - 1);
}

QVector<Report> one(const model_Protocoldata &r, int delayMs = 0)
{
    return {Report{r, delayMs}};
}

QString hex(uchar b)
{
    return QStringLiteral("%1").arg(b, 2, 16, QLatin1Char('0'));
}

void reject(const model_Protocoldata &c, const QString &why)
{
    qCWarning(lcSim).noquote() << QStringLiteral("command %1/%2 rejected: %3").arg(hex(c.CMD), hex(c.DAT1), why);
}

struct Format
{
    uchar type;
    quint16 width, height;
    uchar fps;
};

// Interlaced 1080-line HDMI formats travel as 540 lines.
const QVector<Format> &formats(int input)
{
    static const QVector<Format> hdmi1 = {{0, 3840, 2160, 30}, {0, 1920, 1080, 60}, {0, 1920, 1080, 50},
                                          {0, 1920, 540, 60},  {0, 1920, 540, 50},  {0, 1280, 720, 60},
                                          {0, 1280, 720, 50}};
    static const QVector<Format> hdmi2 = {{0, 1920, 1080, 60}, {0, 1920, 1080, 50}, {0, 1920, 540, 60},
                                          {0, 1920, 540, 50},  {0, 1280, 720, 60}};
    static const QVector<Format> uvc = {{1, 1920, 1080, 30}, {1, 1280, 720, 30}, {1, 640, 480, 30}, {2, 640, 480, 30}};
    static const QVector<Format> ndi = {{3, 1920, 1080, 60}, {3, 1920, 1080, 30}, {3, 1280, 720, 60}};
    static const QVector<Format> none;
    switch (input) {
    case 0: return hdmi1;
    case 1: return hdmi2;
    case 2:
    case 3: return uvc;
    case 4: return ndi;
    default: return none;
    }
}

void appendFormat(QByteArray &out, const Format &f)
{
    out.append(char(f.type));
    out.append(char(f.width & 0xff));
    out.append(char(f.width >> 8));
    out.append(char(f.height & 0xff));
    out.append(char(f.height >> 8));
    out.append(char(f.fps));
}

QByteArray deviceListBlock(const QVector<BluetoothDevice> &list)
{
    QByteArray b;
    b.append(char(qMin(list.size(), 255)));
    for (int i = 0; i < list.size() && i < 255; ++i) {
        const BluetoothDevice &d = list.at(i);
        b.append(char(d.connect));
        for (uchar m : d.mac)
            b.append(char(m));
        const QByteArray name = d.name.left(255);
        b.append(char(name.size()));
        b.append(name);
    }
    return b;
}

// Picture styles each camera offers: 0 standard, 1 vivid, 2 soft, 3 black and white.
QByteArray uvcStyles(uchar camera)
{
    return camera == 0 ? QByteArray("\x00\x01\x02\x03", 4) : camera == 1 ? QByteArray("\x00\x02", 2) : QByteArray();
}

} // namespace

// One row per command the device knows. Exact DAT1 rows win over "any" rows.
const Device::Row Device::kRows[] = {
    {0x78, 0x00, "switch preview", &Device::onSwitchPreview},
    {0x78, 0x01, "cut to programme", &Device::onCut},
    {0x78, 0x02, "read init input", &Device::onReadInitInput},
    {0x68, 0xAA, "pip", &Device::onPip},
    {0x68, 0xAD, "usb status", &Device::onUsbStatus},
    {0x68, 0x06, "factory reset", &Device::onFactoryReset},
    {0x68, 0x10, "power off", &Device::onPowerOff},
    {0x68, 0xB0, "power", &Device::onPower},
    {0x68, 0xB5, "stream platform status", &Device::onStreamPlatformStatus},
    {0x69, 0x10, "video control", &Device::onVideoControl},
    {0x6A, 0x00, "software version", &Device::onSoftwareVersion},
    {0x6A, 0x01, "system version", &Device::onSystemVersion},
    {0x89, -1, "local ip", &Device::onLocalIp},
    {0xC1, -1, "type-c status", &Device::onTypeC},
    {0xC2, 0x01, "record", &Device::onRecord},
    {0xC2, 0x03, "clear record file name", &Device::onClearRecordFileName},
    {0xC3, -1, "audio channel", &Device::onAudioChannel},
    {0xC5, 0x00, "bluetooth off", &Device::onBluetoothPower},
    {0xC5, 0x01, "bluetooth on", &Device::onBluetoothPower},
    {0xC5, 0x03, "bluetooth search", &Device::onBluetoothSearch},
    {0xC5, 0x04, "bluetooth broadcast search", &Device::onBluetoothBroadcastSearch},
    {0xC5, 0xB5, "bluetooth connect (new)", &Device::onAcknowledge},
    {0xC5, 0xB7, "bluetooth open (new)", &Device::onAcknowledge},
    {0xC6, 0x00, "ndi switch set", &Device::onNdiSwitchSet},
    {0xC6, 0x01, "ndi switch read", &Device::onNdiSwitchRead},
    {0xC6, 0x02, "ndi data type set", &Device::onNdiDataTypeSet},
    {0xC6, 0x03, "ndi data type read", &Device::onNdiDataTypeRead},
    {0xC6, 0x06, "ndi decoding format set", &Device::onNdiDecodingFormatSet},
    {0xC6, 0x07, "ndi decoding format read", &Device::onNdiDecodingFormatRead},
    {0xC6, 0x08, "ndi decoding switch", &Device::onNdiDecodingSwitch},
    {0xC6, -1, "ndi menu/encoding switch", &Device::onLogOnly},
    {0xC7, 0x01, "scope", &Device::onScope},
    {0xC8, 0x00, "uvc style", &Device::onCameraStyle},
    {0xC8, 0x03, "ptz support", &Device::onPtzSupport},
    {0xC8, 0x04, "ptz control", &Device::onPtzControl},
    {0xC8, 0x05, "ptz read", &Device::onPtzControl},
    {0xC9, -1, "audio sampling rate / hdmi out style", &Device::onAudioOrHdmiStyle},
    {0xD0, 0x07, "output status", &Device::onOutputStatus},
    {0xD0, 0x0C, "hdmi2 status", &Device::onHdmi2Status},
    {0xF0, 0xB3, "set input signal format", &Device::onSetInputFormat},
    {0xF0, 0xB4, "stream address", &Device::onStreamAddress},
    {0xF0, 0xB5, "stream parameters", &Device::onStreamParams},
    {0xF0, 0xB6, "bluetooth connect", &Device::onBluetoothConnect},
    {0xF0, 0xB7, "bluetooth disconnect", &Device::onBluetoothDisconnect},
    {0xF0, 0xB8, "ndi set", &Device::onNdiSet},
    {0xF0, 0xBB, "ndi decoding source", &Device::onNdiDecodingSource},
    {0xF0, 0xBC, "record name", &Device::onRecordName},
    {0xF1, 0x44, "serial number", &Device::onGetSerial},
    {0xF1, 0x45, "record file name", &Device::onGetRecordFileName},
    {0xF1, 0xB3, "input format list", &Device::onGetFormatList},
    {0xF1, 0xB4, "bluetooth device list", &Device::onGetBluetoothList},
    {0xF1, 0xB8, "ndi get", &Device::onGetNdi},
    {0xF1, 0xB9, "uvc styles", &Device::onGetUvcStyles},
    {0xF1, 0xBA, "input current format", &Device::onGetCurrentFormat},
    {0xF1, 0xBB, "ndi sources", &Device::onGetNdiSources},
};

Device::Device() = default;

const Device::Row *Device::find(uchar cmd, uchar dat1)
{
    const Row *any = nullptr;
    for (const Row &r : kRows) {
        if (r.cmd != cmd)
            continue;
        if (r.dat1 == dat1)
            return &r;
        if (r.dat1 < 0 && !any)
            any = &r;
    }
    return any;
}

QString Device::handlerName(uchar cmd, uchar dat1)
{
    const Row *r = find(cmd, dat1);
    return r ? QString::fromLatin1(r->name) : QString();
}

QVector<Report> Device::handle(const model_Protocoldata &cmd, bool *accepted)
{
    if (accepted)
        *accepted = false;
    // Blocks of extended sets must be exactly as long as announced; other
    // commands carry none.
    const int announced = quint16(combineTwoByte(cmd.DAT3, cmd.DAT4));
    if (cmd.CMD == 0xF0 && cmd.arryDatablock.size() != announced) {
        reject(cmd, QStringLiteral("block of %1 bytes, %2 announced").arg(cmd.arryDatablock.size()).arg(announced));
        return {};
    }
    if (cmd.CMD != 0xF0 && !cmd.arryDatablock.isEmpty()) {
        reject(cmd, QStringLiteral("unexpected block of %1 bytes").arg(cmd.arryDatablock.size()));
        return {};
    }
    const Row *row = find(cmd.CMD, cmd.DAT1);
    if (!row) {
        reject(cmd, QStringLiteral("unknown command"));
        return {};
    }
    if (accepted)
        *accepted = true;
    return (this->*row->handler)(cmd);
}

void Device::resetToFactory()
{
    m_state = DeviceState();
}

QList<QByteArray> Device::datagrams(model_Protocoldata rec, int chunk)
{
    const QByteArray block = rec.arryDatablock;
    rec.arryDatablock.clear();
    QList<QByteArray> out{ProtocolFrame::build(rec, 'F')};
    if (rec.CMD == 0xF1) {
        chunk = qMax(1, chunk);
        for (int i = 0; i < block.size(); i += chunk)
            out.append(block.mid(i, chunk));
    }
    return out;
}

QByteArray Device::formatList(int input)
{
    QByteArray b;
    for (const Format &f : formats(input))
        appendFormat(b, f);
    b.append('\0');
    return b;
}

QByteArray Device::currentFormat(int input)
{
    QByteArray b;
    const QVector<Format> &list = formats(input);
    // The first progressive 1080-line entry, else the first entry.
    const Format *pick = list.isEmpty() ? nullptr : &list.first();
    for (const Format &f : list) {
        if (f.height == 1080) {
            pick = &f;
            break;
        }
    }
    if (!pick)
        return b;
    appendFormat(b, *pick);
    b.append('\0');
    return b;
}

QByteArray Device::ndiSourceList()
{
    return QByteArray("\x03") + "STUDIO-PC (OBS),192.168.1.20:5961;CAM-NORTH (PTZ1),192.168.1.31:5961;"
                                "TABLET (Slides),192.168.1.45:5962;";
}

model_Protocoldata Device::plug(int input, bool plugged)
{
    if (input >= 0 && input < kInputCount)
        m_state.plugged[size_t(input)] = plugged;
    return report(0xD0, 0x01, plugged ? 1 : 0, uchar(input));
}

model_Protocoldata Device::usbDisk(bool present)
{
    m_state.usbDisk = present;
    if (!present && m_state.recording) {
        m_state.recording = false; // the disk went away under the recording
        qCInfo(lcSim).noquote() << "recording stopped, USB disk removed";
    }
    return report(0xD0, 0x03, present ? 1 : 0);
}

model_Protocoldata Device::streamStatus(int channel, int status)
{
    if (channel >= 0 && channel < kStreamChannels)
        m_state.stream[size_t(channel)] = uchar(status);
    return report(0xD0, 0x04, uchar(status), uchar(channel));
}

model_Protocoldata Device::typeC(int status)
{
    m_state.typeC = uchar(status);
    return report(0xD0, 0x05, uchar(status));
}

// ---- handlers ----

QVector<Report> Device::onSwitchPreview(const model_Protocoldata &c)
{
    if (c.DAT2 >= kInputCount) {
        reject(c, QStringLiteral("no input %1").arg(c.DAT2));
        return {};
    }
    m_state.sub = c.DAT2;
    return one(report(0x78, 0x00, c.DAT2));
}

QVector<Report> Device::onCut(const model_Protocoldata &c)
{
    if (c.DAT2 >= kInputCount) {
        reject(c, QStringLiteral("no input %1").arg(c.DAT2));
        return {};
    }
    m_state.programme = c.DAT2;
    return one(report(0x78, 0x01, c.DAT2));
}

QVector<Report> Device::onReadInitInput(const model_Protocoldata &c)
{
    if (c.DAT2 != 0) {
        reject(c, QStringLiteral("DAT2 %1").arg(c.DAT2));
        return {};
    }
    return one(report(0x78, 0x02, 0x00, uchar(m_state.programme), uchar(m_state.sub)));
}

QVector<Report> Device::onPip(const model_Protocoldata &c)
{
    // Type 3 (two pictures) has no corner to choose: DAT3 names the second
    // picture's input (255 none) instead.
    if (c.DAT2 > 3 || (c.DAT2 == 3 && c.DAT3 >= kInputCount && c.DAT3 != 255)) {
        reject(c, QStringLiteral("pip type %1 position %2").arg(c.DAT2).arg(c.DAT3));
        return {};
    }
    m_state.pipType = c.DAT2;
    if (c.DAT2 == 3)
        m_state.pipInput2 = c.DAT3;
    else if (c.DAT2 == 1)
        m_state.pipPosition = uchar(c.DAT3 & 3);
    static const char *const layouts[] = {"off", "corner", "side by side", "two pictures"};
    qCInfo(lcSim).noquote() << QStringLiteral("pip %1 position %2").arg(QLatin1String(layouts[c.DAT2])).arg(c.DAT3);
    return one(report(0x68, 0xAA, c.DAT2, c.DAT3));
}

QVector<Report> Device::onUsbStatus(const model_Protocoldata &)
{
    return one(report(0x68, 0xAD, m_state.usbDisk ? 1 : 0));
}

QVector<Report> Device::onFactoryReset(const model_Protocoldata &)
{
    resetToFactory();
    qCInfo(lcSim).noquote() << "factory reset";
    return one(report(0x68, 0x06, 1));
}

QVector<Report> Device::onPowerOff(const model_Protocoldata &)
{
    qCInfo(lcSim).noquote() << "power off requested (ignored)";
    return {};
}

QVector<Report> Device::onPower(const model_Protocoldata &c)
{
    // DAT2 1: battery level in percent; DAT2 2: power source (1 = mains).
    if (c.DAT2 == 1)
        return one(report(0x68, 0xB0, 1, 80));
    if (c.DAT2 == 2)
        return one(report(0x68, 0xB0, 2, 1));
    reject(c, QStringLiteral("power item %1").arg(c.DAT2));
    return {};
}

QVector<Report> Device::onStreamPlatformStatus(const model_Protocoldata &)
{
    uchar mask = 0;
    for (int i = 0; i < kStreamChannels; ++i)
        if (m_state.stream[size_t(i)])
            mask |= uchar(1u << i);
    return one(report(0x68, 0xB5, mask));
}

QVector<Report> Device::onVideoControl(const model_Protocoldata &c)
{
    return one(report(0x69, 0x10, c.DAT2));
}

QVector<Report> Device::onSoftwareVersion(const model_Protocoldata &)
{
    return one(report(0x6A, 0x00, 1, 8));
}

QVector<Report> Device::onSystemVersion(const model_Protocoldata &)
{
    return one(report(0x6A, 0x01, 2, 3));
}

QVector<Report> Device::onLocalIp(const model_Protocoldata &)
{
    return one(report(0x89, 192, 168, 1, 88));
}

QVector<Report> Device::onTypeC(const model_Protocoldata &)
{
    return one(report(0xC1, m_state.typeC));
}

QVector<Report> Device::onRecord(const model_Protocoldata &c)
{
    // DAT2: 1 start, 0 or 2 stop, 3 status query; every answer is the status.
    switch (c.DAT2) {
    case 1:
        if (!m_state.usbDisk) {
            qCWarning(lcSim).noquote() << "cannot record, no USB disk";
        } else if (!m_state.recording) {
            QByteArray base = m_state.recordName;
            if (base.isEmpty())
                base = QDateTime::currentDateTime().toString(QStringLiteral("'CS_'yyyyMMdd_hhmmss")).toLatin1();
            // Directly on the disk, where the front end lists recordings.
            m_state.recordFile = QStringLiteral("/media/usb0/") + QString::fromLatin1(base) + QStringLiteral(".mp4");
            m_state.recording = true;
            m_state.recordStartMs = QDateTime::currentMSecsSinceEpoch();
            qCInfo(lcSim).noquote() << "recording to" << m_state.recordFile;
        }
        break;
    case 0:
    case 2:
        if (m_state.recording) {
            qCInfo(lcSim).noquote() << "recording stopped";
            m_state.recording = false;
            if (m_recordingSink)
                m_recordingSink(m_state.recordFile, QDateTime::currentMSecsSinceEpoch() - m_state.recordStartMs);
        }
        break;
    case 3:
        break;
    default:
        reject(c, QStringLiteral("record code %1").arg(c.DAT2));
        return {};
    }
    return one(report(0xC2, 0x01, 0x03, m_state.recording ? 1 : 0));
}

QVector<Report> Device::onClearRecordFileName(const model_Protocoldata &)
{
    m_state.recordFile.clear();
    return one(report(0xC2, 0x03));
}

QVector<Report> Device::onAudioChannel(const model_Protocoldata &c)
{
    // Low four bits: the source (0..7, 15 none); bit 4: the PIP mix.
    const uchar source = c.DAT1 & 0x0F;
    if ((c.DAT1 & 0xE0) != 0 || (source > 7 && source != 15)) {
        reject(c, QStringLiteral("audio channel %1").arg(c.DAT1));
        return {};
    }
    m_state.audioChannel = c.DAT1;
    (c.DAT1 & 0x10 ? m_state.pipAudio : m_state.programmeAudio) = source;
    qCInfo(lcSim).noquote() << QStringLiteral("%1 audio source %2").arg(c.DAT1 & 0x10 ? "pip" : "programme").arg(source);
    return one(report(0xC3, c.DAT1));
}

QVector<Report> Device::onBluetoothPower(const model_Protocoldata &c)
{
    // DAT1 0 with DAT2 0xB6/0xB8 are the "new" connect/open commands switched off.
    if (c.DAT1 == 0 && (c.DAT2 == 0xB6 || c.DAT2 == 0xB8))
        return onAcknowledge(c);
    m_state.bluetoothOn = c.DAT1 == 1;
    return one(report(0xC5, c.DAT1));
}

QVector<Report> Device::onBluetoothSearch(const model_Protocoldata &)
{
    return one(report(0xC5, 0x03), kBluetoothSearchMs);
}

QVector<Report> Device::onBluetoothBroadcastSearch(const model_Protocoldata &)
{
    return one(report(0xC5, 0x05), kBluetoothSearchMs);
}

QVector<Report> Device::onAcknowledge(const model_Protocoldata &c)
{
    qCInfo(lcSim).noquote() << QStringLiteral("%1 acknowledged").arg(handlerName(c.CMD, c.DAT1));
    model_Protocoldata r = c;
    r.arryDatablock.clear();
    return one(r);
}

QVector<Report> Device::onNdiSwitchSet(const model_Protocoldata &c)
{
    m_state.ndiSwitch = c.DAT2;
    return one(report(0xC6, 0x01, m_state.ndiSwitch));
}

QVector<Report> Device::onNdiSwitchRead(const model_Protocoldata &)
{
    return one(report(0xC6, 0x01, m_state.ndiSwitch));
}

QVector<Report> Device::onNdiDataTypeSet(const model_Protocoldata &c)
{
    m_state.ndiDataType = c.DAT2;
    m_state.ndiCodeValue = c.DAT3;
    return onNdiDataTypeRead(c);
}

QVector<Report> Device::onNdiDataTypeRead(const model_Protocoldata &)
{
    return one(report(0xC6, 0x03, m_state.ndiDataType, m_state.ndiCodeValue));
}

QVector<Report> Device::onNdiDecodingFormatSet(const model_Protocoldata &c)
{
    m_state.ndiDecodingFormat = c.DAT2;
    return onNdiDecodingFormatRead(c);
}

QVector<Report> Device::onNdiDecodingFormatRead(const model_Protocoldata &)
{
    return one(report(0xC6, 0x07, m_state.ndiDecodingFormat));
}

QVector<Report> Device::onNdiDecodingSwitch(const model_Protocoldata &c)
{
    m_state.ndiDecoding = c.DAT2;
    return one(report(0xC6, 0x08, m_state.ndiDecoding));
}

QVector<Report> Device::onLogOnly(const model_Protocoldata &c)
{
    qCInfo(lcSim).noquote() << QStringLiteral("%1 %2/%3/%4/%5 acknowledged")
                                   .arg(handlerName(c.CMD, c.DAT1), hex(c.DAT1), hex(c.DAT2), hex(c.DAT3), hex(c.DAT4));
    return {};
}

QVector<Report> Device::onPtzSupport(const model_Protocoldata &c)
{
    // Bits: 0 pan, 1 tilt, 2 zoom, 3 auto focus. UVC 1 is a full PTZ camera.
    const uchar bits = c.DAT2 == 0 ? 0x0F : 0x05;
    return one(report(0xC8, 0x03, c.DAT2, bits));
}

QVector<Report> Device::onPtzControl(const model_Protocoldata &c)
{
    if (c.DAT2 >= kUvcCount) {
        reject(c, QStringLiteral("no camera %1").arg(c.DAT2));
        return {};
    }
    const bool set = c.DAT1 == 0x04;
    const size_t cam = c.DAT2;
    switch (c.DAT3) {
    case 1:
        if (set)
            m_state.autoFocus[cam] = c.DAT4;
        return one(report(0xC8, c.DAT1, c.DAT2, 1, m_state.autoFocus[cam]));
    case 2: // go to a preset
        if (set) {
            if (c.DAT4 >= DeviceState::kPresets) {
                reject(c, QStringLiteral("no preset %1").arg(c.DAT4));
                return {};
            }
            m_state.view[cam] = c.DAT4;
            m_state.camera[cam] = m_state.presets[cam][c.DAT4];
            qCInfo(lcSim).noquote() << QStringLiteral("camera %1 to preset %2").arg(cam).arg(c.DAT4);
        }
        return one(report(0xC8, c.DAT1, c.DAT2, 2, m_state.view[cam]));
    case 3: // keep the position as a preset; the camera is then at it
        if (!set || c.DAT4 >= DeviceState::kPresets) {
            reject(c, QStringLiteral("preset %1").arg(c.DAT4));
            return {};
        }
        m_state.presets[cam][c.DAT4] = m_state.camera[cam];
        m_state.view[cam] = c.DAT4;
        qCInfo(lcSim).noquote() << QStringLiteral("camera %1 stored as preset %2").arg(cam).arg(c.DAT4);
        return one(report(0xC8, c.DAT1, c.DAT2, 2, m_state.view[cam]));
    default:
        if (set && c.DAT3 == 0)
            return onCameraMove(c);
        return onLogOnly(c);
    }
}

QVector<Report> Device::onCameraMove(const model_Protocoldata &c)
{
    // Moves 1 up, 2 down, 3 left, 4 right, 5 zoom in, 6 zoom out run until
    // 0 stops them: one step per 100 ms held, at least one.
    static const char *const names[] = {"stop", "up", "down", "left", "right", "zoom in", "zoom out"};
    const size_t cam = c.DAT2;
    if (c.DAT4 > 6) {
        reject(c, QStringLiteral("move %1").arg(c.DAT4));
        return {};
    }
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const uchar was = m_state.cameraMove[cam];
    if (was != 0) {
        const int steps = int(qBound<qint64>(1, (now - m_state.cameraMoveSinceMs[cam]) / 100, 100));
        DeviceState::CameraPosition &p = m_state.camera[cam];
        switch (was) {
        case 1: p.tilt = qMin(p.tilt + steps, 30); break;
        case 2: p.tilt = qMax(p.tilt - steps, -30); break;
        case 3: p.pan = qMax(p.pan - steps, -90); break;
        case 4: p.pan = qMin(p.pan + steps, 90); break;
        case 5: p.zoom = qMin(p.zoom + steps, 20); break;
        case 6: p.zoom = qMax(p.zoom - steps, 0); break;
        }
    }
    m_state.cameraMove[cam] = c.DAT4;
    m_state.cameraMoveSinceMs[cam] = now;
    const DeviceState::CameraPosition &p = m_state.camera[cam];
    qCInfo(lcSim).noquote() << QStringLiteral("camera %1 move %2, pan %3 tilt %4 zoom %5")
                                   .arg(cam).arg(QLatin1String(names[c.DAT4])).arg(p.pan).arg(p.tilt).arg(p.zoom);
    return {};
}

QVector<Report> Device::onCameraStyle(const model_Protocoldata &c)
{
    const QByteArray offered = uvcStyles(c.DAT2);
    if (!offered.contains(char(c.DAT3))) {
        reject(c, QStringLiteral("camera %1 has no style %2").arg(c.DAT2).arg(c.DAT3));
        return {};
    }
    if (c.DAT4 != 0)
        m_state.cameraStyle[c.DAT2] = c.DAT3;
    qCInfo(lcSim).noquote() << QStringLiteral("camera %1 style %2").arg(c.DAT2).arg(m_state.cameraStyle[c.DAT2]);
    return {};
}

QVector<Report> Device::onScope(const model_Protocoldata &c)
{
    if (c.DAT2 >= DeviceState::kScopes || c.DAT3 > 1 || c.DAT4 > 3) {
        reject(c, QStringLiteral("scope %1 open %2 corner %3").arg(c.DAT2).arg(c.DAT3).arg(c.DAT4));
        return {};
    }
    m_state.scopeOpen[c.DAT2] = c.DAT3 != 0;
    m_state.scopeCorner[c.DAT2] = c.DAT4;
    qCInfo(lcSim).noquote() << QStringLiteral("scope %1 %2 corner %3").arg(c.DAT2).arg(c.DAT3 ? "open" : "closed").arg(c.DAT4);
    return {};
}

QVector<Report> Device::onAudioOrHdmiStyle(const model_Protocoldata &c)
{
    // DAT1 0 sets, 1 reads; DAT2 1 sampling rate of input DAT3, 2 HDMI out style.
    if (c.DAT1 > 1) {
        reject(c, QStringLiteral("action %1").arg(c.DAT1));
        return {};
    }
    const bool set = c.DAT1 == 0;
    if (c.DAT2 == 1) {
        if (c.DAT3 >= m_state.samplingRate.size()) {
            reject(c, QStringLiteral("no audio input %1").arg(c.DAT3));
            return {};
        }
        if (set)
            m_state.samplingRate[c.DAT3] = c.DAT4;
        return one(report(0xC9, 0x01, 0x01, c.DAT3, m_state.samplingRate[c.DAT3]));
    }
    if (c.DAT2 == 2) {
        if (set)
            m_state.hdmiOutStyle = c.DAT3;
        return one(report(0xC9, 0x01, 0x02, m_state.hdmiOutStyle));
    }
    reject(c, QStringLiteral("item %1").arg(c.DAT2));
    return {};
}

QVector<Report> Device::onOutputStatus(const model_Protocoldata &)
{
    return one(report(0xD0, 0x07, m_state.outputStatus));
}

QVector<Report> Device::onHdmi2Status(const model_Protocoldata &)
{
    return one(report(0xD0, 0x0C, m_state.hdmi2Status));
}

QVector<Report> Device::onSetInputFormat(const model_Protocoldata &c)
{
    // Type, width, height (16-bit, low byte first), fps, interlace flag, check byte.
    const QByteArray &b = c.arryDatablock;
    if (c.DAT2 >= kInputCount || !checkSummed(b, 8)) {
        reject(c, QStringLiteral("input %1 format block %2").arg(c.DAT2).arg(QString::fromLatin1(b.toHex(' '))));
        return {};
    }
    DeviceState::InputFormat f;
    f.type = uchar(b.at(0));
    f.width = quint16(uchar(b.at(1)) | (uchar(b.at(2)) << 8));
    f.height = quint16(uchar(b.at(3)) | (uchar(b.at(4)) << 8));
    f.fps = uchar(b.at(5));
    // Interlaced 1080-line formats are kept as the device lists them: 540 lines.
    if (b.at(6) && f.height == 1080)
        f.height = 540;
    bool offered = false;
    for (const Format &o : formats(c.DAT2))
        offered = offered || (o.type == f.type && o.width == f.width && o.height == f.height && o.fps == f.fps);
    if (!offered) {
        reject(c, QStringLiteral("input %1 does not offer %2x%3@%4 type %5").arg(c.DAT2).arg(f.width).arg(f.height).arg(f.fps).arg(f.type));
        return {};
    }
    m_state.inputFormat[c.DAT2] = f;
    qCInfo(lcSim).noquote() << QStringLiteral("input %1 format %2x%3%4@%5 type %6")
                                   .arg(c.DAT2).arg(f.width).arg(b.at(6) ? 1080 : f.height).arg(b.at(6) ? "i" : "").arg(f.fps).arg(f.type);
    return one(report(0xF0, 0xB3, c.DAT2));
}

QVector<Report> Device::onStreamAddress(const model_Protocoldata &c)
{
    // open flag, '"', address, '"', 8-bit sum of everything before it.
    const QByteArray &b = c.arryDatablock;
    if (b.size() < 4 || b.at(1) != '"' || b.at(b.size() - 2) != '"' || uchar(b.back()) != sum8(b, b.size() - 1)) {
        reject(c, QStringLiteral("malformed stream address block"));
        return {};
    }
    if (c.DAT2 >= kStreamChannels) {
        reject(c, QStringLiteral("no stream channel %1").arg(c.DAT2));
        return {};
    }
    const uchar status = b.at(0) ? 1 : 0;
    // One block may carry several comma-separated addresses: each takes the
    // next channel, from the one the command names.
    const QList<QByteArray> addresses = b.mid(2, b.size() - 4).split(',');
    QVector<Report> out;
    for (int i = 0; i < addresses.size(); ++i) {
        const int channel = c.DAT2 + i;
        if (channel >= kStreamChannels) {
            reject(c, QStringLiteral("%1 stream addresses from channel %2, more than the channels").arg(addresses.size()).arg(c.DAT2));
            break;
        }
        m_state.stream[size_t(channel)] = status;
        m_state.streamAddress[size_t(channel)] = addresses.at(i);
        qCInfo(lcSim).noquote() << QStringLiteral("stream %1 %2 %3")
                                       .arg(channel)
                                       .arg(status ? QStringLiteral("on air to") : QStringLiteral("off, was"))
                                       .arg(QString::fromLatin1(addresses.at(i)));
        out += one(report(0xD0, 0x04, status, uchar(channel)));
    }
    return out;
}

QVector<Report> Device::onStreamParams(const model_Protocoldata &c)
{
    const QByteArray &b = c.arryDatablock;
    if (!checkSummed(b, 5)) {
        reject(c, QStringLiteral("malformed stream parameter block"));
        return {};
    }
    m_state.streamDefault = uchar(b.at(0));
    m_state.streamResolution = uchar(b.at(1));
    m_state.streamRate = quint16(uchar(b.at(2)) | (uchar(b.at(3)) << 8));
    model_Protocoldata r = c;
    r.arryDatablock.clear();
    return one(r);
}

BluetoothDevice *Device::findBluetooth(QVector<BluetoothDevice> &list, const QByteArray &macBlock)
{
    for (BluetoothDevice &d : list) {
        bool same = true;
        for (int i = 0; i < 6; ++i)
            same = same && d.mac[size_t(i)] == uchar(macBlock.at(i));
        if (same)
            return &d;
    }
    return nullptr;
}

QVector<Report> Device::onBluetoothConnect(const model_Protocoldata &c)
{
    if (!checkSummed(c.arryDatablock, 7)) {
        reject(c, QStringLiteral("malformed device address block"));
        return {};
    }
    // Ordinary devices connect; companion devices take DAT2 (1 connect, 0 disconnect).
    uchar result = 5;
    if (BluetoothDevice *d = findBluetooth(m_state.bluetooth, c.arryDatablock)) {
        d->connect = 1;
        result = 0;
    } else if (BluetoothDevice *z = findBluetooth(m_state.bluetoothZor, c.arryDatablock)) {
        z->connect = c.DAT2 ? 1 : 0;
        result = 0;
    }
    return one(report(0xF0, 0xB6, c.DAT2, result));
}

QVector<Report> Device::onBluetoothDisconnect(const model_Protocoldata &c)
{
    if (!checkSummed(c.arryDatablock, 7)) {
        reject(c, QStringLiteral("malformed device address block"));
        return {};
    }
    uchar result = 5;
    if (BluetoothDevice *d = findBluetooth(m_state.bluetooth, c.arryDatablock)) {
        d->connect = 0;
        result = 0;
    }
    return one(report(0xF0, 0xB7, 0, result));
}

QVector<Report> Device::onNdiSet(const model_Protocoldata &c)
{
    const QByteArray &b = c.arryDatablock;
    if (c.DAT2 <= 2 && b.size() > kMaxNameBytes) {
        reject(c, QStringLiteral("name of %1 bytes, at most %2").arg(b.size()).arg(kMaxNameBytes));
        return {};
    }
    switch (c.DAT2) {
    case 0: m_state.ndiGroup = b; break;
    case 1: m_state.ndiChannel = b; break;
    case 2: m_state.ndiDevice = b; break;
    case 3:
        if (!checkSummed(b, 11)) {
            reject(c, QStringLiteral("malformed NDI connection block"));
            return {};
        }
        for (int i = 0; i < 10; ++i)
            m_state.ndiConnection[size_t(i)] = uchar(b.at(i));
        break;
    default:
        reject(c, QStringLiteral("NDI item %1").arg(c.DAT2));
        return {};
    }
    return one(report(0xF0, 0xB8, c.DAT2));
}

QVector<Report> Device::onNdiDecodingSource(const model_Protocoldata &c)
{
    if (c.arryDatablock.isEmpty() || c.arryDatablock.size() > kMaxNameBytes) {
        reject(c, QStringLiteral("source name of %1 bytes").arg(c.arryDatablock.size()));
        return {};
    }
    // Choosing a source starts receiving it.
    m_state.ndiDecodingSource = c.arryDatablock;
    m_state.ndiDecoding = 1;
    qCInfo(lcSim).noquote() << "ndi receiving" << QString::fromLatin1(c.arryDatablock);
    return {Report{report(0xF0, 0xBB), 0}, Report{report(0xC6, 0x08, m_state.ndiDecoding), 0}};
}

QVector<Report> Device::onRecordName(const model_Protocoldata &c)
{
    // A name becomes part of a path on the disk: keep only harmless characters.
    QByteArray name;
    for (char ch : c.arryDatablock) {
        const bool ok = (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || (ch >= '0' && ch <= '9') || ch == '_' || ch == '-';
        if (ok)
            name.append(ch);
    }
    if (name != c.arryDatablock)
        qCWarning(lcSim).noquote() << "record name reduced to" << QString::fromLatin1(name);
    m_state.recordName = name.left(64);
    return one(report(0xF0, 0xBC));
}

QVector<Report> Device::onGetSerial(const model_Protocoldata &)
{
    return one(blockReport(0x44, 0, textBlock("CS2026SIM00001")));
}

QVector<Report> Device::onGetRecordFileName(const model_Protocoldata &)
{
    if (m_state.recordFile.isEmpty())
        return one(blockReport(0x45, 0, QByteArray()));
    return one(blockReport(0x45, 0, textBlock(m_state.recordFile.toLatin1())));
}

QVector<Report> Device::onGetFormatList(const model_Protocoldata &c)
{
    if (c.DAT2 >= kInputCount) {
        reject(c, QStringLiteral("no input %1").arg(c.DAT2));
        return {};
    }
    return one(blockReport(0xB3, c.DAT2, formatList(c.DAT2)));
}

QVector<Report> Device::onGetBluetoothList(const model_Protocoldata &c)
{
    if (c.DAT2 > 1) {
        reject(c, QStringLiteral("list %1").arg(c.DAT2));
        return {};
    }
    const QVector<BluetoothDevice> none;
    const QVector<BluetoothDevice> &list =
        !m_state.bluetoothOn ? none : (c.DAT2 == 0 ? m_state.bluetooth : m_state.bluetoothZor);
    return one(blockReport(0xB4, c.DAT2, deviceListBlock(list)));
}

QVector<Report> Device::onGetNdi(const model_Protocoldata &c)
{
    switch (c.DAT2) {
    case 0: return one(blockReport(0xB8, 0, textBlock(m_state.ndiGroup)));
    case 1: return one(blockReport(0xB8, 1, textBlock(m_state.ndiChannel)));
    case 2: return one(blockReport(0xB8, 2, textBlock(m_state.ndiDevice)));
    case 3: {
        QByteArray b;
        for (uchar v : m_state.ndiConnection)
            b.append(char(v));
        return one(blockReport(0xB8, 3, b));
    }
    case 4: {
        // 1920x1080, rate 60, 60 fps, 8000 kbit/s, 48000 Hz; 16-bit fields low byte first.
        const uchar b[10] = {0x80, 0x07, 0x38, 0x04, 60, 60, 0x40, 0x1F, 0x80, 0xBB};
        return one(blockReport(0xB8, 4, QByteArray(reinterpret_cast<const char *>(b), 10)));
    }
    default:
        reject(c, QStringLiteral("NDI item %1").arg(c.DAT2));
        return {};
    }
}

QVector<Report> Device::onGetUvcStyles(const model_Protocoldata &c)
{
    if (c.DAT2 >= kUvcCount) {
        reject(c, QStringLiteral("no camera %1").arg(c.DAT2));
        return {};
    }
    return one(blockReport(0xB9, c.DAT2, uvcStyles(c.DAT2) + '\0'));
}

QVector<Report> Device::onGetCurrentFormat(const model_Protocoldata &c)
{
    if (c.DAT2 >= kInputCount) {
        reject(c, QStringLiteral("no input %1").arg(c.DAT2));
        return {};
    }
    // An input without a signal has no current format; one set is kept.
    QByteArray b;
    const DeviceState::InputFormat &set = m_state.inputFormat[c.DAT2];
    if (m_state.plugged[c.DAT2] && set.width != 0) {
        appendFormat(b, Format{set.type, set.width, set.height, set.fps});
        b.append('\0');
    } else if (m_state.plugged[c.DAT2]) {
        b = currentFormat(c.DAT2);
    }
    return one(blockReport(0xBA, c.DAT2, b));
}

QVector<Report> Device::onGetNdiSources(const model_Protocoldata &)
{
    return one(blockReport(0xBB, 0, ndiSourceList()));
}

} // namespace Sim
