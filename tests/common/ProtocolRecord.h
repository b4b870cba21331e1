#pragma once
// A protocol record from its code bytes and block, as tests write them.
#include "model_Protocoldata.h"

inline model_Protocoldata makeRecord(int cmd, int d1 = 0, int d2 = 0, int d3 = 0, int d4 = 0, const QByteArray &block = {})
{
    model_Protocoldata r;
    r.CMD = uchar(cmd);
    r.DAT1 = uchar(d1);
    r.DAT2 = uchar(d2);
    r.DAT3 = uchar(d3);
    r.DAT4 = uchar(d4);
    r.arryDatablock = block;
    return r;
}
