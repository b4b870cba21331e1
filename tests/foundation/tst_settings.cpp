// The settings file on real disk: round trips, gating, import and key filtering.
#include "Logger.h"
#include "SettingsStore.h"
#include "Shell.h"
#include "TestSysroot.h"
#include "UiProc.h"

#include <QJsonObject>
#include <QSettings>
#include <QtTest>

namespace {
std::unique_ptr<QSettings> ini(const QString &file)
{
    auto s = std::make_unique<QSettings>(file, QSettings::IniFormat);
    s->setIniCodec("utf-8");
    return s;
}
} // namespace

class TstSettings : public QObject
{
    Q_OBJECT
private slots:
    void keyTableIsCompleteAndUnique()
    {
        QSet<QString> names;
        for (const auto &k : SettingsStore::kKeys)
            names.insert(QLatin1String(k.name));
        QCOMPARE(names.size(), 43);
        // The shipped default file holds every key, and the "none" inputs are -1.
        QSettings def(QStringLiteral(CS_SOURCE_DIR "/config/CS_Config.ini"), QSettings::IniFormat);
        for (const QString &n : names)
            QVERIFY2(def.contains(QStringLiteral("setting/") + n), qPrintable(n));
        for (const char *none : {"inputType1", "inputType2", "inputType3", "inputAudio", "inputAudio2"})
            QCOMPARE(def.value(QStringLiteral("setting/") + QLatin1String(none)).toInt(), -1);
    }

    void readConvertsTypes_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QJsonValue>("expected");
        QTest::newRow("int") << "fans" << "3" << QJsonValue(3);
        QTest::newRow("negative int") << "inputType1" << "-1" << QJsonValue(-1);
        QTest::newRow("int from junk") << "timeZone" << "abc" << QJsonValue(0);
        QTest::newRow("string") << "rtmpAddr" << "rtmp://a.example/live/k" << QJsonValue("rtmp://a.example/live/k");
        QTest::newRow("string of digits stays a string") << "version" << "1.2" << QJsonValue("1.2");
        QTest::newRow("utf-8 string") << "eventName" << QString::fromUtf8("Gottesdienst ü 直播") << QJsonValue(QString::fromUtf8("Gottesdienst ü 直播"));
    }
    void readConvertsTypes()
    {
        QFETCH(QString, key);
        QFETCH(QString, stored);
        QFETCH(QJsonValue, expected);
        TestSysroot root;
        {
            auto s = ini(root.configFile());
            s->setValue(QStringLiteral("/setting/") + key, stored);
        }
        QJsonObject obj;
        SettingsStore::read(obj);
        QCOMPARE(obj.value(key), expected);
        QCOMPARE(obj.size(), 1);
    }

    void writeIsGatedAndFiltered()
    {
        TestSysroot root(true);
        const QByteArray before = TestSysroot::readFile(root.configFile());
        UiProc proc;
        QJsonObject change{{QStringLiteral("fans"), 3}, {QStringLiteral("fnas"), 7}, {QStringLiteral("rtmpAddr"), 5}};
        proc.writeInitConfig(change);
        QCOMPARE(TestSysroot::readFile(root.configFile()), before); // inert before initFinished
        QVERIFY(!root.commands().contains(QStringLiteral("sync ")));

        proc.initFinished();
        proc.writeInitConfig(change);
        auto s = ini(root.configFile());
        QCOMPARE(s->value(QStringLiteral("/setting/fans")).toInt(), 3);
        QVERIFY(!s->contains(QStringLiteral("/setting/fnas")));
        QCOMPARE(s->value(QStringLiteral("/setting/rtmpAddr")).toString(), QString()); // a number is not a string
        QCOMPARE(s->value(QStringLiteral("/setting/language")).toInt(), -1);             // untouched
        QCOMPARE(s->childGroups(), QStringList{QStringLiteral("setting")});
    }

    void writeConvertsWrongTypes()
    {
        TestSysroot root;
        UiProc proc;
        proc.initFinished();
        proc.writeInitConfig({{QStringLiteral("fans"), QStringLiteral("7")},
                              {QStringLiteral("timeZone"), QJsonValue::Null},
                              {QStringLiteral("inputType"), -1}});
        auto s = ini(root.configFile());
        QCOMPARE(s->value(QStringLiteral("/setting/fans")).toString(), QStringLiteral("0"));
        QCOMPARE(s->value(QStringLiteral("/setting/timeZone")).toString(), QStringLiteral("0"));
        QCOMPARE(s->value(QStringLiteral("/setting/inputType")).toString(), QStringLiteral("-1"));
    }

    void writeRunsSyncInTheSysroot()
    {
        TestSysroot root;
        UiProc proc;
        proc.initFinished();
        QFile::remove(root.path(QStringLiteral("/bin/sync")));
        QFile::link(root.path(QStringLiteral("/usr/libexec/cs-standin")), root.path(QStringLiteral("/bin/sync")));
        proc.writeInitConfig({{QStringLiteral("fans"), 1}});
        QCOMPARE(root.commands(), QStringList{QStringLiteral("sync ")});
    }

    void readNeverRemovesProperties()
    {
        TestSysroot root;
        UiProc proc;
        {
            auto s = ini(root.configFile());
            s->setValue(QStringLiteral("/setting/rtmpAddr"), QStringLiteral("x"));
        }
        proc.readInitConfig();
        QFile::remove(root.configFile());
        proc.readInitConfig();
        QCOMPARE(proc.getIniData().value(QStringLiteral("rtmpAddr")).toString(), QStringLiteral("x"));
        TestSysroot::writeFile(root.configFile(), "[setting]\nfans=2\n");
        UiProc fresh;
        fresh.readInitConfig();
        QVERIFY(!fresh.getIniData().contains(QStringLiteral("rtmpAddr")));
        QCOMPARE(fresh.getIniData().value(QStringLiteral("fans")).toInt(), 2);
    }

    void firstAndObsPath()
    {
        TestSysroot root;
        UiProc proc;
        QCOMPARE(proc.getIsFirst(), true);
        QCOMPARE(proc.getObsPath(), QString());
        proc.setFirstInfo(false);
        proc.setObsPath(QStringLiteral("/media/usb0/obs"));
        UiProc other;
        QCOMPARE(other.getIsFirst(), false);
        QCOMPARE(other.getObsPath(), QStringLiteral("/media/usb0/obs"));
        // Neither key leaks into the settings object.
        other.readInitConfig();
        QVERIFY(!other.getIniData().contains(QStringLiteral("First")));
    }

    void importFromUserdata_data()
    {
        QTest::addColumn<bool>("activeExists");
        QTest::addColumn<bool>("configDirExists");
        QTest::newRow("replaces the active file") << true << true;
        QTest::newRow("no active file") << false << true;
        QTest::newRow("creates config dir") << false << false;
    }
    void importFromUserdata()
    {
        QFETCH(bool, activeExists);
        QFETCH(bool, configDirExists);
        TestSysroot root;
        CategoryCapture logs;
        if (activeExists)
            TestSysroot::writeFile(root.configFile(), "[setting]\nfans=1\n");
        if (!configDirExists)
            QDir(root.path(QStringLiteral("/usr/bin/config"))).removeRecursively();
        TestSysroot::writeFile(root.path(QStringLiteral("/userdata/CS_Config.ini")), "[setting]\nfans=9\n");
        UiProc proc;
        Logger::instance().setSwitch(1); // the constructor read it from the (absent) settings
        proc.isExistConfig();
        QVERIFY(!QFile::exists(root.path(QStringLiteral("/userdata/CS_Config.ini"))));
        QCOMPARE(TestSysroot::readFile(root.configFile()), QByteArray("[setting]\nfans=9\n"));
        QVERIFY(logs.contains(QStringLiteral("find userdata config")));
        proc.readInitConfig();
        QCOMPARE(proc.getIniData().value(QStringLiteral("fans")).toInt(), 9);
    }

    void importWithoutUserdataFileDoesNothing()
    {
        TestSysroot root(true);
        const QByteArray before = TestSysroot::readFile(root.configFile());
        CategoryCapture logs;
        UiProc proc;
        proc.isExistConfig();
        QCOMPARE(TestSysroot::readFile(root.configFile()), before);
        QVERIFY(!logs.contains(QStringLiteral("find userdata config")));
    }
};

QTEST_GUILESS_MAIN(TstSettings)
#include "tst_settings.moc"
