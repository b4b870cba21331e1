// The list builders: format ranking (interlace rule, weights, the order
// among equal weights), NDI source lists with their count check, and
// bounds on short or over-announced blocks.
#include "Logger.h"
#include "LogTap.h"
#include "TestSysroot.h"
#include "VideoFormatList.h"

#include <QJsonObject>
#include <QtTest>

#include <initializer_list>
#include <memory>

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

// NDI sources as "name@addr" ("?" for a missing name).
QStringList sources(const QJsonArray &a)
{
    QStringList out;
    for (const QJsonValue &v : a)
        out << v["name"].toString(QStringLiteral("?")) + '@' + v["addr"].toString();
    return out;
}

// Format objects as "Weights DataType widthxheight Fps" (Fps must be text).
QStringList shortForms(const QJsonArray &a)
{
    QStringList out;
    for (const QJsonValue &v : a)
        out << QStringLiteral("%1 %2 %3x%4 %5")
                   .arg(v["Weights"].toInt())
                   .arg(v["DataType"].toInt())
                   .arg(v["width"].toInt())
                   .arg(v["height"].toInt())
                   .arg(v["Fps"].toString());
    return out;
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
        QTest::addColumn<QStringList>("expected");

        const QByteArray pair = entry(0, 1920, 540, 60) + entry(0, 1920, 1080, 60) + bytes({0});
        QTest::newRow("announced 6 gives nothing") << entry(0, 1920, 1080, 60) << 6 << true << QStringList();
        QTest::newRow("only whole entries before the terminator") << pair << 12 << false << QStringList{"2520 0 1920x540 60"};
        QTest::newRow("announced beyond the block reads what is there")
            << pair << 400 << false << QStringList{"3060 0 1920x1080 60", "2520 0 1920x540 60"};
        QTest::newRow("type lowers the weight, width read unsigned")
            << entry(5, 0xffff, 0, 30) + bytes({0}) << 7 << false << QStringList{"65560 5 65535x0 30"};
        QTest::newRow("interlace only at 540 lines") << entry(0, 1280, 540, 50) + entry(0, 720, 576, 50) + bytes({0}) << 13
                                                     << true << QStringList{"2411 0 1280x1080 50i", "1346 0 720x576 50"};
        // Four entries of weight 3060 (two interlaced) and two of 2050, not
        // adjacent in the block: equal weights stay in reverse block order.
        QTest::newRow("equal weights in reverse block order")
            << entry(0, 1920, 1080, 60) + entry(1, 1920, 540, 60) + entry(0, 1280, 720, 50) + entry(2, 1922, 1080, 60)
                   + entry(0, 1920, 540, 59) + entry(1, 1281, 720, 50) + entry(0, 640, 480, 30) + bytes({0})
            << 43 << true
            << QStringList{"3060 0 1920x1080 59i", "3060 2 1922x1080 60", "3060 1 1920x1080 60i", "3060 0 1920x1080 60",
                           "2050 1 1281x720 50",   "2050 0 1280x720 50",  "1150 0 640x480 30"};
    }
    void formats()
    {
        QFETCH(QByteArray, block);
        QFETCH(int, len);
        QFETCH(bool, interlace);
        QFETCH(QStringList, expected);
        QCOMPARE(shortForms(VideoFormatList::buildFormatArray(block, quint16(len), interlace)), expected);
    }

    void ndiSources_data()
    {
        QTest::addColumn<QByteArray>("block");
        QTest::addColumn<int>("len");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<QStringList>("logs");

        const QString wrong = QStringLiteral("UiprocVideo_Desktop::dealNDISignalToJson no correct signal number:");
        const QByteArray two = bytes({2}) + "CAM1,A1;CAM2,A2;";
        const QStringList twoSources = {"CAM1@A1", "CAM2@A2"};
        QTest::newRow("text after the last ; dropped") << bytes({1}) + "X,Y;Z,W" << 8 << QStringList{"X@Y"} << QStringList();
        QTest::newRow("missing name keeps the previous one") << bytes({2}) + "A,1;2;" << 7 << QStringList{"A@1", "A@2"} << QStringList();
        QTest::newRow("first source without a name") << bytes({1}) + "1;" << 3 << QStringList{"?@1"} << QStringList();
        QTest::newRow("len 1 count 2") << bytes({2}) << 1 << QStringList() << QStringList{wrong + "2"};
        QTest::newRow("empty block") << QByteArray() << 0 << QStringList() << QStringList();
        QTest::newRow("len stops the walk") << bytes({1}) + "A,1;B,2;" << 5 << QStringList{"A@1"} << QStringList();
        QTest::newRow("len beyond the block") << two << 900 << twoSources << QStringList();
        QTest::newRow("latin-1 characters") << bytes({1, 'C', 0xE9, ',', 'a', ';'}) << 6 << QStringList{"C\u00e9@a"} << QStringList();
    }
    void ndiSources()
    {
        QFETCH(QByteArray, block);
        QFETCH(int, len);
        QFETCH(QStringList, expected);
        QFETCH(QStringList, logs);
        CategoryCapture log("cs.log");
        QCOMPARE(sources(dealNDISignalToJson(block, quint16(len))), expected);
        QCOMPARE(log.lines(), logs);
    }

};

QTEST_GUILESS_MAIN(TstFormatLists)
#include "tst_formatlists.moc"
