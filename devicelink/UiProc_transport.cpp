// Command transport: records leave through the class-wide send queue and
// come back, one at a time, to sendDatatoDevice on the GUI thread, which
// writes them through the link's sockets (LinkTransport). Reports go the
// other way: the sockets hand datagrams to the report intake, whose thread
// queues them for the receive loop, which hands them to
// processInfoDisplayonUI and to the report dispatcher.
#include "UiProc.h"

#include "LinkTransport.h"
#include "biz_CMDSWork.h"

#include <QCoreApplication>
#include <QMutex>
#include <QThread>

#include <thread>

namespace {

// Live UiProc objects in construction order; the last one's worker is the
// process-wide worker. Only the GUI thread constructs and destroys UiProc,
// the lock keeps processWorker() safe from anywhere.
QMutex g_registryLock;
QList<UiProc *> g_live;
biz_CMDSWork *g_processWorker = nullptr;

} // namespace

biz_CMDSWork *UiProc::processWorker()
{
    QMutexLocker lock(&g_registryLock);
    return g_processWorker;
}

quint16 UiProc::destinationPort() const { return m_transport->destinationPort(); }
quint16 UiProc::listenPort() const { return m_transport->listenPort(); }
quint16 UiProc::commandSocketPort() const { return m_transport->commandSocketPort(); }
bool UiProc::isCollectingBlock() const { return m_transport->isCollectingBlock(); }

void UiProc::setBroadcastAddresses(const QList<QHostAddress> &addresses)
{
    m_transport->setBroadcastAddresses(addresses);
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

    connect(this, &UiProc::signalReInitUdp, this, &UiProc::reInitUdp, Qt::QueuedConnection);
    m_transport = new LinkTransport(this);
}

void UiProc::teardownTransport()
{
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
    // Last, once nothing more can be handed over for sending: the intake's
    // thread stops after the datagram in hand (it never waits for this one).
    delete m_transport;
    m_transport = nullptr;
}

void UiProc::reInitUdp() { m_transport->reinit(); }

void UiProc::readPendingDatagrams() { m_transport->readCommandSocket(); }

void UiProc::readPendingDatagramsNet() { m_transport->readListenSocket(); }

void UiProc::sendDatatoDevice(model_Protocoldata parameters)
{
    if (m_transport)
        m_transport->send(parameters);
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
