import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/Public"

// The switcher's store against fake native objects, and its pages on a
// fake store: what is sent and saved, and how the device's answers show.
Item {
    id: root
    width: 700
    height: 2600

    QtObject {
        id: fakeManage
        property var sent: []
        property var saved: []
        function note(what) { var s = sent.slice(); s.push(what); sent = s }
        property QtObject uiproc: QtObject {
            function connectGetInputSignalFormat(type) { fakeManage.note("formats?" + (type === undefined ? "" : " " + type)) }
            function connectGetInputCurrentFormat(type) { fakeManage.note("current?" + (type === undefined ? "" : " " + type)) }
            function connectSetInputSignalFormat(list) { fakeManage.note("setFormat " + JSON.stringify(list)) }
            function connectSwitchAudio(channel) { fakeManage.note("audio " + channel) }
            function connectGetAudioSamplingRate(type, input, rate) { fakeManage.note("rate " + [type, input, rate].join(" ")) }
            function connectHdmiOutStyle(action, type) { fakeManage.note("hdmiStyle " + action + " " + type) }
            function readHDMI2Status() { fakeManage.note("hdmi2?") }
            function connectGetOutputStatus() { fakeManage.note("output?") }
            function writeInitConfig(obj) { var s = fakeManage.saved.slice(); s.push(JSON.stringify(obj)); fakeManage.saved = s }
        }
        property QtObject uiproVideo: QtObject {
            signal pushVideoFormatData(int inputType, int dataLength, var formatArray)
            signal pushInputFormatInitiative(int type, var format)
            signal pushInputInitiative(int status, int inputID)
            signal pushAudioSamplingRate(int inputType, int rate)
            signal pushHDMIOutStyle(int type)
            signal pushHDMI2Status(int status)
            signal pushOutputInitiative(int status)
        }
    }
    QtObject {
        id: fakeLive
        property int programmeInput: 0
        property int pipInput: 1
        property int pipInput2: -1
        property bool pipOn: false
        property int pipLayout: 0
        property var inputNames: ["HDMI 1", "HDMI 2", "USB camera 1", "USB camera 2"]
        property var levelNames: ["Mic", "HDMI 1", "HDMI 2", "Line", "Camera 1", "Camera 2", "NDI", "USB", "Phones"]
        property var levels: []
    }
    SwitcherStore { id: store; live: fakeLive }

    FakeSwitcherStore { id: fake }
    Component { id: inputsPage; InputsPage { width: root.width } }
    Component { id: pipPage; PipPage { width: root.width } }
    Component { id: audioPage; AudioPage { width: root.width } }

    TestCase {
        name: "Switcher"
        when: windowShown

        function initTestCase() { store.manage = fakeManage }
        function init() {
            fakeManage.sent = []
            fakeManage.saved = []
            fake.calls = []
            store.followProgramme = false
            store.followPip = false
        }
        function open(component) {
            var page = createTemporaryObject(component, root)
            page.store = fake
            waitForRendering(page) // laid out before anything is touched
            return page
        }

        function test_formatChoiceGoesOutAndTheAnswerShows_data() {
            return [{ tag: "two codings of one size", input: 3, index: 1, key: "UVC2VideoFormat", resolution: "640x480@30", asks: ["current? 3"],
                      list: [{ DataType: 1, width: 640, height: 480, Fps: "30" }, { DataType: 2, width: 640, height: 480, Fps: "30" }],
                      labels: ["480p30", "480p30 (2)"], answer: { DataType: 2, width: 640, height: 480, Fps: 30 } },
                    { tag: "NDI has no current-format report", input: 4, index: 0, key: "NDIVideoFormat", resolution: "1280x720@60", asks: [],
                      list: [{ DataType: 3, width: 1280, height: 720, Fps: "60" }], labels: ["720p60"], answer: null }]
        }
        function test_formatChoiceGoesOutAndTheAnswerShows(data) {
            fakeManage.uiproVideo.pushVideoFormatData(data.input, 13, data.list)
            compare(store.formatLists[data.input].map(function (f) { return f.label }), data.labels)
            verify(store.chooseFormat(data.input, data.index))
            var save = { curInputIndex: data.input }
            save[data.key] = data.resolution
            compare(fakeManage.saved, [JSON.stringify(save)], "the input is current before the format goes out")
            var list = JSON.parse(fakeManage.sent[0].substring("setFormat ".length))
            compare(list.length, data.input + 1)
            compare(list[data.input].Resolution, data.resolution)
            compare(list[data.input].DataType, data.list[data.index].DataType)
            compare(fakeManage.sent.slice(1), data.asks)
            if (data.answer) {
                compare(store.pending[data.input], data.resolution)
                fakeManage.uiproVideo.pushInputFormatInitiative(data.input, data.answer)
                compare(store.pending[data.input], "")
                compare(store.currentFormats[data.input].height, data.answer.height)
            }
            verify(!store.chooseFormat(data.input, 7), "no such entry")
            fakeManage.uiproVideo.pushVideoFormatData(data.input, 0, [])
            compare(store.formatLists[data.input], [], "no signal")
        }

        function test_audioChoicesAndFollowing_data() {
            return [{ tag: "PIP none", act: function () { store.setAudio(true, -1) }, sent: ["audio 31"], saved: ['{"inputAudio2":-1}'] },
                    { tag: "out of range", act: function () { store.setAudio(false, 8) }, sent: [], saved: [] },
                    { tag: "programme follows the cut", act: function () { fakeLive.programmeInput = 2; store.setFollow(false, true); fakeLive.programmeInput = 4 },
                      sent: ["audio 4", "audio 6"], saved: ['{"autoAudio":1}'] },
                    { tag: "PIP follows its source", act: function () { fakeLive.pipInput = 1; store.setFollow(true, true); fakeLive.pipInput = 3 },
                      sent: ["audio 18", "audio 21"], saved: ['{"autoAudio2":1}'] },
                    { tag: "a hand choice ends following", act: function () { store.setFollow(false, true); fakeManage.saved = []; store.setAudio(false, 0) },
                      sent: ["audio 0"], saved: ['{"inputAudio":0,"autoAudio":0}'] }]
        }
        function test_audioChoicesAndFollowing(data) {
            store.programmeAudio = -1
            store.pipAudio = -1
            fakeLive.programmeInput = 0
            fakeLive.pipInput = 1
            fakeManage.sent = []
            data.act()
            compare(fakeManage.sent.filter(function (s) { return s.indexOf("audio") === 0 }).slice(-data.sent.length), data.sent)
            if (data.sent.length === 0) compare(fakeManage.sent, [])
            compare(fakeManage.saved, data.saved)
        }

        function test_startTellsTheDeviceOnce_data() {
            return [{ tag: "programme follows, PIP none", settings: { autoAudio: 1, inputAudio: 3, inputAudio2: -1 }, audio: ["audio 4", "audio 31"] },
                    { tag: "by hand", settings: { autoAudio: 0, inputAudio: 3, autoAudio2: 1 }, audio: ["audio 3", "audio 18"] },
                    { tag: "nothing saved", settings: { UVC1VideoFormat: "1280x720@30" }, audio: [] }]
        }
        function test_startTellsTheDeviceOnce(data) {
            fakeLive.programmeInput = 2
            fakeLive.pipInput = 1
            store.start(data.settings)
            compare(fakeManage.sent, data.audio.concat(["hdmiStyle 1 0", "hdmi2?", "output?"]))
            compare(fakeManage.saved, [], "nothing saved at start")
            if (data.settings.UVC1VideoFormat)
                compare(store.chosen[2], "1280x720@30")
        }

        function test_inputsPageShowsTheDevice() {
            fake.formatLists = [null, [], [{ type: 0, width: 1920, height: 1080, fps: 60, interlaced: false, label: "1080p60", resolution: "1920x1080@60" },
                                           { type: 0, width: 1280, height: 720, fps: 50, interlaced: false, label: "720p50", resolution: "1280x720@50" }], null, null]
            fake.currentKnown = [false, false, true, false, false]
            fake.currentFormats = [null, null, { type: 0, width: 1280, height: 720, fps: 50, interlaced: false }, null, null]
            var page = open(inputsPage)
            compare(fake.calls, ["refreshFormats"])
            compare(findChild(page, "inputNow0").text, "Asking the device…")
            compare(findChild(page, "inputNow1").text, "No signal")
            compare(findChild(page, "inputNow2").text, "Now: 720p50")
            verify(findChild(page, "format2_1280x720@50").checked)
            verify(!findChild(page, "format2_1920x1080@60").checked)
            fake.pending = ["", "", "1920x1080@60", "", ""]
            compare(findChild(page, "inputNow2").text, "Setting 1080p60…")
        }

        // Choosing layouts and sources is driven end to end.
        function test_pipPageOffersOneSourcePerPicture() {
            fake.pipLayout = 1
            var page = open(pipPage)
            verify(findChild(page, "pipLayout1").checked)
            verify(!findChild(page, "pipSecond2").enabledState, "one source in a one-picture layout")
            verify(findChild(page, "pipFirst1").checked, "the source the device read back")
        }

        function test_audioPageShowsTheDevice() {
            fake.samplingRates = [1, 0, -1, 1, 1, 1, 1, 1]
            fake.hdmi2Status = 0
            var page = open(audioPage)
            compare(fake.calls, ["refreshAudio", "refreshOutputs"])
            compare([findChild(page, "audioRate0").text, findChild(page, "audioRate1").text, findChild(page, "audioRate8").text], ["48 kHz", "44.1 kHz", ""])
            compare(findChild(page, "hdmi2Status").value, "No monitor")
            compare(findChild(page, "outputStatus").value, "Not known yet")
            verify(findChild(page, "programmeAudio1").checked)
            mouseClick(findChild(page, "programmeAudioFollow"))
            compare(fake.calls.slice(2), ["setFollow false true"])
        }
    }
}
