#pragma once
// Timed events for a simulator run, one per line:
//   <seconds> unplug <input> | plug <input> | usb 0|1 | typec 0|1
//   <seconds> stream <channel> <status> | report <cmd> <dat1> [<dat2> [<dat3> [<dat4>]]]
// Bytes of "report" are hexadecimal. Blank lines and lines starting with
// "#" are skipped; a line that does not parse is logged and skipped.
#include <QString>
#include <QStringList>
#include <QVector>

#include <array>

namespace Sim {

struct ScriptEvent
{
    enum Kind { Plug, Unplug, Usb, TypeC, Stream, Report };
    int atMs = 0;
    Kind kind = Report;
    std::array<int, 5> args{}; // Report: CMD, DAT1..DAT4
    int line = 0;
};

struct Script
{
    QVector<ScriptEvent> events; // in file order
    QStringList errors;          // one text per rejected line

    static Script parse(const QString &text);
    static Script load(const QString &fileName);
};

} // namespace Sim
