#include "ProtocolFrame.h"

#include "Logger.h"

void registerProtocolTypes()
{
    qRegisterMetaType<model_Protocoldata>("model_Protocoldata");
}

namespace ProtocolFrame {

uchar checksum(const model_Protocoldata &rec)
{
    return uchar(rec.ADDR + rec.SN + rec.CMD + rec.DAT1 + rec.DAT2 + rec.DAT3 + rec.DAT4);
}

QByteArray build(model_Protocoldata &rec, char direction)
{
    rec.CHKSUM = checksum(rec);
    const uchar bytes[8] = {rec.ADDR, rec.SN, rec.CMD, rec.DAT1, rec.DAT2, rec.DAT3, rec.DAT4, rec.CHKSUM};
    static const char digits[] = "0123456789abcdef";
    QByteArray frame;
    frame.reserve(kHeaderSize + rec.arryDatablock.size());
    frame.append('<');
    frame.append(direction);
    for (uchar b : bytes) {
        frame.append(digits[b >> 4]);
        frame.append(digits[b & 0x0f]);
    }
    frame.append('>');
    frame.append(rec.arryDatablock);
    return frame;
}

static void clearFields(model_Protocoldata &rec)
{
    rec.ADDR = rec.SN = rec.CMD = rec.DAT1 = rec.DAT2 = rec.DAT3 = rec.DAT4 = rec.CHKSUM = 0;
    rec.arryDatablock.clear();
    rec.Datablock.clear();
}

model_Protocoldata parseHeader(const QByteArray &bytes, char direction, ParseError *error)
{
    model_Protocoldata rec;
    auto fail = [&](ParseError e) {
        clearFields(rec);
        if (error)
            *error = e;
        return rec;
    };
    if (bytes.size() < kHeaderSize)
        return fail(ParseError::WrongSize);
    if (bytes.at(0) != '<' || bytes.at(1) != direction)
        return fail(ParseError::WrongStart);
    // The hex text stops early at a zero byte; missing pairs read as 0.
    QByteArray text = bytes.mid(2, 16);
    const int nul = text.indexOf('\0');
    if (nul >= 0)
        text.truncate(nul);
    auto pair = [&](int offset) -> uchar {
        bool ok = false;
        const uint v = text.mid(offset, 2).toUInt(&ok, 16);
        return ok ? uchar(v) : uchar(0);
    };
    rec.ADDR = pair(0);
    rec.SN = pair(2);
    rec.CMD = pair(4);
    rec.DAT1 = pair(6);
    rec.DAT2 = pair(8);
    rec.DAT3 = pair(10);
    rec.DAT4 = pair(12);
    rec.CHKSUM = checksum(rec);
    if (pair(14) != rec.CHKSUM)
        return fail(ParseError::BadChecksum);
    rec.arryDatablock = bytes.mid(kHeaderSize);
    if (error)
        *error = ParseError::None;
    return rec;
}

model_Protocoldata parseReport(const QByteArray &datagram, ParseError *error)
{
    ParseError e = ParseError::None;
    model_Protocoldata rec;
    if (datagram.size() != kHeaderSize) {
        e = ParseError::WrongSize;
        writeLog(QStringLiteral("datagram.size()!=19 return"));
    } else {
        rec = parseHeader(datagram, 'F', &e);
        if (e == ParseError::WrongStart)
            writeLog(QStringLiteral("no '<' 'F'"));
        else if (e == ParseError::BadChecksum)
            writeLog(QStringLiteral("CHKSUM Wrong return"));
    }
    if (error)
        *error = e;
    return rec;
}

} // namespace ProtocolFrame
