#include "Logger.h"

#include "LogCategories.h"
#include "Platform.h"

#include <QDir>
#include <QTextStream>

#include <algorithm>

Logger &Logger::instance()
{
    static Logger logger;
    return logger;
}

void Logger::setSwitch(int value)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_switch = value;
    if (m_switchKnown)
        return;
    m_switchKnown = true;
    if (value != 0 && !m_chosen && (!m_early.isEmpty() || m_earlyDropped > 0))
        flushEarlyLines();
    m_early.clear();
    m_earlyDropped = 0;
}

int Logger::logSwitch() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_switch;
}

void Logger::closeFile()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_file.isOpen())
        m_file.close();
}

void Logger::close()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_file.isOpen())
        m_file.close();
    m_chosen = false;
    m_fileName = QStringLiteral("0");
    m_fileBytes = 0;
}

void Logger::reset()
{
    close();
    std::lock_guard<std::mutex> lock(m_mutex);
    m_switch = 0;
    m_switchKnown = false;
    m_fileCap = kFileCap;
    m_early.clear();
    m_earlyDropped = 0;
}

void Logger::setFileCap(qint64 bytes)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_fileCap = bytes;
}

QString Logger::currentFile() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_chosen ? m_file.fileName() : QString();
}

void Logger::chooseFile()
{
    const QString dirPath = Platform::path(QStringLiteral("/CSLog/"));
    QDir dir(dirPath);
    QFileInfoList files = dir.entryInfoList({QStringLiteral("*.CSLOG")}, QDir::Files | QDir::Readable);
    std::stable_sort(files.begin(), files.end(), [](const QFileInfo &a, const QFileInfo &b) {
        return a.baseName().toULongLong() < b.baseName().toULongLong();
    });
    m_fileName = files.isEmpty() ? QStringLiteral("0")
                                 : QString::number(files.last().baseName().toULongLong() + 1);
    if (files.size() > 10) {
        qCDebug(lcLog).noquote() << "remove: " + files.first().fileName();
        QFile::remove(files.first().absoluteFilePath());
    }
    m_chosen = true;
    m_file.setFileName(dirPath + m_fileName + QStringLiteral(".CSLOG"));
    if (m_file.open(QIODevice::Append | QIODevice::Text))
        m_fileBytes = m_file.size();
}

void Logger::flushEarlyLines()
{
    chooseFile();
    for (const auto &line : qAsConst(m_early))
        emitLine(line.first, line.second);
    if (m_earlyDropped > 0)
        emitLine(QDateTime::currentDateTime(),
                 QStringLiteral("%1 earlier lines were not kept: the log switch was not known yet").arg(m_earlyDropped));
}

void Logger::emitLine(const QDateTime &time, const QString &text)
{
    qCDebug(lcLog).noquote() << text;
    if (!m_file.isOpen())
        return;
    const QByteArray stamp = time.toString(QStringLiteral("yyyy-MM-dd-hh-mm-ss")).toUtf8() + ": ";
    const QByteArray line = stamp + text.toUtf8() + '\n';
    if (m_fileBytes + line.size() > m_fileCap) {
        const QString notice = QStringLiteral("log file reached %1 bytes; further lines go to the console only").arg(m_fileBytes);
        qCWarning(lcLog).noquote() << notice;
        m_file.write(stamp + notice.toUtf8() + '\n');
        m_file.close();
        return;
    }
    m_file.write(line);
    m_file.flush();
    m_fileBytes += line.size();
}

void Logger::write(const QString &text)
{
    if (text.isEmpty())
        return;
    std::lock_guard<std::mutex> lock(m_mutex);
    const QString dirPath = Platform::path(QStringLiteral("/CSLog/"));
    if (!QDir(dirPath).exists())
        QDir().mkpath(dirPath);
    if (!m_chosen) {
        if (!m_switchKnown) {
            if (m_early.size() < kMaxEarlyLines)
                m_early.append({QDateTime::currentDateTime(), text});
            else
                ++m_earlyDropped;
            return;
        }
        if (m_switch == 0)
            return;
        chooseFile();
    }
    emitLine(QDateTime::currentDateTime(), text);
}

void Logger::writeDaily(const QString &text)
{
    const QString dirPath = QDir::currentPath() + QStringLiteral("/log/");
    QDir dir(dirPath);
    if (!dir.exists())
        QDir().mkdir(dirPath);
    QFile file(dirPath + QDate::currentDate().toString(QStringLiteral("yyyyMMdd")) + QStringLiteral(".log"));
    if (!file.open(QIODevice::Append | QIODevice::Text)) {
        qCDebug(lcLog) << "Open log file error!";
        return;
    }
    QTextStream out(&file);
    out.setCodec("UTF-8");
    out << '[' << QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) << ']' << text << '\n';
}
