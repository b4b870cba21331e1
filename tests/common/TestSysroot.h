#pragma once
// A private sysroot per test: a copy of the repository's template in a
// temporary directory, set as CS_SYSROOT for the life of the object.
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <atomic>
#include <mutex>
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

// Collects the text of every message of one logging category (e.g. "cs.log")
// while it lives; the exact texts the product writes to its log go there.
class CategoryCapture
{
public:
    explicit CategoryCapture(const char *category = "cs.log")
        : m_category(category)
    {
        s_current = this;
        m_previous = qInstallMessageHandler(&CategoryCapture::handler);
    }
    ~CategoryCapture()
    {
        qInstallMessageHandler(m_previous);
        s_current = nullptr;
    }
    QStringList lines() const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_lines;
    }
    bool contains(const QString &line) const { return lines().contains(line); }
    void clear()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_lines.clear();
    }

private:
    static void handler(QtMsgType type, const QMessageLogContext &ctx, const QString &msg)
    {
        CategoryCapture *self = s_current.load();
        if (self && ctx.category && qstrcmp(ctx.category, self->m_category) == 0) {
            std::lock_guard<std::mutex> lock(self->m_mutex);
            self->m_lines.append(msg);
            return;
        }
        if (self && self->m_previous)
            self->m_previous(type, ctx, msg);
    }
    const char *m_category;
    QtMessageHandler m_previous = nullptr;
    mutable std::mutex m_mutex; // not QMutex: ThreadSanitizer sees this one
    QStringList m_lines;
    static inline std::atomic<CategoryCapture *> s_current{nullptr};
};
