#pragma once
// Writes small real MP4 files with FFmpeg's encoders: the simulator's
// recordings, and the files the record tests and benchmark list. Frames
// are MPEG-4 Part 2 (always built into libavcodec); audio is AAC silence.
#include <QString>

namespace Sim {

struct Mp4Params
{
    int width = 320;
    int height = 180;
    int frames = 10;
    qint64 lengthMs = 10000;    // frames are spread evenly over it
    bool audioOnly = false;     // one AAC stream of that length, no video
    // Muxer name: "mp4", or e.g. "m4v" for a bare stream with no container
    // length (what a copied stream or a broken recorder leaves).
    const char *format = "mp4";
};

// Creates or replaces `path`. False, with *error set, when it cannot.
bool writeMp4(const QString &path, const Mp4Params &params, QString *error = nullptr);

// A recording of `elapsedMs`: one frame a second, at most 60 frames spread
// over the whole time, so the file's length is the time recorded.
Mp4Params recordingParams(qint64 elapsedMs);

} // namespace Sim
