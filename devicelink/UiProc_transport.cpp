// Command transport: records leave through the class-wide send queue and
// come back, one at a time, to sendDatatoDevice on the GUI thread; reports
// are parsed here, collected when they carry a data block, and queued for
// the receive loop, which hands them to processInfoDisplayonUI and to the
// report dispatcher.
#include "UiProc.h"

#include "LogCategories.h"
#include "Logger.h"
#include "ProtocolFrame.h"
#include "biz_CMDSWork.h"

#include <QCoreApplication>
#include <QThread>
#include <QTime>
#include <QTimer>
#include <QUdpSocket>

#include <system_error>
#include <thread>

namespace {

// Live UiProc objects in construction order; the last one's worker is the
// process-wide worker. Only the GUI thread constructs and destroys UiProc,
// the lock keeps processWorker() safe from anywhere.
QMutex g_registryLock;
QList<UiProc *> g_live;
biz_CMDSWork *g_processWorker = nullptr;

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

// Frames are plain ASCII; anything else in a datagram (raw blocks, garbage)
// is escaped so the log stays one readable line.
QString printable(const QByteArray &bytes)
{
    QString out;
    out.reserve(bytes.size());
    for (const char ch : bytes) {
        const uchar c = uchar(ch);
        if (c >= 0x20 && c < 0x7f && c != '\\')
            out.append(QLatin1Char(ch));
        else
            out.append(QStringLiteral("\\x%1").arg(c, 2, 16, QLatin1Char('0')));
    }
    return out;
}

// Length check and queuing of a completed 0xF1 report; runs on its own
// detached thread because queuing sleeps with the queue lock held.
void completeBlockReport(model_Protocoldata rec, QByteArray block)
{
    if (combineTwoByte(rec.DAT3, rec.DAT4) != block.size()) {
        writeLog(QStringLiteral("combineTwoByte(parameters.DAT3, parameters.DAT4) != parameters.arryDatablock.size() return"));
        return;
    }
    rec.arryDatablock = block;
    rec.Datablock = QString::fromLatin1(block.toHex());
    biz_CMDSWork::enqueueReport(rec);
    biz_CMDSWork::setReplyFlag(true);
    writeLog(QStringLiteral("============================END=================================="));
}

void deliverBlockReport(const model_Protocoldata &header, const QByteArray &block)
{
    try {
        std::thread(completeBlockReport, header, block).detach();
    } catch (const std::system_error &e) {
        // No thread to be had: do the work here rather than lose the report.
        writeLog(QStringLiteral("UiProc: no thread for a data block report (%1), queued inline")
                     .arg(QString::fromLocal8Bit(e.what())));
        completeBlockReport(header, block);
    }
}

} // namespace

biz_CMDSWork *UiProc::processWorker()
{
    QMutexLocker lock(&g_registryLock);
    return g_processWorker;
}

quint16 UiProc::commandSocketPort() const
{
    return m_cmdSocket ? m_cmdSocket->localPort() : 0;
}

bool UiProc::isCollectingBlock() const
{
    QMutexLocker lock(&m_collectLock);
    return m_collecting;
}

void UiProc::setupTransport()
{
    m_worker = new biz_CMDSWork; // never deleted: a detached loop may still hold it
    {
        QMutexLocker lock(&g_registryLock);
        g_live.append(this);
        g_processWorker = m_worker;
    }
    // Connected before the loops start, so a record already waiting in the
    // shared queues is not emitted to nobody.
    connect(m_worker, &biz_CMDSWork::signalSendMessage, this, &UiProc::sendDatatoDevice,
            Qt::BlockingQueuedConnection);
    connect(m_worker, &biz_CMDSWork::signalSendReceiveMessage, this, &UiProc::processInfoDisplayonUI,
            Qt::BlockingQueuedConnection);
    m_worker->bSendRun = true;
    std::thread(&biz_CMDSWork::x1_GetQueueWork, m_worker).detach();
    m_worker->bReceiveRun = true;
    std::thread(&biz_CMDSWork::x1_receiveGetQueueWork, m_worker).detach();

    m_collectTimer = new QTimer(this);
    m_collectTimer->setSingleShot(true);
    m_collectTimer->setTimerType(Qt::PreciseTimer);
    connect(m_collectTimer, &QTimer::timeout, this, &UiProc::checkBlockTimeout);
    connect(this, &UiProc::signalReInitUdp, this, &UiProc::reInitUdp, Qt::QueuedConnection);

    setupSockets();
}

void UiProc::teardownTransport()
{
    m_collectTimer->stop();
    {
        QMutexLocker lock(&g_registryLock);
        g_live.removeAll(this);
        // With none left there is no worker to take reports from: say so
        // (nullptr) rather than hand out one whose loops have ended.
        if (g_processWorker == m_worker)
            g_processWorker = g_live.isEmpty() ? nullptr : g_live.last()->m_worker;
    }
    // From here on this worker takes nothing more off the shared queues; a
    // record its loops already hold is waiting for the GUI thread (this
    // thread), so deliver it instead of dropping it. Never wait plainly here:
    // the loop itself waits for us.
    m_worker->stop();
    while (m_worker->isHandingOver()) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        QThread::yieldCurrentThread();
    }
}

void UiProc::setupSockets()
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
    connect(m_cmdSocket, &QUdpSocket::readyRead, this, &UiProc::readPendingDatagrams);
    connect(m_listenSocket, &QUdpSocket::readyRead, this, &UiProc::readPendingDatagramsNet);
}

void UiProc::reInitUdp()
{
    disconnect(m_cmdSocket, &QUdpSocket::readyRead, this, &UiProc::readPendingDatagrams);
    disconnect(m_listenSocket, &QUdpSocket::readyRead, this, &UiProc::readPendingDatagramsNet);
    // The old sockets stay children, closed so the listening port is free
    // for the new one and nothing lands on a socket no one reads.
    m_cmdSocket->close();
    m_listenSocket->close();
    setupSockets();
}

void UiProc::readPendingDatagrams() { readDatagrams(m_cmdSocket); }

void UiProc::readPendingDatagramsNet() { readDatagrams(m_listenSocket); }

void UiProc::readDatagrams(QUdpSocket *socket)
{
    while (socket->hasPendingDatagrams()) {
        QByteArray datagram;
        datagram.resize(int(qMax<qint64>(0, socket->pendingDatagramSize())));
        QHostAddress from;
        quint16 fromPort = 0;
        const qint64 got = socket->readDatagram(datagram.data(), datagram.size(), &from, &fromPort);
        if (got < 0)
            break;
        datagram.resize(int(got));
        QString fromText = from.toString();
        if (fromText.startsWith(QLatin1String("::ffff:")))
            fromText = fromText.mid(7);
        writeLog(QStringLiteral("UiProc::readPendingDatagrams--------------- data:") + QStringLiteral("recv from:")
                 + fromText + QStringLiteral("-- udp data:") + printable(datagram));
        handleDatagram(datagram);
    }
}

void UiProc::handleDatagram(const QByteArray &datagram)
{
    QMutexLocker lock(&m_collectLock);
    if (m_collecting && m_collectClock.elapsed() >= kBlockCollectLimitMs)
        abandonBlock("expired"); // this datagram is then read as a new header

    if (!m_collecting) {
        lock.unlock();
        ProtocolFrame::ParseError error = ProtocolFrame::ParseError::None;
        const model_Protocoldata rec = ProtocolFrame::parseReport(datagram, &error);
        if (error != ProtocolFrame::ParseError::None)
            return; // logged by the parser, never queued
        if (rec.CMD != 0xF1) {
            biz_CMDSWork::enqueueReport(rec);
            return;
        }
        const int announced = combineTwoByte(rec.DAT3, rec.DAT4);
        if (announced < 0) {
            // The length field is signed: nothing that large will ever come.
            writeLog(QStringLiteral("UiProc::readPendingDatagrams data block length %1 out of range, report dropped")
                         .arg(announced));
            return;
        }
        if (announced == 0) {
            deliverBlockReport(rec, QByteArray()); // complete already: no block follows
            return;
        }
        lock.relock();
        m_collecting = true;
        m_collectHeader = rec;
        m_collectBlock.clear();
        m_collectClock.start();
        lock.unlock();
        m_collectTimer->start(kBlockCollectLimitMs);
        return;
    }

    m_collectBlock.append(datagram);
    if (m_collectBlock.size() < combineTwoByte(m_collectHeader.DAT3, m_collectHeader.DAT4))
        return;
    const model_Protocoldata header = m_collectHeader;
    const QByteArray block = m_collectBlock;
    m_collecting = false;
    m_collectHeader = model_Protocoldata();
    m_collectBlock.clear();
    lock.unlock();
    m_collectTimer->stop();
    deliverBlockReport(header, block);
}

// With m_collectLock held.
void UiProc::abandonBlock(const char *why)
{
    writeLog(QStringLiteral("UiProc::readPendingDatagrams data block %1: %2 of %3 bytes after %4 ms, report dropped")
                 .arg(QLatin1String(why))
                 .arg(m_collectBlock.size())
                 .arg(combineTwoByte(m_collectHeader.DAT3, m_collectHeader.DAT4))
                 .arg(m_collectClock.elapsed()));
    m_collecting = false;
    m_collectHeader = model_Protocoldata();
    m_collectBlock.clear();
}

void UiProc::checkBlockTimeout()
{
    QMutexLocker lock(&m_collectLock);
    if (!m_collecting)
        return;
    const qint64 left = kBlockCollectLimitMs - m_collectClock.elapsed();
    if (left > 0) {
        m_collectTimer->start(int(left));
        return;
    }
    abandonBlock("expired");
}

void UiProc::sendDatatoDevice(model_Protocoldata parameters)
{
    if (parameters.sendMode == 1) {
        const QByteArray frame = ProtocolFrame::build(parameters);
        for (const QHostAddress &address : qAsConst(m_broadcastList)) {
            if (m_cmdSocket->writeDatagram(frame, address, m_destPort) == frame.size())
                writeLog(QStringLiteral("Send Broadcast successful"));
        }
        return;
    }
    const QByteArray frame = ProtocolFrame::build(parameters);
    writeLog(QStringLiteral("------------------------- fa song:") + printable(frame));
    const qint64 written = m_cmdSocket->writeDatagram(frame, QHostAddress(m_destAddress), m_destPort);
    if (written == frame.size()) {
        writeLog(QTime::currentTime().toString(QStringLiteral("hhmmss-")) + QStringLiteral("send toIP:") + m_destAddress
                 + QStringLiteral("-- udp data:") + printable(frame));
    } else {
        qCWarning(lcLink).noquote() << QStringLiteral("UiProc::sendDatatoDevice wrote %1 of %2 bytes: %3")
                                           .arg(written)
                                           .arg(frame.size())
                                           .arg(m_cmdSocket->errorString());
    }
    qCDebug(lcLink).noquote() << QStringLiteral("send data: CMD: %1  Data1: %2  Data2: %3  Data3: %4   Data4: %5  %6")
                                     .arg(int(parameters.CMD), 0, 16)
                                     .arg(int(parameters.DAT1), 0, 16)
                                     .arg(int(parameters.DAT2), 0, 16)
                                     .arg(int(parameters.DAT3), 0, 16)
                                     .arg(int(parameters.DAT4), 0, 16)
                                     .arg(QTime::currentTime().toString(QStringLiteral("hh:mm:ss")));
}

void UiProc::processInfoDisplayonUI(model_Protocoldata parameters)
{
    emit uiChangeUI(parameters.ADDR, parameters.SN, parameters.CMD, parameters.DAT1, parameters.DAT2, parameters.DAT3,
                    parameters.DAT4, parameters.CHKSUM, parameters.deviceType, parameters.deviceSN,
                    parameters.Datablock);
}

void UiProc::clearCMDQueue()
{
    m_worker->clearQueue();
}
