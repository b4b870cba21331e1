#pragma once
// A stand-in for the media service's frame writer: follows the hand-shake
// (wait "buffer free", write header and pixels, post "frame ready") on
// private keys chosen from the process id, and removes its objects at the end.
#include <QImage>
#include <QtEndian>
#include <QtGlobal>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <vector>

#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/shm.h>
#include <unistd.h>

namespace PreviewTest {

constexpr size_t kSegmentSize = 9437192;

// Distinct keys per process and purpose, so tests can run in parallel.
inline int privateKey(int purpose)
{
    return 0x43000000 | ((int(getpid()) & 0xfffff) << 4) | (purpose & 0xf);
}

inline uint8_t patternByte(int x, int y, int c, int seed)
{
    return uint8_t((x * 7 + y * 13 + c * 61 + seed * 29) & 0xff);
}

// Packed RGB888 rows (width * 3 bytes each, no padding).
inline std::vector<uint8_t> makePattern(int w, int h, int seed)
{
    std::vector<uint8_t> px(size_t(w) * size_t(h) * 3);
    size_t i = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int c = 0; c < 3; ++c)
                px[i++] = patternByte(x, y, c, seed);
    return px;
}

// Index of the first pixel whose colour differs, or -1.
inline long long firstMismatch(const QImage &img, const std::vector<uint8_t> &px, int w, int h)
{
    if (img.width() != w || img.height() != h)
        return 0;
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const QRgb p = img.pixel(x, y);
            const uint8_t *e = px.data() + (size_t(y) * w + x) * 3;
            if (qRed(p) != e[0] || qGreen(p) != e[1] || qBlue(p) != e[2])
                return (long long)y * w + x;
        }
    }
    return -1;
}

class Producer
{
public:
    Producer(int shmKey, int semKey)
        : m_shmKey(shmKey), m_semKey(semKey)
    {
        m_shmId = shmget(shmKey, kSegmentSize, IPC_CREAT | 0666);
        if (m_shmId >= 0) {
            void *p = shmat(m_shmId, nullptr, 0);
            m_seg = p == reinterpret_cast<void *>(-1) ? nullptr : static_cast<uint8_t *>(p);
        }
        openSet();
    }
    ~Producer()
    {
        if (m_seg)
            shmdt(m_seg);
    }
    // Removes the segment and the set from the system.
    void removeAll()
    {
        if (m_semId >= 0)
            semctl(m_semId, 0, IPC_RMID);
        if (m_shmId >= 0)
            shmctl(m_shmId, IPC_RMID, nullptr);
        m_semId = -1;
    }
    bool ok() const { return m_seg && m_semId >= 0; }
    int semId() const { return m_semId; }
    uint8_t *segment() const { return m_seg; }

    void openSet() { m_semId = semget(m_semKey, 2, IPC_CREAT | 0600); }
    void removeSet()
    {
        semctl(m_semId, 0, IPC_RMID);
        m_semId = -1;
    }

    int value(int num) const { return semctl(m_semId, num, GETVAL); }
    void setValue(int num, int v) { semctl(m_semId, num, SETVAL, v); }

    // Waits up to timeoutMs for the buffer to be free.
    bool acquire(int timeoutMs)
    {
        sembuf op{0, -1, 0};
        timespec ts{timeoutMs / 1000, (timeoutMs % 1000) * 1000000L};
        while (semtimedop(m_semId, &op, 1, &ts) != 0) {
            if (errno != EINTR)
                return false;
        }
        return true;
    }
    void post()
    {
        sembuf op{1, 1, 0};
        semop(m_semId, &op, 1);
    }
    void writeHeader(quint32 w, quint32 h)
    {
        const quint32 lw = qToLittleEndian(w), lh = qToLittleEndian(h);
        std::memcpy(m_seg, &lw, 4);
        std::memcpy(m_seg + 4, &lh, 4);
    }
    // One whole frame through the hand-shake.
    bool send(int w, int h, const std::vector<uint8_t> &px, int timeoutMs = 2000)
    {
        if (!acquire(timeoutMs))
            return false;
        writeHeader(quint32(w), quint32(h));
        std::memcpy(m_seg + 8, px.data(), px.size());
        post();
        return true;
    }
    bool sendHeaderOnly(quint32 w, quint32 h, int timeoutMs = 2000)
    {
        if (!acquire(timeoutMs))
            return false;
        writeHeader(w, h);
        post();
        return true;
    }

private:
    int m_shmKey;
    int m_semKey;
    int m_shmId = -1;
    int m_semId = -1;
    uint8_t *m_seg = nullptr;
};

// Captures what the process writes to standard output (the product prints
// its System V diagnostics there).
class StdoutCapture
{
public:
    StdoutCapture()
    {
        fflush(stdout);
        m_saved = dup(1);
        m_file = tmpfile();
        dup2(fileno(m_file), 1);
    }
    ~StdoutCapture() { finish(); }
    QByteArray finish()
    {
        if (m_saved >= 0) {
            fflush(stdout);
            dup2(m_saved, 1);
            close(m_saved);
            m_saved = -1;
            rewind(m_file);
            char buf[4096];
            size_t n;
            while ((n = fread(buf, 1, sizeof buf, m_file)) > 0)
                m_text.append(buf, int(n));
            fclose(m_file);
        }
        return m_text;
    }

private:
    int m_saved = -1;
    FILE *m_file = nullptr;
    QByteArray m_text;
};

} // namespace PreviewTest
