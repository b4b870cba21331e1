#include "UiproGetImageShareData.h"

#include "LogCategories.h"
#include "PreviewConvert.h"
#include "PreviewReaderHooks.h"
#include "UiprocImageShow.h"

#include <QImage>
#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include <sched.h>
#include <signal.h>
#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/shm.h>
#include <unistd.h>

namespace {

int envKey(const char *name, int fallback)
{
    const char *text = std::getenv(name);
    if (!text || !*text)
        return fallback;
    char *end = nullptr;
    errno = 0;
    const long value = std::strtol(text, &end, 0); // decimal or 0x-hex
    if (errno != 0 || !end || *end != '\0' || value <= 0 || value > 0x7fffffffL) {
        qCWarning(lcPreview).noquote() << "preview: ignoring" << name << "value" << QString::fromLocal8Bit(text).left(32);
        return fallback;
    }
    return int(value);
}

void out(const char *text)
{
    std::fputs(text, stdout);
    std::fflush(stdout);
}

void outErr(const char *format)
{
    std::printf(format, std::strerror(errno));
    std::fflush(stdout);
}

qint64 nowNs(clockid_t clock)
{
    timespec ts{};
    clock_gettime(clock, &ts);
    return qint64(ts.tv_sec) * 1000000000LL + ts.tv_nsec;
}

constexpr int kBackoffMs = 200;
constexpr int kWaitSliceMs = 200;
// How often a reader makes sure its segment was not removed by the producer
// (one IPC_STAT): a re-created segment is picked up within this time.
constexpr qint64 kSegmentCheckMs = 200;
constexpr int kPoolMax = 6;
constexpr int kReaderCpu = 4;
// Frames are taken at most this often (250 per second, above any display
// rate): a runaway producer cannot make the reader burn a core on frames
// no screen will show. The wait is spent before the buffer goes back to the
// producer, so the frame read next is as fresh as the producer makes it. A
// producer at display rates never waits for it.
constexpr qint64 kMinFrameIntervalNs = 4000000;
// While a drawing display has not yet taken the frame just handed on, the
// buffer is handed back to the producer only once it has: the producer then
// writes its next frame while the display draws this one, so frames nobody
// will see are not converted, and the frame converted next is fresh rather
// than one that waited in the segment. A display that stops drawing without
// saying so (a window that is not exposed) holds the producer back at most
// this long per frame.
constexpr int kDemandHoldMs = 100;

// Up to five lines at once, then one a second per kind of event: a rare
// event is always told, a flood of them does not flood the log.
struct LogGate
{
    static constexpr int kBurst = 5;
    qint64 refillMs = 0;
    qint64 tokens = 0;
    quint64 held = 0;
    // 0 while lines are held back; else the events this line stands for.
    quint64 pass()
    {
        const qint64 now = nowNs(CLOCK_MONOTONIC) / 1000000;
        const qint64 earned = (now - refillMs) / 1000;
        if (earned > 0) {
            tokens = std::min<qint64>(kBurst, tokens + earned);
            refillMs += earned * 1000;
        }
        ++held;
        if (tokens == 0)
            return 0;
        --tokens;
        return std::exchange(held, 0);
    }
};

} // namespace

namespace PreviewReaderHooks {
std::atomic<FrameHook *> g_hook{nullptr};
void setFrameHook(FrameHook *hook) { g_hook.store(hook); }
} // namespace PreviewReaderHooks

struct UiproGetImageShareData::Segment
{
    // Held for every copy out of the segment and while a reader swaps the
    // mapping, so no reader copies from a mapping another one let go.
    std::mutex lock;
    std::atomic<uint8_t *> addr{nullptr};
    std::atomic<int> id{-1};
    key_t key = 0;
};

// Shared by the object and its reader thread, so the thread never touches a
// destroyed object.
struct UiproGetImageShareData::ReaderState
{
    std::shared_ptr<Segment> segment;
    int semKey = 0;
    std::atomic<int> semId{-1};
    std::atomic<bool> stop{false};
    std::atomic<bool> running{false};
    std::atomic<quint64> refused{0};

    // Display images, reused once nobody else holds them: a fresh 8 MB block
    // per frame costs page faults on every frame.
    std::vector<QImage> pool;

    LogGate refusalLog;
    LogGate removedLog, attachedLog, attachFailedLog, abandonedLog;
    qint64 lastSegmentCheckMs = 0;
    bool segmentSuspect = false; // check before the next frame, not a period later

    QImage acquire(int width, int height, uint8_t **pixels);
    bool waitReady();
    void reclaimAbandonedBuffer(int id);
    void release();
    void refuse(const char *why, quint32 width, quint32 height);
    int reopenSet();
    bool segmentUsable();
    void copyFrame(qint64 takenNs);
    void run();
};

// An image nobody else holds, and its pixels. The pointer is taken while the
// pool is the only owner: bits() on a shared image would copy it.
QImage UiproGetImageShareData::ReaderState::acquire(int width, int height, uint8_t **pixels)
{
    for (QImage &img : pool) {
        // isDetached() reads the share count relaxed; taking and dropping a
        // reference are ordered operations on it, so the last holder's reads
        // of the pixels (a render thread uploading them) come before our writes.
        { QImage touch(img); }
        if (img.width() == width && img.height() == height && img.isDetached()) {
            *pixels = img.bits();
            return img;
        }
    }
    QImage fresh(width, height, QImage::Format_RGB32);
    if (fresh.isNull())
        return fresh;
    *pixels = fresh.bits();
    if (int(pool.size()) < kPoolMax) {
        pool.push_back(fresh);
        return fresh;
    }
    for (QImage &img : pool) {
        { QImage touch(img); }
        if (img.isDetached()) { // size changed: replace an idle one
            img = fresh;
            return fresh;
        }
    }
    return fresh; // everything in use: a one-off image
}

// Blocks until a frame is ready. False on timeout, on stop, or while the
// semaphore set is gone (then it has backed off before returning).
bool UiproGetImageShareData::ReaderState::waitReady()
{
    const int id = semId.load();
    if (id < 0) {
        std::this_thread::sleep_for(std::chrono::milliseconds(kBackoffMs));
        const int again = reopenSet();
        if (again >= 0) {
            semId.store(again);
            segmentSuspect = true; // a producer that re-created its set may have a new segment too
            qCInfo(lcPreview).noquote() << "preview: frame semaphores available again, reading resumes";
        }
        return false;
    }
    sembuf op{1, -1, 0};
    const timespec slice{0, kWaitSliceMs * 1000000L};
    if (semtimedop(id, &op, 1, &slice) == 0)
        return true;
    const int err = errno;
    if (err == EAGAIN)
        reclaimAbandonedBuffer(id);
    if (err == EAGAIN || err == EINTR)
        return false;
    std::printf("semop error: %s. \n", std::strerror(err));
    std::fflush(stdout);
    if (err == EIDRM || err == EINVAL) {
        // The producer restarted or the set was removed: do not spin on a
        // dead id, wait for a set to exist again.
        qCWarning(lcPreview).noquote() << "preview: frame semaphores gone (" << std::strerror(err)
                                       << "), waiting for the producer";
        semId.store(-1);
        segmentSuspect = true;
    } else {
        std::this_thread::sleep_for(std::chrono::milliseconds(kBackoffMs));
    }
    return false;
}

// A producer killed between taking the buffer and announcing its frame
// leaves "buffer free" at 0 for good, and the next producer waits for ever
// (or for a timeout of its own). Only a producer takes that token, so when
// the process that took it last is gone and no frame is announced, the token
// is handed back. Checked only while no frame comes.
void UiproGetImageShareData::ReaderState::reclaimAbandonedBuffer(int id)
{
    if (semctl(id, 0, GETVAL) != 0 || semctl(id, 1, GETVAL) != 0)
        return;
    const int holder = semctl(id, 0, GETPID);
    if (holder <= 0 || holder == getpid() || ::kill(holder, 0) == 0 || errno != ESRCH)
        return;
    if (semctl(id, 0, SETVAL, 1) != 0)
        return;
    if (const quint64 count = abandonedLog.pass())
        qCWarning(lcPreview).noquote()
            << QStringLiteral("preview: the producer (pid %1) ended while writing a frame, buffer handed back (%2 times)")
                   .arg(holder)
                   .arg(count);
}

// Opens the set again after it disappeared. Values are set only on a set
// that nobody has operated on yet and whose buffer token was never issued
// (both zero); a set the producer already uses keeps its values, since the
// producer may be writing a frame right now (both zero then as well).
int UiproGetImageShareData::ReaderState::reopenSet()
{
    int id = semget(semKey, 2, IPC_CREAT | IPC_EXCL | 0600);
    if (id >= 0) {
        semctl(id, 0, SETVAL, 1);
        semctl(id, 1, SETVAL, 0);
        return id;
    }
    if (errno != EEXIST)
        return -1;
    id = semget(semKey, 2, 0600);
    if (id < 0)
        return -1;
    semid_ds ds{};
    if (semctl(id, 0, IPC_STAT, &ds) == 0 && ds.sem_otime == 0 && semctl(id, 0, GETVAL) == 0
        && semctl(id, 1, GETVAL) == 0)
        semctl(id, 0, SETVAL, 1);
    return id;
}

void UiproGetImageShareData::ReaderState::release()
{
    sembuf op{0, 1, 0};
    if (semop(semId.load(), &op, 1) != 0) {
        std::printf("semop error: %s. \n", std::strerror(errno));
        std::fflush(stdout);
    }
}

void UiproGetImageShareData::ReaderState::refuse(const char *why, quint32 width, quint32 height)
{
    refused.fetch_add(1);
    if (const quint64 count = refusalLog.pass())
        qCWarning(lcPreview).noquote()
            << QStringLiteral("preview: refused frame %1x%2 (%3), %4 refused since last report")
                   .arg(width)
                   .arg(height)
                   .arg(QLatin1String(why))
                   .arg(count);
}

// True when a segment is mapped, possibly one attached just now. The segment
// belongs to the producer: one it removed (it stays mapped, marked SHM_DEST,
// until we let go) is detached, and the segment under the key is attached as
// soon as it exists with the full size. Never creates one.
bool UiproGetImageShareData::ReaderState::segmentUsable()
{
    std::lock_guard<std::mutex> hold(segment->lock);
    uint8_t *addr = segment->addr.load();
    if (addr) {
        shmid_ds ds{};
        const bool gone = shmctl(segment->id.load(), IPC_STAT, &ds) == 0 ? (ds.shm_perm.mode & SHM_DEST) != 0
                                                                       : errno == EIDRM || errno == EINVAL;
        if (!gone)
            return true;
        shmdt(addr);
        segment->addr.store(nullptr);
        segment->id.store(-1);
        if (removedLog.pass())
            qCWarning(lcPreview).noquote() << "preview: frame buffer removed by the producer, waiting for a new one";
    }
    const int id = shmget(segment->key, kSegmentSize, 0);
    void *p = id < 0 ? reinterpret_cast<void *>(-1) : shmat(id, nullptr, 0);
    if (p == reinterpret_cast<void *>(-1)) {
        const int err = errno;
        // ENOENT: not there yet, the usual state while the producer restarts.
        if (err != ENOENT && attachFailedLog.pass())
            qCWarning(lcPreview).noquote()
                << QStringLiteral("preview: cannot attach the new frame buffer (%1), retrying")
                       .arg(QString::fromLocal8Bit(std::strerror(err)));
        return false;
    }
    segment->addr.store(static_cast<uint8_t *>(p));
    segment->id.store(id);
    if (attachedLog.pass())
        qCInfo(lcPreview).noquote() << "preview: frame buffer attached again, reading resumes";
    return true;
}

// One frame out of the segment, then the buffer is handed back to the producer.
void UiproGetImageShareData::ReaderState::copyFrame(qint64 takenNs)
{
    const qint64 cpuStart = nowNs(CLOCK_THREAD_CPUTIME_ID);
    QImage frame;
    quint32 w = 0, h = 0;
    const char *refusal = nullptr;
    {
        std::lock_guard<std::mutex> hold(segment->lock);
        const uint8_t *seg = segment->addr.load();
        if (seg) {
            std::memcpy(&w, seg, 4);
            std::memcpy(&h, seg + 4, 4);
            w = qFromLittleEndian(w);
            h = qFromLittleEndian(h);
        }
        const quint64 n = quint64(w) * quint64(h) * 3u;
        if (w == 0 || h == 0) {
            // a null frame (or no segment): nothing to show
        } else if (n > kPixelArea || w > 32767 || h > 32767) {
            // Never read past the segment, whatever the header says.
            refusal = n > kPixelArea ? "larger than the frame buffer" : "wider or taller than an image can be";
        } else {
            uint8_t *pixels = nullptr;
            frame = acquire(int(w), int(h), &pixels);
            if (frame.isNull())
                refusal = "no memory for the image";
            else
                // The one pass over the frame is the copy out of the segment:
                // it converts to the display format on the way (the scene
                // graph would otherwise convert every RGB888 frame on the GUI
                // thread) and takes about as long as a plain copy, so the
                // buffer is held no longer. Rows are packed (width * 3 bytes,
                // any width); the image has its own aligned stride.
                PreviewConvert::rgb888ToRgb32(seg + kHeaderSize, size_t(w) * 3u, pixels,
                                              size_t(frame.bytesPerLine()), int(w), int(h));
        }
    }
    const auto releaseWhenDue = [this, takenNs] {
        const qint64 early = takenNs + kMinFrameIntervalNs - nowNs(CLOCK_MONOTONIC);
        if (early > 0)
            std::this_thread::sleep_for(std::chrono::nanoseconds(early));
        release();
    };
    if (refusal || frame.isNull()) {
        releaseWhenDue();
        if (refusal)
            refuse(refusal, w, h);
        return;
    }
    const std::shared_ptr<PreviewFrameSlot> slot = UiprocImageShow::currentSlot();
    UiprocImageShow::deliverToCurrent(frame);
    const qint64 deliveredNs = nowNs(CLOCK_MONOTONIC);
    const qint64 cpuNs = nowNs(CLOCK_THREAD_CPUTIME_ID) - cpuStart;
    if (slot)
        slot->waitForDemand(kDemandHoldMs);
    releaseWhenDue();
    if (PreviewReaderHooks::FrameHook *hook = PreviewReaderHooks::g_hook.load())
        (*hook)(frame, deliveredNs, cpuNs);
}

void UiproGetImageShareData::ReaderState::run()
{
    std::printf("%s pid:%d, tid:%lu\r\n", "tdGetShareImageData", int(getpid()),
                static_cast<unsigned long>(pthread_self()));
    std::fflush(stdout);
    pthread_setname_np(pthread_self(), "csPreviewReader"); // visible in top -H and /proc
    {
        cpu_set_t set;
        CPU_ZERO(&set);
        CPU_SET(kReaderCpu, &set);
        // A machine without that core keeps the old mask.
        (void)pthread_setaffinity_np(pthread_self(), sizeof set, &set);
    }

    while (!stop.load()) {
        const qint64 nowMs = nowNs(CLOCK_MONOTONIC) / 1000000;
        if (segmentSuspect || !segment->addr.load() || nowMs - lastSegmentCheckMs >= kSegmentCheckMs) {
            segmentSuspect = false;
            lastSegmentCheckMs = nowMs;
            if (!segmentUsable()) {
                // Leave the frame-ready count alone until there is a segment to read.
                std::this_thread::sleep_for(std::chrono::milliseconds(kBackoffMs));
                continue;
            }
        }
        if (!waitReady())
            continue;
        copyFrame(nowNs(CLOCK_MONOTONIC));
    }
    running.store(false);
}

int UiproGetImageShareData::shmKey() { return envKey("CS_PREVIEW_SHM_KEY", kDefaultShmKey); }
int UiproGetImageShareData::semKey() { return envKey("CS_PREVIEW_SEM_KEY", kDefaultSemKey); }

UiproGetImageShareData::UiproGetImageShareData(QObject *parent)
    : QObject(parent)
    , m_segment(std::make_shared<Segment>())
{
    attach(SingleBuffer);
}

UiproGetImageShareData::~UiproGetImageShareData()
{
    for (auto &r : m_readers)
        r->stop.store(true);
    sleep(1);
    // A reader checks its stop flag at least every wait slice; the segment
    // must stay mapped until it has left the copy.
    for (auto &r : m_readers) {
        while (r->running.load())
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    detach(SingleBuffer);
}

void UiproGetImageShareData::attach(Mode mode)
{
    const key_t semK = semKey();
    m_semId = semget(semK, 2, IPC_CREAT | IPC_EXCL | 0600);
    if (m_semId < 0) {
        outErr("==vorn semget exit: %s. \n");
        m_semId = -1;
        m_semId = semget(semK, 2, IPC_CREAT | 0600);
        if (m_semId < 0) {
            outErr("==vorn semget exit: %s. \n");
            out("==vorn semget failed");
            m_semId = -1;
        }
    }
    // New or not, start from a free buffer and no frame: a frame-ready count
    // left by an earlier run is discarded.
    controlSem(m_semId, 0, SETVAL, 1);
    controlSem(m_semId, 1, SETVAL, 0);

    m_segment->key = shmKey();
    const int shmId = createShm(m_segment->key, kSegmentSize, IPC_CREAT | 0666);
    m_segment->id.store(shmId);
    if (mode == SingleBuffer) {
        errno = 0;
        void *addr = attachShm(shmId, nullptr, 0);
        m_segment->addr.store(static_cast<uint8_t *>(addr));
        m_attachErrno = addr ? 0 : (errno ? errno : EINVAL);
    } else {
        out("vorn select NULL");
    }
    m_shareImageFlag = false;
}

int UiproGetImageShareData::createSem(key_t key, int count, int flags)
{
    const int id = semget(key, count, flags);
    if (id < 0) {
        outErr("==vorn semget exit: %s. \n");
        return -1;
    }
    return id;
}

int UiproGetImageShareData::controlSem(int semId, int semNum, int cmd, int value)
{
    const int r = semctl(semId, semNum, cmd, value);
    if (r < 0) {
        outErr("==vorn semctl error: %s. \n");
        return -1;
    }
    return r;
}

int UiproGetImageShareData::createShm(key_t key, size_t size, int flags)
{
    const int id = shmget(key, size, flags);
    if (id < 0) {
        outErr("==vorn shmget error: %s. \n");
        return -1;
    }
    return id;
}

void *UiproGetImageShareData::attachShm(int shmId, const void *addr, int flags)
{
    void *p = shmat(shmId, addr, flags);
    if (p == reinterpret_cast<void *>(-1)) {
        outErr("==vorn shmat error: %s. \n");
        return nullptr;
    }
    return p;
}

int UiproGetImageShareData::controlShm(int shmId, int cmd, struct shmid_ds *buf)
{
    const int r = shmctl(shmId, cmd, buf);
    if (r < 0) {
        outErr("shmctl error: %s. \n");
        return -1;
    }
    return r;
}

int UiproGetImageShareData::semOperations(int semId, struct sembuf *ops, size_t count)
{
    if (semop(semId, ops, count) < 0) {
        outErr("semop error: %s. \n");
        return -1;
    }
    return 0;
}

int UiproGetImageShareData::semWait(int semId, int semNum)
{
    sembuf op{static_cast<unsigned short>(semNum), -1, 0};
    return semOperations(semId, &op, 1);
}

int UiproGetImageShareData::semPost(int semId, int semNum)
{
    sembuf op{static_cast<unsigned short>(semNum), 1, 0};
    return semOperations(semId, &op, 1);
}

int UiproGetImageShareData::semP(int semId)
{
    sembuf op{0, -1, SEM_UNDO};
    if (semop(semId, &op, 1) < 0) {
        out("p error");
        return -1;
    }
    return 0;
}

int UiproGetImageShareData::semV(int semId)
{
    sembuf op{0, 1, SEM_UNDO};
    if (semop(semId, &op, 1) < 0) {
        out("v error");
        return -1;
    }
    return 0;
}

int UiproGetImageShareData::deleteSem()
{
    std::printf("\n server exiting; deleting semaphore %d. \n", m_semId);
    std::fflush(stdout);
    if (semctl(m_semId, 0, IPC_RMID) < 0) {
        out("==vorn delete error");
        return -1;
    }
    return 0;
}

int UiproGetImageShareData::detach(Mode mode)
{
    if (mode == SingleBuffer) {
        std::lock_guard<std::mutex> hold(m_segment->lock);
        uint8_t *addr = m_segment->addr.exchange(nullptr);
        if (!addr || shmdt(addr) < 0) {
            out("shmdt shared_data_t failed\r");
            return -1;
        }
        return 0;
    }
    int result = 0;
    for (int i = 0; i < 2; ++i) {
        if (!m_shmAddrs[i] || shmdt(m_shmAddrs[i]) < 0) {
            std::printf("shmdt shared_data_t %d failed\r\n", i);
            std::fflush(stdout);
            result = -1;
            continue;
        }
        m_shmAddrs[i] = nullptr;
    }
    return result;
}

void UiproGetImageShareData::pinThread(unsigned long mask, pthread_t thread)
{
    cpu_set_t set;
    CPU_ZERO(&set);
    for (int cpu = 0; cpu < 6; ++cpu) {
        if (mask & (1UL << cpu))
            CPU_SET(cpu, &set);
    }
    (void)pthread_setaffinity_np(thread, sizeof set, &set);
}

bool UiproGetImageShareData::takeFrame(uint8_t **data, int *width, int *height, Mode mode)
{
    if (mode == SingleBuffer) {
        uint8_t *seg = m_segment->addr.load();
        if (!seg)
            return false;
        quint32 w = 0, h = 0;
        std::memcpy(&w, seg, 4);
        std::memcpy(&h, seg + 4, 4);
        m_frame = seg + kHeaderSize;
        *data = m_frame;
        *width = int(qFromLittleEndian(w));
        *height = int(qFromLittleEndian(h));
        return true;
    }
    // Two buffers, each with a "free" (ids 0 and 2) and a "written" (ids 1
    // and 3) semaphore. Nothing attaches them today: refuse rather than poll
    // for ever.
    if (!m_shmAddrs[0] || !m_shmAddrs[1])
        return false;
    int chosen = -1;
    while (chosen < 0) {
        usleep(5000);
        const int written0 = semctl(m_bufSemIds[1], 0, GETVAL);
        const int written1 = semctl(m_bufSemIds[3], 0, GETVAL);
        if (written0 > 0 && semctl(m_bufSemIds[0], 0, GETVAL) == 1)
            chosen = 0; // buffer 0 wins a tie
        else if (written1 > 0 && semctl(m_bufSemIds[2], 0, GETVAL) == 1)
            chosen = 1;
    }
    m_lastBuffer = chosen;
    if (semP(m_bufSemIds[chosen * 2]) < 0)
        return false;
    auto *seg = static_cast<uint8_t *>(m_shmAddrs[chosen]);
    quint32 w = 0, h = 0;
    std::memcpy(&w, seg, 4);
    std::memcpy(&h, seg + 4, 4);
    m_frame = seg + kHeaderSize;
    *data = m_frame;
    *width = int(qFromLittleEndian(w));
    *height = int(qFromLittleEndian(h));
    return true;
}

void UiproGetImageShareData::getShareImageData()
{
    out("getShareImageData=============");
    if (!isAttached()) {
        // Reading an unattached segment would crash: say so again and stay idle.
        std::printf("==vorn shmat error: %s. \n", std::strerror(m_attachErrno ? m_attachErrno : EINVAL));
        std::fflush(stdout);
        qCWarning(lcPreview).noquote() << "preview: frame buffer not attached, reader not started";
        return;
    }
    auto state = std::make_shared<ReaderState>();
    state->segment = m_segment;
    state->semKey = semKey();
    state->semId.store(m_semId);
    state->running.store(true);
    m_readers.push_back(state);
    std::thread([state] { state->run(); }).detach();
}

void UiproGetImageShareData::setShareImageFlag(bool flag) { m_shareImageFlag = flag; }

bool UiproGetImageShareData::isAttached() const { return m_segment->addr.load() != nullptr; }

int UiproGetImageShareData::shmId() const { return m_segment->id.load(); }

void UiproGetImageShareData::stopReader()
{
    for (auto &r : m_readers)
        r->stop.store(true);
    for (auto &r : m_readers) {
        while (r->running.load())
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

bool UiproGetImageShareData::readerRunning() const
{
    for (const auto &r : m_readers) {
        if (r->running.load())
            return true;
    }
    return false;
}

quint64 UiproGetImageShareData::refusedFrames() const
{
    quint64 total = 0;
    for (const auto &r : m_readers)
        total += r->refused.load();
    return total;
}
