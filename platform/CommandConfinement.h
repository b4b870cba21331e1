#pragma once
// Keeps what a command does inside the sysroot (CS_SYSROOT), so a desktop
// run or a test never writes the host's sysfs, signals its processes or
// runs its programs. On the device (no sysroot) it changes nothing.
//
// Under a sysroot:
// - every shell word whose value starts with "/" (or "name=/") is a device
//   path and is moved under the sysroot, whether quoted or not, in
//   redirections, program paths, arguments and inside $(...); ".." cannot
//   climb above it. Heredoc bodies, comments and words that merely contain
//   a "/" (URLs, "# /etc/x" text) are data and stay as written;
// - the shell starts in the sysroot, and the built-ins with an effect on
//   other processes (kill) are shadowed by functions that run the sysroot's
//   program of that name (PATH already holds only the sysroot's folders);
// - a text that cannot be confined is refused: unbalanced quotes, backquote
//   substitution, ".." together with expansions in a path, or a write
//   redirection that a symbolic link leads out of the sysroot, $(...) nested
//   too deeply.
// Paths built at run time (variables, awk or eval strings) are not seen; the
// product's texts use none, and outside text reaches them quoted.
// Plain data only: usable from any thread.
#include <QString>
#include <QStringList>

class CommandConfinement
{
public:
    // Confinement for the sysroot in force now.
    CommandConfinement();

    bool isActive() const { return !m_root.isEmpty(); }

    // The script for /bin/sh -c: the line itself on the device, the confined
    // text under a sysroot. A null string, with *error set, when the line
    // cannot be confined and so must not run.
    QString shellScript(const QString &line, QString *error) const;

    // A program path or an argument for a direct start: absolute paths (also
    // after "name=") under the sysroot; anything else as written.
    QString word(const QString &word) const;

    // Where children start: the sysroot, or "" to inherit on the device.
    QString workingDirectory() const { return m_root; }

private:
    QString m_root;
};
