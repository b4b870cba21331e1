// The frame reader against a real producer on private System V keys.
#include "PreviewTestProducer.h"
#include "LogTap.h"
#include "TestSysroot.h"
#include "UiproGetImageShareData.h"
#include "UiprocImageShow.h"

#include <QtTest/QtTest>

#include <csignal>
#include <ctime>

#include <sys/wait.h>

using namespace PreviewTest;

static void useKeys(int shmKey, int semKey)
{
    qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(shmKey));
    qputenv("CS_PREVIEW_SEM_KEY", "0x" + QByteArray::number(semKey, 16));
}

class TstPreviewReader : public QObject
{
    Q_OBJECT

    CategoryCapture *m_log = nullptr;
    UiprocImageShow *m_show = nullptr;
    UiproGetImageShareData *m_reader = nullptr;
    Producer *m_producer = nullptr;

    bool logged(const QString &text) const { return m_log->lines().join('\n').contains(text); }
    QImage shown() const { return m_show->provider()->currentFrame(); }
    // Sends new content until the screen's frame shows it (again when the
    // reader took a frame and showed something else); ms taken, or -1.
    qint64 sendUntilShown(int w, int h, int seed)
    {
        const auto px = makePattern(w, h, seed);
        const QImage expected = expectedImage(px, w, h);
        QElapsedTimer clock;
        clock.start();
        qint64 takenAt = -1;
        for (bool pending = false; clock.elapsed() < 3000; QThread::msleep(1)) {
            if (shown() == expected)
                return clock.elapsed();
            if (!pending) {
                pending = m_producer->send(w, h, px, 100);
                takenAt = -1;
            } else if (takenAt < 0 && m_producer->value(0) == 1) {
                takenAt = clock.elapsed();
            } else if (takenAt >= 0 && clock.elapsed() - takenAt > 20) {
                pending = false;
            }
        }
        return -1;
    }

private slots:
    void initTestCase()
    {
        m_log = new CategoryCapture("cs.preview");
        useKeys(privateKey(1), privateKey(2));
        m_show = new UiprocImageShow;
        StdoutCapture cap;
        m_reader = new UiproGetImageShareData;
        m_reader->getShareImageData();
        QThread::msleep(100); // the thread's start line
        // A fresh start had no set: nothing but the reader's own lines.
        QVERIFY(cap.finish().startsWith("getShareImageData=============tdGetShareImageData pid:" + QByteArray::number(getpid()) + ", tid:"));
        m_producer = new Producer(privateKey(1), privateKey(2));
        QVERIFY(m_producer->ok());
    }
    void cleanupTestCase()
    {
        m_reader->stopReader();
        QVERIFY(!m_reader->readerRunning());
        delete m_reader;
        m_producer->removeAll();
        delete m_producer;
        delete m_show->provider(); // never installed in an engine here
        delete m_show;
        delete m_log;
    }

    void frames_data()
    {
        QTest::addColumn<quint32>("w");
        QTest::addColumn<quint32>("h");
        QTest::addColumn<QString>("outcome");
        QTest::newRow("odd row 5x3 (15 bytes a row)") << 5u << 3u << "shown";
        QTest::newRow("1 pixel") << 1u << 1u << "shown";
        QTest::newRow("largest 2048x1536") << 2048u << 1536u << "shown";
        QTest::newRow("7x0") << 7u << 0u << "null";
        QTest::newRow("one row too many") << 2048u << 1537u << "refused";
        QTest::newRow("product wraps 32 bits") << 0x10000u << 0x5556u << "refused";
        QTest::newRow("very wide, one row") << 3145729u << 1u << "refused";
    }
    void frames()
    {
        QFETCH(quint32, w);
        QFETCH(quint32, h);
        QFETCH(QString, outcome);
        const quint64 refusedBefore = m_reader->refusedFrames(), before = m_show->framesDelivered();
        if (outcome == "shown") {
            QVERIFY(sendUntilShown(int(w), int(h), int(w)) >= 0);
            QCOMPARE(shown().format(), QImage::Format_RGB32); // what the scene graph takes without a conversion
        } else {
            QVERIFY(m_producer->send(w, h)); // the header only
            QTRY_COMPARE(m_reader->refusedFrames(), refusedBefore + (outcome == "refused"));
            QTRY_COMPARE(logged(QStringLiteral("refused frame %1x%2").arg(w).arg(h)), outcome == "refused");
            QThread::msleep(20);
            QCOMPARE(m_show->framesDelivered(), before);
        }
        // The buffer is free again for the producer.
        QTRY_COMPARE(m_producer->value(0), 1);
        QCOMPARE(m_producer->value(1), 0);
    }

    void producerRestarts_data()
    {
        QTest::addColumn<bool>("newSegment");
        QTest::addColumn<bool>("newSet");
        QTest::addColumn<int>("outageMs");
        QTest::newRow("set away for a while (the reader makes one)") << false << true << 600;
        QTest::newRow("set re-created at once, left at zero") << false << true << 0;
        QTest::newRow("segment away for a while") << true << false << 600;
        QTest::newRow("segment and set re-created at once") << true << true << 0;
    }
    void producerRestarts()
    {
        QFETCH(bool, newSegment);
        QFETCH(bool, newSet);
        QFETCH(int, outageMs);
        m_log->clear();
        const int oldShmId = m_producer->shmId();
        if (newSegment)
            m_producer->removeSegment();
        if (newSet)
            m_producer->removeSet();
        // While the service is away the reader backs off, it does not spin.
        const std::clock_t cpu0 = std::clock();
        QThread::msleep(outageMs);
        const double cpuMs = double(std::clock() - cpu0) * 1000 / CLOCKS_PER_SEC;
        QVERIFY2(cpuMs < 50 + outageMs / 10, qPrintable(QString::number(cpuMs)));
        m_producer->restart(newSegment, newSet);
        QVERIFY(m_producer->ok());
        QCOMPARE(m_producer->shmId() != oldShmId, newSegment);
        static int seed = 40; // new content in every row
        const qint64 ms = sendUntilShown(320, 180, ++seed);
        qInfo("new frames after %lld ms", ms);
        QVERIFY(ms >= 0 && ms < 1000);
        QCOMPARE(m_reader->shmId(), m_producer->shmId());
        QCOMPARE(logged(QStringLiteral("frame semaphores gone")), newSet);
        QCOMPARE(logged(QStringLiteral("frame buffer removed by the producer")), newSegment);
        QCOMPARE(logged(QStringLiteral("frame buffer attached again")), newSegment);
        QTRY_COMPARE(m_producer->value(0), 1);
        QCOMPARE(m_producer->value(1), 0);
    }

    void attachAtStart_data()
    {
        QTest::addColumn<bool>("smallSegment");
        QTest::addColumn<QByteArray>("output");
        const QByteArray exists = "==vorn semget exit: " + QByteArray(strerror(EEXIST)) + ". \n", inval = strerror(EINVAL);
        QTest::newRow("set exists: reset") << false << exists;
        // A segment of the wrong size under the key: shmget refuses, nothing attaches, no reader.
        QTest::newRow("segment too small") << true << exists + "==vorn shmget error: " + inval + ". \n==vorn shmat error: " + inval
                + ". \ngetShareImageData=============" + "==vorn shmat error: " + inval + ". \n" + "shmdt shared_data_t failed\r";
    }
    void attachAtStart()
    {
        QFETCH(bool, smallSegment);
        QFETCH(QByteArray, output);
        // Keys of its own: the live reader's set must not be reset under it.
        const int shmKey = privateKey(3 + smallSegment), semKey = privateKey(5 + smallSegment);
        const int existing = semget(semKey, 2, IPC_CREAT | 0600), small = smallSegment ? shmget(shmKey, 64, IPC_CREAT | 0666) : 0;
        QVERIFY(existing >= 0 && small >= 0);
        semctl(existing, 1, SETVAL, 5); // a stale frame-ready count, no free buffer
        useKeys(shmKey, semKey);
        StdoutCapture cap;
        {
            UiproGetImageShareData reader;
            QCOMPARE(reader.semId(), existing);
            QCOMPARE(semctl(existing, 0, GETVAL), 1);
            QCOMPARE(semctl(existing, 1, GETVAL), 0);
            QCOMPARE(reader.shmId() >= 0, !smallSegment);
            if (smallSegment) {
                reader.getShareImageData();
                QThread::msleep(50);
                QVERIFY(!reader.readerRunning());
            }
        }
        QCOMPARE(cap.finish(), output);
        semctl(existing, 0, IPC_RMID);
        shmctl(shmget(shmKey, 0, 0), IPC_RMID, nullptr);
    }

    // The producer killed while it holds the buffer: the next producer
    // gets it without waiting for a timeout of its own.
    void holderOfTheBuffer_data()
    {
        QTest::addColumn<bool>("holderAlive");
        QTest::newRow("killed while writing: handed back") << false;
        QTest::newRow("still writing: left alone") << true;
    }
    void holderOfTheBuffer()
    {
        QFETCH(bool, holderAlive);
        m_log->clear();
        QTRY_COMPARE(m_producer->value(0), 1);
        const pid_t child = takeBufferInChild(holderAlive);
        QVERIFY(child > 0);
        if (!holderAlive) {
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        } else {
            QTRY_COMPARE(m_producer->value(0), 0);
        }
        const quint64 before = m_show->framesDelivered();
        QElapsedTimer clock;
        clock.start();
        const bool got = m_producer->send(4, 2, makePattern(4, 2, 2), 1000);
        if (holderAlive) {
            // A live writer keeps the buffer however long it takes.
            QVERIFY(!got);
            QCOMPARE(m_producer->value(0), 0);
            QVERIFY(!logged(QStringLiteral("ended while writing a frame")));
            ::kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
            QVERIFY(m_producer->send(4, 2, makePattern(4, 2, 3), 1000));
        } else {
            QVERIFY2(got, "the buffer stayed taken by a process that is gone");
        }
        qInfo("buffer back after %lld ms", clock.elapsed());
        QTRY_COMPARE(m_show->framesDelivered(), before + 1);
        QCOMPARE(logged(QStringLiteral("the producer (pid %1) ended while writing a frame").arg(child)), true);
        QTRY_COMPARE(m_producer->value(0), 1);
    }

private:
    // A process that takes "buffer free" as a producer does and then stays
    // (until killed) or ends without announcing a frame.
    pid_t takeBufferInChild(bool stay)
    {
        const int semId = semget(privateKey(2), 2, 0);
        const pid_t pid = fork();
        if (pid == 0) {
            sembuf op{0, -1, 0};
            const int r = semop(semId, &op, 1);
            if (stay && r == 0)
                pause();
            _exit(r == 0 ? 0 : 1);
        }
        return pid;
    }
};

QTEST_GUILESS_MAIN(TstPreviewReader)
#include "tst_preview_reader.moc"
