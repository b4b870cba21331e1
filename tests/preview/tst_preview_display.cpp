// The preview display object and its provider, and the preview control
// (PreviewImage.qml) loaded as the screens load it.
#include "PreviewItem.h"
#include "PreviewTestProducer.h"
#include "UiproGetImageShareData.h"
#include "UiprocImageShow.h"

#include <QQmlContext>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QSGRendererInterface>
#include <QSignalSpy>
#include <QtTest/QtTest>

#include <thread>

namespace {
QImage uniform(int w, int h, QRgb colour)
{
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(colour);
    return img;
}

// Four quadrants (red, green / blue, white) under a yellow band over the
// top fifth: where each lands on screen tells placement and orientation.
QImage quadrants(int w, int h)
{
    QImage img(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const bool right = x >= w / 2, bottom = y >= h / 2;
            img.setPixel(x, y, y < h / 5 ? qRgb(255, 255, 0)
                                 : bottom ? (right ? qRgb(255, 255, 255) : qRgb(0, 0, 255))
                                          : (right ? qRgb(0, 255, 0) : qRgb(255, 0, 0)));
        }
    }
    return img;
}

bool near(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= 16 && qAbs(qGreen(a) - qGreen(b)) <= 16 && qAbs(qBlue(a) - qBlue(b)) <= 16;
}

// The control with the frame source, in a black window of 160x90 that is
// shown or not.
struct Harness
{
    QQuickView view;
    UiprocImageShow *show = new UiprocImageShow(view.engine());
    QObject *root = nullptr;
    PreviewItem *item = nullptr;

    explicit Harness(bool shown)
    {
        view.engine()->rootContext()->setContextProperty(QStringLiteral("CodeImage"), show);
        view.engine()->addImageProvider(QStringLiteral("MyMainCodeImg"), show->provider());
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setColor(Qt::black);
        view.setSource(QUrl::fromLocalFile(QStringLiteral(CS_SOURCE_DIR "/qml/CONTROLS/PreviewImage.qml")));
        view.resize(160, 90);
        if (shown)
            view.show();
        root = view.rootObject();
        item = root ? root->findChild<PreviewItem *>(QStringLiteral("previewPicture")) : nullptr;
    }
    int shownCount() const { return root->property("framesShown").toInt(); }
    // What the window last put on the screen (its backing store).
    QImage screen() { return view.screen()->grabWindow(view.winId()).toImage().convertToFormat(QImage::Format_RGB32); }
};
} // namespace

class TstPreviewDisplay : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // No OpenGL in the test environment: the software scene graph also swaps frames.
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
        qmlRegisterType<PreviewItem>("cs.Preview", 1, 0, "PreviewItem");
    }

    void setMainImageCopiesRectangle_data()
    {
        QTest::addColumn<QSize>("source");
        QTest::addColumn<QSize>("asked");
        QTest::addColumn<QSize>("stored");
        QTest::newRow("whole") << QSize(64, 36) << QSize(64, 36) << QSize(64, 36);
        QTest::newRow("top-left part") << QSize(64, 36) << QSize(10, 5) << QSize(10, 5);
        QTest::newRow("larger than the image: intersection") << QSize(64, 36) << QSize(100, 100) << QSize(64, 36);
        QTest::newRow("0x0: null image") << QSize(64, 36) << QSize(0, 0) << QSize();
        QTest::newRow("null image") << QSize(0, 0) << QSize(10, 10) << QSize();
    }
    void setMainImageCopiesRectangle()
    {
        QFETCH(QSize, source);
        QFETCH(QSize, asked);
        QFETCH(QSize, stored);
        UiprocImageShow show;
        QVERIFY(show.provider()->requestImage(QString(), nullptr, QSize()).isNull()); // before the first frame
        QSignalSpy refresh(&show, &UiprocImageShow::callRefreshMainImg);
        // The image wraps the caller's buffer, which is reused right after the call.
        std::vector<uchar> buffer(size_t(source.width()) * source.height() * 3 + 1);
        for (size_t i = 0; i < buffer.size(); ++i)
            buffer[i] = uchar(i * 7);
        const QImage given(buffer.data(), source.width(), source.height(), source.width() * 3, QImage::Format_RGB888);
        show.setMainImage(given, asked.width(), asked.height());
        const QImage expected = stored.isValid() ? given.copy(QRect(QPoint(), stored)).convertToFormat(QImage::Format_RGB32) : QImage();
        std::fill(buffer.begin(), buffer.end(), 0xee);
        QCOMPARE(refresh.count(), 1); // also for a null frame
        QCOMPARE(show.provider()->requestImage(QString(), nullptr, QSize()).convertToFormat(QImage::Format_RGB32), expected);
        QCOMPARE(show.provider()->requestPixmap(QString(), nullptr, QSize(4, 4)).toImage().convertToFormat(QImage::Format_RGB32), expected);
        delete show.provider();
    }

    void lastConstructedIsFed()
    {
        auto *first = new UiprocImageShow;
        auto *second = new UiprocImageShow;
        QVERIFY(UiprocImageShow::deliverToCurrent(uniform(4, 4, qRgb(7, 8, 9))));
        QCOMPARE(second->framesDelivered(), quint64(1));
        QCOMPARE(first->framesDelivered(), quint64(0));
        delete second->provider();
        delete second;
        // Nothing points at a destroyed object.
        QVERIFY(!UiprocImageShow::deliverToCurrent(uniform(4, 4, qRgb(7, 8, 9))));
        delete first->provider();
        delete first;
    }

    void oneSignalPerFrame()
    {
        UiprocImageShow show;
        QSignalSpy refresh(&show, &UiprocImageShow::callRefreshMainImg);
        // From the reader's thread, by its hand-over and by setMainImage;
        // nobody fetches, and every frame still announces itself.
        std::thread([&] {
            for (int i = 1; i <= 50; ++i) {
                const QImage frame = uniform(16, 16, qRgb(i, 0, 0));
                i % 2 ? void(UiprocImageShow::deliverToCurrent(frame)) : show.setMainImage(frame, 16, 16);
            }
        }).join();
        QCOMPARE(refresh.count(), 50);
        QCOMPARE(show.provider()->requestImage(QString(), nullptr, QSize()).pixel(0, 0), qRgb(50, 0, 0));
        delete show.provider();
    }

    // The picture is the newest frame's pixels, placed by the fill mode and
    // scaled by the renderer whatever the frame's size.
    void itemShowsFramePixels_data()
    {
        using Probes = QVector<QPair<QPoint, QRgb>>;
        QTest::addColumn<QSize>("frame");
        QTest::addColumn<int>("fillMode");
        QTest::addColumn<Probes>("probes");
        const QRgb R = qRgb(255, 0, 0), G = qRgb(0, 255, 0), B = qRgb(0, 0, 255), W = qRgb(255, 255, 255),
                   Y = qRgb(255, 255, 0), K = qRgb(0, 0, 0);
        const Probes full{{{40, 30}, R}, {{120, 30}, G}, {{40, 67}, B}, {{120, 67}, W}, {{80, 5}, Y}};
        QTest::newRow("larger: scaled down") << QSize(640, 360) << int(PreviewItem::PreserveAspectFit) << full;
        QTest::newRow("odd width, packed rows") << QSize(166, 94) << int(PreviewItem::Stretch) << full;
        QTest::newRow("square, fit: bars left and right")
            << QSize(40, 40) << int(PreviewItem::PreserveAspectFit)
            << Probes{{{55, 30}, R}, {{105, 30}, G}, {{55, 67}, B}, {{105, 67}, W}, {{80, 5}, Y}, {{10, 45}, K}, {{150, 45}, K}};
        QTest::newRow("square, stretch")
            << QSize(40, 40) << int(PreviewItem::Stretch)
            << Probes{{{10, 30}, R}, {{150, 30}, G}, {{10, 67}, B}, {{150, 67}, W}, {{80, 5}, Y}};
        QTest::newRow("square, crop: top band cut off")
            << QSize(40, 40) << int(PreviewItem::PreserveAspectCrop)
            << Probes{{{40, 5}, R}, {{120, 5}, G}, {{40, 80}, B}, {{120, 80}, W}};
    }
    void itemShowsFramePixels()
    {
        QFETCH(QSize, frame);
        QFETCH(int, fillMode);
        using Probes = QVector<QPair<QPoint, QRgb>>;
        QFETCH(Probes, probes);
        Harness h(true);
        QVERIFY(h.item);
        QVERIFY(QTest::qWaitForWindowExposed(&h.view));
        h.root->setProperty("fillMode", fillMode);
        h.show->deliverFrame(quadrants(frame.width(), frame.height()));
        QTRY_COMPARE(h.shownCount(), 1);
        QCOMPARE(h.item->frameSize(), frame);
        const QImage screen = h.screen();
        for (const auto &[at, colour] : probes)
            QVERIFY2(near(screen.pixel(at), colour),
                     qPrintable(QStringLiteral("at %1,%2: %3, expected %4").arg(at.x()).arg(at.y())
                                    .arg(screen.pixel(at), 8, 16).arg(colour, 8, 16)));
    }

    // Frames that come before the picture is drawn replace the waiting one:
    // the screen gets the newest, once. Paused, the picture stays; frames
    // still keep it live, and the newest is shown when the pause ends.
    void newestReplacesWaiting_data()
    {
        QTest::addColumn<int>("frames");
        QTest::addColumn<bool>("paused");
        QTest::newRow("three frames before a draw") << 3 << false;
        QTest::newRow("paused: picture kept") << 3 << true;
    }
    void newestReplacesWaiting()
    {
        QFETCH(int, frames);
        QFETCH(bool, paused);
        Harness h(true);
        QVERIFY(QTest::qWaitForWindowExposed(&h.view));
        h.show->deliverFrame(uniform(32, 18, qRgb(10, 20, 30)));
        QTRY_COMPARE(h.shownCount(), 1);
        h.root->setProperty("paused", paused);
        for (int i = 1; i <= frames; ++i) // no event is handled in between
            h.show->deliverFrame(uniform(32, 18, qRgb(40 * i, 100, 200)));
        QTest::qWait(100);
        QCOMPARE(h.shownCount(), paused ? 1 : 2);
        QCOMPARE(h.screen().pixel(80, 45), paused ? qRgb(10, 20, 30) : qRgb(40 * frames, 100, 200));
        QCOMPARE(h.root->property("live").toBool(), true);
        if (paused) {
            h.root->setProperty("paused", false);
            QTRY_COMPARE(h.shownCount(), 2);
            QCOMPARE(h.screen().pixel(80, 45), qRgb(40 * frames, 100, 200));
        }
    }

    void liveUntilFramesStop()
    {
        Harness h(false);
        QVERIFY(h.root);
        QCOMPARE(h.root->property("live").toBool(), false);
        h.root->setProperty("staleAfterMs", 300);
        h.show->deliverFrame(uniform(32, 18, qRgb(1, 2, 3)));
        QTRY_COMPARE(h.root->property("live").toBool(), true);
        QTest::qWait(150);
        h.show->deliverFrame(uniform(32, 18, qRgb(4, 5, 6)));
        QTest::qWait(200); // 350 ms after the first, 200 after the last
        QCOMPARE(h.root->property("live").toBool(), true);
        QTRY_COMPARE_WITH_TIMEOUT(h.root->property("live").toBool(), false, 2000);
    }

    // End to end with a producer that never waits: the reader converts the
    // frames the screen takes, not every frame the producer offers, and
    // the last frame produced is the one on screen.
    void readerFeedsTheScreenOnDemand()
    {
        using namespace PreviewTest;
        qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(privateKey(5)));
        qputenv("CS_PREVIEW_SEM_KEY", QByteArray::number(privateKey(6)));
        Harness h(true);
        QVERIFY(QTest::qWaitForWindowExposed(&h.view));
        Producer producer(privateKey(5), privateKey(6));
        QVERIFY(producer.ok());
        UiproGetImageShareData reader;
        reader.getShareImageData();
        std::atomic<bool> stop{false};
        std::atomic<int> produced{0};
        const int w = 160, hgt = 90;
        std::thread feed([&] {
            for (int seed = 0; !stop.load(); ++seed) {
                if (producer.send(w, hgt, makePattern(w, hgt, seed), 100))
                    produced.fetch_add(1);
            }
        });
        QTest::qWait(1500);
        stop.store(true);
        feed.join();
        const std::vector<uint8_t> last = makePattern(w, hgt, produced.load() - 1);
        producer.send(w, hgt, last, 1000); // and one that stays the newest
        const QImage expected = expectedImage(last, w, hgt);
        QTRY_COMPARE(h.screen().copy(0, 0, w, hgt).convertToFormat(QImage::Format_RGB32), expected);
        const int shown = h.shownCount();
        const quint64 read = h.show->framesDelivered();
        reader.stopReader();
        producer.removeAll();
        QVERIFY2(shown > 10 && read <= quint64(shown) + quint64(shown) / 4 + 3,
                 qPrintable(QStringLiteral("%1 produced, %2 read, %3 shown").arg(produced.load()).arg(read).arg(shown)));
    }

    // A display that says it draws but never takes a frame (a window that
    // stopped being shown without saying so) slows the producer down to a
    // few frames a second; it never stops it. With no drawing display the
    // producer is never held back.
    void displayHoldsTheProducerBriefly_data()
    {
        QTest::addColumn<bool>("stuckDisplay");
        QTest::addColumn<int>("atLeast");
        QTest::addColumn<int>("atMost");
        QTest::newRow("no drawing display") << false << 40 << 100000;
        QTest::newRow("drawing display that never takes") << true << 3 << 20;
    }
    void displayHoldsTheProducerBriefly()
    {
        QFETCH(bool, stuckDisplay);
        QFETCH(int, atLeast);
        QFETCH(int, atMost);
        using namespace PreviewTest;
        struct Stuck : PreviewFrameListener
        {
            std::atomic<int> told{0};
            void previewFrameStored() override { told.fetch_add(1); }
        } stuck;
        qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(privateKey(7)));
        qputenv("CS_PREVIEW_SEM_KEY", QByteArray::number(privateKey(8)));
        UiprocImageShow show;
        const std::shared_ptr<PreviewFrameSlot> slot = show.frameSlot();
        slot->addDisplay(&stuck);
        slot->setDrawing(&stuck, stuckDisplay);
        Producer producer(privateKey(7), privateKey(8));
        QVERIFY(producer.ok());
        UiproGetImageShareData reader;
        reader.getShareImageData();
        const std::vector<uint8_t> px = makePattern(64, 36, 1);
        QElapsedTimer clock;
        clock.start();
        int sent = 0;
        while (clock.elapsed() < 1000)
            sent += producer.send(64, 36, px, 300);
        reader.stopReader();
        slot->removeDisplay(&stuck);
        producer.removeAll();
        delete show.provider();
        QVERIFY2(sent >= atLeast && sent <= atMost, qPrintable(QStringLiteral("%1 frames in a second").arg(sent)));
        QVERIFY(stuck.told.load() >= sent - 2); // every frame handed on was announced
    }
};

QTEST_MAIN(TstPreviewDisplay)
#include "tst_preview_display.moc"
