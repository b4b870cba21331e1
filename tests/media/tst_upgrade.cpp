// Upgrade from a sysroot's USB disk: the disk check, the image list in
// version order, and the start: settings kept, watchdog stopped, the
// update script given the image name as one literal argument.
#include "TestSysroot.h"
#include "UiproVersion_Desktop.h"

#include <QtTest>

class TstUpgrade : public QObject
{
    Q_OBJECT
private slots:
    void diskCheck_data();
    void diskCheck();
    void versionList_data();
    void versionList();
    void startUpgrade_data();
    void startUpgrade();
};

void TstUpgrade::diskCheck_data()
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<bool>("mounted");
    QTest::addColumn<int>("result");
    QTest::newRow("usable") << true << true << 0;
    QTest::newRow("nothing in the port") << false << true << -1;
    QTest::newRow("no /media/usb0") << true << false << -2;
}

void TstUpgrade::diskCheck()
{
    QFETCH(bool, present);
    QFETCH(bool, mounted);
    QFETCH(int, result);
    TestSysroot sr;
    if (present)
        QDir().mkpath(sr.path("/sys/bus/usb/devices/1-1"));
    if (mounted)
        QDir().mkpath(sr.path("/media/usb0"));
    UiproVersion_Desktop version;
    QCOMPARE(version.check_is_usb_disk_ok_for_version(), result);
}

void TstUpgrade::versionList_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("list");
    QTest::newRow("1.0.9 before 1.1.0") << QStringList{"ZORVANE_RELEASE_1.1.0.img", "ZORVANE_RELEASE_1.0.9.img"}
                                        << QStringList{"1.0.9.img_ZORVANE_RELEASE_", "1.1.0.img_ZORVANE_RELEASE_"};
    QTest::newRow("date stamp overflows to 0, first")
        << QStringList{"ZORVANE_RELEASE_1.0.0.img", "ZORVANE_RELEASE_2.0.0.20261122.img", "ZORVANE_RELEASE_0.0.1.img"}
        << QStringList{"2.0.0.20261122.img_ZORVANE_RELEASE_", "0.0.1.img_ZORVANE_RELEASE_", "1.0.0.img_ZORVANE_RELEASE_"};
    QTest::newRow("alpha and release mixed")
        << QStringList{"ZORVANE_ALPHA_1.11.0.img", "ZORVANE_RELEASE_1.2.3.img", "ZORVANE_RELEASE_1.10.0.img"}
        << QStringList{"1.2.3.img_ZORVANE_RELEASE_", "1.10.0.img_ZORVANE_RELEASE_", "1.11.0.img_ZORVANE_ALPHA_"};
    QTest::newRow("only image names")
        << QStringList{"ZORVANE_RELEASE_1.3.img.bak", "ZORVANE_RELEASE_1.2.img", "ZORVANE_BETA_1.4.img", "rtmp.ini", "sub/ZORVANE_RELEASE_1.5.img"}
        << QStringList{"1.2.img_ZORVANE_RELEASE_"};
    QTest::newRow("no digits count as 0") << QStringList{"ZORVANE_RELEASE_1.img", "ZORVANE_ALPHA_test.img"}
                                          << QStringList{"test.img_ZORVANE_ALPHA_", "1.img_ZORVANE_RELEASE_"};
    QTest::newRow("shell text in a name")
        << QStringList{"ZORVANE_RELEASE_$(touch x).img"} << QStringList{"$(touch x).img_ZORVANE_RELEASE_"};
    QTest::newRow("no disk") << QStringList() << QStringList();
}

void TstUpgrade::versionList()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, list);
    TestSysroot sr;
    for (const QString &f : files)
        QVERIFY(TestSysroot::writeFile(sr.path("/media/usb0/" + f), "image"));
    if (!files.isEmpty()) { // a link and a folder with image names are not images
        QVERIFY(QFile::link(sr.path("/media/usb0/" + files.first()), sr.path("/media/usb0/ZORVANE_RELEASE_9.9.9.img")));
        QDir().mkpath(sr.path("/media/usb0/ZORVANE_RELEASE_8.8.8.img"));
    }
    UiproVersion_Desktop version;
    QCOMPARE(version.getUpgradeVersionList(), list);
    QVERIFY(!QFile::exists(sr.path("/x")));
}

void TstUpgrade::startUpgrade_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("keptBefore");
    QTest::addColumn<QStringList>("commands");
    QTest::newRow("release image") << "ZORVANE_RELEASE_1.2.3.img" << false
                                   << QStringList{"killall WatchCS", "execupdate.sh ZORVANE_RELEASE_1.2.3.img"};
    QTest::newRow("shell text is one argument") << "ZORVANE_RELEASE_$(touch x);touch y.img" << false
                                                << QStringList{"killall WatchCS", "execupdate.sh ZORVANE_RELEASE_$(touch x);touch y.img"};
    QTest::newRow("kept settings not replaced") << "ZORVANE_ALPHA_1.11.0.img" << true
                                                << QStringList{"killall WatchCS", "execupdate.sh ZORVANE_ALPHA_1.11.0.img"};
    QTest::newRow("no name") << "" << false << QStringList();
    QTest::newRow("a path is not an image name") << "../../bin/sh" << false << QStringList();
}

void TstUpgrade::startUpgrade()
{
    QFETCH(QString, fileName);
    QFETCH(bool, keptBefore);
    QFETCH(QStringList, commands);
    TestSysroot sr(true);
    const QString kept = sr.path("/userdata/CS_Config.ini");
    if (keptBefore)
        QVERIFY(TestSysroot::writeFile(kept, "[setting]\nold=1\n"));
    UiproVersion_Desktop version;
    QCOMPARE(version.start_upgrade_software(fileName), 0);
    QVERIFY(QThreadPool::globalInstance()->waitForDone(20000));
    // The script is started detached: its line may come a little later.
    if (!commands.isEmpty())
        QTRY_COMPARE(sr.commands(), commands);
    else
        QCOMPARE(sr.commands(), commands);
    if (keptBefore)
        QCOMPARE(TestSysroot::readFile(kept), QByteArray("[setting]\nold=1\n"));
    else if (!commands.isEmpty())
        QCOMPARE(TestSysroot::readFile(kept), TestSysroot::readFile(sr.configFile()));
    else
        QVERIFY(!QFile::exists(kept));
    QVERIFY(!QFile::exists(sr.path("/x")));
    QVERIFY(!QFile::exists(sr.path("/y.img")));
    QVERIFY(!QFile::exists("x"));
    QVERIFY(!QFile::exists("y.img"));
}

QTEST_GUILESS_MAIN(TstUpgrade)
#include "tst_upgrade.moc"
