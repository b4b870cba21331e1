#include "SimServer.h"

#include "LogCategories.h"
#include "ProtocolFrame.h"

#include <QPointer>
#include <QTimer>
#include <QUdpSocket>

namespace Sim {

namespace {

// Enough of a datagram to recognise it in a log line, never the whole of a huge one.
QString preview(const QByteArray &bytes)
{
    QByteArray shown = bytes.left(48);
    for (char &c : shown)
        if (uchar(c) < 0x20 || uchar(c) > 0x7e)
            c = '.';
    return QString::fromLatin1(shown) + (bytes.size() > 48 ? QStringLiteral("...") : QString());
}

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

} // namespace

Server::Server(Device *device, QObject *parent)
    : QObject(parent)
    , m_device(device)
    , m_socket(new QUdpSocket(this))
{
    m_clock.start();
    connect(m_socket, &QUdpSocket::readyRead, this, &Server::readPending);
}

bool Server::start(quint16 port, quint16 listenPort)
{
    m_listenPort = listenPort;
    if (!m_socket->bind(QHostAddress::LocalHost, port)) {
        qCWarning(lcSim).noquote() << QStringLiteral("cannot bind 127.0.0.1:%1: %2").arg(port).arg(m_socket->errorString());
        return false;
    }
    qCInfo(lcSim).noquote() << QStringLiteral("media service on 127.0.0.1:%1, unsolicited reports to port %2")
                                   .arg(m_socket->localPort())
                                   .arg(listenPort);
    return true;
}

quint16 Server::port() const
{
    return m_socket->localPort();
}

bool Server::parseCommand(const QByteArray &datagram, model_Protocoldata *out, QString *why)
{
    if (datagram.size() < ProtocolFrame::kHeaderSize) {
        *why = QStringLiteral("shorter than a frame");
        return false;
    }
    if (datagram.at(0) != '<' || datagram.at(1) != 'T') {
        *why = QStringLiteral("does not start with \"<T\"");
        return false;
    }
    for (int i = 2; i < 18; ++i) {
        if (!isHexDigit(datagram.at(i))) {
            *why = QStringLiteral("bad hex digit at offset %1").arg(i);
            return false;
        }
    }
    if (datagram.at(18) != '>') {
        *why = QStringLiteral("no '>' after the header");
        return false;
    }
    ProtocolFrame::ParseError error = ProtocolFrame::ParseError::None;
    *out = ProtocolFrame::parseHeader(datagram, 'T', &error);
    if (error != ProtocolFrame::ParseError::None) {
        *why = QStringLiteral("bad checksum");
        return false;
    }
    return true;
}

void Server::readPending()
{
    while (m_socket->hasPendingDatagrams()) {
        QByteArray datagram;
        datagram.resize(int(qMax<qint64>(0, m_socket->pendingDatagramSize())));
        QHostAddress from;
        quint16 fromPort = 0;
        const qint64 got = m_socket->readDatagram(datagram.data(), datagram.size(), &from, &fromPort);
        if (got < 0)
            break;
        datagram.resize(int(got));
        handleDatagram(datagram, from, fromPort);
    }
}

void Server::handleDatagram(const QByteArray &datagram, const QHostAddress &from, quint16 fromPort)
{
    if (m_verbose)
        qCDebug(lcSim).noquote() << QStringLiteral("<- %1:%2 %3").arg(from.toString()).arg(fromPort).arg(preview(datagram));
    model_Protocoldata cmd;
    QString why;
    if (!parseCommand(datagram, &cmd, &why)) {
        ++m_rejected;
        // A flood of garbage is told once a second, with a count.
        int held = 0;
        if (m_rejectLog.admit(m_clock.elapsed(), &held))
            qCWarning(lcSim).noquote() << QStringLiteral("dropped datagram from %1:%2 (%3 bytes): %4%5")
                                              .arg(from.toString())
                                              .arg(fromPort)
                                              .arg(datagram.size())
                                              .arg(why)
                                              .arg(held > 0 ? QStringLiteral("; %1 more dropped since the last such line").arg(held) : QString());
        return;
    }
    m_lastSender = from;
    m_lastSenderPort = fromPort;
    bool accepted = false;
    const QVector<Report> reports = m_device->handle(cmd, &accepted);
    if (accepted)
        ++m_handled;
    for (const Report &r : reports) {
        if (r.delayMs <= 0) {
            sendReport(r.rec, from, fromPort);
            continue;
        }
        QPointer<Server> self(this);
        const model_Protocoldata rec = r.rec;
        QTimer::singleShot(r.delayMs, this, [self, rec, from, fromPort] {
            if (self)
                self->sendReport(rec, from, fromPort);
        });
    }
    emit stateChanged();
}

void Server::sendReport(const model_Protocoldata &rec, const QHostAddress &to, quint16 toPort)
{
    // Header and block pieces leave back to back so nothing interleaves.
    for (const QByteArray &d : Device::datagrams(rec)) {
        const qint64 n = m_socket->writeDatagram(d, to, toPort);
        if (n != d.size())
            qCWarning(lcSim).noquote() << QStringLiteral("could not send %1 bytes to %2:%3: %4")
                                              .arg(d.size())
                                              .arg(to.toString())
                                              .arg(toPort)
                                              .arg(m_socket->errorString());
        else if (m_verbose)
            qCDebug(lcSim).noquote() << QStringLiteral("-> %1:%2 %3").arg(to.toString()).arg(toPort).arg(preview(d));
    }
}

void Server::sendUnsolicited(const model_Protocoldata &rec)
{
    if (m_listenPort != 0) {
        sendReport(rec, QHostAddress::LocalHost, m_listenPort);
    } else if (m_lastSenderPort != 0) {
        sendReport(rec, m_lastSender, m_lastSenderPort);
    } else {
        qCInfo(lcSim).noquote() << "no front end known yet, unsolicited report not sent";
    }
}

void Server::apply(const ScriptEvent &e)
{
    model_Protocoldata rec;
    switch (e.kind) {
    case ScriptEvent::Plug: rec = m_device->plug(e.args[0], true); break;
    case ScriptEvent::Unplug: rec = m_device->plug(e.args[0], false); break;
    case ScriptEvent::Usb: rec = m_device->usbDisk(e.args[0] != 0); break;
    case ScriptEvent::TypeC: rec = m_device->typeC(e.args[0]); break;
    case ScriptEvent::Stream: rec = m_device->streamStatus(e.args[0], e.args[1]); break;
    case ScriptEvent::Report:
        rec.CMD = uchar(e.args[0]);
        rec.DAT1 = uchar(e.args[1]);
        rec.DAT2 = uchar(e.args[2]);
        rec.DAT3 = uchar(e.args[3]);
        rec.DAT4 = uchar(e.args[4]);
        break;
    }
    if (rec.CMD == 0xF1 && combineTwoByte(rec.DAT3, rec.DAT4) != 0)
        qCWarning(lcSim).noquote() << QStringLiteral("script line %1: an 0xF1 report announcing %2 block bytes, none follow")
                                          .arg(e.line)
                                          .arg(combineTwoByte(rec.DAT3, rec.DAT4));
    qCInfo(lcSim).noquote() << QStringLiteral("script line %1: report %2").arg(e.line).arg(QString::fromLatin1(ProtocolFrame::build(rec, 'F')));
    sendUnsolicited(rec);
    emit stateChanged();
}

void Server::runScript(const Script &script)
{
    for (const QString &err : script.errors)
        qCWarning(lcSim).noquote() << err;
    for (const ScriptEvent &e : script.events) {
        QPointer<Server> self(this);
        QTimer::singleShot(e.atMs, Qt::PreciseTimer, this, [self, e] {
            if (self)
                self->apply(e);
        });
    }
}

} // namespace Sim
