// The record browser against real MP4 files on a sysroot's USB disk: the
// five entries per file, files that must not be listed, hostile names, the
// space probe's codes, renaming, and the threaded listing.
#include "Logger.h"
#include "Mp4File.h"
#include "SimDevice.h"
#include "TestSysroot.h"
#include "UiproRecord_Desktop.h"

#include <QtTest>

#include <sys/statfs.h>
#include <unistd.h>

namespace {
const char kChildMark[] = "CS_RECORD_NS_CHILD";
const QString kDisk = QStringLiteral("/media/usb0");

// Hostile names: a shell would run or split them; the listing must not.
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
    Sim::Mp4Spec spec;
    spec.width = w;
    spec.height = h;
    spec.frames = frames;
    spec.lengthMs = lengthMs;
    spec.format = format;
    spec.audioOnly = audio;
    QString why;
    QVERIFY2(Sim::writeMp4(file, spec, &why), qPrintable(file + ": " + why));
}

// The group of five entries whose base name is `name`, or none.
QStringList groupOf(const QStringList &list, const QString &name)
{
    for (int i = 0; i + 4 < list.size(); i += 5) {
        if (list.at(i + 1) == name)
            return list.mid(i, 5);
    }
    return {};
}

QString deviceFile(const QByteArray &name) { return kDisk + QLatin1Char('/') + QFile::decodeName(name); }
} // namespace

class TstRecord : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void entries_data();
    void entries();
    void listingOrderAndSkips();
    void hostileNamesStayNames();
    void noDiskNoList();
    void fileTime_data();
    void fileTime();
    void probe_data();
    void probe();
    void largerDiskWins();
    void realFileSystems();
    void rename_data();
    void rename();
    void threadedListing();
    void listingOutlivesObject();
    void simulatorRecordingIsListed();
    void cleanupTestCase();

private:
    TestSysroot *m_sr = nullptr;
    QStringList m_list;
    QStringList m_log;
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
    writeMp4(d + "b_hd.mp4", 1280, 720, 3, 2999);          // 2.999 s truncates to 2
    writeMp4(d + "c_long.mp4", 176, 144, 4, 3723000);      // four frames over 1 h 2 min 3 s
    writeMp4(d + "d_audio.mp4", 0, 0, 1, 3000, "mp4", true);
    writeMp4(d + "e_nolength.mp4", 160, 120, 5, 5000, "m4v");
    writeMp4(d + "f.show.final.mp4", 64, 48, 2, 1000);
    writeMp4(d + "G_UPPER.MP4", 96, 64, 2, 4000);
    QVERIFY(TestSysroot::writeFile(d + "h_corrupt.mp4", QByteArray("\0\0\0\x18" "ftypmp42", 12) + QByteArray(3000, '\x7f')));
    writeMp4(d + "i_truncated.mp4", 320, 180, 10, 1000);
    QFile trunc(d + "i_truncated.mp4");
    QVERIFY(trunc.resize(trunc.size() / 2)); // the index at the end is gone, as after a power cut
    writeMp4(d + ".hidden.mp4", 64, 48, 2, 1000);
    writeMp4(d + "notes.txt", 64, 48, 2, 1000);
    QDir().mkpath(d + "sub");
    writeMp4(d + "sub/inner.mp4", 64, 48, 2, 1000);
    QDir().mkpath(d + "folder.mp4");
    for (const QByteArray &name : {kQuoteName, kNewlineName, kLongName})
        writeMp4(d + QFile::decodeName(name), 128, 72, 2, 7000);
    // A name that is not UTF-8 can only be given by its bytes.
    writeMp4(d + "latin1.tmp", 128, 72, 2, 7000);
    QVERIFY(::rename(QFile::encodeName(d + "latin1.tmp").constData(), (QFile::encodeName(d) + kLatin1Name).constData()) == 0);

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
    // QTemporaryDir cannot name a file whose name is not UTF-8.
    ::unlink((QFile::encodeName(m_sr->path(kDisk)) + '/' + kLatin1Name).constData());
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
    QVERIFY2(created.isValid(), qPrintable(group.at(0)));
    QVERIFY(qAbs(created.secsTo(QDateTime::currentDateTime())) < 300);
    QCOMPARE(group.at(2), length);
    QCOMPARE(group.at(3), size);
    QCOMPARE(group.at(4), path);
}

void TstRecord::listingOrderAndSkips()
{
    QStringList names;
    for (int i = 1; i < m_list.size(); i += 5)
        names << m_list.at(i);
    // By name as the file system's bytes sort; corrupt, hidden, non-MP4,
    // folder and sub-folder entries are left out.
    QStringList expected = {"G_UPPER", "a_small", "b_hd", "c_long", "d_audio", "e_nolength", "f.show.final"};
    for (const QByteArray &name : {kQuoteName, kNewlineName, kLatin1Name, kLongName})
        expected << QFile::decodeName(name.chopped(4));
    std::sort(expected.begin(), expected.end(), [](const QString &a, const QString &b) {
        return QFile::encodeName(a) < QFile::encodeName(b);
    });
    QCOMPARE(m_list.size() % 5, 0);
    QCOMPARE(names, expected);
    // Each unreadable file says so once in the log; the run's log is not flooded.
    QVERIFY(m_log.contains(QStringLiteral("open record file failed")));
    QVERIFY(m_log.count(QStringLiteral("open record file failed")) <= 2);
}

void TstRecord::hostileNamesStayNames()
{
    for (const QByteArray &name : {kQuoteName, kNewlineName, kLatin1Name, kLongName}) {
        const QStringList group = groupOf(m_list, QFile::decodeName(name.chopped(4)));
        QVERIFY2(group.size() == 5, name.constData());
        QCOMPARE(group.at(2), QStringLiteral("00:00:07")); // opened by its real bytes
        QCOMPARE(group.at(3), QStringLiteral("128*72"));
        QCOMPARE(group.at(4), deviceFile(name));
    }
    QVERIFY(!QFile::exists(m_sr->path("/pwned")));
    QVERIFY(!QFile::exists(m_sr->path("/pwned2")));
    QVERIFY(!QFile::exists(QDir::current().filePath("pwned")));
}

void TstRecord::noDiskNoList()
{
    TestSysroot sr;
    QDir().mkpath(sr.path(kDisk));
    writeMp4(sr.path(kDisk) + "/x.mp4", 64, 48, 2, 1000);
    UiproRecord_Desktop record;
    QSignalSpy spy(&record, &UiproRecord_Desktop::updateFileRecord);
    QCOMPARE(record.get_usb_record_files(false), QStringList()); // nothing in port 1-1
    QCOMPARE(spy.count(), 1);
    QDir().mkpath(sr.path("/sys/bus/usb/devices/1-1"));
    QDir(sr.path("/media")).rename("usb0", "sda"); // present but not mounted under /media/usb
    QCOMPARE(record.get_usb_record_files(), QStringList());
}

void TstRecord::fileTime_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("seconds");
    QTest::newRow("device path") << "/media/usb0/c_long.mp4" << 3723;
    QTest::newRow("no known length") << "/media/usb0/e_nolength.mp4" << 0;
    QTest::newRow("corrupt") << "/media/usb0/h_corrupt.mp4" << 0;
    QTest::newRow("missing") << "/media/usb0/none.mp4" << 0;
    QTest::newRow("empty") << "" << 0;
}

void TstRecord::fileTime()
{
    QFETCH(QString, path);
    QFETCH(int, seconds);
    UiproRecord_Desktop record;
    QCOMPARE(record.get_cur_record_file_time(path), seconds);
    if (!path.isEmpty()) // the path a sysroot resolves is taken too
        QCOMPARE(record.get_cur_record_file_time(m_sr->path(path)), seconds);
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
    QTest::newRow("one block less") << true << true << true << quint64(131071) << quint64(4096) << -3.0;
    QTest::newRow("1 GiB free") << true << true << true << quint64(262144) << quint64(4096) << 524288.0;
    QTest::newRow("partial KiB cut") << true << true << true << quint64(536872959) << quint64(1) << 1.0;
    QTest::newRow("huge disk") << true << true << true << quint64(1) << ~quint64(0) << double(~quint64(0) / 1024) - 524288.0;
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
    if (present)
        QDir().mkpath(sr.path("/sys/bus/usb/devices/1-1"));
    if (mounted)
        QDir().mkpath(sr.path(kDisk));
    UiproRecord_Desktop record;
    QString asked;
    record.setFileSystemQuery([&](const QString &path, UiproRecord_Desktop::FreeSpace *out) {
        asked = path;
        out->freeBlocks = blocks;
        out->blockSize = blockSize;
        return queryOk;
    });
    QCOMPARE(record.check_is_usb_disk_ok_for_record(), result);
    if (present && mounted)
        QCOMPARE(asked, sr.path(kDisk)); // the mount the df pipeline found
    else
        QVERIFY(asked.isEmpty());
}

void TstRecord::largerDiskWins()
{
    // Two disks on different real file systems: the sysroot's folder and
    // /dev/shm behind a link; df's available blocks decide.
    TestSysroot sr;
    plugDisk(sr);
    QVERIFY(QFile::link(QStringLiteral("/dev/shm"), sr.path("/media/usb1")));
    struct statfs a, b;
    if (::statfs(QFile::encodeName(sr.path(kDisk)).constData(), &a) != 0 || ::statfs("/dev/shm", &b) != 0)
        QSKIP("no /dev/shm");
    const quint64 availA = quint64(a.f_bavail) * quint64(a.f_bsize) / 1024, availB = quint64(b.f_bavail) * quint64(b.f_bsize) / 1024;
    if (availA / 1024 == availB / 1024)
        QSKIP("both file systems have the same room");
    UiproRecord_Desktop record;
    record.check_is_usb_disk_ok_for_record();
    QCOMPARE(record.mountPath(), sr.path(availA > availB ? QStringLiteral("/media/usb0") : QStringLiteral("/media/usb1")));
}

void TstRecord::realFileSystems()
{
    if (qEnvironmentVariableIsEmpty(kChildMark)) {
        QProcess child;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(kChildMark, "1");
        child.setProcessEnvironment(env);
        child.start(QStringLiteral("unshare"), {"-rm", "--", QCoreApplication::applicationFilePath(), "realFileSystems"});
        if (!child.waitForFinished(60000))
            QFAIL("the namespace run did not finish");
        const QByteArray out = child.readAllStandardOutput() + child.readAllStandardError();
        if (child.exitStatus() != QProcess::NormalExit || out.contains("unshare:") || out.contains("SKIP   : TstRecord::realFileSystems"))
            QSKIP("no private mount namespace here");
        QVERIFY2(child.exitCode() == 0, out.constData());
        return;
    }
    // In the namespace: tmpfs disks of exact sizes.
    TestSysroot sr;
    plugDisk(sr);
    auto mount = [&](const QString &dir, const QString &size) {
        return QProcess::execute(QStringLiteral("mount"), {"-t", "tmpfs", "-o", "size=" + size, "tmpfs", sr.path(dir)}) == 0;
    };
    auto umount = [&](const QString &dir) { QProcess::execute(QStringLiteral("umount"), {sr.path(dir)}); };
    if (!mount(kDisk, "524288k"))
        QSKIP("cannot mount a tmpfs");
    UiproRecord_Desktop record;
    QCOMPARE(record.check_is_usb_disk_ok_for_record(), 0.0);
    umount(kDisk);
    QVERIFY(mount(kDisk, "524284k"));
    QCOMPARE(record.check_is_usb_disk_ok_for_record(), -3.0);
    umount(kDisk);
    QVERIFY(mount(kDisk, "700m"));
    QDir().mkpath(sr.path("/media/usb1"));
    QVERIFY(mount("/media/usb1", "600m"));
    QCOMPARE(record.check_is_usb_disk_ok_for_record(), 700.0 * 1024 - 524288);
    QCOMPARE(record.mountPath(), sr.path(kDisk));
    umount(kDisk);
    umount("/media/usb1");
}

void TstRecord::rename_data()
{
    QTest::addColumn<QString>("oldName");
    QTest::addColumn<QString>("newName");
    QTest::addColumn<QString>("result");
    QTest::newRow("keeps the extension") << "one.mp4" << "renamed" << "/media/usb0/renamed.mp4";
    QTest::newRow("shell text is a name") << "one.mp4" << "it's $(touch x)" << "/media/usb0/it's $(touch x).mp4";
    QTest::newRow("existing name") << "one.mp4" << "two" << "";
    QTest::newRow("dangling link name") << "one.mp4" << "link" << "";
    QTest::newRow("into another folder") << "one.mp4" << "../../etc/one" << "";
    QTest::newRow("empty name") << "one.mp4" << "" << "";
    QTest::newRow("no old path") << "" << "renamed" << "";
    QTest::newRow("missing file") << "none.mp4" << "renamed" << "";
}

void TstRecord::rename()
{
    QFETCH(QString, oldName);
    QFETCH(QString, newName);
    QFETCH(QString, result);
    TestSysroot sr;
    plugDisk(sr);
    QVERIFY(TestSysroot::writeFile(sr.path("/media/usb0/one.mp4"), "first"));
    QVERIFY(TestSysroot::writeFile(sr.path("/media/usb0/two.mp4"), "second"));
    QVERIFY(QFile::link(sr.path("/media/usb0/gone"), sr.path("/media/usb0/link.mp4")));
    UiproRecord_Desktop record;
    const QString oldPath = oldName.isEmpty() ? QString() : kDisk + QLatin1Char('/') + oldName;
    QCOMPARE(record.rename_record_file(oldPath, newName), result);
    if (!result.isEmpty()) {
        QCOMPARE(TestSysroot::readFile(sr.path(result)), QByteArray("first"));
        QVERIFY(!QFile::exists(sr.path("/media/usb0/one.mp4")));
    } else if (oldName == QLatin1String("one.mp4")) {
        QCOMPARE(TestSysroot::readFile(sr.path("/media/usb0/one.mp4")), QByteArray("first"));
    }
    QCOMPARE(TestSysroot::readFile(sr.path("/media/usb0/two.mp4")), QByteArray("second"));
    QVERIFY(!QFile::exists(sr.path("/etc/one.mp4")));
    QVERIFY(!QFile::exists(sr.path("/media/usb0/x")));
}

void TstRecord::threadedListing()
{
    UiproRecord_Desktop record;
    QThread *receivedOn = nullptr;
    QList<QStringList> lists;
    connect(&record, &UiproRecord_Desktop::updateFileRecord, &record, [&](const QStringList &files) {
        receivedOn = QThread::currentThread();
        lists << files;
    }, Qt::DirectConnection);
    // Requests while one listing runs share one more; none is lost.
    for (int i = 0; i < 5; ++i)
        record.connect_get_usb_record_files();
    QTRY_VERIFY(!lists.isEmpty());
    QVERIFY(QThreadPool::globalInstance()->waitForDone(30000));
    QCoreApplication::processEvents();
    QVERIFY(lists.size() <= 2);
    QCOMPARE(receivedOn, QThread::currentThread());
    QCOMPARE(lists.last(), m_list);
}

void TstRecord::listingOutlivesObject()
{
    // The window closes while a listing runs: nothing reaches the freed object.
    for (int i = 0; i < 20; ++i) {
        auto *record = new UiproRecord_Desktop;
        record->connect_get_usb_record_files();
        delete record;
    }
    QVERIFY(QThreadPool::globalInstance()->waitForDone(60000));
    QCoreApplication::processEvents();
}

void TstRecord::simulatorRecordingIsListed()
{
    TestSysroot sr;
    plugDisk(sr);
    Sim::Device device;
    QString recorded;
    device.setRecordingSink([&](const QString &path, qint64) { recorded = path; });
    model_Protocoldata name;
    name.CMD = 0xF0;
    name.DAT1 = 0xBC;
    name.arryDatablock = "show1";
    name.DAT3 = 5;
    device.handle(name);
    model_Protocoldata rec;
    rec.CMD = 0xC2;
    rec.DAT1 = 1;
    rec.DAT2 = 1;
    device.handle(rec);
    rec.DAT2 = 2;
    device.handle(rec);
    QCOMPARE(recorded, QStringLiteral("/media/usb0/show1.mp4"));
    // 75 s recorded: 60 frames spread over the whole time.
    const Sim::Mp4Spec spec = Sim::recordingSpec(75400);
    QCOMPARE(spec.frames, 60);
    QVERIFY(Sim::writeMp4(sr.path(recorded), spec));
    UiproRecord_Desktop record;
    const QStringList group = groupOf(record.get_usb_record_files(), "show1");
    QCOMPARE(group.size(), 5);
    QCOMPARE(group.mid(2), QStringList({"00:01:15", "320*180", "/media/usb0/show1.mp4"}));
}

QTEST_GUILESS_MAIN(TstRecord)
#include "tst_record.moc"
