// The NDI, camera and scope pages from end to end: the real application
// against the simulator, reached through the menu and driven through its
// controls. What the simulator received and kept, what the settings file
// keeps, and that each page showed the device's answer (the probe waits
// for it) are checked.
#include "AppRun.h"

#include <QSettings>
#include <QtTest>

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
        AppRun run(root, 0x6f000000);
        QVERIFY(run.startSimulator());
        const QString out = run.runApp(QStringLiteral("e2e/switcherprobe.qml"), 50000, {QStringLiteral("probe-") + page});
        const QString simOut = run.stopSimulator();

        QVERIFY2(out.contains(QStringLiteral("PROBE done")), run.tail().constData());
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
