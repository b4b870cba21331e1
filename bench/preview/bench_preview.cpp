// Preview path throughput: a producer writes 1920x1080 RGB frames as fast as
// the hand-shake allows into the real reader and provider.
//   bench_preview [seconds]             reader and provider only
//   bench_preview --window [seconds]    plus a QML window showing PreviewImage.qml
//                                       (run under xvfb-run -a)
//   --fps N                             pace the producer to N frames/s (default: unthrottled)
#include "PreviewConvert.h"
#include "PreviewReaderHooks.h"
#include "PreviewTestProducer.h"
#include "UiproGetImageShareData.h"
#include "UiprocImageShow.h"

#include <QGuiApplication>
#include <QMutex>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickView>
#include <QTimer>

#include <algorithm>
#include <map>
#include <string>

#include <dirent.h>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <thread>
#include <vector>

#include <sys/resource.h>

using namespace PreviewTest;

namespace {
constexpr int W = 1920, H = 1080;
constexpr size_t kFrameBytes = size_t(W) * H * 3;

qint64 nowNs(clockid_t c)
{
    timespec ts{};
    clock_gettime(c, &ts);
    return qint64(ts.tv_sec) * 1000000000LL + ts.tv_nsec;
}

double processCpuMs()
{
    rusage ru{};
    getrusage(RUSAGE_SELF, &ru);
    return ru.ru_utime.tv_sec * 1e3 + ru.ru_utime.tv_usec / 1e3 + ru.ru_stime.tv_sec * 1e3
        + ru.ru_stime.tv_usec / 1e3;
}

// Median time of one frame-sized memcpy between warm buffers.
double memcpyFloorMs()
{
    std::vector<uint8_t> a(kFrameBytes, 1), b(kFrameBytes, 2);
    std::vector<double> t;
    for (int i = 0; i < 41; ++i) {
        const qint64 s = nowNs(CLOCK_MONOTONIC);
        std::memcpy(b.data(), a.data(), kFrameBytes);
        t.push_back((nowNs(CLOCK_MONOTONIC) - s) / 1e6);
        a[i] = b[kFrameBytes - 1 - i]; // keep the copies observable
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

// The same copy when source and destination are not in the cache (a frame
// the producer wrote a while ago, a destination not touched recently).
double memcpyColdMs()
{
    constexpr int kBufs = 12; // ~150 MB: far beyond any cache
    std::vector<std::vector<uint8_t>> src(kBufs, std::vector<uint8_t>(kFrameBytes, 3)), dst(kBufs, std::vector<uint8_t>(kFrameBytes, 4));
    std::vector<double> t;
    for (int i = 0; i < 36; ++i) {
        const int k = i % kBufs;
        const qint64 s = nowNs(CLOCK_MONOTONIC);
        std::memcpy(dst[k].data(), src[k].data(), kFrameBytes);
        t.push_back((nowNs(CLOCK_MONOTONIC) - s) / 1e6);
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

// The reader's RGB888 -> RGB32 pass alone on warm buffers.
double convertMs()
{
    std::vector<uint8_t> src(kFrameBytes + 64, 5);
    QImage dst(W, H, QImage::Format_RGB32);
    std::vector<double> t;
    for (int i = 0; i < 41; ++i) {
        const qint64 s = nowNs(CLOCK_MONOTONIC);
        PreviewConvert::rgb888ToRgb32(src.data(), size_t(W) * 3, dst.bits(), size_t(dst.bytesPerLine()), W, H);
        t.push_back((nowNs(CLOCK_MONOTONIC) - s) / 1e6);
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

// What Qt itself would do per frame on the GUI thread for an RGB888 image.
double qtConvertMs()
{
    QImage src(W, H, QImage::Format_RGB888);
    src.fill(Qt::gray);
    std::vector<double> t;
    for (int i = 0; i < 21; ++i) {
        const qint64 s = nowNs(CLOCK_MONOTONIC);
        QImage out = src.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        t.push_back((nowNs(CLOCK_MONOTONIC) - s) / 1e6);
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

// The copy the reader has to make at least once: one frame out of the segment
// right after another thread (the producer) wrote it.
double memcpyFromFreshSegmentMs(uint8_t *segment)
{
    std::vector<uint8_t> px = makePattern(W, H, 2), out(kFrameBytes, 0);
    std::vector<double> t;
    for (int i = 0; i < 21; ++i) {
        px[0] = uint8_t(i);
        std::thread([&] { std::memcpy(segment + 8, px.data(), kFrameBytes); }).join();
        const qint64 s = nowNs(CLOCK_MONOTONIC);
        std::memcpy(out.data(), segment + 8, kFrameBytes);
        t.push_back((nowNs(CLOCK_MONOTONIC) - s) / 1e6);
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

// CPU ms per thread name, from /proc (ticks of 10 ms).
std::map<std::string, double> threadCpuMs()
{
    std::map<std::string, double> out;
    const long hz = sysconf(_SC_CLK_TCK);
    DIR *dir = opendir("/proc/self/task");
    if (!dir)
        return out;
    while (dirent *e = readdir(dir)) {
        if (e->d_name[0] == '.')
            continue;
        const std::string base = std::string("/proc/self/task/") + e->d_name;
        char name[64] = {0};
        if (FILE *f = fopen((base + "/comm").c_str(), "r")) {
            if (fgets(name, sizeof name, f))
                name[strcspn(name, "\n")] = 0;
            fclose(f);
        }
        if (FILE *f = fopen((base + "/stat").c_str(), "r")) {
            char buf[1024] = {0};
            const size_t n = fread(buf, 1, sizeof buf - 1, f);
            fclose(f);
            buf[n] = 0;
            const char *p = strrchr(buf, ')');
            unsigned long ut = 0, st = 0;
            if (p && sscanf(p + 2, "%*c %*d %*d %*d %*d %*d %*u %*u %*u %*u %*u %lu %lu", &ut, &st) == 2)
                out[name] += (ut + st) * 1000.0 / hz;
        }
    }
    closedir(dir);
    return out;
}

double pct(std::vector<double> v, double p)
{
    if (v.empty())
        return 0;
    std::sort(v.begin(), v.end());
    return v[std::min(v.size() - 1, size_t(p * (v.size() - 1) + 0.5))];
}

struct Run
{
    std::atomic<bool> stop{false};
    int fps = 0;
    std::vector<qint64> postNs = std::vector<qint64>(1 << 16, 0);
    std::atomic<quint64> produced{0};
    std::atomic<qint64> producerCpuNs{0};
    QMutex mutex;
    std::vector<double> latencyMs;
    std::vector<double> cpuMs;

    void produce(Producer &p)
    {
        pthread_setname_np(pthread_self(), "benchProducer");
        const qint64 cpu0 = nowNs(CLOCK_THREAD_CPUTIME_ID);
        std::vector<uint8_t> px = makePattern(W, H, 1);
        quint32 seq = 0;
        qint64 next = nowNs(CLOCK_MONOTONIC);
        while (!stop.load()) {
            if (fps > 0) {
                next += 1000000000LL / fps;
                const qint64 wait = next - nowNs(CLOCK_MONOTONIC);
                if (wait > 0)
                    std::this_thread::sleep_for(std::chrono::nanoseconds(wait));
            }
            if (!p.acquire(200))
                continue;
            ++seq;
            px[0] = uint8_t(seq >> 16);
            px[1] = uint8_t(seq >> 8);
            px[2] = uint8_t(seq);
            p.writeHeader(W, H);
            std::memcpy(p.segment() + 8, px.data(), kFrameBytes);
            postNs[seq & 0xffff] = nowNs(CLOCK_MONOTONIC);
            p.post();
            produced.fetch_add(1);
        }
        producerCpuNs.store(nowNs(CLOCK_THREAD_CPUTIME_ID) - cpu0);
    }

    void onFrame(const QImage &frame, qint64 deliveredNs, qint64 cpuNs)
    {
        const QRgb first = frame.pixel(0, 0);
        const quint32 seq = (quint32(qRed(first)) << 16) | (quint32(qGreen(first)) << 8) | quint32(qBlue(first));
        QMutexLocker lock(&mutex);
        latencyMs.push_back((deliveredNs - postNs[seq & 0xffff]) / 1e6);
        cpuMs.push_back(cpuNs / 1e6);
    }
};
} // namespace

int main(int argc, char **argv)
{
    bool display = false;
    int seconds = 10;
    int fps = 0;
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--window") == 0)
            display = true;
        else if (qstrcmp(argv[i], "--fps") == 0 && i + 1 < argc)
            fps = atoi(argv[++i]);
        else if (atoi(argv[i]) > 0)
            seconds = atoi(argv[i]);
    }
    qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(privateKey(1)));
    qputenv("CS_PREVIEW_SEM_KEY", QByteArray::number(privateKey(2)));
    QGuiApplication app(argc, argv);

    const double floorMs = memcpyFloorMs();
    const double coldMs = memcpyColdMs();
    const double convMs = convertMs();
    const double qtConvMs = qtConvertMs();
    auto *show = new UiprocImageShow;
    Run run;
    run.fps = fps;
    PreviewReaderHooks::FrameHook hook = [&run](const QImage &f, qint64 d, qint64 c) { run.onFrame(f, d, c); };
    PreviewReaderHooks::setFrameHook(&hook);

    auto *reader = new UiproGetImageShareData;
    Producer producer(privateKey(1), privateKey(2));
    if (!producer.ok()) {
        std::fprintf(stderr, "cannot open the shared memory\n");
        return 1;
    }

    const double segCopyMs = memcpyFromFreshSegmentMs(producer.segment());

    std::unique_ptr<QQuickView> view;
    std::atomic<quint64> distinctShown{0};
    quint64 lastServed = 0;
    std::vector<double> guiLagMs;
    QTimer ticker;
    qint64 lastTick = 0;
    if (display) {
        view.reset(new QQuickView);
        view->engine()->rootContext()->setContextProperty(QStringLiteral("CodeImage"), show);
        view->engine()->addImageProvider(QStringLiteral("MyMainCodeImg"), show->provider());
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->setSource(QUrl::fromLocalFile(QStringLiteral(CS_SOURCE_DIR "/qml/CONTROLS/PreviewImage.qml")));
        if (view->status() != QQuickView::Ready) {
            std::fprintf(stderr, "cannot load PreviewImage.qml\n");
            return 1;
        }
        view->resize(1280, 720);
        view->show();
        QObject::connect(view.get(), &QQuickWindow::frameSwapped, view.get(), [&] {
            const quint64 served = show->framesServed();
            if (served != lastServed) {
                lastServed = served;
                distinctShown.fetch_add(1);
            }
        }, Qt::DirectConnection);
        // GUI responsiveness: lateness of a 10 ms timer.
        ticker.setTimerType(Qt::PreciseTimer);
        ticker.setInterval(10);
        QObject::connect(&ticker, &QTimer::timeout, [&] {
            const qint64 now = nowNs(CLOCK_MONOTONIC);
            if (lastTick)
                guiLagMs.push_back((now - lastTick) / 1e6 - 10.0);
            lastTick = now;
        });
        ticker.start();
        QTimer warm;
        QEventLoop wait;
        QTimer::singleShot(500, &wait, &QEventLoop::quit);
        wait.exec();
    }

    reader->getShareImageData();
    const auto threads0 = threadCpuMs();
    const double cpu0 = processCpuMs();
    const qint64 t0 = nowNs(CLOCK_MONOTONIC);
    std::thread producerThread([&] { run.produce(producer); });
    const quint64 shown0 = distinctShown.load();
    guiLagMs.clear();

    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();

    run.stop.store(true);
    producerThread.join();
    const double elapsedS = (nowNs(CLOCK_MONOTONIC) - t0) / 1e9;
    const double cpuMs = processCpuMs() - cpu0;
    const auto threads1 = threadCpuMs();
    reader->stopReader();
    PreviewReaderHooks::setFrameHook(nullptr);

    QMutexLocker lock(&run.mutex);
    const size_t frames = run.latencyMs.size();
    double cpuSum = 0;
    for (double c : run.cpuMs)
        cpuSum += c;
    const double readerCpu = frames ? cpuSum / frames : 0;
    std::printf("frame 1920x1080 RGB888, %d s, producer %s, memcpy floor %.3f ms/frame\n", seconds,
                fps > 0 ? qPrintable(QStringLiteral("paced to %1 frames/s").arg(fps)) : "unthrottled", floorMs);
    std::printf("memcpy with cold caches %.3f ms; RGB888->RGB32 pass %.3f ms (warm); Qt's RGB888->ARGB32PM conversion %.3f ms (new image each time)\n",
                coldMs, convMs, qtConvMs);
    std::printf("memcpy of a frame out of the segment just written by another thread: %.3f ms\n", segCopyMs);
    std::printf("produced %llu, through the reader %zu: %.1f frames/s\n",
                (unsigned long long)run.produced.load(), frames, frames / elapsedS);
    std::printf("latency post -> provider: p50 %.3f ms, p99 %.3f ms, max %.3f ms\n", pct(run.latencyMs, 0.5),
                pct(run.latencyMs, 0.99), pct(run.latencyMs, 1.0));
    std::printf("reader CPU per frame: %.3f ms = %.2f x warm memcpy, %.2f x segment memcpy (p50 %.3f, p99 %.3f ms)\n", readerCpu,
                floorMs > 0 ? readerCpu / floorMs : 0, segCopyMs > 0 ? readerCpu / segCopyMs : 0,
                pct(run.cpuMs, 0.5), pct(run.cpuMs, 0.99));
    std::printf("producer CPU per frame: %.3f ms\n", frames ? run.producerCpuNs.load() / 1e6 / run.produced.load() : 0);
    if (display) {
        const quint64 shown = distinctShown.load() - shown0;
        const double otherCpu = cpuMs - run.producerCpuNs.load() / 1e6;
        std::printf("display: %llu distinct frames shown, %.1f frames/s, %llu served\n",
                    (unsigned long long)shown, shown / elapsedS, (unsigned long long)show->framesServed());
        std::printf("display: CPU (reader + GUI + render, producer excluded) %.2f ms per shown frame = %.2f x memcpy\n",
                    shown ? otherCpu / shown : 0, shown && floorMs > 0 ? otherCpu / shown / floorMs : 0);
        std::printf("display: reader share %.2f ms per shown frame (%.1f frames read per frame shown)\n",
                shown ? cpuSum / shown : 0, shown ? double(frames) / shown : 0);
        std::printf("CPU by thread over the run (ms; threads named by Qt/Mesa, 10 ms ticks):");
        for (const auto &t : threads1) {
            const auto before = threads0.find(t.first);
            const double spent = t.second - (before == threads0.end() ? 0 : before->second);
            if (spent >= 10)
                std::printf(" %s=%.0f", t.first.c_str(), spent);
        }
        std::printf("\n");
        double noRaster = 0;
        for (const auto &t : threads1) {
            if (t.first.rfind("llvmpipe", 0) == 0 || t.first == "benchProducer")
                continue;
            const auto before = threads0.find(t.first);
            noRaster += t.second - (before == threads0.end() ? 0 : before->second);
        }
        std::printf("display: CPU without the producer and the software GL rasteriser (llvmpipe, a GPU on the device): %.2f ms per shown frame = %.2f x memcpy\n",
                    shown ? noRaster / shown : 0, shown && floorMs > 0 ? noRaster / shown / floorMs : 0);
        std::printf("GUI thread: 10 ms timer lateness p50 %.2f ms, p99 %.2f ms, max %.2f ms\n", pct(guiLagMs, 0.5),
                    pct(guiLagMs, 0.99), pct(guiLagMs, 1.0));
    }
    std::fflush(stdout);
    view.reset();
    producer.removeAll();
    // The reader object's destructor pauses 1 s and detaches; not needed here.
    std::_Exit(0);
}
