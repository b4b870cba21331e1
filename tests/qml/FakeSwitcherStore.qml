import QtQuick 2.15

// Stands in for SwitcherStore: same properties, calls recorded in `calls`.
QtObject {
    property var calls: []
    function record(what) { var c = calls.slice(); c.push(what); calls = c }

    readonly property var formatInputNames: ["HDMI 1", "HDMI 2", "USB camera 1", "USB camera 2", "NDI"]
    property var formatLists: [null, null, null, null, null]
    property var currentFormats: [null, null, null, null, null]
    property var currentKnown: [false, false, false, false, false]
    property var chosen: ["", "", "", "", ""]
    property var pending: ["", "", "", "", ""]
    readonly property int currentFormatInputs: 4
    function refreshFormats() { record("refreshFormats") }
    function chooseFormat(input, index) { record("chooseFormat " + input + " " + index); return true }

    property bool pipOn: false
    property int pipLayout: 0
    property int pipInput: 1
    property int pipInput2: -1
    property int programmeInput: 0
    readonly property var pipSourceNames: ["HDMI 1", "HDMI 2", "USB camera 1", "USB camera 2"]
    readonly property var pipLayoutNames: ["Top left", "Top right", "Bottom left", "Bottom right", "Side by side", "Two pictures"]
    function setPip(on) { record("setPip " + on) }
    function setPipLayout(layout) { record("setPipLayout " + layout) }
    function setPipSource(second, index) { record("setPipSource " + second + " " + index) }

    readonly property var levelNames: ["Mic", "HDMI 1", "HDMI 2", "Line", "Camera 1", "Camera 2", "NDI", "USB", "Phones"]
    readonly property var audioSourceNames: levelNames.slice(0, 8)
    property var levels: [0, 0, 0, 0, 0, 0, 0, 0, 0]
    property int programmeAudio: 1
    property int pipAudio: -1
    property bool followProgramme: false
    property bool followPip: false
    property var samplingRates: [-1, -1, -1, -1, -1, -1, -1, -1]
    function setAudio(pip, source) { record("setAudio " + pip + " " + source) }
    function setFollow(pip, on) { record("setFollow " + pip + " " + on) }
    function refreshAudio() { record("refreshAudio") }

    property int hdmiOutStyle: -1
    property int hdmi2Status: -1
    property int outputStatus: -1
    function setHdmiOutStyle(style) { record("setHdmiOutStyle " + style) }
    function refreshOutputs() { record("refreshOutputs") }
}
