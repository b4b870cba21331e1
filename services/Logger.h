#pragma once
// The run's diagnostic log: one numbered "<n>.CSLOG" file per run under
// /CSLog/, at most eleven old ones kept. Off unless the settings switch
// openLog is non-zero when UiProc starts. One run's file stops growing at
// kFileCap bytes (plus one line saying so); later lines reach the console only.
#include "LineThrottle.h"

#include <QDateTime>
#include <QFile>
#include <QList>
#include <mutex>
#include <QString>

class Logger
{
public:
    // 16 MiB: days of normal logging, yet a runaway writer cannot fill the
    // device's storage (eleven old files are kept besides this one).
    static constexpr qint64 kFileCap = 16 * 1024 * 1024;
    // Lines written before the switch is read (the settings import runs
    // first) are kept, at most this many, and written once it is known.
    static constexpr int kMaxEarlyLines = 64;

    static Logger &instance();

    // Appends one line (the writeLog slot). Safe from any thread.
    void write(const QString &text);
    // The switch as read from the settings at start ("/setting/openLog").
    // The first call writes the lines kept so far when non-zero, drops them when 0.
    void setSwitch(int value);
    int logSwitch() const;
    // Closes this run's file (UiProc's destruction); later lines reach only the console.
    void closeFile();
    // Closes the file and forgets it, so the next line starts a new run's file (tests).
    void close();
    // Back to the state at process start: no file, switch not yet known, default cap (tests).
    void reset();
    // Size at which this run's file stops growing (tests use a small one).
    void setFileCap(qint64 bytes);
    // Path of the file chosen for this run, "" before the first line.
    QString currentFile() const;

    // One file per day under "<cwd>/log/", "yyyyMMdd.log".
    static void writeDaily(const QString &text);

private:
    Logger() = default;
    // The rest run with m_mutex held.
    void chooseFile();
    void emitLine(const QDateTime &time, const QString &text);
    void flushEarlyLines();

    mutable std::mutex m_mutex; // std::mutex, so ThreadSanitizer sees the guard
    int m_switch = 0;
    bool m_switchKnown = false;
    bool m_chosen = false;
    QString m_fileName = QStringLiteral("0");
    QFile m_file;
    qint64 m_fileBytes = 0;
    qint64 m_fileCap = kFileCap;
    QList<QPair<QDateTime, QString>> m_early;
    int m_earlyDropped = 0;
};

// Shorthand used across the code base for the specified log lines.
inline void writeLog(const QString &text) { Logger::instance().write(text); }

// A line about outside input, which may come in floods: written at most once
// a second per throttle, with the count of lines held back since the last.
inline void writeLogThrottled(LineThrottle &throttle, const QString &text)
{
    int held = 0;
    if (throttle.admit(&held))
        writeLog(text + (held ? QStringLiteral(" (%1 more since the last such line)").arg(held) : QString()));
}
