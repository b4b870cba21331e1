// The audio level poller against a real shared segment on a private key.
#include "Logger.h"
#include "PreviewTestProducer.h"
#include "TestSysroot.h"
#include "UiproGetAudioShareData.h"

#include <QProcess>
#include <QtTest/QtTest>

class TstPreviewAudio : public QObject
{
    Q_OBJECT

private slots:
    void levelsArriveInOrder()
    {
        const int key = PreviewTest::privateKey(7), id = shmget(key, 36, IPC_CREAT | 0666);
        qputenv("CS_AUDIO_SHM_KEY", "0x" + QByteArray::number(key, 16));
        auto *words = static_cast<qint32 *>(shmat(id, nullptr, 0));
        QVERIFY(words != reinterpret_cast<qint32 *>(-1));
        std::fill(words, words + 9, 99); // stale values from before the start, cleared at attach
        UiproGetAudioShareData audio;
        // Recorded here, as QML gets them: queued from the poller's thread.
        QList<QVariantList> levels;
        connect(&audio, &UiproGetAudioShareData::updateVoise, this,
                [&](int a, int b, int c, int d, int e, int f, int g, int h, int i) { levels << QVariantList{a, b, c, d, e, f, g, h, i}; });
        QElapsedTimer clock;
        clock.start();
        audio.getShareAudioData();
        QTRY_VERIFY_WITH_TIMEOUT(!levels.isEmpty(), 2000);
        QVERIFY(clock.elapsed() >= 250); // one period after the start
        QCOMPARE(levels.at(0), QVariantList({0, 0, 0, 0, 0, 0, 0, 0, 0}));

        const QVariantList expected{11, 22, 33, 44, 55, 66, 77, 88, -5};
        for (int i = 0; i < 9; ++i)
            words[i] = qToLittleEndian(expected[i].toInt());
        // Emitted every period whether or not anything changed, in the table's order.
        QTRY_VERIFY_WITH_TIMEOUT(levels.last() == expected, 3000);
        levels.clear();
        clock.restart();
        QTRY_VERIFY_WITH_TIMEOUT(levels.count() >= 4, 3000);
        const double period = double(clock.elapsed()) / levels.count();
        QVERIFY2(period > 200 && period < 600, qPrintable(QString::number(period)));
        QCOMPARE(levels.count(expected), levels.count());
        audio.stopPollers();
        QCOMPARE(audio.detach(), 0);
        shmdt(words);
        shmctl(id, IPC_RMID, nullptr);
    }

    void failedAttachEndsProcess()
    {
        // A segment of a smaller size under the key: shmget refuses the 36 bytes.
        const int key = PreviewTest::privateKey(8), id = shmget(key, 16, IPC_CREAT | 0666);
        QTemporaryDir sysroot;
        QProcess child;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("CS_AUDIO_SHM_KEY"), QString::number(key));
        env.insert(QStringLiteral("CS_SYSROOT"), sysroot.path());
        child.setProcessEnvironment(env);
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--audio-child")});
        QVERIFY(child.waitForFinished(10000));
        shmctl(id, IPC_RMID, nullptr);
        // Status 1 without a crash, and without the exit handlers that would
        // run static destructors under the running threads.
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), 1);
        QCOMPARE(child.readAllStandardOutput(), QByteArray("shmget Audio_bd failed\r"));
        // The reason is in the run's log on disk.
        QVERIFY(TestSysroot::readFile(sysroot.path() + "/CSLog/0.CSLOG").contains(": shmget Audio_bd failed: " + QByteArray(strerror(EINVAL)) + '\n'));
    }
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "--audio-child") == 0) {
        // The poller's attach decides the exit status.
        Logger::instance().setSwitch(1);
        std::atexit([] { std::fputs(" exit handlers ran", stdout); });
        UiproGetAudioShareData audio;
        audio.getShareAudioData();
        QTimer::singleShot(5000, &app, [] { std::_Exit(0); });
        return app.exec();
    }
    TstPreviewAudio tc;
    return QTest::qExec(&tc, argc, argv);
}
#include "tst_preview_audio.moc"
