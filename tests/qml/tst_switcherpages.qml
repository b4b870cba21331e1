import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/Element"

// The NDI and camera pages on fake stores, and the safe-frame guides: what
// the end-to-end run does not reach (refusals, what a camera lacks, names
// from the network shown as text).
Item {
    id: root
    width: 900
    height: 3000

    QtObject {
        id: ndi
        property var calls: []
        function record(w) { var c = calls.slice(); c.push(w); calls = c }
        property int encoding: 0
        property int decoding: -1
        property var groupName: ""
        property var channelName: "Main"
        property var deviceName: null
        property var connection: ({ type: 3, ttl: 4, address: "239.255.0.1", netmask: "255.255.255.0" })
        property int dataType: 0
        property int codeValue: 0
        property var baseInfo: null
        property var sources: [{ name: "CAM-NORTH (PTZ1)", addr: "192.168.1.31:5961" }, { name: "<b>x</b>", addr: "1.2.3.4" }]
        property bool sourcesKnown: true
        property bool searching: false
        property string chosenSource: ""
        function refresh() { record("refresh") }
        function setEncoding(on) { record("encoding " + on) }
        function setDecoding(on) { record("decoding " + on) }
        function nameProblem(t) { return t === "" ? "empty" : /^[\x20-\x7e]+$/.test(t) ? "" : "characters" }
        function setName(w, t) { record("name " + w + " " + t) }
        function connectionProblem(type, ttl, a, m) { return ttl >= 1 && ttl <= 255 ? "" : "ttl" }
        function setConnection(type, ttl, a, m) { record("connection " + [type, ttl, a, m].join(" ")) }
        function setDataType(t, c) { record("data " + t + " " + c) }
        function searchSources() { record("search") }
        function chooseSource(n) { record("source " + n) }
    }
    QtObject {
        id: camera
        property var calls: []
        function record(w) { var c = calls.slice(); c.push(w); calls = c }
        property int camera: 0
        property var support: ({ pan: true, tilt: false, zoom: true, focus: false })
        property int autoFocus: -1
        property int preset: 1
        property var styles: [0, 2]
        property bool stylesKnown: true
        property int style: -1
        property int tally: 0
        property int moving: 0
        readonly property int up: 1
        readonly property int down: 2
        readonly property int left: 3
        readonly property int right: 4
        readonly property int zoomIn: 5
        readonly property int zoomOut: 6
        readonly property int presetCount: 6
        function refresh() { record("refresh") }
        function selectCamera(i) { record("camera " + i) }
        function canMove(c) { return c === 1 || c === 2 ? support.tilt : c === 3 || c === 4 ? support.pan : support.zoom }
        function hold(c) { record("hold " + c); moving = c }
        function release() { record("release"); moving = 0 }
        function setAutoFocus(on) { record("focus " + on) }
        function recallPreset(i) { record("recall " + i) }
        function storePreset(i) { record("store " + i) }
        function setStyle(c) { record("style " + c) }
    }
    Component { id: ndiPage; NdiPage { width: root.width } }
    Component { id: ptzPage; PtzPage { width: root.width } }
    Component { id: preview; PreviewPanel { width: 640; height: 360 } }

    TestCase {
        name: "SwitcherPages"
        when: windowShown

        function open(component, store) {
            var page = createTemporaryObject(component, root)
            page.store = store
            store.calls = []
            waitForRendering(page)     // rows and grids place their items when polished
            return page
        }

        function test_ndiNames() {
            var page = open(ndiPage, ndi)
            compare(findChild(page, "ndiName_group").text, "", "the device's no-name is no name")
            compare(findChild(page, "ndiName_group").placeholderText, "No group name")
            compare(findChild(page, "ndiName_channel").text, "Main")
            compare(findChild(page, "ndiName_device").placeholderText, "Asking the device…")
            ndi.deviceName = "CS-1"
            compare(findChild(page, "ndiName_device").text, "CS-1", "the answer fills the field")
            findChild(page, "ndiName_group").text = "Bühne"
            mouseClick(findChild(page, "ndiNameSet_group"))
            verify(findChild(page, "ndiNameMessage").visible)
            findChild(page, "ndiName_group").text = "Stage "
            mouseClick(findChild(page, "ndiNameSet_group"))
            verify(!findChild(page, "ndiNameMessage").visible)
            compare(ndi.calls, ["name group Stage"])
        }
        function test_ndiConnectionAndSources() {
            var page = open(ndiPage, ndi)
            compare(findChild(page, "ndiAddress").text, "239.255.0.1")
            findChild(page, "ndiTtl").text = "0"
            mouseClick(findChild(page, "ndiConnectionApply"))
            verify(findChild(page, "ndiConnectionMessage").visible)
            findChild(page, "ndiTtl").text = "8"
            mouseClick(findChild(page, "ndiConnect1"))
            mouseClick(findChild(page, "ndiConnectionApply"))
            mouseClick(findChild(page, "ndiSource_<b>x</b>"))
            mouseClick(findChild(page, "ndiData1"))
            compare(ndi.calls, ["connection 1 8 239.255.0.1 255.255.255.0", "source <b>x</b>", "data 1 0"])
            ndi.chosenSource = "<b>x</b>"
            var hostile = findChild(page, "ndiSource_<b>x</b>")
            compare(hostile.detail, "Chosen  ·  1.2.3.4")
            compare(findChild(hostile, "ndiSourceName").textFormat, Text.PlainText, "a name from the network is never markup")
        }
        function test_ptzUnsupported() {
            var page = open(ptzPage, camera)
            var up = findChild(page, "ptzUp")
            mousePress(up)          // the camera cannot tilt
            mouseRelease(up)
            compare(camera.calls, [])
            compare(up.detail, "Not supported by this camera")
            compare(findChild(page, "ptzFocus").detail, "Not supported by this camera")
            verify(!findChild(page, "ptzFocus").enabledState)
            compare(findChild(page, "ptzPreset1").detail, "Camera is here")
        }
        function test_ptzRecallAndStyles() {
            var page = open(ptzPage, camera)
            mouseClick(findChild(page, "ptzPreset3"))
            mouseClick(findChild(page, "ptzStyle2"))
            verify(findChild(page, "ptzStyle1") === null, "only offered styles are shown")
            compare(camera.calls, ["recall 3", "style 2"])
        }
        function test_ptzReleasesWhenClosed() {
            var page = open(ptzPage, camera)
            mousePress(findChild(page, "ptzZoomIn"))
            page.destroy()
            tryCompare(camera, "moving", 0)
        }
        function test_safeFrameOverlay_data() {
            return [{ tag: "none", type: 0, shown: [] }, { tag: "16:9", type: 1, shown: ["safeAction", "safeTitle"] },
                    { tag: "9:16", type: 3, shown: ["safeCut"], width: 9 / 16 }]
        }
        function test_safeFrameOverlay(data) {
            var panel = createTemporaryObject(preview, root, { safeFrames: data.type })
            var guide = findChild(panel, "safeFrames")
            compare(guide.visible, data.type !== 0)
            ;["safeAction", "safeTitle", "safeCut"].forEach(function (n) {
                var outline = findChild(panel, n) // made only while a guide is shown
                compare(outline !== null && outline.visible && guide.visible, data.shown.indexOf(n) >= 0, n)
            })
            if (data.width)
                fuzzyCompare(findChild(panel, "safeCut").width, guide.height * data.width, 1)
        }
    }
}
