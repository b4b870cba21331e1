// cs-mediasim: plays the device's media service on a desktop so that the
// real front end can run against it.
#include "LogCategories.h"
#include "Mp4File.h"
#include "Platform.h"
#include "SimDevice.h"
#include "SimMedia.h"
#include "SimScript.h"
#include "SimServer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QThreadPool>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <vector>
#include <fcntl.h>
#include <unistd.h>

namespace {

int g_signalPipe[2] = {-1, -1};

void onSignal(int)
{
    const char c = 1;
    const ssize_t n = ::write(g_signalPipe[1], &c, 1);
    (void)n;
}

quint16 portFrom(const QCommandLineParser &p, const QCommandLineOption &opt, const char *env, quint16 fallback, bool *ok)
{
    QString text = p.isSet(opt) ? p.value(opt) : QString::fromLatin1(qgetenv(env));
    if (text.isEmpty())
        return fallback;
    bool good = false;
    const uint v = text.toUInt(&good);
    if (!good || v > 65535) {
        qCCritical(lcSim).noquote() << "bad port" << text.left(20);
        *ok = false;
        return fallback;
    }
    return quint16(v);
}

// Drawing cost per frame, so a chosen size and rate can be checked against
// the frame period without running the whole simulator.
int benchRender(int width, int height, int fps, int frames)
{
    frames = qBound(1, frames, 100000);
    std::vector<uchar> buffer(size_t(width) * size_t(height) * 3);
    std::printf("render %dx%d, %d frames per input, PIP on (frame period at %d fps: %.2f ms)\n", width, height, frames, fps,
                1000.0 / fps);
    for (int input = 0; input < Sim::kInputCount; ++input) {
        Sim::Scene scene;
        scene.programme = input;
        scene.pipOn = true;
        scene.pipInput = (input + 1) % Sim::kInputCount;
        QElapsedTimer t;
        t.start();
        for (int i = 0; i < frames; ++i)
            Sim::Picture::render(buffer.data(), width, height, scene, qint64(i) * 1000 / fps, fps);
        std::printf("  %-6s %.3f ms/frame\n", Sim::inputName(input), double(t.nsecsElapsed()) / 1e6 / frames);
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("cs-mediasim"));
    registerProtocolTypes();

    QCommandLineParser p;
    p.setApplicationDescription(QStringLiteral("Simulated media service for the switcher front end."));
    p.addHelpOption();
    const QCommandLineOption portOpt(QStringLiteral("port"), QStringLiteral("UDP port for commands (default CS_MEDIA_PORT or 5560)."), QStringLiteral("port"));
    const QCommandLineOption listenOpt(QStringLiteral("listen-port"), QStringLiteral("Front end's report port (default CS_LISTEN_PORT or 1259; 0: last sender)."), QStringLiteral("port"));
    const QCommandLineOption sizeOpt(QStringLiteral("size"), QStringLiteral("Preview size WxH (default 1280x720)."), QStringLiteral("WxH"), QStringLiteral("1280x720"));
    const QCommandLineOption fpsOpt(QStringLiteral("fps"), QStringLiteral("Preview frames per second (default 30)."), QStringLiteral("n"), QStringLiteral("30"));
    const QCommandLineOption secondsOpt(QStringLiteral("seconds"), QStringLiteral("Run time in seconds, 0 for ever (default 0)."), QStringLiteral("n"), QStringLiteral("0"));
    const QCommandLineOption scriptOpt(QStringLiteral("script"), QStringLiteral("Timed events, one per line (\"5.0 unplug 0\")."), QStringLiteral("file"));
    const QCommandLineOption verboseOpt(QStringLiteral("verbose"), QStringLiteral("Log every frame received and sent (category cs.sim)."));
    const QCommandLineOption noPreviewOpt(QStringLiteral("no-preview"), QStringLiteral("Do not produce preview frames."));
    const QCommandLineOption noAudioOpt(QStringLiteral("no-audio"), QStringLiteral("Do not produce audio levels."));
    const QCommandLineOption removeOpt(QStringLiteral("remove-ipc-on-exit"), QStringLiteral("Remove the shared segments and semaphores on exit."));
    const QCommandLineOption benchOpt(QStringLiteral("bench-render"), QStringLiteral("Draw N frames per input at --size, print the time per frame and exit."), QStringLiteral("n"));
    p.addOptions({portOpt, listenOpt, sizeOpt, fpsOpt, secondsOpt, scriptOpt, verboseOpt, noPreviewOpt, noAudioOpt, removeOpt, benchOpt});
    p.process(app);

    bool ok = true;
    const quint16 port = portFrom(p, portOpt, "CS_MEDIA_PORT", 5560, &ok);
    const quint16 listenPort = portFrom(p, listenOpt, "CS_LISTEN_PORT", 1259, &ok);
    const QStringList size = p.value(sizeOpt).split(QLatin1Char('x'));
    int width = 0, height = 0;
    if (size.size() == 2) {
        width = size.at(0).toInt();
        height = size.at(1).toInt();
    }
    QString why;
    if (!Sim::PreviewProducer::validSize(width, height, &why)) {
        qCCritical(lcSim).noquote() << "bad --size" << p.value(sizeOpt).left(20) << "-" << why;
        ok = false;
    }
    bool good = false;
    const int fps = p.value(fpsOpt).toInt(&good);
    if (!good || fps < 1 || fps > 240) {
        qCCritical(lcSim).noquote() << "--fps must be 1..240";
        ok = false;
    }
    const double seconds = p.value(secondsOpt).toDouble(&good);
    if (!good || seconds < 0) {
        qCCritical(lcSim).noquote() << "--seconds must be 0 or more";
        ok = false;
    }
    if (!ok)
        return 2;
    if (p.isSet(benchOpt))
        return benchRender(width, height, fps, p.value(benchOpt).toInt());

    // Stop cleanly on SIGTERM/SIGINT: the handler only writes to a pipe.
    if (::pipe2(g_signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        qCCritical(lcSim).noquote() << "cannot create the signal pipe";
        return 1;
    }
    QSocketNotifier signalNotifier(g_signalPipe[0], QSocketNotifier::Read);
    QObject::connect(&signalNotifier, &QSocketNotifier::activated, &app, [&] {
        char buf[16];
        while (::read(g_signalPipe[0], buf, sizeof buf) > 0) {
        }
        qCInfo(lcSim).noquote() << "signal received, stopping";
        app.quit();
    });
    struct sigaction sa = {};
    sa.sa_handler = onSignal;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &sa, nullptr);
    sigaction(SIGINT, &sa, nullptr);

    Sim::Device device;
    // A stopped recording leaves a real MP4 of its length on the disk, written
    // off the socket's thread.
    device.setRecordingSink([](const QString &devicePath, qint64 elapsedMs) {
        const QString file = Platform::path(devicePath);
        QThreadPool::globalInstance()->start([file, elapsedMs] {
            QString why;
            if (Sim::writeMp4(file, Sim::recordingParams(elapsedMs), &why))
                qCInfo(lcSim).noquote() << "recording written:" << file;
            else
                qCWarning(lcSim).noquote() << "recording not written:" << file << why;
        });
    });
    Sim::Server server(&device);
    server.setVerbose(p.isSet(verboseOpt));
    if (!server.start(port, listenPort))
        return 1;

    std::unique_ptr<Sim::PreviewProducer> preview;
    if (!p.isSet(noPreviewOpt)) {
        preview.reset(new Sim::PreviewProducer(Sim::envKey("CS_PREVIEW_SHM_KEY", 0x1005), Sim::envKey("CS_PREVIEW_SEM_KEY", 1234),
                                               width, height, fps));
        if (preview->open()) {
            preview->setScene(Sim::Scene::from(device.state()));
            preview->start();
        } else {
            qCWarning(lcSim).noquote() << "running without preview";
        }
    }
    Sim::AudioProducer audio(Sim::envKey("CS_AUDIO_SHM_KEY", 6100));
    if (!p.isSet(noAudioOpt)) {
        if (audio.open()) {
            audio.setScene(Sim::Scene::from(device.state()));
            audio.start();
        } else {
            qCWarning(lcSim).noquote() << "running without audio levels";
        }
    }
    QObject::connect(&server, &Sim::Server::stateChanged, &app, [&] {
        const Sim::Scene scene = Sim::Scene::from(device.state());
        if (preview)
            preview->setScene(scene);
        audio.setScene(scene);
    });

    if (p.isSet(scriptOpt))
        server.runScript(Sim::Script::load(p.value(scriptOpt)));
    if (seconds > 0)
        QTimer::singleShot(int(qMin(seconds, 2e6) * 1000), &app, &QCoreApplication::quit);

    const int rc = app.exec();

    if (preview)
        preview->stop();
    if (p.isSet(removeOpt)) {
        if (preview)
            preview->removeIpc();
        if (!p.isSet(noAudioOpt))
            audio.removeIpc();
    }
    qCInfo(lcSim).noquote() << QStringLiteral("stopped after %1 commands, %2 rejected datagrams, %3 preview frames")
                                   .arg(server.commandsHandled())
                                   .arg(server.datagramsRejected())
                                   .arg(preview ? preview->framesWritten() : 0);
    ::close(g_signalPipe[0]);
    ::close(g_signalPipe[1]);
    return rc;
}
