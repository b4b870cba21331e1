#include "SettingsStore.h"

#include "LogCategories.h"
#include "Logger.h"
#include "Platform.h"

#include <QDir>
#include <QFile>
#include <QSettings>

namespace SettingsStore {

const Key kKeys[43] = {
    {"inputType", KeyType::Int},          {"inputType1", KeyType::Int},
    {"HDMI1VideoFormat", KeyType::String}, {"HDMI2VideoFormat", KeyType::String},
    {"UVC1VideoFormat", KeyType::String}, {"UVC2VideoFormat", KeyType::String},
    {"NDIVideoFormat", KeyType::String},  {"USBVideoFormat", KeyType::String},
    {"pipModeOpen", KeyType::Int},        {"pipModeSelect", KeyType::Int},
    {"inputType2", KeyType::Int},         {"inputType3", KeyType::Int},
    {"rtmpAddr", KeyType::String},        {"rtmpPlatform", KeyType::Int},
    {"rtmpSwitch", KeyType::Int},         {"rtmpMode", KeyType::Int},
    {"tmpRtmpMode", KeyType::Int},        {"rtmpResolution", KeyType::Int},
    {"rtmpBit", KeyType::Int},            {"language", KeyType::Int},
    {"fans", KeyType::Int},               {"version", KeyType::String},
    {"timeZone", KeyType::Int},           {"inputAudio", KeyType::Int},
    {"inputAudio2", KeyType::Int},        {"autoAudio", KeyType::Int},
    {"autoAudio2", KeyType::Int},         {"statisticType", KeyType::Int},
    {"statisticRHPosition", KeyType::Int}, {"statisticBWPosition", KeyType::Int},
    {"statisticRWPosition", KeyType::Int}, {"statisticVPosition", KeyType::Int},
    {"safeFramesType", KeyType::Int},     {"screenBrightness", KeyType::Int},
    {"openLog", KeyType::Int},            {"eventName", KeyType::String},
    {"recordStatus", KeyType::Int},       {"recordStartTime", KeyType::String},
    {"lcdRotation", KeyType::Int},        {"graphicsIndex", KeyType::Int},
    {"curInputIndex", KeyType::Int},      {"isPSTMode", KeyType::Int},
    {"isBlueToothZor", KeyType::Int},
};

namespace {

QString settingKey(const char *name) { return QStringLiteral("/setting/") + QLatin1String(name); }

// A fresh INI reader/writer per operation, UTF-8 before any access.
struct Ini
{
    Ini()
        : s(filePath(), QSettings::IniFormat)
    {
        s.setIniCodec("utf-8");
    }
    QSettings s;
};

} // namespace

QString filePath() { return Platform::appDir() + QStringLiteral("/config/CS_Config.ini"); }

void importFromUserdata()
{
    const QString source = Platform::path(QStringLiteral("/userdata/CS_Config.ini"));
    if (!QFile::exists(source))
        return;
    writeLog(QStringLiteral("find userdata config"));
    const QString target = Platform::path(QStringLiteral("/usr/bin/config/CS_Config.ini"));
    if (QFile::exists(target))
        QFile::remove(target);
    const QString dir = Platform::path(QStringLiteral("/usr/bin/config"));
    if (!QDir(dir).exists())
        QDir().mkdir(dir);
    const bool copied = QFile::copy(source, target);
    qCDebug(lcSettings) << "copy res:" << copied;
    QFile::remove(source);
}

void read(QJsonObject &obj)
{
    Ini ini;
    for (const Key &k : kKeys) {
        const QString key = settingKey(k.name);
        if (!ini.s.contains(key))
            continue;
        const QVariant v = ini.s.value(key);
        if (k.type == KeyType::Int)
            obj.insert(QLatin1String(k.name), v.toInt());
        else
            obj.insert(QLatin1String(k.name), v.toString());
    }
}

void write(const QJsonObject &data)
{
    Ini ini;
    for (const Key &k : kKeys) {
        const QLatin1String name(k.name);
        if (!data.contains(name))
            continue;
        const QJsonValue v = data.value(name);
        if (k.type == KeyType::Int)
            ini.s.setValue(settingKey(k.name), v.toInt());
        else
            ini.s.setValue(settingKey(k.name), v.toString());
    }
    ini.s.sync();
}

bool isFirst()
{
    Ini ini;
    return ini.s.value(QStringLiteral("/setting/First"), true).toBool();
}

void setFirst(bool first)
{
    Ini ini;
    ini.s.setValue(QStringLiteral("/setting/First"), first);
}

QString obsPath()
{
    Ini ini;
    return ini.s.value(QStringLiteral("/setting/OBSPath"), QString()).toString();
}

void setObsPath(const QString &path)
{
    Ini ini;
    ini.s.setValue(QStringLiteral("/setting/OBSPath"), path);
}

int openLogSwitch()
{
    Ini ini;
    return ini.s.value(QStringLiteral("/setting/openLog"), 0).toInt();
}

} // namespace SettingsStore
