#pragma once
// Keeps the link's log lines bounded: a datagram is logged with at most a
// fixed number of its bytes, the same datagram repeated (a heartbeat and
// its answer, a flood of one frame) is logged once a minute with a count,
// and warnings about hostile traffic at most once a second.
#include "LineThrottle.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace LinkLog {

// Bytes of one datagram that reach the log; the rest is counted.
constexpr int kLoggedBytes = 256;

// Frames are plain ASCII; anything else (raw blocks, garbage) is escaped so
// the log stays one readable line, cut after kLoggedBytes bytes.
QString printable(const QByteArray &bytes);

using RateLimit = ::RateLimit;

// Remembers recently logged datagrams. A datagram seen again within the
// window is not logged; the next time it is logged, the count of those
// held back comes with it.
class RepeatFilter
{
public:
    static constexpr qint64 kWindowMs = 60000;
    static constexpr int kRemembered = 32;

    // True when this datagram should be logged now; *repeats then receives
    // how many identical ones were held back since it was last logged.
    bool shouldLog(const QByteArray &datagram, qint64 nowMs, int *repeats);

private:
    struct Seen
    {
        QByteArray bytes;
        qint64 loggedMs;
        int held;
    };
    std::vector<Seen> m_seen; // most recently logged last
};

} // namespace LinkLog
