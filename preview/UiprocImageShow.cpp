#include "UiprocImageShow.h"

#include <QPixmap>

#include <algorithm>
#include <chrono>

#include <pthread.h>
#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
std::atomic<UiprocImageShow *> g_lastShow{nullptr};
// Held while the reader hands a frame over and while an instance goes away.
std::mutex g_lastShowMutex;
} // namespace

void PreviewFrameSlot::addDisplay(PreviewFrameListener *listener)
{
    std::unique_lock<std::mutex> lock(mutex);
    displays.push_back({listener, false});
}

void PreviewFrameSlot::removeDisplay(PreviewFrameListener *listener)
{
    std::unique_lock<std::mutex> lock(mutex);
    displays.erase(std::remove_if(displays.begin(), displays.end(),
                                  [listener](const Display &d) { return d.listener == listener; }),
                   displays.end());
    demand.notify_all();
}

void PreviewFrameSlot::setDrawing(PreviewFrameListener *listener, bool drawing)
{
    std::unique_lock<std::mutex> lock(mutex);
    for (Display &d : displays) {
        if (d.listener == listener)
            d.drawing = drawing;
    }
    demand.notify_all();
}

QImage PreviewFrameSlot::takeNewer(quint64 shownSerial, quint64 *serial)
{
    std::unique_lock<std::mutex> lock(mutex);
    const quint64 newest = delivered.load(std::memory_order_relaxed);
    *serial = newest;
    if (takenSerial != newest) {
        takenSerial = newest;
        demand.notify_all();
    }
    return newest != shownSerial ? frame : QImage();
}

bool PreviewFrameSlot::waitForDemand(int ms)
{
    std::unique_lock<std::mutex> lock(mutex);
    return demand.wait_for(lock, std::chrono::milliseconds(ms), [this] {
        const bool anyDrawing = std::any_of(displays.begin(), displays.end(), [](const Display &d) { return d.drawing; });
        return !anyDrawing || takenSerial == delivered.load(std::memory_order_relaxed);
    });
}

UiprocImageProvider::UiprocImageProvider()
    : UiprocImageProvider(std::make_shared<PreviewFrameSlot>())
{
}

UiprocImageProvider::UiprocImageProvider(std::shared_ptr<PreviewFrameSlot> slot)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , m_slot(std::move(slot))
{
}

QImage UiprocImageProvider::takeForServing()
{
    std::lock_guard<std::mutex> lock(m_slot->mutex);
    if (!m_slot->frame.isNull()) {
        m_slot->served.fetch_add(1, std::memory_order_relaxed);
        m_slot->lastServedSerial.store(m_slot->delivered.load(std::memory_order_relaxed), std::memory_order_relaxed);
    }
    return m_slot->frame; // shallow, shared copy of the handle
}

QImage UiprocImageProvider::requestImage(const QString &, QSize *, const QSize &)
{
    return takeForServing();
}

QPixmap UiprocImageProvider::requestPixmap(const QString &, QSize *, const QSize &)
{
    return QPixmap::fromImage(takeForServing());
}

QImage UiprocImageProvider::currentFrame() const
{
    std::lock_guard<std::mutex> lock(m_slot->mutex);
    return m_slot->frame;
}

UiprocImageShow::UiprocImageShow(QObject *parent)
    : QObject(parent)
    , m_slot(std::make_shared<PreviewFrameSlot>())
    , m_provider(new UiprocImageProvider(m_slot))
{
    std::lock_guard<std::mutex> lock(g_lastShowMutex);
    g_lastShow.store(this);
}

UiprocImageShow::~UiprocImageShow()
{
    std::lock_guard<std::mutex> lock(g_lastShowMutex);
    UiprocImageShow *self = this;
    g_lastShow.compare_exchange_strong(self, nullptr);
    // The provider belongs to the engine once installed; a provider that was
    // never installed is ours to delete, but we cannot tell which, so leave it
    // (it only holds a reference to the shared slot).
}

UiprocImageShow *UiprocImageShow::instance()
{
    return g_lastShow.load();
}

bool UiprocImageShow::deliverToCurrent(const QImage &frame)
{
    std::lock_guard<std::mutex> lock(g_lastShowMutex);
    UiprocImageShow *show = g_lastShow.load();
    if (!show)
        return false;
    show->deliverFrame(frame);
    return true;
}

std::shared_ptr<PreviewFrameSlot> UiprocImageShow::currentSlot()
{
    std::lock_guard<std::mutex> lock(g_lastShowMutex);
    UiprocImageShow *show = g_lastShow.load();
    return show ? show->m_slot : nullptr;
}

void UiprocImageShow::setMainImage(QImage image, int width, int height)
{
    // Deep copy: the caller may free the buffer the image wraps right after.
    // Only the part inside the image is taken; an empty rectangle gives a
    // null frame (QImage::copy would take the whole image for it).
    const QRect part = QRect(0, 0, width, height).intersected(image.rect());
    storeAndNotify(part.isEmpty() ? QImage() : image.copy(part));
}

void UiprocImageShow::deliverFrame(const QImage &frame)
{
    storeAndNotify(QImage(frame));
}

void UiprocImageShow::storeAndNotify(QImage &&frame)
{
    PreviewFrameSlot &slot = *m_slot;
    {
        std::lock_guard<std::mutex> lock(slot.mutex);
        slot.frame.swap(frame);
        slot.delivered.fetch_add(1, std::memory_order_relaxed);
        for (const PreviewFrameSlot::Display &d : slot.displays)
            d.listener->previewFrameStored();
    }
    // The old frame (now in `frame`) is released outside the lock.
    frame = QImage();
    emit callRefreshMainImg();
}

void UiprocImageShow::setCore()
{
    (void)syscall(SYS_gettid);
    cpu_set_t set;
    CPU_ZERO(&set);
    CPU_SET(3, &set);
    // Fewer cores (a desktop): the thread keeps its mask.
    (void)pthread_setaffinity_np(pthread_self(), sizeof set, &set);
}
