#pragma once
// Runs "sync" on one background thread so that nobody waits for the disk to
// flush: while a USB recording is being written a sync can take seconds.
// Requests coalesce: any number of them made while a sync runs lead to
// exactly one more sync after it. The exit status is ignored (best effort).
#include <condition_variable>
#include <mutex>

class DiskSync
{
public:
    static DiskSync &instance();

    // Returns at once; a sync runs soon on the worker thread.
    void request();
    // Waits until no sync runs or waits to run, at most timeoutMs (tests, orderly shutdown).
    bool waitIdle(int timeoutMs);

private:
    DiskSync() = default;
    void run();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    bool m_started = false;
    bool m_pending = false;
    bool m_running = false;
};
