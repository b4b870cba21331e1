#include "biz_CMDSWork.h"

#include <cerrno>
#include <ctime>

#include <sys/prctl.h>

QList<model_Protocoldata> &biz_CMDSWork::queueHexCmd = *new QList<model_Protocoldata>;
QMutex &biz_CMDSWork::HexCmdlock = *new QMutex;
QList<model_Protocoldata> &biz_CMDSWork::receivequeueHexCmd = *new QList<model_Protocoldata>;
QMutex &biz_CMDSWork::receiveHexCmdlock = *new QMutex;
bool biz_CMDSWork::bRetFlag = false;
QWaitCondition &biz_CMDSWork::HexCmdReady = *new QWaitCondition;
QWaitCondition &biz_CMDSWork::receiveHexCmdReady = *new QWaitCondition;

namespace {

void pacingSleep()
{
    // The default 50 us timer slack would stretch every paced record; the
    // pacing is meant to be 5 ms, so ask for a tight wake-up on this thread.
    thread_local bool tightSlack = false;
    if (!tightSlack) {
        prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL);
        tightSlack = true;
    }
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
    // Takes every report queued so far in one go and hands them over one at
    // a time, in order. Between two of them this loop then needs no lock, so
    // the next report is already posted to the GUI thread while that thread
    // sleeps in its paced enqueue, instead of after it.
    QList<model_Protocoldata> batch;
    while (bReceiveRun.load()) {
        {
            QMutexLocker lock(&receiveHexCmdlock);
            while (bReceiveRun.load() && receivequeueHexCmd.isEmpty())
                receiveHexCmdReady.wait(&receiveHexCmdlock, kIdleWaitMs);
            if (!bReceiveRun.load())
                return;
            batch.swap(receivequeueHexCmd);
            ++m_inFlight;
        }
        int handed = 0;
        while (handed < batch.size() && (handed == 0 || bReceiveRun.load())) {
            emit signalSendReceiveMessage(batch.at(handed));
            ++handed;
        }
        if (handed < batch.size()) {
            // Stopped part-way: the rest goes back to the front of the shared
            // queue, in order, for a worker that still runs.
            QMutexLocker lock(&receiveHexCmdlock);
            receivequeueHexCmd = batch.mid(handed) + receivequeueHexCmd;
            receiveHexCmdReady.wakeAll();
        }
        batch.clear();
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
