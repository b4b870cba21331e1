// The link under hostile and heavy traffic on loopback: floods of valid
// reports, storms of zero-length and never-completing block headers, a
// full 32 KB format list and oversized datagrams. The GUI thread must keep
// turning (a 5 ms timer measures its longest stall), the threads stay few,
// a genuine report sent after each storm arrives within a second, and the
// log stays small. Every storm is bounded in count and time.
#include "LinkTestSupport.h"
#include "UiprocVideo_Desktop.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTimer>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

using namespace LinkTest;

namespace {

int threadCount()
{
    return QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

// A plain socket, usable from any thread, sending to a loopback port.
class RawSender
{
public:
    explicit RawSender(quint16 port)
    {
        m_fd = ::socket(AF_INET, SOCK_DGRAM, 0);
        m_to.sin_family = AF_INET;
        m_to.sin_port = htons(port);
        m_to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    }
    ~RawSender() { ::close(m_fd); }
    void send(const QByteArray &d) { ::sendto(m_fd, d.constData(), size_t(d.size()), 0, reinterpret_cast<sockaddr *>(&m_to), sizeof m_to); }

private:
    int m_fd = -1;
    sockaddr_in m_to{};
};

// Watches the GUI thread: the longest gap between two ticks of a 5 ms timer.
class StallMeter
{
public:
    StallMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            m_worst = qMax(m_worst, m_clock.restart());
        });
        m_clock.start();
        m_timer.start();
    }
    qint64 worstMs() const { return m_worst; }

private:
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_worst = 0;
};

} // namespace

class TstLinkHostile : public QObject
{
    Q_OBJECT
    std::unique_ptr<LinkFixture> fx;
    std::unique_ptr<UiprocVideo_Desktop> video;

    // Runs the storm on its own thread while the GUI thread keeps serving
    // events; returns the worst stall and the most threads seen.
    void storm(const std::function<void()> &attack, qint64 *worstStallMs, int *mostThreads)
    {
        StallMeter meter;
        std::atomic<bool> done{false};
        std::thread attacker([&] { attack(); done = true; });
        int most = threadCount();
        while (!done) {
            QTest::qWait(20);
            most = qMax(most, threadCount());
        }
        attacker.join();
        QTest::qWait(50);
        *worstStallMs = meter.worstMs();
        *mostThreads = most;
    }

    // A genuine report from the service's own socket, timed from its sending.
    // Each one names another address, so none is taken for a repeat.
    qint64 genuineReportArrivesMs()
    {
        static int serial = 0;
        const uchar last = uchar(++serial);
        QSignalSpy spy(video.get(), &UiprocVideo_Desktop::pushLocalIP);
        QElapsedTimer t;
        t.start();
        fx->sendToListener(reportFrame(0x89, 10, 11, 12, last));
        const QString expected = QStringLiteral("10.11.12.%1").arg(last);
        while (t.elapsed() < 3000 && (spy.isEmpty() || spy.last().at(0).toString() != expected))
            spy.wait(int(3000 - t.elapsed()));
        return !spy.isEmpty() && spy.last().at(0).toString() == expected ? t.elapsed() : -1;
    }

private slots:
    void initTestCase()
    {
        // Thousands of log lines would drown the figures this test prints.
        QLoggingCategory::setFilterRules(QStringLiteral("cs.*.debug=false"));
    }
    void init()
    {
        fx.reset(new LinkFixture);
        video.reset(new UiprocVideo_Desktop);
        video->bizConnect();
        QCOMPARE(genuineReportArrivesMs() >= 0, true);
    }
    void cleanup()
    {
        video.reset();
        fx.reset();
    }

    void storms_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("400 valid reports a second for 2 s") << 0;
        QTest::newRow("1500 zero-length block headers in 0.3 s") << 1;
        QTest::newRow("32767-byte headers from 50 ports for 1 s") << 2;
        QTest::newRow("20000 garbage datagrams as fast as possible") << 3;
    }
    void storms()
    {
        QFETCH(int, kind);
        const quint16 port = fx->listenPort;
        const int threadsBefore = threadCount();
        qint64 worst = 0;
        int most = 0;
        storm([&] {
            QElapsedTimer t;
            t.start();
            if (kind == 0) {
                RawSender s(port);
                for (int i = 0; i < 800; ++i) {
                    s.send(reportFrame(0xD0, 0x0C, uchar(i)));
                    while (t.nsecsElapsed() < qint64(i + 1) * 2500000)
                        std::this_thread::sleep_for(std::chrono::microseconds(200));
                }
            } else if (kind == 1) {
                RawSender s(port);
                for (int i = 0; i < 1500; ++i) {
                    s.send(reportFrame(0xF1, 0x44, 0, 0, 0));
                    if (i % 5 == 4)
                        std::this_thread::sleep_for(std::chrono::microseconds(1000));
                }
            } else if (kind == 2) {
                std::vector<std::unique_ptr<RawSender>> senders;
                for (int i = 0; i < 50; ++i)
                    senders.emplace_back(new RawSender(port));
                for (int round = 0; t.elapsed() < 1000; ++round) {
                    for (auto &s : senders)
                        s->send(reportFrame(0xF1, 0xB3, 0, 0xff, 0x7f));
                    std::this_thread::sleep_for(std::chrono::milliseconds(5));
                }
            } else {
                RawSender s(port);
                for (int i = 0; i < 20000 && t.elapsed() < 3000; ++i)
                    s.send(QByteArray(19 + (i % 40), char('!' + i % 90)));
            }
        }, &worst, &most);
        qInfo("worst GUI stall %lld ms, threads %d before, %d at most", worst, threadsBefore, most);
        QVERIFY2(worst < 100, qPrintable(QString::number(worst)));
        QVERIFY(most <= threadsBefore + 4);
        const qint64 late = genuineReportArrivesMs();
        qInfo("genuine report after the storm: %lld ms", late);
        QVERIFY(late >= 0 && late < 1000);
    }

    void fullFormatListDoesNotStall()
    {
        // 5461 entries of six bytes, then the terminator: 32767 bytes.
        QByteArray block;
        for (int i = 0; i < 5461; ++i) {
            const int width = 640 + (i * 37) % 3200, height = 360 + (i * 11) % 1800;
            const char entry[6] = {char(i % 3), char(width & 0xff), char(width >> 8), char(height & 0xff), char(height >> 8), char(24 + i % 37)};
            block.append(entry, 6);
        }
        block.append('\0');
        QCOMPARE(block.size(), 32767);
        QSignalSpy spy(video.get(), &UiprocVideo_Desktop::pushVideoFormatData);
        StallMeter meter;
        fx->sendToListener(reportFrame(0xF1, 0xB3, 0, 0xff, 0x7f));
        fx->sendToListener(block);
        QVERIFY(spy.wait(3000));
        QTest::qWait(50);
        qInfo("worst GUI stall with a 32 KB format list: %lld ms", meter.worstMs());
        QVERIFY(meter.worstMs() < 100 * CS_TIME_SLACK);
        const QJsonArray list = spy.first().at(2).toJsonArray();
        QCOMPARE(list.size(), 5461);
        for (int i = 1; i < list.size(); ++i)
            QVERIFY(list.at(i - 1).toObject().value("Weights").toInt() >= list.at(i).toObject().value("Weights").toInt());
    }

    void oversizedDatagramsKeepTheLogSmall()
    {
        QVERIFY(fx->proc->connectVersion()); // chooses the run's log file
        QTRY_VERIFY(!Logger::instance().currentFile().isEmpty());
        const QString file = Logger::instance().currentFile();
        const qint64 before = QFileInfo(file).size();
        RawSender s(fx->listenPort);
        for (int i = 0; i < 50; ++i) {
            s.send(QByteArray(65000, char('A' + i % 26)));
            QTest::qWait(2);
        }
        QVERIFY(genuineReportArrivesMs() >= 0);
        const qint64 grown = QFileInfo(file).size() - before;
        qInfo("log grew by %lld bytes for 50 datagrams of 65000 bytes", grown);
        QVERIFY(grown < 2 * 1024 * 1024);
        QVERIFY(grown > 0);
    }

    void heartbeatIsQuiet()
    {
        QVERIFY(fx->proc->connectVersion());
        QCOMPARE(fx->nextCommand(), QByteArray("<T00006a000000006a>"));
        QTRY_VERIFY(!Logger::instance().currentFile().isEmpty());
        const QString file = Logger::instance().currentFile();
        const auto lines = [&] { return TestSysroot::readFile(file).count('\n'); };
        for (int i = 0; i < 20; ++i) {
            QVERIFY(fx->proc->heartbeat());
            QCOMPARE(fx->nextCommand(), QByteArray("<T000068ad00000015>"));
            fx->sendToCommandSocket(reportFrame(0x68, 0xAD, 0x01));
        }
        QVERIFY(genuineReportArrivesMs() >= 0);
        const int before = lines();
        for (int i = 0; i < 30; ++i) {
            QVERIFY(fx->proc->heartbeat());
            QCOMPARE(fx->nextCommand(), QByteArray("<T000068ad00000015>"));
            fx->sendToCommandSocket(reportFrame(0x68, 0xAD, 0x01));
        }
        QVERIFY(genuineReportArrivesMs() >= 0);
        // Only the genuine report's two lines (received, dispatched): the
        // repeated beat and its answer say nothing.
        QCOMPARE(lines() - before, 2);
    }
};

QTEST_GUILESS_MAIN(TstLinkHostile)
#include "tst_linkhostile.moc"
