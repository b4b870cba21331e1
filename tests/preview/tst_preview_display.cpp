// The preview display object and its provider, and the preview control
// (PreviewImage.qml) loaded as the screens load it.
#include "UiprocImageShow.h"

#include <QQmlContext>
#include <QQuickItem>
#include <QQuickView>
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

// The control with the frame source, in a window that is shown or not.
struct Harness
{
    QQuickView view;
    UiprocImageShow *show = new UiprocImageShow(view.engine());
    QObject *root = nullptr;

    explicit Harness(bool shown)
    {
        view.engine()->rootContext()->setContextProperty(QStringLiteral("CodeImage"), show);
        view.engine()->addImageProvider(QStringLiteral("MyMainCodeImg"), show->provider());
        view.setResizeMode(QQuickView::SizeRootObjectToView);
        view.setSource(QUrl::fromLocalFile(QStringLiteral(CS_SOURCE_DIR "/qml/CONTROLS/PreviewImage.qml")));
        view.resize(160, 90);
        if (shown)
            view.show();
        root = view.rootObject();
    }
    QString source() const { return root->findChild<QObject *>("previewPicture")->property("source").toString(); }
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

    void controlFollowsFramesUnlessPaused()
    {
        Harness h(false);
        QVERIFY(h.root);
        QCOMPARE(h.root->property("live").toBool(), false);
        h.root->setProperty("staleAfterMs", 300);
        h.show->deliverFrame(uniform(32, 18, qRgb(1, 2, 3)));
        // (QUrl lower-cases the provider name, as the engine does when it looks it up.)
        QVERIFY(h.source().startsWith(QStringLiteral("image://MyMainCodeImg/"), Qt::CaseInsensitive));
        QCOMPARE(h.root->property("live").toBool(), true);
        QCOMPARE(h.root->property("framesShown").toInt(), 1);
        // Each frame gets a new id, so it is fetched again rather than cached.
        const QString first = h.source();
        h.show->deliverFrame(uniform(32, 18, qRgb(4, 5, 6)));
        QTRY_COMPARE(h.show->framesServed(), quint64(2));
        QVERIFY(h.source() != first);
        // No frames for a while: not live, until the next one.
        QTRY_COMPARE_WITH_TIMEOUT(h.root->property("live").toBool(), false, 2000);
        h.root->setProperty("paused", true);
        h.show->deliverFrame(uniform(8, 8, qRgb(9, 9, 9)));
        QCOMPARE(h.root->property("live").toBool(), true); // frames arrive, only not fetched while paused
        QTest::qWait(150);
        QCOMPARE(h.show->framesServed(), quint64(2));
        h.root->setProperty("paused", false);
        h.show->deliverFrame(uniform(8, 8, qRgb(10, 10, 10)));
        QCOMPARE(h.show->framesServed(), quint64(3));
    }

    void controlFetchesOncePerDrawnFrame_data()
    {
        QTest::addColumn<bool>("window");
        QTest::newRow("shown in a window") << true;
        QTest::newRow("window not shown: paced") << false;
    }
    void controlFetchesOncePerDrawnFrame()
    {
        QFETCH(bool, window);
        Harness h(window);
        QVERIFY(!window || QTest::qWaitForWindowExposed(&h.view));
        int swaps = 0;
        connect(&h.view, &QQuickWindow::frameSwapped, this, [&] { ++swaps; }, Qt::DirectConnection);
        // A producer much faster than the display: every frame signals, the
        // control fetches at most one per drawn frame (or per 100 ms undrawn).
        QElapsedTimer clock;
        clock.start();
        const int burst = 200;
        for (int i = 0; i < burst; ++i) {
            h.show->deliverFrame(uniform(160, 90, qRgb(i % 256, 40, 80)));
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(h.show->lastServedFrame(), quint64(burst)); // the newest frame ends up shown
        const quint64 served = h.show->framesServed(), allowed = window ? swaps + 3 : clock.elapsed() / 100 + 2;
        QVERIFY2(served <= allowed && served < burst / 2,
                 qPrintable(QStringLiteral("%1 fetches, %2 swaps, %3 ms").arg(served).arg(swaps).arg(clock.elapsed())));
    }
};

QTEST_MAIN(TstPreviewDisplay)
#include "tst_preview_display.moc"
