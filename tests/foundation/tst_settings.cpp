// The settings file and the run's log on real disk: conversions, gating, the
// background sync, import, factory file, current input; log numbering,
// rotation, switch, lines kept until the switch is known, size cap.
#include "DiskSync.h"
#include "Logger.h"
#include "SettingsStore.h"
#include "LogTap.h"
#include "TestSysroot.h"
#include "UiProc.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QNetworkDatagram>
#include <QRegularExpression>
#include <QSettings>
#include <QUdpSocket>
#include <QtTest>

namespace {
QVariant stored(const TestSysroot &root, const char *key) { return QSettings(root.configFile(), QSettings::IniFormat).value(QStringLiteral("setting/") + key); }
void store(const TestSysroot &root, const char *key, const QVariant &value) { QSettings(root.configFile(), QSettings::IniFormat).setValue(QStringLiteral("setting/") + key, value); }
QStringList lines(const QString &file) { return QString::fromUtf8(TestSysroot::readFile(file)).split('\n', Qt::SkipEmptyParts); }
QStringList logFiles(const TestSysroot &root) { return QDir(root.path(QStringLiteral("/CSLog"))).entryList({"*.CSLOG"}, QDir::Files, QDir::Name); }
// The texts of a log file's lines after "yyyy-MM-dd-hh-mm-ss: "; a line without the time is marked BAD.
QStringList texts(const QString &file)
{
    QStringList all = lines(file);
    for (QString &l : all)
        l = QRegularExpression(QStringLiteral("^\\d{4}(-\\d\\d){5}: ")).match(l).hasMatch() ? l.mid(21) : "BAD " + l;
    return all;
}
} // namespace

class TstSettings : public QObject
{
    Q_OBJECT
private slots:
    void init() { Logger::instance().reset(); }

    void writeIsGatedFilteredAndConverted()
    {
        TestSysroot root(true);
        const QByteArray before = TestSysroot::readFile(root.configFile());
        UiProc proc;
        proc.writeInitConfig({{"language", 2}});
        QCOMPARE(TestSysroot::readFile(root.configFile()), before); // inert before initFinished
        proc.initFinished();
        proc.writeInitConfig({{"fans", 3}, {"fnas", 7}, {"rtmpAddr", 5}, {"timeZone", "7"}, {"inputType", -1}});
        QCOMPARE(stored(root, "fans").toString(), QStringLiteral("3"));
        QCOMPARE(stored(root, "rtmpAddr").toString(), QString());          // a number is not a string
        QCOMPARE(stored(root, "timeZone").toString(), QStringLiteral("0")); // a string is not a number
        QCOMPARE(stored(root, "inputType").toString(), QStringLiteral("-1"));
        QVERIFY(!stored(root, "fnas").isValid());
        QCOMPARE(stored(root, "language").toInt(), -1); // the early write was dropped, not queued
        QVERIFY(DiskSync::instance().waitIdle(10000));  // its sync runs in this sysroot
    }

    // While a USB recording flushes, "sync" can take seconds: saving must not wait for it.
    void writeReturnsBeforeTheSlowSync()
    {
        TestSysroot root(true);
        const QByteArray journal = root.path(QStringLiteral("/sync.journal")).toUtf8();
        const QString sync = root.path(QStringLiteral("/bin/sync"));
        QFile::remove(sync);
        TestSysroot::writeFile(sync, "#!/bin/sh\necho start >> '" + journal + "'\nsleep 2\necho end >> '" + journal + "'\n");
        QFile::setPermissions(sync, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        UiProc proc;
        proc.initFinished();
        QElapsedTimer t;
        t.start();
        proc.writeInitConfig({{"inputType", 2}});
        QVERIFY2(t.elapsed() < 100 * CS_TIME_SLACK, qPrintable(QString::number(t.elapsed())));
        QCOMPARE(stored(root, "inputType").toInt(), 2);
        QVERIFY(!lines(journal).contains(QStringLiteral("end")));
        QTRY_COMPARE(lines(journal), QStringList{"start"});
        t.restart(); // saves made while it runs share one more sync
        proc.writeInitConfig({{"inputType", 3}});
        proc.writeInitConfig({{"inputType", 1}});
        QVERIFY2(t.elapsed() < 100 * CS_TIME_SLACK, qPrintable(QString::number(t.elapsed())));
        QCOMPARE(stored(root, "inputType").toInt(), 1);
        QVERIFY(DiskSync::instance().waitIdle(10000));
        QCOMPARE(lines(journal), (QStringList{"start", "end", "start", "end"}));
    }

    void readConvertsAndNeverRemoves()
    {
        TestSysroot root;
        UiProc proc;
        store(root, "rtmpAddr", "x");
        proc.readInitConfig();
        TestSysroot::writeFile(root.configFile(), "[setting]\ninputType1=-1\ntimeZone=abc\nversion=1.2\neventName=Fest \xc3\xbc \xe7\x9b\xb4\n");
        proc.readInitConfig(); // rtmpAddr, once read, stays
        QCOMPARE(proc.getIniData(), (QJsonObject{{"rtmpAddr", "x"}, {"inputType1", -1}, {"timeZone", 0}, {"version", "1.2"},
                                                  {"eventName", QString::fromUtf8("Fest \xc3\xbc \xe7\x9b\xb4")}}));
        QVERIFY(proc.getIsFirst() && proc.getObsPath().isEmpty()); // absent
    }

    void importFromUserdata_data()
    {
        QTest::addColumn<bool>("active");
        QTest::addColumn<bool>("configDir");
        QTest::addColumn<QString>("import"); // file, folder (the copy fails) or none
        QTest::newRow("replaces the active file") << true << true << "file";
        QTest::newRow("creates the config folder") << false << false << "file";
        QTest::newRow("failed copy keeps the active file") << true << true << "folder";
        QTest::newRow("nothing to import") << true << true << "none";
    }
    void importFromUserdata()
    {
        QFETCH(bool, active);
        QFETCH(bool, configDir);
        QFETCH(QString, import);
        TestSysroot root;
        const QString folder = root.path(QStringLiteral("/usr/bin/config")), source = root.path(QStringLiteral("/userdata/CS_Config.ini"));
        const QByteArray old("[setting]\nfans=1\n"), imported("[setting]\nfans=9\n");
        if (!configDir)
            QDir(folder).removeRecursively();
        if (active)
            TestSysroot::writeFile(root.configFile(), old);
        if (import != "none")
            QVERIFY(import == "file" ? TestSysroot::writeFile(source, imported) : QDir().mkpath(source));
        CategoryCapture debug("cs.settings");
        SettingsStore::importFromUserdata();
        const bool copied = import == "file";
        QCOMPARE(TestSysroot::readFile(root.configFile()), copied ? imported : old);
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{"CS_Config.ini"}); // no temporary left
        QCOMPARE(debug.lines(), import == "none" ? QStringList() : QStringList{copied ? "copy res: true" : "copy res: false"});
        QVERIFY(!copied || !QFile::exists(source));
    }

    void missingFileComesFromTheFactory()
    {
        TestSysroot root;
        QDir(root.path(QStringLiteral("/usr/bin/config"))).removeRecursively();
        QVERIFY(SettingsStore::ensureFile());
        QCOMPARE(TestSysroot::readFile(root.configFile()), TestSysroot::readFile(QStringLiteral(CS_SOURCE_DIR "/config/CS_Config.ini")));
        QVERIFY(QFile::permissions(root.configFile()) & QFile::WriteOwner); // resources are read-only
        QJsonObject obj;
        SettingsStore::read(obj);
        QCOMPARE(obj.size(), 43); // every key, each once
        QVERIFY(!SettingsStore::ensureFile()); // present now: left alone
    }

    void inputFormatNamesTheInputInTheFileNow()
    {
        TestSysroot root(true);
        QUdpSocket peer;
        QVERIFY(peer.bind(QHostAddress(QHostAddress::LocalHost), 0));
        qputenv("CS_MEDIA_PORT", QByteArray::number(peer.localPort()));
        qputenv("CS_LISTEN_PORT", "0");
        UiProc proc;
        proc.readInitConfig(); // the settings object says input 0 from here on
        for (int input : {0, 1}) {
            store(root, "curInputIndex", input);
            QVERIFY(proc.connectSetInputSignalFormat(QJsonArray{"1920x1080@60", "1280x720@50"}));
            QTRY_VERIFY(peer.hasPendingDatagrams());
            QCOMPARE(peer.receiveDatagram().data().toHex(), input == 0 ? QByteArray("<T0000f0b3000800ab>").toHex() + "00800738043c00ff"
                                                                       : QByteArray("<T0000f0b3010800ac>").toHex() + "000005d002320009");
        }
    }

    void logNumbering_data()
    {
        QTest::addColumn<QStringList>("existing"); // a null entry: no /CSLog folder at all
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("removed");
        QStringList eleven;
        for (int i = 0; i <= 10; ++i)
            eleven << QStringLiteral("%1.CSLOG").arg(i);
        QTest::newRow("no dir") << QStringList{QString()} << "0.CSLOG" << "";
        QTest::newRow("numeric not text order") << QStringList{"2.CSLOG", "10.CSLOG", "99.txt"} << "11.CSLOG" << "";
        QTest::newRow("eleven files: oldest removed") << eleven << "11.CSLOG" << "0.CSLOG";
        QTest::newRow("twelve files: one removed per run") << QStringList{"5.CSLOG", "7.CSLOG", "30.CSLOG", "31.CSLOG", "32.CSLOG", "33.CSLOG",
            "34.CSLOG", "35.CSLOG", "36.CSLOG", "37.CSLOG", "38.CSLOG", "39.CSLOG"} << "40.CSLOG" << "5.CSLOG";
    }
    void logNumbering()
    {
        QFETCH(QStringList, existing);
        QFETCH(QString, chosen);
        QFETCH(QString, removed);
        TestSysroot root;
        if (existing.removeAll(QString()))
            QDir(root.path(QStringLiteral("/CSLog"))).removeRecursively();
        for (const QString &f : existing)
            TestSysroot::writeFile(root.path(QStringLiteral("/CSLog/") + f), "old\n");
        CategoryCapture console;
        Logger &log = Logger::instance();
        log.setSwitch(1);
        log.write(QString()); // empty text: nothing, not even a file
        QVERIFY(log.currentFile().isEmpty());
        log.write(QStringLiteral("qml start"));
        log.write(QStringLiteral("second line"));
        log.closeFile(); // UiProc's destruction: later lines reach only the console
        log.write(QStringLiteral("after"));
        QStringList expected = existing.filter(QStringLiteral(".CSLOG")) << chosen;
        expected.removeAll(removed);
        expected.sort();
        QCOMPARE(logFiles(root), expected);
        QCOMPARE(texts(root.path(QStringLiteral("/CSLog/")) + chosen), (QStringList{"qml start", "second line"}));
        const QStringList removal = removed.isEmpty() ? QStringList() : QStringList{"remove: " + removed};
        QCOMPARE(console.lines(), (removal + QStringList{"qml start", "second line", "after"}));
    }

    // The settings import logs before the switch is read from the settings: kept (bounded) until it is known.
    void logLinesBeforeTheSwitch()
    {
        TestSysroot root;
        CategoryCapture console;
        for (int i = 0; i < 70; ++i)
            Logger::instance().write(QStringLiteral("early %1").arg(i));
        QVERIFY(console.lines().isEmpty() && logFiles(root).isEmpty());
        Logger::instance().setSwitch(1);
        Logger::instance().write(QStringLiteral("late"));
        const QStringList written = texts(root.path(QStringLiteral("/CSLog/0.CSLOG")));
        QCOMPARE(written.size(), Logger::kMaxEarlyLines + 2);
        QCOMPARE(written.mid(Logger::kMaxEarlyLines - 1), (QStringList{"early 63", "6 earlier lines were not kept: the log switch was not known yet", "late"}));
        QCOMPARE(console.lines(), written);
        Logger::instance().reset(); // switch 0: the early lines go nowhere
        Logger::instance().write(QStringLiteral("early"));
        Logger::instance().setSwitch(0);
        QCOMPARE(console.lines(), written);
        QCOMPARE(logFiles(root), QStringList{"0.CSLOG"});
    }

    void logFileStopsAtTheCap()
    {
        TestSysroot root;
        CategoryCapture console;
        Logger::instance().setFileCap(200);
        Logger::instance().setSwitch(1);
        for (int i = 0; i < 10; ++i)
            Logger::instance().write(QStringLiteral("line %1 ").arg(i) + QString(20, 'x')); // 49 bytes with time and line end
        const QStringList lines = texts(root.path(QStringLiteral("/CSLog/0.CSLOG")));
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines[3], QStringLiteral("line 3 ") + QString(20, 'x'));
        QCOMPARE(lines[4], QStringLiteral("log file reached 196 bytes; further lines go to the console only"));
        QCOMPARE(console.lines().size(), 11); // every line, and the notice once
    }
};

QTEST_GUILESS_MAIN(TstSettings)
#include "tst_settings.moc"
