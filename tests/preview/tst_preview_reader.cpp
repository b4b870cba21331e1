// The frame reader against a real producer on private System V keys.
#include "PreviewTestProducer.h"
#include "UiproGetImageShareData.h"
#include "UiprocImageShow.h"

#include <QMutex>
#include <QtTest/QtTest>

#include <sys/resource.h>

using namespace PreviewTest;

namespace {
QMutex g_logMutex;
QStringList g_previewLog;
QtMessageHandler g_previous = nullptr;

void captureHandler(QtMsgType type, const QMessageLogContext &ctx, const QString &msg)
{
    if (ctx.category && qstrcmp(ctx.category, "cs.preview") == 0) {
        QMutexLocker lock(&g_logMutex);
        g_previewLog << msg;
    }
    if (g_previous)
        g_previous(type, ctx, msg);
}

QStringList previewLog()
{
    QMutexLocker lock(&g_logMutex);
    return g_previewLog;
}

double processCpuMs()
{
    rusage ru{};
    getrusage(RUSAGE_SELF, &ru);
    return ru.ru_utime.tv_sec * 1e3 + ru.ru_utime.tv_usec / 1e3 + ru.ru_stime.tv_sec * 1e3
        + ru.ru_stime.tv_usec / 1e3;
}
} // namespace

class TstPreviewReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void framesArriveIntact_data();
    void framesArriveIntact();
    void nullFrameReleasesAndHandsNothing();
    void impossibleHeaderIsRefused_data();
    void impossibleHeaderIsRefused();
    void setRemovedAndRecreated_data();
    void setRemovedAndRecreated();
    void attachMessagesWhenSetExists();
    void unattachedSegmentStartsNoReader();

private:
    bool waitDelivered(quint64 before, int timeoutMs = 3000)
    {
        QDeadlineTimer dl(timeoutMs);
        while (!dl.hasExpired()) {
            if (m_show->framesDelivered() > before)
                return true;
            QThread::msleep(2);
        }
        return false;
    }

    UiprocImageShow *m_show = nullptr;
    UiproGetImageShareData *m_reader = nullptr;
    Producer *m_producer = nullptr;
    QByteArray m_startOutput;
};

void TstPreviewReader::initTestCase()
{
    g_previous = qInstallMessageHandler(captureHandler);
    qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(privateKey(1)));
    qputenv("CS_PREVIEW_SEM_KEY", "0x" + QByteArray::number(privateKey(2), 16));
    QCOMPARE(UiproGetImageShareData::semKey(), privateKey(2));

    m_show = new UiprocImageShow;
    StdoutCapture cap;
    m_reader = new UiproGetImageShareData;
    m_reader->getShareImageData();
    QTRY_VERIFY(m_reader->readerRunning());
    QThread::msleep(100); // the thread's start line
    m_startOutput = cap.finish();
    m_producer = new Producer(privateKey(1), privateKey(2));
    QVERIFY(m_producer->ok());
}

void TstPreviewReader::cleanupTestCase()
{
    m_reader->stopReader();
    QVERIFY(!m_reader->readerRunning());
    delete m_reader;
    m_producer->removeAll();
    delete m_producer;
    delete m_show->provider(); // never installed in an engine here
    delete m_show;
    qInstallMessageHandler(g_previous);
}

void TstPreviewReader::framesArriveIntact_data()
{
    QTest::addColumn<int>("w");
    QTest::addColumn<int>("h");
    QTest::newRow("1280x720") << 1280 << 720;
    QTest::newRow("640x360") << 640 << 360;
    QTest::newRow("1920x1080") << 1920 << 1080;
    QTest::newRow("4x2") << 4 << 2;
    QTest::newRow("odd row 5x3 (15 bytes a row)") << 5 << 3;
    QTest::newRow("odd row 1279x719") << 1279 << 719;
    QTest::newRow("1 pixel") << 1 << 1;
    QTest::newRow("largest 2048x1536") << 2048 << 1536;
}

void TstPreviewReader::framesArriveIntact()
{
    QFETCH(int, w);
    QFETCH(int, h);
    // A fresh start had no set: nothing but the reader's own lines.
    QVERIFY(m_startOutput.startsWith("getShareImageData============="));
    QVERIFY(m_startOutput.contains(QByteArray("tdGetShareImageData pid:") + QByteArray::number(getpid()) + ", tid:"));
    QVERIFY(!m_startOutput.contains("semget exit"));

    for (int seed = 0; seed < 2; ++seed) {
        const auto px = makePattern(w, h, seed + w);
        const quint64 before = m_show->framesDelivered();
        QVERIFY(m_producer->send(w, h, px));
        QVERIFY(waitDelivered(before));
        QImage got = m_show->provider()->requestImage(QStringLiteral("x"), nullptr, QSize());
        QCOMPARE(got.size(), QSize(w, h));
        QCOMPARE(firstMismatch(got, px, w, h), -1LL);
        // Delivered in the format the scene graph takes without conversion.
        QCOMPARE(got.format(), QImage::Format_RGB32);
    }
    // The buffer is free again for the producer.
    QTRY_COMPARE(m_producer->value(0), 1);
    QCOMPARE(m_producer->value(1), 0);
}

void TstPreviewReader::nullFrameReleasesAndHandsNothing()
{
    const auto px = makePattern(8, 8, 3);
    quint64 before = m_show->framesDelivered();
    QVERIFY(m_producer->send(8, 8, px));
    QVERIFY(waitDelivered(before));
    before = m_show->framesDelivered();
    QVERIFY(m_producer->sendHeaderOnly(0, 0));
    QTRY_COMPARE(m_producer->value(0), 1);
    QThread::msleep(50);
    QCOMPARE(m_show->framesDelivered(), before);
    QCOMPARE(firstMismatch(m_show->provider()->currentFrame(), px, 8, 8), -1LL);
    QVERIFY(m_producer->sendHeaderOnly(7, 0));
    QTRY_COMPARE(m_producer->value(0), 1);
    QThread::msleep(50);
    QCOMPARE(m_show->framesDelivered(), before);
}

void TstPreviewReader::impossibleHeaderIsRefused_data()
{
    QTest::addColumn<quint32>("w");
    QTest::addColumn<quint32>("h");
    QTest::newRow("one row too many") << 2048u << 1537u;
    QTest::newRow("4096x4096") << 4096u << 4096u;
    QTest::newRow("product wraps 32 bits") << 0x10000u << 0x5556u;
    QTest::newRow("all ones") << 0xffffffffu << 0xffffffffu;
    QTest::newRow("very wide, one row") << 3145729u << 1u;
}

void TstPreviewReader::impossibleHeaderIsRefused()
{
    QFETCH(quint32, w);
    QFETCH(quint32, h);
    const quint64 refusedBefore = m_reader->refusedFrames();
    const quint64 before = m_show->framesDelivered();
    const int logBefore = previewLog().size();
    QVERIFY(m_producer->sendHeaderOnly(w, h));
    QTRY_COMPARE(m_reader->refusedFrames(), refusedBefore + 1);
    QTRY_COMPARE(m_producer->value(0), 1); // buffer released, producer goes on
    QCOMPARE(m_show->framesDelivered(), before);
    if (refusedBefore == 0) {
        // The first refusal is always reported (later ones at most once a second).
        QTRY_VERIFY(previewLog().size() > logBefore);
        QVERIFY(previewLog().last().contains(QStringLiteral("refused frame %1x%2").arg(w).arg(h)));
    }
    // And the next good frame comes through.
    const auto px = makePattern(16, 9, 5);
    QVERIFY(m_producer->send(16, 9, px));
    QVERIFY(waitDelivered(before));
    QCOMPARE(firstMismatch(m_show->provider()->currentFrame(), px, 16, 9), -1LL);
}

void TstPreviewReader::setRemovedAndRecreated_data()
{
    QTest::addColumn<bool>("producerInitialises");
    QTest::newRow("producer sets free=1 itself") << true;
    QTest::newRow("producer leaves a fresh set at zero") << false;
}

void TstPreviewReader::setRemovedAndRecreated()
{
    QFETCH(bool, producerInitialises);
    m_producer->removeSet();
    // While the set is gone the reader must back off, not spin.
    const double cpu0 = processCpuMs();
    QThread::msleep(1000);
    const double cpuSpent = processCpuMs() - cpu0;
    QVERIFY2(cpuSpent < 150, qPrintable(QStringLiteral("%1 ms CPU during the outage").arg(cpuSpent)));
    QTRY_VERIFY(previewLog().join('\n').contains(QStringLiteral("frame semaphores gone")));

    m_producer->openSet();
    QVERIFY(m_producer->semId() >= 0);
    if (producerInitialises) {
        m_producer->setValue(0, 1);
        m_producer->setValue(1, 0);
    }
    const auto px = makePattern(320, 180, producerInitialises ? 7 : 8);
    const quint64 before = m_show->framesDelivered();
    QVERIFY(m_producer->send(320, 180, px, 3000));
    QVERIFY(waitDelivered(before));
    QCOMPARE(firstMismatch(m_show->provider()->currentFrame(), px, 320, 180), -1LL);
    QTRY_COMPARE(m_producer->value(0), 1);
    QCOMPARE(m_producer->value(1), 0);
}

void TstPreviewReader::attachMessagesWhenSetExists()
{
    // Separate keys: the live reader's set must not be reset under it.
    const int shmKey = privateKey(3), semKey = privateKey(4);
    const int existing = semget(semKey, 2, IPC_CREAT | 0600);
    QVERIFY(existing >= 0);
    semctl(existing, 0, SETVAL, 0);
    semctl(existing, 1, SETVAL, 5);
    qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(shmKey));
    qputenv("CS_PREVIEW_SEM_KEY", QByteArray::number(semKey));
    QByteArray text;
    {
        StdoutCapture cap;
        UiproGetImageShareData second;
        text = cap.finish();
        QCOMPARE(second.semId(), existing);
        QVERIFY(second.isAttached());
        QCOMPARE(semctl(existing, 0, GETVAL), 1);
        QCOMPARE(semctl(existing, 1, GETVAL), 0);
    }
    QCOMPARE(text, QByteArray("==vorn semget exit: ") + QByteArray(strerror(EEXIST)) + QByteArray(". \n"));
    semctl(existing, 0, IPC_RMID);
    shmctl(shmget(shmKey, 0, 0), IPC_RMID, nullptr);
    qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(privateKey(1)));
    qputenv("CS_PREVIEW_SEM_KEY", QByteArray::number(privateKey(2)));
}

void TstPreviewReader::unattachedSegmentStartsNoReader()
{
    // A segment of the wrong size under the key: shmget refuses, nothing attaches.
    const int shmKey = privateKey(5), semKey = privateKey(6);
    const int small = shmget(shmKey, 64, IPC_CREAT | 0666);
    QVERIFY(small >= 0);
    qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(shmKey));
    qputenv("CS_PREVIEW_SEM_KEY", QByteArray::number(semKey));
    QByteArray text;
    {
        StdoutCapture cap;
        {
            UiproGetImageShareData broken;
            QVERIFY(!broken.isAttached());
            QCOMPARE(broken.shmId(), -1);
            broken.getShareImageData();
            QThread::msleep(50);
            QVERIFY(!broken.readerRunning());
        }
        text = cap.finish();
    }
    const QByteArray inval = QByteArray(strerror(EINVAL));
    const QByteArray expected = "==vorn shmget error: " + inval + ". \n"
        + "==vorn shmat error: " + inval + ". \n"
        + "getShareImageData============="
        + "==vorn shmat error: " + inval + ". \n";
    QCOMPARE(text.left(expected.size()), expected);
    // Destruction tries to detach the null segment and says so.
    QVERIFY(text.endsWith("shmdt shared_data_t failed\r"));
    shmctl(small, IPC_RMID, nullptr);
    semctl(semget(semKey, 2, 0600), 0, IPC_RMID);
    qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(privateKey(1)));
    qputenv("CS_PREVIEW_SEM_KEY", QByteArray::number(privateKey(2)));
}

QTEST_GUILESS_MAIN(TstPreviewReader)
#include "tst_preview_reader.moc"
