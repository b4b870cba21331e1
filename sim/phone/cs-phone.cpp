// cs-phone: plays the companion phone app on a desktop. It opens a
// pseudo-terminal, links its other end as the sysroot's /dev/rfcomm0 (where
// the front end reads the Bluetooth serial link), sends a streaming
// destination and later "StopPush", and prints every line the device writes
// back. Lines typed on standard input are sent as they are.
#include "CompanionService.h"
#include "Platform.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QTimer>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace {

int g_quitPipe[2] = {-1, -1};

void onSignal(int)
{
    const char c = 'q';
    [[maybe_unused]] const ssize_t n = ::write(g_quitPipe[1], &c, 1);
}

// Control characters shown as <0a>, so a real line end is told apart from
// the four characters \r\n the app writes out.
void print(const char *who, const QByteArray &bytes)
{
    QString text;
    for (const QChar c : QString::fromUtf8(bytes).left(2048))
        text += c.isPrint() ? QString(c) : QStringLiteral("<%1>").arg(c.unicode(), 2, 16, QLatin1Char('0'));
    std::printf("cs-phone %s: %s\n", who, text.toUtf8().constData());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCommandLineParser cli;
    cli.setApplicationDescription(QStringLiteral("Plays the companion phone app on the Bluetooth serial link."));
    cli.addHelpOption();
    const QCommandLineOption linkOpt(QStringLiteral("link"), QStringLiteral("node to provide (default $CS_SYSROOT/dev/rfcomm0)"), QStringLiteral("path"));
    const QCommandLineOption urlOpt(QStringLiteral("url"), QStringLiteral("push URL (default https://push.<companion domain>/live/abc)"), QStringLiteral("url"));
    const QCommandLineOption tokenOpt(QStringLiteral("token"), QStringLiteral("token (default TOKEN)"), QStringLiteral("text"), QStringLiteral("TOKEN"));
    const QCommandLineOption roomOpt(QStringLiteral("room"), QStringLiteral("live room id (default ROOM)"), QStringLiteral("text"), QStringLiteral("ROOM"));
    const QCommandLineOption verticalOpt(QStringLiteral("vertical"), QStringLiteral("orientation code, 1 or 2 (default 1)"), QStringLiteral("code"), QStringLiteral("1"));
    const QCommandLineOption sendOpt(QStringLiteral("send-after"), QStringLiteral("seconds before the destination is sent (default 3; negative: never)"), QStringLiteral("s"), QStringLiteral("3"));
    const QCommandLineOption stopOpt(QStringLiteral("stop-after"), QStringLiteral("seconds from the destination to \"StopPush\" (default 20; negative: never)"), QStringLiteral("s"), QStringLiteral("20"));
    const QCommandLineOption holdOpt(QStringLiteral("hold"), QStringLiteral("send nothing unasked; only provide the node and print the answers"));
    const QCommandLineOption secondsOpt(QStringLiteral("seconds"), QStringLiteral("quit after this many seconds (default 0: at SIGINT or SIGTERM)"), QStringLiteral("s"));
    cli.addOptions({linkOpt, urlOpt, tokenOpt, roomOpt, verticalOpt, sendOpt, stopOpt, holdOpt, secondsOpt});
    cli.process(app);

    QString link = cli.value(linkOpt);
    if (link.isEmpty()) {
        // Never take over a real machine's serial node.
        if (Platform::sysroot().isEmpty()) {
            std::fprintf(stderr, "cs-phone: set CS_SYSROOT or give --link\n");
            return 2;
        }
        link = Platform::path(QStringLiteral("/dev/rfcomm0"));
    }
    const QFileInfo existing(link);
    if (existing.exists() && !existing.isSymLink()) {
        std::fprintf(stderr, "cs-phone: %s exists and is not a link; left alone\n", qPrintable(link));
        return 2;
    }

    const int master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (master < 0 || ::grantpt(master) != 0 || ::unlockpt(master) != 0) {
        std::perror("cs-phone: pseudo-terminal");
        return 1;
    }
    // Bytes as the radio carries them: no echo, no line editing, no CR/LF mapping.
    termios t {};
    ::tcgetattr(master, &t);
    ::cfmakeraw(&t);
    ::tcsetattr(master, TCSANOW, &t);
    const QString slave = QString::fromLocal8Bit(::ptsname(master));
    QFile::remove(link);
    if (!QFile::link(slave, link)) {
        std::fprintf(stderr, "cs-phone: cannot link %s to %s\n", qPrintable(link), qPrintable(slave));
        return 1;
    }
    std::printf("cs-phone: %s -> %s\n", qPrintable(link), qPrintable(slave));
    std::fflush(stdout);

    auto send = [master](const QByteArray &bytes) {
        print("sends", bytes);
        if (::write(master, bytes.constData(), size_t(bytes.size())) != bytes.size())
            std::perror("cs-phone: write");
    };

    const QString url = cli.isSet(urlOpt) ? cli.value(urlOpt)
                                          : QStringLiteral("https://push.%1/live/abc").arg(CompanionService::companionDomain());
    // The app writes the line end out as the four characters \r\n.
    const QByteArray destination = (url + QLatin1Char('#') + cli.value(tokenOpt) + QLatin1Char('#') + cli.value(roomOpt)
                                    + QLatin1Char('#') + cli.value(verticalOpt) + QStringLiteral("\\r\\n"))
                                       .toUtf8();
    const bool hold = cli.isSet(holdOpt);
    const double sendAfter = cli.value(sendOpt).toDouble();
    const double stopAfter = cli.value(stopOpt).toDouble();
    const double seconds = cli.value(secondsOpt).toDouble();

    if (!hold && sendAfter >= 0) {
        QTimer::singleShot(int(sendAfter * 1000), &app, [=] { send(destination); });
        if (stopAfter >= 0)
            QTimer::singleShot(int((sendAfter + stopAfter) * 1000), &app, [=] { send("StopPush"); });
    }
    if (seconds > 0)
        QTimer::singleShot(int(seconds * 1000), &app, &QCoreApplication::quit);

    QSocketNotifier answers(master, QSocketNotifier::Read);
    QObject::connect(&answers, &QSocketNotifier::activated, &app, [&] {
        char buf[4096];
        const ssize_t n = ::read(master, buf, sizeof buf);
        if (n > 0)
            print("receives", QByteArray(buf, int(n)));
        else if (n < 0 && errno == EIO)
            answers.setEnabled(false); // device side closed; the notifier is enabled again below
    });
    // EIO while nobody holds the device side: look again now and then.
    QTimer reopen;
    QObject::connect(&reopen, &QTimer::timeout, &app, [&] { answers.setEnabled(true); });
    reopen.start(500);

    QSocketNotifier typed(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&typed, &QSocketNotifier::activated, &app, [&] {
        char buf[4096];
        const ssize_t n = ::read(STDIN_FILENO, buf, sizeof buf);
        if (n <= 0) {
            typed.setEnabled(false); // no terminal (a background run)
            return;
        }
        QByteArray line(buf, int(n));
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        if (!line.isEmpty())
            send(line);
    });

    if (::pipe2(g_quitPipe, O_CLOEXEC) == 0) {
        std::signal(SIGINT, onSignal);
        std::signal(SIGTERM, onSignal);
    }
    QSocketNotifier quit(g_quitPipe[0], QSocketNotifier::Read);
    QObject::connect(&quit, &QSocketNotifier::activated, &app, &QCoreApplication::quit);

    const int rc = app.exec();
    // Take the link away only if it is still ours.
    if (QFileInfo(link).symLinkTarget() == slave)
        QFile::remove(link);
    ::close(master);
    return rc;
}
