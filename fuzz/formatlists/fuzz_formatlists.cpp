// The two list reports turned into JSON: the format list of an input and the
// NDI source list. Input: one byte of flags (bit 0: the input is HDMI), two
// bytes of announced length (low first) and the block, up to a full 32 KB.
// Whatever the announced length, only whole entries the block holds come
// out, ranked by weight, and nothing is read past the block.
#include "VideoFormatList.h"

#include "../FuzzCheck.h"
#include "../QuietSysroot.h"

#include <QJsonObject>
#include <QJsonValue>

#include <climits>
#include <cstddef>
#include <cstdint>

namespace {

constexpr int kMaxBlock = 32 * 1024;

int byteAt(const QByteArray &b, int i) { return uchar(b.at(i)); }

void checkFormats(const QByteArray &block, quint16 len, bool interlace)
{
    const QJsonArray formats = VideoFormatList::buildFormatArray(block, len, interlace);
    const int announced = len >= 1 ? (int(len) - 1) / VideoFormatList::kEntrySize : 0;
    const int held = block.size() / VideoFormatList::kEntrySize;
    FUZZ_REQUIRE(formats.size() == qMin(announced, held));
    FUZZ_REQUIRE(formats.size() <= len / VideoFormatList::kEntrySize);

    // The same entries as the block, whatever the order: compare sums.
    qint64 blockWidths = 0, blockTypes = 0, listWidths = 0, listTypes = 0;
    for (int i = 0; i < formats.size(); ++i) {
        const int at = i * VideoFormatList::kEntrySize;
        blockTypes += byteAt(block, at);
        blockWidths += byteAt(block, at + 1) | (byteAt(block, at + 2) << 8);
    }
    int previousWeight = INT_MAX;
    for (const QJsonValue &v : formats) {
        const QJsonObject f = v.toObject();
        const int weight = f.value(QStringLiteral("Weights")).toInt();
        const int type = f.value(QStringLiteral("DataType")).toInt();
        const int width = f.value(QStringLiteral("width")).toInt();
        const int height = f.value(QStringLiteral("height")).toInt();
        const QString fps = f.value(QStringLiteral("Fps")).toString();
        FUZZ_REQUIRE(weight <= previousWeight);
        previousWeight = weight;
        FUZZ_REQUIRE(type >= 0 && type <= 255);
        FUZZ_REQUIRE(width >= 0 && width <= 65535);
        FUZZ_REQUIRE(height >= 0 && height <= 65535);

        // Only HDMI has interlaced formats, always shown with 1080 lines.
        const bool interlaced = fps.endsWith(QLatin1Char('i'));
        FUZZ_REQUIRE(!interlaced || (interlace && height == 1080));
        bool ok = false;
        const int rate = fps.left(fps.size() - (interlaced ? 1 : 0)).toInt(&ok);
        FUZZ_REQUIRE(ok && rate >= 0 && rate <= 255);
        FUZZ_REQUIRE(weight == width - type + rate + (interlaced ? 1081 : height));
        listTypes += type;
        listWidths += width;
    }
    FUZZ_REQUIRE(listTypes == blockTypes);
    FUZZ_REQUIRE(listWidths == blockWidths);
}

void checkSources(const QByteArray &block, quint16 len)
{
    const QJsonArray sources = dealNDISignalToJson(block, len);
    // One source per ';' in the announced part the block holds (after the count byte).
    const QByteArray body = block.mid(1, qMax(0, qMin(int(len), block.size()) - 1));
    FUZZ_REQUIRE(sources.size() == body.count(';'));
    for (const QJsonValue &v : sources) {
        const QJsonObject s = v.toObject();
        FUZZ_REQUIRE(s.contains(QStringLiteral("addr")));
        for (const QString &field : {s.value(QStringLiteral("name")).toString(), s.value(QStringLiteral("addr")).toString()}) {
            FUZZ_REQUIRE(!field.contains(QLatin1Char(',')) && !field.contains(QLatin1Char(';')));
            FUZZ_REQUIRE(field.size() < body.size() + 1);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useQuietSysroot();
    if (size < 3)
        return 0;
    const quint16 len = quint16(data[1] | (data[2] << 8));
    // The engine's own buffer, not a copy (which would end in a NUL): a read
    // past the block's end lands in AddressSanitizer's red zone.
    const QByteArray block = QByteArray::fromRawData(reinterpret_cast<const char *>(data + 3), int(qMin<size_t>(size - 3, kMaxBlock)));

    checkFormats(block, len, data[0] & 1);
    checkFormats(block, len, !(data[0] & 1));
    checkSources(block, len);
    return 0;
}
