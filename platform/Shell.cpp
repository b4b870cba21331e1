#include "Shell.h"

#include "LineThrottle.h"

#include "CommandConfinement.h"
#include "LogCategories.h"
#include "Platform.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QProcess>
#include <QStandardPaths>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

// A command the sysroot cannot hold is not run. Its text may come partly
// from outside, so the line is cut, escaped and written at most once a second.
void logRefused(const QString &line, const QString &why)
{
    static LineThrottle throttle;
    int held = 0;
    if (!throttle.admit(&held))
        return;
    qCWarning(lcShell).noquote() << "not run, it cannot be kept inside the sysroot (" + why + "):" << LineThrottle::shown(line, 200)
                                 << (held ? QStringLiteral("(%1 more not run since the last message)").arg(held) : QString());
}

// Spawns /bin/sh -c line with the child environment. posix_spawn keeps this
// safe to call from any thread of a multi-threaded process.
int spawnShell(const QString &line, QByteArray *out)
{
    QString why;
    const QString script = CommandConfinement().shellScript(line, &why);
    if (!why.isEmpty()) {
        logRefused(line, why);
        return -1;
    }
    const QProcessEnvironment env = Platform::childEnvironment();
    std::vector<std::string> envStrings;
    for (const QString &key : env.keys())
        envStrings.push_back((key + QLatin1Char('=') + env.value(key)).toStdString());
    std::vector<char *> envp;
    for (std::string &s : envStrings)
        envp.push_back(s.data());
    envp.push_back(nullptr);

    std::string cmd = script.toLocal8Bit().toStdString();
    char sh[] = "sh";
    char dashC[] = "-c";
    char *argv[] = {sh, dashC, cmd.data(), nullptr};

    int fds[2] = {-1, -1};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (out) {
        if (pipe2(fds, O_CLOEXEC) != 0) {
            posix_spawn_file_actions_destroy(&actions);
            return -1;
        }
        posix_spawn_file_actions_adddup2(&actions, fds[1], STDOUT_FILENO);
    }
    pid_t pid = -1;
    const int rc = posix_spawn(&pid, "/bin/sh", &actions, nullptr, argv, envp.data());
    posix_spawn_file_actions_destroy(&actions);
    if (out)
        ::close(fds[1]);
    if (rc != 0) {
        if (out)
            ::close(fds[0]);
        qCWarning(lcShell).noquote() << "cannot start /bin/sh for:" << line;
        return -1;
    }
    if (out) {
        char buf[4096];
        for (;;) {
            const ssize_t n = ::read(fds[0], buf, sizeof buf);
            if (n > 0)
                out->append(buf, int(n));
            else if (n < 0 && errno == EINTR)
                continue;
            else
                break;
        }
        ::close(fds[0]);
    }
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR)
            return -1;
    }
    return status;
}

SystemShellRunner g_systemRunner;
std::atomic<ShellRunner *> g_runner{nullptr};

} // namespace

int SystemShellRunner::system(const QString &line)
{
    qCDebug(lcShell).noquote() << "sh:" << line;
    return spawnShell(line, nullptr);
}

QByteArray SystemShellRunner::output(const QString &line)
{
    qCDebug(lcShell).noquote() << "sh (read):" << line;
    QByteArray out;
    spawnShell(line, &out);
    return out;
}

QByteArray SystemShellRunner::process(const QString &program, const QStringList &args, int timeoutMs)
{
    qCDebug(lcShell).noquote() << "process:" << program << args.join(QLatin1Char(' '));
    const CommandConfinement confinement;
    QString exe = program;
    if (!program.contains(QLatin1Char('/'))) {
        // Look the program up where the child would, never in the host's PATH under a sysroot.
        exe = QStandardPaths::findExecutable(program, Platform::programDirs());
        if (exe.isEmpty()) {
            qCWarning(lcShell).noquote() << "program not found:" << program;
            return {};
        }
    } else {
        exe = confinement.word(program);
    }
    QStringList confinedArgs;
    for (const QString &arg : args)
        confinedArgs << confinement.word(arg);
    QProcess proc;
    proc.setProcessEnvironment(Platform::childEnvironment());
    proc.setWorkingDirectory(confinement.workingDirectory());
    proc.start(exe, confinedArgs, QIODevice::ReadOnly);
    if (!proc.waitForStarted(timeoutMs))
        return {};
    proc.waitForFinished(timeoutMs);
    QByteArray out = proc.readAllStandardOutput();
    if (proc.state() != QProcess::NotRunning) {
        proc.kill();
        proc.waitForFinished(1000);
    }
    return out;
}

namespace Shell {

ShellRunner &runner()
{
    ShellRunner *r = g_runner.load();
    return r ? *r : g_systemRunner;
}

void setRunner(ShellRunner *r) { g_runner.store(r); }

int system(const QString &line) { return runner().system(line); }
QByteArray output(const QString &line) { return runner().output(line); }
QByteArray process(const QString &program, const QStringList &args, int timeoutMs)
{
    return runner().process(program, args, timeoutMs);
}

bool startAsync(QProcess &process, const QString &line, QIODevice::OpenMode mode)
{
    qCDebug(lcShell).noquote() << "sh (async):" << line;
    QString why;
    const QString script = CommandConfinement().shellScript(line, &why);
    if (!why.isEmpty()) {
        logRefused(line, why);
        return false;
    }
    process.setProcessEnvironment(Platform::childEnvironment());
    process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script}, mode);
    return true;
}

} // namespace Shell
