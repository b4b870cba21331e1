// The run's log on a real directory: numbering, rotation, the switch, the line format.
#include "Logger.h"
#include "TestSysroot.h"

#include <QRegularExpression>
#include <QtTest>

class TstLogger : public QObject
{
    Q_OBJECT
private:
    static QStringList logFiles(const TestSysroot &root)
    {
        QStringList names = QDir(root.path(QStringLiteral("/CSLog"))).entryList({QStringLiteral("*.CSLOG")}, QDir::Files);
        std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
            return a.section('.', 0, 0).toULongLong() < b.section('.', 0, 0).toULongLong();
        });
        return names;
    }

private slots:
    void cleanup() { Logger::instance().close(); }

    void numbering_data()
    {
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("removed");
        QTest::newRow("empty dir") << QStringList() << "0.CSLOG" << QString();
        QTest::newRow("numeric not text order") << QStringList{"2.CSLOG", "10.CSLOG"} << "11.CSLOG" << QString();
        QTest::newRow("other files ignored") << QStringList{"3.CSLOG", "99.txt", "100.log"} << "4.CSLOG" << QString();
        QStringList eleven;
        for (int i = 0; i <= 10; ++i)
            eleven << QStringLiteral("%1.CSLOG").arg(i);
        QTest::newRow("eleven files: oldest removed") << eleven << "11.CSLOG" << "0.CSLOG";
        QStringList gaps{"5.CSLOG", "7.CSLOG", "30.CSLOG", "31.CSLOG", "32.CSLOG", "33.CSLOG",
                         "34.CSLOG", "35.CSLOG", "36.CSLOG", "37.CSLOG", "38.CSLOG", "39.CSLOG"};
        QTest::newRow("twelve files: one removed per run") << gaps << "40.CSLOG" << "5.CSLOG";
    }
    void numbering()
    {
        QFETCH(QStringList, existing);
        QFETCH(QString, chosen);
        QFETCH(QString, removed);
        TestSysroot root;
        for (const QString &f : existing)
            TestSysroot::writeFile(root.path(QStringLiteral("/CSLog/") + f), "old\n");
        CategoryCapture console;
        Logger &log = Logger::instance();
        log.setSwitch(1);
        log.write(QStringLiteral("qml start"));
        log.write(QStringLiteral("second line"));
        QCOMPARE(QFileInfo(log.currentFile()).fileName(), chosen);

        QStringList expectedFiles = existing.filter(QStringLiteral(".CSLOG"));
        if (!removed.isEmpty())
            expectedFiles.removeAll(removed);
        expectedFiles << chosen;
        std::sort(expectedFiles.begin(), expectedFiles.end(), [](const QString &a, const QString &b) {
            return a.section('.', 0, 0).toULongLong() < b.section('.', 0, 0).toULongLong();
        });
        QCOMPARE(logFiles(root), expectedFiles);
        if (!removed.isEmpty())
            QVERIFY(console.contains(QStringLiteral("remove: ") + removed));

        const QStringList lines = QString::fromUtf8(TestSysroot::readFile(log.currentFile())).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        QVERIFY2(QRegularExpression(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d-\\d\\d-\\d\\d-\\d\\d: qml start$")).match(lines[0]).hasMatch(),
                 qPrintable(lines[0]));
        QVERIFY(lines[1].endsWith(QStringLiteral(": second line")));
        QVERIFY(console.contains(QStringLiteral("qml start")));
    }

    void nextRunTakesNextNumber()
    {
        TestSysroot root;
        Logger &log = Logger::instance();
        log.setSwitch(1);
        log.write(QStringLiteral("run one"));
        log.close();
        log.write(QStringLiteral("run two"));
        QCOMPARE(logFiles(root), (QStringList{"0.CSLOG", "1.CSLOG"}));
    }

    void closedFileKeepsTheConsole()
    {
        TestSysroot root;
        CategoryCapture console;
        Logger &log = Logger::instance();
        log.setSwitch(1);
        log.write(QStringLiteral("before"));
        log.closeFile(); // what UiProc's destruction does
        log.write(QStringLiteral("after"));
        QCOMPARE(logFiles(root), QStringList{"0.CSLOG"});
        QVERIFY(TestSysroot::readFile(root.path(QStringLiteral("/CSLog/0.CSLOG"))).endsWith(": before\n"));
        QCOMPARE(console.lines(), (QStringList{"before", "after"}));
    }

    void switchOffWritesNothing()
    {
        TestSysroot root;
        CategoryCapture console;
        Logger &log = Logger::instance();
        log.setSwitch(0);
        log.write(QStringLiteral("hidden"));
        QVERIFY(logFiles(root).isEmpty());
        QVERIFY(console.lines().isEmpty());
        QVERIFY(log.currentFile().isEmpty());
        QVERIFY(QDir(root.path(QStringLiteral("/CSLog"))).exists());
    }

    void emptyTextIgnored()
    {
        TestSysroot root;
        Logger &log = Logger::instance();
        log.setSwitch(1);
        log.write(QString());
        QVERIFY(logFiles(root).isEmpty());
    }

    void createsMissingDirectory()
    {
        TestSysroot root;
        QDir(root.path(QStringLiteral("/CSLog"))).removeRecursively();
        Logger &log = Logger::instance();
        log.setSwitch(1);
        log.write(QStringLiteral("x"));
        QCOMPARE(logFiles(root), QStringList{"0.CSLOG"});
    }

    void concurrentWritersKeepWholeLines()
    {
        TestSysroot root;
        Logger &log = Logger::instance();
        log.setSwitch(1);
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t)
            threads.emplace_back([t, &log] {
                for (int i = 0; i < 200; ++i)
                    log.write(QStringLiteral("thread %1 line %2").arg(t).arg(i));
            });
        for (auto &th : threads)
            th.join();
        const QStringList lines = QString::fromUtf8(TestSysroot::readFile(log.currentFile())).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 800);
        for (const QString &l : lines)
            QVERIFY2(QRegularExpression(QStringLiteral(": thread \\d line \\d+$")).match(l).hasMatch(), qPrintable(l));
    }

    void dailyWriter()
    {
        QTemporaryDir dir;
        const QString old = QDir::currentPath();
        QDir::setCurrent(dir.path());
        Logger::writeDaily(QStringLiteral("daily text"));
        QDir::setCurrent(old);
        const QString file = dir.path() + QStringLiteral("/log/") + QDate::currentDate().toString(QStringLiteral("yyyyMMdd")) + QStringLiteral(".log");
        const QString content = QString::fromUtf8(TestSysroot::readFile(file));
        QVERIFY2(QRegularExpression(QStringLiteral("^\\[\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\]daily text\\n$")).match(content).hasMatch(),
                 qPrintable(content));
    }
};

QTEST_GUILESS_MAIN(TstLogger)
#include "tst_logger.moc"
