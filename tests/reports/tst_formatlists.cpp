// The list builders: format ranking (interlace rule, weights, the order
// among equal weights), NDI source lists with their count check, bounds on
// short or over-announced blocks, and the shared video-parameter record.
#include "Logger.h"
#include "TestSysroot.h"
#include "VideoFormatList.h"

#include <QJsonDocument>
#include <QtTest>

#include <atomic>
#include <initializer_list>
#include <memory>
#include <thread>

namespace {

QByteArray bytes(std::initializer_list<int> list)
{
    QByteArray out;
    for (int b : list)
        out.append(char(uchar(b)));
    return out;
}

// One six-byte format entry.
QByteArray entry(int type, int width, int height, int rate)
{
    return bytes({type, width & 0xff, width >> 8, height & 0xff, height >> 8, rate});
}

QJsonArray json(const char *text)
{
    return QJsonDocument::fromJson(text).array();
}

QString compact(const QJsonArray &a)
{
    return QString::fromUtf8(QJsonDocument(a).toJson(QJsonDocument::Compact));
}

} // namespace

class TstFormatLists : public QObject
{
    Q_OBJECT
    std::unique_ptr<TestSysroot> sysroot;

private slots:
    void initTestCase()
    {
        sysroot.reset(new TestSysroot);
        Logger::instance().setSwitch(1);
    }
    void cleanupTestCase()
    {
        Logger::instance().close();
        sysroot.reset();
    }

    void formats_data()
    {
        QTest::addColumn<QByteArray>("block");
        QTest::addColumn<int>("len");
        QTest::addColumn<bool>("interlace");
        QTest::addColumn<QJsonArray>("expected");

        const QByteArray pair = entry(0, 1920, 540, 60) + entry(0, 1920, 1080, 60) + bytes({0});
        QTest::newRow("hdmi interlaced ranks one above progressive")
            << pair << 13 << true
            << json(R"([{"Weights":3061,"DataType":0,"width":1920,"height":1080,"Fps":"60i"},
                        {"Weights":3060,"DataType":0,"width":1920,"height":1080,"Fps":"60"}])");
        QTest::newRow("uvc keeps 540 lines")
            << pair << 13 << false
            << json(R"([{"Weights":3060,"DataType":0,"width":1920,"height":1080,"Fps":"60"},
                        {"Weights":2520,"DataType":0,"width":1920,"height":540,"Fps":"60"}])");
        QTest::newRow("announced 6 gives nothing") << entry(0, 1920, 1080, 60) << 6 << true << QJsonArray();
        QTest::newRow("announced 0 gives nothing") << pair << 0 << true << QJsonArray();
        QTest::newRow("announced 1 gives nothing") << pair << 1 << true << QJsonArray();
        QTest::newRow("only whole entries before the terminator")
            << pair << 12 << false
            << json(R"([{"Weights":2520,"DataType":0,"width":1920,"height":540,"Fps":"60"}])");
        QTest::newRow("announced beyond the block reads what is there")
            << pair << 400 << false
            << json(R"([{"Weights":3060,"DataType":0,"width":1920,"height":1080,"Fps":"60"},
                        {"Weights":2520,"DataType":0,"width":1920,"height":540,"Fps":"60"}])");
        QTest::newRow("type lowers the weight")
            << entry(5, 1920, 1080, 30) + bytes({0}) << 7 << false
            << json(R"([{"Weights":3025,"DataType":5,"width":1920,"height":1080,"Fps":"30"}])");
        QTest::newRow("width read unsigned")
            << entry(0, 0xffff, 0, 0) + bytes({0}) << 7 << false
            << json(R"([{"Weights":65535,"DataType":0,"width":65535,"height":0,"Fps":"0"}])");
        QTest::newRow("interlace only at 540 lines")
            << entry(0, 1280, 540, 50) + entry(0, 720, 576, 50) + bytes({0}) << 13 << true
            << json(R"([{"Weights":2411,"DataType":0,"width":1280,"height":1080,"Fps":"50i"},
                        {"Weights":1346,"DataType":0,"width":720,"height":576,"Fps":"50"}])");
        // Equal weights are never swapped: they stay in reverse block order.
        QTest::newRow("equal weights in reverse block order")
            << entry(0, 100, 100, 0) + entry(1, 101, 100, 0) + entry(0, 50, 50, 0) + bytes({0}) << 19 << false
            << json(R"([{"Weights":200,"DataType":1,"width":101,"height":100,"Fps":"0"},
                        {"Weights":200,"DataType":0,"width":100,"height":100,"Fps":"0"},
                        {"Weights":100,"DataType":0,"width":50,"height":50,"Fps":"0"}])");
        QTest::newRow("ascending block sorted descending")
            << entry(0, 640, 480, 30) + entry(0, 1280, 720, 30) + entry(0, 1920, 1080, 30) + entry(0, 3840, 2160, 30) + bytes({0})
            << 25 << false
            << json(R"([{"Weights":6030,"DataType":0,"width":3840,"height":2160,"Fps":"30"},
                        {"Weights":3030,"DataType":0,"width":1920,"height":1080,"Fps":"30"},
                        {"Weights":2030,"DataType":0,"width":1280,"height":720,"Fps":"30"},
                        {"Weights":1150,"DataType":0,"width":640,"height":480,"Fps":"30"}])");
    }
    void formats()
    {
        QFETCH(QByteArray, block);
        QFETCH(int, len);
        QFETCH(bool, interlace);
        QFETCH(QJsonArray, expected);
        const QJsonArray got = VideoFormatList::buildFormatArray(block, quint16(len), interlace);
        QCOMPARE(compact(got), compact(expected));
    }

    void ndiSources_data()
    {
        QTest::addColumn<QByteArray>("block");
        QTest::addColumn<int>("len");
        QTest::addColumn<QJsonArray>("expected");
        QTest::addColumn<QStringList>("logs");

        const QString wrong = QStringLiteral("UiprocVideo_Desktop::dealNDISignalToJson no correct signal number:");
        const QByteArray two = bytes({2}) + "CAM1,A1;CAM2,A2;";
        const QJsonArray twoSources = json(R"([{"name":"CAM1","addr":"A1"},{"name":"CAM2","addr":"A2"}])");
        QTest::newRow("two sources") << two << 17 << twoSources << QStringList();
        QTest::newRow("count says three") << bytes({3}) + two.mid(1) << 17 << twoSources << QStringList{wrong + "3"};
        QTest::newRow("text after the last ; dropped")
            << bytes({1}) + "X,Y;Z,W" << 8 << json(R"([{"name":"X","addr":"Y"}])") << QStringList();
        QTest::newRow("missing name keeps the previous one")
            << bytes({2}) + "A,1;2;" << 7 << json(R"([{"name":"A","addr":"1"},{"name":"A","addr":"2"}])") << QStringList();
        QTest::newRow("first source without a name") << bytes({1}) + "1;" << 3 << json(R"([{"addr":"1"}])") << QStringList();
        QTest::newRow("len 1 count 0") << bytes({0}) << 1 << QJsonArray() << QStringList();
        QTest::newRow("len 1 count 2") << bytes({2}) << 1 << QJsonArray() << QStringList{wrong + "2"};
        QTest::newRow("empty block") << QByteArray() << 0 << QJsonArray() << QStringList();
        QTest::newRow("len stops the walk")
            << bytes({1}) + "A,1;B,2;" << 5 << json(R"([{"name":"A","addr":"1"}])") << QStringList();
        QTest::newRow("len beyond the block") << two << 900 << twoSources << QStringList();
        QTest::newRow("latin-1 characters")
            << bytes({1, 'C', 0xE9, ',', 'a', ';'}) << 6 << json(R"([{"name":"C\u00e9","addr":"a"}])") << QStringList();
    }
    void ndiSources()
    {
        QFETCH(QByteArray, block);
        QFETCH(int, len);
        QFETCH(QJsonArray, expected);
        QFETCH(QStringList, logs);
        CategoryCapture log("cs.log");
        const QJsonArray got = dealNDISignalToJson(block, quint16(len));
        QCOMPARE(compact(got), compact(expected));
        QCOMPARE(log.lines(), logs);
    }

    void sharedModel()
    {
        model_videoparam m;
        m.inputType = 1;
        m.currentIndex = 2;
        m.list = {{0, 1920, 1080, 60, false}, {0, 1920, 1080, 60, true}, {1, 1280, 720, 30, false}};
        CategoryCapture log("cs.log");
        setModel(m);
        QCOMPARE(log.lines(), QStringList{"UiprocVideo_Desktop::setModel------------- listnum:3"});
        const model_videoparam stored = getModel();
        QVERIFY(stored == m);
        // A copy was kept, not the caller's object.
        m.list.clear();
        QCOMPARE(getModel().list.size(), 3);

        log.clear();
        setModel(model_videoparam());
        QCOMPARE(log.lines(), QStringList{"UiprocVideo_Desktop::setModel------------- listnum:0"});
        QVERIFY(getModel().list.isEmpty());
    }

    // Readers never see a half-written record while another thread stores one.
    void sharedModelAcrossThreads()
    {
        Logger::instance().close();
        Logger::instance().setSwitch(0);
        std::atomic<bool> stop{false};
        std::atomic<int> torn{0};
        std::thread reader([&] {
            while (!stop.load()) {
                const model_videoparam m = getModel();
                if (m.inputType != m.list.size())
                    ++torn;
            }
        });
        for (int i = 0; i < 2000; ++i) {
            model_videoparam m;
            m.inputType = uchar(i % 5);
            for (int k = 0; k < m.inputType; ++k)
                m.list.append({uchar(k), 1920, 1080, 60, false});
            setModel(m);
        }
        stop = true;
        reader.join();
        QCOMPARE(torn.load(), 0);
        Logger::instance().setSwitch(1);
    }
};

QTEST_GUILESS_MAIN(TstFormatLists)
#include "tst_formatlists.moc"
