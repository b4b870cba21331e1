#pragma once
// Log lines about outside input (a refused command text, a refused
// address, a flood of datagrams) are written at most once an interval; the
// lines held back in between are counted.
#include <QElapsedTimer>
#include <QMutex>
#include <QString>

// One line per interval on a clock the caller supplies; the lines held back
// in between are counted. Not thread-safe: one thread uses it.
class RateLimit
{
public:
    explicit RateLimit(qint64 intervalMs = 1000)
        : m_intervalMs(intervalMs)
    {
    }
    // True when a line may be written now; *held then receives the number
    // of lines held back since the last one written.
    bool admit(qint64 nowMs, int *held)
    {
        if (m_lastMs >= 0 && nowMs - m_lastMs < m_intervalMs) {
            ++m_held;
            return false;
        }
        m_lastMs = nowMs;
        *held = m_held;
        m_held = 0;
        return true;
    }

private:
    qint64 m_intervalMs;
    qint64 m_lastMs = -1;
    int m_held = 0;
};

// The same, once a second on the monotonic clock, from any thread.
class LineThrottle
{
public:
    // True when a line may be written now; *held then receives the number
    // of lines held back since the last one written.
    bool admit(int *held)
    {
        QMutexLocker lock(&m_mutex);
        if (!m_clock.isValid())
            m_clock.start();
        return m_limit.admit(m_clock.elapsed(), held);
    }

    // Outside text as a log may show it: cut after maxChars (marked "...")
    // and every unprintable character and backslash escaped.
    static QString shown(const QString &text, int maxChars)
    {
        QString out;
        for (const QChar c : text.left(maxChars))
            out += c.isPrint() && c != QLatin1Char('\\') ? QString(c) : QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
        if (text.size() > maxChars)
            out += QStringLiteral("...");
        return out;
    }

private:
    QMutex m_mutex;
    QElapsedTimer m_clock;
    RateLimit m_limit;
};
