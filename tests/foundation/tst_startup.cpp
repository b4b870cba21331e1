// The real executable: start-up log, "---errors = " line, watch argument, exit status.
#include "Startup.h"
#include "TestSysroot.h"

#include <QProcess>
#include <QtTest>

class TstStartup : public QObject
{
    Q_OBJECT
private:
    struct Run
    {
        int exitCode = -1;
        QString output;
    };
    static Run runApp(const TestSysroot &root, const QString &mainQml, const QStringList &args = {})
    {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("CS_SYSROOT"), root.root());
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        env.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
        env.insert(QStringLiteral("CS_QUIT_AFTER_MS"), QStringLiteral("1500"));
        env.insert(QStringLiteral("CS_LISTEN_PORT"), QStringLiteral("0"));
        env.insert(QStringLiteral("CS_MEDIA_PORT"), QStringLiteral("9"));
        env.insert(QStringLiteral("CS_PREVIEW_SHM_KEY"), QString::number(0x5e000000 + QCoreApplication::applicationPid() % 0xffff));
        env.insert(QStringLiteral("CS_PREVIEW_SEM_KEY"), QString::number(0x5e100000 + QCoreApplication::applicationPid() % 0xffff));
        env.insert(QStringLiteral("CS_AUDIO_SHM_KEY"), QString::number(0x5e200000 + QCoreApplication::applicationPid() % 0xffff));
        if (!mainQml.isEmpty())
            env.insert(QStringLiteral("CS_MAIN_QML"), mainQml);
        p.setProcessEnvironment(env);
        p.setProcessChannelMode(QProcess::MergedChannels);
        p.start(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"), args);
        if (!p.waitForFinished(30000))
            p.kill();
        return {p.exitCode(), QString::fromLocal8Bit(p.readAll())};
    }

private slots:
    void watchArgument_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<bool>("watch");
        QTest::newRow("none") << QStringList{"app"} << false;
        QTest::newRow("exact") << QStringList{"app", "watch"} << true;
        QTest::newRow("inside a word") << QStringList{"app", "xwatchy"} << true;
        QTest::newRow("capitals") << QStringList{"app", "WATCH"} << false;
        QTest::newRow("second argument only") << QStringList{"app", "run", "watch"} << false;
    }
    void watchArgument()
    {
        QFETCH(QStringList, args);
        QFETCH(bool, watch);
        QCOMPARE(Startup::isWatchStart(args), watch);
    }

    void brokenMainDocumentKeepsRunning()
    {
        TestSysroot root(true);
        QTemporaryDir dir;
        const QString qml = dir.filePath(QStringLiteral("broken.qml"));
        TestSysroot::writeFile(qml, "import QtQuick 2.15\nItem { width: }\n");
        const Run run = runApp(root, qml);
        QCOMPARE(run.exitCode, 0); // the event loop ran until asked to quit
        QVERIFY2(run.output.contains(QStringLiteral("---errors =  (")), qPrintable(run.output));
        QVERIFY2(run.output.contains(QStringLiteral("broken.qml:2")), qPrintable(run.output));
    }

    void mainDocumentStartsAndLogs()
    {
        TestSysroot root(true);
        QTemporaryDir dir;
        const QString qml = dir.filePath(QStringLiteral("probe.qml"));
        TestSysroot::writeFile(qml, "import QtQuick 2.15\nItem { Component.onCompleted: console.log('watch=' + isWatchStart + ' image=' + (typeof CodeImage)) }\n");
        Run run = runApp(root, qml, {QStringLiteral("xwatchy")});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.output.contains(QStringLiteral("---errors =  ()")), qPrintable(run.output));
        QVERIFY2(run.output.contains(QStringLiteral("watch=true image=object")), qPrintable(run.output));
        run = runApp(root, qml);
        QVERIFY2(run.output.contains(QStringLiteral("watch=false")), qPrintable(run.output));
    }

    void realMainDocumentLoadsWithoutErrors()
    {
        TestSysroot root(true);
        const Run run = runApp(root, QString());
        QVERIFY2(run.output.contains(QStringLiteral("---errors =  ()")), qPrintable(run.output));
        // The start-up milestones reach the run's log (openLog=1 in the default settings).
        const QString log = QString::fromUtf8(TestSysroot::readFile(root.path(QStringLiteral("/CSLog/0.CSLOG"))));
        QVERIFY2(log.contains(QStringLiteral(": qml start\n")), qPrintable(log));
        QVERIFY(log.contains(QStringLiteral(": qml start share image\n")));
        QVERIFY(log.indexOf(QStringLiteral("share image")) < log.indexOf(QStringLiteral("share audio")));
    }
};

QTEST_GUILESS_MAIN(TstStartup)
#include "tst_startup.moc"
