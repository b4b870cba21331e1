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

QString path(const QString &devicePath)
{
    const QString root = sysroot();
    if (root.isEmpty() || !devicePath.startsWith(QLatin1Char('/')))
        return devicePath;
    if (devicePath == root || devicePath.startsWith(root + QLatin1Char('/')))
        return devicePath; // already resolved
    return root + devicePath;
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
    if (!sysroot().isEmpty())
        env.insert(QStringLiteral("PATH"), programDirs().join(QLatin1Char(':')));
    return env;
}

QString shellQuote(const QString &word)
{
    static const QRegularExpression safe(QStringLiteral("^[A-Za-z0-9_./:@%+=,-]+$"));
    if (safe.match(word).hasMatch())
        return word;
    QString quoted = word;
    quoted.replace(QLatin1Char('\''), QStringLiteral("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

} // namespace Platform
