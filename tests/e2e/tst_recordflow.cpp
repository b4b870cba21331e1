// The USB disk pages end to end: the real interface against the simulator
// on a sysroot with a USB disk. The record page probes the disk, starts,
// stops after one confirmation, lists the simulator's new MP4 with its
// length, refuses a taken name and renames the file on the disk; the
// upgrade page hands the chosen image to the update script.
#include "AppRun.h"
#include "Mp4File.h"

#include <QtTest>

class TstRecordFlow : public QObject
{
    Q_OBJECT
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
        Sim::Mp4Params params;
        params.lengthMs = 4000;
        QString why;
        QVERIFY2(Sim::writeMp4(root.path(QStringLiteral("/media/usb0/existing.mp4")), params, &why), qPrintable(why));

        AppRun run(root);
        QVERIFY(run.startSimulator());
        const QString out = run.runApp(QStringLiteral("e2e/recordflow.qml"), 60000);
        run.stopSimulator();
        const QByteArray both = run.tail();
        QVERIFY2(out.contains(QStringLiteral("PROBE result ok")), both.constData());
        QCOMPARE(run.captured(QStringLiteral("^.*PROBE before (.*)$")), QStringLiteral("[\"existing\"]"));
        // The probe's free space became minutes on the page.
        QVERIFY2(run.captured(QStringLiteral("PROBE recording minutesLeft=(\\d+)")).toInt() > 0, both.constData());
        QVERIFY2(out.contains(QStringLiteral("PROBE asked true recording=true")), both.constData());

        const QString name = run.captured(QStringLiteral("PROBE listed name=(\\S+) length=(\\S+)"));
        const QString length = run.captured(QStringLiteral("PROBE listed name=(\\S+) length=(\\S+)"), 2);
        QVERIFY2(!name.isEmpty(), both.constData());
        QVERIFY2(QRegularExpression(QStringLiteral("^00:00:0[2-9]$")).match(length).hasMatch(), qPrintable(length));
        QVERIFY2(out.contains(QStringLiteral("resolution=320*180")), both.constData());

        QVERIFY2(out.contains(QStringLiteral("PROBE refused A recording with this name already exists.")), both.constData());
        QVERIFY2(out.contains(QStringLiteral("PROBE renamed editor=false")), both.constData());
        QVERIFY2(run.captured(QStringLiteral("PROBE renamed editor=false names=(.*)$")).contains(QStringLiteral("\"e2e take\"")),
                 both.constData());
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

        AppRun run(root);
        QVERIFY(run.startSimulator());
        const QString out = run.runApp(QStringLiteral("e2e/upgradeflow.qml"), 60000);
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
