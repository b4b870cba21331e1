// Output of `route -n` holding anything, read for eth0's gateway. Input: four
// bytes of a gateway address, then the text. The gateway found is always
// one column of the text (or "0.0.0.0"), and a well-formed eth0 default
// route added at the end is the one found, whatever came before.
#include "UiprocNetwork.h"

#include "../FuzzCheck.h"
#include "../QuietSysroot.h"

#include <cstddef>
#include <cstdint>

namespace {

bool hasGatewayLine(const QString &text)
{
    for (const QString &line : text.split(QLatin1Char('\n')))
        if (line.contains(QLatin1String("eth0")) && line.contains(QLatin1Char('G')))
            return true;
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useQuietSysroot();
    if (size < 4)
        return 0;
    const QString text = QString::fromLocal8Bit(reinterpret_cast<const char *>(data + 4), int(size - 4));

    const QString found = UiprocNetwork::gatewayFromRoute(text);
    if (!hasGatewayLine(text)) {
        FUZZ_REQUIRE(found == QLatin1String("0.0.0.0"));
    } else {
        FUZZ_REQUIRE(!found.contains(QLatin1Char(' ')) && !found.contains(QLatin1Char('\n')));
        FUZZ_REQUIRE(text.contains(found));
    }

    const QString gateway = QStringLiteral("%1.%2.%3.%4").arg(data[0]).arg(data[1]).arg(data[2]).arg(data[3]);
    const QString table = text + QStringLiteral("\n0.0.0.0         ") + gateway
        + QStringLiteral("     0.0.0.0         UG    100    0        0 eth0\n");
    FUZZ_REQUIRE(UiprocNetwork::gatewayFromRoute(table) == gateway);
    FUZZ_REQUIRE(UiprocNetwork::isDottedIPv4(gateway));
    return 0;
}
