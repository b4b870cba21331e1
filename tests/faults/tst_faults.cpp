// Faults provoked for real, each to end with a log line and a safe outcome:
// the settings writer killed mid-write, the log folder read-only, the USB
// disk gone during a listing, /dev/rfcomm0 vanishing under its reader and a
// companion service that accepts the connection and never answers.
#include "HttpsTestServer.h"
#include "LogTap.h"
#include "PhonePty.h"
#include "Logger.h"
#include "Mp4File.h"
#include "SettingsStore.h"
#include "TestSysroot.h"
#include "UiproBluetooth_Desktop.h"
#include "UiproRecord_Desktop.h"
#include "UiproRtmp_Desktop.h"

#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <memory>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace {

const char kWriterArg[] = "--settings-writer";
// Set in main() before any thread exists (unshare refuses a threaded process).
bool g_privateMounts = false;

// Two complete sets of the settings that differ in every key.
QJsonObject valueSet(int which)
{
    QJsonObject o;
    for (int i = 0; i < 43; ++i) {
        const SettingsStore::Key &k = SettingsStore::kKeys[i];
        if (k.type == SettingsStore::KeyType::Int)
            o.insert(QLatin1String(k.name), which * 1000 + i);
        else
            o.insert(QLatin1String(k.name), QStringLiteral("set%1-%2 Grüße 推流").arg(which).arg(i));
    }
    return o;
}

// Forks one writer per line on stdin (far cheaper than starting a process a
// round) and says how it ended. The writer alternates the two sets until killed.
int settingsForker()
{
    const QJsonObject sets[2] = {valueSet(1), valueSet(2)};
    ::prctl(PR_SET_PDEATHSIG, SIGKILL); // a test that dies takes its writers along
    char line[16];
    while (std::fgets(line, sizeof line, stdin)) {
        const pid_t pid = ::fork();
        if (pid < 0)
            return 1;
        if (pid == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            std::printf("started %d\n", int(::getpid()));
            std::fflush(stdout);
            for (unsigned n = 1;; ++n)
                SettingsStore::write(sets[n % 2]);
        }
        int status = 0;
        ::waitpid(pid, &status, 0);
        std::printf("ended %d\n", WIFSIGNALED(status) ? WTERMSIG(status) : -1);
        std::fflush(stdout);
    }
    return 0;
}

// Processor time (clock ticks) the Bluetooth reader thread has used, -1 if none runs.
qint64 readerTicks()
{
    for (const QString &task : QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString dir = QStringLiteral("/proc/self/task/") + task;
        if (TestSysroot::readFile(dir + "/comm").trimmed() != "cs-bluetooth")
            continue;
        const QByteArray stat = TestSysroot::readFile(dir + "/stat");
        // After the name in parentheses: state, then utime and stime are the 12th and 13th.
        const QList<QByteArray> f = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        return f.size() > 12 ? f.at(11).toLongLong() + f.at(12).toLongLong() : -1;
    }
    return -1;
}

} // namespace

class TstFaults : public QObject
{
    Q_OBJECT
    QTemporaryDir m_work;
    QString m_sample; // a small MP4 recording

private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("cs.bluetooth.debug=true\ncs.hardware.debug=true"));
        Logger::instance().setSwitch(1);
        m_sample = m_work.filePath(QStringLiteral("sample.mp4"));
        QString why;
        QVERIFY2(Sim::writeMp4(m_sample, Sim::Mp4Params {64, 48, 2, 1000, false, "mp4"}, &why), qPrintable(why));
    }

    void settingsSurviveKill();
    void logFolderReadOnly();
    void usbDiskGoneDuringListing_data();
    void usbDiskGoneDuringListing();
    void rfcommGoneMidRead();
    void companionNeverAnswers_data();
    void companionNeverAnswers();
};

void TstFaults::settingsSurviveKill()
{
    TestSysroot root;
    const QJsonObject sets[2] = {valueSet(1), valueSet(2)};
    SettingsStore::write(sets[0]);
    QProcess forker;
    forker.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kWriterArg)});
    auto readLine = [&] {
        while (!forker.canReadLine() && forker.waitForReadyRead(10000)) {
        }
        return forker.readLine();
    };
    for (int round = 0; round < 100; ++round) {
        forker.write("go\n");
        const QByteArray started = readLine();
        QVERIFY2(started.startsWith("started "), started.constData());
        QThread::msleep(QRandomGenerator::global()->bounded(1, 41));
        QCOMPARE(::kill(started.mid(8).trimmed().toInt(), SIGKILL), 0);
        QCOMPARE(readLine(), QByteArray("ended 9\n")); // our signal, not a crash
        QJsonObject got;
        SettingsStore::read(got);
        QVERIFY2(got.size() == 43, qPrintable(QStringLiteral("round %1: %2 keys").arg(round).arg(got.size())));
        for (const SettingsStore::Key &k : SettingsStore::kKeys) {
            const QJsonValue v = got.value(QLatin1String(k.name));
            QVERIFY2(v == sets[0].value(QLatin1String(k.name)) || v == sets[1].value(QLatin1String(k.name)),
                     qPrintable(QStringLiteral("round %1: %2 = %3").arg(round).arg(k.name, v.toVariant().toString())));
        }
    }
    forker.closeWriteChannel();
    QVERIFY(forker.waitForFinished(5000));
    // The next write clears whatever the killed ones left beside the file.
    SettingsStore::write(sets[1]);
    const QDir config = QFileInfo(SettingsStore::filePath()).dir();
    QCOMPARE(config.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).join(' '), QStringLiteral("CS_Config.ini"));
    QJsonObject last;
    SettingsStore::read(last);
    QCOMPARE(last, sets[1]);
}

void TstFaults::logFolderReadOnly()
{
    if (!g_privateMounts)
        QSKIP("no private mount namespace (needs root and unshare): a read-only folder needs a real mount");
    TestSysroot root;
    const QByteArray dir = QFile::encodeName(root.path(QStringLiteral("/CSLog")));
    QCOMPARE(::mount(dir.constData(), dir.constData(), nullptr, MS_BIND, nullptr), 0);
    QCOMPARE(::mount(nullptr, dir.constData(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr), 0);
    Logger &logger = Logger::instance();
    logger.reset();
    logger.setSwitch(1);

    LogTap log;
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 300; ++i)
        writeLog(QStringLiteral("line %1").arg(i));
    QVERIFY2(clock.elapsed() < 5000, "logging stalled on the read-only folder");
    QCOMPARE(log.count(QStringLiteral("cs.log"), QStringLiteral("line ")), 300); // the console still gets every line
    QVERIFY(QDir(QString::fromLocal8Bit(dir)).entryList(QDir::Files).isEmpty());

    // The run's file is lost, as on the device: a folder that becomes
    // writable later does not bring it back (nothing is retried).
    QCOMPARE(::umount2(dir.constData(), 0), 0);
    writeLog(QStringLiteral("and on"));
    QCOMPARE(log.count(QStringLiteral("cs.log"), QStringLiteral("and on")), 1);
    QVERIFY(QDir(QString::fromLocal8Bit(dir)).entryList(QDir::Files).isEmpty());
}

void TstFaults::usbDiskGoneDuringListing_data()
{
    QTest::addColumn<bool>("unmount"); // else the folder is removed
    QTest::addColumn<bool>("threaded");
    QTest::newRow("lazily unmounted, threaded") << true << true;
    QTest::newRow("folder removed, threaded") << false << true;
    QTest::newRow("folder removed, direct call") << false << false;
}

void TstFaults::usbDiskGoneDuringListing()
{
    QFETCH(bool, unmount);
    QFETCH(bool, threaded);
    if (unmount && !g_privateMounts)
        QSKIP("no private mount namespace (needs root and unshare): unmounting needs a real mount");
    TestSysroot root;
    QDir().mkpath(root.path(QStringLiteral("/sys/bus/usb/devices/1-1")));
    const QString disk = root.path(QStringLiteral("/media/usb0"));
    const QByteArray diskPath = QFile::encodeName(disk);
    auto plug = [&](const QStringList &names) {
        QDir().mkpath(disk);
        if (unmount)
            QCOMPARE(::mount("tmpfs", diskPath.constData(), "tmpfs", 0, "size=16m"), 0);
        for (const QString &name : names)
            QVERIFY(QFile::copy(m_sample, disk + '/' + name + ".mp4"));
    };
    QStringList names;
    for (int i = 0; i < 12; ++i)
        names << QStringLiteral("rec%1").arg(i, 2, 10, QLatin1Char('0'));
    plug(names);
    // The bad-file log line of an earlier row must be out of its one-second window.
    static QElapsedTimer sinceLastRow;
    if (sinceLastRow.isValid())
        QTest::qWait(int(qMax<qint64>(0, 1100 - sinceLastRow.elapsed())));

    LogTap log;
    int seen = 0;
    // The disk goes while the listing is about to read its third file.
    log.setHook([&](const QString &category, const QString &text) {
        if (category != QLatin1String("cs.hardware") || !text.startsWith(QLatin1String("record file:")) || ++seen != 3)
            return;
        if (unmount)
            ::umount2(diskPath.constData(), MNT_DETACH);
        else
            QDir(disk).removeRecursively();
    });
    UiproRecord_Desktop record;
    QSignalSpy lists(&record, &UiproRecord_Desktop::updateFileRecord);
    auto list = [&] {
        if (threaded)
            record.connect_get_usb_record_files();
        else
            record.get_usb_record_files();
    };
    list();
    QTRY_COMPARE_WITH_TIMEOUT(lists.count(), 1, 10000);
    log.setHook({});
    const QStringList got = lists.at(0).at(0).toStringList();
    QCOMPARE(got.size(), 10); // the two files read before the disk went
    QCOMPARE(QStringList({got.at(1), got.at(4), got.at(6), got.at(8)}),
             QStringList({"rec00", "/media/usb0/rec00.mp4", "rec01", "64*48"}));
    QCOMPARE(log.count(QStringLiteral("cs.log"), QStringLiteral("open record file failed")), 1); // one for ten lost files
    sinceLastRow.start();

    plug({QStringLiteral("fresh")});
    list();
    QTRY_COMPARE_WITH_TIMEOUT(lists.count(), 2, 10000);
    const QStringList fresh = lists.at(1).at(0).toStringList();
    QCOMPARE(fresh.mid(1), QStringList({"fresh", "00:00:01", "64*48", "/media/usb0/fresh.mp4"}));
    QVERIFY(UiproRecord_Desktop::waitForListings(5000));
    if (unmount)
        ::umount2(diskPath.constData(), MNT_DETACH);
}

void TstFaults::rfcommGoneMidRead()
{
    TestSysroot root;
    const QString node = root.path(QStringLiteral("/dev/rfcomm0"));
    auto phone = std::make_unique<Phone>(node);
    QVERIFY(phone->isValid());
    LogTap log;
    UiproBluetooth_Desktop link;
    QSignalSpy dest(&link, &UiproBluetooth_Desktop::pushReadRtmp);
    link.setReadFlag(true);
    link.getBlueData();
    QVERIFY(phone->send("https://push.zorvane.com/live/a#T#ROOM1#1\\r\\n"));
    QTRY_COMPARE_WITH_TIMEOUT(dest.count(), 1, 5000);
    // After its pause the reader holds the node open again, waiting for the phone.
    QTRY_COMPARE_WITH_TIMEOUT(log.count(QStringLiteral("cs.bluetooth"), QStringLiteral("aaaa")), 2, 5000);

    QVERIFY(QFile::remove(node));
    phone.reset(); // the pty hangs up under the open descriptor
    QTest::qWait(200);
    const qint64 before = readerTicks();
    QVERIFY(before >= 0);
    QTest::qWait(1000);
    const qint64 used = readerTicks() - before;
    QVERIFY2(used * 1000 / ::sysconf(_SC_CLK_TCK) <= 50, qPrintable(QStringLiteral("reader used %1 ticks in a second").arg(used)));
    QTest::qWait(1000);
    QCOMPARE(log.count(QStringLiteral("cs.log"), QStringLiteral("rfcomm0")), 1);

    Phone again(node);
    QVERIFY(again.isValid());
    QVERIFY(again.send("https://push.zorvane.com/live/b#T#ROOM2#2\\r\\n"));
    QTRY_COMPARE_WITH_TIMEOUT(dest.count(), 2, 5000);
    QCOMPARE(dest.at(1).at(2).toString(), QStringLiteral("ROOM2"));
}

void TstFaults::companionNeverAnswers_data()
{
    QTest::addColumn<bool>("tls"); // else the connection is accepted and the handshake never answered
    QTest::addColumn<int>("trickleMs"); // > 0: the reply comes a byte at a time, never whole
    QTest::newRow("silent after the TCP accept") << false << 0;
    QTest::newRow("silent after the request") << true << 0;
    QTest::newRow("a byte every 200 ms") << true << 200;
}

void TstFaults::companionNeverAnswers()
{
    QFETCH(bool, tls);
    QFETCH(int, trickleMs);
    TestSysroot root;
    QTemporaryDir dir;
    HttpsTestServer https;
    QTcpServer tcp;
    QList<QTcpSocket *> held;
    if (tls) {
        QString error;
        QVERIFY2(https.start(dir.path(), &error), qPrintable(error));
        https.answers["/api/Live/headBeat"] = {200, R"({"code":"SUCCEED"})", 3600 * 1000, trickleMs};
    } else {
        QVERIFY(tcp.listen(QHostAddress::LocalHost));
        connect(&tcp, &QTcpServer::newConnection, this, [&] { held << tcp.nextPendingConnection(); });
    }
    const quint16 port = tls ? https.serverPort() : tcp.serverPort();
    constexpr int kTimeoutMs = 1000;
    UiproRtmp_Desktop rtmp;
    rtmp.setRequestTimeout(kTimeoutMs);
    QSignalSpy results(&rtmp, &UiproRtmp_Desktop::sigSendHttpResult);
    LogTap log;

    QElapsedTimer clock;
    qint64 lastTick = 0, worstGap = 0;
    QTimer tick;
    connect(&tick, &QTimer::timeout, this, [&] {
        worstGap = qMax(worstGap, clock.elapsed() - lastTick);
        lastTick = clock.elapsed();
    });
    tick.start(10);
    clock.start();
    rtmp.httpRequestPostByUrl(QStringLiteral("https://127.0.0.1:%1/api/Live/headBeat").arg(port), "TOKEN", "ROOM");
    const qint64 returnedMs = clock.elapsed();
    if (tls)
        QTRY_COMPARE(https.requests.size(), 1);
    else
        QTRY_COMPARE(held.size(), 1);
    // Given up once the time-out has passed (twice over for a trickle, which
    // is never silent that long), not before: Qt's coarse timers may be 5 % early.
    const int limitMs = trickleMs ? 2 * kTimeoutMs : kTimeoutMs;
    QTRY_VERIFY_WITH_TIMEOUT(rtmp.findChildren<QNetworkAccessManager *>().isEmpty(), limitMs + 5000);
    QVERIFY2(clock.elapsed() >= limitMs * 95 / 100, qPrintable(QStringLiteral("given up after %1 ms").arg(clock.elapsed())));
    QCOMPARE(results.count(), 0);
    QCOMPARE(log.count(QStringLiteral("cs.log"), QStringLiteral("Failed: ")), 1);
    QCOMPARE(log.count(QStringLiteral("cs.log"), QStringLiteral("not complete after 2000 ms, dropped")), trickleMs ? 1 : 0);
    QVERIFY2(returnedMs < 500 && worstGap < 500,
             qPrintable(QStringLiteral("returned after %1 ms, GUI thread stood %2 ms").arg(returnedMs).arg(worstGap)));
}

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], kWriterArg) == 0)
        return settingsForker();
    // A private mount namespace, so the test's mounts vanish with it.
    g_privateMounts = ::geteuid() == 0 && ::unshare(CLONE_NEWNS) == 0
        && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    QCoreApplication app(argc, argv);
    TstFaults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_faults.moc"
