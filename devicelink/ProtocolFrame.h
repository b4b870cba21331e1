#pragma once
// The text frame of a record: "<" + direction letter + sixteen hex digits
// + ">", followed by the raw data block. "T" travels toward the media
// service, "F" comes back from it.
#include "model_Protocoldata.h"

namespace ProtocolFrame {

constexpr int kHeaderSize = 19;

// 8-bit sum of ADDR, SN, CMD, DAT1..DAT4.
uchar checksum(const model_Protocoldata &rec);

// Builds the frame; stores the computed checksum in rec. The simulator
// builds report frames with direction 'F'.
QByteArray build(model_Protocoldata &rec, char direction = 'T');

enum class ParseError { None, WrongSize, WrongStart, BadChecksum };

// Parses a 19-byte report datagram ("<F"). On rejection every byte field is
// 0, the block and Datablock are empty, the specified line is logged and
// *error (when given) says why.
model_Protocoldata parseReport(const QByteArray &datagram, ParseError *error = nullptr);

// Parses the 19-byte header at the start of bytes with the given direction
// letter and keeps whatever follows as the data block, without logging
// (the simulator reads "<T" commands with it).
model_Protocoldata parseHeader(const QByteArray &bytes, char direction, ParseError *error);

} // namespace ProtocolFrame
