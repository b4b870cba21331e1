#pragma once
// The three ways the product runs system commands. Everything that starts
// a program goes through here, so a sysroot run confines it and a test can
// swap in a recording runner to assert the exact command texts.
#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QStringList>

class QProcess;

class ShellRunner
{
public:
    virtual ~ShellRunner() = default;
    // A command line run through /bin/sh, like system(): the wait status, or -1 when it could not run.
    virtual int system(const QString &line) = 0;
    // The same, with its standard output read back, like popen().
    virtual QByteArray output(const QString &line) = 0;
    // A program run directly (no shell), waiting at most timeoutMs for it to
    // finish; whatever it printed by then is returned.
    virtual QByteArray process(const QString &program, const QStringList &args, int timeoutMs) = 0;
};

// Runs commands for real, in Platform::childEnvironment(). Under a sysroot
// they are confined to it (CommandConfinement); a command text that cannot
// be confined is not run: system() gives -1 and output() nothing.
class SystemShellRunner : public ShellRunner
{
public:
    int system(const QString &line) override;
    QByteArray output(const QString &line) override;
    QByteArray process(const QString &program, const QStringList &args, int timeoutMs) override;
};

namespace Shell {
constexpr int kProcessTimeoutMs = 30000;

int system(const QString &line);
QByteArray output(const QString &line);
QByteArray process(const QString &program, const QStringList &args, int timeoutMs = kProcessTimeoutMs);

// The asynchronous form: starts the command line in `process` through
// /bin/sh, confined like system(), and returns at once; the caller has
// connected the process's signals and reads its output as it comes. It does
// not go through the runner (a recording runner has no process to give).
// False, with nothing started, when the line cannot be confined.
bool startAsync(QProcess &process, const QString &line, QIODevice::OpenMode mode = QIODevice::ReadWrite);

// Replaces the runner for the whole process (tests); nullptr restores the real one.
// The caller keeps ownership and must outlive every use.
void setRunner(ShellRunner *runner);
ShellRunner &runner();
} // namespace Shell
