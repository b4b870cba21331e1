#pragma once
// Invariants of the fuzz targets: a broken one names itself and aborts, so
// the engine keeps the input as a crash and the replay test fails.
#include <QByteArray>
#include <QList>

#include <cstdio>
#include <cstdlib>

[[noreturn]] inline void fuzzInvariantBroken(const char *what, const char *file, int line)
{
    std::fprintf(stderr, "%s:%d: invariant broken: %s\n", file, line, what);
    std::abort();
}

#define FUZZ_REQUIRE(cond) ((cond) ? void(0) : fuzzInvariantBroken(#cond, __FILE__, __LINE__))

// Inputs made of several texts hold them NUL-separated: the first part is
// usually a file's content, the rest are the arguments of the calls.
inline QList<QByteArray> nulParts(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), int(size)).split('\0');
}
