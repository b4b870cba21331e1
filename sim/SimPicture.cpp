#include "SimPicture.h"

#include <cstring>
#include <vector>

namespace Sim {

Scene Scene::from(const DeviceState &s)
{
    Scene scene;
    scene.programme = s.programme;
    scene.pipInput = s.sub;
    scene.pipOn = s.pipType != 0;
    scene.pipType = s.pipType;
    scene.pipPosition = s.pipPosition & 3;
    scene.pipInput2 = s.pipInput2 < kInputCount ? s.pipInput2 : -1;
    scene.programmeAudio = s.programmeAudio < 8 ? s.programmeAudio : -1;
    scene.plugged = s.plugged;
    scene.scopeOpen = s.scopeOpen;
    scene.scopeCorner = s.scopeCorner;
    scene.ndiSource = s.ndiDecoding ? s.ndiDecodingSource.toUpper() : QByteArray();
    static const char *const styles[] = {"STANDARD", "VIVID", "SOFT", "MONO"};
    for (int i = 0; i < kUvcCount; ++i) {
        const DeviceState::CameraPosition &p = s.camera[size_t(i)];
        const uchar style = s.cameraStyle[size_t(i)];
        scene.cameraLine[size_t(i)] = QStringLiteral("PAN %1 TILT %2 ZOOM %3 %4")
                                          .arg(p.pan).arg(p.tilt).arg(p.zoom)
                                          .arg(QLatin1String(style < 4 ? styles[style] : "STYLE"))
                                          .toLatin1();
    }
    return scene;
}

namespace Picture {

namespace {

struct Glyph
{
    char c;
    uchar rows[7]; // five dots per row, bit 4 leftmost
};

const Glyph kFont[] = {
    {'0', {0x0E, 0x11, 0x13, 0x15, 0x19, 0x11, 0x0E}}, {'1', {0x04, 0x0C, 0x04, 0x04, 0x04, 0x04, 0x0E}},
    {'2', {0x0E, 0x11, 0x01, 0x02, 0x04, 0x08, 0x1F}}, {'3', {0x1F, 0x02, 0x04, 0x02, 0x01, 0x11, 0x0E}},
    {'4', {0x02, 0x06, 0x0A, 0x12, 0x1F, 0x02, 0x02}}, {'5', {0x1F, 0x10, 0x1E, 0x01, 0x01, 0x11, 0x0E}},
    {'6', {0x06, 0x08, 0x10, 0x1E, 0x11, 0x11, 0x0E}}, {'7', {0x1F, 0x01, 0x02, 0x04, 0x08, 0x08, 0x08}},
    {'8', {0x0E, 0x11, 0x11, 0x0E, 0x11, 0x11, 0x0E}}, {'9', {0x0E, 0x11, 0x11, 0x0F, 0x01, 0x02, 0x0C}},
    {'A', {0x0E, 0x11, 0x11, 0x11, 0x1F, 0x11, 0x11}}, {'B', {0x1E, 0x11, 0x11, 0x1E, 0x11, 0x11, 0x1E}},
    {'C', {0x0E, 0x11, 0x10, 0x10, 0x10, 0x11, 0x0E}}, {'D', {0x1C, 0x12, 0x11, 0x11, 0x11, 0x12, 0x1C}},
    {'E', {0x1F, 0x10, 0x10, 0x1E, 0x10, 0x10, 0x1F}}, {'F', {0x1F, 0x10, 0x10, 0x1E, 0x10, 0x10, 0x10}},
    {'G', {0x0E, 0x11, 0x10, 0x17, 0x11, 0x11, 0x0F}}, {'H', {0x11, 0x11, 0x11, 0x1F, 0x11, 0x11, 0x11}},
    {'I', {0x0E, 0x04, 0x04, 0x04, 0x04, 0x04, 0x0E}}, {'J', {0x07, 0x02, 0x02, 0x02, 0x02, 0x12, 0x0C}},
    {'K', {0x11, 0x12, 0x14, 0x18, 0x14, 0x12, 0x11}}, {'L', {0x10, 0x10, 0x10, 0x10, 0x10, 0x10, 0x1F}},
    {'M', {0x11, 0x1B, 0x15, 0x15, 0x11, 0x11, 0x11}}, {'N', {0x11, 0x11, 0x19, 0x15, 0x13, 0x11, 0x11}},
    {'O', {0x0E, 0x11, 0x11, 0x11, 0x11, 0x11, 0x0E}}, {'P', {0x1E, 0x11, 0x11, 0x1E, 0x10, 0x10, 0x10}},
    {'Q', {0x0E, 0x11, 0x11, 0x11, 0x15, 0x12, 0x0D}}, {'R', {0x1E, 0x11, 0x11, 0x1E, 0x14, 0x12, 0x11}},
    {'S', {0x0F, 0x10, 0x10, 0x0E, 0x01, 0x01, 0x1E}}, {'T', {0x1F, 0x04, 0x04, 0x04, 0x04, 0x04, 0x04}},
    {'U', {0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x0E}}, {'V', {0x11, 0x11, 0x11, 0x11, 0x11, 0x0A, 0x04}},
    {'W', {0x11, 0x11, 0x11, 0x15, 0x15, 0x15, 0x0A}}, {'X', {0x11, 0x11, 0x0A, 0x04, 0x0A, 0x11, 0x11}},
    {'Y', {0x11, 0x11, 0x11, 0x0A, 0x04, 0x04, 0x04}}, {'Z', {0x1F, 0x01, 0x02, 0x04, 0x08, 0x10, 0x1F}},
    {':', {0x00, 0x0C, 0x0C, 0x00, 0x0C, 0x0C, 0x00}}, {'-', {0x00, 0x00, 0x00, 0x1F, 0x00, 0x00, 0x00}},
    {'.', {0x00, 0x00, 0x00, 0x00, 0x00, 0x0C, 0x0C}}, {'/', {0x00, 0x01, 0x02, 0x04, 0x08, 0x10, 0x00}},
    {' ', {0, 0, 0, 0, 0, 0, 0}},
};
const uchar kUnknown[7] = {0x1F, 0x11, 0x11, 0x11, 0x11, 0x11, 0x1F};

const uchar *glyph(char c)
{
    if (c >= 'a' && c <= 'z')
        c = char(c - 'a' + 'A');
    for (const Glyph &g : kFont)
        if (g.c == c)
            return g.rows;
    return kUnknown;
}

inline void put(uchar *rgb, int width, int x, int y, Rgb c)
{
    uchar *p = rgb + (size_t(y) * size_t(width) + size_t(x)) * 3;
    p[0] = c.r;
    p[1] = c.g;
    p[2] = c.b;
}

void fill(uchar *rgb, int width, int height, Rect r, Rgb c)
{
    const int x0 = qMax(0, r.x), y0 = qMax(0, r.y);
    const int x1 = qMin(width, r.x + r.w), y1 = qMin(height, r.y + r.h);
    for (int y = y0; y < y1; ++y)
        for (int x = x0; x < x1; ++x)
            put(rgb, width, x, y, c);
}

const Rgb kBars[7] = {{191, 191, 191}, {191, 191, 0}, {0, 191, 191}, {0, 191, 0},
                      {191, 0, 191},   {191, 0, 0},   {0, 0, 191}};

Rgb hue(int h) // h in 0..1535
{
    h %= 1536;
    const uchar v = uchar(h & 255);
    switch (h >> 8) {
    case 0: return {255, v, 0};
    case 1: return {uchar(255 - v), 255, 0};
    case 2: return {0, 255, v};
    case 3: return {0, uchar(255 - v), 255};
    case 4: return {v, 0, 255};
    default: return {255, 0, uchar(255 - v)};
    }
}

// Colour of input `input` at (x, y) inside a w x h picture at time t.
inline Rgb pattern(int input, int x, int y, int w, int h, qint64 t)
{
    switch (input) {
    case 0: { // colour bars, a white block sliding along the bottom quarter
        if (y < h * 3 / 4)
            return kBars[qMin(6, x * 7 / qMax(1, w))];
        const int block = qMax(4, w / 10);
        const int pos = int((t * qMax(1, w) / 4000) % qMax(1, w + block)) - block;
        return (x >= pos && x < pos + block) ? Rgb{255, 255, 255} : Rgb{16, 16, 16};
    }
    case 1: { // moving diagonal gradient
        const int s = int(t / 8);
        return {uchar((x * 256 / qMax(1, w) + s) & 255), uchar((y * 256 / qMax(1, h) + s / 2) & 255), 128};
    }
    case 2: { // scrolling checkerboard
        const int cell = qMax(2, h / 12);
        const int sx = x + int(t * cell / 1000);
        return ((sx / cell + y / cell) & 1) ? Rgb{0, 128, 128} : Rgb{240, 140, 0};
    }
    case 3: // drifting rainbow stripes
        return hue(int(x * 1536 / qMax(1, w) + t / 4));
    default: { // grey ramp with a moving bar
        const int bar = int((t * qMax(1, w) / 3000) % qMax(1, w));
        if (x >= bar && x < bar + qMax(2, w / 40))
            return {255, 32, 32};
        const uchar g = uchar(x * 255 / qMax(1, w - 1));
        return {g, g, g};
    }
    }
}

} // namespace

Rect pipRect(int width, int height, int position)
{
    const int w = width / 3, h = height / 3;
    const int mx = width / 32, my = height / 18;
    const int x = (position & 1) ? width - w - mx : mx;
    const int y = (position & 2) ? height - h - my : my;
    return {x, y, w, h};
}

QVector<Rect> pipRects(int width, int height, int type, int position)
{
    if (type == 2)
        return {{width / 2, 0, width - width / 2, height}};
    if (type == 3)
        return {pipRect(width, height, 1), pipRect(width, height, 3)};
    return {pipRect(width, height, position)};
}

void drawText(uchar *rgb, int width, int height, int x, int y, const QByteArray &text, int scale, Rgb colour)
{
    scale = qMax(1, scale);
    for (int i = 0; i < text.size(); ++i) {
        const uchar *rows = glyph(text.at(i));
        const int gx = x + i * 6 * scale;
        for (int row = 0; row < 7; ++row)
            for (int col = 0; col < 5; ++col)
                if (rows[row] & (0x10 >> col))
                    fill(rgb, width, height, {gx + col * scale, y + row * scale, scale, scale}, colour);
    }
}

QByteArray timeCode(qint64 elapsedMs, int fps)
{
    fps = qMax(1, fps);
    const qint64 s = elapsedMs / 1000;
    const int ff = int((elapsedMs % 1000) * fps / 1000);
    return QStringLiteral("%1:%2:%3:%4")
        .arg(s / 3600 % 100, 2, 10, QLatin1Char('0'))
        .arg(s / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(s % 60, 2, 10, QLatin1Char('0'))
        .arg(ff, 2, 10, QLatin1Char('0'))
        .toLatin1();
}

void drawSource(uchar *rgb, int width, int height, const Rect &r, int input, bool plugged, qint64 t, bool labelRight)
{
    const int x0 = qMax(0, r.x), y0 = qMax(0, r.y);
    const int x1 = qMin(width, r.x + r.w), y1 = qMin(height, r.y + r.h);
    if (x1 <= x0 || y1 <= y0)
        return;
    const size_t rowBytes = size_t(x1 - x0) * 3;
    // Most patterns repeat whole rows: draw a row once and copy it while the
    // row key stays the same (-1: every row differs).
    auto rowKey = [&](int y) {
        if (!plugged)
            return 0;
        switch (input) {
        case 0: return y < r.h * 3 / 4 ? 0 : 1;
        case 1: return -1;
        case 2: return (y / qMax(2, r.h / 12)) & 1;
        default: return 0;
        }
    };
    std::vector<uchar> gradientRed;
    if (plugged && input == 1) { // red depends on x only
        gradientRed.resize(size_t(x1 - x0));
        for (int x = x0; x < x1; ++x)
            gradientRed[size_t(x - x0)] = pattern(1, x - r.x, 0, r.w, r.h, t).r;
    }
    int lastKey = -2;
    const uchar *lastRow = nullptr;
    for (int y = y0; y < y1; ++y) {
        uchar *p = rgb + (size_t(y) * size_t(width) + size_t(x0)) * 3;
        const int key = rowKey(y - r.y);
        if (key >= 0 && key == lastKey && lastRow) {
            memcpy(p, lastRow, rowBytes);
            continue;
        }
        if (!gradientRed.empty()) {
            const Rgb c = pattern(1, 0, y - r.y, r.w, r.h, t);
            for (size_t i = 0; i < gradientRed.size(); ++i, p += 3) {
                p[0] = gradientRed[i];
                p[1] = c.g;
                p[2] = c.b;
            }
        } else {
            for (int x = x0; x < x1; ++x, p += 3) {
                const Rgb c = plugged ? pattern(input, x - r.x, y - r.y, r.w, r.h, t) : Rgb{40, 40, 40};
                p[0] = c.r;
                p[1] = c.g;
                p[2] = c.b;
            }
        }
        lastKey = key;
        lastRow = rgb + (size_t(y) * size_t(width) + size_t(x0)) * 3;
    }
    const int scale = qMax(1, r.h / 100);
    const int pad = 2 * scale;
    const QByteArray name(inputName(input));
    // The name sits on a dark plate so it reads on any pattern.
    const int plateW = int(name.size()) * 6 * scale + 2 * scale;
    const int plateX = labelRight ? r.x + r.w - pad - plateW : r.x + pad;
    fill(rgb, width, height, {plateX, r.y + pad, plateW, 9 * scale}, {0, 0, 0});
    drawText(rgb, width, height, plateX + scale, r.y + pad + scale, name, scale, {255, 255, 255});
    if (!plugged) {
        const QByteArray msg("NO SIGNAL");
        const int s2 = scale * 2;
        drawText(rgb, width, height, r.x + (r.w - int(msg.size()) * 6 * s2) / 2, r.y + (r.h - 7 * s2) / 2, msg, s2,
                 {230, 230, 230});
    }
}

void render(uchar *rgb, int width, int height, const Scene &scene, qint64 elapsedMs, int fps)
{
    const auto isPlugged = [&](int i) { return i >= 0 && i < kInputCount && scene.plugged[size_t(i)]; };
    // A PIP in the top-left corner would hide the name: move it to the right.
    const bool labelRight = scene.pipOn && scene.pipType == 1 && scene.pipPosition == 0;
    drawSource(rgb, width, height, {0, 0, width, height}, scene.programme, isPlugged(scene.programme), elapsedMs, labelRight);

    const int scale = qMax(1, height / 120);
    const QByteArray tc = timeCode(elapsedMs, fps);
    const int tx = scale * 2, ty = height - 10 * scale;
    fill(rgb, width, height, {tx, ty - scale, int(tc.size()) * 6 * scale + 2 * scale, 9 * scale}, {0, 0, 0});
    drawText(rgb, width, height, tx + scale, ty, tc, scale, {255, 255, 0});

    if (scene.pipOn) {
        const QVector<Rect> rects = pipRects(width, height, scene.pipType, scene.pipPosition);
        for (int i = 0; i < rects.size(); ++i) {
            const Rect &r = rects.at(i);
            const int input = i == 0 ? scene.pipInput : scene.pipInput2;
            fill(rgb, width, height, {r.x - 2, r.y - 2, r.w + 4, r.h + 4}, {255, 255, 255});
            if (input >= 0)
                drawSource(rgb, width, height, r, input, isPlugged(input), elapsedMs);
            else
                fill(rgb, width, height, r, {0, 0, 0});
        }
    }

    // The programme's sound source, beside the time code (the PIP pictures
    // take the right-hand corners).
    static const char *const audioNames[8] = {"MIC", "HDMI 1", "HDMI 2", "LINE", "UVC 1", "UVC 2", "NDI", "USB"};
    const QByteArray audio = QByteArray("AUDIO ")
                             + (scene.programmeAudio >= 0 && scene.programmeAudio < 8 ? audioNames[scene.programmeAudio] : "NONE");
    const int ax = tx + (int(tc.size()) + 2) * 6 * scale;
    fill(rgb, width, height, {ax - scale, ty - scale, int(audio.size()) * 6 * scale + 2 * scale, 9 * scale}, {0, 0, 0});
    drawText(rgb, width, height, ax, ty, audio, scale, {255, 255, 0});

    // What the programme source is doing: the NDI source received, a
    // camera's position and picture style.
    QByteArray line;
    if (scene.programme == 4)
        line = scene.ndiSource.isEmpty() ? QByteArray("NO SOURCE CHOSEN") : scene.ndiSource;
    else if (scene.programme == 2 || scene.programme == 3)
        line = scene.cameraLine[size_t(scene.programme - 2)];
    if (!line.isEmpty() && isPlugged(scene.programme)) {
        const int ly = 12 * scale;
        fill(rgb, width, height, {tx, ly - scale, int(line.size()) * 6 * scale + 2 * scale, 9 * scale}, {0, 0, 0});
        drawText(rgb, width, height, tx + scale, ly, line, scale, {255, 255, 255});
    }

    // Scopes: a dark panel with the scope's name and a trace, in its corner.
    static const char *const scopeNames[] = {"HISTOGRAM", "WAVEFORM", "RGB PARADE", "VECTORSCOPE"};
    for (int i = 0; i < DeviceState::kScopes; ++i) {
        if (!scene.scopeOpen[size_t(i)])
            continue;
        const Rect r = pipRect(width, height, scene.scopeCorner[size_t(i)] & 3);
        fill(rgb, width, height, r, {12, 12, 12});
        for (int x = 0; x < r.w; x += qMax(1, r.w / 64)) {
            const int v = int((x * 37 + i * 53 + elapsedMs / 40) % qMax(1, r.h - 12 * scale));
            fill(rgb, width, height, {r.x + x, r.y + r.h - v, qMax(1, r.w / 96), v}, {90, 200, 90});
        }
        drawText(rgb, width, height, r.x + scale, r.y + scale, QByteArray(scopeNames[i]), scale, {255, 255, 255});
    }
}

} // namespace Picture
} // namespace Sim
