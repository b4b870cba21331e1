#include "BlockCollector.h"

#include "Logger.h"
#include "ProtocolFrame.h"

#include <algorithm>

namespace {

// parseReport without its log lines, for a datagram the log has just seen.
model_Protocoldata parseQuietly(const QByteArray &datagram, ProtocolFrame::ParseError *error)
{
    if (datagram.size() != ProtocolFrame::kHeaderSize) {
        *error = ProtocolFrame::ParseError::WrongSize;
        return model_Protocoldata();
    }
    return ProtocolFrame::parseHeader(datagram, 'F', error);
}

} // namespace

std::optional<model_Protocoldata> BlockCollector::feed(const QByteArray &datagram, const Sender &from, qint64 nowMs,
                                                       bool quietParse)
{
    expire(nowMs);

    auto open = std::find_if(m_open.begin(), m_open.end(), [&](const Open &o) { return o.from == from; });
    if (open != m_open.end()) {
        open->block.append(datagram);
        if (open->block.size() < open->announced)
            return std::nullopt;
        const model_Protocoldata header = open->header;
        const QByteArray block = open->block;
        m_open.erase(open);
        return complete(header, block);
    }

    ProtocolFrame::ParseError error = ProtocolFrame::ParseError::None;
    const model_Protocoldata rec = quietParse ? parseQuietly(datagram, &error)
                                              : ProtocolFrame::parseReport(datagram, &error);
    if (error != ProtocolFrame::ParseError::None)
        return std::nullopt; // logged by the parser, never queued
    if (rec.CMD != 0xF1)
        return rec;

    const int announced = combineTwoByte(rec.DAT3, rec.DAT4);
    if (announced < 0) {
        // The length field is signed: nothing that large will ever come.
        writeLog(QStringLiteral("UiProc::readPendingDatagrams data block length %1 out of range, report dropped")
                     .arg(announced));
        return std::nullopt;
    }
    if (announced == 0)
        return complete(rec, QByteArray()); // no block follows

    if (int(m_open.size()) >= kMaxOpenBlocks) {
        // Only a storm of headers from many senders gets here: say so once a second.
        int held = 0;
        if (m_displacedLog.admit(nowMs, &held)) {
            drop(m_open.begin(), "displaced by a block from another sender", nowMs);
            if (held > 0)
                writeLog(QStringLiteral("UiProc::readPendingDatagrams %1 more blocks displaced since the last such line").arg(held));
        } else {
            m_open.erase(m_open.begin());
        }
    }
    m_open.push_back(Open{from, rec, QByteArray(), nowMs, announced});
    return std::nullopt;
}

bool BlockCollector::wouldTake(const QByteArray &datagram, const Sender &from) const
{
    if (std::any_of(m_open.begin(), m_open.end(), [&](const Open &o) { return o.from == from; }))
        return true;
    ProtocolFrame::ParseError error = ProtocolFrame::ParseError::None;
    parseQuietly(datagram, &error);
    return error == ProtocolFrame::ParseError::None;
}

std::optional<model_Protocoldata> BlockCollector::complete(model_Protocoldata header, const QByteArray &block)
{
    if (combineTwoByte(header.DAT3, header.DAT4) != block.size()) {
        writeLog(QStringLiteral(
            "combineTwoByte(parameters.DAT3, parameters.DAT4) != parameters.arryDatablock.size() return"));
        return std::nullopt;
    }
    header.arryDatablock = block;
    header.Datablock = QString::fromLatin1(block.toHex());
    writeLog(QStringLiteral("============================END=================================="));
    return header;
}

void BlockCollector::expire(qint64 nowMs)
{
    for (auto it = m_open.begin(); it != m_open.end();) {
        if (nowMs - it->startedMs >= kLimitMs) {
            drop(it, "expired", nowMs);
            it = m_open.begin(); // drop() erased: start again, the list is tiny
        } else {
            ++it;
        }
    }
}

qint64 BlockCollector::nextDeadline() const
{
    qint64 next = -1;
    for (const Open &o : m_open) {
        const qint64 deadline = o.startedMs + kLimitMs;
        if (next < 0 || deadline < next)
            next = deadline;
    }
    return next;
}

void BlockCollector::drop(std::vector<Open>::iterator it, const char *why, qint64 nowMs)
{
    writeLog(QStringLiteral("UiProc::readPendingDatagrams data block %1: %2 of %3 bytes after %4 ms, report dropped")
                 .arg(QLatin1String(why))
                 .arg(it->block.size())
                 .arg(it->announced)
                 .arg(nowMs - it->startedMs));
    m_open.erase(it);
}
