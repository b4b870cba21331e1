#pragma once
// Loopback harness for the device link: a peer socket playing the media
// service on a private port, a UiProc whose ports come from the
// environment, and captures of log lines and of the records the receive
// loop hands over.
#include "LogTap.h"
#include "Logger.h"
#include "ReportFrame.h"
#include "ProtocolFrame.h"
#include "TestSysroot.h"
#include "UiProc.h"
#include "biz_CMDSWork.h"

#include <QElapsedTimer>
#include <QMutex>
#include <mutex>
#include <QUdpSocket>
#include <QtTest>

#include <memory>

namespace LinkTest {

// A port nobody uses right now (the kernel picks it).
inline quint16 freeUdpPort()
{
    QUdpSocket probe;
    probe.bind(QHostAddress(QHostAddress::LocalHost), 0);
    return probe.localPort();
}

// Empties the class-wide queues, so one test's leftovers never reach the next.
inline void clearSharedQueues()
{
    QMutexLocker r(&biz_CMDSWork::receiveHexCmdlock);
    biz_CMDSWork::receivequeueHexCmd.clear();
    QMutexLocker c(&biz_CMDSWork::HexCmdlock);
    biz_CMDSWork::queueHexCmd.clear();
}

inline int sharedReportQueueSize()
{
    QMutexLocker r(&biz_CMDSWork::receiveHexCmdlock);
    return biz_CMDSWork::receivequeueHexCmd.size();
}

// Records every report a worker's receive loop hands over, from that loop's thread.
class ReportTap
{
public:
    explicit ReportTap(biz_CMDSWork *worker)
    {
        m_conn = QObject::connect(worker, &biz_CMDSWork::signalSendReceiveMessage, worker,
                                  [this](const model_Protocoldata &rec) {
                                      std::lock_guard<std::mutex> lock(m_mutex);
                                      m_records.append(rec);
                                  },
                                  Qt::DirectConnection);
    }
    ~ReportTap() { QObject::disconnect(m_conn); }
    QList<model_Protocoldata> records() const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_records;
    }
    int size() const { return records().size(); }

private:
    QMetaObject::Connection m_conn;
    mutable std::mutex m_mutex; // not QMutex: ThreadSanitizer sees this one
    QList<model_Protocoldata> m_records;
};

// The media service's side: a socket on a private port, and a UiProc that
// sends to it and listens on another private port.
class LinkFixture
{
public:
    LinkFixture()
        : sysroot(true)
    {
        clearSharedQueues();
        QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        mediaPort = peer.localPort();
        listenPort = freeUdpPort();
        qputenv("CS_MEDIA_PORT", QByteArray::number(mediaPort));
        qputenv("CS_LISTEN_PORT", QByteArray::number(listenPort));
        proc.reset(new UiProc);
        Logger::instance().setSwitch(1);
    }
    ~LinkFixture()
    {
        proc.reset();
        Logger::instance().close();
        clearSharedQueues();
    }

    // Waits (spinning the event loop, which the send path needs) for the
    // next datagram at the peer; empty on time-out.
    QByteArray nextCommand(int timeoutMs = 3000, quint16 *fromPort = nullptr)
    {
        QElapsedTimer t;
        t.start();
        while (!peer.hasPendingDatagrams() && t.elapsed() < timeoutMs)
            QTest::qWait(1);
        if (!peer.hasPendingDatagrams())
            return QByteArray();
        QByteArray d;
        d.resize(int(peer.pendingDatagramSize()));
        QHostAddress from;
        quint16 port = 0;
        d.resize(int(peer.readDatagram(d.data(), d.size(), &from, &port)));
        if (fromPort)
            *fromPort = port;
        lastCommandPort = port;
        return d;
    }
    // Everything that arrives within quietMs (spinning the event loop).
    QList<QByteArray> drainCommands(int quietMs)
    {
        QList<QByteArray> out;
        for (;;) {
            const QByteArray d = nextCommand(quietMs);
            if (d.isEmpty() && !peer.hasPendingDatagrams())
                break;
            out << d;
        }
        return out;
    }
    // Sends a datagram as the service would: to the listening port, or
    // back to the port the command socket sends from.
    void sendToListener(const QByteArray &bytes) { peer.writeDatagram(bytes, QHostAddress::LocalHost, listenPort); }
    void sendToCommandSocket(const QByteArray &bytes)
    {
        peer.writeDatagram(bytes, QHostAddress::LocalHost, proc->commandSocketPort());
    }

    TestSysroot sysroot;
    QUdpSocket peer;
    quint16 mediaPort = 0;
    quint16 listenPort = 0;
    quint16 lastCommandPort = 0;
    std::unique_ptr<UiProc> proc;
};

} // namespace LinkTest
