#pragma once
// Collects every message logged while it exists, from any thread.
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <atomic>
#include <functional>
#include <mutex>

// Every message of every category; `hook` sees each one as it is logged, on
// the thread that logs it. Warnings and worse from outside the product's own
// "cs." categories (Qt's, QML's) still reach the console, so a failing test
// shows them; the product's lines are the tap's to read.
class LogTap
{
public:
    using Hook = std::function<void(const QString &category, const QString &text)>;
    // With `only`, the tap keeps that category alone and passes every other
    // message on as if it were not there.
    explicit LogTap(const char *only = nullptr)
        : m_only(only)
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
    // The texts of one category, in the order they were logged ("cs.log"
    // holds the exact lines the product writes to its log).
    QStringList lines(const char *category = "cs.log") const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        QStringList out;
        for (const auto &line : m_lines)
            if (line.first == QLatin1String(category))
                out << line.second;
        return out;
    }
    // Messages of `category` containing `part`.
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
    void clear()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_lines.clear();
    }

protected:
    const char *const m_only;

private:
    static void handler(QtMsgType type, const QMessageLogContext &ctx, const QString &msg)
    {
        LogTap *self = s_self;
        if (!self)
            return;
        const QString category = QString::fromLatin1(ctx.category ? ctx.category : "");
        if (self->m_only && category != QLatin1String(self->m_only)) {
            if (self->m_previous)
                self->m_previous(type, ctx, msg);
            return;
        }
        Hook hook;
        {
            std::lock_guard<std::mutex> lock(self->m_mutex);
            self->m_lines.append({category, msg});
            hook = self->m_hook;
        }
        if (hook)
            hook(category, msg);
        if (!self->m_only && type >= QtWarningMsg && !category.startsWith(QLatin1String("cs.")) && self->m_previous)
            self->m_previous(type, ctx, msg);
    }
    QtMessageHandler m_previous = nullptr;
    mutable std::mutex m_mutex; // not QMutex: ThreadSanitizer sees this one
    QList<QPair<QString, QString>> m_lines;
    Hook m_hook;
    static inline std::atomic<LogTap *> s_self{nullptr};
};

// A tap on one category, for tests that look at one only.
class CategoryCapture : public LogTap
{
public:
    explicit CategoryCapture(const char *category = "cs.log")
        : LogTap(category)
    {
    }
    QStringList lines() const { return LogTap::lines(m_only); }
    bool contains(const QString &line) const { return lines().contains(line); }
};
