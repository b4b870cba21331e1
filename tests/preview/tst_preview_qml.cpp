// The reusable preview control, loaded as the screens load it.
#include "UiprocImageShow.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QSGRendererInterface>
#include <QtTest/QtTest>

namespace {
QImage uniform(int w, int h, QRgb colour)
{
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(colour);
    return img;
}
const QUrl kControl = QUrl::fromLocalFile(QStringLiteral(CS_SOURCE_DIR "/qml/CONTROLS/PreviewImage.qml"));
} // namespace

class TstPreviewQml : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // No OpenGL in the test environment: the software scene graph also swaps frames.
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    }
    void followsRefreshes();
    void pausedFetchesNothing();
    void goesStaleWithoutFrames();
    void loadsWithoutFrameSource();
    void fetchesOncePerDisplayedFrame();
};

struct Harness
{
    QQmlEngine engine;
    UiprocImageShow *show = nullptr;
    std::unique_ptr<QObject> root;

    explicit Harness(bool withSource = true)
    {
        if (withSource) {
            show = new UiprocImageShow(&engine);
            engine.rootContext()->setContextProperty(QStringLiteral("CodeImage"), show);
            engine.addImageProvider(QStringLiteral("MyMainCodeImg"), show->provider());
        }
        QQmlComponent c(&engine, kControl);
        root.reset(c.create());
        if (!root)
            qWarning() << c.errors();
    }
    QObject *picture() const { return root->findChild<QObject *>(QStringLiteral("previewPicture")); }
    QString source() const { return picture()->property("source").toUrl().toString(); }
};

void TstPreviewQml::followsRefreshes()
{
    Harness h;
    QVERIFY(h.root);
    QCOMPARE(h.root->property("live").toBool(), false);
    QCOMPARE(h.root->property("fillMode").toInt(), 1); // Image.PreserveAspectFit
    QCOMPARE(h.picture()->property("cache").toBool(), false);

    h.show->deliverFrame(uniform(32, 18, qRgb(1, 2, 3)));
    // (QUrl lower-cases the provider name, as the engine does when it looks it up.)
    QTRY_VERIFY(h.source().startsWith(QStringLiteral("image://MyMainCodeImg/"), Qt::CaseInsensitive));
    QCOMPARE(h.root->property("live").toBool(), true);
    QCOMPARE(h.root->property("framesShown").toInt(), 1);
    QCOMPARE(h.show->framesServed(), quint64(1));
    QCOMPARE(h.picture()->property("sourceSize").toSize(), QSize(32, 18));

    // Each frame gets a new id, so it is fetched again rather than cached.
    const QString first = h.source();
    h.show->deliverFrame(uniform(32, 18, qRgb(4, 5, 6)));
    QTRY_COMPARE(h.show->framesServed(), quint64(2));
    QVERIFY(h.source() != first);
    QCOMPARE(h.root->property("framesShown").toInt(), 2);
}

void TstPreviewQml::pausedFetchesNothing()
{
    Harness h;
    QVERIFY(h.root);
    h.root->setProperty("paused", true);
    h.show->deliverFrame(uniform(8, 8, qRgb(9, 9, 9)));
    QTest::qWait(100);
    QCOMPARE(h.source(), QString());
    QCOMPARE(h.show->framesServed(), quint64(0));
    // Frames still arrive: the control is live, only not fetching.
    QCOMPARE(h.root->property("live").toBool(), true);

    // After the pause the preview comes back by itself (the skipped refresh
    // re-arms after a while).
    h.root->setProperty("paused", false);
    QTest::qWait(UiprocImageShow::kRefreshRearmMs + 50);
    h.show->deliverFrame(uniform(8, 8, qRgb(10, 10, 10)));
    QTRY_COMPARE(h.show->framesServed(), quint64(1));
}

void TstPreviewQml::goesStaleWithoutFrames()
{
    Harness h;
    QVERIFY(h.root);
    h.root->setProperty("staleAfterMs", 150);
    h.show->deliverFrame(uniform(8, 8, qRgb(1, 1, 1)));
    QTRY_COMPARE(h.root->property("live").toBool(), true);
    QTRY_COMPARE_WITH_TIMEOUT(h.root->property("live").toBool(), false, 2000);
    h.show->deliverFrame(uniform(8, 8, qRgb(2, 2, 2)));
    QTRY_COMPARE(h.root->property("live").toBool(), true);
}

void TstPreviewQml::loadsWithoutFrameSource()
{
    // A harness without the context property: no reference errors.
    static QStringList warnings;
    warnings.clear();
    QtMessageHandler previous = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &msg) {
        if (type != QtDebugMsg && type != QtInfoMsg)
            warnings << msg;
    });
    Harness h(false);
    qInstallMessageHandler(previous);
    QVERIFY(h.root);
    QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join('\n')));
    QCOMPARE(h.root->property("live").toBool(), false);
    QCOMPARE(h.source(), QString());
}

void TstPreviewQml::fetchesOncePerDisplayedFrame()
{
    QQuickView view;
    auto *show = new UiprocImageShow(&view);
    view.engine()->rootContext()->setContextProperty(QStringLiteral("CodeImage"), show);
    view.engine()->addImageProvider(QStringLiteral("MyMainCodeImg"), show->provider());
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setSource(kControl);
    QCOMPARE(view.status(), QQuickView::Ready);
    view.resize(160, 90);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    int swaps = 0;
    connect(&view, &QQuickWindow::frameSwapped, this, [&] { ++swaps; }, Qt::DirectConnection);

    // A producer much faster than the display: frames arrive between event
    // processing, the screen fetches at most one per displayed frame.
    const int burst = 200;
    for (int i = 0; i < burst; ++i) {
        show->deliverFrame(uniform(160, 90, qRgb(i % 256, 40, 80)));
        QCoreApplication::processEvents();
    }
    // The newest frame ends up on the screen.
    QTRY_COMPARE(show->lastServedFrame(), quint64(burst));
    const quint64 served = show->framesServed();
    QVERIFY2(served < quint64(burst) / 2, qPrintable(QStringLiteral("%1 fetches for %2 frames, %3 swaps").arg(served).arg(burst).arg(swaps)));
    QVERIFY2(served <= quint64(swaps) + 3, qPrintable(QStringLiteral("%1 fetches, %2 swaps").arg(served).arg(swaps)));
}

QTEST_MAIN(TstPreviewQml)
#include "tst_preview_qml.moc"
