import QtQuick 2.15

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
    property bool pipOn: false
    property int pipLayout: 0

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
        if (settings.pipModeOpen !== undefined) pipOn = settings.pipModeOpen !== 0
        if (settings.pipModeSelect !== undefined) pipLayout = settings.pipModeSelect
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
    function switchPip(index) {
        pipInput = index
        manage.uiproc.connectSwitchVideo(index, false)
        manage.uiproc.writeInitConfig({ "inputType2": index })
    }
    function setPip(on) {
        pipOn = on
        manage.uiproc.connectSetPIP(on ? 1 : 0, pipLayout)
        manage.uiproc.writeInitConfig({ "pipModeOpen": on ? 1 : 0 })
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
        function onPushInputInitiative(status, inputID) {
            store.heard()
            if (inputID >= 0 && inputID < 4) store.inputPresent = store.setAt(store.inputPresent, inputID, status !== 0)
        }
        function onPushInputFormatInitiative(type, format) {
            store.heard()
            if (type < 0 || type >= 4)
                return
            // No current format means the input has no signal.
            var known = format.width !== undefined
            store.inputPresent = store.setAt(store.inputPresent, type, known)
            store.inputFormat = store.setAt(store.inputFormat, type, known ? format.width + "x" + format.height + " " + format.Fps : "")
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
        manage.uiproc.connectSetPIP(pipOn ? 1 : 0, pipLayout)
        manage.uiproc.connectReadInitInput()
        manage.uiproc.connectGetInputCurrentFormat()
        manage.uiproc.connectRec(1, 3)
        manage.uiproc.connectStreamPlatformStatus()
        manage.uiproc.connectGetLocalHost()
        poll()
    }
}
