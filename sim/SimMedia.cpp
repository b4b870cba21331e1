#include "SimMedia.h"

#include "LogCategories.h"

#include <QTimer>
#include <QtEndian>

#include <cerrno>
#include <cmath>
#include <cstring>
#include <ctime>

#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/shm.h>

namespace Sim {

bool parseKey(const QString &text, int *key)
{
    const QString t = text.trimmed();
    bool ok = false;
    qint64 v = 0;
    if (t.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        v = t.mid(2).toLongLong(&ok, 16);
    else
        v = t.toLongLong(&ok, 10);
    if (!ok || v < INT32_MIN || v > qint64(UINT32_MAX))
        return false;
    *key = int(quint32(v));
    return true;
}

int envKey(const char *name, int fallback)
{
    const QByteArray raw = qgetenv(name);
    if (raw.isEmpty())
        return fallback;
    int key = 0;
    if (!parseKey(QString::fromLatin1(raw), &key)) {
        qCWarning(lcSim).noquote() << QStringLiteral("%1=\"%2\" is not a key, using %3")
                                          .arg(QLatin1String(name), QString::fromLatin1(raw.left(40)))
                                          .arg(fallback);
        return fallback;
    }
    return key;
}

namespace {

QString err()
{
    return QString::fromLocal8Bit(strerror(errno));
}

void storeLe32(uchar *p, quint32 v)
{
    qToLittleEndian<quint32>(v, p);
}

} // namespace

// ---- preview ----

PreviewProducer::PreviewProducer(int shmKey, int semKey, int width, int height, int fps)
    : m_shmKey(shmKey)
    , m_semKey(semKey)
    , m_width(width)
    , m_height(height)
    , m_fps(qBound(1, fps, 240))
    , m_frame(size_t(width) * size_t(height) * 3)
{
    m_clock.start();
}

PreviewProducer::~PreviewProducer()
{
    stop();
    if (m_shm)
        shmdt(m_shm);
}

bool PreviewProducer::validSize(int width, int height, QString *why)
{
    if (width <= 0 || height <= 0) {
        *why = QStringLiteral("width and height must be positive");
        return false;
    }
    if ((width * 3) % 4 != 0) {
        *why = QStringLiteral("width * 3 must be a multiple of 4 (width a multiple of 4)");
        return false;
    }
    if (qint64(width) * height * 3 > kPreviewPixelBytes) {
        *why = QStringLiteral("%1x%2 does not fit the %3-byte pixel area").arg(width).arg(height).arg(kPreviewPixelBytes);
        return false;
    }
    return true;
}

bool PreviewProducer::open()
{
    m_shmId = shmget(key_t(m_shmKey), kPreviewShmSize, IPC_CREAT | 0666);
    if (m_shmId < 0) {
        qCWarning(lcSim).noquote() << QStringLiteral("preview segment 0x%1: shmget: %2").arg(m_shmKey, 0, 16).arg(err());
        return false;
    }
    void *addr = shmat(m_shmId, nullptr, 0);
    if (addr == reinterpret_cast<void *>(-1)) {
        qCWarning(lcSim).noquote() << "preview segment: shmat:" << err();
        return false;
    }
    m_shm = static_cast<uchar *>(addr);

    // A new set starts with the buffer free; an existing one keeps the
    // consumer's values (it resets them itself when it starts).
    m_semId = semget(key_t(m_semKey), 2, IPC_CREAT | IPC_EXCL | 0666);
    if (m_semId >= 0) {
        semctl(m_semId, 0, SETVAL, 1);
        semctl(m_semId, 1, SETVAL, 0);
    } else {
        m_semId = semget(key_t(m_semKey), 2, IPC_CREAT | 0666);
    }
    if (m_semId < 0) {
        qCWarning(lcSim).noquote() << QStringLiteral("preview semaphores %1: semget: %2").arg(m_semKey).arg(err());
        return false;
    }
    qCInfo(lcSim).noquote() << QStringLiteral("preview %1x%2 at %3 fps into segment 0x%4, semaphores %5")
                                   .arg(m_width)
                                   .arg(m_height)
                                   .arg(m_fps)
                                   .arg(m_shmKey, 0, 16)
                                   .arg(m_semKey);
    return true;
}

void PreviewProducer::start()
{
    if (m_thread.joinable() || !m_shm)
        return;
    m_stop = false;
    m_thread = std::thread([this] { run(); });
}

void PreviewProducer::stop()
{
    m_stop = true;
    if (m_thread.joinable())
        m_thread.join();
}

void PreviewProducer::removeIpc()
{
    if (m_shm) {
        shmdt(m_shm);
        m_shm = nullptr;
    }
    if (m_shmId >= 0 && shmctl(m_shmId, IPC_RMID, nullptr) == 0)
        qCInfo(lcSim).noquote() << "preview segment removed";
    if (m_semId >= 0 && semctl(m_semId, 0, IPC_RMID) == 0)
        qCInfo(lcSim).noquote() << "preview semaphores removed";
    m_shmId = m_semId = -1;
}

void PreviewProducer::setScene(const Scene &scene)
{
    QMutexLocker lock(&m_sceneLock);
    m_scene = scene;
}

int PreviewProducer::acquire()
{
    QElapsedTimer waited;
    waited.start();
    while (!m_stop) {
        sembuf op{0, -1, 0};
        timespec timeout{0, 100 * 1000 * 1000};
        if (semtimedop(m_semId, &op, 1, &timeout) == 0)
            return 1;
        if (errno == EINTR)
            continue;
        if (errno != EAGAIN) {
            // The set went away (removed by someone): make a fresh one.
            if (!m_warnedGone)
                qCWarning(lcSim).noquote() << "preview semaphores unusable:" << err() << "- recreating";
            m_warnedGone = true;
            m_semId = semget(key_t(m_semKey), 2, IPC_CREAT | IPC_EXCL | 0666);
            if (m_semId >= 0) {
                semctl(m_semId, 0, SETVAL, 1);
                semctl(m_semId, 1, SETVAL, 0);
                m_warnedGone = false;
            } else {
                m_semId = semget(key_t(m_semKey), 2, IPC_CREAT | 0666);
                std::this_thread::sleep_for(std::chrono::milliseconds(100));
            }
            if (waited.elapsed() > kStaleMs)
                return -1;
            continue;
        }
        if (waited.elapsed() >= kStaleMs)
            return 0; // whoever held the buffer is gone or stuck
    }
    return -1;
}

bool PreviewProducer::writeFrame(qint64 elapsedMs)
{
    if (!m_shm)
        return false;
    Scene scene;
    {
        QMutexLocker lock(&m_sceneLock);
        scene = m_scene;
    }
    // Draw outside the hand-shake; the shared buffer is held for one copy only.
    Picture::render(m_frame.data(), m_width, m_height, scene, elapsedMs, m_fps);
    const int got = acquire();
    if (got < 0)
        return false;
    storeLe32(m_shm, quint32(m_width));
    storeLe32(m_shm + 4, quint32(m_height));
    memcpy(m_shm + 8, m_frame.data(), m_frame.size());
    if (got == 0) {
        ++m_forced;
        if (m_forced == 1 || m_forced % 60 == 0)
            qCInfo(lcSim).noquote() << QStringLiteral("preview buffer not released for %1 ms, frame written anyway (%2 times)")
                                           .arg(kStaleMs)
                                           .arg(m_forced.load());
        // Announce at most one unread frame, so an absent reader does not pile them up.
        if (semctl(m_semId, 1, GETVAL) > 0) {
            ++m_frames;
            return true;
        }
    }
    sembuf post{1, 1, 0};
    if (semop(m_semId, &post, 1) != 0)
        qCWarning(lcSim).noquote() << "preview frame-ready post:" << err();
    ++m_frames;
    return true;
}

void PreviewProducer::run()
{
    const qint64 periodNs = 1000000000LL / m_fps;
    QElapsedTimer tick;
    tick.start();
    qint64 next = 0;
    while (!m_stop) {
        writeFrame(m_clock.elapsed());
        next += periodNs;
        const qint64 now = tick.nsecsElapsed();
        if (now > next + periodNs)
            next = now; // fell behind (no reader): do not try to catch up
        else if (next > now)
            std::this_thread::sleep_for(std::chrono::nanoseconds(next - now));
    }
}

// ---- audio ----

AudioProducer::AudioProducer(int shmKey, QObject *parent)
    : QObject(parent)
    , m_key(shmKey)
    , m_timer(new QTimer(this))
{
    m_clock.start();
    connect(m_timer, &QTimer::timeout, this, &AudioProducer::writeOnce);
}

AudioProducer::~AudioProducer()
{
    if (m_shm)
        shmdt(m_shm);
}

bool AudioProducer::open()
{
    m_shmId = shmget(key_t(m_key), kAudioShmSize, IPC_CREAT | 0666);
    if (m_shmId < 0) {
        qCWarning(lcSim).noquote() << QStringLiteral("audio segment %1: shmget: %2").arg(m_key).arg(err());
        return false;
    }
    void *addr = shmat(m_shmId, nullptr, 0);
    if (addr == reinterpret_cast<void *>(-1)) {
        qCWarning(lcSim).noquote() << "audio segment: shmat:" << err();
        return false;
    }
    m_shm = static_cast<uchar *>(addr);
    qCInfo(lcSim).noquote() << QStringLiteral("audio levels into segment %1").arg(m_key);
    return true;
}

void AudioProducer::start(int periodMs)
{
    if (m_shm)
        m_timer->start(periodMs);
}

void AudioProducer::removeIpc()
{
    m_timer->stop();
    if (m_shm) {
        shmdt(m_shm);
        m_shm = nullptr;
    }
    if (m_shmId >= 0 && shmctl(m_shmId, IPC_RMID, nullptr) == 0)
        qCInfo(lcSim).noquote() << "audio segment removed";
    m_shmId = -1;
}

int AudioProducer::levelIndex(int input)
{
    static const int map[kInputCount] = {1, 2, 4, 5, 6};
    return input >= 0 && input < kInputCount ? map[input] : -1;
}

std::array<int, kAudioLevels> AudioProducer::levels(const Scene &scene, qint64 elapsedMs)
{
    const double t = elapsedMs / 1000.0;
    std::array<int, kAudioLevels> out{};
    for (int i = 0; i < kAudioLevels; ++i) {
        // Two beating sines per slot make a lively but reproducible meter.
        const double wobble = std::sin(t * (2.1 + 0.37 * i) + i) * 0.6 + std::sin(t * (5.3 + 0.11 * i) + 2 * i) * 0.4;
        // Around the middle of the meters' 40-80 display range, so every meter visibly moves.
        out[size_t(i)] = int(std::lround(52 + 10 * wobble));
    }
    const int prog = levelIndex(scene.programme);
    for (int input = 0; input < kInputCount; ++input)
        if (!scene.plugged[size_t(input)])
            out[size_t(levelIndex(input))] = 0;
    if (prog >= 0 && scene.plugged[size_t(scene.programme)]) {
        const double swing = std::sin(t * 3.7) * 0.7 + std::sin(t * 11.3) * 0.3;
        out[size_t(prog)] = int(std::lround(60 + 35 * swing));
    }
    out[8] = prog >= 0 ? qMax(out[0], out[size_t(prog)]) - 5 : out[0]; // the headphone mix follows the programme
    for (int &v : out)
        v = qBound(0, v, 100);
    return out;
}

void AudioProducer::writeOnce()
{
    if (!m_shm)
        return;
    const auto v = levels(m_scene, m_clock.elapsed());
    // Each level is one aligned 32-bit store, so a reader never sees half a value.
    for (int i = 0; i < kAudioLevels; ++i)
        storeLe32(m_shm + 4 * i, quint32(v[size_t(i)]));
}

} // namespace Sim
