import QtQuick 2.15

// The USB cameras' pan, tilt, zoom, focus, presets and picture styles.
// The device's answers carry no camera number: they belong to the camera
// chosen here, which is asked again whenever the choice changes.
QtObject {
    id: store
    property var manage

    property int camera: 0             // 0 USB camera 1, 1 USB camera 2
    // What the camera can do (pushPTZStatus), null until it says.
    property var support: null         // { pan, tilt, zoom, focus } booleans
    property int autoFocus: -1         // -1 unknown, 0 off, 1 on
    property int preset: -1            // the preset the camera last went to or stored
    property var styles: []            // style codes the camera offers
    property bool stylesKnown: false
    property int style: -1             // the style last chosen here
    property int tally: 0              // the camera is on air when not 0
    property int moving: 0             // the move held now, `stop` when none

    // Moves of connectUVCDirectionAndZoom; `stop` ends any of them.
    readonly property int stop: 0
    readonly property int up: 1
    readonly property int down: 2
    readonly property int left: 3
    readonly property int right: 4
    readonly property int zoomIn: 5
    readonly property int zoomOut: 6
    readonly property int presetCount: 6

    function refresh() {
        var u = manage.uiproc
        u.connectUVCControlSupport(camera)
        u.connectUVCStyleSupport(camera)
        u.connectAutoFocus(5, camera, 0)
        u.connectView(5, camera, 2, 0)
    }
    function selectCamera(index) {
        if (index !== 0 && index !== 1)
            return
        release()
        camera = index
        support = null
        autoFocus = -1
        preset = -1
        styles = []
        stylesKnown = false
        style = -1
        refresh()
    }

    function canMove(code) {
        if (!support) return false
        if (code === up || code === down) return support.tilt
        if (code === left || code === right) return support.pan
        if (code === zoomIn || code === zoomOut) return support.zoom
        return false
    }
    // A move runs from press to release. A second press while one runs
    // (two fingers) changes direction; nothing is sent twice.
    function hold(code) {
        if (!canMove(code) || moving === code)
            return false
        moving = code
        stopAgain.stop()
        manage.uiproc.connectUVCDirectionAndZoom(camera, code)
        return true
    }
    function release() {
        if (moving === stop)
            return
        moving = stop
        manage.uiproc.connectUVCDirectionAndZoom(camera, stop)
        // Each command leaves on its own thread: a quick tap's stop can
        // overtake its move. A second stop a moment later leaves no camera
        // moving on its own.
        stopAgain.camera = camera
        stopAgain.restart()
    }
    property Timer stopAgain: Timer {
        property int camera: 0
        interval: 300
        onTriggered: if (store.moving === store.stop || store.camera !== camera)
                         store.manage.uiproc.connectUVCDirectionAndZoom(camera, store.stop)
    }

    function setAutoFocus(on) {
        if (!support || !support.focus)
            return
        manage.uiproc.connectAutoFocus(4, camera, on ? 1 : 0)
    }
    function recallPreset(index) {
        if (index >= 0 && index < presetCount) manage.uiproc.connectView(4, camera, 2, index)
    }
    function storePreset(index) {
        if (index >= 0 && index < presetCount) manage.uiproc.connectView(4, camera, 3, index)
    }
    function setStyle(code) {
        if (styles.indexOf(code) < 0)
            return
        style = code
        manage.uiproc.connectUVCStyle(camera, code, 1)
    }

    property Connections reports: Connections {
        target: store.manage ? store.manage.uiproVideo : null
        function onPushPTZStatus(level, vertical, zoom, autofocus) {
            store.support = { pan: level !== 0, tilt: vertical !== 0, zoom: zoom !== 0, focus: autofocus !== 0 }
        }
        function onPushPTZAutoFocus(status) { store.autoFocus = status }
        function onPushPTZView(index) { store.preset = index }
        function onPushPTZTally(status) { store.tally = status }
        function onPushStyleStatus(list) {
            var codes = []
            for (var i = 0; i < list.length && codes.length < 16; ++i)
                if (typeof list[i] === "number" && codes.indexOf(list[i]) < 0)
                    codes.push(list[i])
            store.styles = codes
            store.stylesKnown = true
        }
    }
}
