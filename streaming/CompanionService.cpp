#include "CompanionService.h"

#include "LineThrottle.h"
#include "Logger.h"

namespace CompanionService {

namespace {
// A host fragment: letters, digits, '.', '-', and ':' for a port. Anything
// else (blanks, '/', quotes) would make the URL matching or the request
// host mean something else than the value says.
bool usable(const QString &value)
{
    if (value.isEmpty() || value.size() > 253)
        return false;
    for (const QChar c : value) {
        const ushort u = c.unicode();
        const bool ok = (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '.'
            || u == '-' || u == ':';
        if (!ok)
            return false;
    }
    return true;
}
} // namespace

QString companionDomain()
{
    const QString value = qEnvironmentVariable("CS_COMPANION_DOMAIN").trimmed();
    if (value.isEmpty())
        return QLatin1String(kDefaultDomain);
    if (usable(value))
        return value;
    static LineThrottle throttle;
    writeLogThrottled(throttle, QStringLiteral("CS_COMPANION_DOMAIN \"%1\" is not a host name fragment, using %2")
                                    .arg(LineThrottle::shown(value, 64), QLatin1String(kDefaultDomain)));
    return QLatin1String(kDefaultDomain);
}

QString companionHost() { return QStringLiteral("https://") + companionDomain(); }

} // namespace CompanionService
