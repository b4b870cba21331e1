#pragma once
// Hands the results of detached worker threads back to their owner's
// thread. Workers are never joined and may outlive the owner: once the
// owner is being destroyed their results are dropped instead.
#include <QMetaObject>
#include <QMutex>
#include <QObject>

#include <functional>
#include <memory>

class WorkerReplies
{
    struct State
    {
        QMutex mutex;
        QObject *owner = nullptr;
    };

public:
    explicit WorkerReplies(QObject *owner)
        : m_state(std::make_shared<State>())
    {
        m_state->owner = owner;
    }
    ~WorkerReplies()
    {
        QMutexLocker lock(&m_state->mutex);
        m_state->owner = nullptr;
    }
    WorkerReplies(const WorkerReplies &) = delete;
    WorkerReplies &operator=(const WorkerReplies &) = delete;

    // What one worker keeps: post() runs `reply` later on the owner's
    // thread, or never when the owner is gone first. A posted reply that
    // has not run when the owner goes is discarded with the owner's events.
    class Channel
    {
    public:
        void post(std::function<void()> reply) const
        {
            QMutexLocker lock(&m_state->mutex);
            if (m_state->owner)
                QMetaObject::invokeMethod(m_state->owner, std::move(reply), Qt::QueuedConnection);
        }

    private:
        friend class WorkerReplies;
        explicit Channel(std::shared_ptr<State> state)
            : m_state(std::move(state))
        {
        }
        std::shared_ptr<State> m_state;
    };
    Channel channel() const { return Channel(m_state); }

private:
    std::shared_ptr<State> m_state;
};
