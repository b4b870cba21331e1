#include "biz_CMDSWork.h"

#include <cerrno>
#include <ctime>

QList<model_Protocoldata> biz_CMDSWork::queueHexCmd;
QMutex biz_CMDSWork::HexCmdlock;
QList<model_Protocoldata> biz_CMDSWork::receivequeueHexCmd;
QMutex biz_CMDSWork::receiveHexCmdlock;
bool biz_CMDSWork::bRetFlag = false;
QWaitCondition biz_CMDSWork::HexCmdReady;
QWaitCondition biz_CMDSWork::receiveHexCmdReady;

namespace {

void pacingSleep()
{
    timespec req{0, 5 * 1000 * 1000};
    timespec rem{};
    while (nanosleep(&req, &rem) != 0 && errno == EINTR)
        req = rem;
}

// An idle loop re-checks its run flag at this period even without a wake-up.
constexpr unsigned long kIdleWaitMs = 200;

} // namespace

biz_CMDSWork::biz_CMDSWork(QObject *parent)
    : QObject(parent)
{
    registerProtocolTypes();
}

void biz_CMDSWork::x1_GetQueueWork()
{
    while (bSendRun.load()) {
        model_Protocoldata rec;
        {
            QMutexLocker lock(&HexCmdlock);
            while (bSendRun.load() && queueHexCmd.isEmpty())
                HexCmdReady.wait(&HexCmdlock, kIdleWaitMs);
            if (!bSendRun.load())
                return;
            rec = queueHexCmd.takeFirst();
            ++m_inFlight;
        }
        emit signalSendMessage(rec);
        --m_inFlight;
    }
}

void biz_CMDSWork::x1_receiveGetQueueWork()
{
    while (bReceiveRun.load()) {
        model_Protocoldata rec;
        {
            QMutexLocker lock(&receiveHexCmdlock);
            while (bReceiveRun.load() && receivequeueHexCmd.isEmpty())
                receiveHexCmdReady.wait(&receiveHexCmdlock, kIdleWaitMs);
            if (!bReceiveRun.load())
                return;
            rec = receivequeueHexCmd.takeFirst();
            ++m_inFlight;
        }
        emit signalSendReceiveMessage(rec);
        --m_inFlight;
    }
}

void biz_CMDSWork::clearQueue()
{
    QMutexLocker lock(&HexCmdlock);
    queueHexCmd.clear();
}

void biz_CMDSWork::stop()
{
    {
        QMutexLocker lock(&receiveHexCmdlock);
        bReceiveRun = false;
        receiveHexCmdReady.wakeAll();
    }
    QMutexLocker lock(&HexCmdlock);
    bSendRun = false;
    HexCmdReady.wakeAll();
}

void biz_CMDSWork::enqueueCommand(const model_Protocoldata &rec)
{
    QMutexLocker lock(&HexCmdlock);
    pacingSleep();
    queueHexCmd.append(rec);
    HexCmdReady.wakeAll();
}

void biz_CMDSWork::enqueueReport(const model_Protocoldata &rec)
{
    QMutexLocker lock(&receiveHexCmdlock);
    pacingSleep();
    receivequeueHexCmd.append(rec);
    receiveHexCmdReady.wakeAll();
    QMutexLocker flagLock(&HexCmdlock);
    bRetFlag = true;
}

void biz_CMDSWork::setReplyFlag(bool value)
{
    QMutexLocker lock(&HexCmdlock);
    bRetFlag = value;
}
