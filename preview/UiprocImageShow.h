#pragma once
// Holds the latest preview frame (in its image provider) and tells the screens a new one is there.
#include <QImage>
#include <QMutex>
#include <QObject>
#include <QQuickImageProvider>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

// A display that shows frames straight from the slot (PreviewItem). Told on
// the storing thread, under the slot's lock: it must only flag and post.
class PreviewFrameListener
{
public:
    virtual void previewFrameStored() = 0;

protected:
    ~PreviewFrameListener() = default;
};

// The frame slot shared by the show object and its provider. The provider is
// owned by the QML engine and may outlive or predecease the show object, so
// neither holds a raw pointer to the other.
struct PreviewFrameSlot
{
    // Guards frame (image handles are not safe to swap under concurrent
    // readers) and the display state below. A standard mutex, so thread
    // checkers see it.
    std::mutex mutex;
    QImage frame;
    std::atomic<quint64> served{0};      // frames handed to the engine
    std::atomic<quint64> delivered{0};   // frames stored in the slot
    std::atomic<quint64> lastServedSerial{0}; // `delivered` count of the frame served last

    // Displays reading the slot directly, and whether each one is drawing
    // (visible, in a window, not paused). Guarded by mutex.
    struct Display { PreviewFrameListener *listener; bool drawing; };
    std::vector<Display> displays;
    quint64 takenSerial = 0;  // `delivered` count of the frame a display took last
    std::condition_variable demand; // a display took a frame or stopped drawing

    void addDisplay(PreviewFrameListener *listener);
    void removeDisplay(PreviewFrameListener *listener);
    void setDrawing(PreviewFrameListener *listener, bool drawing);
    // The newest frame if it is newer than `shownSerial` (else null); its
    // serial goes to *serial. Marks the newest frame as taken either way.
    QImage takeNewer(quint64 shownSerial, quint64 *serial);
    // Until a drawing display wants a frame (it took the newest one), none
    // draws, or `ms` ran out (false).
    bool waitForDemand(int ms);
};

class UiprocImageProvider : public QQuickImageProvider
{
public:
    UiprocImageProvider();
    explicit UiprocImageProvider(std::shared_ptr<PreviewFrameSlot> slot);
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
    QPixmap requestPixmap(const QString &id, QSize *size, const QSize &requestedSize) override;

    // The current frame without marking it served (for tests and tools).
    QImage currentFrame() const;

private:
    QImage takeForServing();
    std::shared_ptr<PreviewFrameSlot> m_slot;
};

class UiprocImageShow : public QObject
{
    Q_OBJECT
public:
    explicit UiprocImageShow(QObject *parent = nullptr);
    ~UiprocImageShow() override;
    UiprocImageProvider *provider() const { return m_provider; }
    void setScreenCount(int count) { m_screenCount = count; }
    int screenCount() const { return m_screenCount; }

    // The instance constructed last; the frame reader feeds it.
    static UiprocImageShow *instance();
    // Hands a frame to the instance constructed last, if any; safe against
    // that instance being destroyed meanwhile. False when there is none.
    static bool deliverToCurrent(const QImage &frame);
    // The frame slot of that instance (null when there is none); it stays
    // valid after the instance is gone.
    static std::shared_ptr<PreviewFrameSlot> currentSlot();
    std::shared_ptr<PreviewFrameSlot> frameSlot() const { return m_slot; }

    // Takes a frame the caller no longer writes to (no deep copy). Used by the
    // frame reader, whose images are already in the display format.
    void deliverFrame(const QImage &frame);

    quint64 framesDelivered() const { return m_slot->delivered.load(); }
    quint64 framesServed() const { return m_slot->served.load(); }
    // Which frame the screen fetched last (1 = the first frame delivered);
    // framesDelivered() minus this is how far the screen lags behind.
    quint64 lastServedFrame() const { return m_slot->lastServedSerial.load(); }

signals:
    // Emitted for every frame stored, from the thread that stored it. A
    // producer faster than the display is the preview control's business: it
    // fetches at most one frame per frame it draws.
    void callRefreshMainImg();

public slots:
    void setMainImage(QImage image, int width, int height);
    void setCore();

private:
    void storeAndNotify(QImage &&frame);

    std::shared_ptr<PreviewFrameSlot> m_slot;
    UiprocImageProvider *m_provider = nullptr;
    int m_screenCount = 0;
};
