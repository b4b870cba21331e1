#include "Startup.h"

#include "LogCategories.h"
#include "UiProc.h"
#include "PreviewItem.h"
#include "UiprocImageShow.h"
#include "UiproBluetooth_Desktop.h"
#include "UiprocMain_Desktop.h"
#include "UiprocNetwork.h"
#include "UiprocPublic.h"
#include "UiprocVideo_Desktop.h"
#include "UiproRtmp_Desktop.h"
#include "UiproGetAudioShareData.h"
#include "UiproGetImageShareData.h"
#include "UiproRecord_Desktop.h"
#include "UiproVersion_Desktop.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QFontDatabase>
#include <QThreadPool>

#include <atomic>
#include <cstdio>

#include <pthread.h>
#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Startup {

void pinCurrentThread(int cpu)
{
    (void)syscall(SYS_gettid);
    cpu_set_t set;
    CPU_ZERO(&set);
    CPU_SET(cpu, &set);
    // A board or desktop without that core simply keeps the old mask.
    (void)pthread_setaffinity_np(pthread_self(), sizeof set, &set);
}

void selectFontConfiguration()
{
    if (qEnvironmentVariableIsSet("FONTCONFIG_FILE"))
        return;
    const QString program = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath();
    const QString conf = QFileInfo(program).path() + QStringLiteral("/config/fonts.conf");
    if (program.isEmpty() || !QFileInfo::exists(conf)
        || !QFileInfo::exists(QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"))
        || !QFileInfo::exists(QStringLiteral("/usr/share/fonts/truetype/wqy/wqy-microhei.ttc")))
        return;
    qputenv("FONTCONFIG_FILE", QFile::encodeName(conf));
}

void warmFontDatabase()
{
    QThreadPool::globalInstance()->start([] {
        // The pool thread inherited the main thread's single core.
        cpu_set_t any;
        CPU_ZERO(&any);
        const long cores = sysconf(_SC_NPROCESSORS_ONLN);
        for (long i = 0; i < cores && i < CPU_SETSIZE; ++i)
            CPU_SET(int(i), &any);
        (void)pthread_setaffinity_np(pthread_self(), sizeof any, &any);
        // Populating is done under Qt's font database lock; the GUI thread's
        // first text waits on that lock instead of doing the work itself.
        (void)QFontDatabase().families();
    });
}

void registerQmlTypes()
{
    qmlRegisterType<UiProc>("xpose.UiProc", 1, 0, "UiProcType");
    qmlRegisterType<UiprocImageShow>("xpose.UiprocImageShow", 1, 0, "UiprocImageShow_Desktop");
    qmlRegisterType<UiproGetImageShareData>("xpose.UiproGetImageShareData", 1, 0, "UiproGetImageShareData_Desktop");
    qmlRegisterType<UiprocVideo_Desktop>("xpose.UiproVideoDesktop", 1, 0, "UiproVideo_Desktop");
    qmlRegisterType<UiprocMain_Desktop>("xpose.UiprocMain_Desktop", 1, 0, "UiproMain_Desktop");
    qmlRegisterType<UiprocPublic>("cs.UiprocPublic", 1, 0, "UiprocPublic_Desktop");
    qmlRegisterType<UiproGetAudioShareData>("xpose.UiproGetAudioShareData", 1, 0, "UiproGetAudioShareData_Desktop");
    qmlRegisterType<UiprocNetwork>("xpose.UiprocNetwork", 1, 0, "UiprocNetwork");
    qmlRegisterType<UiproRecord_Desktop>("xpose.UiproRecordDesktop", 1, 0, "UiproRecord_Desktop");
    qmlRegisterType<UiproVersion_Desktop>("xpose.UiproVersionDesktop", 1, 0, "UiproVersion_Desktop");
    qmlRegisterType<UiproRtmp_Desktop>("xpose.UiproRtmpDesktop", 1, 0, "UiproRtmp_Desktop");
    qmlRegisterType<UiproBluetooth_Desktop>("xpose.UiproBluetoothDesktop", 1, 0, "UiproBluetooth_Desktop");
    qmlRegisterType<PreviewItem>("cs.Preview", 1, 0, "PreviewItem");
}

bool isWatchStart(const QStringList &arguments)
{
    return arguments.size() > 1 && arguments.at(1).contains(QLatin1String("watch"));
}

QUrl mainDocument()
{
    const QString override = qEnvironmentVariable("CS_MAIN_QML");
    if (!override.isEmpty())
        return QUrl::fromLocalFile(QFileInfo(override).absoluteFilePath());
    return QUrl(QStringLiteral("qrc:/main.qml"));
}

namespace {
QElapsedTimer g_sinceStart;

// Peak resident set size of this process, in kB (0 when unknown).
long peakRssKb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return 0;
}
} // namespace

void markProcessStart()
{
    g_sinceStart.start();
}

QString startPage()
{
    return qEnvironmentVariable("CS_START_PAGE").trimmed();
}

QVariantMap aboutInfo()
{
    QVariantMap info;
    info.insert(QStringLiteral("version"), QStringLiteral(CS_APP_VERSION));
    info.insert(QStringLiteral("buildDate"), QStringLiteral(__DATE__ " " __TIME__));
    info.insert(QStringLiteral("qtVersion"), QString::fromLatin1(qVersion()));
    return info;
}

void selectVirtualKeyboard()
{
    if (!qEnvironmentVariableIsSet("QT_IM_MODULE"))
        qputenv("QT_IM_MODULE", "qtvirtualkeyboard");
    // The keyboard lives in the main window, never in a window of its own.
    qputenv("QT_VIRTUALKEYBOARD_DESKTOP_DISABLE", "1");
}

void scheduleDevelopmentHooks(QObject *root)
{
    if (qEnvironmentVariableIsSet("CS_EXIT_AFTER_FIRST_FRAME") && root) {
        if (auto *window = qobject_cast<QQuickWindow *>(root)) {
            // The time is taken as the frame is swapped (on whichever thread
            // swaps it), before anything the window does in reply.
            QObject::connect(window, &QQuickWindow::frameSwapped, window, [] {
                static std::atomic<bool> reported{false};
                if (reported.exchange(true))
                    return;
                std::printf("first-frame-ms=%lld peak-rss-kb=%ld\n", g_sinceStart.elapsed(), peakRssKb());
                std::fflush(stdout);
                QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
            }, Qt::DirectConnection);
        }
    }
    const QString shot = qEnvironmentVariable("CS_SCREENSHOT");
    if (!shot.isEmpty() && root) {
        bool ok = false;
        int after = qEnvironmentVariableIntValue("CS_SCREENSHOT_AFTER_MS", &ok);
        if (!ok)
            after = 5000;
        QTimer::singleShot(after, root, [root, shot] {
            QQuickWindow *window = qobject_cast<QQuickWindow *>(root);
            if (!window)
                window = root->findChild<QQuickWindow *>();
            if (!window) {
                qCWarning(lcApp) << "screenshot: no window";
                return;
            }
            const bool saved = window->grabWindow().save(shot);
            qCInfo(lcApp).noquote() << "screenshot" << shot << (saved ? "saved" : "NOT saved");
        });
    }
    bool ok = false;
    const int quitAfter = qEnvironmentVariableIntValue("CS_QUIT_AFTER_MS", &ok);
    if (ok && quitAfter > 0)
        QTimer::singleShot(quitAfter, QCoreApplication::instance(), &QCoreApplication::quit);
}

} // namespace Startup
