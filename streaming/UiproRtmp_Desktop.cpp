#include "UiproRtmp_Desktop.h"

#include "CompanionService.h"
#include "LineThrottle.h"
#include "Logger.h"
#include "Platform.h"

#include <QFile>
#include <QJsonValue>
#include <QSettings>

#include <algorithm>

namespace {

// A fresh INI reader/writer per operation, UTF-8 before any access; the
// change reaches the file when it goes out of scope.
struct EventFile
{
    EventFile()
        : s(UiproRtmp_Desktop::eventFilePath(), QSettings::IniFormat)
    {
        s.setIniCodec("utf-8");
    }
    QSettings s;
};

// The flag paired with a URL key: by its last character, not its index, so
// streamUrl_10 pairs with streamStatus_0. Saved events rely on this pairing.
QString pairedStatusKey(const QString &urlKey)
{
    return QStringLiteral("%1_%2").arg(QStringLiteral("streamStatus"), urlKey.right(1));
}

// URL keys of the current group in the store's sorted order
// (streamUrl_0, streamUrl_1, streamUrl_10, streamUrl_2 ...).
QStringList urlKeys(const QSettings &s)
{
    QStringList keys;
    for (const QString &key : s.allKeys())
        if (key.contains(QLatin1String("streamUrl")))
            keys << key;
    return keys;
}

// A group name with '/' or '\' would be stored as nested groups (another
// event's keys, or none), and an empty one is the whole file: such names
// are refused at this layer, every other text is kept exactly as typed.
bool usableEventName(const QString &name, const char *operation)
{
    if (!name.isEmpty() && !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\')))
        return true;
    static LineThrottle throttle;
    int held = 0;
    if (throttle.admit(&held))
        writeLog(QStringLiteral("UiproRtmp_Desktop::%1 refuses the event name \"%2\": empty or with '/' or '\\', nothing read or written%3")
                     .arg(QLatin1String(operation), LineThrottle::shown(name, 64),
                          held ? QStringLiteral(" (%1 more refused since the last such line)").arg(held) : QString()));
    return false;
}

qlonglong startTimeOf(QSettings &s, const QString &group)
{
    s.beginGroup(group);
    const qlonglong t = s.value(QStringLiteral("StartTime")).toLongLong();
    s.endGroup();
    return t;
}

void writeStartTime(const QString &strName, const QVariant &startTime)
{
    if (!usableEventName(strName, "createOneEvent"))
        return;
    EventFile f;
    // Asks for a top-level key, never an event (events are groups): an
    // existing event gets its start time overwritten and keeps the rest.
    if (f.s.contains(strName))
        return;
    f.s.beginGroup(strName);
    f.s.setValue(QStringLiteral("StartTime"), startTime);
    f.s.endGroup();
}
} // namespace

UiproRtmp_Desktop::UiproRtmp_Desktop(QObject *parent)
    : QObject(parent)
{
}

QString UiproRtmp_Desktop::eventFilePath() { return Platform::appDir() + QStringLiteral("/config/CS_event.ini"); }
QString UiproRtmp_Desktop::zorFilePath() { return Platform::appDir() + QStringLiteral("/config/CS_Zor_event.ini"); }
QString UiproRtmp_Desktop::usbUrlFilePath() { return Platform::path(QStringLiteral("/media/usb0/rtmp.ini")); }

void UiproRtmp_Desktop::getAllEventInfo()
{
    EventFile f;
    QStringList groups = f.s.childGroups();
    // A foreign file may hold a section no event call can reach (such as
    // "[]"): listing it would show an event that cannot be opened or deleted.
    groups.erase(std::remove_if(groups.begin(), groups.end(),
                                [](const QString &g) { return !usableEventName(g, "getAllEventInfo"); }),
                 groups.end());
    writeLog(QStringLiteral("group=") + groups.join(QStringLiteral(", ")));
    // Equal start times keep their listed order; times are reread at every
    // comparison (a handful of events).
    const int n = groups.size();
    if (n >= 2) {
        for (int i = 0; i < n - 1; ++i)
            for (int j = 0; j < n - 1 - i; ++j)
                if (startTimeOf(f.s, groups.at(j)) > startTimeOf(f.s, groups.at(j + 1)))
                    groups.swapItemsAt(j, j + 1);
    }
    for (int k = n - 1; k >= 0; --k) {
        const QString &name = groups.at(k);
        const qlonglong t = startTimeOf(f.s, name);
        writeLog(QStringLiteral("strKey/nStartTime=") + name + QStringLiteral(" ") + QString::number(t));
        emit sigEventInfo(name, t);
    }
}

// Both overloads: the start time is stored as it was given (text or number).
void UiproRtmp_Desktop::createOneEvent(QString strName, QString strStartTime)
{
    writeStartTime(strName, strStartTime);
}

void UiproRtmp_Desktop::createOneEvent(QString strName, qlonglong nStartTime)
{
    writeStartTime(strName, nStartTime);
}

void UiproRtmp_Desktop::delOneEventByName(QString strName)
{
    writeLog(QStringLiteral("---delOneEventByName--strName=") + strName);
    if (!usableEventName(strName, "delOneEventByName"))
        return;
    EventFile f;
    f.s.remove(strName);
}

QJsonObject UiproRtmp_Desktop::getOneEventInfoByName(QString strName)
{
    QJsonObject info;
    if (strName.isEmpty())
        return info;
    EventFile f;
    for (const QString &group : f.s.childGroups()) {
        if (group != strName)
            continue;
        info.insert(QStringLiteral("eventName"), strName);
        info.insert(QStringLiteral("startTime"), double(startTimeOf(f.s, group)));
        break;
    }
    return info;
}

void UiproRtmp_Desktop::savePaltformUrlsByEventName(QString strName, QStringList listPlatformUrl, QStringList listPlatformStatus)
{
    if (!usableEventName(strName, "savePaltformUrlsByEventName"))
        return;
    EventFile f;
    f.s.remove(strName); // the whole group: start time and parameters too
    f.s.beginGroup(strName);
    for (int i = 0; i < listPlatformUrl.size(); ++i) {
        f.s.setValue(QStringLiteral("%1_%2").arg(QStringLiteral("streamUrl")).arg(i), listPlatformUrl.at(i));
        // The screens pass one flag per URL; a missing one is stored as off
        // rather than reading past the list.
        f.s.setValue(QStringLiteral("%1_%2").arg(QStringLiteral("streamStatus")).arg(i), listPlatformStatus.value(i));
    }
    f.s.setValue(QStringLiteral("PlatformNum"), listPlatformUrl.size());
    f.s.endGroup();
}

void UiproRtmp_Desktop::getPaltformUrlsByName(QString strName, bool isLogoForm)
{
    if (!usableEventName(strName, "getPaltformUrlsByName"))
        return;
    EventFile f;
    f.s.beginGroup(strName);
    for (const QString &key : urlKeys(f.s)) {
        const QString url = f.s.value(key).toString();
        const QString platform = getPlatformNameByUrl(url);
        const bool open = f.s.value(pairedStatusKey(key)).toBool();
        emit sigAddPlatformItem(platform, url, open, isLogoForm);
    }
    f.s.endGroup();
}

QString UiproRtmp_Desktop::getAvailablePaltformUrlsByName(QString strName)
{
    QString urls;
    if (usableEventName(strName, "getAvailablePaltformUrlsByName")) {
        EventFile f;
        f.s.beginGroup(strName);
        for (const QString &key : urlKeys(f.s))
            if (f.s.value(pairedStatusKey(key)).toBool())
                urls += f.s.value(key).toString() + QLatin1Char(',');
        f.s.endGroup();
    }
    urls = urls.left(urls.length() - 1);
    writeLog(QStringLiteral("---------strAvailableUrls=") + urls);
    return urls;
}

int UiproRtmp_Desktop::getAvailablePaltformNumByName(QString strName)
{
    int count = 0;
    if (usableEventName(strName, "getAvailablePaltformNumByName")) {
        EventFile f;
        f.s.beginGroup(strName);
        for (const QString &key : urlKeys(f.s))
            if (f.s.value(pairedStatusKey(key)).toBool())
                ++count;
        f.s.endGroup();
    }
    writeLog(QStringLiteral("---------nAvailableNum=") + QString::number(count));
    return count;
}

bool UiproRtmp_Desktop::removePlatformUrlByEventName(QString strEventName, int nPos)
{
    if (!usableEventName(strEventName, "removePlatformUrlByEventName"))
        return false;
    EventFile f;
    f.s.beginGroup(strEventName);
    const int n = f.s.value(QStringLiteral("PlatformNum")).toInt();
    // Later entries keep their numbers: readers walk keys, not indices.
    if (n <= nPos || nPos < 0) {
        f.s.endGroup();
        return false;
    }
    f.s.remove(QStringLiteral("%1_%2").arg(QStringLiteral("streamUrl")).arg(nPos));
    f.s.remove(QStringLiteral("%1_%2").arg(QStringLiteral("streamStatus")).arg(nPos));
    f.s.setValue(QStringLiteral("PlatformNum"), n - 1);
    f.s.endGroup();
    return true;
}

bool UiproRtmp_Desktop::removePlatformUrlByEventNameAndUrl(QString strEventName, QString strPlatformUrl)
{
    if (!usableEventName(strEventName, "removePlatformUrlByEventNameAndUrl"))
        return true;
    EventFile f;
    f.s.beginGroup(strEventName);
    const int n = f.s.value(QStringLiteral("PlatformNum")).toInt();
    for (const QString &key : urlKeys(f.s)) {
        if (f.s.value(key).toString() != strPlatformUrl)
            continue;
        f.s.remove(key);
        f.s.remove(pairedStatusKey(key));
        f.s.setValue(QStringLiteral("PlatformNum"), n - 1);
        break;
    }
    f.s.endGroup();
    return true;
}

void UiproRtmp_Desktop::savePaltformParamsModelByEventName(QString strEventName, QString strModel)
{
    if (!usableEventName(strEventName, "savePaltformParamsModelByEventName"))
        return;
    EventFile f;
    f.s.beginGroup(strEventName);
    if (!strModel.isEmpty())
        f.s.setValue(QStringLiteral("StreamModel"), strModel);
    f.s.endGroup();
}

void UiproRtmp_Desktop::savePaltformParamsByEventName(QString strEventName, QString strModel, QString strResolution, QString strBitrate)
{
    if (!usableEventName(strEventName, "savePaltformParamsByEventName"))
        return;
    EventFile f;
    f.s.beginGroup(strEventName);
    if (!strModel.isEmpty())
        f.s.setValue(QStringLiteral("StreamModel"), strModel);
    if (!strResolution.isEmpty())
        f.s.setValue(QStringLiteral("Resolution"), strResolution);
    if (!strBitrate.isEmpty())
        f.s.setValue(QStringLiteral("Bitrate"), strBitrate);
    f.s.endGroup();
}

void UiproRtmp_Desktop::getPaltformParamsByEventName(QString strEventName)
{
    if (!usableEventName(strEventName, "getPaltformParamsByEventName"))
        return;
    EventFile f;
    f.s.beginGroup(strEventName);
    const QString model = f.s.value(QStringLiteral("StreamModel")).toString();
    const QString resolution = f.s.value(QStringLiteral("Resolution")).toString();
    const QString bitrate = f.s.value(QStringLiteral("Bitrate")).toString();
    f.s.endGroup();
    emit sigStreamParams(model, resolution, bitrate);
}

namespace {
int intParam(const QString &event, const char *key, const char *operation)
{
    if (!usableEventName(event, operation))
        return 0;
    EventFile f;
    f.s.beginGroup(event);
    const int v = f.s.value(QLatin1String(key)).toInt();
    f.s.endGroup();
    return v;
}
} // namespace

int UiproRtmp_Desktop::getStreamModelByEventName(QString strEventName)
{
    return intParam(strEventName, "StreamModel", "getStreamModelByEventName");
}

int UiproRtmp_Desktop::getResolutionByEventName(QString strEventName)
{
    return intParam(strEventName, "Resolution", "getResolutionByEventName");
}

int UiproRtmp_Desktop::getBitrateByEventName(QString strEventName)
{
    return intParam(strEventName, "Bitrate", "getBitrateByEventName");
}

void UiproRtmp_Desktop::setZorPlatformUrl(QString zorUrl)
{
    QFile file(zorFilePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return; // the event file stays as it was too
    file.write(zorUrl.toUtf8());
    file.close();
    updateZorCurrentPlatformUrl(zorUrl);
}

void UiproRtmp_Desktop::updateZorCurrentPlatformUrl(QString newUrl)
{
    const QString fragment = CompanionService::companionDomain();
    EventFile f;
    f.s.beginGroup(QStringLiteral("Current"));
    // Only replaces: "Current" without a companion-service URL gets none.
    for (const QString &key : urlKeys(f.s)) {
        if (!f.s.value(key).toString().contains(fragment))
            continue;
        f.s.setValue(key, newUrl);
        getPlatformNameByUrl(newUrl);
        f.s.setValue(pairedStatusKey(key), true);
    }
    f.s.endGroup();
}
