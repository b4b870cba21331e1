#pragma once
// The command vocabulary of the media service as data: one entry per
// command (codes, which argument fills which field, the data block, the log
// texts, where it runs) and one generic sender. Adding a command is adding
// one entry in UiProc_commands.cpp plus the QML-facing slot that names it.
#include "model_Protocoldata.h"

#include <QByteArray>
#include <QVariantList>

namespace LinkCommands {

// Where a QML-facing operation runs its sender.
enum class Runs : uchar {
    Thread, // a detached thread with copies of the arguments; the slot returns at once
    Caller, // inline on the calling thread
};

// A field of the record: a constant, or the argument at `arg` stored as one byte.
struct Field
{
    signed char arg; // -1: constant
    uchar value;
};
constexpr Field K(uchar v) { return {-1, v}; }
constexpr Field A(int index) { return {static_cast<signed char>(index), 0}; }

// Data block of an extended set (0xF0); DAT3/DAT4 then carry its length.
enum class BlockKind : uchar {
    None,
    Text,          // the text argument, UTF-8, at most kMaxTextBlock bytes
    DeviceAddress, // "aa-bb-cc-dd-ee-ff" -> six bytes + check byte
    NdiConnection, // type, ttl, four address parts, four netmask parts, check byte
    StreamParams,  // default flag, resolution, rate low, rate high, check byte
    StreamAddress, // open flag, '"', address, '"', check byte
    Raw,           // the byte-array argument as it is
};
struct Block
{
    BlockKind kind;
    signed char arg; // first argument the block is built from
};
constexpr Block NoBlock{BlockKind::None, -1};

struct Command
{
    const char *key;       // the QML-facing operation (variants: "operation/variant")
    const char *sender;    // its public sender slot, or nullptr
    Runs runs;             // where `key` runs the sender
    uchar cmd;
    Field dat1, dat2, dat3, dat4;
    Block block;
    const char *slotLog;   // written by the operation before the sender runs, or nullptr
    signed char logArg;    // >= 0: that argument, in decimal, is appended to slotLog
    const char *senderLog; // written by the sender before it queues, or nullptr
    int inputs;            // > 0: argument 0 selects an input 0..inputs-1, -1 means all of them
    const char *const *inputLogs; // with inputs: a line per input written as it is queued (nullptr: none)
};

constexpr int kMaxTextBlock = 1024;
constexpr int kMaxStreamBlock = 1024;

const Command *table();
int tableSize();
// nullptr when the key is unknown.
const Command *find(const char *key);

// The record of one command with its arguments (send mode 0). Arguments
// that fill fields are numbers or booleans; missing ones read as 0.
model_Protocoldata makeRecord(const Command &c, const QVariantList &args);
// Builds the block of c from the arguments (empty for BlockKind::None).
QByteArray makeBlock(const Command &c, const QVariantList &args);
// The sender: writes senderLog, then queues one record per selected input
// (or the one record) on the command queue. Runs on whichever thread calls it.
void send(const Command &c, const QVariantList &args);

// Block helpers, exposed for the input-format command and for tests.
uchar sum8(const QByteArray &bytes);
QByteArray deviceAddressBlock(const QString &mac);

} // namespace LinkCommands
