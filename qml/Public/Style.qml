pragma Singleton
import QtQuick 2.15

// Design tokens: every size, font and colour of the interface comes from here.
QtObject {
    // colours: one meaning each, everywhere
    readonly property color background: "#101114"
    readonly property color surface: "#1b1d22"
    readonly property color surfaceRaised: "#262930"
    readonly property color outline: "#3a3e47"
    readonly property color text: "#f2f3f5"
    readonly property color textDim: "#a4a9b3"
    readonly property color accent: "#3d8bfd"        // selection
    readonly property color onAir: "#e5322d"         // programme, on air, recording
    readonly property color onPip: "#2fb34a"         // picture-in-picture
    readonly property color attention: "#f0a020"     // needs attention
    readonly property color off: "#5b606b"           // off or unavailable

    // sizes (a 1920x1080 7-inch panel: 110 px is about 9 mm)
    readonly property int touch: 110
    readonly property int gap: 16
    readonly property int radius: 10
    readonly property int frame: 6
    readonly property int statusHeight: 64

    readonly property int fontTiny: 16
    readonly property int fontSmall: 22
    readonly property int fontNormal: 28
    readonly property int fontLarge: 36
    readonly property int fontHuge: 48
    readonly property string fontFamily: "DejaVu Sans"

    readonly property int animation: 150
}
