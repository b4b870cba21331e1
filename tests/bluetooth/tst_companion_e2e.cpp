// The companion app from end to end: the real application against the
// simulator, with cs-phone playing the phone on the sysroot's /dev/rfcomm0.
// The destination it sends reaches the Bluetooth page; accepting it answers
// the phone and keeps the URL on disk; a phone found by a search connects.
#include "TestSysroot.h"

#include <QProcess>
#include <QUdpSocket>
#include <QtTest>

#include <sys/ipc.h>
#include <sys/sem.h>
#include <sys/shm.h>

namespace {
quint16 freeUdpPort()
{
    QUdpSocket s;
    s.bind(QHostAddress(QHostAddress::LocalHost), 0);
    return s.localPort();
}
} // namespace

class TstCompanionE2e : public QObject
{
    Q_OBJECT
private slots:
    void destinationAcceptedAndPhoneConnected()
    {
        TestSysroot root(true);
        QVERIFY(root.isValid());
        QByteArray ini = TestSysroot::readFile(root.configFile());
        ini.replace("isBlueToothZor=0", "isBlueToothZor=1");
        QVERIFY(ini.contains("isBlueToothZor=1"));
        QVERIFY(TestSysroot::writeFile(root.configFile(), ini));

        const int base = 0x6c000000 + (QCoreApplication::applicationPid() % 0x7fff) * 8;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("CS_SYSROOT"), root.root());
        env.insert(QStringLiteral("CS_MEDIA_PORT"), QString::number(freeUdpPort()));
        env.insert(QStringLiteral("CS_LISTEN_PORT"), QString::number(freeUdpPort()));
        env.insert(QStringLiteral("CS_PREVIEW_SHM_KEY"), QString::number(base));
        env.insert(QStringLiteral("CS_PREVIEW_SEM_KEY"), QString::number(base + 1));
        env.insert(QStringLiteral("CS_AUDIO_SHM_KEY"), QString::number(base + 2));
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));

        QProcess sim;
        sim.setProcessEnvironment(env);
        sim.setProcessChannelMode(QProcess::MergedChannels);
        sim.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-mediasim"),
                  {QStringLiteral("--size"), QStringLiteral("320x180"), QStringLiteral("--fps"), QStringLiteral("5"),
                   QStringLiteral("--seconds"), QStringLiteral("90")});
        QVERIFY(sim.waitForStarted(5000));
        QProcess phone;
        phone.setProcessEnvironment(env);
        phone.setProcessChannelMode(QProcess::MergedChannels);
        phone.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-phone"),
                    {QStringLiteral("--send-after"), QStringLiteral("1"), QStringLiteral("--stop-after"), QStringLiteral("-1"),
                     QStringLiteral("--room"), QStringLiteral("ROOM 7&8"), QStringLiteral("--seconds"), QStringLiteral("90")});
        QVERIFY(phone.waitForStarted(5000));
        QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(root.path(QStringLiteral("/dev/rfcomm0"))).isSymLink(), 5000);

        QProcess app;
        env.insert(QStringLiteral("CS_MAIN_QML"), QStringLiteral(CS_SOURCE_DIR "/tests/bluetooth/companionflow.qml"));
        app.setProcessEnvironment(env);
        app.setProcessChannelMode(QProcess::MergedChannels);
        app.start(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"), QStringList());
        QVERIFY(app.waitForFinished(60000));
        const QString out = QString::fromLocal8Bit(app.readAll());
        QTest::qWait(300); // the last answer on its way to the phone
        phone.terminate();
        phone.waitForFinished(5000);
        const QString phoneOut = QString::fromLocal8Bit(phone.readAll());
        sim.terminate();
        sim.waitForFinished(5000);
        for (int key : {base, base + 2})
            if (const int id = shmget(key, 0, 0); id >= 0)
                shmctl(id, IPC_RMID, nullptr);
        if (const int id = semget(base + 1, 0, 0); id >= 0)
            semctl(id, 0, IPC_RMID);

        const QString url = QStringLiteral("https://push.zorvane.com/live/abc");
        QVERIFY2(out.contains(QStringLiteral("PROBE page=bluetooth offer=") + url), qPrintable(out.right(3000)));
        QVERIFY2(out.contains(QStringLiteral("PROBE accepted room=ROOM 7&8 offer=null")), qPrintable(out.right(3000)));
        // The phone's answer: the word, the four characters \r\n, and a line end.
        QVERIFY2(phoneOut.contains(QStringLiteral("cs-phone receives: RecvSuccess\\r\\n<0a>")), qPrintable(phoneOut));
        QVERIFY(TestSysroot::readFile(root.path(QStringLiteral("/usr/bin/config/CS_Zor_event.ini"))).contains(url.toUtf8()));
        QVERIFY2(out.contains(QStringLiteral("PROBE result={\"mac\":\"5c-f9-38-12-34-56\",\"connect\":true,\"ok\":true} "
                                             "phones=[{\"mac\":\"5c-f9-38-12-34-56\",\"name\":\"Director Phone\",\"connected\":true}]")),
                 qPrintable(out.right(3000)));
    }
};

QTEST_GUILESS_MAIN(TstCompanionE2e)
#include "tst_companion_e2e.moc"
