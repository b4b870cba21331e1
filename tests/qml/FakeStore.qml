import QtQuick 2.15

// Stands in for LiveStore: same properties, actions recorded in `calls`.
QtObject {
    property var calls: []
    function record(what) { var c = calls.slice(); c.push(what); calls = c }

    property var inputNames: ["HDMI 1", "HDMI 2", "USB camera 1", "USB camera 2"]
    property var inputPresent: [true, false, true, true]
    property var inputFormat: ["1920x1080 60", "", "1280x720 30", ""]
    property int programmeInput: 0
    property int pipInput: 2
    property bool pipOn: false
    property int pipLayout: 0
    property bool recording: false
    property double recordStartMs: 0
    property var streams: [1, 0, 0, 0]
    property bool streaming: streams.some(function (s) { return s !== 0 })
    property bool onAir: streaming || recording
    property int usbDisk: 1
    property string ipAddress: "192.168.0.100"
    property var levels: [10, 45, 60, 70, 75, 79, 85, 100, 0]
    property var levelNames: ["MIC", "HDMI1", "HDMI2", "LINE", "CAM1", "CAM2", "NDI", "USB", "EAR"]
    property bool linkAlive: true

    function switchProgramme(i) { record("programme " + i) }
    function switchPip(i) { record("pip " + i) }
    function setPip(on) { record("setPip " + on) }
    function startRecording() { record("startRecording") }
    function stopRecording() { record("stopRecording") }
}
