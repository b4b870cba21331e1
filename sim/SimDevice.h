#pragma once
// The simulated media service without any I/O: a command record goes in,
// the report records the device would answer come out, and the device state
// changes on the way. A table of handlers keyed by CMD/DAT1 decides.
#include "SimState.h"
#include "model_Protocoldata.h"

#include <QList>
#include <QString>
#include <QPair>
#include <QVector>

#include <functional>

namespace Sim {

struct Report
{
    model_Protocoldata rec;
    int delayMs = 0; // sent after this delay (a search that takes time)
};

// Largest block piece put into one datagram after an 0xF1 header.
constexpr int kBlockChunk = 512;

class Device
{
public:
    Device();

    // Answers one parsed command. Returns nothing for commands the device
    // acknowledges silently and for commands it rejects (logged).
    QVector<Report> handle(const model_Protocoldata &cmd, bool *accepted = nullptr);

    // Unsolicited reports: each updates the state first.
    model_Protocoldata plug(int input, bool plugged);
    model_Protocoldata usbDisk(bool present);
    model_Protocoldata streamStatus(int channel, int status);
    model_Protocoldata typeC(int status);

    // Called when a recording ends with its device path and the time it
    // ran; the caller writes the file (the device itself does no I/O).
    using RecordingSink = std::function<void(const QString &devicePath, qint64 elapsedMs)>;
    void setRecordingSink(RecordingSink sink) { m_recordingSink = std::move(sink); }

    DeviceState &state() { return m_state; }
    const DeviceState &state() const { return m_state; }
    void resetToFactory();

    // The name of the handler that takes this command ("" if none), for logs.
    static QString handlerName(uchar cmd, uchar dat1);

    // Datagrams for one report: the 19-byte "<F" header alone, then for an
    // 0xF1 report its block in pieces of at most `chunk` bytes.
    static QList<QByteArray> datagrams(model_Protocoldata rec, int chunk = kBlockChunk);

    // Fixed tables the device answers from.
    static QByteArray formatList(int input);   // 6-byte entries + terminator
    static QByteArray currentFormat(int input); // one entry + terminator
    static QByteArray ndiSourceList();          // count + "name,addr;" texts

private:
    using Handler = QVector<Report> (Device::*)(const model_Protocoldata &);
    struct Row
    {
        uchar cmd;
        int dat1; // -1: any
        const char *name;
        Handler handler;
    };
    static const Row kRows[];
    static const Row *find(uchar cmd, uchar dat1);

    QVector<Report> onSwitchPreview(const model_Protocoldata &c);
    QVector<Report> onCut(const model_Protocoldata &c);
    QVector<Report> onReadInitInput(const model_Protocoldata &c);
    QVector<Report> onPip(const model_Protocoldata &c);
    QVector<Report> onUsbStatus(const model_Protocoldata &c);
    QVector<Report> onFactoryReset(const model_Protocoldata &c);
    QVector<Report> onPowerOff(const model_Protocoldata &c);
    QVector<Report> onPower(const model_Protocoldata &c);
    QVector<Report> onStreamPlatformStatus(const model_Protocoldata &c);
    QVector<Report> onVideoControl(const model_Protocoldata &c);
    QVector<Report> onSoftwareVersion(const model_Protocoldata &c);
    QVector<Report> onSystemVersion(const model_Protocoldata &c);
    QVector<Report> onLocalIp(const model_Protocoldata &c);
    QVector<Report> onTypeC(const model_Protocoldata &c);
    QVector<Report> onRecord(const model_Protocoldata &c);
    QVector<Report> onClearRecordFileName(const model_Protocoldata &c);
    QVector<Report> onAudioChannel(const model_Protocoldata &c);
    QVector<Report> onBluetoothPower(const model_Protocoldata &c);
    QVector<Report> onBluetoothSearch(const model_Protocoldata &c);
    QVector<Report> onBluetoothBroadcastSearch(const model_Protocoldata &c);
    QVector<Report> onAcknowledge(const model_Protocoldata &c);
    QVector<Report> onNdiSwitchSet(const model_Protocoldata &c);
    QVector<Report> onNdiSwitchRead(const model_Protocoldata &c);
    QVector<Report> onNdiDataTypeSet(const model_Protocoldata &c);
    QVector<Report> onNdiDataTypeRead(const model_Protocoldata &c);
    QVector<Report> onNdiDecodingFormatSet(const model_Protocoldata &c);
    QVector<Report> onNdiDecodingFormatRead(const model_Protocoldata &c);
    QVector<Report> onNdiDecodingSwitch(const model_Protocoldata &c);
    QVector<Report> onLogOnly(const model_Protocoldata &c);
    QVector<Report> onPtzSupport(const model_Protocoldata &c);
    QVector<Report> onPtzControl(const model_Protocoldata &c);
    QVector<Report> onCameraMove(const model_Protocoldata &c);
    QVector<Report> onCameraStyle(const model_Protocoldata &c);
    QVector<Report> onScope(const model_Protocoldata &c);
    QVector<Report> onAudioOrHdmiStyle(const model_Protocoldata &c);
    QVector<Report> onOutputStatus(const model_Protocoldata &c);
    QVector<Report> onHdmi2Status(const model_Protocoldata &c);
    QVector<Report> onSetInputFormat(const model_Protocoldata &c);
    QVector<Report> onStreamAddress(const model_Protocoldata &c);
    QVector<Report> onStreamParams(const model_Protocoldata &c);
    QVector<Report> onBluetoothConnect(const model_Protocoldata &c);
    QVector<Report> onBluetoothDisconnect(const model_Protocoldata &c);
    QVector<Report> onNdiSet(const model_Protocoldata &c);
    QVector<Report> onNdiDecodingSource(const model_Protocoldata &c);
    QVector<Report> onRecordName(const model_Protocoldata &c);
    QVector<Report> onGetSerial(const model_Protocoldata &c);
    QVector<Report> onGetRecordFileName(const model_Protocoldata &c);
    QVector<Report> onGetFormatList(const model_Protocoldata &c);
    QVector<Report> onGetBluetoothList(const model_Protocoldata &c);
    QVector<Report> onGetNdi(const model_Protocoldata &c);
    QVector<Report> onGetUvcStyles(const model_Protocoldata &c);
    QVector<Report> onGetCurrentFormat(const model_Protocoldata &c);
    QVector<Report> onGetNdiSources(const model_Protocoldata &c);

    BluetoothDevice *findBluetooth(QVector<BluetoothDevice> &list, const QByteArray &macBlock);

    DeviceState m_state;
    RecordingSink m_recordingSink;
};

// Time a Bluetooth search takes before its end is reported.
constexpr int kBluetoothSearchMs = 1500;

} // namespace Sim
