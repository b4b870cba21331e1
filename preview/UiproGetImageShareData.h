#pragma once
// Reads preview frames from the media service's shared memory.
#include <QObject>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include <pthread.h>
#include <sys/types.h>

struct sembuf;
struct shmid_ds;
class QImage;

class UiproGetImageShareData : public QObject
{
    Q_OBJECT
public:
    enum Mode { SingleBuffer = 0, TwoBuffers = 1 };

    static constexpr int kDefaultShmKey = 0x1005;
    static constexpr int kDefaultSemKey = 1234;
    static constexpr size_t kHeaderSize = 8;
    static constexpr size_t kPixelArea = 9437184;  // 2048 x 1536 x 3
    static constexpr size_t kSegmentSize = kHeaderSize + kPixelArea;

    // Keys, overridable by CS_PREVIEW_SHM_KEY / CS_PREVIEW_SEM_KEY (decimal or 0x-hex).
    static int shmKey();
    static int semKey();

    explicit UiproGetImageShareData(QObject *parent = nullptr);
    ~UiproGetImageShareData() override;

    // System V primitives; each prints its failure on standard output.
    int createSem(key_t key, int count, int flags);
    int controlSem(int semId, int semNum, int cmd, int value);
    int createShm(key_t key, size_t size, int flags);
    void *attachShm(int shmId, const void *addr, int flags);
    int controlShm(int shmId, int cmd, struct shmid_ds *buf);
    int semOperations(int semId, struct sembuf *ops, size_t count);
    int semWait(int semId, int semNum);
    int semPost(int semId, int semNum);
    int semP(int semId);
    int semV(int semId);
    int deleteSem();
    int detach(Mode mode);
    void pinThread(unsigned long mask, pthread_t thread);
    // Points at the frame in the segment: data, width (header word 0), height (word 1).
    // In single-buffer mode the pointer is valid until a reader attaches a
    // segment the producer re-created.
    bool takeFrame(uint8_t **data, int *width, int *height, Mode mode);

    bool isAttached() const;
    int semId() const { return m_semId; }
    int shmId() const;

    // Stops the reader thread (tests and tools; the application never stops it).
    void stopReader();
    bool readerRunning() const;

    // Frames refused because of an impossible header, since construction.
    quint64 refusedFrames() const;

public slots:
    void getShareImageData();
    void setShareImageFlag(bool flag);

public:
    struct ReaderState;
    struct Segment;

private:
    void attach(Mode mode);

    // The single-buffer frame segment, shared with the readers, which attach
    // a new one when the producer re-creates it.
    std::shared_ptr<Segment> m_segment;
    void *m_shmAddrs[2] = {nullptr, nullptr};
    int m_bufSemIds[4] = {0, 0, 0, 0};  // two-buffer mode: free/written per buffer
    int m_lastBuffer = 0;
    uint8_t *m_frame = nullptr;
    int m_semId = -1;
    bool m_shareImageFlag = false;

    int m_attachErrno = 0;
    std::vector<std::shared_ptr<ReaderState>> m_readers;
};
