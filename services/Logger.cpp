#include "Logger.h"

#include "LogCategories.h"
#include "Platform.h"

#include <QDateTime>
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
    QMutexLocker lock(&m_mutex);
    m_switch = value;
}

int Logger::logSwitch() const
{
    QMutexLocker lock(&m_mutex);
    return m_switch;
}

void Logger::closeFile()
{
    QMutexLocker lock(&m_mutex);
    if (m_file.isOpen())
        m_file.close();
}

void Logger::close()
{
    QMutexLocker lock(&m_mutex);
    if (m_file.isOpen())
        m_file.close();
    m_chosen = false;
    m_fileName = QStringLiteral("0");
}

QString Logger::currentFile() const
{
    QMutexLocker lock(&m_mutex);
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
    m_file.open(QIODevice::Append | QIODevice::Text);
}

void Logger::write(const QString &text)
{
    if (text.isEmpty())
        return;
    QMutexLocker lock(&m_mutex);
    const QString dirPath = Platform::path(QStringLiteral("/CSLog/"));
    if (!QDir(dirPath).exists())
        QDir().mkpath(dirPath);
    if (!m_chosen) {
        if (m_switch == 0)
            return;
        chooseFile();
    }
    qCDebug(lcLog).noquote() << text;
    if (!m_file.isOpen())
        return;
    QTextStream out(&m_file);
    out.setCodec("UTF-8");
    out << QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-hh-mm-ss")) << ": " << text << '\n';
    out.flush();
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
