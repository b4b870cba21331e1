#pragma once
// Turns every report of the media service into one typed signal for the screens.
//
// The report vocabulary is a table (reportTable()): one row per report
// (command code, selector bytes, fixed log text, signal, decoder). Adding a
// report is adding one row; taskCmdProcess only finds the row and runs it.
#include "LinkLog.h"
#include "model_Protocoldata.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

class biz_CMDSWork;
class UiprocVideo_Desktop;

// What a decoder sees of one report: the record, a working copy of its
// block and the announced block length (unsigned).
struct ReportContext
{
    const model_Protocoldata &rec;
    QByteArray bytes;
    quint16 len = 0;

    // Block byte k, or -1 when the block has ended before it.
    int byte(int k) const { return k >= 0 && k < bytes.size() ? int(uchar(bytes.at(k))) : -1; }
};

struct ReportRow
{
    // What the fixed log text is followed by.
    enum class LogTail { None, Length, Address };

    uchar cmd;
    short dat1; // selector bytes; -1 matches any value
    short dat2;
    short dat3;
    const char *log;    // text after the common prefix, nullptr for none
    LogTail tail;
    const char *signal; // name of the signal the row emits ("" for none)
    void (*decode)(UiprocVideo_Desktop &self, const ReportContext &ctx); // nullptr: log only
};

class UiprocVideo_Desktop : public QObject
{
    Q_OBJECT
public:
    explicit UiprocVideo_Desktop(QObject *parent = nullptr);

    // Every line this class writes to the log starts with this.
    static const QString &logPrefix();
    // The report vocabulary, in match order (first matching row wins).
    static const QVector<ReportRow> &reportTable();
    // Index of the row that handles rec, or -1 when the report is ignored.
    static int matchReport(const model_Protocoldata &rec);

signals:
    void pushInitInput(int mainInput, int subInput);
    void pushVideoFormatData(int inputType, int dataLength, QJsonArray formatArray);
    void pushNDISignalData(int dataLength, QJsonArray ndiSignalArray);
    void pushLocalIP(QString localIP);
    void pushUSBStatus(int status);
    void pushResetStatus(int status);
    void pushPower(int powerID, int powerCount);
    void pushSoftwareVersion(int firstVersion, int secondVersion);
    void pushSystemVersion(int firstVersion, int secondVersion);
    void pushPGMCutFinish(int sourceIndex);
    void pushRecordFileName(QString recordFilePath, QString recordFileName);
    void pushAudioSamplingRate(int inputType, int rate);
    void pushHDMIOutStyle(int type);
    void pushSN(QString deviceID);
    void pushInputInitiative(int status, int inputID);
    void pushOutputInitiative(int status);
    void pushUSBInitiative(int status);
    void pushNetInitiative(int status);
    void pushNetConCInitiative(int status);
    void pushInputFormatInitiative(int type, QJsonObject format);
    void pushNDIStatusInitiative(int status);
    void pushNDIDecodingStatusInitiative(int status);
    void pushNDIDecodingFormatInitiative(int status);
    void pushHDMI2Status(int status);
    void pushTypeCStatus(int status);
    void pushRecordingStatus(int status);
    void pushRecordPlayEndInitiative();
    void pushTypeCInitiative(int status);
    void pushInitInputInitiative(int status);
    void pushChangeHDMIInitiative(int hdmiID);
    void pushRtmpStatus(int channel, int status);
    void pushBluetoothFin();
    void pushBluetoothFinBroadCast();
    void pushBluetoothDevInfo(int connect, QString mac, QString name);
    void pushBluetoothDevInfoBroadCast(int connect, QString mac, QString name);
    void pushInputClick(int index);
    void pushConnectResult(int type, bool result);
    void pushConnectResult_Zor(bool result);
    void pushConnectResult_new(bool isConnect);
    void pushOpenResult_new(bool isOpen);
    void pushNdiSwitchType(int type);
    void pushNdiStatus(int status);
    void pushNDIDecodingStatus(int status);
    void pushNdiGroupName(QString groupName);
    void pushNdiChannelName(QString channelName);
    void pushNdiDeviceName(QString deviceName);
    void pushNdiDataType(int dataType, int codeValue);
    void pushNDIDecodingVideoFormat(int videoType);
    void pushNdiConnectType(QJsonObject ndiJsonObject);
    void pushNdiBaseInfo(QString format, int m_fps, int m_bitrate, int m_sampleRate);
    void pushStyleStatus(QJsonArray ptzStyleArray);
    void pushPTZStatus(int level, int vertical, int zoom, int autofocus);
    void pushPTZAutoFocus(int status);
    void pushPTZView(int index);
    void pushPTZTally(int status);

public slots:
    void cmdProcess(model_Protocoldata pData);
    void taskCmdProcess(model_Protocoldata pData);
    void bizConnect();
    void bizDisconnect();

private:
    // The worker this object last connected to, so a later bizConnect or
    // bizDisconnect also undoes that connection if another worker took over.
    QPointer<biz_CMDSWork> m_connectedWorker;
    LinkLog::RepeatFilter m_logRepeats;
    QElapsedTimer m_clock;
};
