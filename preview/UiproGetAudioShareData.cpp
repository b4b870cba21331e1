#include "UiproGetAudioShareData.h"

#include "LogCategories.h"
#include "Logger.h"

#include <QPointer>
#include <QtEndian>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <thread>

#include <sys/ipc.h>
#include <sys/shm.h>
#include <unistd.h>

namespace {
// Ends the process from the poller thread with status 1. exit() would run
// static destructors here while the GUI and other threads still use those
// objects, so what must reach the disk is flushed by hand and the process
// ends without them.
[[noreturn]] void endProcess(const char *message, int err)
{
    std::fputs(message, stdout);
    std::fflush(stdout);
    writeLog(QStringLiteral("%1: %2").arg(QString::fromLatin1(message).trimmed(),
                                         QString::fromLocal8Bit(std::strerror(err))));
    Logger::instance().closeFile();
    std::fflush(nullptr);
    std::_Exit(1);
}
} // namespace

struct UiproGetAudioShareData::Poller
{
    std::atomic<bool> stop{false};
    std::atomic<bool> running{true};
};

int UiproGetAudioShareData::shmKey()
{
    const char *text = std::getenv("CS_AUDIO_SHM_KEY");
    if (!text || !*text)
        return kDefaultShmKey;
    char *end = nullptr;
    errno = 0;
    const long value = std::strtol(text, &end, 0);
    if (errno != 0 || !end || *end != '\0' || value <= 0 || value > 0x7fffffffL) {
        qCWarning(lcPreview).noquote() << "audio: ignoring CS_AUDIO_SHM_KEY value" << QString::fromLocal8Bit(text).left(32);
        return kDefaultShmKey;
    }
    return int(value);
}

UiproGetAudioShareData::UiproGetAudioShareData(QObject *parent)
    : QObject(parent)
{
}

UiproGetAudioShareData::~UiproGetAudioShareData()
{
    // The pollers emit on this object: they must be gone before it is.
    stopPollers();
}

void UiproGetAudioShareData::stopPollers()
{
    for (auto &p : m_pollers)
        p->stop.store(true);
    for (auto &p : m_pollers) {
        while (p->running.load())
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

int UiproGetAudioShareData::detach()
{
    void *addr = m_shmAddr.exchange(nullptr);
    if (!addr || shmdt(addr) < 0) {
        std::fputs("shmdt Audio_bd failed\r", stdout);
        std::fflush(stdout);
        return -1;
    }
    return 0;
}

void UiproGetAudioShareData::getShareAudioData()
{
    auto poller = std::make_shared<Poller>();
    m_pollers.push_back(poller);
    std::thread([this, poller] {
        const int id = shmget(shmKey(), kSegmentSize, IPC_CREAT | 0666);
        // The levels are part of the device contract: without them the
        // front end does not run.
        if (id < 0)
            endProcess("shmget Audio_bd failed\r", errno);
        void *addr = shmat(id, nullptr, 0);
        if (addr == reinterpret_cast<void *>(-1))
            endProcess("shmat Audio_bd failed", errno);
        // Start from silence: the producer's last values are stale.
        std::memset(addr, 0, kSegmentSize);
        m_shmAddr.store(addr);

        while (!poller->stop.load()) {
            // Sleep in short steps so a stop request is honoured promptly.
            for (int slept = 0; slept < kPollMs && !poller->stop.load(); slept += 50)
                std::this_thread::sleep_for(std::chrono::milliseconds(50));
            if (poller->stop.load())
                break;
            auto *words = static_cast<volatile const qint32 *>(m_shmAddr.load());
            if (!words)
                continue;
            int v[9];
            for (int i = 0; i < 9; ++i)
                { const qint32 raw = words[i]; v[i] = qFromLittleEndian(raw); } // aligned words: never torn
            std::memcpy(m_levels, v, sizeof v);
            emit updateVoise(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8]);
        }
        poller->running.store(false);
    }).detach();
}
