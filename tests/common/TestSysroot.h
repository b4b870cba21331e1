#pragma once
// A private sysroot per test: a copy of the repository's template in a
// temporary directory, set as CS_SYSROOT for the life of the object.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QtTest/QTest>

class TestSysroot
{
public:
    explicit TestSysroot(bool withDefaultConfig = false)
    {
        const QString tmpl = QString::fromLocal8Bit(qgetenv("CS_SYSROOT_TEMPLATE")).isEmpty()
            ? QStringLiteral(CS_SOURCE_DIR "/sysroot-template")
            : QString::fromLocal8Bit(qgetenv("CS_SYSROOT_TEMPLATE"));
        m_ok = m_dir.isValid()
            && QProcess::execute(QStringLiteral("cp"), {QStringLiteral("-a"), tmpl + QStringLiteral("/."), m_dir.path()}) == 0;
        QDir().mkpath(path(QStringLiteral("/usr/bin/config")));
        if (withDefaultConfig)
            QFile::copy(QStringLiteral(CS_SOURCE_DIR "/config/CS_Config.ini"), configFile());
        m_previous = qgetenv("CS_SYSROOT");
        qputenv("CS_SYSROOT", m_dir.path().toLocal8Bit());
    }
    ~TestSysroot()
    {
        if (m_previous.isEmpty())
            qunsetenv("CS_SYSROOT");
        else
            qputenv("CS_SYSROOT", m_previous);
    }
    bool isValid() const { return m_ok; }
    QString root() const { return m_dir.path(); }
    QString path(const QString &devicePath) const { return m_dir.path() + devicePath; }
    QString configFile() const { return path(QStringLiteral("/usr/bin/config/CS_Config.ini")); }

    // Lines the stand-in programs recorded, in order.
    QStringList commands() const
    {
        QFile f(path(QStringLiteral("/commands.log")));
        if (!f.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    static QByteArray readFile(const QString &file)
    {
        QFile f(file);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    static bool writeFile(const QString &file, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(file).absolutePath());
        QFile f(file);
        return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
    }

private:
    QTemporaryDir m_dir;
    QByteArray m_previous;
    bool m_ok = false;
};
