#pragma once
// The screens' controller: device commands to the media service, the
// settings file, the run's log and (later) the board's hardware. The
// command transport lives in UiProc_transport.cpp, the command set in
// UiProc_commands.cpp, settings and log in UiProc_settings.cpp.
#include "model_Protocoldata.h"

#include <QHostAddress>
#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QMutex>
#include <QObject>

class QUdpSocket;
class biz_CMDSWork;

class UiProc : public QObject
{
    Q_OBJECT
public:
    explicit UiProc(QObject *parent = nullptr);
    ~UiProc() override;

    // The worker of the UiProc constructed last (reports are taken from it).
    static biz_CMDSWork *processWorker();

    // Day-based diagnostics file, not QML-facing.
    void writeDailyLog(const QString &text);

signals:
    void uiChangeUI(int ADDR, int SN, int CMD, int DAT1, int DAT2, int DAT3, int DAT4, int CHKSUM,
                    QString deviceType, QString deviceSN, QString Datablock);
    void debugQML(QString tmpStr);
    void signalReInitUdp();

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

    // ---- command set (UiProc_commands.cpp)

private:
    void setupTransport();
    void teardownTransport();

    QJsonObject m_iniData;
    bool m_initFinished = false;

    // transport state
    biz_CMDSWork *m_worker = nullptr;
};
