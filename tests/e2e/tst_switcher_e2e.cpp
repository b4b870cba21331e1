// The switcher's pages from end to end (inputs, PIP, audio, NDI, cameras,
// scopes): the real application against the simulator, each page reached
// through the menu and driven through its controls. What the simulator
// received and kept, what the settings file keeps, and that each page
// showed the device's answer (the probe waits for it) are checked.
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
        QTest::addColumn<QString>("probe");
        QTest::addColumn<QStringList>("simSaw");     // in this order
        QTest::addColumn<QVariantMap>("settings");
        const QString mixer = QStringLiteral("e2e/mixerprobe.qml"), sources = QStringLiteral("e2e/switcherprobe.qml");
        QTest::newRow("inputs") << "inputs" << mixer << QStringList{"input 1 format 1920x1080i@50 type 0"}
                                << QVariantMap{{"curInputIndex", 1}, {"HDMI2VideoFormat", "1920x1080i@50"}};
        QTest::newRow("pip") << "pip" << mixer
                             << QStringList{"pip corner position 0", "pip two pictures position 255", "pip two pictures position 0"}
                             << QVariantMap{{"pipModeOpen", 1}, {"pipModeSelect", 5}, {"inputType2", 2}, {"inputType3", 0}};
        QTest::newRow("audio") << "audio" << mixer << QStringList{"programme audio source 3", "pip audio source 6"}
                               << QVariantMap{{"inputAudio", 3}, {"inputAudio2", 6}, {"autoAudio", 0}};
        QTest::newRow("ndi") << "ndi" << sources << QStringList{"ndi receiving CAM-NORTH (PTZ1)"} << QVariantMap{};
        QTest::newRow("ptz") << "ptz" << sources
                             << QStringList{"camera 0 move right", "camera 0 move stop, pan ", "camera 0 stored as preset 2"}
                             << QVariantMap{};
        QTest::newRow("scopes") << "scopes" << sources << QStringList{"scope 3 open corner 1"}
                                << QVariantMap{{"statisticType", 3}, {"statisticVPosition", 2}, {"safeFramesType", 2}};
    }
    void page()
    {
        QFETCH(QString, page);
        QFETCH(QString, probe);
        QFETCH(QStringList, simSaw);
        QFETCH(QVariantMap, settings);
        TestSysroot root(true);
        QVERIFY(root.isValid());
        AppRun run(root, 0x6f000000);
        QVERIFY(run.startSimulator());
        const QString out = run.runApp(probe, 50000, {QStringLiteral("probe-") + page});
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
            QCOMPARE(ini.value(it.key()).toString(), it.value().toString());
    }
};

QTEST_GUILESS_MAIN(TstSwitcherE2e)
#include "tst_switcher_e2e.moc"
