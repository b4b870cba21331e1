#pragma once
// The hand-over between the sockets and the receive queue. The socket's
// thread only pushes datagrams here; one worker thread logs them, collects
// data blocks and queues the reports in arrival order, paced as the queue
// requires. The socket's thread therefore never sleeps or parses, and a
// flood is shed here, with a log line, instead of piling up.
#include "BlockCollector.h"
#include "LinkLog.h"
#include "model_Protocoldata.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

class ReportIntake
{
public:
    using Deliver = std::function<void(const model_Protocoldata &)>;

    // Datagrams waiting for the worker. Queuing a report costs 5 ms, so 64
    // waiting reports are a third of a second behind: enough for any burst
    // the service sends, short enough that a report after a flood is late by
    // well under a second.
    static constexpr int kMaxWaiting = 64;
    static constexpr qint64 kMaxWaitingBytes = 4 * 1024 * 1024;

    // deliver queues one report; by default the shared receive queue.
    explicit ReportIntake(Deliver deliver = {});
    ~ReportIntake(); // stops the worker after the datagram in hand
    ReportIntake(const ReportIntake &) = delete;
    ReportIntake &operator=(const ReportIntake &) = delete;

    // Any thread. False when the datagram was shed because too much waits.
    bool push(const QByteArray &datagram, const QString &fromAddress, quint16 fromPort);
    // True while a data block is being collected.
    bool isCollecting() const { return m_openBlocks.load() > 0; }
    // True while nothing waits and the worker is idle (tests).
    bool isIdle() const;

private:
    struct Item
    {
        QByteArray datagram;
        QString fromAddress;
        quint16 fromPort;
    };
    void run();
    void handle(const Item &item);

    const Deliver m_deliver;
    QElapsedTimer m_clock;

    mutable std::mutex m_lock;
    std::condition_variable m_wake;
    std::deque<Item> m_items;
    qint64 m_waitingBytes = 0;
    bool m_busy = false;
    bool m_stop = false;
    LinkLog::RateLimit m_shedLog;

    // The worker's own.
    BlockCollector m_collector;
    LinkLog::RepeatFilter m_repeats;
    LinkLog::RateLimit m_rejectLog;
    std::atomic<int> m_openBlocks{0};

    std::thread m_thread; // last: started once everything above exists
};
