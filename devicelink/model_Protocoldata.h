#pragma once
// The one record exchanged with the media service, for commands and reports.
#include <QByteArray>
#include <QMetaType>
#include <QString>

struct model_Protocoldata
{
    uchar ADDR = 0;
    uchar SN = 0;
    uchar CMD = 0;
    uchar DAT1 = 0;
    uchar DAT2 = 0;
    uchar DAT3 = 0;
    uchar DAT4 = 0;
    uchar CHKSUM = 0;
    QString deviceType;
    QString deviceSN;
    QString Datablock;
    QByteArray arryDatablock;
    uchar sendMode = 0; // 0 unicast to the destination, 1 broadcast

    bool operator==(const model_Protocoldata &o) const
    {
        return ADDR == o.ADDR && SN == o.SN && CMD == o.CMD && DAT1 == o.DAT1 && DAT2 == o.DAT2
            && DAT3 == o.DAT3 && DAT4 == o.DAT4 && CHKSUM == o.CHKSUM && arryDatablock == o.arryDatablock
            && sendMode == o.sendMode;
    }
};
Q_DECLARE_METATYPE(model_Protocoldata)

// Joins two bytes, the first the low one. Signed on purpose: lengths of
// 0x8000 and above come out negative.
inline short combineTwoByte(uchar lowDat, uchar higDat)
{
    return short(lowDat | (higDat << 8));
}

// Registers the record with the meta-type system (needed for queued
// connections); safe to call more than once.
void registerProtocolTypes();
