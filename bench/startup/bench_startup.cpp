// Start-up cost of the front end against the least a Qt Quick application
// can cost: a bare window of the same size. Both run alternately, in the
// same X server and with the same renderer, so the ratio holds whatever
// the machine; the front end runs against a private sysroot.
//   bench_startup [runs=10]   (under xvfb-run -a, or QT_QPA_PLATFORM=offscreen;
//                              QT_QUICK_BACKEND=software for the software renderer)
#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

struct Sample
{
    double firstFrameMs;
    double rssKb;
};

bool runOnce(const QString &program, const QProcessEnvironment &env, Sample *out)
{
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(program, QStringList());
    p.waitForFinished(60000);
    const QString text = QString::fromLocal8Bit(p.readAllStandardOutput());
    const auto m = QRegularExpression(QStringLiteral("first-frame-ms=(\\d+) peak-rss-kb=(\\d+)")).match(text);
    if (!m.hasMatch()) {
        std::fprintf(stderr, "%s: no first frame reported\n%s\n", qPrintable(program),
                     qPrintable(QString::fromLocal8Bit(p.readAllStandardError())));
        return false;
    }
    *out = Sample{m.captured(1).toDouble(), m.captured(2).toDouble()};
    return true;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int runs = argc > 1 ? std::max(1, atoi(argv[1])) : 10;
    QTemporaryDir root;
    QProcess prepare;
    prepare.start(QStringLiteral("sh"), {QStringLiteral(CS_SOURCE_DIR "/scripts/prepare-sysroot.sh"), root.path()});
    if (!prepare.waitForFinished(60000) || prepare.exitCode() != 0)
        return 1;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("CS_SYSROOT"), root.path());
    env.insert(QStringLiteral("CS_EXIT_AFTER_FIRST_FRAME"), QStringLiteral("1"));
    env.insert(QStringLiteral("CS_LISTEN_PORT"), QStringLiteral("0"));

    std::vector<double> bareMs, bareKb, appMs, appKb;
    for (int i = 0; i < runs; ++i) {
        Sample bare{}, front{};
        if (!runOnce(QStringLiteral(CS_BINARY_DIR "/bench/startup/bench_bare_window"), env, &bare)
            || !runOnce(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"), env, &front))
            return 1;
        bareMs.push_back(bare.firstFrameMs);
        bareKb.push_back(bare.rssKb);
        appMs.push_back(front.firstFrameMs);
        appKb.push_back(front.rssKb);
    }
    const QByteArray backend = qgetenv("QT_QUICK_BACKEND");
    std::printf("runs: %d  platform: %s  renderer: %s\n", runs,
                qgetenv("QT_QPA_PLATFORM").isEmpty() ? "default" : qgetenv("QT_QPA_PLATFORM").constData(),
                backend.isEmpty() ? "default (OpenGL)" : backend.constData());
    std::printf("first frame, median: bare window %.0f ms, front end %.0f ms, ratio %.2f\n", median(bareMs),
                median(appMs), median(appMs) / median(bareMs));
    std::printf("peak RSS at first frame, median: bare window %.0f kB, front end %.0f kB, ratio %.2f\n",
                median(bareKb), median(appKb), median(appKb) / median(bareKb));
    return 0;
}
