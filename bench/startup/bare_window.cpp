// The reference for the start-up benchmark: the least a Qt Quick
// application can do, one empty window of the panel's size, with the same
// first-frame report as the front end.
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <atomic>
#include <cstdio>

namespace {
QElapsedTimer g_clock;

long peakRssKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    return 0;
}
} // namespace

int main(int argc, char **argv)
{
    g_clock.start();
    QGuiApplication app(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick 2.15\nimport QtQuick.Window 2.15\n"
                    "Window { visible: true; width: 1920; height: 1080; color: \"#101214\" }\n");
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        return 1;
    // Timed as the frame is swapped, exactly as the front end times itself.
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [] {
        static std::atomic<bool> reported{false};
        if (reported.exchange(true))
            return;
        std::printf("first-frame-ms=%lld peak-rss-kb=%ld\n", g_clock.elapsed(), peakRssKb());
        std::fflush(stdout);
        QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
    }, Qt::DirectConnection);
    return app.exec();
}
