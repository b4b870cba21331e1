// Preview path cost against one cold-cache memcpy of a frame, measured in the
// same run: a producer writes 1920x1080 RGB frames as fast as the hand-shake
// allows into the real reader, frame slot and preview control.
//   bench_preview [seconds]             reference, the reader alone, then the whole
//                                       path in a window on the software renderer and
//                                       on OpenGL (one child process each; needs a
//                                       display: run under xvfb-run -a)
//   bench_preview --window software|opengl [seconds]   one of those runs alone
//   --fps N                             pace the producer to N frames/s (default: unthrottled)
#include "PreviewConvert.h"
#include "PreviewItem.h"
#include "PreviewReaderHooks.h"
#include "PreviewTestProducer.h"
#include "UiproGetImageShareData.h"
#include "UiprocImageShow.h"

#include <QGuiApplication>
#include <QMutex>
#include <QProcess>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickView>
#include <QSGRendererInterface>
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

    // Post time of each frame by the serial the frame slot gave it.
    std::vector<qint64> postBySerial = std::vector<qint64>(1 << 16, 0);
    UiprocImageShow *show = nullptr;

    void onFrame(const QImage &frame, qint64 deliveredNs, qint64 cpuNs)
    {
        const QRgb first = frame.pixel(0, 0);
        const quint32 seq = (quint32(qRed(first)) << 16) | (quint32(qGreen(first)) << 8) | quint32(qBlue(first));
        const qint64 posted = postNs[seq & 0xffff];
        // Only this thread delivers: the count is this frame's serial.
        postBySerial[show->framesDelivered() & 0xffff] = posted;
        QMutexLocker lock(&mutex);
        latencyMs.push_back((deliveredNs - posted) / 1e6);
        cpuMs.push_back(cpuNs / 1e6);
    }
};

// One line the parent process reads back from a window run.
struct WindowResult
{
    double fps = 0, cpuMs = 0, cpuNoRasterMs = 0, p50 = 0, p99 = 0, coldMs = 0, readsPerShown = 0;
    QString api;
    bool ok = false;
};

WindowResult parseResult(const QByteArray &out)
{
    WindowResult r;
    for (const QByteArray &line : out.split('\n')) {
        if (!line.startsWith("RESULT "))
            continue;
        for (const QByteArray &kv : line.mid(7).split(' ')) {
            const int eq = kv.indexOf('=');
            const QByteArray k = kv.left(eq), v = kv.mid(eq + 1);
            if (k == "api") r.api = QString::fromLatin1(v);
            else if (k == "fps") r.fps = v.toDouble();
            else if (k == "cpu") r.cpuMs = v.toDouble();
            else if (k == "cpu_noraster") r.cpuNoRasterMs = v.toDouble();
            else if (k == "p50") r.p50 = v.toDouble();
            else if (k == "p99") r.p99 = v.toDouble();
            else if (k == "cold") r.coldMs = v.toDouble();
            else if (k == "reads") r.readsPerShown = v.toDouble();
        }
        r.ok = true;
    }
    return r;
}
} // namespace

int main(int argc, char **argv)
{
    QString windowApi;
    int seconds = 10;
    int fps = 0;
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--window") == 0 && i + 1 < argc)
            windowApi = QString::fromLatin1(argv[++i]);
        else if (qstrcmp(argv[i], "--fps") == 0 && i + 1 < argc)
            fps = atoi(argv[++i]);
        else if (atoi(argv[i]) > 0)
            seconds = atoi(argv[i]);
    }
    const bool display = !windowApi.isEmpty();
    if (windowApi == QLatin1String("software"))
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    else if (display)
        qunsetenv("QT_QUICK_BACKEND");
    qputenv("CS_PREVIEW_SHM_KEY", QByteArray::number(privateKey(1)));
    qputenv("CS_PREVIEW_SEM_KEY", QByteArray::number(privateKey(2)));
    if (!display && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // the reader alone needs no screen
    QGuiApplication app(argc, argv);
    qmlRegisterType<PreviewItem>("cs.Preview", 1, 0, "PreviewItem");

    const double floorMs = memcpyFloorMs();
    double coldMs = memcpyColdMs();
    const double convMs = convertMs();
    const double qtConvMs = qtConvertMs();
    auto *show = new UiprocImageShow;
    Run run;
    run.fps = fps;
    run.show = show;
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
    PreviewItem *item = nullptr;
    std::atomic<quint64> distinctShown{0};
    quint64 lastShownSerial = 0; // touched by the thread that swaps only
    QMutex swapMutex;
    std::vector<std::pair<quint64, qint64>> swaps; // serial shown, swap time
    std::vector<double> guiLagMs;
    QTimer ticker;
    qint64 lastTick = 0;
    QString api;
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
        item = view->rootObject()->findChild<PreviewItem *>(QStringLiteral("previewPicture"));
        view->resize(1280, 720);
        view->show();
        QObject::connect(view.get(), &QQuickWindow::frameSwapped, view.get(), [&] {
            const quint64 serial = item->shownSerial();
            if (serial != lastShownSerial) {
                lastShownSerial = serial;
                distinctShown.fetch_add(1);
                QMutexLocker lock(&swapMutex);
                swaps.emplace_back(serial, nowNs(CLOCK_MONOTONIC));
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
        QEventLoop wait;
        QTimer::singleShot(500, &wait, &QEventLoop::quit);
        wait.exec();
        switch (view->rendererInterface()->graphicsApi()) {
        case QSGRendererInterface::Software: api = QStringLiteral("software"); break;
        case QSGRendererInterface::OpenGL: api = QStringLiteral("opengl"); break;
        default: api = QStringLiteral("other"); break;
        }
    }

    reader->getShareImageData();
    const auto threads0 = threadCpuMs();
    const double cpu0 = processCpuMs();
    const qint64 t0 = nowNs(CLOCK_MONOTONIC);
    std::thread producerThread([&] { run.produce(producer); });
    const quint64 shown0 = distinctShown.load();
    guiLagMs.clear();
    {
        QMutexLocker lock(&swapMutex);
        swaps.clear();
    }

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
    // The reference again, now that the run is over: others on the machine
    // only ever make a copy slower, so the lower of the two is the one used.
    const double coldBeforeMs = coldMs;
    coldMs = std::min(coldMs, memcpyColdMs());

    QMutexLocker lock(&run.mutex);
    const size_t frames = run.latencyMs.size();
    double cpuSum = 0;
    for (double c : run.cpuMs)
        cpuSum += c;
    const double readerCpu = frames ? cpuSum / frames : 0;
    std::printf("frame 1920x1080 RGB888, %d s, producer %s, memcpy floor %.3f ms/frame\n", seconds,
                fps > 0 ? qPrintable(QStringLiteral("paced to %1 frames/s").arg(fps)) : "unthrottled", floorMs);
    std::printf("memcpy with cold caches %.3f ms (the reference; %.3f before the run); RGB888->RGB32 pass %.3f ms (warm); Qt's RGB888->ARGB32PM conversion %.3f ms (new image each time)\n",
                coldMs, coldBeforeMs, convMs, qtConvMs);
    std::printf("memcpy of a frame out of the segment just written by another thread: %.3f ms\n", segCopyMs);
    std::printf("produced %llu, through the reader %zu: %.1f frames/s\n",
                (unsigned long long)run.produced.load(), frames, frames / elapsedS);
    std::printf("latency post -> frame slot: p50 %.3f ms, p99 %.3f ms, max %.3f ms\n", pct(run.latencyMs, 0.5),
                pct(run.latencyMs, 0.99), pct(run.latencyMs, 1.0));
    std::printf("reader CPU per frame: %.3f ms = %.2f x cold memcpy (p50 %.3f, p99 %.3f ms)\n", readerCpu,
                coldMs > 0 ? readerCpu / coldMs : 0, pct(run.cpuMs, 0.5), pct(run.cpuMs, 0.99));
    std::printf("producer CPU per frame: %.3f ms\n", frames ? run.producerCpuNs.load() / 1e6 / run.produced.load() : 0);
    if (display) {
        const quint64 shown = distinctShown.load() - shown0;
        const double otherCpu = cpuMs - run.producerCpuNs.load() / 1e6;
        std::vector<double> swapLatency;
        {
            QMutexLocker swapLock(&swapMutex);
            for (const auto &[serial, at] : swaps) {
                const qint64 posted = run.postBySerial[serial & 0xffff];
                if (posted > 0 && at > posted)
                    swapLatency.push_back((at - posted) / 1e6);
            }
        }
        std::printf("display (%s): %llu distinct frames shown, %.1f frames/s\n", qPrintable(api),
                    (unsigned long long)shown, shown / elapsedS);
        std::printf("display: latency post -> swap p50 %.2f ms, p99 %.2f ms, max %.2f ms\n", pct(swapLatency, 0.5),
                    pct(swapLatency, 0.99), pct(swapLatency, 1.0));
        std::printf("display: CPU (reader + GUI + render, producer excluded) %.2f ms per shown frame = %.2f x cold memcpy\n",
                    shown ? otherCpu / shown : 0, shown && coldMs > 0 ? otherCpu / shown / coldMs : 0);
        std::printf("display: reader share %.2f ms per shown frame (%.2f frames read per frame shown)\n",
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
        std::printf("display: CPU without the producer and the software GL rasteriser (llvmpipe, a GPU on the device): %.2f ms per shown frame = %.2f x cold memcpy\n",
                    shown ? noRaster / shown : 0, shown && coldMs > 0 ? noRaster / shown / coldMs : 0);
        std::printf("GUI thread: 10 ms timer lateness p50 %.2f ms, p99 %.2f ms, max %.2f ms\n", pct(guiLagMs, 0.5),
                    pct(guiLagMs, 0.99), pct(guiLagMs, 1.0));
        std::printf("RESULT api=%s fps=%.2f cpu=%.4f cpu_noraster=%.4f p50=%.3f p99=%.3f cold=%.4f reads=%.3f\n",
                    qPrintable(api), shown / elapsedS, shown ? otherCpu / shown : 0, shown ? noRaster / shown : 0,
                    pct(swapLatency, 0.5), pct(swapLatency, 0.99), coldMs, shown ? double(frames) / shown : 0);
    }
    std::fflush(stdout);
    view.reset();
    producer.removeAll();

    if (!display && !qEnvironmentVariableIsEmpty("DISPLAY")) {
        // The whole path, each renderer in a process of its own (the scene
        // graph backend is chosen once per process).
        std::printf("\n");
        std::vector<std::pair<QString, WindowResult>> results;
        for (const QString &which : {QStringLiteral("software"), QStringLiteral("opengl")}) {
            QProcess child;
            child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            QStringList args{QStringLiteral("--window"), which, QString::number(seconds)};
            if (fps > 0)
                args << QStringLiteral("--fps") << QString::number(fps);
            child.start(QCoreApplication::applicationFilePath(), args);
            child.waitForFinished(seconds * 1000 + 60000);
            const QByteArray out = child.readAllStandardOutput();
            std::printf("== window, %s renderer\n%s\n", qPrintable(which), out.constData());
            results.emplace_back(which, parseResult(out));
        }
        std::printf("SUMMARY (reference: cold memcpy of one frame, %.3f ms in this process)\n", coldMs);
        std::printf("  reader alone: %.3f ms per frame = %.2f x cold memcpy\n", readerCpu, coldMs > 0 ? readerCpu / coldMs : 0);
        for (const auto &[which, r] : results) {
            if (!r.ok) {
                std::printf("  %s: no result\n", qPrintable(which));
                continue;
            }
            std::printf("  %s (scene graph: %s): %.1f distinct frames/s, whole path %.3f ms per shown frame = %.2f x cold memcpy"
                        " (%.2f x without llvmpipe), %.2f reads per shown frame, post->swap p50 %.2f ms p99 %.2f ms\n",
                        qPrintable(which), qPrintable(r.api), r.fps, r.cpuMs, r.coldMs > 0 ? r.cpuMs / r.coldMs : 0,
                        r.coldMs > 0 ? r.cpuNoRasterMs / r.coldMs : 0, r.readsPerShown, r.p50, r.p99);
        }
        std::fflush(stdout);
    }
    // The reader object's destructor pauses 1 s and detaches; not needed here.
    std::_Exit(0);
}
