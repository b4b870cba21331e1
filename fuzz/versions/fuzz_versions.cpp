// Upgrade images on the USB disk with any names: each name turned into its
// version entry, and the listing of a disk holding files with those names.
// Input: the names, NUL- or newline-separated; each is made one path
// component (a '/' becomes '_'; "." and ".." are skipped) so the files stay
// in the disk's folder.
#include "UiproVersion_Desktop.h"

#include "Platform.h"

#include "../FuzzCheck.h"
#include "../QuietSysroot.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

void checkEntry(const QString &name)
{
    const QString entry = UiproVersion_Desktop::versionEntry(name);
    const int cut = name.indexOf(QLatin1Char('_'), 8);
    if (cut < 0) {
        FUZZ_REQUIRE(entry == name);
    } else {
        // The name turned at the cut, one '_' joining the two pieces: the
        // same characters plus that '_', each piece whole.
        FUZZ_REQUIRE(entry.size() == name.size() + 1);
        QString a = entry, b = name + QLatin1Char('_');
        std::sort(a.begin(), a.end());
        std::sort(b.begin(), b.end());
        FUZZ_REQUIRE(a == b);
        FUZZ_REQUIRE(entry.endsWith(QLatin1Char('_') + name.left(cut + 1)));
        FUZZ_REQUIRE(entry.startsWith(name.mid(cut + 1)));
    }
    const int number = UiproVersion_Desktop::versionNumber(entry);
    FUZZ_REQUIRE(number >= 0);
    // Turning moves digits around, so only a name without digits is sure
    // to give the same number (none) both ways.
    bool digits = false;
    for (const QChar c : name)
        digits = digits || c.isNumber();
    if (!digits)
        FUZZ_REQUIRE(number == 0 && UiproVersion_Desktop::versionNumber(name) == 0);
}

bool isImage(const QString &name)
{
    static const QRegularExpression release(QRegularExpression::wildcardToRegularExpression(QStringLiteral("ZORVANE_RELEASE_*.img")),
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression alpha(QRegularExpression::wildcardToRegularExpression(QStringLiteral("ZORVANE_ALPHA_*.img")),
                                          QRegularExpression::CaseInsensitiveOption);
    return release.match(name).hasMatch() || alpha.match(name).hasMatch();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useQuietSysroot();
    QByteArray input(reinterpret_cast<const char *>(data), int(size));
    input.replace('\n', '\0');

    const QString disk = Platform::path(QStringLiteral("/media/usb0"));
    QDir(disk).removeRecursively();
    FUZZ_REQUIRE(QDir().mkpath(disk));

    QSet<QString> images;
    for (const QByteArray &part : input.split('\0')) {
        QString name = QString::fromUtf8(part).replace(QLatin1Char('/'), QLatin1Char('_'));
        // A file name holds at most 255 bytes.
        while (name.toUtf8().size() > 255)
            name.chop(1);
        if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String(".."))
            continue;
        checkEntry(name);
        QFile f(disk + QLatin1Char('/') + name);
        if (!f.open(QIODevice::WriteOnly))
            continue;
        f.close();
        if (isImage(name))
            images.insert(name);
    }

    UiproVersion_Desktop versions;
    const QStringList list = versions.getUpgradeVersionList();
    // Every image once, as its entry, in version order.
    FUZZ_REQUIRE(list.size() == images.size());
    QSet<QString> entries;
    for (const QString &image : images)
        entries.insert(UiproVersion_Desktop::versionEntry(image));
    for (int i = 0; i < list.size(); ++i) {
        FUZZ_REQUIRE(entries.contains(list.at(i)));
        FUZZ_REQUIRE(i == 0 || UiproVersion_Desktop::versionNumber(list.at(i - 1)) <= UiproVersion_Desktop::versionNumber(list.at(i)));
    }
    return 0;
}
