#include "LinkLog.h"

#include <algorithm>

namespace LinkLog {

QString printable(const QByteArray &bytes)
{
    const int shown = qMin(bytes.size(), kLoggedBytes);
    QString out;
    out.reserve(shown + 32);
    for (int i = 0; i < shown; ++i) {
        const uchar c = uchar(bytes.at(i));
        if (c >= 0x20 && c < 0x7f && c != '\\')
            out.append(QLatin1Char(char(c)));
        else
            out.append(QStringLiteral("\\x%1").arg(c, 2, 16, QLatin1Char('0')));
    }
    if (shown < bytes.size())
        out.append(QStringLiteral("... (%1 bytes)").arg(bytes.size()));
    return out;
}

bool RepeatFilter::shouldLog(const QByteArray &datagram, qint64 nowMs, int *repeats)
{
    *repeats = 0;
    // Frames and short reports repeat; large blocks are told apart by more
    // than the log shows of them, so they are always logged.
    if (datagram.size() > kLoggedBytes)
        return true;
    auto it = std::find_if(m_seen.begin(), m_seen.end(), [&](const Seen &s) { return s.bytes == datagram; });
    if (it != m_seen.end() && nowMs - it->loggedMs < kWindowMs) {
        ++it->held;
        return false;
    }
    if (it != m_seen.end()) {
        *repeats = it->held;
        m_seen.erase(it);
    }
    if (int(m_seen.size()) >= kRemembered)
        m_seen.erase(m_seen.begin());
    m_seen.push_back(Seen{datagram, nowMs, 0});
    return true;
}

} // namespace LinkLog
