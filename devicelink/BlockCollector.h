#pragma once
// Turns report datagrams into records. A 0xF1 report announces a data block
// of combineTwoByte(DAT3, DAT4) bytes that follows in further datagrams;
// those are taken only from the sender of the header (address and port),
// so no other sender can fill, stall or corrupt a block. Datagrams from
// anyone else are read as reports of their own. Not thread-safe: one
// thread feeds it, with a millisecond clock of its choosing (tests and the
// fuzz target drive it without real time).
#include "LinkLog.h"
#include "model_Protocoldata.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

class BlockCollector
{
public:
    // How long a block may take to arrive, measured from its header.
    static constexpr qint64 kLimitMs = 2000;
    // Blocks collected at the same time (one per sender); a further sender's
    // header displaces the oldest.
    static constexpr int kMaxOpenBlocks = 4;

    struct Sender
    {
        QString address;
        quint16 port = 0;
        bool operator==(const Sender &o) const { return port == o.port && address == o.address; }
    };

    // Feeds one datagram. Returns a record to queue as a report: a plain
    // 19-byte report, or a 0xF1 report whose block is complete. Rejections
    // are logged with the device's own texts. quietParse: the caller has
    // already logged this exact datagram recently, so a parse failure is
    // not logged again.
    std::optional<model_Protocoldata> feed(const QByteArray &datagram, const Sender &from, qint64 nowMs,
                                           bool quietParse = false);
    // Drops (and logs) every block whose time is up.
    void expire(qint64 nowMs);
    // When the next block times out; -1 while none is open.
    qint64 nextDeadline() const;
    int openBlocks() const { return int(m_open.size()); }
    // True when the datagram would be taken: as a piece of a block this
    // sender is sending, or as a well-formed report.
    bool wouldTake(const QByteArray &datagram, const Sender &from) const;

private:
    struct Open
    {
        Sender from;
        model_Protocoldata header;
        QByteArray block;
        qint64 startedMs = 0;
        int announced = 0;
    };
    void drop(std::vector<Open>::iterator it, const char *why, qint64 nowMs);
    std::optional<model_Protocoldata> complete(model_Protocoldata header, const QByteArray &block);

    std::vector<Open> m_open; // oldest first
    LinkLog::RateLimit m_displacedLog;
};
