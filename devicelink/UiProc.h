#pragma once
// The screens' controller: device commands to the media service, the
// settings file, the run's log and the board's hardware. The command
// transport lives in UiProc_transport.cpp, the command set in
// UiProc_commands.cpp (its vocabulary in LinkCommands.h), settings and log
// in UiProc_settings.cpp, board control in UiProc_hardware.cpp.
#include "WorkerReplies.h"
#include "model_Protocoldata.h"

#include <QDateTime>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QVariantList>

#include <functional>

class LinkTransport;
class biz_CMDSWork;

class UiProc : public QObject
{
    Q_OBJECT
public:
    explicit UiProc(QObject *parent = nullptr);
    ~UiProc() override;

    // The worker of the live UiProc constructed last (reports are taken from
    // it). When that UiProc goes, the previous live one's worker takes over;
    // nullptr while no UiProc lives.
    static biz_CMDSWork *processWorker();

    // Day-based diagnostics file, not QML-facing.
    void writeDailyLog(const QString &text);

    // Transport details for the rest of the native code and for tests.
    quint16 destinationPort() const;
    quint16 listenPort() const;
    quint16 commandSocketPort() const;
    // Destinations of records sent with send mode 1; empty unless filled here.
    void setBroadcastAddresses(const QList<QHostAddress> &addresses);
    // How long a 0xF1 data block may take to arrive, measured from its header.
    static constexpr int kBlockCollectLimitMs = 2000;
    bool isCollectingBlock() const;
    LinkTransport *transport() const { return m_transport; }

    // The clock the time-zone shift starts from (tests fix it); null restores the system clock.
    void setClock(std::function<QDateTime()> clock);

signals:
    void uiChangeUI(int ADDR, int SN, int CMD, int DAT1, int DAT2, int DAT3, int DAT4, int CHKSUM,
                    QString deviceType, QString deviceSN, QString Datablock);
    void debugQML(QString tmpStr);
    void signalReInitUdp();
    // board control (UiProc_hardware.cpp)
    void setTimeByTimeZoneSuccess();
    void sigCPUTemperature(int nTemp);
    void sigNetConnectResult(QString ipStr, int onlineCnt, bool isOnline);

public slots:
    // ---- settings (UiProc_settings.cpp)
    void isExistConfig();
    void readInitConfig();
    QJsonObject getIniData();
    void writeInitConfig(QJsonObject data);
    void initFinished();
    void setFirstInfo(bool first);
    bool getIsFirst();
    void setObsPath(QString path);
    QString getObsPath();
    // ---- log
    void writeLog(QString log);

    // ---- frame helper
    short combineTwoByte(uchar lowDat, uchar higDat);

    // ---- transport (UiProc_transport.cpp)
    void reInitUdp();
    void readPendingDatagrams();
    void readPendingDatagramsNet();
    void sendDatatoDevice(model_Protocoldata parameters);
    void processInfoDisplayonUI(model_Protocoldata parameters);
    void clearCMDQueue();

    // ---- command set (UiProc_commands.cpp)
    // connect... operations return true at once; the record leaves later.
    bool connectGetInputSignalFormat();          // every input
    bool connectGetInputSignalFormat(int type);  // -1 every input, 0..4 one, else none
    bool connectGetInputCurrentFormat();
    bool connectGetInputCurrentFormat(int type); // -1 every input, 0..3 one, else none
    bool connectGetAudioSamplingRate(int type, int inputType, int rate);
    bool connectGetRecordFileName();
    bool connectReadSN();
    bool connectVersion();
    bool connectSystemVersion();
    bool connectGetUSBStatus();
    // The main screen's keep-alive: connectGetUSBStatus without its log
    // line; the transport logs the repeated frame and answer once a minute.
    bool heartbeat();
    bool connectGetTypeCStatus();
    bool connectGetPower();
    bool connectGetOutputStatus();
    bool connectResetFactory();
    void sendresetFactory();
    bool connectPowerOff();
    bool connectGetLocalHost();
    bool connectVideo(uchar code);
    bool connectSwitchAudio(uchar channel);
    bool connectRec(uchar type, uchar code);
    bool connectDeRecordFileName();
    bool connectSwitchVideo(uchar channel, bool outPGM);
    bool connectReadInitInput();
    bool connectSetPIP(uchar pipType, uchar pipPosition);
    bool connectGetStatisticPic(uchar type, bool isOpen, uchar position);
    bool connectStreamPlatformStatus();
    void getStreamPlatformStatus();
    bool readHDMI2Status();
    bool connectSetInputSignalFormat(QJsonArray videoFormatList);
    bool connectSetRecordName(QString fileName);
    bool connectStreamOnAir(int nIsRtmpOpen, QString rtmpAddr); // isSend = true
    bool connectStreamOnAir(int nIsRtmpOpen, QString rtmpAddr, bool isSend);
    bool connectStreamParams(int isRtmpDefault, int RtmpResolution, int RtmpRate);

    // Bluetooth (isZor: the companion-app variant)
    bool connectBluetoothOpen(bool isOpen);
    void sendBluetoothOpen(bool isOpen);
    bool connectBluetoothSearch(bool isOpen, bool isBroadCast);
    void sendBluetoothSearch(bool isOpen, bool isBroadCast);
    bool connectBluetoothDevInfo(bool isZor);
    void getBluetoothDevInfo(bool isZor);
    bool connectBluetoothDev(QString mac, bool isZor);
    void sendBluetoothDev(QString mac);
    void sendBluetoothZorDev(QString mac, bool connect);
    bool disconnectBluetoothDev(QString mac, bool isZor);
    void breakBluetoothDev(QString mac);
    void sendBluetoothConnect_New(bool isConnect);
    void sendBluetoothOpen_New(bool isOpen);

    // NDI
    bool connectNDIMenuSwitch(uchar action, uchar switchType);
    bool connectNDIEncodingSwitch(uchar action, uchar switchType);
    bool connectGetNDIDecodingSignal();
    bool connectSetNDIDecodingSignal(uchar switchType, QString signalName);
    bool connectNDIDecodingFormat(uchar action, uchar type);
    bool connectNDIDecodingSwitch(uchar switchType);
    bool connectRNDISwitch();
    void redNDISwitch();
    bool connectSNDISwitch(uchar switchType);
    void setNDISwitch(uchar switchType);
    bool connectRNDIGroupName();
    void getNDIGroupName();
    bool connectSNDIGroupName(QString groupName);
    void setNDIGroupName(QString groupName);
    bool connectRNDIChannelName();
    void getNDIChannelName();
    bool connectSNDIChannelName(QString channelName);
    void setNDIchannelName(QString channelName);
    bool connectRNDIDeviceName();
    void getDNIDeviceName();
    bool connectSNDIDeviceName(QString deviceName);
    void setNDIDeviceName(QString deviceName);
    bool connectRNDIConnection();
    void getNDIConnection();
    bool connectSNDIConnection(uchar connectType, uchar ttlValue, QString addrStr, QString netmaskStr);
    void setNDIConnection(uchar connectType, uchar ttlValue, QString addrStr, QString netmaskStr);
    bool connectRNDIDateType();
    void getNDIDataType();
    bool connectSNDIDateType(uchar dataType, uchar codeValue);
    void setNDIDataType(uchar dataType, uchar codeValue);
    bool connectRNDIBaseInfo();
    void setNDIbaseInfo();

    // UVC camera and HDMI output
    bool connectUVCStyleSupport(uchar uvcID);
    bool connectUVCStyle(uchar uvcID, uchar styleType, uchar styleValue);
    bool connectUVCControlSupport(uchar uvcID);
    bool connectUVCDirectionAndZoom(uchar uvcID, uchar controlType);
    bool connectAutoFocus(uchar action, uchar uvcID, uchar controlType);
    bool connectView(uchar action, uchar uvcID, uchar controlType, uchar viewIndex);
    bool connectHdmiOutStyle(uchar action, uchar type);

    // ---- board control (UiProc_hardware.cpp): sysfs and system commands.
    // Fans, bridge upgrade start, temperature and the ping check work on a
    // detached thread and return at once; the others block while their
    // commands run.
    bool connectBrightness(int value);
    bool connectFans(int ratePercent, bool bInit);
    bool connectFans(int ratePercent);
    bool connectHdmiUpdate();
    int connectHdmiCheck();     // 1 done (or no bridge), 2 failed, 0 running
    bool connectReSubCS();      // restarts the sub-display when a monitor comes or goes
    bool connectSetDate(int year, int month, int days, int hours, int minutes, int seconds);
    void connectSetDateByTimeZone(int hourDif, int minutesDif, int curHour, int curMinutes);
    void getCPUTemperature();
    void checkNetWorkOnline();
    void tdCheckNetWorkOnline();
    bool updateFactory();
    bool qtVersion();
    QString getScreenSize();

private:
    void setupTransport();
    void teardownTransport();

    // Command set helpers: run a table command the way its entry says
    // (log, detached thread or caller's thread), or its sender inline.
    bool runCommand(const char *key, const QVariantList &args, bool writeSlotLog = true);
    void sendCommandNow(const char *key, const QVariantList &args);
    int currentInputIndex();

    QJsonObject m_iniData;
    bool m_initFinished = false;

    // transport state
    biz_CMDSWork *m_worker = nullptr;
    LinkTransport *m_transport = nullptr;

    // Host that the reachability check pings (set by connectGetLocalHost).
    QString m_targetHost;

    // board control state
    void shiftClock(int hours, int minutes);
    bool m_hdmiOutConnected = false; // as last seen by connectReSubCS
    int m_pingCount = 0;
    std::function<QDateTime()> m_clock;
    WorkerReplies m_workerReplies{this};
};
