// Text from the companion phone app as one read from the serial link, parsed
// against the push host, and any text turned into the line the app receives.
// Input: one byte choosing the push host (the companion domain, none, or a
// host taken from the input), then the text.
#include "CompanionService.h"
#include "UiproBluetooth_Desktop.h"

#include "../FuzzCheck.h"
#include "../QuietSysroot.h"

#include <cstddef>
#include <cstdint>

namespace {

const QString kTerminator = QStringLiteral("\\r\\n");

void checkParse(const QByteArray &raw, const QString &host)
{
    const UiproBluetooth_Desktop::Message m = UiproBluetooth_Desktop::parse(raw, host);
    const QString text = QString::fromUtf8(raw);
    FUZZ_REQUIRE(m.stopPush == text.contains(QLatin1String("StopPush")));
    if (host.isEmpty() || !text.contains(host) || !text.contains(kTerminator)) {
        FUZZ_REQUIRE(!m.destination && m.fields == 0);
        return;
    }
    FUZZ_REQUIRE(m.fields == text.count(QLatin1Char('#')) + 1);
    FUZZ_REQUIRE(m.destination == (m.fields >= 4));
    if (!m.destination) {
        FUZZ_REQUIRE(m.url.isEmpty() && m.token.isEmpty() && m.data.isEmpty() && m.vertical.isEmpty());
        return;
    }
    // The four fields are the text's first four, in order, and none of them
    // carries a separator or the terminator on to the streaming service.
    for (const QString &field : {m.url, m.token, m.data, m.vertical})
        FUZZ_REQUIRE(!field.contains(QLatin1Char('#')));
    FUZZ_REQUIRE(!m.vertical.contains(kTerminator));
    FUZZ_REQUIRE(text.startsWith(m.url + QLatin1Char('#') + m.token + QLatin1Char('#') + m.data + QLatin1Char('#') + m.vertical));
}

void checkWireLine(const QString &text)
{
    const QByteArray line = UiproBluetooth_Desktop::wireLine(text);
    const QByteArray tail = kTerminator.toLatin1() + '\n';
    FUZZ_REQUIRE(line.endsWith(tail));
    FUZZ_REQUIRE(line.count('\n') == text.toUtf8().count('\n') + 1);
    FUZZ_REQUIRE(QString::fromUtf8(line.chopped(tail.size())) == text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useQuietSysroot();
    if (size < 1)
        return 0;
    // One read from the link is at most this long.
    const QByteArray raw(reinterpret_cast<const char *>(data + 1),
                         int(qMin<size_t>(size - 1, UiproBluetooth_Desktop::kReadBytes)));
    QString host;
    switch (data[0] % 3) {
    case 0:
        host = CompanionService::companionDomain();
        break;
    case 1:
        break;
    default:
        // The first word of the text: a host that surely occurs in it.
        host = QString::fromUtf8(raw).section(QLatin1Char('#'), 0, 0).left(data[0] / 3 + 1);
        break;
    }
    checkParse(raw, host);
    checkWireLine(QString::fromUtf8(raw));
    return 0;
}
