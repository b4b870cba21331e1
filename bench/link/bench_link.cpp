// Device link figures on loopback: command latency (QML-callable slot ->
// datagram at the peer), report latency (datagram from the peer -> push
// signal), sustained report rate with nothing lost or reordered, and the
// idle CPU of the two queue loops.
//
//   bench_link [round trips, default 1000] [--quiet-log]
//
// The log switch is on as in the shipped settings (every send and receive
// writes its lines); --quiet-log turns it off to see the link alone.
#include "Logger.h"
#include "ReportFrame.h"
#include "UiProc.h"
#include "UiprocVideo_Desktop.h"
#include "biz_CMDSWork.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTimer>
#include <QUdpSocket>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <cstdio>
#include <functional>
#include <sys/resource.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double ms(Clock::duration d) { return std::chrono::duration<double, std::milli>(d).count(); }

double percentile(std::vector<double> v, double p)
{
    if (v.empty())
        return 0;
    std::sort(v.begin(), v.end());
    const size_t i = std::min(v.size() - 1, size_t(p / 100.0 * double(v.size() - 1) + 0.5));
    return v[i];
}


// Serves events until done() or the time-out; false on time-out. Sleeps
// in the event loop between events (a coarse heartbeat bounds the wait).
bool serveUntil(const std::function<bool()> &done, int timeoutMs)
{
    QTimer heartbeat;
    heartbeat.start(20);
    QElapsedTimer t;
    t.start();
    while (!done()) {
        if (t.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

double cpuSeconds(int who = RUSAGE_SELF)
{
    rusage ru{};
    getrusage(who, &ru);
    return double(ru.ru_utime.tv_sec + ru.ru_stime.tv_sec) + double(ru.ru_utime.tv_usec + ru.ru_stime.tv_usec) / 1e6;
}

// Receives whichever push signal the report path ends in.
class Sink : public QObject
{
    Q_OBJECT
public:
    std::function<void(int)> onReport;
public slots:
    void localIP(QString ip) { onReport(ip.section(QLatin1Char('.'), 2, 2).toInt() * 256 + ip.section(QLatin1Char('.'), 3, 3).toInt()); }
    void changed(int, int, int CMD, int, int, int DAT3, int DAT4, int, QString, QString, QString)
    {
        if (CMD == 0x89)
            onReport(DAT3 * 256 + DAT4);
    }
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const bool quietLog = args.contains(QStringLiteral("--quiet-log"));
    int rounds = 1000;
    if (args.size() > 1 && args.at(1).toInt() > 0)
        rounds = args.at(1).toInt();
    // The log's console copy would swamp the figures; the file is still written.
    QLoggingCategory::setFilterRules(QStringLiteral("cs.*.debug=false"));

    QTemporaryDir root;
    qputenv("CS_SYSROOT", root.path().toLocal8Bit());
    QDir().mkpath(root.path() + QStringLiteral("/usr/bin/config"));
    QFile::copy(QStringLiteral(CS_SOURCE_DIR "/config/CS_Config.ini"), root.path() + QStringLiteral("/usr/bin/config/CS_Config.ini"));

    QUdpSocket peer;
    peer.bind(QHostAddress(QHostAddress::LocalHost), 0);
    QUdpSocket probe;
    probe.bind(QHostAddress(QHostAddress::LocalHost), 0);
    const quint16 listenPort = probe.localPort();
    probe.close();
    qputenv("CS_MEDIA_PORT", QByteArray::number(peer.localPort()));
    qputenv("CS_LISTEN_PORT", QByteArray::number(listenPort));

    UiProc proc;
    if (quietLog)
        Logger::instance().setSwitch(0);
    std::printf("log switch: %d (%s)\n", Logger::instance().logSwitch(), quietLog ? "--quiet-log" : "as shipped");

    // ---- idle CPU of the two loops (nothing queued)
    {
        const double c0 = cpuSeconds();
        QElapsedTimer t;
        t.start();
        QEventLoop idle;
        QTimer::singleShot(5000, &idle, &QEventLoop::quit);
        idle.exec();
        const double used = cpuSeconds() - c0;
        std::printf("idle CPU over %.1f s: %.3f %% of a core (target < 1 %%)\n", t.elapsed() / 1000.0,
                    100.0 * used / (t.elapsed() / 1000.0));
    }

    // ---- command latency: slot call -> datagram at the peer. Once through
    // an operation that starts its detached sender thread, once through a
    // public sender that queues on the calling thread.
    for (const bool detached : {true, false}) {
        std::vector<double> lat;
        lat.reserve(size_t(rounds));
        int lost = 0;
        for (int i = 0; i < rounds; ++i) {
            const auto t0 = Clock::now();
            if (detached)
                proc.connectSNDIDateType(uchar(i & 0xff), uchar(i >> 8));
            else
                proc.setNDIDataType(uchar(i & 0xff), uchar(i >> 8));
            if (!serveUntil([&] { return peer.hasPendingDatagrams(); }, 2000)) {
                ++lost;
                continue;
            }
            const auto t1 = Clock::now();
            QByteArray d(int(peer.pendingDatagramSize()), '\0');
            peer.readDatagram(d.data(), d.size());
            const int seq = d.mid(10, 2).toInt(nullptr, 16) + 256 * d.mid(12, 2).toInt(nullptr, 16);
            if (seq != i)
                ++lost;
            lat.push_back(ms(t1 - t0));
        }
        std::printf("command latency over %d (%s): p50 %.2f ms, p99 %.2f ms, max %.2f ms, lost/misordered %d (target p99 < 10 ms)\n",
                    rounds, detached ? "connectSNDIDateType, detached sender thread" : "setNDIDataType, caller's thread",
                    percentile(lat, 50), percentile(lat, 99), percentile(lat, 100), lost);
    }

    // ---- report latency: datagram from the peer -> push signal
    Sink sink;
    int lastSeen = -1;
    int received = 0;
    int outOfOrder = 0;
    sink.onReport = [&](int seq) {
        if (seq != lastSeen + 1)
            ++outOfOrder;
        lastSeen = seq;
        ++received;
    };
    UiprocVideo_Desktop video;
    const bool viaPush = video.metaObject()->indexOfSignal("pushLocalIP(QString)") >= 0;
    if (viaPush) {
        video.bizConnect();
        QObject::connect(&video, SIGNAL(pushLocalIP(QString)), &sink, SLOT(localIP(QString)));
    } else {
        QObject::connect(&proc, &UiProc::uiChangeUI, &sink, &Sink::changed);
    }
    std::printf("report path ends in: %s\n",
                viaPush ? "UiprocVideo_Desktop::pushLocalIP (0x89 report)"
                        : "UiProc::uiChangeUI (report dispatcher not in this build)");
    {
        std::vector<double> lat;
        lat.reserve(size_t(rounds));
        int lost = 0;
        for (int i = 0; i < rounds; ++i) {
            lastSeen = i - 1;
            const int before = received;
            const auto t0 = Clock::now();
            peer.writeDatagram(reportFrame(0x89, 10, 0, uchar(i >> 8), uchar(i & 0xff)), QHostAddress::LocalHost, listenPort);
            if (!serveUntil([&] { return received > before; }, 2000)) {
                ++lost;
                continue;
            }
            lat.push_back(ms(Clock::now() - t0));
        }
        std::printf("report latency over %d: p50 %.2f ms, p99 %.2f ms, max %.2f ms, lost %d, out of order %d (target p99 < 10 ms)\n",
                    rounds, percentile(lat, 50), percentile(lat, 99), percentile(lat, 100), lost, outOfOrder);
    }

    // ---- sustained reports, sent by a peer thread (the media service is
    // another process). Two runs of 5 s each:
    //  - paced: the service sends at a fixed 190 /s; every report must be
    //    handed over, in order, and the backlog must stay small;
    //  - ceiling: the service keeps `window` reports unanswered (fewer than
    //    the intake holds before it sheds a flood), which shows the most the
    //    link can take.
    struct Run
    {
        const char *name;
        int ratePerSecond; // 0: window-driven
        int window;
    };
    for (const Run &run : {Run{"paced at 190 /s", 190, 0}, Run{"ceiling, 48 outstanding", 0, 48}}) {
        lastSeen = -1;
        received = 0;
        outOfOrder = 0;
        std::atomic<int> handed{0};
        std::atomic<int> sent{0};
        std::atomic<int> maxBacklog{0};
        std::atomic<bool> running{true};
        std::mutex m;
        std::condition_variable cv;
        sink.onReport = [&](int seq) {
            if (seq != lastSeen + 1)
                ++outOfOrder;
            lastSeen = seq;
            ++received;
            {
                std::lock_guard<std::mutex> lock(m);
                ++handed;
            }
            cv.notify_one();
        };
        const auto start = Clock::now();
        std::thread service([&] {
            QUdpSocket out;
            auto sendOne = [&] {
                const int n = sent.load();
                out.writeDatagram(reportFrame(0x89, 10, 0, uchar((n >> 8) & 0xff), uchar(n & 0xff)),
                                  QHostAddress::LocalHost, listenPort);
                sent.store(n + 1);
                maxBacklog.store(std::max(maxBacklog.load(), n + 1 - handed.load()));
            };
            if (run.ratePerSecond > 0) {
                const auto period = std::chrono::nanoseconds(1000000000LL / run.ratePerSecond);
                for (int n = 0; running.load() && n < run.ratePerSecond * 5; ++n) {
                    std::this_thread::sleep_until(start + n * period);
                    sendOne();
                }
                return;
            }
            while (running.load()) {
                std::unique_lock<std::mutex> lock(m);
                cv.wait_for(lock, std::chrono::milliseconds(20),
                            [&] { return !running.load() || sent.load() - handed.load() < run.window; });
                lock.unlock();
                while (running.load() && sent.load() - handed.load() < run.window)
                    sendOne();
            }
        });
        const double gui0 = cpuSeconds(RUSAGE_THREAD);
        serveUntil([&] { return Clock::now() - start >= std::chrono::seconds(5); }, 6000);
        const int inTime = received;
        const double guiCpu = cpuSeconds(RUSAGE_THREAD) - gui0;
        running = false;
        cv.notify_one();
        service.join();
        serveUntil([&] { return received >= sent.load(); }, 10000);
        const double secs = ms(Clock::now() - start) / 1000.0;
        std::printf("sustained reports, %s: %d sent, %d handed over (%d lost, %d out of order) in %.2f s = %.1f /s; "
                    "%.1f /s within the first 5 s; largest backlog %d (target >= 190 /s)\n",
                    run.name, sent.load(), received, sent.load() - received, outOfOrder, secs, received / secs,
                    inTime / 5.0, maxBacklog.load());
        std::printf("  GUI thread CPU per report: %.3f ms\n", 1000.0 * guiCpu / qMax(1, inTime));
    }
    std::fflush(stdout);
    return 0;
}

#include "bench_link.moc"
