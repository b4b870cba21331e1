#include "PreviewItem.h"

#include "LogCategories.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRenderNode>
#include <QSGRendererInterface>
#include <QSGSimpleTextureNode>
#include <QSGTexture>

#include <algorithm>
#include <cstring>

#ifndef GL_BGRA
#define GL_BGRA 0x80E1
#endif

namespace {

// One GL texture for the life of the node, rewritten in place with each new
// frame. The frame is RGB32 (bytes B, G, R, 0xff), uploaded as BGRA where the
// driver takes it, so nothing converts it again on this side.
class PreviewGLTexture : public QSGTexture
{
public:
    ~PreviewGLTexture() override
    {
        if (m_id) {
            if (QOpenGLContext *ctx = QOpenGLContext::currentContext())
                ctx->functions()->glDeleteTextures(1, &m_id);
        }
    }
    int textureId() const override { return int(m_id); }
    QSize textureSize() const override { return m_size; }
    bool hasAlphaChannel() const override { return false; }
    bool hasMipmaps() const override { return false; }

    // During the sync: the upload itself happens at the next bind, on the
    // render thread while the GUI thread runs on.
    void setImage(const QImage &frame)
    {
        m_pending = frame;
        m_size = frame.size();
    }

    void bind() override
    {
        QOpenGLContext *ctx = QOpenGLContext::currentContext();
        if (!ctx)
            return;
        QOpenGLFunctions *f = ctx->functions();
        if (!m_id) {
            f->glGenTextures(1, &m_id);
            m_forceOptions = true;
        }
        f->glBindTexture(GL_TEXTURE_2D, m_id);
        if (!m_pending.isNull()) {
            upload(ctx, f);
            m_pending = QImage(); // the reader may reuse the buffer now
        }
        updateBindOptions(m_forceOptions);
        m_forceOptions = false;
    }

private:
    void upload(QOpenGLContext *ctx, QOpenGLFunctions *f)
    {
        if (m_bgra < 0) {
            m_bgra = !ctx->isOpenGLES() || ctx->hasExtension("GL_EXT_texture_format_BGRA8888")
                || ctx->hasExtension("GL_IMG_texture_format_BGRA8888");
            if (!m_bgra)
                qCInfo(lcPreview) << "preview: no BGRA uploads on this GL, frames are swizzled first";
        }
        const QImage *src = &m_pending;
        if (!m_bgra) {
            // Rare drivers only: reorder into a buffer kept from frame to frame.
            if (m_scratch.size() != m_pending.size())
                m_scratch = QImage(m_pending.size(), QImage::Format_RGBX8888);
            for (int y = 0; y < m_pending.height(); ++y) {
                const quint32 *s = reinterpret_cast<const quint32 *>(m_pending.constScanLine(y));
                uchar *d = m_scratch.scanLine(y);
                for (int x = 0; x < m_pending.width(); ++x, d += 4) {
                    d[0] = uchar(s[x] >> 16);
                    d[1] = uchar(s[x] >> 8);
                    d[2] = uchar(s[x]);
                    d[3] = 0xff;
                }
            }
            src = &m_scratch;
        }
        const GLenum format = m_bgra ? GLenum(GL_BGRA) : GLenum(GL_RGBA);
        const GLint internal = m_bgra && ctx->isOpenGLES() ? GLint(GL_BGRA) : GLint(GL_RGBA);
        f->glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
        if (m_allocated != src->size()) {
            f->glTexImage2D(GL_TEXTURE_2D, 0, internal, src->width(), src->height(), 0, format, GL_UNSIGNED_BYTE,
                            src->constBits());
            m_allocated = src->size();
            m_forceOptions = true;
        } else {
            f->glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, src->width(), src->height(), format, GL_UNSIGNED_BYTE,
                               src->constBits());
        }
    }

    GLuint m_id = 0;
    QSize m_size, m_allocated;
    QImage m_pending, m_scratch;
    int m_bgra = -1;
    bool m_forceOptions = true;
};

// The software renderer: the frame is drawn with the window's painter,
// straight from the reader's buffer and scaled on the way; nothing is made
// per frame.
class PreviewPaintNode : public QSGRenderNode
{
public:
    explicit PreviewPaintNode(QQuickWindow *window) : m_window(window) {}

    QImage frame;
    QRectF target, sourceRect;
    bool smooth = false;

    StateFlags changedStates() const override { return {}; }
    RenderingFlags flags() const override
    {
        // Opaque: the renderer neither clears nor blends below it.
        return frame.isNull() ? BoundedRectRendering : (BoundedRectRendering | OpaqueRendering);
    }
    QRectF rect() const override { return target; }
    void render(const RenderState *state) override
    {
        auto *p = static_cast<QPainter *>(
            m_window->rendererInterface()->getResource(m_window, QSGRendererInterface::PainterResource));
        if (!p || frame.isNull())
            return;
        const QRegion *clip = state->clipRegion();
        if (clip && !clip->isEmpty())
            p->setClipRegion(*clip, Qt::ReplaceClip); // before the transform: it is in window coordinates
        p->setTransform(matrix()->toTransform());
        p->setOpacity(inheritedOpacity());
        p->setRenderHint(QPainter::SmoothPixmapTransform, smooth);
        p->drawImage(target, frame, sourceRect);
    }

private:
    QQuickWindow *m_window;
};

} // namespace

PreviewItem::PreviewItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    m_staleTimer.setSingleShot(true);
    connect(&m_staleTimer, &QTimer::timeout, this, &PreviewItem::checkStale);
}

PreviewItem::~PreviewItem()
{
    detachSlot();
}

void PreviewItem::detachSlot()
{
    if (m_slot) {
        // After this no reader calls us; events already posted die with us.
        m_slot->removeDisplay(this);
        m_slot.reset();
    }
    m_drawing = false;
}

void PreviewItem::setSource(QObject *source)
{
    if (source == m_source)
        return;
    detachSlot();
    m_source = source;
    if (auto *show = qobject_cast<UiprocImageShow *>(source)) {
        m_slot = show->frameSlot();
        m_slot->addDisplay(this);
    } else if (source) {
        qCWarning(lcPreview) << "preview: source is not a frame source:" << source;
    }
    m_renderSerial = 0; // anything it holds is from the new source's point of view new
    updateDrawing();
    update();
    emit sourceChanged();
}

void PreviewItem::setPaused(bool paused)
{
    if (paused == m_paused)
        return;
    m_paused = paused;
    updateDrawing();
    if (!paused)
        update(); // catch up with the newest frame
    emit pausedChanged();
}

void PreviewItem::setFillMode(FillMode mode)
{
    if (mode == m_fillMode)
        return;
    m_fillMode = mode;
    update();
    emit fillModeChanged();
}

void PreviewItem::setStaleAfterMs(int ms)
{
    ms = std::max(1, ms);
    if (ms == m_staleAfterMs)
        return;
    m_staleAfterMs = ms;
    if (m_staleTimer.isActive())
        checkStale();
    emit staleAfterMsChanged();
}

// Reader thread, under the slot's lock: one posted call however many frames
// come before the GUI thread gets to it.
void PreviewItem::previewFrameStored()
{
    if (!m_arrivalPosted.exchange(true, std::memory_order_acq_rel))
        QMetaObject::invokeMethod(this, [this] { frameArrived(); }, Qt::QueuedConnection);
}

void PreviewItem::frameArrived()
{
    m_arrivalPosted.store(false, std::memory_order_release);
    m_lastArrival.restart();
    if (!m_staleTimer.isActive())
        m_staleTimer.start(m_staleAfterMs);
    if (!m_live) {
        m_live = true;
        emit liveChanged();
    }
    if (!m_paused) {
        update();
        // The software renderer draws on this thread when the window's
        // update request comes, which the platform defers by a few ms to
        // gather changes; the frame is the change, so draw it now.
        QQuickWindow *w = window();
        if (w && w->isExposed() && w->rendererInterface()->graphicsApi() == QSGRendererInterface::Software)
            QCoreApplication::postEvent(w, new QEvent(QEvent::UpdateRequest));
    }
    refreshShownCount();
}

void PreviewItem::checkStale()
{
    const qint64 quiet = m_lastArrival.isValid() ? m_lastArrival.elapsed() : m_staleAfterMs;
    if (quiet < m_staleAfterMs) {
        m_staleTimer.start(int(m_staleAfterMs - quiet));
        return;
    }
    if (m_live) {
        m_live = false;
        emit liveChanged();
    }
}

void PreviewItem::refreshShownCount()
{
    const int taken = m_framesTaken.load(std::memory_order_relaxed);
    const QSize size(m_frameWidth.load(std::memory_order_relaxed), m_frameHeight.load(std::memory_order_relaxed));
    if (size != m_frameSize) {
        m_frameSize = size;
        emit frameSizeChanged();
    }
    if (taken != m_framesShown) {
        m_framesShown = taken;
        emit framesShownChanged();
    }
}

void PreviewItem::updateDrawing()
{
    QQuickWindow *w = window();
    const bool drawing = m_slot && !m_paused && isVisible() && w && w->isVisible();
    if (drawing == m_drawing)
        return;
    m_drawing = drawing;
    m_slot->setDrawing(this, drawing);
}

void PreviewItem::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (change == ItemSceneChange) {
        disconnect(m_swapConnection);
        if (value.window) {
            // framesShown follows what was swapped, reported on this thread.
            m_swapConnection = connect(value.window, &QQuickWindow::frameSwapped, this,
                                       &PreviewItem::refreshShownCount, Qt::QueuedConnection);
            connect(value.window, &QWindow::visibleChanged, this, &PreviewItem::updateDrawing,
                    Qt::UniqueConnection);
        }
    }
    QQuickItem::itemChange(change, value);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged)
        updateDrawing();
}

void PreviewItem::geometryChanged(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChanged(newGeometry, oldGeometry);
    update();
}

void PreviewItem::placement(FillMode mode, const QSizeF &item, const QSize &frame, QRectF *target, QRectF *sourceRect)
{
    *target = QRectF(QPointF(0, 0), item);
    *sourceRect = QRectF(QPointF(0, 0), QSizeF(frame));
    if (frame.isEmpty() || item.isEmpty() || mode == Stretch)
        return;
    const qreal sx = item.width() / frame.width(), sy = item.height() / frame.height();
    if (mode == PreserveAspectFit) {
        const qreal s = std::min(sx, sy);
        const QSizeF shown(frame.width() * s, frame.height() * s);
        *target = QRectF(QPointF((item.width() - shown.width()) / 2, (item.height() - shown.height()) / 2), shown);
    } else {
        const qreal s = std::max(sx, sy);
        const QSizeF part(item.width() / s, item.height() / s);
        *sourceRect = QRectF(QPointF((frame.width() - part.width()) / 2, (frame.height() - part.height()) / 2), part);
    }
}

QSGNode *PreviewItem::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    bool fresh = false;
    if (!m_paused && m_slot) {
        quint64 serial = 0;
        const QImage newer = m_slot->takeNewer(m_renderSerial, &serial);
        if (!newer.isNull()) {
            m_frame = newer;
            m_renderSerial = serial;
            fresh = true;
            m_frameWidth.store(newer.width(), std::memory_order_relaxed);
            m_frameHeight.store(newer.height(), std::memory_order_relaxed);
            m_framesTaken.fetch_add(1, std::memory_order_relaxed);
            m_shownSerial.store(serial, std::memory_order_release);
        }
    }
    if (m_frame.isNull() || width() <= 0 || height() <= 0) {
        delete old;
        return nullptr;
    }
    QRectF target, sourceRect;
    placement(m_fillMode, size(), m_frame.size(), &target, &sourceRect);

    QQuickWindow *w = window();
    const QSGRendererInterface::GraphicsApi api = w->rendererInterface()->graphicsApi();
    const NodeKind kind = api == QSGRendererInterface::OpenGL && QOpenGLContext::currentContext() ? GLNode
        : api == QSGRendererInterface::Software                                              ? PaintNode
                                                                                              : ImageNode;
    if (old && kind != m_nodeKind) {
        delete old;
        old = nullptr;
    }
    m_nodeKind = kind;

    switch (kind) {
    case GLNode: {
        auto *node = static_cast<QSGSimpleTextureNode *>(old);
        if (!node) {
            node = new QSGSimpleTextureNode;
            node->setOwnsTexture(true);
            node->setTexture(new PreviewGLTexture);
            fresh = true;
        }
        auto *texture = static_cast<PreviewGLTexture *>(node->texture());
        if (fresh) {
            texture->setImage(m_frame);
            node->markDirty(QSGNode::DirtyMaterial);
        }
        node->setFiltering(smooth() ? QSGTexture::Linear : QSGTexture::Nearest);
        node->setRect(target);
        node->setSourceRect(sourceRect);
        return node;
    }
    case PaintNode: {
        auto *node = static_cast<PreviewPaintNode *>(old);
        if (!node)
            node = new PreviewPaintNode(w);
        node->frame = m_frame;
        node->target = target;
        node->sourceRect = sourceRect;
        node->smooth = smooth();
        node->markDirty(QSGNode::DirtyMaterial);
        return node;
    }
    case ImageNode:
    case NoNode:
        break;
    }
    // Any other scene graph: its own texture, made again for each frame.
    auto *node = static_cast<QSGImageNode *>(old);
    if (!node) {
        node = w->createImageNode();
        node->setOwnsTexture(true);
        fresh = true;
    }
    if (fresh)
        node->setTexture(w->createTextureFromImage(m_frame));
    node->setFiltering(smooth() ? QSGTexture::Linear : QSGTexture::Nearest);
    node->setRect(target);
    node->setSourceRect(sourceRect);
    return node;
}
