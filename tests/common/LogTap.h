#pragma once
// Collects every message logged while it exists, from any thread.
#include <QList>
#include <QPair>
#include <QString>
#include <QtGlobal>

#include <atomic>
#include <functional>
#include <mutex>

// Every message of every category; `hook` sees each one as it is logged, on
// the thread that logs it.
class LogTap
{
public:
    using Hook = std::function<void(const QString &category, const QString &text)>;
    LogTap()
    {
        s_self = this;
        m_previous = qInstallMessageHandler(&LogTap::handler);
    }
    ~LogTap()
    {
        qInstallMessageHandler(m_previous);
        s_self = nullptr;
    }
    void setHook(Hook hook)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_hook = std::move(hook);
    }
    int count(const QString &category, const QString &part) const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        int n = 0;
        for (const auto &line : m_lines)
            n += line.first == category && line.second.contains(part);
        return n;
    }
    QString all() const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        QString out;
        for (const auto &line : m_lines)
            out += line.first + ": " + line.second + '\n';
        return out;
    }

private:
    static void handler(QtMsgType, const QMessageLogContext &ctx, const QString &msg)
    {
        LogTap *self = s_self;
        if (!self)
            return;
        const QString category = QString::fromLatin1(ctx.category ? ctx.category : "");
        Hook hook;
        {
            std::lock_guard<std::mutex> lock(self->m_mutex);
            self->m_lines.append({category, msg});
            hook = self->m_hook;
        }
        if (hook)
            hook(category, msg);
    }
    QtMessageHandler m_previous = nullptr;
    mutable std::mutex m_mutex; // not QMutex: ThreadSanitizer sees this one
    QList<QPair<QString, QString>> m_lines;
    Hook m_hook;
    static inline std::atomic<LogTap *> s_self{nullptr};
};
