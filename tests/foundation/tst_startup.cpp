// Start-up: the real executable (log, settings file, "---errors = " line, watch
// argument, exit status), the start-up language, language switching, the debug bridge.
#include "Startup.h"
#include "TestSysroot.h"
#include "Translations.h"
#include "UiprocMain_Desktop.h"
#include "UiprocPublic.h"

#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QSettings>
#include <QTranslator>
#include <QtTest>

class TstStartup : public QObject
{
    Q_OBJECT
private slots:
    void watchArgument()
    {
        QCOMPARE(Startup::isWatchStart({"app"}), false);
        QCOMPARE(Startup::isWatchStart({"app", "WATCH"}), false);   // case-sensitive
        QCOMPARE(Startup::isWatchStart({"app", "run", "watch"}), false); // first argument only
    }

    void run_data()
    {
        QTest::addColumn<QByteArray>("qml");         // "" = the real main document
        QTest::addColumn<QString>("settings");       // factory file present, none, or one to import
        QTest::addColumn<QStringList>("output");     // the argument is "xwatchy": watch inside a word
        QTest::addColumn<QString>("firstLogLine");   // "" = the log is not looked at
        const QByteArray probe = "import QtQuick 2.15\nItem { Component.onCompleted: console.log('watch=' + isWatchStart + ' image=' + (typeof CodeImage)) }\n";
        QTest::newRow("watch argument reaches QML") << probe << "present" << QStringList{"---errors =  ()", "watch=true image=object"} << "";
        // Fonts come from the panel's own configuration: DejaVu Sans and WenQuanYi Micro Hei (and Qt's generic names) only.
        const QByteArray fonts = "import QtQuick 2.15\nItem { Component.onCompleted: console.log('other fonts=' + Qt.fontFamilies().filter(function (f) { return !/^(DejaVu|WenQuanYi|Monospace$|Sans Serif$|Serif$)/.test(f) }).join(',')) }\n";
        QTest::newRow("own font configuration") << fonts << "present" << QStringList{"---errors =  ()", "other fonts=\n"} << "";
        QTest::newRow("broken document keeps running") << QByteArray("import QtQuick 2.15\nItem { width: }\n") << "present" << QStringList{"---errors =  (", "doc.qml:2"} << "";
        QTest::newRow("main document") << QByteArray() << "present" << QStringList{"---errors =  ()"} << "qml start";
        QTest::newRow("no settings file") << QByteArray() << "none" << QStringList{"---errors =  ()"} << "CS_Config.ini missing: factory settings restored";
        QTest::newRow("settings to import") << QByteArray() << "import" << QStringList{"---errors =  ()"} << "find userdata config";
    }
    void run()
    {
        QFETCH(QByteArray, qml);
        QFETCH(QString, settings);
        QFETCH(QStringList, output);
        QFETCH(QString, firstLogLine);
        TestSysroot root(settings == "present");
        const QString import = root.path(QStringLiteral("/userdata/CS_Config.ini"));
        if (settings == "import")
            QFile::copy(QStringLiteral(CS_SOURCE_DIR "/config/CS_Config.ini"), import);
        QTemporaryDir dir;
        TestSysroot::writeFile(dir.filePath(QStringLiteral("doc.qml")), qml);
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        const qint64 key = QCoreApplication::applicationPid() % 0xffff;
        for (const QString &kv : {"CS_SYSROOT=" + root.root(), QString("QT_QPA_PLATFORM=offscreen"), QString("QT_QUICK_BACKEND=software"),
                                  QString("CS_QUIT_AFTER_MS=1500"), QString("CS_LISTEN_PORT=0"), QString("CS_MEDIA_PORT=9"),
                                  QString("CS_PREVIEW_SHM_KEY=%1").arg(0x5e000000 + key), QString("CS_PREVIEW_SEM_KEY=%1").arg(0x5e100000 + key),
                                  QString("CS_AUDIO_SHM_KEY=%1").arg(0x5e200000 + key), "CS_MAIN_QML=" + (qml.isEmpty() ? "" : dir.filePath("doc.qml"))})
            env.insert(kv.section('=', 0, 0), kv.section('=', 1));
        QProcess p;
        p.setProcessEnvironment(env);
        p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"), {"xwatchy"});
        QVERIFY(p.waitForFinished(30000));
        const QString out = QString::fromLocal8Bit(p.readAll());
        QCOMPARE(p.exitCode(), 0); // the event loop ran until asked to quit, also without a window
        for (const QString &text : output)
            QVERIFY2(out.contains(text), qPrintable(out));
        if (firstLogLine.isEmpty())
            return;
        // The run's log (openLog=1 in the factory settings) starts with what happened to the settings file.
        QVERIFY(QFile::exists(root.configFile()) && !QFile::exists(import));
        const QStringList log = QString::fromUtf8(TestSysroot::readFile(root.path(QStringLiteral("/CSLog/0.CSLOG")))).replace(QRegularExpression("(^|\n)[-0-9]{19}: "), "\\1").split('\n');
        QCOMPARE(log.value(0), firstLogLine);
        const int image = log.indexOf(QStringLiteral("qml start share image"));
        QVERIFY(log.indexOf(QStringLiteral("qml start")) < image && image < log.indexOf(QStringLiteral("qml start share audio")));
    }

    void language_data()
    {
        QTest::addColumn<QByteArray>("stored"); // the settings file after "fans=4"; null: no file
        QTest::addColumn<QByteArray>("import"); // the same for /userdata/CS_Config.ini; null: none
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("storedAfter"); // "" = file not rewritten
        QTest::newRow("follow locale de_AT") << QByteArray("language=-1") << QByteArray() << "de_AT" << ":/translations/de.qm" << "2";
        QTest::newRow("follow locale zh_CN") << QByteArray("language=-1") << QByteArray() << "zh_CN" << ":/translations/cn.qm" << "0";
        QTest::newRow("follow locale fr_FR") << QByteArray("language=-1") << QByteArray() << "fr_FR" << ":/translations/en.qm" << "1";
        QTest::newRow("no file: factory, follow locale") << QByteArray() << QByteArray() << "de_DE" << ":/translations/de.qm" << "2";
        QTest::newRow("import read first") << QByteArray("language=0") << QByteArray("language=2") << "zh_CN" << ":/translations/de.qm" << "2";
        QTest::newRow("stored German") << QByteArray("language=2") << QByteArray() << "zh_CN" << ":/translations/de.qm" << "";
        QTest::newRow("junk reads as 0") << QByteArray("language=abc") << QByteArray() << "de_DE" << ":/translations/cn.qm" << "";
        QTest::newRow("unknown code: nothing") << QByteArray("language=5") << QByteArray() << "de_DE" << "" << "";
    }
    void language()
    {
        QFETCH(QByteArray, stored);
        QFETCH(QByteArray, import);
        QFETCH(QString, locale);
        QFETCH(QString, file);
        QFETCH(QString, storedAfter);
        TestSysroot root;
        if (!stored.isNull())
            TestSysroot::writeFile(root.configFile(), "[setting]\nfans=4\n" + stored + "\n");
        if (!import.isNull())
            TestSysroot::writeFile(root.path(QStringLiteral("/userdata/CS_Config.ini")), "[setting]\nfans=4\n" + import + "\n");
        const QByteArray before = TestSysroot::readFile(root.configFile());
        Translations::translator().load(QString()); // start from an empty translator
        const int code = Translations::loadStartupLanguage(locale);
        QCOMPARE(Translations::translator().filePath(), file);
        QCOMPARE(Translations::fileFor(code), file); // -1 when nothing was loaded
        QSettings s(root.configFile(), QSettings::IniFormat);
        if (storedAfter.isEmpty())
            QCOMPARE(TestSysroot::readFile(root.configFile()), before);
        else
            QVERIFY(s.value("setting/language").toString() == storedAfter && s.value("setting/fans").toInt() == (stored.isNull() ? 50 : 4));
    }

    void switchRetranslatesLiveQml()
    {
        QQmlEngine engine;
        qmlRegisterType<UiprocMain_Desktop>("xpose.UiprocMain_Desktop", 1, 0, "UiproMain_Desktop");
        QQmlComponent component(&engine);
        component.setData("import xpose.UiprocMain_Desktop 1.0\nUiproMain_Desktop { property string label: qsTranslate(\"ActionPanel\", \"Record\") }", QUrl("qrc:/probe.qml"));
        QScopedPointer<QObject> main(component.create());
        QVERIFY2(main, qPrintable(component.errorString()));
        for (const auto &[code, text] : {std::pair<int, QString>{2, "Aufnahme"}, {0, QString::fromUtf8("\xe5\xbd\x95\xe5\x88\xb6")}, {1, "Record"}}) {
            for (int language : {code, 3, -1}) // out of range: the current language stays
                static_cast<UiprocMain_Desktop *>(main.data())->setLanguage(language);
            QCOMPARE(main->property("label").toString(), text);
        }
    }

    void debugBridgeReachesTheLastObject()
    {
        UiprocPublic::sendDebug(QStringLiteral("nobody listens")); // no sink yet: nothing happens
        UiprocPublic first;
        QSignalSpy firstSpy(&first, &UiprocPublic::sendDebugToQml);
        UiprocPublic::sendDebug(QStringLiteral("one"));
        QScopedPointer<UiprocPublic> second(new UiprocPublic);
        QSignalSpy secondSpy(second.data(), &UiprocPublic::sendDebugToQml);
        UiprocPublic::sendDebug(QStringLiteral("two"));
        second.reset();
        UiprocPublic::sendDebug(QStringLiteral("after the last one went")); // its sink is gone: dropped
        QCOMPARE(firstSpy, QList<QVariantList>({{"one"}}));
        QCOMPARE(secondSpy, QList<QVariantList>({{"two"}}));
    }
};

QTEST_MAIN(TstStartup)
#include "tst_startup.moc"
