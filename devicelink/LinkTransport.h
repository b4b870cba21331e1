#pragma once
// The UDP side of the device link: the command socket that sends frames to
// the media service (and hears its answers), the listening socket for its
// reports, and the hand-over of received datagrams to the report intake.
// Lives in the GUI thread, where the sockets are read and written; all
// slow work (logging, parsing, block collection, the paced queuing) runs
// on the intake's own thread.
#include "LinkLog.h"
#include "ReportIntake.h"
#include "SenderFilter.h"
#include "model_Protocoldata.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QList>
#include <QObject>

#include <memory>

class QUdpSocket;

class LinkTransport : public QObject
{
    Q_OBJECT
public:
    // Ports come from CS_MEDIA_PORT and CS_LISTEN_PORT (defaults 5560 and
    // 1259; a listening port of 0 means any free port).
    explicit LinkTransport(QObject *parent = nullptr, ReportIntake::Deliver deliver = {},
                           SenderFilter::AddressSource ownAddresses = {});
    ~LinkTransport() override;

    // Writes one record as a frame: to the destination, or with send mode 1
    // to every broadcast address.
    void send(const model_Protocoldata &rec);
    // New sockets, connected again; the old ones are closed and stay children.
    void reinit();
    // Reads what the socket holds, a bounded number of datagrams per call.
    void readCommandSocket();
    void readListenSocket();

    void setDestinationAddress(const QString &address) { m_destAddress = address; }
    void setBroadcastAddresses(const QList<QHostAddress> &addresses) { m_broadcastList = addresses; }
    quint16 destinationPort() const { return m_destPort; }
    quint16 listenPort() const { return m_listenPort; }
    quint16 commandSocketPort() const;
    bool isCollectingBlock() const { return m_intake.isCollecting(); }
    bool isIntakeIdle() const { return m_intake.isIdle(); }

    // Datagrams taken from a socket per call; the rest wait for the next
    // turn of the event loop, so a flood cannot hold the GUI thread.
    static constexpr int kReadsPerCall = 64;

private:
    void setupSockets();
    void read(QUdpSocket *socket);

    QString m_destAddress = QStringLiteral("127.0.0.1");
    quint16 m_destPort = 5560;
    quint16 m_listenPort = 1259;
    QUdpSocket *m_cmdSocket = nullptr;
    QUdpSocket *m_listenSocket = nullptr;
    QList<QHostAddress> m_broadcastList;

    QElapsedTimer m_clock;
    SenderFilter m_senders;
    LinkLog::RateLimit m_foreignLog;
    LinkLog::RepeatFilter m_sentRepeats;
    ReportIntake m_intake;
};
