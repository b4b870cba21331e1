// The frame reader when the producer is killed while it holds the buffer:
// the next producer must get it without waiting for a timeout of its own.
#include "PreviewTestProducer.h"
#include "TestSysroot.h"
#include "UiproGetImageShareData.h"
#include "UiprocImageShow.h"

#include <QtTest/QtTest>

#include <csignal>
#include <sys/wait.h>

using namespace PreviewTest;

class TstPreviewAbandoned : public QObject
{
    Q_OBJECT

    CategoryCapture *m_log = nullptr;
    UiprocImageShow *m_show = nullptr;
    UiproGetImageShareData *m_reader = nullptr;
    Producer *m_producer = nullptr;

    bool logged(const QString &text) const { return m_log->lines().join('\n').contains(text); }

    // A process that takes "buffer free" as a producer does and then stays
    // (until killed) or ends without announcing a frame.
    pid_t takeBufferInChild(bool stay)
    {
        const int semId = semget(privateKey(6), 2, 0);
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

private slots:
    void initTestCase()
    {
        m_log = new CategoryCapture("cs.preview");
        qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(privateKey(5)));
        qputenv("CS_PREVIEW_SEM_KEY", QByteArray::number(privateKey(6)));
        m_show = new UiprocImageShow;
        m_reader = new UiproGetImageShareData;
        m_reader->getShareImageData();
        m_producer = new Producer(privateKey(5), privateKey(6));
        QVERIFY(m_producer->ok());
        QVERIFY(m_producer->send(4, 2, makePattern(4, 2, 1)));
        QTRY_COMPARE(m_show->framesDelivered(), quint64(1));
    }
    void cleanupTestCase()
    {
        m_reader->stopReader();
        delete m_reader;
        m_producer->removeAll();
        delete m_producer;
        delete m_show->provider(); // never installed in an engine
        delete m_show;
        delete m_log;
    }

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
};

QTEST_GUILESS_MAIN(TstPreviewAbandoned)
#include "tst_preview_abandoned.moc"
