// URL import from the USB disk and the companion URL file, and the platform
// recognition table.
#include "UiproRtmp_Desktop.h"

#include "CompanionService.h"
#include "LineThrottle.h"
#include "Logger.h"

#include <QFile>
#include <QTextCodec>

#include <cstdio>
#include <cstring>
#include <unistd.h>

QString UiproRtmp_Desktop::getPlatformNameByUrl(QString strPlatformUrl)
{
    // First match wins: "egame.qq.com" must come before "tencent.com".
    static const struct { const char *fragment; const char *name; } kTable[] = {
        {"douyincdn.com", "tiktok"}, {"huya.com", "huya"},         {"bilivideo.com", "bilibili"},
        {"douyu.com", "douyu"},      {"egame.qq.com", "qie"},      {"tencent.com", "tengxun"},
        {"zoom.com", "zoom"},        {"youtube.com", "youtube"},   {"linkedin.com", "LinkedIn"},
        {"twitter.com", "Twitter"},  {"twitch.com", "Twitch"},     {"facebook.com", "facebook"},
    };
    for (const auto &row : kTable)
        if (strPlatformUrl.contains(QLatin1String(row.fragment)))
            return QLatin1String(row.name);
    if (strPlatformUrl.contains(CompanionService::companionDomain()))
        return QStringLiteral("Zor");
    return QStringLiteral("other");
}

namespace {
// What an import left out, at most once a second.
void logSkipped(const QString &path, qint64 size, int longLines, int binaryLines, int extraUrls)
{
    static LineThrottle throttle;
    int held = 0;
    if (!throttle.admit(&held))
        return;
    QStringList parts;
    if (size > UiproRtmp_Desktop::kMaxImportBytes)
        parts << QStringLiteral("%1 of its %2 bytes after the first %3").arg(size - UiproRtmp_Desktop::kMaxImportBytes).arg(size).arg(UiproRtmp_Desktop::kMaxImportBytes);
    if (longLines)
        parts << QStringLiteral("%1 lines over %2 characters").arg(longLines).arg(UiproRtmp_Desktop::kMaxUrlChars);
    if (binaryLines)
        parts << QStringLiteral("%1 lines with control characters or bytes that are not UTF-8").arg(binaryLines);
    if (extraUrls)
        parts << QStringLiteral("%1 URLs after the first %2").arg(extraUrls).arg(UiproRtmp_Desktop::kMaxImportUrls);
    writeLog(QStringLiteral("URL import from %1 skipped %2%3")
                 .arg(path, parts.join(QStringLiteral(", ")),
                      held ? QStringLiteral(" (%1 more such imports since the last line)").arg(held) : QString()));
}

// Binary content is no URL: a control character or a byte sequence that
// did not decode (U+FFFD).
bool isText(const QString &line)
{
    for (const QChar c : line)
        if (c.unicode() < 0x20 || c.unicode() == 0x7f || c.unicode() == 0xfffd)
            return false;
    return true;
}
} // namespace

bool UiproRtmp_Desktop::importUrlFile(const QString &path, const QString &logPrefix)
{
    writeLog(logPrefix + path);
    QFile file(path);
    // Not in text mode: that drops every CR, so a line with a stray CR in
    // it would be offered as one URL made of two. Line ends are trimmed below.
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // Only the head of an oversized file is read; a line cut at the limit
    // is dropped rather than offered half.
    const qint64 size = file.size();
    QByteArray bytes = file.read(kMaxImportBytes);
    const bool truncated = size > kMaxImportBytes || !file.atEnd();
    if (truncated) {
        const int lastEnd = bytes.lastIndexOf('\n');
        bytes.truncate(lastEnd < 0 ? 0 : lastEnd);
    }
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes);
    int longLines = 0;
    int binaryLines = 0;
    int extraUrls = 0;
    int emitted = 0;
    for (const QStringRef &raw : text.splitRef(QLatin1Char('\n'))) {
        const QString line = raw.trimmed().toString();
        if (line.isEmpty())
            continue;
        if (line.size() > kMaxUrlChars) {
            ++longLines;
            continue;
        }
        if (!isText(line)) {
            ++binaryLines;
            continue;
        }
        if (emitted >= kMaxImportUrls) {
            ++extraUrls;
            continue;
        }
        writeLog(QStringLiteral("line======") + line);
        emit sigSendPlatformUrl(getPlatformNameByUrl(line), line);
        ++emitted;
    }
    if (truncated || longLines || binaryLines || extraUrls)
        logSkipped(path, qMax(size, qint64(bytes.size())), longLines, binaryLines, extraUrls);
    return true;
}

bool UiproRtmp_Desktop::getAllUdiskPlatformUrl()
{
    return importUrlFile(usbUrlFilePath(), QStringLiteral("------getAllUdiskPlatformUrl---strPath="));
}

bool UiproRtmp_Desktop::getZorPlatformUrl()
{
    return importUrlFile(zorFilePath(), QStringLiteral("------getAllUdiskPlatformUrl---strZorPath="));
}

QString UiproRtmp_Desktop::read_rtmp_url_from_u_file()
{
    const QByteArray path = QFile::encodeName(usbUrlFilePath());
    if (access(path.constData(), F_OK) != 0) {
        printf("no rtmp set file\n");
        fflush(stdout);
        return QString();
    }
    FILE *fp = fopen(path.constData(), "r");
    if (!fp) {
        printf("open rtmp set file wrong\n");
        fflush(stdout);
        return QString();
    }
    char buf[500];
    memset(buf, 0, sizeof buf);
    // A read at the end of the file leaves buf alone, so it ends holding the
    // last line. The head of an oversized file only, as for the import.
    // Counted by hand: ftell is a system call per line. A piece with NUL
    // bytes counts at least one, so the bound holds for any content.
    qint64 consumed = 0;
    int printed = 0;
    int unprinted = 0;
    while (consumed < kMaxImportBytes && fgets(buf, sizeof buf, fp)) {
        size_t len = strlen(buf);
        consumed += qint64(qMax<size_t>(len, 1));
        if (len <= 6)
            continue;
        // The line end as the board's files have it: LF, then a CR before
        // that position, whether or not the LF was there.
        if (buf[len - 1] == '\n')
            buf[len - 1] = '\0';
        if (buf[len - 2] == '\r')
            buf[len - 2] = '\0';
        len = strlen(buf);
        if (printed < kMaxImportUrls) {
            // Control bytes from the disk do not reach the console as they are.
            char shown[sizeof buf];
            for (size_t i = 0; i <= len; ++i)
                shown[i] = (i < len && (uchar(buf[i]) < 0x20 || buf[i] == 0x7f)) ? '?' : buf[i];
            printf("url:%s\n", shown);
            ++printed;
        } else {
            ++unprinted;
        }
    }
    if (!feof(fp) && fgetc(fp) != EOF)
        printf("rtmp set file: only the first %lld bytes read\n", (long long)consumed);
    if (unprinted)
        printf("rtmp set file: %d more urls not printed\n", unprinted);
    fclose(fp);
    printf("get url from u disk file OK\n");
    fflush(stdout);
    return QString::fromUtf8(buf);
}
