#include "ReportIntake.h"

#include "Logger.h"
#include "biz_CMDSWork.h"

#include <sys/prctl.h>

ReportIntake::ReportIntake(Deliver deliver)
    : m_deliver(deliver ? std::move(deliver) : Deliver(&biz_CMDSWork::enqueueReport))
{
    m_clock.start();
    m_thread = std::thread(&ReportIntake::run, this);
}

ReportIntake::~ReportIntake()
{
    {
        std::lock_guard<std::mutex> lock(m_lock);
        m_stop = true;
    }
    m_wake.notify_all();
    m_thread.join();
}

bool ReportIntake::push(const QByteArray &datagram, const QString &fromAddress, quint16 fromPort)
{
    int held = 0;
    bool logShed = false;
    {
        std::lock_guard<std::mutex> lock(m_lock);
        if (int(m_items.size()) < kMaxWaiting && m_waitingBytes + datagram.size() <= kMaxWaitingBytes) {
            m_items.push_back(Item{datagram, fromAddress, fromPort});
            m_waitingBytes += datagram.size();
            m_wake.notify_one();
            return true;
        }
        logShed = m_shedLog.admit(m_clock.elapsed(), &held);
    }
    if (logShed)
        writeLog(QStringLiteral("UiProc::readPendingDatagrams too many reports waiting (%1), datagram from %2:%3 dropped"
                                "; %4 more dropped since the last such line")
                     .arg(kMaxWaiting)
                     .arg(fromAddress)
                     .arg(fromPort)
                     .arg(held));
    return false;
}

bool ReportIntake::isIdle() const
{
    std::lock_guard<std::mutex> lock(m_lock);
    return m_items.empty() && !m_busy;
}

void ReportIntake::run()
{
    prctl(PR_SET_NAME, "cs-link-rx", 0, 0, 0);
    std::unique_lock<std::mutex> lock(m_lock);
    for (;;) {
        while (!m_stop && m_items.empty()) {
            const qint64 deadline = m_collector.nextDeadline();
            if (deadline < 0) {
                m_wake.wait(lock);
            } else {
                const qint64 left = deadline - m_clock.elapsed();
                if (left > 0)
                    m_wake.wait_for(lock, std::chrono::milliseconds(left));
                lock.unlock();
                m_collector.expire(m_clock.elapsed());
                m_openBlocks = m_collector.openBlocks();
                lock.lock();
            }
        }
        if (m_stop)
            return;
        const Item item = std::move(m_items.front());
        m_items.pop_front();
        m_waitingBytes -= item.datagram.size();
        m_busy = true;
        lock.unlock();
        handle(item);
        lock.lock();
        m_busy = false;
    }
}

void ReportIntake::handle(const Item &item)
{
    const qint64 now = m_clock.elapsed();
    const BlockCollector::Sender sender{item.fromAddress, item.fromPort};
    int repeats = 0;
    bool logged = m_repeats.shouldLog(item.datagram, now, &repeats);
    QString note;
    if (repeats > 0)
        note = QStringLiteral(" (and %1 identical datagrams not logged)").arg(repeats);
    if (logged && !m_collector.wouldTake(item.datagram, sender)) {
        // Garbage is logged, with its rejection, once a second at most.
        int held = 0;
        logged = m_rejectLog.admit(now, &held);
        if (held > 0)
            note += QStringLiteral(" (and %1 more malformed datagrams not logged)").arg(held);
    }
    if (logged)
        writeLog(QStringLiteral("UiProc::readPendingDatagrams--------------- data:") + QStringLiteral("recv from:")
                 + item.fromAddress + QStringLiteral("-- udp data:") + LinkLog::printable(item.datagram) + note);
    const auto rec = m_collector.feed(item.datagram, sender, now, !logged);
    m_openBlocks = m_collector.openBlocks();
    if (rec)
        m_deliver(*rec);
}
