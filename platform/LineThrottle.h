#pragma once
// Log lines about outside input (a refused command text, a refused
// address) are written at most once a second, from any thread; the lines
// held back in between are counted.
#include <QElapsedTimer>
#include <QMutex>
#include <QString>

class LineThrottle
{
public:
    // True when a line may be written now; *held then receives the number
    // of lines held back since the last one written.
    bool admit(int *held)
    {
        QMutexLocker lock(&m_mutex);
        if (m_clock.isValid() && m_clock.elapsed() < 1000) {
            ++m_held;
            return false;
        }
        m_clock.start();
        *held = m_held;
        m_held = 0;
        return true;
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
    int m_held = 0;
};
