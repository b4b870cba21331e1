#pragma once
// A report frame as the media service sends it ("<F", sixteen lower-case hex
// digits with the checksum, ">"), written independently of the product's
// frame builder so tests do not check the code with itself.
#include <QByteArray>

inline QByteArray reportFrame(uchar cmd, uchar d1 = 0, uchar d2 = 0, uchar d3 = 0, uchar d4 = 0)
{
    const uchar bytes[7] = {0, 0, cmd, d1, d2, d3, d4};
    uchar sum = 0;
    QByteArray text("<F");
    for (uchar b : bytes) {
        sum = uchar(sum + b);
        text += QByteArray::number(b, 16).rightJustified(2, '0');
    }
    text += QByteArray::number(sum, 16).rightJustified(2, '0');
    text += '>';
    return text;
}
