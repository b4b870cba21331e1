#include "LinkTransport.h"

#include "LogCategories.h"
#include "Logger.h"
#include "ProtocolFrame.h"

#include <QTime>
#include <QUdpSocket>

namespace {

// allowZero: the listening port may be 0, "any free port" (tests, parallel runs).
quint16 portFromEnvironment(const char *name, quint16 fallback, bool allowZero)
{
    const QByteArray text = qgetenv(name);
    if (text.isEmpty())
        return fallback;
    bool ok = false;
    const uint port = text.toUInt(&ok);
    if (!ok || (port == 0 && !allowZero) || port > 65535) {
        writeLog(QStringLiteral("UiProc: ignoring %1=\"%2\", not a port number; using %3")
                     .arg(QLatin1String(name), QString::fromLatin1(text.toPercentEncoding()))
                     .arg(fallback));
        return fallback;
    }
    return quint16(port);
}

} // namespace

LinkTransport::LinkTransport(QObject *parent, ReportIntake::Deliver deliver, SenderFilter::AddressSource ownAddresses)
    : QObject(parent)
    , m_senders(std::move(ownAddresses))
    , m_intake(std::move(deliver))
{
    m_clock.start();
    setupSockets();
}

LinkTransport::~LinkTransport() = default;

quint16 LinkTransport::commandSocketPort() const
{
    return m_cmdSocket ? m_cmdSocket->localPort() : 0;
}

void LinkTransport::setupSockets()
{
    m_destPort = portFromEnvironment("CS_MEDIA_PORT", 5560, false);
    m_listenPort = portFromEnvironment("CS_LISTEN_PORT", 1259, true);
    // The command socket is bound by the system on its first send.
    m_cmdSocket = new QUdpSocket(this);
    m_listenSocket = new QUdpSocket(this);
    if (!m_listenSocket->bind(QHostAddress::Any, m_listenPort))
        writeLog(QStringLiteral("UiProc: cannot listen on port %1: %2")
                     .arg(m_listenPort)
                     .arg(m_listenSocket->errorString()));
    else if (m_listenPort == 0)
        m_listenPort = m_listenSocket->localPort();
    connect(m_cmdSocket, &QUdpSocket::readyRead, this, &LinkTransport::readCommandSocket);
    connect(m_listenSocket, &QUdpSocket::readyRead, this, &LinkTransport::readListenSocket);
}

void LinkTransport::reinit()
{
    disconnect(m_cmdSocket, &QUdpSocket::readyRead, this, &LinkTransport::readCommandSocket);
    disconnect(m_listenSocket, &QUdpSocket::readyRead, this, &LinkTransport::readListenSocket);
    // Closed so the listening port is free for the new socket and nothing
    // lands on a socket no one reads.
    m_cmdSocket->close();
    m_listenSocket->close();
    setupSockets();
}

void LinkTransport::readCommandSocket() { read(m_cmdSocket); }

void LinkTransport::readListenSocket() { read(m_listenSocket); }

void LinkTransport::read(QUdpSocket *socket)
{
    for (int n = 0; n < kReadsPerCall && socket->hasPendingDatagrams(); ++n) {
        QByteArray datagram;
        datagram.resize(int(qMax<qint64>(0, socket->pendingDatagramSize())));
        QHostAddress from;
        quint16 fromPort = 0;
        const qint64 got = socket->readDatagram(datagram.data(), datagram.size(), &from, &fromPort);
        if (got < 0)
            break;
        datagram.resize(int(got));
        const QString fromText = SenderFilter::plain(from).toString();
        if (!m_senders.accepts(from, m_clock.elapsed())) {
            int held = 0;
            if (m_foreignLog.admit(m_clock.elapsed(), &held))
                writeLog(QStringLiteral("UiProc::readPendingDatagrams datagram from %1:%2 dropped: not from this device"
                                        "; %3 more dropped since the last such line")
                             .arg(fromText)
                             .arg(fromPort)
                             .arg(held));
            continue;
        }
        m_intake.push(datagram, fromText, fromPort);
    }
}

void LinkTransport::send(const model_Protocoldata &rec)
{
    model_Protocoldata frameRec = rec;
    const QByteArray frame = ProtocolFrame::build(frameRec);
    if (rec.sendMode == 1) {
        for (const QHostAddress &address : qAsConst(m_broadcastList)) {
            if (m_cmdSocket->writeDatagram(frame, address, m_destPort) == frame.size())
                writeLog(QStringLiteral("Send Broadcast successful"));
        }
        return;
    }
    // A frame sent again and again (the heartbeat) is logged once a minute.
    int repeats = 0;
    const bool log = m_sentRepeats.shouldLog(frame, m_clock.elapsed(), &repeats);
    if (log)
        writeLog(QStringLiteral("------------------------- fa song:") + LinkLog::printable(frame)
                 + (repeats > 0 ? QStringLiteral(" (and %1 identical frames not logged)").arg(repeats) : QString()));
    const qint64 written = m_cmdSocket->writeDatagram(frame, QHostAddress(m_destAddress), m_destPort);
    if (written == frame.size()) {
        if (log)
            writeLog(QTime::currentTime().toString(QStringLiteral("hhmmss-")) + QStringLiteral("send toIP:")
                     + m_destAddress + QStringLiteral("-- udp data:") + LinkLog::printable(frame));
    } else {
        qCWarning(lcLink).noquote() << QStringLiteral("UiProc::sendDatatoDevice wrote %1 of %2 bytes: %3")
                                           .arg(written)
                                           .arg(frame.size())
                                           .arg(m_cmdSocket->errorString());
    }
    qCDebug(lcLink).noquote() << QStringLiteral("send data: CMD: %1  Data1: %2  Data2: %3  Data3: %4   Data4: %5  %6")
                                     .arg(int(rec.CMD), 0, 16)
                                     .arg(int(rec.DAT1), 0, 16)
                                     .arg(int(rec.DAT2), 0, 16)
                                     .arg(int(rec.DAT3), 0, 16)
                                     .arg(int(rec.DAT4), 0, 16)
                                     .arg(QTime::currentTime().toString(QStringLiteral("hh:mm:ss")));
}
