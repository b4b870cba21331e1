// The NDI, camera and scope pages from end to end: the real application
// against the simulator, driven through its controls. What the simulator
// received and kept, what the settings file keeps, and that each page
// showed the device's answer (the probe waits for it) are checked.
#include "TestSysroot.h"

#include <QProcess>
#include <QSettings>
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
void removeIpc(int preview, int sem, int audio)
{
    for (int key : {preview, audio}) {
        const int id = shmget(key, 0, 0);
        if (id >= 0) shmctl(id, IPC_RMID, nullptr);
    }
    const int id = semget(sem, 0, 0);
    if (id >= 0) semctl(id, 0, IPC_RMID);
}
} // namespace

class TstSwitcherE2e : public QObject
{
    Q_OBJECT
private slots:
    void page_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("simSaw");     // in this order
        QTest::addColumn<QVariantMap>("settings");
        QTest::newRow("ndi") << "ndi" << QStringList{"ndi receiving CAM-NORTH (PTZ1)"} << QVariantMap{};
        QTest::newRow("ptz") << "ptz" << QStringList{"camera 0 move right", "camera 0 move stop, pan ", "camera 0 stored as preset 2"}
                             << QVariantMap{};
        QTest::newRow("scopes") << "scopes" << QStringList{"scope 3 open corner 1"}
                                << QVariantMap{{"statisticType", 3}, {"statisticVPosition", 2}, {"safeFramesType", 2}};
    }
    void page()
    {
        QFETCH(QString, page);
        QFETCH(QStringList, simSaw);
        QFETCH(QVariantMap, settings);
        TestSysroot root(true);
        QVERIFY(root.isValid());

        const int base = 0x6f000000 + (QCoreApplication::applicationPid() % 0x7fff) * 8;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("CS_SYSROOT"), root.root());
        env.insert(QStringLiteral("CS_MEDIA_PORT"), QString::number(freeUdpPort()));
        env.insert(QStringLiteral("CS_LISTEN_PORT"), QString::number(freeUdpPort()));
        env.insert(QStringLiteral("CS_PREVIEW_SHM_KEY"), QString::number(base));
        env.insert(QStringLiteral("CS_PREVIEW_SEM_KEY"), QString::number(base + 1));
        env.insert(QStringLiteral("CS_AUDIO_SHM_KEY"), QString::number(base + 2));
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
        env.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("cs.*.debug=false\ncs.sim.info=true"));

        QProcess sim;
        sim.setProcessEnvironment(env);
        sim.setProcessChannelMode(QProcess::MergedChannels);
        sim.start(QStringLiteral(CS_BINARY_DIR "/sim/cs-mediasim"),
                  {QStringLiteral("--size"), QStringLiteral("320x180"), QStringLiteral("--fps"), QStringLiteral("10"),
                   QStringLiteral("--seconds"), QStringLiteral("60")});
        QVERIFY(sim.waitForStarted(5000));

        QProcess app;
        env.insert(QStringLiteral("CS_MAIN_QML"), QStringLiteral(CS_SOURCE_DIR "/tests/e2e/switcherprobe.qml"));
        app.setProcessEnvironment(env);
        app.setProcessChannelMode(QProcess::MergedChannels);
        app.start(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"), {QStringLiteral("probe-") + page});
        QVERIFY(app.waitForFinished(50000));
        const QString out = QString::fromLocal8Bit(app.readAll());
        sim.terminate();
        sim.waitForFinished(5000);
        const QString simOut = QString::fromLocal8Bit(sim.readAll());
        removeIpc(base, base + 1, base + 2);

        QVERIFY2(out.contains(QStringLiteral("PROBE done")), qPrintable(out.right(3000)));
        int from = 0;
        for (const QString &s : simSaw) {
            const int at = simOut.indexOf(s, from);
            QVERIFY2(at >= 0, qPrintable(s + QStringLiteral(" missing after position ") + QString::number(from) + "\n" + simOut.right(3000)));
            from = at + s.size();
        }

        QSettings ini(root.configFile(), QSettings::IniFormat);
        ini.beginGroup(QStringLiteral("setting"));
        for (auto it = settings.cbegin(); it != settings.cend(); ++it)
            QCOMPARE(ini.value(it.key()).toInt(), it.value().toInt());
    }
};

QTEST_GUILESS_MAIN(TstSwitcherE2e)
#include "tst_switcher_e2e.moc"
