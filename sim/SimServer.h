#pragma once
// The simulator's UDP side: reads "<T" command frames on 127.0.0.1, lets the
// device answer them to the sender, and sends unsolicited reports to the
// front end's listening port, on request or from a timed script.
#include "LinkLog.h"
#include "SimDevice.h"
#include "SimScript.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QObject>

class QUdpSocket;

namespace Sim {

class Server : public QObject
{
    Q_OBJECT
public:
    explicit Server(Device *device, QObject *parent = nullptr);

    // Binds 127.0.0.1:port (0 picks a free one). Reports without a request go
    // to 127.0.0.1:listenPort, or to the last sender when listenPort is 0.
    bool start(quint16 port, quint16 listenPort);
    quint16 port() const;

    void setVerbose(bool on) { m_verbose = on; }

    // Validates one datagram as a command frame; on failure *why says why.
    static bool parseCommand(const QByteArray &datagram, model_Protocoldata *out, QString *why);

    // Applies one script event to the device and sends its report.
    void apply(const ScriptEvent &event);
    // Schedules every event relative to now.
    void runScript(const Script &script);
    // Sends one report, unasked, to the front end's listening port.
    void sendUnsolicited(const model_Protocoldata &rec);

    int commandsHandled() const { return m_handled; }
    int datagramsRejected() const { return m_rejected; }

signals:
    // The device state may have changed (programme, PIP, plug states ...).
    void stateChanged();

private:
    void readPending();
    void handleDatagram(const QByteArray &datagram, const QHostAddress &from, quint16 fromPort);
    void sendReport(const model_Protocoldata &rec, const QHostAddress &to, quint16 toPort);

    Device *m_device;
    QUdpSocket *m_socket;
    quint16 m_listenPort = 0;
    QHostAddress m_lastSender;
    quint16 m_lastSenderPort = 0;
    bool m_verbose = false;
    int m_handled = 0;
    int m_rejected = 0;
    LinkLog::RateLimit m_rejectLog;
    QElapsedTimer m_clock;
};

} // namespace Sim
