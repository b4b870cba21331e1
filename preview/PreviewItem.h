#pragma once
// The live preview picture as a scene-graph item: one texture (or, with the
// software renderer, one painted image) updated in place from the newest
// frame of a UiprocImageShow, scaled by the renderer.
#include "UiprocImageShow.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QQuickItem>
#include <QTimer>

#include <atomic>
#include <memory>

class PreviewItem : public QQuickItem, public PreviewFrameListener
{
    Q_OBJECT
    // The UiprocImageShow whose frames are shown (the "CodeImage" object).
    Q_PROPERTY(QObject *source READ source WRITE setSource NOTIFY sourceChanged)
    // While set, the picture stays as it is; frames still count for `live`.
    Q_PROPERTY(bool paused READ paused WRITE setPaused NOTIFY pausedChanged)
    Q_PROPERTY(FillMode fillMode READ fillMode WRITE setFillMode NOTIFY fillModeChanged)
    // True from a frame's arrival until none came for staleAfterMs.
    Q_PROPERTY(bool live READ live NOTIFY liveChanged)
    Q_PROPERTY(int staleAfterMs READ staleAfterMs WRITE setStaleAfterMs NOTIFY staleAfterMsChanged)
    // Distinct frames put on screen so far.
    Q_PROPERTY(int framesShown READ framesShown NOTIFY framesShownChanged)
    // Size of the frame on screen (empty before the first).
    Q_PROPERTY(QSize frameSize READ frameSize NOTIFY frameSizeChanged)

public:
    enum FillMode { Stretch, PreserveAspectFit, PreserveAspectCrop };
    Q_ENUM(FillMode)

    explicit PreviewItem(QQuickItem *parent = nullptr);
    ~PreviewItem() override;

    QObject *source() const { return m_source; }
    void setSource(QObject *source);
    bool paused() const { return m_paused; }
    void setPaused(bool paused);
    FillMode fillMode() const { return m_fillMode; }
    void setFillMode(FillMode mode);
    bool live() const { return m_live; }
    int staleAfterMs() const { return m_staleAfterMs; }
    void setStaleAfterMs(int ms);
    int framesShown() const { return m_framesShown; }
    QSize frameSize() const { return m_frameSize; }

    // Serial (UiprocImageShow's delivered count) of the frame on screen;
    // readable from any thread, e.g. in a frameSwapped handler.
    quint64 shownSerial() const { return m_shownSerial.load(std::memory_order_acquire); }

    // Where a frame of `frame` pixels goes in an item of `item` size, and
    // which part of the frame is shown there.
    static void placement(FillMode mode, const QSizeF &item, const QSize &frame, QRectF *target, QRectF *sourceRect);

    void previewFrameStored() override;

signals:
    void sourceChanged();
    void pausedChanged();
    void fillModeChanged();
    void liveChanged();
    void staleAfterMsChanged();
    void framesShownChanged();
    void frameSizeChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void geometryChanged(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void frameArrived();
    void checkStale();
    void refreshShownCount();
    void updateDrawing();
    void detachSlot();

    QPointer<QObject> m_source;
    std::shared_ptr<PreviewFrameSlot> m_slot;
    std::atomic<bool> m_arrivalPosted{false};
    bool m_paused = false;
    bool m_drawing = false;
    FillMode m_fillMode = PreserveAspectFit;
    bool m_live = false;
    int m_staleAfterMs = 2000;
    QElapsedTimer m_lastArrival;
    QTimer m_staleTimer;
    int m_framesShown = 0;
    QSize m_frameSize;
    QMetaObject::Connection m_swapConnection;

    // Render side: touched only in updatePaintNode (GUI thread blocked).
    enum NodeKind { NoNode, GLNode, PaintNode, ImageNode };
    NodeKind m_nodeKind = NoNode;
    QImage m_frame;
    quint64 m_renderSerial = 0;
    std::atomic<quint64> m_shownSerial{0};
    std::atomic<int> m_framesTaken{0};
    std::atomic<int> m_frameWidth{0}, m_frameHeight{0};
};
