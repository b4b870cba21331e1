#include "SettingsStore.h"

#include "LineThrottle.h"
#include "LogCategories.h"
#include "Logger.h"
#include "Platform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <functional>

// The factory settings (config/factory.qrc) live in the static core library:
// nothing would pull them into an executable without this reference.
static void initFactoryResource() { Q_INIT_RESOURCE(factory); }

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

// A fresh INI reader per operation, UTF-8 before any access.
struct Ini
{
    explicit Ini(const QString &file = filePath())
        : s(file, QSettings::IniFormat)
    {
        s.setIniCodec("utf-8");
    }
    QSettings s;
};

// Folders of changes in progress, beside the file.
const QString kWorkPrefix = QStringLiteral(".CS_Config.ini.new-");

void saveFailed(const QString &why)
{
    static LineThrottle throttle;
    writeLogThrottled(throttle, QStringLiteral("settings not saved: ") + why);
}

bool outsideBmp(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSurrogate(); });
}

// QSettings' own sync takes a lock file beside the settings; killed at the
// wrong moment it leaves that lock behind (and the files its stale-lock
// removal makes, one more each time), and a later write may wait for it.
// So a change is made on a copy in a private folder beside the file and
// renamed over it in one step: a reader finds the old file or the new one.
void change(const std::function<void(QSettings &)> &edit)
{
    const QString target = filePath();
    const QFileInfo info(target);
    const QDir dir = info.dir();
    if (!dir.exists())
        return; // nowhere to write, as QSettings would
    // What killed changes left (the store is the file's only writer).
    for (const QString &left : dir.entryList({kWorkPrefix + QLatin1Char('*')}, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot))
        QDir(dir.filePath(left)).removeRecursively();
    QTemporaryDir work(dir.filePath(kWorkPrefix + QStringLiteral("XXXXXX")));
    if (!work.isValid())
        return saveFailed(work.errorString());
    const QString copy = work.filePath(info.fileName());
    if (info.exists() && !QFile::copy(target, copy))
        return saveFailed(QStringLiteral("cannot copy ") + target);
    {
        Ini ini(copy);
        edit(ini.s);
        ini.s.sync();
        // A format error is about the old content (bytes that are not
        // UTF-8, say): the copy is still written, with what could be read
        // and this change. Refusing it would refuse every later save too.
        if (ini.s.status() == QSettings::AccessError)
            return saveFailed(QStringLiteral("cannot write ") + copy);
    }
    if (::rename(QFile::encodeName(copy).constData(), QFile::encodeName(target).constData()) != 0)
        saveFailed(QStringLiteral("cannot replace %1: %2").arg(target, QString::fromLocal8Bit(std::strerror(errno))));
}

} // namespace

QString filePath() { return Platform::appDir() + QStringLiteral("/config/CS_Config.ini"); }

namespace {

// Replaces target with the bytes of source in one rename: a reader sees the
// old file or the new one, and a failed copy leaves the old one in place.
bool replaceAtomically(const QString &source, const QString &target)
{
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly))
        return false;
    QSaveFile out(target);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    char buf[16384];
    // A UTF-8 byte-order mark (Windows editors write one) is not copied:
    // QSettings then silently drops the first save into the file.
    if (in.peek(3) == QByteArray("\xef\xbb\xbf")) {
        in.skip(3);
        writeLog(QStringLiteral("%1: UTF-8 byte-order mark dropped").arg(source));
    }
    for (;;) {
        const qint64 n = in.read(buf, sizeof buf);
        if (n < 0) {
            out.cancelWriting();
            break;
        }
        if (n == 0)
            break;
        if (out.write(buf, n) != n)
            break; // QSaveFile then refuses to commit
    }
    return out.commit();
}

} // namespace

void importFromUserdata()
{
    const QString source = Platform::path(QStringLiteral("/userdata/CS_Config.ini"));
    if (!QFile::exists(source))
        return;
    writeLog(QStringLiteral("find userdata config"));
    const QString dir = Platform::path(QStringLiteral("/usr/bin/config"));
    if (!QDir(dir).exists())
        QDir().mkdir(dir);
    const bool copied = replaceAtomically(source, Platform::path(QStringLiteral("/usr/bin/config/CS_Config.ini")));
    qCDebug(lcSettings) << "copy res:" << copied;
    // Consumed even when the copy failed, so a bad file is not retried at every start.
    QFile::remove(source);
}

bool ensureFile()
{
    const QString target = filePath();
    if (QFileInfo::exists(target))
        return false;
    initFactoryResource();
    QDir().mkpath(QFileInfo(target).absolutePath());
    const bool created = replaceAtomically(QStringLiteral(":/factory/CS_Config.ini"), target);
    writeLog(created ? QStringLiteral("CS_Config.ini missing: factory settings restored")
                     : QStringLiteral("CS_Config.ini missing and the factory settings could not be written"));
    return created;
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
    change([&data](QSettings &s) {
        for (const Key &k : kKeys) {
            const QLatin1String name(k.name);
            if (!data.contains(name))
                continue;
            const QJsonValue v = data.value(name);
            if (k.type == KeyType::Int) {
                s.setValue(settingKey(k.name), v.toInt());
            } else if (outsideBmp(v.toString())) {
                // Qt's INI writer encodes one UTF-16 unit at a time and drops
                // both halves of a pair: the file would hold another text.
                saveFailed(QStringLiteral("%1 holds characters beyond U+FFFF; its previous value stays").arg(name));
            } else {
                s.setValue(settingKey(k.name), v.toString());
            }
        }
    });
}

bool isFirst()
{
    Ini ini;
    return ini.s.value(QStringLiteral("/setting/First"), true).toBool();
}

void setFirst(bool first)
{
    change([first](QSettings &s) { s.setValue(QStringLiteral("/setting/First"), first); });
}

QString obsPath()
{
    Ini ini;
    return ini.s.value(QStringLiteral("/setting/OBSPath"), QString()).toString();
}

void setObsPath(const QString &path)
{
    change([&path](QSettings &s) { s.setValue(QStringLiteral("/setting/OBSPath"), path); });
}

int openLogSwitch()
{
    Ini ini;
    return ini.s.value(QStringLiteral("/setting/openLog"), 0).toInt();
}

} // namespace SettingsStore
