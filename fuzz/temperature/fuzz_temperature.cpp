// Board readings holding anything: the thermal zones' output, the bridge
// upgrade's status nodes, a sysfs read with NUL bytes, a ping's output.
// Input: NUL-separated parts; the first two also serve as the two status
// nodes, and the first eight bytes as two millidegree readings.
#include "BoardControl.h"

#include "../FuzzCheck.h"
#include "../QuietSysroot.h"

#include <QtEndian>

#include <climits>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useQuietSysroot();
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));

    // Any text: nothing when it has no second line, whole degrees otherwise.
    const std::optional<int> anyMax = BoardControl::maxTemperature(input);
    // (Read as Latin-1 text, which for Qt ends at a NUL.)
    FUZZ_REQUIRE(anyMax.has_value() == BoardControl::untilNul(input).contains('\n'));
    if (anyMax)
        FUZZ_REQUIRE(*anyMax >= INT_MIN / 1000 && *anyMax <= INT_MAX / 1000);

    // Two well-formed readings: the hotter one, in whole degrees toward zero.
    if (size >= 8) {
        const qint32 a = qFromLittleEndian<qint32>(data);
        const qint32 b = qFromLittleEndian<qint32>(data + 4);
        const QByteArray cat = QByteArray::number(a) + '\n' + QByteArray::number(b) + '\n' + input.mid(8);
        const std::optional<int> max = BoardControl::maxTemperature(cat);
        FUZZ_REQUIRE(max.has_value() && *max == qMax(a, b) / 1000);
    }

    const QList<QByteArray> parts = input.split('\0');
    const QByteArray upgrade = parts.value(0), update = parts.value(1);
    const int status = BoardControl::bridgeStatus(upgrade, update);
    FUZZ_REQUIRE(status >= 0 && status <= 2);
    FUZZ_REQUIRE((status == 1) == (upgrade == "1\n" && update == "1\n"));
    FUZZ_REQUIRE(status != 2 || upgrade == "2\n" || update == "2\n");
    FUZZ_REQUIRE(BoardControl::bridgeStatus(update, upgrade) == status);

    // The sysfs text up to its first NUL: the input's first part.
    const QByteArray cut = BoardControl::untilNul(input);
    FUZZ_REQUIRE(!cut.contains('\0') && input.startsWith(cut));
    FUZZ_REQUIRE(cut == upgrade);

    // A reply seen in part of the output is seen in the whole.
    const bool answered = BoardControl::pingAnswered(input);
    FUZZ_REQUIRE(!BoardControl::pingAnswered(upgrade) || answered);
    FUZZ_REQUIRE(!BoardControl::pingAnswered(update) || answered);
    FUZZ_REQUIRE(BoardControl::pingAnswered(input + "64 bytes from 10.0.0.1: icmp_seq=1 ttl=64 time=0.1 ms\n"));
    return 0;
}
