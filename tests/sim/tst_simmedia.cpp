// The simulator's shared-memory side: preview frames written under the
// semaphore hand-shake and read back by a consumer, and the audio levels.
#include "SimMedia.h"
#include "SimTestSupport.h"

#include <QtTest>

#include <cerrno>
#include <ctime>

namespace {

constexpr int kW = 640, kH = 360;

struct Consumer
{
    int semId = -1;
    uchar *shm = nullptr;

    // Attaches like the front end: reset the pair to free / nothing ready.
    bool attach(int shmKey, int semKey)
    {
        semId = semget(key_t(semKey), 2, IPC_CREAT | 0600);
        if (semId < 0)
            return false;
        semctl(semId, 0, SETVAL, 1);
        semctl(semId, 1, SETVAL, 0);
        const int id = shmget(key_t(shmKey), Sim::kPreviewShmSize, IPC_CREAT | 0666);
        void *a = id < 0 ? reinterpret_cast<void *>(-1) : shmat(id, nullptr, 0);
        if (a == reinterpret_cast<void *>(-1))
            return false;
        shm = static_cast<uchar *>(a);
        return true;
    }
    ~Consumer()
    {
        if (shm)
            shmdt(shm);
    }
    bool waitFrame(int ms = 3000)
    {
        sembuf op{1, -1, 0};
        timespec t{ms / 1000, (ms % 1000) * 1000000L};
        return semtimedop(semId, &op, 1, &t) == 0;
    }
    void release()
    {
        sembuf op{0, 1, 0};
        semop(semId, &op, 1);
    }
    quint32 word(int offset) const { return qFromLittleEndian<quint32>(shm + offset); }
    Sim::Rgb pixel(int x, int y) const
    {
        const uchar *p = shm + 8 + (size_t(y) * word(0) + size_t(x)) * 3;
        return {p[0], p[1], p[2]};
    }
    int value(int sem) const { return semctl(semId, sem, GETVAL); }
};

QString rgbText(Sim::Rgb c)
{
    return QStringLiteral("(%1,%2,%3)").arg(c.r).arg(c.g).arg(c.b);
}

} // namespace

class TstSimMedia : public QObject
{
    Q_OBJECT
    int m_shmKey = 0, m_semKey = 0, m_audioKey = 0;

private slots:
    void initTestCase()
    {
        m_shmKey = SimTest::privateKey(1);
        m_semKey = SimTest::privateKey(2);
        m_audioKey = SimTest::privateKey(3);
    }
    void cleanup()
    {
        SimTest::removeIpc(m_shmKey, m_semKey);
        SimTest::removeIpc(m_audioKey);
    }

    void frameContent_data()
    {
        QTest::addColumn<int>("programme");
        QTest::addColumn<bool>("plugged");
        QTest::addColumn<int>("pipPosition"); // -1: PIP off
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<QString>("colour");
        QTest::newRow("HDMI 1 first bar is 75% white") << 0 << true << -1 << QPoint(45, 180) << "(191,191,191)";
        QTest::newRow("HDMI 1 fourth bar is green") << 0 << true << -1 << QPoint(320, 180) << "(0,191,0)";
        QTest::newRow("HDMI 2 gradient mid-grey in the middle") << 1 << true << -1 << QPoint(320, 180) << "(128,128,128)";
        QTest::newRow("NDI ramp") << 4 << true << -1 << QPoint(320, 180) << "(127,127,127)";
        QTest::newRow("unplugged UVC 2 is dark") << 3 << false << -1 << QPoint(320, 90) << "(40,40,40)";
        // PIP of NDI top-right: 213x120 at (407, 20) in a 640x360 frame.
        QTest::newRow("PIP shows its source") << 0 << true << 1 << QPoint(513, 80) << "(127,127,127)";
        QTest::newRow("PIP has a white border") << 0 << true << 1 << QPoint(406, 60) << "(255,255,255)";
        QTest::newRow("same point without PIP is a bar") << 0 << true << -1 << QPoint(513, 80) << "(191,0,0)";
        QTest::newRow("PIP bottom-left") << 0 << true << 2 << QPoint(20 + 106, 220 + 60) << "(127,127,127)";
    }
    void frameContent()
    {
        QFETCH(int, programme);
        QFETCH(bool, plugged);
        QFETCH(int, pipPosition);
        QFETCH(QPoint, at);
        QFETCH(QString, colour);
        Sim::PreviewProducer producer(m_shmKey, m_semKey, kW, kH, 30);
        QVERIFY(producer.open());
        Consumer consumer;
        QVERIFY(consumer.attach(m_shmKey, m_semKey));
        Sim::Scene scene;
        scene.programme = programme;
        scene.plugged[size_t(programme)] = plugged;
        scene.pipOn = pipPosition >= 0;
        scene.pipPosition = qMax(0, pipPosition);
        scene.pipInput = 4;
        producer.setScene(scene);

        QVERIFY(producer.writeFrame(0));
        QVERIFY(consumer.waitFrame());
        QCOMPARE(consumer.word(0), quint32(kW));
        QCOMPARE(consumer.word(4), quint32(kH));
        QCOMPARE(rgbText(consumer.pixel(at.x(), at.y())), colour);
        consumer.release();
        QCOMPARE(consumer.value(0), 1);
        QCOMPARE(producer.forcedWrites(), quint64(0));
    }

    void nameAndTimeCodeAreDrawn()
    {
        QVector<uchar> frame(kW * kH * 3);
        Sim::Scene scene;
        Sim::Picture::render(frame.data(), kW, kH, scene, 0, 30);
        // "HDMI 1" on a black plate at the top-left, scale 3: the left stroke of H is white.
        auto at = [&](int x, int y) { return rgbText({frame[(y * kW + x) * 3], frame[(y * kW + x) * 3 + 1], frame[(y * kW + x) * 3 + 2]}); };
        QCOMPARE(at(6 + 3 + 1, 6 + 3 + 1), QStringLiteral("(255,255,255)"));
        QCOMPARE(at(6 + 3 + 4, 6 + 3 + 1), QStringLiteral("(0,0,0)")); // inside H, no dot
        // Time code in yellow near the bottom: first digit "0" has its top bar at x+1..x+3.
        const int ty = kH - 30, tx = 6 + 3;
        QCOMPARE(at(tx + 3 + 1, ty + 1), QStringLiteral("(255,255,0)"));
    }

    void nameMovesRightWhenPipIsTopLeft()
    {
        QVector<uchar> frame(kW * kH * 3);
        Sim::Scene scene;
        scene.pipOn = true;
        scene.pipPosition = 0;
        Sim::Picture::render(frame.data(), kW, kH, scene, 0, 30);
        auto at = [&](int x, int y) { return rgbText({frame[(y * kW + x) * 3], frame[(y * kW + x) * 3 + 1], frame[(y * kW + x) * 3 + 2]}); };
        // Plate of "HDMI 1" (6 glyphs x 18 px + 6) ends 6 px from the right edge.
        const int textX = kW - 6 - (6 * 6 * 3 + 6) + 3;
        QCOMPARE(at(textX + 1, 6 + 3 + 1), QStringLiteral("(255,255,255)"));
        QCOMPARE(at(textX + 4, 6 + 3 + 1), QStringLiteral("(0,0,0)"));
    }

    void timeCode_data()
    {
        QTest::addColumn<qint64>("ms");
        QTest::addColumn<int>("fps");
        QTest::addColumn<QString>("text");
        QTest::newRow("start") << qint64(0) << 30 << "00:00:00:00";
        QTest::newRow("last frame of a second") << qint64(999) << 30 << "00:00:00:29";
        QTest::newRow("hours") << qint64(3723040) << 25 << "01:02:03:01";
    }
    void timeCode()
    {
        QFETCH(qint64, ms);
        QFETCH(int, fps);
        QFETCH(QString, text);
        QCOMPARE(QString::fromLatin1(Sim::Picture::timeCode(ms, fps)), text);
    }

    void producerThreadFeedsAConsumer()
    {
        Sim::PreviewProducer producer(m_shmKey, m_semKey, kW, kH, 60);
        QVERIFY(producer.open());
        Consumer consumer;
        QVERIFY(consumer.attach(m_shmKey, m_semKey));
        producer.start();
        for (int i = 0; i < 10; ++i) {
            QVERIFY2(consumer.waitFrame(), qPrintable(QStringLiteral("frame %1").arg(i)));
            QCOMPARE(consumer.word(0), quint32(kW));
            consumer.release();
        }
        producer.stop();
        QVERIFY(producer.framesWritten() >= 10);
        QCOMPARE(producer.forcedWrites(), quint64(0));
    }

    void heldBufferIsTakenOverAfterASecond()
    {
        Sim::PreviewProducer producer(m_shmKey, m_semKey, kW, kH, 30);
        QVERIFY(producer.open());
        Consumer consumer;
        QVERIFY(consumer.attach(m_shmKey, m_semKey));
        semctl(consumer.semId, 0, SETVAL, 0); // a producer died holding the buffer
        QVERIFY(producer.writeFrame(0));
        QCOMPARE(producer.forcedWrites(), quint64(1));
        QCOMPARE(consumer.value(1), 1);
        // Nobody reads: the next forced frame does not announce a second one.
        QVERIFY(producer.writeFrame(40));
        QCOMPARE(producer.forcedWrites(), quint64(2));
        QCOMPARE(consumer.value(1), 1);
        QVERIFY(consumer.waitFrame());
        QCOMPARE(consumer.word(0), quint32(kW));
    }

    void stopDoesNotHangWithoutAConsumer()
    {
        Sim::PreviewProducer producer(m_shmKey, m_semKey, kW, kH, 30);
        QVERIFY(producer.open());
        producer.start();
        QTest::qWait(300);
        producer.stop(); // returns: the wait on the buffer is bounded
        QVERIFY(producer.framesWritten() >= 1);
    }

    void removeIpcDeletesSegmentAndSet()
    {
        Sim::PreviewProducer producer(m_shmKey, m_semKey, kW, kH, 30);
        QVERIFY(producer.open());
        producer.removeIpc();
        QCOMPARE(shmget(key_t(m_shmKey), 0, 0), -1);
        QCOMPARE(semget(key_t(m_semKey), 0, 0), -1);
    }

    void frameSizes_data()
    {
        QTest::addColumn<int>("w");
        QTest::addColumn<int>("h");
        QTest::addColumn<bool>("valid");
        QTest::newRow("720p") << 1280 << 720 << true;
        QTest::newRow("largest") << 2048 << 1536 << true;
        QTest::newRow("rows not 4-byte aligned") << 1366 << 768 << false;
        QTest::newRow("too large") << 2052 << 1536 << false;
        QTest::newRow("empty") << 0 << 0 << false;
    }
    void frameSizes()
    {
        QFETCH(int, w);
        QFETCH(int, h);
        QFETCH(bool, valid);
        QString why;
        QCOMPARE(Sim::PreviewProducer::validSize(w, h, &why), valid);
        QCOMPARE(why.isEmpty(), valid);
    }

    void keys_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<int>("key");
        QTest::newRow("hex") << "0x1005" << true << 0x1005;
        QTest::newRow("upper-case prefix") << "0X10" << true << 16;
        QTest::newRow("decimal") << "1234" << true << 1234;
        QTest::newRow("decimal with leading zero is not octal") << "010" << true << 10;
        QTest::newRow("words") << "abc" << false << 0;
        QTest::newRow("bare prefix") << "0x" << false << 0;
        QTest::newRow("empty") << "" << false << 0;
        QTest::newRow("too large") << "99999999999" << false << 0;
    }
    void keys()
    {
        QFETCH(QString, text);
        QFETCH(bool, ok);
        QFETCH(int, key);
        int got = 0;
        QCOMPARE(Sim::parseKey(text, &got), ok);
        if (ok)
            QCOMPARE(got, key);
    }

    void audioSegmentHoldsLevelsInRange()
    {
        Sim::AudioProducer audio(m_audioKey);
        QVERIFY(audio.open());
        Sim::Scene scene;
        scene.programme = 1;
        audio.setScene(scene);
        const int id = shmget(key_t(m_audioKey), Sim::kAudioShmSize, 0);
        QVERIFY(id >= 0);
        auto *seg = static_cast<uchar *>(shmat(id, nullptr, SHM_RDONLY));
        QVERIFY(seg != reinterpret_cast<uchar *>(-1));
        audio.start(20);
        QTest::qWait(120);
        bool anyNonZero = false;
        for (int i = 0; i < Sim::kAudioLevels; ++i) {
            const qint32 v = qFromLittleEndian<qint32>(seg + 4 * i);
            QVERIFY2(v >= 0 && v <= 100, qPrintable(QString::number(v)));
            anyNonZero = anyNonZero || v != 0;
        }
        QVERIFY(anyNonZero);
        shmdt(seg);
    }

    void programmeLevelMovesMost_data()
    {
        QTest::addColumn<int>("programme");
        QTest::addColumn<int>("slot");
        QTest::newRow("HDMI 1") << 0 << 1;
        QTest::newRow("HDMI 2") << 1 << 2;
        QTest::newRow("UVC 1") << 2 << 4;
        QTest::newRow("UVC 2") << 3 << 5;
        QTest::newRow("NDI") << 4 << 6;
    }
    void programmeLevelMovesMost()
    {
        QFETCH(int, programme);
        QFETCH(int, slot);
        Sim::Scene scene;
        scene.programme = programme;
        std::array<int, Sim::kAudioLevels> lo, hi;
        lo.fill(1000);
        hi.fill(-1000);
        for (int t = 0; t < 10000; t += 100) {
            const auto v = Sim::AudioProducer::levels(scene, t);
            for (int i = 0; i < Sim::kAudioLevels; ++i) {
                QVERIFY(v[size_t(i)] >= 0 && v[size_t(i)] <= 100);
                lo[size_t(i)] = qMin(lo[size_t(i)], v[size_t(i)]);
                hi[size_t(i)] = qMax(hi[size_t(i)], v[size_t(i)]);
            }
        }
        const int range = hi[size_t(slot)] - lo[size_t(slot)];
        for (int i = 0; i < 8; ++i) // all inputs; the headphone mix follows the programme
            if (i != slot)
                QVERIFY2(range > hi[size_t(i)] - lo[size_t(i)], qPrintable(QStringLiteral("slot %1").arg(i)));
    }

    void unpluggedInputIsSilent()
    {
        Sim::Scene scene;
        scene.programme = 0;
        scene.plugged[3] = false;
        QCOMPARE(Sim::AudioProducer::levels(scene, 1234)[5], 0);
    }
};

QTEST_GUILESS_MAIN(TstSimMedia)
#include "tst_simmedia.moc"
