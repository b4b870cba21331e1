// The event store, URL import and platform recognition, on real files in a
// private sysroot: what lands in CS_event.ini, what the screens are sent.
#include "Logger.h"
#include "Startup.h"
#include "LogTap.h"
#include "TestSysroot.h"
#include "UiproRtmp_Desktop.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

#include <unistd.h>

// The current row's value of one column, inside an expression.
#define ROW(Type, name) (*static_cast<Type *>(QTest::qData(#name, ::qMetaTypeId<Type>())))

namespace {

QStringList filled(int n, const QString &text) { return QVector<QString>(n, text).toList(); }

QSet<QString> asSet(const QStringList &list) { return QSet<QString>(list.begin(), list.end()); }

// The event file as another reader sees it: group -> key -> text.
QMap<QString, QString> group(const QString &name)
{
    QSettings s(UiproRtmp_Desktop::eventFilePath(), QSettings::IniFormat);
    s.setIniCodec("utf-8");
    s.beginGroup(name);
    QMap<QString, QString> out;
    for (const QString &k : s.allKeys())
        out.insert(k, s.value(k).toString());
    return out;
}

QStringList spyColumn(const QSignalSpy &spy, int column)
{
    QStringList out;
    for (const QList<QVariant> &args : spy)
        out << args.at(column).toString();
    return out;
}

QStringList urls(int n)
{
    QStringList out;
    for (int i = 0; i < n; ++i)
        out << QStringLiteral("rtmp://h/u%1").arg(i);
    return out;
}

// Standard output of one call, for the C-style reader.
template<typename F>
QByteArray captureStdout(F call)
{
    fflush(stdout);
    QTemporaryFile tmp;
    tmp.open();
    const int saved = dup(1);
    dup2(tmp.handle(), 1);
    call();
    fflush(stdout);
    dup2(saved, 1);
    close(saved);
    tmp.seek(0);
    return tmp.readAll();
}

} // namespace

class TestStreaming : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Logger::instance().setSwitch(1); }
    void init()
    {
        m_root.reset(); // the previous sysroot gives CS_SYSROOT back first
        m_root.reset(new TestSysroot);
        QVERIFY(m_root->isValid());
    }

    void availableUrls_data()
    {
        QTest::addColumn<QStringList>("flags");
        QTest::addColumn<QString>("available");
        QTest::addColumn<int>("num");
        QTest::newRow("on off on") << QStringList{"true", "false", "true"} << "rtmp://h/u0,rtmp://h/u2" << 2;
        QTest::newRow("none on") << QStringList{"false", "0", ""} << "" << 0;
        QTest::newRow("any other text is on") << QStringList{"yes", "1", "false"} << "rtmp://h/u0,rtmp://h/u1" << 2;
    }

    void availableUrls()
    {
        QFETCH(QStringList, flags);
        UiproRtmp_Desktop rtmp;
        rtmp.savePaltformUrlsByEventName("Current", urls(flags.size()), flags);
        QCOMPARE(rtmp.getAvailablePaltformUrlsByName("Current"), ROW(QString, available));
        QCOMPARE(rtmp.getAvailablePaltformNumByName("Current"), ROW(int, num));
        QCOMPARE(group("Current").value("PlatformNum"), QString::number(flags.size()));
    }

    void walkOrderPairsByLastCharacter()
    {
        UiproRtmp_Desktop rtmp;
        QStringList flags = filled(11, "false");
        flags[0] = "true"; // streamStatus_10 stays "false"
        rtmp.savePaltformUrlsByEventName("E", urls(11), flags);
        QSignalSpy spy(&rtmp, &UiproRtmp_Desktop::sigAddPlatformItem);
        rtmp.getPaltformUrlsByName("E", true);
        QCOMPARE(spyColumn(spy, 1), (QStringList{"rtmp://h/u0", "rtmp://h/u1", "rtmp://h/u10", "rtmp://h/u2", "rtmp://h/u3", "rtmp://h/u4",
                                                 "rtmp://h/u5", "rtmp://h/u6", "rtmp://h/u7", "rtmp://h/u8", "rtmp://h/u9"}));
        // u10 follows streamStatus_0.
        QCOMPARE(spyColumn(spy, 2).join(','), QString("true,false,true,false,false,false,false,false,false,false,false"));
        QCOMPARE(asSet(spyColumn(spy, 3)), QSet<QString>{"true"});
        spy.clear();
        rtmp.getPaltformUrlsByName("unknown");
        QCOMPARE(spy.count(), 0);
    }

    void removals_data()
    {
        QTest::addColumn<QString>("ops"); // "p<n>" by position, "u<url>" by URL, each expecting "=0/1"
        QTest::addColumn<QStringList>("keysLeft");
        QTest::addColumn<QString>("num");
        QTest::newRow("position leaves a gap, then fails") << "p1=1 p2=0" << QStringList{"streamUrl_0", "streamUrl_2"} << "2";
        // The count, not the keys, decides: a third removal "succeeds" on a gap.
        QTest::newRow("count decides, not the keys") << "p1=1 p0=1 p0=1 p0=0" << QStringList{"streamUrl_2"} << "0";
        QTest::newRow("negative position") << "p-1=0" << QStringList{"streamUrl_0", "streamUrl_1", "streamUrl_2"} << "3";
        QTest::newRow("by URL") << "urtmp://h/u1=1" << QStringList{"streamUrl_0", "streamUrl_2"} << "2";
        QTest::newRow("by URL, case differs") << "uRTMP://h/u1=1" << QStringList{"streamUrl_0", "streamUrl_1", "streamUrl_2"} << "3";
    }

    void removals()
    {
        QFETCH(QString, ops);
        UiproRtmp_Desktop rtmp;
        rtmp.savePaltformUrlsByEventName("E", urls(3), {"true", "true", "true"});
        for (const QString &op : ops.split(' ')) {
            const QString arg = op.mid(1, op.indexOf('=') - 1);
            const bool expected = op.endsWith("=1");
            const bool got = op.startsWith('p') ? rtmp.removePlatformUrlByEventName("E", arg.toInt())
                                                : rtmp.removePlatformUrlByEventNameAndUrl("E", arg);
            QCOMPARE(got, expected);
        }
        const auto g = group("E");
        QStringList left;
        for (const QString &k : g.keys())
            if (k.startsWith("streamUrl"))
                left << k;
        QCOMPARE(left, ROW(QStringList, keysLeft));
        for (const QString &k : left) // every URL keeps its own flag
            QVERIFY(g.contains("streamStatus_" + k.right(1)));
        QCOMPARE(g.value("PlatformNum"), ROW(QString, num));
    }

    void saveWipesAndCreateOverwritesStartTime()
    {
        UiproRtmp_Desktop rtmp;
        rtmp.createOneEvent("E", qlonglong(1700000000000));
        rtmp.createOneEvent("Other", QString("42"));
        rtmp.savePaltformParamsByEventName("E", "1", "2", "3");
        rtmp.savePaltformUrlsByEventName("E", urls(1), {"true"});
        QCOMPARE(group("E").keys(), (QStringList{"PlatformNum", "streamStatus_0", "streamUrl_0"}));
        QCOMPARE(group("Other").value("StartTime"), QString("42"));

        rtmp.savePaltformParamsByEventName("E", "4", "", "6");
        rtmp.savePaltformParamsModelByEventName("E", "");
        rtmp.createOneEvent("E", qlonglong(5));
        const auto g = group("E");
        QCOMPARE(g.value("StartTime"), QString("5"));
        QCOMPARE(g.value("streamUrl_0"), QString("rtmp://h/u0"));
        QCOMPARE(rtmp.getStreamModelByEventName("E"), 4);
        QCOMPARE(rtmp.getResolutionByEventName("E"), 0);
        QCOMPARE(rtmp.getBitrateByEventName("E"), 6);
        QSignalSpy params(&rtmp, &UiproRtmp_Desktop::sigStreamParams);
        rtmp.getPaltformParamsByEventName("E");
        QCOMPARE(params.value(0), (QVariantList{"4", "", "6"}));
    }

    void eventListLatestFirst_data()
    {
        QTest::addColumn<QStringList>("events"); // name=time, "name" alone has no start time
        QTest::addColumn<QStringList>("emitted");
        QTest::newRow("equal times keep listed order, reversed") << QStringList{"A=5", "B=9", "C=9"} << QStringList{"C=9", "B=9", "A=5"};
        QTest::newRow("Current without a time comes last") << QStringList{"Current", "Show=1700000000000", "Early=-3"}
                                                           << QStringList{"Show=1700000000000", "Current=0", "Early=-3"};
        QTest::newRow("no events") << QStringList{} << QStringList{};
    }

    void eventListLatestFirst()
    {
        UiproRtmp_Desktop rtmp;
        for (const QString &e : ROW(QStringList, events)) {
            if (e.contains('='))
                rtmp.createOneEvent(e.section('=', 0, 0), e.section('=', 1).toLongLong());
            else
                rtmp.savePaltformUrlsByEventName(e, urls(1), {"true"});
        }
        QSignalSpy spy(&rtmp, QOverload<QString, qlonglong>::of(&UiproRtmp_Desktop::sigEventInfo));
        rtmp.getAllEventInfo();
        QStringList got;
        for (const auto &args : spy)
            got << args.at(0).toString() + '=' + QString::number(args.at(1).toLongLong());
        QCOMPARE(got, ROW(QStringList, emitted));
    }

    // Replacing the service's own addresses runs end to end; here an event
    // without one gains nothing, and an unwritable file changes nothing.
    void companionUrlAddsNothingElsewhere()
    {
        UiproRtmp_Desktop rtmp;
        rtmp.savePaltformUrlsByEventName("Current", {"rtmp://a.youtube.com/x"}, {"true"});
        rtmp.savePaltformUrlsByEventName("Other", {"rtmp://zorvane.com/other"}, {"false"});
        rtmp.setZorPlatformUrl("rtmp://push.zorvane.com/live/new");
        QCOMPARE(TestSysroot::readFile(UiproRtmp_Desktop::zorFilePath()), QByteArray("rtmp://push.zorvane.com/live/new"));
        const auto g = group("Current");
        QCOMPARE(g.value("streamUrl_0") + '|' + g.value("streamStatus_0"), QString("rtmp://a.youtube.com/x|true"));
        QCOMPARE(g.value("PlatformNum"), QString("1"));
        QCOMPARE(group("Other").value("streamUrl_0"), QString("rtmp://zorvane.com/other"));

        // A service address that would be replaced stays as it is.
        rtmp.savePaltformUrlsByEventName("Current", {"rtmp://live.zorvane.com/old"}, {"false"});
        const QByteArray events = TestSysroot::readFile(UiproRtmp_Desktop::eventFilePath());
        QFile::remove(UiproRtmp_Desktop::zorFilePath());
        QDir().mkpath(UiproRtmp_Desktop::zorFilePath());
        rtmp.setZorPlatformUrl("rtmp://push.zorvane.com/live/other");
        QCOMPARE(TestSysroot::readFile(UiproRtmp_Desktop::eventFilePath()), events);
    }

    void eventNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("stored");
        for (const char *n : {"Event", "Show = 1 [main]", "a;b#c", "General", "Übertragung 直播 🎥"})
            QTest::newRow(n) << QString::fromUtf8(n) << true;
        QTest::newRow("slash") << "Show/Current" << false;
        QTest::newRow("backslash") << "Show\\Current" << false;
        QTest::newRow("empty") << "" << false;
    }

    void eventNames()
    {
        QFETCH(QString, name);
        QFETCH(bool, stored);
        UiproRtmp_Desktop rtmp;
        rtmp.savePaltformUrlsByEventName("Current", {"rtmp://h/keep"}, {"true"});
        const QByteArray before = TestSysroot::readFile(UiproRtmp_Desktop::eventFilePath());
        if (!stored)
            QTest::qWait(1100); // refusals are logged once a second
        CategoryCapture log;
        rtmp.savePaltformUrlsByEventName(name, {"rtmp://h/" + name}, {"true"});
        rtmp.createOneEvent(name, qlonglong(77));
        rtmp.delOneEventByName(stored ? QString("nothing") : name);
        QCOMPARE(rtmp.getOneEventInfoByName(name).value("startTime").toDouble(), stored ? 77.0 : 0.0);
        QCOMPARE(rtmp.getAvailablePaltformUrlsByName(name), stored ? "rtmp://h/" + name : QString());
        QSignalSpy spy(&rtmp, QOverload<QString, qlonglong>::of(&UiproRtmp_Desktop::sigEventInfo));
        rtmp.getAllEventInfo();
        QCOMPARE(asSet(spyColumn(spy, 0)), asSet(stored ? QStringList{"Current", name} : QStringList{"Current"}));
        QCOMPARE(group("Current").value("streamUrl_0"), QString("rtmp://h/keep"));
        if (!stored) {
            QCOMPARE(TestSysroot::readFile(UiproRtmp_Desktop::eventFilePath()), before);
            QVERIFY(log.lines().filter("refuses the event name").size() >= 1);
        }
        if (name == "Event")
            QVERIFY(rtmp.getOneEventInfoByName("event").isEmpty());
    }

    void platformName_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("name");
        const char *rows[][2] = {
            {"rtmp://push-rtmp-l1.douyincdn.com/third/k", "tiktok"}, {"rtmp://a.rtmp.youtube.com/live2/k", "youtube"},
            {"rtmp://live.twitch.com/app/k", "Twitch"}, {"rtmp://live.twitch.tv/app/k", "other"},
            {"rtmps://live-api-s.facebook.com:443/rtmp/k", "facebook"}, {"rtmp://push.zorvane.com/live/k", "Zor"},
            {"RTMP://A.RTMP.YOUTUBE.COM/LIVE2/K", "other"}, {"", "other"},
        };
        for (const auto &r : rows)
            QTest::newRow(r[0]) << QString(r[0]) << QString(r[1]);
    }

    void platformName()
    {
        UiproRtmp_Desktop rtmp;
        QCOMPARE(rtmp.getPlatformNameByUrl(ROW(QString, url)), ROW(QString, name));
    }

    void importFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("emitted"); // name|url; "*N" = N signals, not checked one by one
        QTest::addColumn<bool>("skippedLogged");
        QTest::newRow("last line without end, BOM") << QByteArray("\xEF\xBB\xBFrtmp://h/1\nrtmp://h/2")
                                                    << QStringList{"other|rtmp://h/1", "other|rtmp://h/2"} << false;
        QTest::newRow("100000-character line between URLs")
            << "rtmp://h/1\n" + QByteArray(100000, 'x') + "\nrtmp://h/2\n" << QStringList{"other|rtmp://h/1", "other|rtmp://h/2"} << true;
        QByteArray garbage(4096, '\0');
        for (int i = 0; i < garbage.size(); ++i)
            garbage[i] = char((i * 7919) % 251);
        QTest::newRow("binary garbage") << garbage << QStringList{"*0"} << true;
        QTest::newRow("control character inside a URL") << QByteArray("rtmp://h/a\x1b[2Jb\nrtmp://h/ok\n") << QStringList{"other|rtmp://h/ok"} << true;
        QByteArray big;
        while (big.size() < 10 * 1024 * 1024)
            big += "rtmp://live.twitch.com/app/key_" + QByteArray::number(big.size()) + "\n";
        QTest::newRow("10 MB") << big << QStringList{"*1000"} << true;
    }

    void importFile()
    {
        QFETCH(QStringList, emitted);
        UiproRtmp_Desktop rtmp;
        QSignalSpy spy(&rtmp, &UiproRtmp_Desktop::sigSendPlatformUrl);
        QVERIFY(!rtmp.getAllUdiskPlatformUrl()); // no disk
        QVERIFY(TestSysroot::writeFile(m_root->path("/media/usb0/rtmp.ini"), ROW(QByteArray, content)));
        if (ROW(bool, skippedLogged))
            QTest::qWait(1100); // what an import skips is logged once a second
        CategoryCapture log;
        QVERIFY(rtmp.getAllUdiskPlatformUrl());
        QCOMPARE(log.lines().filter("skipped").size() == 1, ROW(bool, skippedLogged));
        if (emitted.value(0).startsWith('*')) {
            if (emitted[0].size() > 1)
                QCOMPARE(spy.count(), emitted[0].mid(1).toInt());
            for (const auto &args : spy)
                QVERIFY(!args.at(1).toString().isEmpty() && args.at(1).toString().size() <= UiproRtmp_Desktop::kMaxUrlChars);
            return;
        }
        QStringList got;
        for (const auto &args : spy)
            got << args.at(0).toString() + '|' + args.at(1).toString();
        QCOMPARE(got, emitted);
    }

    void companionUrlImport()
    {
        UiproRtmp_Desktop rtmp;
        QSignalSpy spy(&rtmp, &UiproRtmp_Desktop::sigSendPlatformUrl);
        QVERIFY(!rtmp.getZorPlatformUrl());
        rtmp.setZorPlatformUrl("rtmp://push.zorvane.com/live/abc");
        QVERIFY(rtmp.getZorPlatformUrl());
        QCOMPARE(spy.value(0), (QVariantList{"Zor", "rtmp://push.zorvane.com/live/abc"}));
        // The fragment is configuration.
        qputenv("CS_COMPANION_DOMAIN", "stream.example.net");
        QCOMPARE(rtmp.getPlatformNameByUrl("rtmp://push.zorvane.com/live/abc"), QString("other"));
        QCOMPARE(rtmp.getPlatformNameByUrl("rtmp://in.stream.example.net/k"), QString("Zor"));
        qputenv("CS_COMPANION_DOMAIN", "a b/c");
        QCOMPARE(rtmp.getPlatformNameByUrl("rtmp://push.zorvane.com/live/abc"), QString("Zor"));
        qunsetenv("CS_COMPANION_DOMAIN");
    }

    void cReader_data()
    {
        QTest::addColumn<QByteArray>("content"); // "-" = no file
        QTest::addColumn<QString>("result");
        QTest::addColumn<QByteArray>("printed");
        QTest::newRow("no file") << QByteArray("-") << "" << QByteArray("no rtmp set file\n");
        QTest::newRow("last short line") << QByteArray("rtmp://h/1\r\nabc") << "abc" << QByteArray("url:rtmp://h/1\nget url from u disk file OK\n");
        QTest::newRow("short line keeps its LF") << QByteArray("abc\n") << "abc\n" << QByteArray("get url from u disk file OK\n");
        QTest::newRow("CR cut before the last character without LF") << QByteArray("rtmp://h/1\nrtmp://h/2\rX") << "rtmp://h/2"
                                                                     << QByteArray("url:rtmp://h/1\nurl:rtmp://h/2\nget url from u disk file OK\n");
        QTest::newRow("long line in pieces") << QByteArray(499, 'a') + QByteArray(10, 'b') + '\n' << "bbbbbbbbbb"
                                             << "url:" + QByteArray(499, 'a') + "\nurl:bbbbbbbbbb\nget url from u disk file OK\n";
        QTest::newRow("control bytes not printed raw") << QByteArray("rtmp://\x1b[2J/k\n") << "rtmp://\x1b[2J/k"
                                                       << QByteArray("url:rtmp://?[2J/k\nget url from u disk file OK\n");
    }

    void cReader()
    {
        QFETCH(QByteArray, content);
        if (content != "-")
            QVERIFY(TestSysroot::writeFile(m_root->path("/media/usb0/rtmp.ini"), content));
        UiproRtmp_Desktop rtmp;
        QString result;
        QCOMPARE(captureStdout([&] { result = rtmp.read_rtmp_url_from_u_file(); }), ROW(QByteArray, printed));
        QCOMPARE(result, ROW(QString, result));
    }

    void qmlHandlerGetsNumericStartTime()
    {
        // The screens' handler binds to one of the two sigEventInfo overloads; it
        // must be the one that is emitted.
        Startup::registerQmlTypes();
        UiproRtmp_Desktop().createOneEvent("Show", qlonglong(1700000000000));
        QQmlEngine engine;
        QQmlComponent c(&engine);
        c.setData("import QtQml 2.15\nimport xpose.UiproRtmpDesktop 1.0\n"
                  "UiproRtmp_Desktop { property var got: []\n"
                  "  onSigEventInfo: got.push(strName + ':' + (typeof nStartTime) + ':' + nStartTime) }\n",
                  QUrl());
        QScopedPointer<QObject> obj(c.create());
        QVERIFY2(obj, qPrintable(c.errorString()));
        QMetaObject::invokeMethod(obj.data(), "getAllEventInfo");
        QCOMPARE(obj->property("got").toStringList(), QStringList{"Show:number:1700000000000"});
        QCOMPARE(obj->property("companionHost").toString(), QString("https://zorvane.com"));
    }

private:
    QScopedPointer<TestSysroot> m_root;
};

QTEST_MAIN(TestStreaming)
#include "tst_streaming.moc"
