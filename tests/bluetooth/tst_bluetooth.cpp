// The companion link over a pseudo-terminal standing in for /dev/rfcomm0:
// the test holds the master side and plays the phone.
#include "LogTap.h"
#include "PhonePty.h"
#include "Logger.h"
#include "TestSysroot.h"
#include "UiproBluetooth_Desktop.h"

#include <QDir>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QtTest>

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace {

// Threads of this process that run the link's reader.
int readerThreads()
{
    int n = 0;
    for (const QString &task : QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        n += TestSysroot::readFile(QStringLiteral("/proc/self/task/%1/comm").arg(task)).trimmed() == "cs-bluetooth";
    return n;
}

const QByteArray kDest = "https://push.zorvane.com/live/abc#TOKEN#ROOM#1\\r\\n";

} // namespace

class TestBluetooth : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("cs.bluetooth.debug=true"));
        Logger::instance().setSwitch(1);
    }
    void reads_data();
    void reads();
    void closedWhileReadingIsOff();
    void stopEndsReaderAndGetRestartsIt();
    void destroyedWhileWaiting();
    void writes_data();
    void writes();
};

void TestBluetooth::reads_data()
{
    QTest::addColumn<QList<QByteArray>>("reads");
    QTest::addColumn<QStringList>("events"); // "url|token|Data|vertical" per destination, "stop" per stop
    QTest::addColumn<int>("fieldLines");

    const QString d = QStringLiteral("https://push.zorvane.com/live/abc|TOKEN|ROOM|1");
    const QString stop = QStringLiteral("stop");
    QTest::newRow("destination") << QList<QByteArray> {kDest} << QStringList {d} << 0;
    QTest::newRow("portrait code") << QList<QByteArray> {"https://push.zorvane.com/x#t#r#2\\r\\n"}
                                   << QStringList {QStringLiteral("https://push.zorvane.com/x|t|r|2")} << 0;
    QTest::newRow("stop in the same read") << QList<QByteArray> {kDest + "StopPush"} << QStringList {d, stop} << 0;
    QTest::newRow("stop alone") << QList<QByteArray> {"StopPush"} << QStringList {stop} << 0;
    QTest::newRow("real line end only") << QList<QByteArray> {"https://push.zorvane.com/x#t#r#1\r\n"} << QStringList {} << 0;
    QTest::newRow("three fields") << QList<QByteArray> {"https://push.zorvane.com/x#t#1\\r\\n"} << QStringList {} << 1;
    // Between the rows above and below: one such log line a second.
    QTest::newRow("foreign host") << QList<QByteArray> {"https://evil.example/x#t#r#1\\r\\n"} << QStringList {} << 0;
    QTest::newRow("one field") << QList<QByteArray> {"https://push.zorvane.com/x\\r\\n"} << QStringList {} << 1;
    QTest::newRow("extra fields") << QList<QByteArray> {"https://push.zorvane.com/x#t#r#1\\r\\n#more#$(touch x)"}
                                  << QStringList {QStringLiteral("https://push.zorvane.com/x|t|r|1")} << 0;
    // A full read: the token fills it up to exactly 1024 bytes.
    QByteArray full = "https://push.zorvane.com/x#" + QByteArray(1024 - 36, 'T') + "#r#1\\r\\n";
    QTest::newRow("1024 bytes") << QList<QByteArray> {full}
                                << QStringList {QStringLiteral("https://push.zorvane.com/x|%1|r|1").arg(QString(1024 - 36, QLatin1Char('T')))}
                                << 0;
    // Longer than one read: the terminator falls into the second read, which has no host.
    QByteArray over = "https://push.zorvane.com/x#" + QByteArray(1024, 'T') + "#r#1\\r\\n";
    QTest::newRow("over 1024 bytes") << QList<QByteArray> {over} << QStringList {} << 0;
    QTest::newRow("binary") << QList<QByteArray> {QByteArray("\x00\xff\xfe#\x1b[2J#\\r\\n", 13)} << QStringList {} << 0;
}

void TestBluetooth::reads()
{
    QFETCH(QList<QByteArray>, reads);
    QFETCH(QStringList, events);
    QFETCH(int, fieldLines);

    TestSysroot root;
    Phone phone(root.path(QStringLiteral("/dev/rfcomm0")));
    QVERIFY(phone.isValid());
    LogTap log;
    UiproBluetooth_Desktop link;
    QStringList got;
    connect(&link, &UiproBluetooth_Desktop::pushReadRtmp, this,
            [&](const QString &url, const QString &token, const QString &data, const QString &vertical) {
                got << QStringList {url, token, data, vertical}.join(QLatin1Char('|'));
            });
    connect(&link, &UiproBluetooth_Desktop::pushAirSet, this,
            [&](bool set) { got << (set ? QStringLiteral("start") : QStringLiteral("stop")); });
    link.setReadFlag(true);
    link.getBlueData();

    int readsSeen = 0;
    for (const QByteArray &bytes : reads) {
        QVERIFY(phone.send(bytes));
        readsSeen += (bytes.size() + UiproBluetooth_Desktop::kReadBytes - 1) / UiproBluetooth_Desktop::kReadBytes;
        QTRY_COMPARE_WITH_TIMEOUT(log.count(QStringLiteral("cs.bluetooth"), QStringLiteral("wwww")), readsSeen, 5000);
    }
    // Signals arrive in order: once the closing stop is here, all are.
    QVERIFY(phone.send("StopPush"));
    QTRY_COMPARE_WITH_TIMEOUT(got, events + QStringList {QStringLiteral("stop")}, 5000);
    QCOMPARE(log.count(QStringLiteral("cs.log"), QStringLiteral("fields ignored")), fieldLines);
    QVERIFY(!QFile::exists(root.path(QStringLiteral("/x"))));
}

void TestBluetooth::closedWhileReadingIsOff()
{
    // A FIFO shows whether anyone holds it open for reading: a non-blocking
    // writer is refused (ENXIO) while nobody does.
    TestSysroot root;
    const QByteArray fifo = QFile::encodeName(root.path(QStringLiteral("/dev/rfcomm0")));
    QCOMPARE(::mkfifo(fifo.constData(), 0600), 0);
    auto openWriter = [&] { return ::open(fifo.constData(), O_WRONLY | O_NONBLOCK); };

    UiproBluetooth_Desktop link;
    QSignalSpy dest(&link, &UiproBluetooth_Desktop::pushReadRtmp);
    link.getBlueData();
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 2500) {
        const int fd = openWriter();
        QVERIFY2(fd < 0 && errno == ENXIO, "the node was opened while reading is off");
        QTest::qWait(50);
    }

    link.setReadFlag(true);
    int fd = -1;
    QTRY_VERIFY_WITH_TIMEOUT((fd = openWriter()) >= 0, 3000);
    QCOMPARE(::write(fd, kDest.constData(), size_t(kDest.size())), ssize_t(kDest.size()));
    ::close(fd);
    QTRY_COMPARE_WITH_TIMEOUT(dest.count(), 1, 3000);

    link.setReadFlag(false);
    QTest::qWait(1500); // the reader leaves its pause after a read
    for (int i = 0; i < 10; ++i, QTest::qWait(50)) {
        fd = openWriter();
        QVERIFY2(fd < 0, "the node stays open after reading was switched off");
    }
}

void TestBluetooth::stopEndsReaderAndGetRestartsIt()
{
    TestSysroot root;
    Phone phone(root.path(QStringLiteral("/dev/rfcomm0")));
    QVERIFY(phone.isValid());
    QTRY_COMPARE_WITH_TIMEOUT(readerThreads(), 0, 3000); // earlier tests' readers have ended
    const int before = 0;
    UiproBluetooth_Desktop link;
    QSignalSpy dest(&link, &UiproBluetooth_Desktop::pushReadRtmp);
    link.setReadFlag(true);
    link.getBlueData();
    link.getBlueData();
    QTRY_COMPARE(readerThreads(), before + 1);
    QTest::qWait(200);
    QCOMPARE(readerThreads(), before + 1); // asked twice, one reader

    link.setReadStop();
    QTRY_COMPARE_WITH_TIMEOUT(readerThreads(), before, 3000);
    QVERIFY(phone.send(kDest));
    QTest::qWait(1500);
    QCOMPARE(dest.count(), 0);

    // A stop and a start in one go leave exactly one reader.
    link.getBlueData();
    link.setReadStop();
    link.getBlueData();
    QTRY_COMPARE_WITH_TIMEOUT(dest.count(), 1, 3000); // the text waiting on the line
    QCOMPARE(readerThreads(), before + 1);
    QCOMPARE(dest.at(0).at(2).toString(), QStringLiteral("ROOM"));
}

void TestBluetooth::destroyedWhileWaiting()
{
    TestSysroot root;
    Phone phone(root.path(QStringLiteral("/dev/rfcomm0")));
    QVERIFY(phone.isValid());
    QTRY_COMPARE_WITH_TIMEOUT(readerThreads(), 0, 3000); // earlier tests' readers have ended
    const int before = 0;
    {
        UiproBluetooth_Desktop link;
        link.setReadFlag(true);
        link.getBlueData();
        QTRY_COMPARE(readerThreads(), before + 1);
        QTest::qWait(300); // waiting for the phone now
    }
    QVERIFY(phone.send(kDest)); // nobody to hand it to: no crash
    QTRY_COMPARE_WITH_TIMEOUT(readerThreads(), before, 3000);
}

void TestBluetooth::writes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("line");

    QTest::newRow("ack") << QStringLiteral("RecvSuccess") << QByteArray("RecvSuccess\\r\\n\n");
    QTest::newRow("stop") << QStringLiteral("StopPush") << QByteArray("StopPush\\r\\n\n");
    QTest::newRow("command substitution") << QStringLiteral("$(touch x)") << QByteArray("$(touch x)\\r\\n\n");
    QTest::newRow("backquotes") << QStringLiteral("`touch x`") << QByteArray("`touch x`\\r\\n\n");
    QTest::newRow("quotes") << QStringLiteral("'; touch x; '\"") << QByteArray("'; touch x; '\"\\r\\n\n");
    QTest::newRow("list") << QStringLiteral("a; rm -rf x; touch x") << QByteArray("a; rm -rf x; touch x\\r\\n\n");
    QTest::newRow("newline") << QStringLiteral("a\ntouch x > x") << QByteArray("a\ntouch x > x\\r\\n\n");
    QTest::newRow("not latin") << QStringLiteral("推流") << QByteArray("\xe6\x8e\xa8\xe6\xb5\x81\\r\\n\n");
    QTest::newRow("too long") << QString(5000, QLatin1Char('a')) << QByteArray();
}

void TestBluetooth::writes()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, line);

    TestSysroot root;
    Phone phone(root.path(QStringLiteral("/dev/rfcomm0")));
    QVERIFY(phone.isValid());
    const QStringList commandsBefore = root.commands();
    {
        UiproBluetooth_Desktop link;
        link.writeDataToDev(text);
        link.writeDataToDev(QStringLiteral("end"));
    } // queued lines are written before the object goes
    // The closing word shows the first line is complete and nothing else came.
    QCOMPARE(phone.receive(line.size() + 8, 3000), line + "end\\r\\n\n");
    QCOMPARE(root.commands(), commandsBefore);
    QVERIFY(!QFile::exists(root.path(QStringLiteral("/x"))));
    QVERIFY(!QFile::exists(QDir::current().filePath(QStringLiteral("x"))));
}

QTEST_GUILESS_MAIN(TestBluetooth)
#include "tst_bluetooth.moc"
