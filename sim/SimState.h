#pragma once
// Everything the simulated media service remembers between commands, so
// that every answer agrees with what was set before.
#include <QByteArray>
#include <QString>
#include <QVector>

#include <array>

namespace Sim {

constexpr int kInputCount = 5;   // HDMI 1, HDMI 2, UVC 1, UVC 2, NDI
constexpr int kStreamChannels = 4;
constexpr int kUvcCount = 2;

// Display name of an input, as drawn on the preview ("HDMI 1" ...).
const char *inputName(int input);

struct BluetoothDevice
{
    uchar connect = 0;
    std::array<uchar, 6> mac{};
    QByteArray name;
};

struct DeviceState
{
    int programme = 0;     // input on the programme output
    int sub = 1;           // input chosen for the sub (PIP) picture
    // PIP layout: 0 off, 1 one picture in a corner, 2 side by side, 3 two
    // pictures on the right (the second showing pipInput2).
    uchar pipType = 0;
    uchar pipPosition = 0; // corner 0..3: top-left, top-right, bottom-left, bottom-right
    uchar pipInput2 = 255; // second PIP picture's input, 255 none

    bool recording = false;
    QString recordFile;    // full path of the current or last recording
    QByteArray recordName; // name requested by the front end, "" for an automatic one
    qint64 recordStartMs = 0; // wall clock when the recording started

    std::array<uchar, kStreamChannels> stream{};    // 1 = on air
    std::array<QByteArray, kStreamChannels> streamAddress;
    uchar streamDefault = 1, streamResolution = 0;
    quint16 streamRate = 6000;

    QByteArray ndiGroup = "public";
    QByteArray ndiChannel = "CS-Channel";
    QByteArray ndiDevice = "CS-MEDIASIM";
    // type, TTL, address 4 bytes, netmask 4 bytes
    std::array<uchar, 10> ndiConnection{{0, 1, 239, 255, 0, 1, 255, 255, 255, 0}};
    uchar ndiSwitch = 0, ndiDataType = 0, ndiCodeValue = 0;
    uchar ndiDecoding = 0, ndiDecodingFormat = 0;
    QByteArray ndiDecodingSource;

    std::array<bool, kInputCount> plugged{{true, true, true, false, true}};
    bool usbDisk = true;
    uchar typeC = 1;
    uchar outputStatus = 1;
    uchar hdmi2Status = 1;
    uchar audioChannel = 0;
    // Audio sources heard on programme and on PIP: 0..7 mic, HDMI 1, HDMI 2,
    // line, UVC 1, UVC 2, NDI, USB; 15 none.
    uchar programmeAudio = 1, pipAudio = 15;

    // Format each input runs, as set (type, width, height, fps; 540 lines
    // for interlaced HDMI); width 0 until one is set.
    struct InputFormat
    {
        uchar type = 0;
        quint16 width = 0, height = 0;
        uchar fps = 0;
    };
    std::array<InputFormat, kInputCount> inputFormat{};

    bool bluetoothOn = true;
    QVector<BluetoothDevice> bluetooth;      // ordinary devices (DAT2 0)
    QVector<BluetoothDevice> bluetoothZor;   // companion-app devices (DAT2 1)

    std::array<uchar, 8> samplingRate{{1, 1, 1, 1, 1, 1, 1, 1}}; // per audio input
    uchar hdmiOutStyle = 0;
    std::array<uchar, kUvcCount> autoFocus{{1, 1}};
    std::array<uchar, kUvcCount> view{{0, 0}};
    // Where each camera looks: steps of pan and tilt, zoom steps from wide.
    struct CameraPosition
    {
        int pan = 0, tilt = 0, zoom = 0;
    };
    static constexpr int kPresets = 8;
    std::array<CameraPosition, kUvcCount> camera{};
    std::array<uchar, kUvcCount> cameraMove{{0, 0}}; // move under way, 0 none
    std::array<qint64, kUvcCount> cameraMoveSinceMs{{0, 0}};
    std::array<std::array<CameraPosition, kPresets>, kUvcCount> presets{};
    std::array<uchar, kUvcCount> cameraStyle{{0, 0}};

    // Scopes drawn into the programme: per type, open and its corner 0..3.
    static constexpr int kScopes = 4;
    std::array<bool, kScopes> scopeOpen{};
    std::array<uchar, kScopes> scopeCorner{};

    DeviceState();
};

} // namespace Sim
