// Start-up language choice with its write-back, and switching at run time.
#include "TestSysroot.h"
#include "Translations.h"
#include "UiprocMain_Desktop.h"
#include "UiprocPublic.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSettings>
#include <QTranslator>
#include <QtTest>

class TstLanguage : public QObject
{
    Q_OBJECT
private:
    static int storedLanguage(const TestSysroot &root, bool *present)
    {
        QSettings s(root.configFile(), QSettings::IniFormat);
        *present = s.contains(QStringLiteral("setting/language"));
        return s.value(QStringLiteral("setting/language")).toInt();
    }

private slots:
    void startup_data()
    {
        QTest::addColumn<QString>("stored"); // "" = key absent
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("storedAfter");
        QTest::newRow("follow locale de_AT") << "-1" << "de_AT" << ":/translations/de.qm" << "2";
        QTest::newRow("follow locale zh_CN") << "-1" << "zh_CN" << ":/translations/cn.qm" << "0";
        QTest::newRow("follow locale en_GB") << "-1" << "en_GB" << ":/translations/en.qm" << "1";
        QTest::newRow("follow locale fr_FR") << "-1" << "fr_FR" << ":/translations/en.qm" << "1";
        QTest::newRow("follow locale C") << "-1" << "C" << ":/translations/en.qm" << "1";
        QTest::newRow("stored German") << "2" << "zh_CN" << ":/translations/de.qm" << "2";
        QTest::newRow("stored Chinese") << "0" << "de_DE" << ":/translations/cn.qm" << "0";
        QTest::newRow("absent reads as 0") << "" << "de_DE" << ":/translations/cn.qm" << "";
        QTest::newRow("junk reads as 0") << "abc" << "de_DE" << ":/translations/cn.qm" << "abc";
        QTest::newRow("unknown code: nothing") << "5" << "de_DE" << "" << "5";
    }
    void startup()
    {
        QFETCH(QString, stored);
        QFETCH(QString, locale);
        QFETCH(QString, file);
        QFETCH(QString, storedAfter);
        TestSysroot root;
        QByteArray ini = "[setting]\nfans=4\n";
        if (!stored.isEmpty())
            ini += "language=" + stored.toUtf8() + "\n";
        TestSysroot::writeFile(root.configFile(), ini);
        const QByteArray before = TestSysroot::readFile(root.configFile());

        Translations::translator().load(QString()); // start from an empty translator
        const int code = Translations::loadStartupLanguage(locale);
        QCOMPARE(Translations::translator().filePath(), file);
        if (file.isEmpty())
            QCOMPARE(code, -1);
        else
            QCOMPARE(Translations::fileFor(code), file);

        if (stored != QLatin1String("-1")) {
            QCOMPARE(TestSysroot::readFile(root.configFile()), before); // not rewritten
        } else {
            QSettings s(root.configFile(), QSettings::IniFormat);
            QCOMPARE(s.value(QStringLiteral("setting/language")).toString(), storedAfter);
            QCOMPARE(s.value(QStringLiteral("setting/fans")).toInt(), 4); // other keys kept
        }
    }

    void startupImportsUserdataFirst()
    {
        TestSysroot root;
        TestSysroot::writeFile(root.configFile(), "[setting]\nlanguage=0\n");
        TestSysroot::writeFile(root.path(QStringLiteral("/userdata/CS_Config.ini")), "[setting]\nlanguage=2\n");
        Translations::loadStartupLanguage(QStringLiteral("zh_CN"));
        QCOMPARE(Translations::translator().filePath(), QStringLiteral(":/translations/de.qm"));
        QVERIFY(!QFile::exists(root.path(QStringLiteral("/userdata/CS_Config.ini"))));
    }

    void missingFileFollowsLocaleAsZero()
    {
        TestSysroot root;
        Translations::loadStartupLanguage(QStringLiteral("de_DE"));
        // No file means language 0: Chinese, and nothing is written.
        QCOMPARE(Translations::translator().filePath(), QStringLiteral(":/translations/cn.qm"));
        bool present = true;
        storedLanguage(root, &present);
        QVERIFY(!present);
    }

    void switchRetranslatesLiveQml_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::newRow("German") << 2 << QString::fromUtf8("Aufnahme");
        QTest::newRow("Chinese") << 0 << QString::fromUtf8("录制");
        QTest::newRow("English") << 1 << QStringLiteral("Record");
    }
    void switchRetranslatesLiveQml()
    {
        QFETCH(int, code);
        QFETCH(QString, text);
        QQmlEngine engine;
        qmlRegisterType<UiprocMain_Desktop>("xpose.UiprocMain_Desktop", 1, 0, "UiproMain_Desktop");
        QQmlComponent component(&engine);
        component.setData("import QtQuick 2.15\nimport xpose.UiprocMain_Desktop 1.0\n"
                          "Item { property string label: qsTranslate(\"ActionPanel\", \"Record\")\n"
                          "  property alias main: m\n UiproMain_Desktop { id: m } }",
                          QUrl(QStringLiteral("qrc:/probe.qml")));
        QScopedPointer<QObject> root(component.create());
        QVERIFY2(root, qPrintable(component.errorString()));
        auto *main = root->property("main").value<UiprocMain_Desktop *>();
        QVERIFY(main);
        main->setLanguage(code);
        QCOMPARE(root->property("label").toString(), text);

        // Out of range: the current language stays.
        main->setLanguage(3);
        main->setLanguage(-1);
        QCOMPARE(root->property("label").toString(), text);
        QCOMPARE(Translations::translator().filePath(), Translations::fileFor(code));
    }

    void debugBridgeReachesTheLastObject()
    {
        UiprocPublic::sendDebug(QStringLiteral("nobody listens")); // no sink yet: nothing happens
        UiprocPublic first;
        QSignalSpy firstSpy(&first, &UiprocPublic::sendDebugToQml);
        UiprocPublic::sendDebug(QStringLiteral("one"));
        {
            UiprocPublic second;
            QSignalSpy secondSpy(&second, &UiprocPublic::sendDebugToQml);
            UiprocPublic::sendDebug(QStringLiteral("two"));
            QCOMPARE(secondSpy.count(), 1);
            QCOMPARE(secondSpy.at(0).at(0).toString(), QStringLiteral("two"));
        }
        UiprocPublic::sendDebug(QStringLiteral("after the last one went")); // its sink is gone: dropped
        QCOMPARE(firstSpy.count(), 1);
        QCOMPARE(firstSpy.at(0).at(0).toString(), QStringLiteral("one"));
    }
};

QTEST_MAIN(TstLanguage)
#include "tst_language.moc"
