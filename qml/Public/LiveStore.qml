import QtQuick 2.15
import "VideoFormat.js" as VideoFormat

// The live state of the device as the main screen shows it, kept from the
// media service's reports, and the live actions. Views read it; only this
// store calls the native objects.
QtObject {
    id: store
    property var manage

    // Inputs that can go on programme: switch channel = index.
    readonly property var inputNames: [qsTr("HDMI 1"), qsTr("HDMI 2"), qsTr("USB camera 1"), qsTr("USB camera 2")]
    property var inputPresent: [true, true, true, true]
    property var inputFormat: ["", "", "", ""]

    property int programmeInput: -1
    property int pipInput: -1
    property int pipInput2: -1      // second small picture of the two-picture layout
    property bool pipOn: false
    // PIP layouts: 0..3 one small picture in a corner (top-left, top-right,
    // bottom-left, bottom-right), 4 side by side, 5 two small pictures.
    property int pipLayout: 0
    readonly property int pipLayoutCount: 6

    property bool recording: false
    property double recordStartMs: 0
    property var streams: [0, 0, 0, 0]
    readonly property bool streaming: streams.some(function (s) { return s !== 0 })
    readonly property bool onAir: streaming || recording

    property int usbDisk: -1        // -1 unknown, 0 absent, otherwise present
    property string ipAddress: ""
    property var levels: [0, 0, 0, 0, 0, 0, 0, 0, 0]
    readonly property var levelNames: [qsTr("Mic"), qsTr("HDMI 1"), qsTr("HDMI 2"), qsTr("Line"), qsTr("Camera 1"), qsTr("Camera 2"), qsTr("NDI"), qsTr("USB"), qsTr("Phones")]

    // The media service is "silent" when nothing came back for a while.
    property double lastReportMs: 0
    property double nowMs: Date.now()
    readonly property bool linkAlive: lastReportMs > 0 && nowMs - lastReportMs < 6000

    function heard() { lastReportMs = Date.now() }
    function setAt(list, index, value) { var copy = list.slice(); copy[index] = value; return copy }

    function loadSettings(settings) {
        if (settings.inputType !== undefined) programmeInput = settings.inputType
        if (settings.inputType2 !== undefined) pipInput = settings.inputType2
        if (settings.inputType3 !== undefined) pipInput2 = settings.inputType3
        if (settings.pipModeOpen !== undefined) pipOn = settings.pipModeOpen !== 0
        if (settings.pipModeSelect !== undefined && settings.pipModeSelect >= 0 && settings.pipModeSelect < pipLayoutCount)
            pipLayout = settings.pipModeSelect
        if (settings.recordStatus !== undefined) recording = settings.recordStatus !== 0
        if (settings.recordStartTime !== undefined && settings.recordStartTime !== "")
            recordStartMs = Number(settings.recordStartTime) || 0
    }

    // Only the operator's own choices are saved. Device reports change what
    // is shown and never write the settings file: they arrive during cuts
    // and recordings, when the disk is busiest.
    function switchProgramme(index) {
        manage.uiproc.connectSwitchVideo(index, true)
        manage.uiproc.writeInitConfig({ "inputType": index })
    }
    // The device answers a PIP source with nothing of its own: the input
    // read-back that follows says which source it took.
    function switchPip(index) {
        pipInput = index
        manage.uiproc.connectSwitchVideo(index, false)
        manage.uiproc.writeInitConfig({ "inputType2": index })
        manage.uiproc.connectReadInitInput()
    }
    // The second small picture travels in the position byte of its layout,
    // which has no corner to choose.
    function switchPip2(index) {
        pipInput2 = index
        manage.uiproc.writeInitConfig({ "inputType3": index })
        if (pipOn && pipLayout === 5)
            sendPip()
    }
    // connectSetPIP(type, position): type 0 off, 1 corner, 2 side by side,
    // 3 two pictures; position the corner, or the second source (255 none).
    function pipArgs(on) {
        if (pipLayout === 4)
            return [on ? 2 : 0, 0]
        if (pipLayout === 5)
            return [on ? 3 : 0, pipInput2 >= 0 ? pipInput2 : 255]
        return [on ? 1 : 0, pipLayout & 3]
    }
    function sendPip() {
        var a = pipArgs(pipOn)
        manage.uiproc.connectSetPIP(a[0], a[1])
    }
    function setPip(on) {
        pipOn = on
        sendPip()
        manage.uiproc.writeInitConfig({ "pipModeOpen": on ? 1 : 0 })
        manage.uiproc.connectReadInitInput()
    }
    function setPipLayout(layout) {
        if (layout < 0 || layout >= pipLayoutCount || layout === pipLayout)
            return
        pipLayout = layout
        manage.uiproc.writeInitConfig({ "pipModeSelect": layout })
        if (pipOn)
            sendPip()
    }
    // Every start goes through the USB disk probe, wherever it is asked
    // for; the result is announced so the record page can say why a start
    // was refused and how long the disk lasts. True when started.
    signal diskProbed(double result)
    function startRecording() {
        var recorder = manage.uiprocRecord
        var r = recorder ? Number(recorder.check_is_usb_disk_ok_for_record()) : -1
        diskProbed(r)
        if (!(r >= 0))
            return false
        manage.uiproc.connectRec(1, 1)
        manage.uiproc.writeInitConfig({ "recordStatus": 1, "recordStartTime": String(Date.now()) })
        return true
    }
    function stopRecording() {
        manage.uiproc.connectRec(1, 2)
        manage.uiproc.writeInitConfig({ "recordStatus": 0, "recordStartTime": "" })
    }
    // Keep-alive: the USB status question doubles as the link check. The
    // native side logs the repeated question and answer once a minute only.
    function poll() {
        nowMs = Date.now()
        manage.uiproc.heartbeat()
    }

    property Connections reports: Connections {
        target: store.manage ? store.manage.uiproVideo : null
        function onPushPGMCutFinish(sourceIndex) { store.heard(); store.programmeInput = sourceIndex }
        function onPushInitInput(mainInput, subInput) { store.heard(); store.programmeInput = mainInput; store.pipInput = subInput }
        // A plug or unplug shows on the tile at once; the format of a new
        // signal follows from the question it prompts.
        function onPushInputInitiative(status, inputID) {
            store.heard()
            if (inputID < 0 || inputID >= 4)
                return
            store.inputPresent = store.setAt(store.inputPresent, inputID, status !== 0)
            if (status === 0)
                store.inputFormat = store.setAt(store.inputFormat, inputID, "")
            else
                store.manage.uiproc.connectGetInputCurrentFormat(inputID)
        }
        // The device set its inputs up afresh, or an input was chosen on
        // the device itself: ask what it has now.
        function onPushInitInputInitiative(status) {
            store.heard()
            store.manage.uiproc.connectReadInitInput()
            store.manage.uiproc.connectGetInputCurrentFormat()
        }
        function onPushInputClick(index) { store.heard(); store.manage.uiproc.connectReadInitInput() }
        function onPushChangeHDMIInitiative(hdmiID) {
            store.heard()
            if (hdmiID === 0 || hdmiID === 1)
                store.manage.uiproc.connectGetInputCurrentFormat(hdmiID)
        }
        function onPushInputFormatInitiative(type, format) {
            store.heard()
            if (type < 0 || type >= 4)
                return
            // No current format means the input has no signal.
            var f = VideoFormat.parse(format, type < 2)
            store.inputPresent = store.setAt(store.inputPresent, type, f !== null)
            store.inputFormat = store.setAt(store.inputFormat, type, VideoFormat.label(f))
        }
        function onPushRecordingStatus(status) {
            store.heard()
            var was = store.recording
            store.recording = status !== 0
            if (store.recording && !was) store.recordStartMs = Date.now()
        }
        function onPushRtmpStatus(channel, status) {
            store.heard()
            if (channel >= 0 && channel < 4) store.streams = store.setAt(store.streams, channel, status)
        }
        function onPushUSBStatus(status) { store.heard(); store.usbDisk = status }
        function onPushUSBInitiative(status) { store.heard(); store.usbDisk = status }
        function onPushLocalIP(localIP) { store.heard(); store.ipAddress = localIP }
    }
    property Connections audio: Connections {
        target: store.manage ? store.manage.uiprocGetAudioShareData : null
        function onUpdateVoise(mic, hdmi1, hdmi2, line, uvc1, uvc2, ndi, usb, ear) {
            store.levels = [mic, hdmi1, hdmi2, line, uvc1, uvc2, ndi, usb, ear]
        }
    }
    property Timer pollTimer: Timer {
        interval: 2000; repeat: true; running: store.manage !== undefined && store.manage !== null
        onTriggered: store.poll()
    }

    // Start-up: ask the device for the state it already has.
    function start() {
        // The device has no PIP report: make it agree with the remembered choice.
        sendPip()
        manage.uiproc.connectReadInitInput()
        manage.uiproc.connectGetInputCurrentFormat()
        manage.uiproc.connectRec(1, 3)
        manage.uiproc.connectStreamPlatformStatus()
        manage.uiproc.connectGetLocalHost()
        poll()
    }
}
