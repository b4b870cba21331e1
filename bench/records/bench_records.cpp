// The record list of a USB disk holding 200 recordings: how long the
// threaded listing takes from the request to the list arriving, against
// a reference measured in the same run (opening and closing each file's
// container without reading its stream information, and a bare directory
// listing with stat), and how long the GUI thread went without serving a
// 5 ms timer meanwhile.
//
//   bench_records [rounds, default 5] [files, default 200]
#include "Mp4File.h"
#include "TestSysroot.h"
#include "UiproRecord_Desktop.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLoggingCategory>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <sys/stat.h>
#include <vector>

extern "C" {
#include <libavformat/avformat.h>
}

namespace {

// Longest wait between two runs of a 5 ms timer on this thread from
// `start` until `finished` says so (or the time-out); the thread sleeps in
// its event loop in between, as the GUI thread does.
double worstTimerGapMs(const std::function<void()> &start, const std::function<bool()> &finished, int timeoutMs)
{
    QElapsedTimer tick;
    qint64 last = 0, gap = 0;
    QEventLoop loop;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const qint64 now = tick.nsecsElapsed();
        gap = std::max(gap, now - last);
        last = now;
        if (finished() || tick.elapsed() > timeoutMs)
            loop.quit();
    });
    timer.start(5);
    tick.start();
    start();
    loop.exec();
    gap = std::max(gap, tick.nsecsElapsed() - last);
    return gap / 1e6;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0 : v[v.size() / 2];
}

double openCloseAll(const QString &dir)
{
    QElapsedTimer t;
    t.start();
    for (const QString &name : QDir(dir).entryList({QStringLiteral("*.mp4")}, QDir::Files, QDir::Name)) {
        AVFormatContext *ctx = nullptr;
        const QByteArray url = QFile::encodeName(dir + QLatin1Char('/') + name);
        if (avformat_open_input(&ctx, url.constData(), nullptr, nullptr) == 0)
            avformat_close_input(&ctx);
    }
    return t.nsecsElapsed() / 1e6;
}

double listAndStat(const QString &dir)
{
    QElapsedTimer t;
    t.start();
    struct stat st;
    for (const QString &name : QDir(dir).entryList({QStringLiteral("*.mp4")}, QDir::Files, QDir::Name))
        ::stat(QFile::encodeName(dir + QLatin1Char('/') + name).constData(), &st);
    return t.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("cs.hardware.debug=false\ncs.shell.debug=false"));
    const int rounds = argc > 1 ? std::max(1, atoi(argv[1])) : 5;
    const int count = argc > 2 ? std::max(1, atoi(argv[2])) : 200;

    TestSysroot sr;
    QDir().mkpath(sr.path(QStringLiteral("/sys/bus/usb/devices/1-1")));
    const QString dir = sr.path(QStringLiteral("/media/usb0"));
    QDir().mkpath(dir);
    QElapsedTimer made;
    made.start();
    for (int i = 0; i < count; ++i) {
        Sim::Mp4Params params;
        params.width = 320;
        params.height = 180;
        params.frames = 3;
        params.lengthMs = 1000 + qint64(i) * 37000; // up to a few hours
        QString why;
        if (!Sim::writeMp4(dir + QStringLiteral("/REC_%1.mp4").arg(i, 4, 10, QLatin1Char('0')), params, &why)) {
            std::fprintf(stderr, "cannot write a recording: %s\n", qPrintable(why));
            return 1;
        }
    }
    std::printf("%d recordings written in %.0f ms\n", count, made.nsecsElapsed() / 1e6);

    UiproRecord_Desktop record;
    std::vector<double> threaded, sync, openClose, dirStat, worstGap, idleGap;
    int listed = 0;
    for (int r = 0; r < rounds; ++r) {
        openClose.push_back(openCloseAll(dir));
        dirStat.push_back(listAndStat(dir));

        QElapsedTimer t;
        t.start();
        sync.push_back((record.get_usb_record_files(), t.nsecsElapsed() / 1e6));

        // The GUI thread serves a 5 ms timer while the listing runs elsewhere;
        // the same timer over the same time with nothing else running is the reference.
        bool arrived = false;
        double took = 0;
        QMetaObject::Connection done = QObject::connect(&record, &UiproRecord_Desktop::updateFileRecord, [&](const QStringList &files) {
            took = t.nsecsElapsed() / 1e6;
            listed = files.size() / 5;
            arrived = true;
        });
        worstGap.push_back(worstTimerGapMs([&] { t.restart(); record.connect_get_usb_record_files(); },
                                           [&] { return arrived; }, 120000));
        threaded.push_back(took);
        QObject::disconnect(done);
        QElapsedTimer idle;
        idleGap.push_back(worstTimerGapMs([&] { idle.start(); }, [&] { return idle.nsecsElapsed() / 1e6 >= took; }, 120000));
    }
    if (listed != count) {
        std::fprintf(stderr, "listed %d of %d recordings\n", listed, count);
        return 1;
    }
    const double ref = median(openClose);
    QFile load(QStringLiteral("/proc/loadavg")); // gaps grow when other work shares the cores
    if (load.open(QIODevice::ReadOnly))
        std::printf("load average: %s", load.readLine().constData());
    std::printf("rounds: %d, files listed: %d\n", rounds, listed);
    std::printf("threaded listing, request to list:   %8.1f ms (median)\n", median(threaded));
    std::printf("same listing on the calling thread:  %8.1f ms\n", median(sync));
    std::printf("reference, open+close each file:     %8.1f ms  -> listing/reference %.2f\n", ref, median(threaded) / ref);
    std::printf("reference, directory listing + stat: %8.1f ms  -> listing/reference %.1f\n", median(dirStat),
                median(threaded) / std::max(1e-3, median(dirStat)));
    std::printf("GUI thread, longest gap of a 5 ms timer: %.1f ms during the threaded listing, %.1f ms idle for as long"
                " -> ratio %.2f (medians; worst during listing %.1f ms)\n",
                median(worstGap), median(idleGap), median(worstGap) / std::max(1e-3, median(idleGap)),
                *std::max_element(worstGap.begin(), worstGap.end()));
    return 0;
}
