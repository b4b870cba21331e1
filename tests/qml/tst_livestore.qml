import QtQuick 2.15
import QtTest 1.2
import "qrc:/Public"

// The live store against fake native objects: reports change its state,
// the operator's actions send the right commands and save the right keys.
TestCase {
    name: "LiveStore"

    QtObject {
        id: fakeManage
        property var sent: []
        property var saved: []
        function note(what) { var s = sent.slice(); s.push(what); sent = s }

        property QtObject uiproc: QtObject {
            function connectSwitchVideo(channel, outPGM) { fakeManage.note("switch " + channel + " " + outPGM) }
            function connectSetPIP(type, position) { fakeManage.note("pip " + type + " " + position) }
            function connectRec(type, code) { fakeManage.note("rec " + type + " " + code) }
            function connectGetUSBStatus() { fakeManage.note("usb?") }
            function heartbeat() { fakeManage.note("usb?") } // the same question, logged quietly
            function connectReadInitInput() { fakeManage.note("init?") }
            function connectGetInputCurrentFormat(type) { fakeManage.note("formats?" + (type === undefined ? "" : " " + type)) }
            function connectStreamPlatformStatus() { fakeManage.note("streams?") }
            function connectGetLocalHost() { fakeManage.note("ip?") }
            function writeInitConfig(obj) { var s = fakeManage.saved.slice(); s.push(JSON.stringify(obj)); fakeManage.saved = s }
        }
        property QtObject uiproVideo: QtObject {
            signal pushPGMCutFinish(int sourceIndex)
            signal pushInitInput(int mainInput, int subInput)
            signal pushInputInitiative(int status, int inputID)
            signal pushInputFormatInitiative(int type, var format)
            signal pushInitInputInitiative(int status)
            signal pushInputClick(int index)
            signal pushChangeHDMIInitiative(int hdmiID)
            signal pushRecordingStatus(int status)
            signal pushRtmpStatus(int channel, int status)
            signal pushUSBStatus(int status)
            signal pushUSBInitiative(int status)
            signal pushLocalIP(string localIP)
        }
        property QtObject uiprocRecord: QtObject {
            function check_is_usb_disk_ok_for_record() { fakeManage.note("probe"); return 2048000 }
        }
        property QtObject uiprocGetAudioShareData: QtObject {
            signal updateVoise(int a, int b, int c, int d, int e, int f, int g, int h, int i)
        }
    }

    LiveStore { id: store; manage: fakeManage }

    function init() {
        fakeManage.sent = []
        fakeManage.saved = []
        store.recording = false
        store.streams = [0, 0, 0, 0]
    }

    // Device echoes arrive during cuts and recordings: they move what is shown and save nothing.

    function test_switchSendsAndSavesTheChoice() {
        store.switchProgramme(2)
        compare(fakeManage.sent, ["switch 2 true"])
        compare(store.programmeInput === 2, false, "the tally waits for the device's answer")
        store.switchPip(1)
        compare(fakeManage.sent, ["switch 2 true", "switch 1 false", "init?"], "the source read back")
        compare(fakeManage.saved, ['{"inputType":2}', '{"inputType2":1}'])
    }

    function test_pipAndRecordCommandsSaveTheChoice() {
        store.pipLayout = 2
        store.setPip(true)
        var before = Date.now()
        store.startRecording()
        store.stopRecording()
        compare(fakeManage.sent, ["pip 1 2", "init?", "probe", "rec 1 1", "rec 1 2"])
        compare(fakeManage.saved.length, 3)
        compare(fakeManage.saved[0], '{"pipModeOpen":1}')
        var started = JSON.parse(fakeManage.saved[1])
        compare(started.recordStatus, 1)
        verify(Number(started.recordStartTime) >= before && Number(started.recordStartTime) <= Date.now())
        compare(fakeManage.saved[2], '{"recordStatus":0,"recordStartTime":""}')
    }

    function test_echoesMoveWhatIsShownOnly() {
        fakeManage.uiproVideo.pushPGMCutFinish(3)
        compare(store.programmeInput, 3)
        verify(store.linkAlive)
        fakeManage.uiproVideo.pushRecordingStatus(1)
        verify(store.recording)
        verify(store.onAir)
        verify(Math.abs(store.recordStartMs - Date.now()) < 5000)
        fakeManage.uiproVideo.pushRecordingStatus(0)
        verify(!store.recording)
        fakeManage.uiprocGetAudioShareData.updateVoise(1, 2, 3, 4, 5, 6, 7, 8, 9)
        compare(store.levels, [1, 2, 3, 4, 5, 6, 7, 8, 9])
        compare(fakeManage.saved, [])
    }

    function test_streamStatusPerChannel_data() {
        return [{ tag: "channel 3 on", channel: 3, status: 1, streaming: true },
                { tag: "out of range ignored", channel: 7, status: 1, streaming: false }]
    }
    function test_streamStatusPerChannel(data) {
        fakeManage.uiproVideo.pushRtmpStatus(data.channel, data.status)
        compare(store.streaming, data.streaming)
        compare(store.onAir, data.streaming)
    }

    function test_inputPresenceAndFormat_data() {
        return [{ tag: "HDMI interlaced travels as 540 lines", input: 1, format: { "DataType": 0, "width": 1920, "height": 540, "Fps": 60 }, shown: "1080i60", present: true },
                { tag: "540 lines elsewhere are 540 lines", input: 3, format: { "DataType": 1, "width": 960, "height": 540, "Fps": 30 }, shown: "540p30", present: true },
                { tag: "no current format", input: 3, format: {}, shown: "", present: false }]
    }
    function test_inputPresenceAndFormat(data) {
        fakeManage.uiproVideo.pushInputInitiative(0, data.input)
        compare(store.inputPresent[data.input], false)
        compare(fakeManage.sent, [], "nothing to ask about a lost signal")
        fakeManage.uiproVideo.pushInputInitiative(1, data.input)
        compare(store.inputPresent[data.input], true, "the tile shows the plug at once")
        compare(fakeManage.sent, ["formats? " + data.input])
        fakeManage.uiproVideo.pushInputInitiative(1, 9) // unknown input: ignored
        fakeManage.uiproVideo.pushInputFormatInitiative(data.input, data.format)
        compare(store.inputFormat[data.input], data.shown)
        compare(store.inputPresent[data.input], data.present)
    }

    function test_deviceSideInputChangesAreAsked() {
        fakeManage.uiproVideo.pushInitInputInitiative(1)
        fakeManage.uiproVideo.pushInputClick(2)
        fakeManage.uiproVideo.pushChangeHDMIInitiative(1)
        fakeManage.uiproVideo.pushChangeHDMIInitiative(7)
        compare(fakeManage.sent, ["init?", "formats?", "init?", "formats? 1"])
    }

    function test_pipLayouts_data() {
        return [{ tag: "corner", layout: 3, second: -1, on: "pip 1 3", off: "pip 0 3" },
                { tag: "side by side", layout: 4, second: -1, on: "pip 2 0", off: "pip 0 0" }]
    }
    function test_pipLayouts(data) {
        store.pipOn = false
        store.pipLayout = 0
        store.pipInput2 = data.second
        store.setPipLayout(data.layout)
        compare(fakeManage.sent, [], "a layout waits while PIP is off")
        store.setPip(true)
        store.setPip(false)
        compare(fakeManage.sent, [data.on, "init?", data.off, "init?"])
        compare(fakeManage.saved, ['{"pipModeSelect":' + data.layout + '}', '{"pipModeOpen":1}', '{"pipModeOpen":0}'])
        store.setPip(true)
        fakeManage.sent = []
        store.switchPip2(4)
        compare(fakeManage.sent, [], "a second source waits for a two-picture layout")
        store.setPipLayout(9)
        compare(store.pipLayout, data.layout, "no such layout")
        store.pipOn = false
    }

    function test_startAppliesTheRememberedSettings() {
        store.loadSettings({ "inputType": 1, "inputType2": 3, "pipModeOpen": 1, "pipModeSelect": 2, "recordStatus": 0 })
        store.loadSettings({}) // missing keys keep what is there
        compare([store.programmeInput, store.pipInput, store.pipOn, store.pipLayout], [1, 3, true, 2])
        store.start()
        compare(fakeManage.sent, ["pip 1 2", "init?", "formats?", "rec 1 3", "streams?", "ip?", "usb?"])
    }
}
