#include "DiskSync.h"

#include "Shell.h"

#include <QString>

#include <chrono>
#include <thread>

DiskSync &DiskSync::instance()
{
    // Never deleted: its thread may still be inside a sync when the process exits.
    static DiskSync *sync = new DiskSync;
    return *sync;
}

void DiskSync::request()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_pending = true;
    if (!m_started) {
        m_started = true;
        std::thread([this] { run(); }).detach();
    }
    m_wake.notify_one();
}

bool DiskSync::waitIdle(int timeoutMs)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_idle.wait_for(lock, std::chrono::milliseconds(timeoutMs), [this] { return !m_pending && !m_running; });
}

void DiskSync::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_pending; });
        // Everything requested up to here is covered by this one sync.
        m_pending = false;
        m_running = true;
        lock.unlock();
        Shell::system(QStringLiteral("sync"));
        lock.lock();
        m_running = false;
        if (!m_pending)
            m_idle.notify_all();
    }
}
