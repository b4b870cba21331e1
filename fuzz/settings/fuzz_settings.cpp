// A CS_Config.ini dropped in /userdata holding anything: imported, read, then
// every key written and read back. Input, in NUL-separated parts: the file,
// then the values written (a part each, taken in turn; numbers for the
// number keys, text for the others).
#include "SettingsStore.h"

#include "Platform.h"

#include "../FuzzCheck.h"
#include "../QuietSysroot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace {

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useQuietSysroot();
    const QList<QByteArray> parts = nulParts(data, size);
    const QString dropped = Platform::path(QStringLiteral("/userdata/CS_Config.ini"));
    const QString active = SettingsStore::filePath();
    QFile::remove(active);
    // As on the device, where the executable's folder always exists.
    QDir().mkpath(Platform::appDir());

    // The dropped file replaces the active one byte for byte, once.
    FUZZ_REQUIRE(writeFile(dropped, parts.value(0)));
    SettingsStore::importFromUserdata();
    FUZZ_REQUIRE(!QFileInfo::exists(dropped));
    // (Without a UTF-8 byte-order mark, which would cost the next save.)
    const QByteArray bom("\xef\xbb\xbf");
    FUZZ_REQUIRE(readFile(active) == (parts.value(0).startsWith(bom) ? parts.value(0).mid(3) : parts.value(0)));
    FUZZ_REQUIRE(!SettingsStore::ensureFile());

    // Whatever the file holds, only the known keys come out, each typed.
    QJsonObject read;
    SettingsStore::read(read);
    for (auto it = read.begin(); it != read.end(); ++it) {
        bool known = false;
        for (const SettingsStore::Key &k : SettingsStore::kKeys) {
            if (it.key() != QLatin1String(k.name))
                continue;
            known = true;
            FUZZ_REQUIRE(k.type == SettingsStore::KeyType::Int ? it.value().isDouble() : it.value().isString());
        }
        FUZZ_REQUIRE(known);
    }

    // All keys written come back as written, over whatever was there.
    QJsonObject all;
    int next = 1;
    for (const SettingsStore::Key &k : SettingsStore::kKeys) {
        const QByteArray part = parts.size() > 1 ? parts.at(1 + (next++ - 1) % (parts.size() - 1)) : QByteArray(k.name);
        bool number = false;
        const int value = part.toInt(&number);
        if (k.type == SettingsStore::KeyType::Int)
            all.insert(QLatin1String(k.name), number ? value : int(qHash(part)));
        else
            // Without U+FEFF: QSettings' reader drops it after an escaped
            // character (the UTF-8 decoder takes it for a byte-order mark).
            all.insert(QLatin1String(k.name), QString::fromUtf8(part).remove(QChar(0xfeff)));
    }
    SettingsStore::write(all);
    // A text beyond U+FFFF is refused (the INI writer would lose it): that
    // key keeps what the file held.
    QJsonObject expected = all;
    for (auto it = all.begin(); it != all.end(); ++it) {
        const QString text = it.value().toString();
        if (std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSurrogate(); })) {
            if (read.contains(it.key()))
                expected.insert(it.key(), read.value(it.key()));
            else
                expected.remove(it.key());
        }
    }
    // A text beyond U+FFFF already in the file (written by something else)
    // loses those characters whenever Qt rewrites the file.
    for (auto it = expected.begin(); it != expected.end(); ++it)
        if (it.value().isString()) {
            QString kept;
            for (const QChar c : it.value().toString())
                if (!c.isSurrogate())
                    kept += c;
            it.value() = kept;
        }
    QJsonObject back;
    SettingsStore::read(back);
    for (auto it = expected.begin(); it != expected.end(); ++it) {
        if (back.value(it.key()) != it.value())
            std::fprintf(stderr, "%s: wrote %s, read %s\n", qPrintable(it.key()),
                         qPrintable(it.value().toVariant().toString()), qPrintable(back.value(it.key()).toVariant().toString()));
    }
    FUZZ_REQUIRE(back == expected);

    // A missing file is made from the factory settings.
    QFile::remove(active);
    FUZZ_REQUIRE(SettingsStore::ensureFile());
    FUZZ_REQUIRE(QFileInfo::exists(active) && QFileInfo(active).size() > 0);
    return 0;
}
