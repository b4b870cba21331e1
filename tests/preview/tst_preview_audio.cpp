// The audio level poller against a real shared segment on a private key.
#include "PreviewTestProducer.h"
#include "UiproGetAudioShareData.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QtTest/QtTest>

#include <sys/ipc.h>
#include <sys/shm.h>

using namespace PreviewTest;

// The poller emits from its own thread. QSignalSpy records in the emitting
// thread, so relay the signal, queued, to this thread first (as QML gets it).
class LevelsRelay : public QObject
{
    Q_OBJECT
signals:
    void updateVoise(int, int, int, int, int, int, int, int, int);
};

class TstPreviewAudio : public QObject
{
    Q_OBJECT

private slots:
    void levelsArriveInOrder();
    void fatalAttach_data();
    void fatalAttach();
};

void TstPreviewAudio::levelsArriveInOrder()
{
    const int key = privateKey(7);
    qputenv("CS_AUDIO_SHM_KEY", "0x" + QByteArray::number(key, 16));
    // Stale values from before the front end started are cleared at attach.
    const int id = shmget(key, 36, IPC_CREAT | 0666);
    QVERIFY(id >= 0);
    auto *words = static_cast<qint32 *>(shmat(id, nullptr, 0));
    QVERIFY(words != reinterpret_cast<qint32 *>(-1));
    for (int i = 0; i < 9; ++i)
        words[i] = 99;

    UiproGetAudioShareData audio;
    LevelsRelay relay;
    connect(&audio, &UiproGetAudioShareData::updateVoise, &relay, &LevelsRelay::updateVoise, Qt::QueuedConnection);
    QSignalSpy levels(&relay, &LevelsRelay::updateVoise);
    QElapsedTimer clock;
    clock.start();
    audio.getShareAudioData();
    QVERIFY(levels.wait(2000));
    QVERIFY(clock.elapsed() >= 250); // one period after the start
    for (int i = 0; i < 9; ++i)
        QCOMPARE(levels.at(0).at(i).toInt(), 0);
    for (int i = 0; i < 9; ++i)
        QCOMPARE(words[i], 0);

    const int values[9] = {11, 22, 33, 44, 55, 66, 77, 88, -5};
    for (int i = 0; i < 9; ++i)
        words[i] = qToLittleEndian(values[i]);
    // Wait for an emission carrying the new values, in the table's order.
    QDeadlineTimer dl(3000);
    bool seen = false;
    while (!seen && !dl.hasExpired()) {
        levels.clear();
        if (!levels.wait(1000))
            continue;
        seen = true;
        for (int i = 0; i < 9; ++i)
            seen = seen && levels.at(0).at(i).toInt() == values[i];
    }
    QVERIFY(seen);
    // Emitted every period whether or not anything changed.
    levels.clear();
    clock.restart();
    QTRY_VERIFY_WITH_TIMEOUT(levels.count() >= 4, 3000);
    const double period = double(clock.elapsed()) / levels.count();
    QVERIFY2(period > 200 && period < 600, qPrintable(QString::number(period)));
    for (const auto &args : levels)
        QCOMPARE(args.at(8).toInt(), -5);

    audio.stopPollers();
    QCOMPARE(audio.detach(), 0);
    shmdt(words);
    shmctl(id, IPC_RMID, nullptr);
}

void TstPreviewAudio::fatalAttach_data()
{
    QTest::addColumn<int>("existingSize");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("segment exists with a smaller size") << 16 << QByteArray("shmget Audio_bd failed\r");
}

void TstPreviewAudio::fatalAttach()
{
    QFETCH(int, existingSize);
    QFETCH(QByteArray, message);
    const int key = privateKey(8);
    const int id = shmget(key, size_t(existingSize), IPC_CREAT | 0666);
    QVERIFY(id >= 0);
    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("CS_AUDIO_SHM_KEY"), QString::number(key));
    env.insert(QStringLiteral("CS_TST_AUDIO_CHILD"), QStringLiteral("1"));
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(), QStringList());
    QVERIFY(child.waitForFinished(10000));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 1);
    QCOMPARE(child.readAllStandardOutput(), message);
    shmctl(id, IPC_RMID, nullptr);
}

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("CS_TST_AUDIO_CHILD")) {
        // Child: start the poller and let its attach decide the exit status.
        QCoreApplication app(argc, argv);
        UiproGetAudioShareData audio;
        audio.getShareAudioData();
        QTimer::singleShot(5000, &app, [] { std::exit(0); });
        return app.exec();
    }
    QCoreApplication app(argc, argv);
    TstPreviewAudio tc;
    return QTest::qExec(&tc, argc, argv);
}
#include "tst_preview_audio.moc"
