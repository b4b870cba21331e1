// The simulator's shared-memory side: preview frames written under the
// semaphore hand-shake and read back by a consumer, and the audio levels.
#include "SimMedia.h"
#include "SimTestSupport.h"

#include <QtTest>

using SimTest::Consumer;

constexpr int kW = 640, kH = 360;

class TstSimMedia : public QObject
{
    Q_OBJECT
    const int m_shmKey = SimTest::privateKey(1), m_semKey = SimTest::privateKey(2);

private slots:
    void cleanup()
    {
        SimTest::removeIpc(m_shmKey, m_semKey);
    }

    void frameContent_data()
    {
        QTest::addColumn<int>("programme");
        QTest::addColumn<bool>("plugged");
        QTest::addColumn<int>("pipPosition"); // -1: PIP off
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<uint>("colour");
        QTest::newRow("HDMI 1 first bar is 75% white") << 0 << true << -1 << QPoint(45, 180) << 0xbfbfbfu;
        QTest::newRow("HDMI 1 sixth bar is red where a PIP would be") << 0 << true << -1 << QPoint(513, 80) << 0xbf0000u;
        QTest::newRow("HDMI 2 gradient mid-grey in the middle") << 1 << true << -1 << QPoint(320, 180) << 0x808080u;
        QTest::newRow("unplugged UVC 2 is dark") << 3 << false << -1 << QPoint(320, 90) << 0x282828u;
        // PIP of NDI top-right: 213x120 at (407, 20) in a 640x360 frame.
        QTest::newRow("PIP shows its source") << 0 << true << 1 << QPoint(513, 80) << 0x7f7f7fu;
        QTest::newRow("PIP has a white border") << 0 << true << 1 << QPoint(406, 60) << 0xffffffu;
    }
    void frameContent()
    {
        QFETCH(int, programme);
        QFETCH(bool, plugged);
        QFETCH(int, pipPosition);
        QFETCH(QPoint, at);
        QFETCH(uint, colour);
        Sim::PreviewProducer producer(m_shmKey, m_semKey, kW, kH, 30);
        QVERIFY(producer.open());
        Consumer consumer;
        QVERIFY(consumer.attach(m_shmKey, m_semKey, Sim::kPreviewShmSize));
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
        QCOMPARE(QString::number(consumer.pixel(at), 16), QString::number(colour, 16));
        consumer.release();
        QCOMPARE(consumer.value(0), 1);
        QCOMPARE(producer.forcedWrites(), quint64(0));
    }

    // Frames under the hand-shake; stop() returns while the producer waits
    // for a buffer nobody gives back.
    void producerThreadFeedsAConsumerAndStops()
    {
        Sim::PreviewProducer producer(m_shmKey, m_semKey, kW, kH, 60);
        QVERIFY(producer.open());
        Consumer consumer;
        QVERIFY(consumer.attach(m_shmKey, m_semKey, Sim::kPreviewShmSize));
        producer.start();
        for (int i = 0; i < 10; ++i) {
            QVERIFY2(consumer.waitFrame(), qPrintable(QStringLiteral("frame %1").arg(i)));
            QCOMPARE(consumer.word(0), quint32(kW));
            consumer.release();
        }
        QCOMPARE(producer.forcedWrites(), quint64(0));
        QVERIFY(consumer.waitFrame()); // and kept
        QTest::qWait(100);
        producer.stop();
        QVERIFY(producer.framesWritten() >= 11);
    }

    void heldBufferIsTakenOverAfterASecond()
    {
        Sim::PreviewProducer producer(m_shmKey, m_semKey, kW, kH, 30);
        QVERIFY(producer.open());
        Consumer consumer;
        QVERIFY(consumer.attach(m_shmKey, m_semKey, Sim::kPreviewShmSize));
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

    // For each programme input: levels stay in the meters' range, its own
    // level moves most, and it is silent once unplugged.
    void programmeLevelMovesMost()
    {
        const int slotOf[Sim::kInputCount] = {1, 2, 4, 5, 6}; // hdmi1, hdmi2, uvc1, uvc2, ndi
        for (int programme = 0; programme < Sim::kInputCount; ++programme) {
            Sim::Scene scene;
            scene.programme = programme;
            std::array<int, Sim::kAudioLevels> lo, hi;
            lo.fill(1000);
            hi.fill(-1000);
            for (int t = 0; t < 10000; t += 100) {
                const auto v = Sim::AudioProducer::levels(scene, t);
                for (size_t i = 0; i < v.size(); ++i) {
                    QVERIFY(v[i] >= 0 && v[i] <= 100);
                    lo[i] = qMin(lo[i], v[i]);
                    hi[i] = qMax(hi[i], v[i]);
                }
            }
            const size_t slot = size_t(slotOf[programme]);
            for (size_t i = 0; i < 8; ++i) // all inputs; the headphone mix follows the programme
                QVERIFY2(i == slot || hi[slot] - lo[slot] > hi[i] - lo[i], qPrintable(QStringLiteral("programme %1, slot %2").arg(programme).arg(i)));
            scene.plugged[size_t(programme)] = false;
            QCOMPARE(Sim::AudioProducer::levels(scene, 1234)[slot], 0);
        }
    }
};

QTEST_GUILESS_MAIN(TstSimMedia)
#include "tst_simmedia.moc"
