// The USB disk pages end to end: the real interface against the simulator
// on a sysroot with a USB disk. The record page probes the disk, starts,
// stops after one confirmation, lists the simulator's new MP4 with its
// length, refuses a taken name and renames the file on the disk; the
// upgrade page hands the chosen image to the update script.
#include "Mp4File.h"
#include "TestSysroot.h"

#include <QProcess>
#include <QRegularExpression>
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

QString line(const QString &out, const QString &pattern, int group = 1)
{
    return QRegularExpression(pattern, QRegularExpression::MultilineOption).match(out).captured(group);
}
} // namespace

class TstRecordFlow : public QObject
{
    Q_OBJECT
    // Runs the interface with `document` against the simulator on `root`;
    // returns everything both printed.
    static QString run(const TestSysroot &root, const char *document, QString *simOutput)
    {
        const int base = 0x6e000000 + (QCoreApplication::applicationPid() % 0x7fff) * 8;
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
                  {QStringLiteral("--size"), QStringLiteral("320x180"), QStringLiteral("--fps"), QStringLiteral("10"),
                   QStringLiteral("--seconds"), QStringLiteral("90")});
        if (!sim.waitForStarted(5000))
            return QStringLiteral("simulator did not start");

        QProcess app;
        env.insert(QStringLiteral("CS_MAIN_QML"), QStringLiteral(CS_SOURCE_DIR "/tests/e2e/") + QLatin1String(document));
        app.setProcessEnvironment(env);
        app.setProcessChannelMode(QProcess::MergedChannels);
        app.start(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"), QStringList());
        app.waitForFinished(60000);
        const QString out = QString::fromLocal8Bit(app.readAll());
        sim.terminate();
        sim.waitForFinished(5000);
        *simOutput = QString::fromLocal8Bit(sim.readAll());
        removeIpc(base, base + 1, base + 2);
        for (const QString &l : out.split(QLatin1Char('\n')))
            if (l.contains(QStringLiteral("PROBE ")))
                qInfo().noquote() << l.mid(l.indexOf(QStringLiteral("PROBE ")));
        return out;
    }

    static void plugDisk(const TestSysroot &root)
    {
        QDir().mkpath(root.path(QStringLiteral("/sys/bus/usb/devices/1-1")));
        QDir().mkpath(root.path(QStringLiteral("/media/usb0")));
    }

private slots:
    void recordStopListRename()
    {
        TestSysroot root(true);
        QVERIFY(root.isValid());
        plugDisk(root);
        Sim::Mp4Spec spec;
        spec.lengthMs = 4000;
        QString why;
        QVERIFY2(Sim::writeMp4(root.path(QStringLiteral("/media/usb0/existing.mp4")), spec, &why), qPrintable(why));

        QString simOut;
        const QString out = run(root, "recordflow.qml", &simOut);
        const QString both = out.right(3000) + QStringLiteral("\n--- simulator ---\n") + simOut.right(1500);
        QVERIFY2(out.contains(QStringLiteral("PROBE result ok")), qPrintable(both));
        QCOMPARE(line(out, QStringLiteral("^.*PROBE before (.*)$")), QStringLiteral("[\"existing\"]"));
        // The probe's free space became minutes on the page.
        QVERIFY2(line(out, QStringLiteral("PROBE recording minutesLeft=(\\d+)")).toInt() > 0, qPrintable(both));
        QVERIFY2(out.contains(QStringLiteral("PROBE asked true recording=true")), qPrintable(both));

        const QString name = line(out, QStringLiteral("PROBE listed name=(\\S+) length=(\\S+)"));
        const QString length = line(out, QStringLiteral("PROBE listed name=(\\S+) length=(\\S+)"), 2);
        QVERIFY2(!name.isEmpty(), qPrintable(both));
        QVERIFY2(QRegularExpression(QStringLiteral("^00:00:0[2-9]$")).match(length).hasMatch(), qPrintable(length));
        QVERIFY2(out.contains(QStringLiteral("resolution=320*180")), qPrintable(both));

        QVERIFY2(out.contains(QStringLiteral("PROBE refused A recording with this name already exists.")), qPrintable(both));
        QVERIFY2(out.contains(QStringLiteral("PROBE renamed editor=false")), qPrintable(both));
        QVERIFY2(line(out, QStringLiteral("PROBE renamed editor=false names=(.*)$")).contains(QStringLiteral("\"e2e take\"")),
                 qPrintable(both));
        // On the disk: the new name, the old one gone, the taken one untouched.
        QVERIFY(QFileInfo::exists(root.path(QStringLiteral("/media/usb0/e2e take.mp4"))));
        QVERIFY(!QFileInfo::exists(root.path(QStringLiteral("/media/usb0/") + name + QStringLiteral(".mp4"))));
        QCOMPARE(QFileInfo(root.path(QStringLiteral("/media/usb0/existing.mp4"))).size() > 0, true);
    }

    // The images highest version first, the chosen one handed to the update
    // script under its own file name, the preview still while it runs.
    void upgradeFromDisk()
    {
        TestSysroot root(true);
        QVERIFY(root.isValid());
        plugDisk(root);
        for (const char *name : {"ZORVANE_RELEASE_1.2.3.img", "ZORVANE_RELEASE_1.10.0.img", "ZORVANE_ALPHA_1.11.0.img"})
            QVERIFY(TestSysroot::writeFile(root.path(QStringLiteral("/media/usb0/")) + QLatin1String(name), "image"));

        QString simOut;
        const QString out = run(root, "upgradeflow.qml", &simOut);
        QVERIFY2(out.contains(QStringLiteral("PROBE images [\"Version 1.11.0 / test build\",\"Version 1.10.0 / release\","
                                             "\"Version 1.2.3 / release\"]")), qPrintable(out.right(3000)));
        QVERIFY2(out.contains(QStringLiteral("PROBE asked Upgrade the software to version 1.11.0 (test build)?")), qPrintable(out.right(3000)));
        QVERIFY2(out.contains(QStringLiteral("PROBE upgrading true previewPaused true")), qPrintable(out.right(3000)));
        QTRY_VERIFY_WITH_TIMEOUT(root.commands().contains(QStringLiteral("execupdate.sh ZORVANE_ALPHA_1.11.0.img")), 5000);
        QVERIFY(root.commands().contains(QStringLiteral("killall WatchCS")));
    }
};

QTEST_GUILESS_MAIN(TstRecordFlow)
#include "tst_recordflow.moc"
