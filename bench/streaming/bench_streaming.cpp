// How long the screens wait for the streaming store on hostile USB files and
// a full event file, against a plain read-and-split of the same file head
// measured in the same run. Usage: bench_streaming [rounds]
#include "Logger.h"
#include "UiproRtmp_Desktop.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

double worstMs(int rounds, const std::function<void()> &work)
{
    qint64 worst = 0;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer t;
        t.start();
        work();
        worst = std::max(worst, t.nsecsElapsed());
    }
    return worst / 1e6;
}

void write(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    if (f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        f.write(bytes);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int rounds = argc > 1 ? std::max(1, atoi(argv[1])) : 10;
    QTemporaryDir root;
    qputenv("CS_SYSROOT", root.path().toLocal8Bit());
    QDir().mkpath(root.path() + "/usr/bin/config");
    Logger::instance().setSwitch(1); // the run's log is written, as on a device with logging on

    QByteArray urls, garbage(10 * 1024 * 1024, '\0');
    while (urls.size() < 10 * 1024 * 1024)
        urls += "rtmp://live.twitch.com/app/key_" + QByteArray::number(urls.size()) + "\n";
    for (int i = 0; i < garbage.size(); ++i)
        garbage[i] = char((i * 7919) % 251);
    const QByteArray longLines = QByteArray(100000, 'x') + "\n" + QByteArray(100000, 'y') + "\nrtmp://h/k\n";

    UiproRtmp_Desktop rtmp;
    int urlsOffered = 0;
    QObject::connect(&rtmp, &UiproRtmp_Desktop::sigSendPlatformUrl, [&] { ++urlsOffered; });
    const QString usb = root.path() + "/media/usb0/rtmp.ini";
    printf("%-34s %10s %10s %8s %8s\n", "worst of rounds", "store ms", "ref ms", "ratio", "offered");
    for (const auto &[name, bytes] : {std::pair{"10 MB of URLs", urls}, std::pair{"10 MB of binary garbage", garbage},
                                      std::pair{"two 100 000-character lines", longLines}}) {
        write(usb, bytes);
        const double ref = worstMs(rounds, [&] {
            QFile f(usb);
            f.open(QIODevice::ReadOnly | QIODevice::Text);
            volatile int n = QString::fromUtf8(f.read(UiproRtmp_Desktop::kMaxImportBytes)).split('\n').size();
            (void)n;
        });
        urlsOffered = 0;
        const double store = worstMs(rounds, [&] { rtmp.getAllUdiskPlatformUrl(); });
        printf("%-34s %10.1f %10.1f %8.1f %8d\n", name, store, ref, store / std::max(ref, 0.001), urlsOffered / rounds);
    }

    QStringList eleven, on;
    for (int i = 0; i < 11; ++i)
        eleven << QStringLiteral("rtmp://a.rtmp.youtube.com/live2/key%1").arg(i), on << QStringLiteral("true");
    for (int e = 0; e < 30; ++e) {
        rtmp.savePaltformUrlsByEventName(QStringLiteral("Event %1").arg(e), eleven, on);
        rtmp.createOneEvent(QStringLiteral("Event %1").arg(e), qlonglong(1700000000000) + e * 3600000);
    }
    const double ref = worstMs(rounds, [&] {
        QFile f(UiproRtmp_Desktop::eventFilePath());
        f.open(QIODevice::ReadOnly);
        volatile int n = f.readAll().split('\n').size();
        (void)n;
    });
    const double list = worstMs(rounds, [&] { rtmp.getAllEventInfo(); });
    const double save = worstMs(rounds, [&] { rtmp.savePaltformUrlsByEventName("Current", eleven, on); });
    printf("%-34s %10.1f %10.1f %8.1f\n", "list 30 events", list, ref, list / std::max(ref, 0.001));
    printf("%-34s %10.1f %10.1f %8.1f\n", "save 11 URLs among 30 events", save, ref, save / std::max(ref, 0.001));
    printf("target: every call under 100 ms on the GUI thread\n");
    return 0;
}
