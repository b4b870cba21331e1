// Datagram sequences from several senders, with time passing, fed to the
// block collector. The input is a list of steps: one byte naming the
// sender (low 3 bits), one byte of milliseconds to wait (times 16), two
// bytes of length (little-endian) and that many bytes of datagram.
// Whatever comes, a record handed on is whole (its block as long as
// announced), no more blocks are open than allowed, and none outlives its
// time limit.
#include "BlockCollector.h"

#include "../QuietSysroot.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool ok)
{
    if (!ok)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    useQuietSysroot();
    BlockCollector collector;
    qint64 now = 0;
    size_t at = 0;
    while (at + 4 <= size) {
        const BlockCollector::Sender from{QStringLiteral("127.0.0.1"), quint16(1 + (data[at] & 7))};
        now += qint64(data[at + 1]) * 16;
        const size_t length = qMin(size_t(data[at + 2] | (data[at + 3] << 8)), size - at - 4);
        const QByteArray datagram(reinterpret_cast<const char *>(data + at + 4), int(length));
        at += 4 + length;

        const auto rec = collector.feed(datagram, from, now, data[at - length - 4] & 8);
        if (rec) {
            if (rec->CMD == 0xF1)
                require(rec->arryDatablock.size() == combineTwoByte(rec->DAT3, rec->DAT4));
            else
                require(rec->arryDatablock.isEmpty());
        }
        require(collector.openBlocks() <= BlockCollector::kMaxOpenBlocks);
        const qint64 deadline = collector.nextDeadline();
        require(deadline < 0 || deadline > now);
    }
    collector.expire(now + BlockCollector::kLimitMs);
    require(collector.openBlocks() == 0);
    return 0;
}
