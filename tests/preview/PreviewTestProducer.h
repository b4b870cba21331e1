#pragma once
// A stand-in for the media service's frame writer: follows the hand-shake
// (wait "buffer free", write header and pixels, post "frame ready") on
// private keys chosen from the process id.
#include <QImage>
#include <QtEndian>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <vector>

#include <sys/sem.h>
#include <sys/shm.h>
#include <unistd.h>

namespace PreviewTest {

// Distinct keys per process and purpose, so tests can run in parallel.
inline int privateKey(int purpose) { return 0x43000000 | ((int(getpid()) & 0xfffff) << 4) | (purpose & 0xf); }

// Packed RGB888 rows (width * 3 bytes each, no padding).
inline std::vector<uint8_t> makePattern(int w, int h, int seed)
{
    std::vector<uint8_t> px(size_t(w) * size_t(h) * 3);
    for (size_t i = 0; i < px.size(); ++i)
        px[i] = uint8_t((i % (size_t(w) * 3)) * 7 + (i / (size_t(w) * 3)) * 13 + seed * 29);
    return px;
}

// The picture the reader must show for these pixels.
inline QImage expectedImage(const std::vector<uint8_t> &px, int w, int h)
{
    return QImage(px.data(), w, h, w * 3, QImage::Format_RGB888).convertToFormat(QImage::Format_RGB32);
}

class Producer
{
public:
    Producer(int shmKey, int semKey) : m_shmKey(shmKey), m_semKey(semKey) { restart(true, true); }
    // Creates the segment and/or the set under the keys, as a (re)started
    // service does; a new set holds zeros.
    void restart(bool segment, bool set)
    {
        if (segment) {
            m_shmId = shmget(m_shmKey, 9437192, IPC_CREAT | 0666);
            void *p = m_shmId < 0 ? reinterpret_cast<void *>(-1) : shmat(m_shmId, nullptr, 0);
            m_seg = p == reinterpret_cast<void *>(-1) ? nullptr : static_cast<uint8_t *>(p);
        }
        if (set)
            m_semId = semget(m_semKey, 2, IPC_CREAT | 0600);
    }
    void removeSegment()
    {
        shmdt(m_seg);
        m_seg = nullptr;
        shmctl(m_shmId, IPC_RMID, nullptr);
    }
    void removeSet() { semctl(m_semId, 0, IPC_RMID); }
    void removeAll() { removeSet(); removeSegment(); }
    bool ok() const { return m_seg && m_semId >= 0; }
    int shmId() const { return m_shmId; }
    uint8_t *segment() const { return m_seg; }
    int value(int num) const { return semctl(m_semId, num, GETVAL); }

    // Waits up to timeoutMs for the buffer to be free.
    bool acquire(int timeoutMs)
    {
        sembuf op{0, -1, 0};
        timespec ts{timeoutMs / 1000, (timeoutMs % 1000) * 1000000L};
        while (semtimedop(m_semId, &op, 1, &ts) != 0)
            if (errno != EINTR)
                return false;
        return true;
    }
    void post()
    {
        sembuf op{1, 1, 0};
        semop(m_semId, &op, 1);
    }
    void writeHeader(quint32 w, quint32 h)
    {
        const quint32 le[2] = {qToLittleEndian(w), qToLittleEndian(h)};
        std::memcpy(m_seg, le, 8);
    }
    // One frame through the hand-shake; no pixels: the header only.
    bool send(quint32 w, quint32 h, const std::vector<uint8_t> &px = {}, int timeoutMs = 2000)
    {
        if (!acquire(timeoutMs))
            return false;
        writeHeader(w, h);
        if (!px.empty())
            std::memcpy(m_seg + 8, px.data(), px.size());
        post();
        return true;
    }

private:
    int m_shmKey, m_semKey, m_shmId = -1, m_semId = -1;
    uint8_t *m_seg = nullptr;
};

// What the process writes to standard output (the product prints its System
// V diagnostics there) from construction to finish().
class StdoutCapture
{
public:
    StdoutCapture()
    {
        fflush(stdout);
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
            m_text.resize(int(lseek(fileno(m_file), 0, SEEK_END)));
            m_text.resize(int(pread(fileno(m_file), m_text.data(), size_t(m_text.size()), 0)));
            fclose(m_file);
        }
        return m_text;
    }

private:
    int m_saved = dup(1);
    FILE *m_file = tmpfile();
    QByteArray m_text;
};

} // namespace PreviewTest
