// The record browser against real MP4 files on a sysroot's USB disk: the
// five entries per file, what is not listed, hostile names, the space
// probe's codes, renaming, the threaded listing and the simulator's files.
#include "Logger.h"
#include "Mp4File.h"
#include "SimDevice.h"
#include "LogTap.h"
#include "TestSysroot.h"
#include "UiproRecord_Desktop.h"

#include <QtTest>

#include <sys/statfs.h>
#include <unistd.h>

namespace {
const QString kDisk = QStringLiteral("/media/usb0");
// A shell would run or split these; the listing must not.
const QByteArray kQuoteName = "it's $(touch pwned) `touch pwned2`.mp4";
const QByteArray kNewlineName = "two\nlines.mp4";
const QByteArray kLatin1Name = "caf\xe9-\xff.mp4"; // not UTF-8
const QByteArray kLongName = QByteArray(240, 'L') + ".mp4";

void plugDisk(const TestSysroot &sr)
{
    QDir().mkpath(sr.path("/sys/bus/usb/devices/1-1"));
    QDir().mkpath(sr.path(kDisk));
}

void writeMp4(const QString &file, int w, int h, int frames, qint64 lengthMs, const char *format = "mp4", bool audio = false)
{
    Sim::Mp4Params params{w, h, frames, lengthMs, audio, format};
    QString why;
    QVERIFY2(Sim::writeMp4(file, params, &why), qPrintable(file + ": " + why));
}

// The five entries whose base name is `name`, or none.
QStringList groupOf(const QStringList &list, const QString &name)
{
    for (int i = 0; i + 4 < list.size(); i += 5)
        if (list.at(i + 1) == name)
            return list.mid(i, 5);
    return {};
}

QString baseOf(const QByteArray &name) { return QFile::decodeName(name.chopped(4)); }
} // namespace

class TstRecord : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void entries_data();
    void entries();
    void listingOrderAndSkips();
    void fileTime_data();
    void fileTime();
    void probe_data();
    void probe();
    void largerDiskWins();
    void realFileSystems();
    void rename_data();
    void rename();
    void threadedListing();
    void simulatorRecordingIsListed();

private:
    TestSysroot *m_sr = nullptr;
    QStringList m_list, m_log;
};

void TstRecord::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("cs.hardware.debug=false"));
    m_sr = new TestSysroot;
    QVERIFY(m_sr->isValid());
    Logger::instance().setSwitch(1);
    plugDisk(*m_sr);
    const QString d = m_sr->path(kDisk) + QLatin1Char('/');
    writeMp4(d + "a_small.mp4", 320, 180, 10, 1000);
    writeMp4(d + "b_hd.mp4", 1280, 720, 3, 2999);     // 2.999 s truncates to 2
    writeMp4(d + "c_long.mp4", 176, 144, 4, 3723000); // four frames over 1 h 2 min 3 s
    writeMp4(d + "d_audio.mp4", 0, 0, 1, 3000, "mp4", true);
    writeMp4(d + "e_nolength.mp4", 160, 120, 5, 5000, "m4v");
    writeMp4(d + "f.show.final.mp4", 64, 48, 2, 1000);
    writeMp4(d + "G_UPPER.MP4", 96, 64, 2, 4000);
    QVERIFY(TestSysroot::writeFile(d + "h_corrupt.mp4", QByteArray("\0\0\0\x18" "ftypmp42", 12) + QByteArray(3000, '\x7f')));
    writeMp4(d + "i_truncated.mp4", 320, 180, 10, 1000);
    QFile trunc(d + "i_truncated.mp4");
    QVERIFY(trunc.resize(trunc.size() / 2)); // the index at the end is gone, as after a power cut
    for (const char *skipped : {".hidden.mp4", "notes.txt", "sub/inner.mp4"}) {
        QDir().mkpath(d + "sub");
        writeMp4(d + skipped, 64, 48, 2, 1000);
    }
    QDir().mkpath(d + "folder.mp4");
    for (const QByteArray &name : {kQuoteName, kNewlineName, kLongName})
        writeMp4(d + QFile::decodeName(name), 128, 72, 2, 7000);
    writeMp4(d + "latin1.tmp", 128, 72, 2, 7000); // a name that is not UTF-8 is given by its bytes
    QCOMPARE(::rename(QFile::encodeName(d + "latin1.tmp").constData(), (QFile::encodeName(d) + kLatin1Name).constData()), 0);

    CategoryCapture log;
    UiproRecord_Desktop record;
    QSignalSpy spy(&record, &UiproRecord_Desktop::updateFileRecord);
    m_list = record.get_usb_record_files();
    m_log = log.lines();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toStringList(), m_list);
}

void TstRecord::cleanupTestCase()
{
    ::unlink((QFile::encodeName(m_sr->path(kDisk)) + '/' + kLatin1Name).constData()); // QTemporaryDir cannot name it
    delete m_sr;
}

void TstRecord::entries_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("length");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("path");
    QTest::newRow("small") << "a_small" << "00:00:01" << "320*180" << "/media/usb0/a_small.mp4";
    QTest::newRow("length truncated") << "b_hd" << "00:00:02" << "1280*720" << "/media/usb0/b_hd.mp4";
    QTest::newRow("over an hour") << "c_long" << "01:02:03" << "176*144" << "/media/usb0/c_long.mp4";
    QTest::newRow("audio only") << "d_audio" << "00:00:03" << "0*0" << "/media/usb0/d_audio.mp4";
    QTest::newRow("no known length") << "e_nolength" << "00:00:00" << "160*120" << "/media/usb0/e_nolength.mp4";
    QTest::newRow("dots in the name") << "f.show.final" << "00:00:01" << "64*48" << "/media/usb0/f.show.final.mp4";
    QTest::newRow("upper-case suffix") << "G_UPPER" << "00:00:04" << "96*64" << "/media/usb0/G_UPPER.MP4";
    const QList<QPair<const char *, QByteArray>> hostile = {
        {"shell text", kQuoteName}, {"newline", kNewlineName}, {"not UTF-8", kLatin1Name}, {"240 bytes", kLongName}};
    for (const auto &h : hostile) // opened by their real bytes
        QTest::newRow(h.first) << baseOf(h.second) << "00:00:07" << "128*72" << kDisk + '/' + QFile::decodeName(h.second);
}

void TstRecord::entries()
{
    QFETCH(QString, name);
    QFETCH(QString, length);
    QFETCH(QString, size);
    QFETCH(QString, path);
    const QStringList group = groupOf(m_list, name);
    QCOMPARE(group.size(), 5);
    const QDateTime created = QDateTime::fromString(group.at(0), QStringLiteral("yyyy/MM/dd hh:mm:ss"));
    QVERIFY2(created.isValid() && qAbs(created.secsTo(QDateTime::currentDateTime())) < 300, qPrintable(group.at(0)));
    QCOMPARE(group.mid(2), QStringList({length, size, path}));
}

void TstRecord::listingOrderAndSkips()
{
    QStringList names;
    for (int i = 1; i < m_list.size(); i += 5)
        names << m_list.at(i);
    // By the file system's bytes; corrupt, truncated, hidden, non-MP4, folder
    // and sub-folder entries are left out.
    QStringList expected = {"G_UPPER", "a_small", "b_hd", "c_long", "d_audio", "e_nolength", "f.show.final"};
    for (const QByteArray &name : {kQuoteName, kNewlineName, kLatin1Name, kLongName})
        expected << baseOf(name);
    std::sort(expected.begin(), expected.end(), [](const QString &a, const QString &b) { return QFile::encodeName(a) < QFile::encodeName(b); });
    QCOMPARE(m_list.size(), names.size() * 5);
    QCOMPARE(names, expected);
    // Unreadable files are logged, at most once a second.
    QCOMPARE(m_log.count(QStringLiteral("open record file failed")), 1);
    for (const char *made : {"/pwned", "/pwned2"})
        QVERIFY(!QFile::exists(m_sr->path(made)));
}

void TstRecord::fileTime_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("seconds");
    QTest::newRow("over an hour") << "/media/usb0/c_long.mp4" << 3723;
    QTest::newRow("no known length") << "/media/usb0/e_nolength.mp4" << 0;
    QTest::newRow("corrupt") << "/media/usb0/h_corrupt.mp4" << 0;
    QTest::newRow("missing") << "/media/usb0/none.mp4" << 0;
}

void TstRecord::fileTime()
{
    QFETCH(QString, path);
    QFETCH(int, seconds);
    UiproRecord_Desktop record;
    QCOMPARE(record.get_cur_record_file_time(path), seconds);
    QCOMPARE(record.get_cur_record_file_time(m_sr->path(path)), seconds); // the resolved path too
}

void TstRecord::probe_data()
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<bool>("mounted");
    QTest::addColumn<bool>("queryOk");
    QTest::addColumn<quint64>("blocks");
    QTest::addColumn<quint64>("blockSize");
    QTest::addColumn<double>("result");
    QTest::newRow("exactly 512 MiB free") << true << true << true << quint64(131072) << quint64(4096) << 0.0;
    QTest::newRow("one byte less") << true << true << true << quint64(536870911) << quint64(1) << -3.0;
    QTest::newRow("1 GiB free") << true << true << true << quint64(262144) << quint64(4096) << 524288.0;
    QTest::newRow("part of a KiB dropped") << true << true << true << quint64(536872959) << quint64(1) << 1.0;
    QTest::newRow("no overflow") << true << true << true << quint64(1) << ~quint64(0) << double(~quint64(0) / 1024) - 524288.0;
    QTest::newRow("cannot query") << true << true << false << quint64(0) << quint64(0) << -2.0;
    QTest::newRow("nothing mounted") << true << false << true << quint64(262144) << quint64(4096) << -1.0;
    QTest::newRow("nothing in the port") << false << true << true << quint64(262144) << quint64(4096) << -1.0;
}

void TstRecord::probe()
{
    QFETCH(bool, present);
    QFETCH(bool, mounted);
    QFETCH(bool, queryOk);
    QFETCH(quint64, blocks);
    QFETCH(quint64, blockSize);
    QFETCH(double, result);
    TestSysroot sr;
    QDir().mkpath(sr.path(present ? "/sys/bus/usb/devices/1-1" : "/sys/bus/usb/devices/2-1"));
    QDir().mkpath(sr.path(mounted ? "/media/usb0" : "/media/sda1")); // not under /media/usb: not the disk
    writeMp4(sr.path(mounted ? "/media/usb0/x.mp4" : "/media/sda1/x.mp4"), 64, 48, 2, 1000);
    UiproRecord_Desktop record;
    QString asked;
    record.setFileSystemQuery([&](const QString &path, UiproRecord_Desktop::FreeSpace *out) {
        asked = path;
        *out = {blocks, blockSize};
        return queryOk;
    });
    QCOMPARE(record.check_is_usb_disk_ok_for_record(), result);
    QCOMPARE(asked, present && mounted ? sr.path(kDisk) : QString()); // the mount the df pipeline found
    QCOMPARE(record.get_usb_record_files().isEmpty(), result == -1.0);
}

void TstRecord::largerDiskWins()
{
    // Two disks on different real file systems: the sysroot's and /dev/shm's.
    TestSysroot sr;
    plugDisk(sr);
    QVERIFY(QFile::link(QStringLiteral("/dev/shm"), sr.path("/media/usb1")));
    struct statfs a, b;
    if (::statfs(QFile::encodeName(sr.path(kDisk)).constData(), &a) != 0 || ::statfs("/dev/shm", &b) != 0
        || quint64(a.f_bavail) * a.f_bsize / (1 << 20) == quint64(b.f_bavail) * b.f_bsize / (1 << 20))
        QSKIP("no /dev/shm of a different size");
    UiproRecord_Desktop record;
    record.check_is_usb_disk_ok_for_record();
    const bool first = quint64(a.f_bavail) * a.f_bsize > quint64(b.f_bavail) * b.f_bsize;
    QCOMPARE(record.mountPath(), sr.path(first ? "/media/usb0" : "/media/usb1"));
}

void TstRecord::realFileSystems()
{
    const char mark[] = "CS_RECORD_NS_CHILD";
    if (qEnvironmentVariableIsEmpty(mark)) { // run again in a private mount namespace
        QProcess child;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(mark, "1");
        child.setProcessEnvironment(env);
        child.start(QStringLiteral("unshare"), {"-rm", "--", QCoreApplication::applicationFilePath(), "realFileSystems"});
        QVERIFY(child.waitForFinished(60000));
        const QByteArray out = child.readAllStandardOutput() + child.readAllStandardError();
        if (out.contains("unshare:") || out.contains("SKIP   : TstRecord::realFileSystems"))
            QSKIP("no private mount namespace here");
        // A cross-built test under user-mode emulation cannot start itself.
        if (!out.contains("Start testing of TstRecord"))
            QSKIP("this program cannot be started as a child here");
        QVERIFY2(child.exitCode() == 0, out.constData());
        return;
    }
    TestSysroot sr;
    plugDisk(sr);
    auto mount = [&](const QString &dir, const QString &size) {
        QDir().mkpath(sr.path(dir));
        return QProcess::execute(QStringLiteral("mount"), {"-t", "tmpfs", "-o", "size=" + size, "tmpfs", sr.path(dir)}) == 0;
    };
    auto umount = [&](const QString &dir) { QProcess::execute(QStringLiteral("umount"), {sr.path(dir)}); };
    if (!mount(kDisk, "524288k"))
        QSKIP("cannot mount a tmpfs");
    UiproRecord_Desktop record;
    QCOMPARE(record.check_is_usb_disk_ok_for_record(), 0.0); // exactly 512 MiB free
    umount(kDisk);
    QVERIFY(mount(kDisk, "524284k"));
    QCOMPARE(record.check_is_usb_disk_ok_for_record(), -3.0); // one block less
    umount(kDisk);
    QVERIFY(mount(kDisk, "700m") && mount("/media/usb1", "600m"));
    QCOMPARE(record.check_is_usb_disk_ok_for_record(), 700.0 * 1024 - 524288);
    QCOMPARE(record.mountPath(), sr.path(kDisk));
    umount(kDisk);
    umount("/media/usb1");
}

void TstRecord::rename_data()
{
    QTest::addColumn<QString>("oldPath");
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QString>("result");
    QTest::newRow("keeps the extension") << "/media/usb0/one.mp4" << "renamed" << "/media/usb0/renamed.mp4";
    QTest::newRow("shell text is a name") << "/media/usb0/one.mp4" << "it's $(touch x)" << "/media/usb0/it's $(touch x).mp4";
    QTest::newRow("existing name") << "/media/usb0/one.mp4" << "two" << "";
    QTest::newRow("dangling link's name") << "/media/usb0/one.mp4" << "link" << "";
    QTest::newRow("into another folder") << "/media/usb0/one.mp4" << "../../etc/one" << "";
    QTest::newRow("empty name") << "/media/usb0/one.mp4" << "" << "";
    QTest::newRow("no old path") << "" << "renamed" << "";
    QTest::newRow("missing file") << "/media/usb0/none.mp4" << "renamed" << "";
}

void TstRecord::rename()
{
    QFETCH(QString, oldPath);
    QFETCH(QString, newName);
    QFETCH(QString, result);
    TestSysroot sr;
    plugDisk(sr);
    QVERIFY(TestSysroot::writeFile(sr.path("/media/usb0/one.mp4"), "first"));
    QVERIFY(TestSysroot::writeFile(sr.path("/media/usb0/two.mp4"), "second"));
    QVERIFY(QFile::link(sr.path("/media/usb0/gone"), sr.path("/media/usb0/link.mp4")));
    UiproRecord_Desktop record;
    QCOMPARE(record.rename_record_file(oldPath, newName), result);
    QCOMPARE(TestSysroot::readFile(sr.path(result.isEmpty() ? "/media/usb0/one.mp4" : result)), QByteArray("first"));
    QCOMPARE(QFile::exists(sr.path("/media/usb0/one.mp4")), result.isEmpty());
    QCOMPARE(TestSysroot::readFile(sr.path("/media/usb0/two.mp4")), QByteArray("second"));
    QCOMPARE(QDir(sr.path(kDisk)).entryList(QDir::Files | QDir::System).size(), 3);
}

void TstRecord::threadedListing()
{
    auto *record = new UiproRecord_Desktop;
    QThread *receivedOn = nullptr;
    QList<QStringList> lists;
    connect(record, &UiproRecord_Desktop::updateFileRecord, this, [&](const QStringList &files) {
        receivedOn = QThread::currentThread();
        lists << files;
    }, Qt::DirectConnection);
    // Requests while one listing runs share one more; none is lost.
    for (int i = 0; i < 5; ++i)
        record->connect_get_usb_record_files();
    QTRY_VERIFY(!lists.isEmpty());
    QVERIFY(UiproRecord_Desktop::waitForListings(30000));
    QCoreApplication::processEvents();
    QVERIFY(lists.size() <= 2);
    QCOMPARE(receivedOn, QThread::currentThread());
    QCOMPARE(lists.last(), m_list);
    // The window closes while listings run: nothing reaches the freed object.
    for (int i = 0; i < 20; ++i) {
        record->connect_get_usb_record_files();
        delete record;
        record = new UiproRecord_Desktop;
    }
    delete record;
    QVERIFY(UiproRecord_Desktop::waitForListings(60000));
    QCoreApplication::processEvents();
}

void TstRecord::simulatorRecordingIsListed()
{
    TestSysroot sr;
    plugDisk(sr);
    Sim::Device device;
    QString recorded;
    device.setRecordingSink([&](const QString &path, qint64) { recorded = path; });
    auto command = [&](uchar cmd, uchar dat1, uchar dat2, const QByteArray &block = {}) {
        model_Protocoldata c;
        c.CMD = cmd, c.DAT1 = dat1, c.DAT2 = dat2, c.DAT3 = uchar(block.size()), c.arryDatablock = block;
        device.handle(c);
    };
    command(0xF0, 0xBC, 0, "show1");
    command(0xC2, 1, 1);
    command(0xC2, 1, 2);
    QCOMPARE(recorded, QStringLiteral("/media/usb0/show1.mp4"));
    const Sim::Mp4Params params = Sim::recordingParams(75400); // 75 s: 60 frames spread over it
    QCOMPARE(params.frames, 60);
    QVERIFY(Sim::writeMp4(sr.path(recorded), params));
    UiproRecord_Desktop record;
    QCOMPARE(groupOf(record.get_usb_record_files(), "show1").mid(2), QStringList({"00:01:15", "320*180", "/media/usb0/show1.mp4"}));
}

QTEST_GUILESS_MAIN(TstRecord)
#include "tst_record.moc"
