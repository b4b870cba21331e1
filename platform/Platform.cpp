#include "Platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

namespace Platform {

QString sysroot()
{
    QString root = qEnvironmentVariable("CS_SYSROOT");
    while (root.size() > 1 && root.endsWith(QLatin1Char('/')))
        root.chop(1);
    return root;
}

namespace {
// A device path with its "." and ".." taken as the device would from "/":
// never above the root. Paths without them are kept as written.
QString withinRoot(const QString &devicePath)
{
    const QStringList parts = devicePath.split(QLatin1Char('/'));
    if (!parts.contains(QLatin1String("..")) && !parts.contains(QLatin1String(".")))
        return devicePath;
    QStringList kept;
    for (const QString &part : parts) {
        if (part == QLatin1String("..")) {
            if (!kept.isEmpty())
                kept.removeLast();
        } else if (!part.isEmpty() && part != QLatin1String(".")) {
            kept << part;
        }
    }
    const bool folder = parts.constLast().isEmpty() || parts.constLast() == QLatin1String(".")
        || parts.constLast() == QLatin1String("..");
    return QLatin1Char('/') + kept.join(QLatin1Char('/')) + (folder && !kept.isEmpty() ? QStringLiteral("/") : QString());
}
} // namespace

QString path(const QString &devicePath)
{
    const QString root = sysroot();
    if (root.isEmpty() || !devicePath.startsWith(QLatin1Char('/')))
        return devicePath;
    if (devicePath == root || devicePath.startsWith(root + QLatin1Char('/')))
        return root + withinRoot(devicePath.mid(root.size())); // already resolved
    return root + withinRoot(devicePath);
}

QString appDir()
{
    const QString root = sysroot();
    if (!root.isEmpty())
        return root + QStringLiteral("/usr/bin");
    if (QCoreApplication::instance())
        return QCoreApplication::applicationDirPath();
    return QDir::currentPath();
}

QStringList programDirs()
{
    const QString root = sysroot();
    if (root.isEmpty())
        return qEnvironmentVariable("PATH").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return {root + QStringLiteral("/bin"), root + QStringLiteral("/sbin"),
            root + QStringLiteral("/usr/bin"), root + QStringLiteral("/usr/sbin")};
}

QProcessEnvironment childEnvironment()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    const QString root = sysroot();
    if (!root.isEmpty()) {
        env.insert(QStringLiteral("PATH"), programDirs().join(QLatin1Char(':')));
        env.insert(QStringLiteral("HOME"), root); // "cd" and "~" stay inside too
    }
    return env;
}

QString shellQuote(const QString &word)
{
    // Anchored at the very end: "$" would also match before a final newline.
    static const QRegularExpression safe(QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z0-9_./:@%+=,-]+")));
    if (safe.match(word).hasMatch())
        return word;
    QString quoted = word;
    quoted.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

} // namespace Platform
