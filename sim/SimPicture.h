#pragma once
// Draws the preview picture of the simulated programme output into an RGB888
// buffer: a pattern per input with its name, a running time code, and the
// PIP source in a corner. Text uses a small built-in 5x7 bitmap font.
#include "SimState.h"

#include <QByteArray>
#include <QVector>

#include <array>

namespace Sim {

struct Scene
{
    int programme = 0;
    int pipInput = 1;
    bool pipOn = false;
    int pipType = 1;     // 1 corner, 2 side by side, 3 two pictures on the right
    int pipPosition = 0; // 0 top-left, 1 top-right, 2 bottom-left, 3 bottom-right
    int pipInput2 = -1;  // second picture of type 3, -1 none
    int programmeAudio = 1; // audio source heard on programme, 0..7, -1 none
    std::array<bool, kInputCount> plugged{{true, true, true, true, true}};
    // Scopes open on the programme, each with its corner (as the PIP's).
    std::array<bool, DeviceState::kScopes> scopeOpen{};
    std::array<uchar, DeviceState::kScopes> scopeCorner{};
    QByteArray ndiSource;                         // the NDI source received
    std::array<QByteArray, kUvcCount> cameraLine; // a camera's position and style

    static Scene from(const DeviceState &s);
};

struct Rgb
{
    uchar r, g, b;
};

namespace Picture {

// The rectangle the PIP picture takes for a frame of this size.
struct Rect
{
    int x, y, w, h;
};
Rect pipRect(int width, int height, int position);
// The rectangles of the second pictures for a PIP type (1 corner, 2 side by
// side, 3 two pictures on the right); the programme keeps the rest.
QVector<Rect> pipRects(int width, int height, int type, int position);

// Renders a whole frame; elapsedMs drives the motion and the time code.
void render(uchar *rgb, int width, int height, const Scene &scene, qint64 elapsedMs, int fps);

// Draws the pattern of one input into a rectangle of the frame, with the
// input's name in its top-left corner, or top-right when labelRight.
void drawSource(uchar *rgb, int width, int height, const Rect &r, int input, bool plugged, qint64 elapsedMs,
                bool labelRight = false);

// Draws text (upper-case letters, digits, ": - . /" and blanks) at (x, y),
// each font dot scale x scale pixels; clipped to the frame.
void drawText(uchar *rgb, int width, int height, int x, int y, const QByteArray &text, int scale, Rgb colour);

// "HH:MM:SS:FF" for a running time.
QByteArray timeCode(qint64 elapsedMs, int fps);

} // namespace Picture
} // namespace Sim
