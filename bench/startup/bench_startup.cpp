// Start-up time to the first frame of the window and peak RSS, over repeated
// starts of the real executable in a private sysroot.
//   bench_startup [runs=10]        (use xvfb-run -a for a real X server, or QT_QPA_PLATFORM=offscreen)
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int runs = argc > 1 ? std::max(1, atoi(argv[1])) : 10;
    QTemporaryDir root;
    if (QProcess::execute(QStringLiteral("sh"), {QStringLiteral(CS_SOURCE_DIR "/scripts/prepare-sysroot.sh"), root.path()}) != 0)
        return 1;

    std::vector<double> inProcess, wall;
    std::vector<long> rss;
    for (int i = 0; i < runs; ++i) {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("CS_SYSROOT"), root.path());
        env.insert(QStringLiteral("CS_EXIT_AFTER_FIRST_FRAME"), QStringLiteral("1"));
        env.insert(QStringLiteral("CS_LISTEN_PORT"), QStringLiteral("0"));
        p.setProcessEnvironment(env);
        QElapsedTimer t;
        t.start();
        p.start(QStringLiteral(CS_BINARY_DIR "/CSFrontEnd"), QStringList());
        p.waitForFinished(60000);
        const double w = t.elapsed();
        const QString out = QString::fromLocal8Bit(p.readAllStandardOutput());
        const auto m = QRegularExpression(QStringLiteral("first-frame-ms=(\\d+) peak-rss-kb=(\\d+)")).match(out);
        if (!m.hasMatch()) {
            std::fprintf(stderr, "run %d: no first frame reported\n%s\n", i, qPrintable(QString::fromLocal8Bit(p.readAllStandardError())));
            return 1;
        }
        inProcess.push_back(m.captured(1).toDouble());
        rss.push_back(m.captured(2).toLong());
        wall.push_back(w);
    }
    auto median = [](auto v) { std::sort(v.begin(), v.end()); return v[v.size() / 2]; };
    std::printf("runs: %d  platform: %s\n", runs, qgetenv("QT_QPA_PLATFORM").isEmpty() ? "default" : qgetenv("QT_QPA_PLATFORM").constData());
    std::printf("first frame (main() to first frame swapped): median %.0f ms, min %.0f, max %.0f\n", median(inProcess),
                *std::min_element(inProcess.begin(), inProcess.end()), *std::max_element(inProcess.begin(), inProcess.end()));
    std::printf("first frame including exec and exit: median %.0f ms\n", median(wall));
    std::printf("peak RSS at first frame: median %ld kB, max %ld kB\n", median(rss), *std::max_element(rss.begin(), rss.end()));
    return 0;
}
