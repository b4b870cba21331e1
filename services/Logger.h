#pragma once
// The run's diagnostic log: one numbered "<n>.CSLOG" file per run under
// /CSLog/, at most eleven old ones kept. Off unless the settings switch
// openLog is non-zero when UiProc starts.
#include <QFile>
#include <QMutex>
#include <QString>

class Logger
{
public:
    static Logger &instance();

    // Appends one line (the writeLog slot). Safe from any thread.
    void write(const QString &text);
    // The switch as read from the settings at start ("/setting/openLog").
    void setSwitch(int value);
    int logSwitch() const;
    // Closes this run's file (UiProc's destruction); later lines reach only the console.
    void closeFile();
    // Closes the file and forgets it, so the next line starts a new run's file (tests).
    void close();
    // Path of the file chosen for this run, "" before the first line.
    QString currentFile() const;

    // One file per day under "<cwd>/log/", "yyyyMMdd.log".
    static void writeDaily(const QString &text);

private:
    Logger() = default;
    void chooseFile(); // with m_mutex held

    mutable QMutex m_mutex;
    int m_switch = 0;
    bool m_chosen = false;
    QString m_fileName = QStringLiteral("0");
    QFile m_file;
};

// Shorthand used across the code base for the specified log lines.
inline void writeLog(const QString &text) { Logger::instance().write(text); }
