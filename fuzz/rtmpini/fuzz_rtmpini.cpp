// A rtmp.ini on the USB disk (and the companion URL file) holding anything:
// imported as the list of URLs offered to the screens, and read the old way
// (last line, URLs printed to the console). Input: one byte of flags, then
// the file; with the low four flag bits all set the file is repeated past
// the import size limit.
#include "UiproRtmp_Desktop.h"

#include "Platform.h"

#include "../FuzzCheck.h"
#include "../QuietSysroot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <unistd.h>

namespace {

// The console output of the reader goes to a file the target reads back.
FILE *captureStdout()
{
    static FILE *capture = [] {
        FILE *f = std::tmpfile();
        std::fflush(stdout);
        ::dup2(fileno(f), STDOUT_FILENO);
        return f;
    }();
    return capture;
}

QByteArray takeStdout()
{
    std::fflush(stdout);
    FILE *f = captureStdout();
    const long end = ::lseek(fileno(f), 0, SEEK_END);
    QByteArray out(int(end), '\0');
    if (end > 0)
        FUZZ_REQUIRE(::pread(fileno(f), out.data(), size_t(end), 0) == end);
    FUZZ_REQUIRE(::ftruncate(fileno(f), 0) == 0);
    ::lseek(fileno(f), 0, SEEK_SET);
    return out;
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}

void checkImport(UiproRtmp_Desktop &rtmp, bool (UiproRtmp_Desktop::*import)(), const QByteArray &file)
{
    QStringList urls;
    QStringList platforms;
    const auto c = QObject::connect(&rtmp, &UiproRtmp_Desktop::sigSendPlatformUrl, [&](const QString &platform, const QString &url) {
        platforms << platform;
        urls << url;
    });
    FUZZ_REQUIRE((rtmp.*import)());
    QObject::disconnect(c);

    FUZZ_REQUIRE(urls.size() <= UiproRtmp_Desktop::kMaxImportUrls);
    // With its size: QString::fromUtf8(QByteArray) would end at a NUL.
    const QByteArray head = file.left(int(UiproRtmp_Desktop::kMaxImportBytes));
    const QString text = QString::fromUtf8(head.constData(), head.size());
    for (int i = 0; i < urls.size(); ++i) {
        const QString &url = urls.at(i);
        FUZZ_REQUIRE(!url.isEmpty() && url.size() <= UiproRtmp_Desktop::kMaxUrlChars);
        FUZZ_REQUIRE(url == url.trimmed());
        for (const QChar ch : url)
            FUZZ_REQUIRE(ch.unicode() >= 0x20 && ch.unicode() != 0x7f && ch != QChar::ReplacementCharacter);
        FUZZ_REQUIRE(text.contains(url));
        FUZZ_REQUIRE(!platforms.at(i).isEmpty());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useQuietSysroot();
    captureStdout();
    if (size < 1)
        return 0;
    QByteArray file(reinterpret_cast<const char *>(data + 1), int(size - 1));
    if ((data[0] & 0x0f) == 0x0f && !file.isEmpty())
        file = file.repeated(int(UiproRtmp_Desktop::kMaxImportBytes / file.size()) + 2);

    UiproRtmp_Desktop rtmp;
    FUZZ_REQUIRE(writeFile(UiproRtmp_Desktop::usbUrlFilePath(), file));
    FUZZ_REQUIRE(writeFile(UiproRtmp_Desktop::zorFilePath(), file));
    checkImport(rtmp, &UiproRtmp_Desktop::getAllUdiskPlatformUrl, file);
    checkImport(rtmp, &UiproRtmp_Desktop::getZorPlatformUrl, file);

    takeStdout();
    const QString last = rtmp.read_rtmp_url_from_u_file();
    const QByteArray printed = takeStdout();
    // The reader's buffer holds 499 bytes of one line, never more.
    FUZZ_REQUIRE(last.toUtf8().size() <= 499 || last.contains(QChar::ReplacementCharacter));
    FUZZ_REQUIRE(!last.contains(QChar(0)));
    // Nothing from the disk reaches the console raw: no control bytes but
    // the line ends, and at most the import limit of URL lines.
    for (const char ch : printed)
        FUZZ_REQUIRE(ch == '\n' || (uchar(ch) >= 0x20 && ch != 0x7f));
    FUZZ_REQUIRE(printed.count("\nurl:") + (printed.startsWith("url:") ? 1 : 0) <= UiproRtmp_Desktop::kMaxImportUrls);
    FUZZ_REQUIRE(printed.endsWith("get url from u disk file OK\n"));
    return 0;
}
