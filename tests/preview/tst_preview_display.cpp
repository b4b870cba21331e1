// The preview display: frame hand-over, provider, refresh coalescing.
#include "UiprocImageShow.h"

#include <QPixmap>
#include <QSignalSpy>
#include <QtTest/QtTest>

#include <atomic>
#include <thread>

namespace {
QImage uniform(int w, int h, QRgb colour, QImage::Format format = QImage::Format_RGB32)
{
    QImage img(w, h, format);
    img.fill(colour);
    return img;
}
} // namespace

class TstPreviewDisplay : public QObject
{
    Q_OBJECT

private slots:
    void nullBeforeFirstFrame();
    void setMainImageCopiesRectangle_data();
    void setMainImageCopiesRectangle();
    void setMainImageTakesDeepCopy();
    void pixmapMatchesImage();
    void lastConstructedIsFed();
    void burstEmitsOnceUntilServed();
    void servedFrameIsNewest();
    void rearmsWhenNobodyFetches();
    void concurrentReadersSeeWholeFrames();
    void instancesComeAndGoWhileFed();
};

void TstPreviewDisplay::nullBeforeFirstFrame()
{
    UiprocImageShow show;
    QSize untouched(-7, -7);
    QVERIFY(show.provider()->requestImage(QString(), &untouched, QSize()).isNull());
    QCOMPARE(untouched, QSize(-7, -7));
    QVERIFY(show.provider()->requestPixmap(QString(), nullptr, QSize()).isNull());
    QCOMPARE(show.provider()->imageType(), QQmlImageProviderBase::Image);
    delete show.provider();
}

void TstPreviewDisplay::setMainImageCopiesRectangle_data()
{
    QTest::addColumn<QSize>("source");
    QTest::addColumn<QSize>("asked");
    QTest::addColumn<QSize>("stored");
    QTest::newRow("whole") << QSize(64, 36) << QSize(64, 36) << QSize(64, 36);
    QTest::newRow("top-left part") << QSize(64, 36) << QSize(10, 5) << QSize(10, 5);
    QTest::newRow("larger than the image: intersection") << QSize(64, 36) << QSize(100, 100) << QSize(64, 36);
    QTest::newRow("0x0: null image") << QSize(64, 36) << QSize(0, 0) << QSize();
    QTest::newRow("null image") << QSize() << QSize(10, 10) << QSize();
}

void TstPreviewDisplay::setMainImageCopiesRectangle()
{
    QFETCH(QSize, source);
    QFETCH(QSize, asked);
    QFETCH(QSize, stored);
    UiprocImageShow show;
    QSignalSpy refresh(&show, &UiprocImageShow::callRefreshMainImg);
    QImage img(source, QImage::Format_RGB888);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            img.setPixel(x, y, qRgb(x * 3, y * 5, 7));
    show.setMainImage(img, asked.width(), asked.height());
    QCOMPARE(refresh.count(), 1); // emitted also for a null frame
    const QImage got = show.provider()->requestImage(QString(), nullptr, QSize());
    if (!stored.isValid()) {
        QVERIFY(got.isNull());
    } else {
        QCOMPARE(got.size(), stored);
        for (int y = 0; y < got.height(); ++y)
            for (int x = 0; x < got.width(); ++x)
                QCOMPARE(got.pixel(x, y), qRgb(x * 3, y * 5, 7));
    }
    delete show.provider();
}

void TstPreviewDisplay::setMainImageTakesDeepCopy()
{
    UiprocImageShow show;
    std::vector<uchar> buffer(8 * 4 * 3, 0x40);
    {
        QImage wrapped(buffer.data(), 8, 4, QImage::Format_RGB888);
        show.setMainImage(wrapped, 8, 4);
    }
    std::fill(buffer.begin(), buffer.end(), 0xee); // the caller reuses its buffer
    const QImage got = show.provider()->requestImage(QString(), nullptr, QSize());
    QCOMPARE(got.pixel(3, 2), qRgb(0x40, 0x40, 0x40));
    delete show.provider();
}

void TstPreviewDisplay::pixmapMatchesImage()
{
    UiprocImageShow show;
    show.deliverFrame(uniform(32, 18, qRgb(10, 200, 30)));
    const QPixmap pm = show.provider()->requestPixmap(QString(), nullptr, QSize(4, 4));
    QCOMPARE(pm.size(), QSize(32, 18));
    QCOMPARE(pm.toImage().pixel(31, 17), qRgb(10, 200, 30));
    delete show.provider();
}

void TstPreviewDisplay::lastConstructedIsFed()
{
    auto *first = new UiprocImageShow;
    QCOMPARE(UiprocImageShow::instance(), first);
    auto *second = new UiprocImageShow;
    QCOMPARE(UiprocImageShow::instance(), second);
    QVERIFY(UiprocImageShow::deliverToCurrent(uniform(4, 4, qRgb(7, 8, 9))));
    QCOMPARE(second->framesDelivered(), quint64(1));
    QCOMPARE(first->framesDelivered(), quint64(0));
    delete second->provider();
    delete second;
    // Nothing points at a destroyed object.
    QCOMPARE(UiprocImageShow::instance(), nullptr);
    QVERIFY(!UiprocImageShow::deliverToCurrent(uniform(4, 4, qRgb(7, 8, 9))));
    delete first->provider();
    delete first;
}

void TstPreviewDisplay::burstEmitsOnceUntilServed()
{
    UiprocImageShow show;
    QSignalSpy refresh(&show, &UiprocImageShow::callRefreshMainImg);
    for (int i = 0; i < 50; ++i)
        show.deliverFrame(uniform(16, 16, qRgb(i, 0, 0)));
    QCOMPARE(refresh.count(), 1);
    QCOMPARE(show.framesDelivered(), quint64(50));
    // The screen fetches: it gets the newest frame, and the next frame signals.
    QCOMPARE(show.provider()->requestImage(QString(), nullptr, QSize()).pixel(0, 0), qRgb(49, 0, 0));
    show.deliverFrame(uniform(16, 16, qRgb(50, 0, 0)));
    QCOMPARE(refresh.count(), 2);
    show.deliverFrame(uniform(16, 16, qRgb(51, 0, 0)));
    QCOMPARE(refresh.count(), 2);
    // A pixmap request counts as a fetch too.
    show.provider()->requestPixmap(QString(), nullptr, QSize());
    show.deliverFrame(uniform(16, 16, qRgb(52, 0, 0)));
    QCOMPARE(refresh.count(), 3);
    delete show.provider();
}

void TstPreviewDisplay::servedFrameIsNewest()
{
    // Signal from another thread: the receiver gets it queued, fetches, and
    // the last frame of a burst is never lost.
    UiprocImageShow show;
    int loads = 0;
    QRgb lastSeen = 0;
    connect(&show, &UiprocImageShow::callRefreshMainImg, this, [&] {
        ++loads;
        lastSeen = show.provider()->requestImage(QString(), nullptr, QSize()).pixel(0, 0);
    }, Qt::QueuedConnection);
    std::thread producer([&] {
        for (int i = 1; i <= 300; ++i) {
            show.deliverFrame(uniform(8, 8, qRgb(i % 256, i / 256, 1)));
            if (i % 50 == 0)
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    });
    producer.join();
    QTRY_COMPARE(lastSeen, qRgb(300 % 256, 300 / 256, 1));
    QVERIFY2(loads < 300, qPrintable(QString::number(loads)));
    delete show.provider();
}

void TstPreviewDisplay::rearmsWhenNobodyFetches()
{
    UiprocImageShow show;
    QSignalSpy refresh(&show, &UiprocImageShow::callRefreshMainImg);
    show.deliverFrame(uniform(4, 4, qRgb(1, 1, 1)));
    QCOMPARE(refresh.count(), 1);
    show.deliverFrame(uniform(4, 4, qRgb(2, 2, 2)));
    QCOMPARE(refresh.count(), 1);
    // The screen skipped that refresh: after the re-arm time a frame signals again.
    QTest::qWait(UiprocImageShow::kRefreshRearmMs + 50);
    show.deliverFrame(uniform(4, 4, qRgb(3, 3, 3)));
    QCOMPARE(refresh.count(), 2);
    show.deliverFrame(uniform(4, 4, qRgb(4, 4, 4)));
    QCOMPARE(refresh.count(), 2);
    delete show.provider();
}

void TstPreviewDisplay::concurrentReadersSeeWholeFrames()
{
    UiprocImageShow show;
    std::atomic<bool> stop{false};
    std::atomic<int> torn{0}, reads{0};
    auto reader = [&] {
        while (!stop.load()) {
            const QImage img = show.provider()->requestImage(QString(), nullptr, QSize());
            if (img.isNull())
                continue;
            if (img.pixel(0, 0) != img.pixel(img.width() - 1, img.height() - 1))
                torn.fetch_add(1);
            reads.fetch_add(1);
        }
    };
    std::thread r1(reader), r2(reader);
    for (int i = 0; i < 2000 || reads.load() < 2000; ++i)
        show.deliverFrame(uniform(64 + (i % 3), 32, qRgb(i % 256, 0, 0)));
    stop.store(true);
    r1.join();
    r2.join();
    QCOMPARE(torn.load(), 0);
    QVERIFY(reads.load() > 0);
    delete show.provider();
}

void TstPreviewDisplay::instancesComeAndGoWhileFed()
{
    // The reader keeps handing frames over while screens create and destroy
    // display objects: a frame never reaches a destroyed one.
    std::atomic<bool> stop{false};
    std::atomic<int> handed{0};
    const QImage frame = uniform(32, 32, qRgb(1, 2, 3));
    std::thread feeder([&] {
        while (!stop.load()) {
            if (UiprocImageShow::deliverToCurrent(frame))
                handed.fetch_add(1);
        }
    });
    for (int i = 0; i < 300; ++i) {
        auto *show = new UiprocImageShow;
        QThread::usleep(100);
        delete show->provider();
        delete show;
    }
    stop.store(true);
    feeder.join();
    QVERIFY(handed.load() > 0);
}

QTEST_MAIN(TstPreviewDisplay)
#include "tst_preview_display.moc"
