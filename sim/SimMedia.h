#pragma once
// The simulator's shared-memory producers: preview frames under the
// two-semaphore hand-shake, and the nine audio levels.
#include "SimPicture.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QObject>
#include <QString>

#include <atomic>
#include <thread>
#include <vector>

class QTimer;

namespace Sim {

// System V key text: "0x"-prefixed hexadecimal or decimal.
bool parseKey(const QString &text, int *key);
// The key from an environment variable, or the fallback when unset; a bad
// value is logged and the fallback used.
int envKey(const char *name, int fallback);

constexpr int kPreviewShmSize = 0x900008;   // 8-byte header + 2048 x 1536 x 3
constexpr int kPreviewPixelBytes = 0x900000;
constexpr int kAudioShmSize = 36;
constexpr int kAudioLevels = 9;

class PreviewProducer
{
public:
    PreviewProducer(int shmKey, int semKey, int width, int height, int fps);
    ~PreviewProducer();

    // Width and height the segment can carry (width * 3 a multiple of 4).
    static bool validSize(int width, int height, QString *why);

    // Creates or attaches the segment and the semaphore set. Logs and
    // returns false when it cannot.
    bool open();
    void start();
    void stop(); // waits for the frame in hand to be finished
    // Removes the segment and the set (for testing the consumer's recovery).
    void removeIpc();

    void setScene(const Scene &scene);
    quint64 framesWritten() const { return m_frames.load(); }
    quint64 forcedWrites() const { return m_forced.load(); }

    // Writes one frame under the hand-shake; false when stopped while
    // waiting or when the set is gone. Used by the thread and by tests.
    bool writeFrame(qint64 elapsedMs);

    // How long to wait for the buffer before assuming its holder died.
    static constexpr int kStaleMs = 1000;

private:
    void run();
    int acquire(); // 1 got it, 0 forced after kStaleMs, -1 stop or error

    const int m_shmKey, m_semKey, m_width, m_height, m_fps;
    int m_shmId = -1, m_semId = -1;
    uchar *m_shm = nullptr;
    std::vector<uchar> m_frame;
    QMutex m_sceneLock;
    Scene m_scene;
    std::atomic<bool> m_stop{false};
    std::atomic<quint64> m_frames{0}, m_forced{0};
    std::thread m_thread;
    QElapsedTimer m_clock;
    bool m_warnedGone = false;
};

// Nine moving levels about ten times a second; the programme input's level
// moves most.
class AudioProducer : public QObject
{
    Q_OBJECT
public:
    explicit AudioProducer(int shmKey, QObject *parent = nullptr);
    ~AudioProducer() override;

    bool open();
    void start(int periodMs = 100);
    void removeIpc();
    void setScene(const Scene &scene) { m_scene = scene; }

    // The levels for a given time: mic, hdmi1, hdmi2, line, uvc1, uvc2, ndi, usb, ear.
    static std::array<int, kAudioLevels> levels(const Scene &scene, qint64 elapsedMs);
    // Audio level slot of an input (HDMI 1 -> hdmi1 ...).
    static int levelIndex(int input);

    void writeOnce();

private:
    const int m_key;
    int m_shmId = -1;
    uchar *m_shm = nullptr;
    Scene m_scene;
    QTimer *m_timer;
    QElapsedTimer m_clock;
};

} // namespace Sim
