// The streaming events' store on a CS_event.ini holding anything. Input, in
// NUL-separated parts: the file, an event name, a start time, then the URLs
// to save for that event (at most ten, so the flag of each pairs with it by
// its last digit). The listing, reading one event, saving URLs and reading
// them back, creating and deleting must agree with one another.
#include "UiproRtmp_Desktop.h"

#include "../FuzzCheck.h"
#include "../QuietSysroot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace {

struct Listed
{
    QString name;
    qlonglong start;
};

QList<Listed> listing(UiproRtmp_Desktop &rtmp)
{
    QList<Listed> events;
    const auto c = QObject::connect(&rtmp, qOverload<QString, qlonglong>(&UiproRtmp_Desktop::sigEventInfo),
                                    [&](const QString &name, qlonglong start) { events.append({name, start}); });
    rtmp.getAllEventInfo();
    QObject::disconnect(c);
    return events;
}

bool listed(const QList<Listed> &events, const QString &name)
{
    for (const Listed &e : events)
        if (e.name == name)
            return true;
    return false;
}

bool usable(const QString &name)
{
    return !name.isEmpty() && !name.contains(QLatin1Char('/')) && !name.contains(QLatin1Char('\\'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useQuietSysroot();
    const QList<QByteArray> parts = nulParts(data, size);
    const QString path = UiproRtmp_Desktop::eventFilePath();
    QDir().mkpath(QFileInfo(path).absolutePath());
    {
        QFile f(path);
        FUZZ_REQUIRE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(parts.value(0));
    }
    const QString name = QString::fromUtf8(parts.value(1));
    const qlonglong start = parts.value(2).toLongLong();
    QStringList urls, flags;
    for (int i = 3; i < parts.size() && urls.size() < 10; ++i) {
        urls << QString::fromUtf8(parts.at(i));
        flags << ((qHash(parts.at(i)) & 1) ? QStringLiteral("true") : QStringLiteral("false"));
    }

    UiproRtmp_Desktop rtmp;

    // Every event once, latest start first, each readable on its own.
    const QList<Listed> events = listing(rtmp);
    for (int i = 0; i < events.size(); ++i) {
        FUZZ_REQUIRE(i == 0 || events.at(i - 1).start >= events.at(i).start);
        for (int j = 0; j < i; ++j)
            FUZZ_REQUIRE(events.at(j).name != events.at(i).name);
        const QJsonObject one = rtmp.getOneEventInfoByName(events.at(i).name);
        if (one.value(QStringLiteral("startTime")).toDouble() != double(events.at(i).start))
            std::fprintf(stderr, "event \"%s\": listed at %lld, read alone %.0f\n", qPrintable(events.at(i).name),
                         events.at(i).start, one.value(QStringLiteral("startTime")).toDouble());
        FUZZ_REQUIRE(one.value(QStringLiteral("eventName")).toString() == events.at(i).name);
        FUZZ_REQUIRE(one.value(QStringLiteral("startTime")).toDouble() == double(events.at(i).start));
    }

    if (!usable(name)) {
        // Refused names change nothing.
        const QByteArray before = parts.value(0);
        rtmp.savePaltformUrlsByEventName(name, urls, flags);
        rtmp.delOneEventByName(name);
        rtmp.createOneEvent(name, start);
        QFile f(path);
        FUZZ_REQUIRE(f.open(QIODevice::ReadOnly) && f.readAll() == before);
        return 0;
    }

    // Saved URLs read back as saved, each with its flag.
    rtmp.savePaltformUrlsByEventName(name, urls, flags);
    QStringList readUrls, readFlags;
    const auto c = QObject::connect(&rtmp, &UiproRtmp_Desktop::sigAddPlatformItem,
                                    [&](const QString &, const QString &url, bool open, bool) {
                                        readUrls << url;
                                        readFlags << (open ? QStringLiteral("true") : QStringLiteral("false"));
                                    });
    rtmp.getPaltformUrlsByName(name);
    QObject::disconnect(c);
    FUZZ_REQUIRE(readUrls == urls);
    FUZZ_REQUIRE(readFlags == flags);
    FUZZ_REQUIRE(rtmp.getAvailablePaltformNumByName(name) == flags.count(QStringLiteral("true")));

    // A saved event is listed; deleted, it is gone and the others stay.
    FUZZ_REQUIRE(listed(listing(rtmp), name));
    rtmp.delOneEventByName(name);
    const QList<Listed> after = listing(rtmp);
    FUZZ_REQUIRE(!listed(after, name));
    for (const Listed &e : events)
        FUZZ_REQUIRE(e.name == name || listed(after, e.name));

    // Created anew, it is listed with its start time.
    rtmp.createOneEvent(name, start);
    const QJsonObject created = rtmp.getOneEventInfoByName(name);
    FUZZ_REQUIRE(created.value(QStringLiteral("eventName")).toString() == name);
    FUZZ_REQUIRE(created.value(QStringLiteral("startTime")).toDouble() == double(start));
    return 0;
}
