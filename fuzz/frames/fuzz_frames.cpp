// Arbitrary bytes as they could come from the media service: parsed as a
// report datagram (header plus block), taken field by field as a record,
// and fed to the report dispatcher and the list builders. Nothing may
// crash, read out of bounds or hang.
#include "ProtocolFrame.h"
#include "UiprocVideo_Desktop.h"
#include "VideoFormatList.h"

#include "../QuietSysroot.h"

#include <cstddef>
#include <cstdint>

namespace {

UiprocVideo_Desktop &dispatcher()
{
    useQuietSysroot();
    static UiprocVideo_Desktop video;
    return video;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    UiprocVideo_Desktop &video = dispatcher();
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));

    // The whole input as one datagram, then its first 19 bytes as a header
    // with the rest as the data block collected after it.
    ProtocolFrame::parseReport(input);
    ProtocolFrame::ParseError error = ProtocolFrame::ParseError::None;
    model_Protocoldata framed = ProtocolFrame::parseReport(input.left(ProtocolFrame::kHeaderSize), &error);
    if (error == ProtocolFrame::ParseError::None) {
        framed.arryDatablock = input.mid(ProtocolFrame::kHeaderSize);
        video.cmdProcess(framed);
    }

    // The first bytes as CMD, DAT1..DAT4 and the rest as the block, so every
    // report code is reached whatever the checksum.
    if (size >= 5) {
        model_Protocoldata raw;
        raw.CMD = data[0];
        raw.DAT1 = data[1];
        raw.DAT2 = data[2];
        raw.DAT3 = data[3];
        raw.DAT4 = data[4];
        raw.arryDatablock = input.mid(5);
        video.cmdProcess(raw);

        // The builders trust nothing: any announced length against any block.
        const quint16 len = quint16(data[3] | (data[4] << 8));
        VideoFormatList::buildFormatArray(raw.arryDatablock, len, data[2] & 1);
        dealNDISignalToJson(raw.arryDatablock, len);
    }
    return 0;
}
