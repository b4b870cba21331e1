#pragma once
// The device command-queue library: a class-wide send queue and receive
// queue, each drained by one loop that hands records, one at a time and in
// order, to the GUI thread through its signal (connected blocking-queued).
#include "model_Protocoldata.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QWaitCondition>

#include <atomic>

class biz_CMDSWork : public QObject
{
    Q_OBJECT
public:
    explicit biz_CMDSWork(QObject *parent = nullptr);

    // Class-wide queues, their locks and the reply flag. Lock order:
    // receiveHexCmdlock before HexCmdlock. They are never destroyed: a
    // detached loop may still be waiting on them while the process exits.
    static QList<model_Protocoldata> &queueHexCmd;
    static QMutex &HexCmdlock;
    static QList<model_Protocoldata> &receivequeueHexCmd;
    static QMutex &receiveHexCmdlock;
    static bool bRetFlag;
    // Woken (under the matching lock) whenever a record is queued or a loop is stopped.
    static QWaitCondition &HexCmdReady;
    static QWaitCondition &receiveHexCmdReady;

    // Run flags, set by the owner before it starts each loop.
    std::atomic<bool> bSendRun{false};
    std::atomic<bool> bReceiveRun{false};

    // Loop bodies; each returns once its run flag is cleared.
    void x1_GetQueueWork();
    void x1_receiveGetQueueWork();
    // Drops every command not yet sent.
    void clearQueue();
    // Clears both run flags and wakes the loops so they end without taking
    // anything more off the shared queues.
    void stop();
    // True while a loop has taken a record and not finished handing it over.
    bool isHandingOver() const { return m_inFlight.load() > 0; }

    // Queue operations used by the transport. Each sleeps 5 ms with its lock
    // held: deliberate pacing that spaces records at least 5 ms apart.
    static void enqueueCommand(const model_Protocoldata &rec);
    static void enqueueReport(const model_Protocoldata &rec);
    static void setReplyFlag(bool value);

signals:
    void signalSendMessage(model_Protocoldata parameters);
    void signalSendReceiveMessage(model_Protocoldata parameters);

private:
    std::atomic<int> m_inFlight{0};
};
