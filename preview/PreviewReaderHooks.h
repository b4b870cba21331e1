#pragma once
// Observation point in the frame reader, for benchmarks and tests: called on
// the reader thread after each frame is handed to the display.
#include <QImage>

#include <atomic>
#include <functional>

namespace PreviewReaderHooks {
// frame: the image handed on; deliveredNs: CLOCK_MONOTONIC at hand-off;
// cpuNs: reader thread CPU time spent on this frame (copy, release, convert, hand-off).
using FrameHook = std::function<void(const QImage &frame, qint64 deliveredNs, qint64 cpuNs)>;
extern std::atomic<FrameHook *> g_hook;
// The hook must outlive the readers that may call it; nullptr removes it.
void setFrameHook(FrameHook *hook);
} // namespace PreviewReaderHooks
