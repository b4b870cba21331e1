import QtQuick 2.15

// Runs the real main window and prints, with the wall-clock time in ms, every
// preview frame put on screen after a pause: soak-simulator.sh matches these
// lines against the moments it restarted the simulator.
Item {
    id: probe
    property var window: null
    property var picture: null
    property double lastFrameMs: 0
    // Far above a frame interval, far below the time the simulator is down.
    readonly property int pauseMs: 250

    function find(item, name) {
        if (!item) return null
        if (item.objectName === name) return item
        for (var i = 0; i < item.children.length; ++i) {
            var found = find(item.children[i], name)
            if (found) return found
        }
        return null
    }

    Component.onCompleted: {
        // Without a parent: a window inside an item that is in no window is never shown.
        var main = Qt.createComponent("qrc:/main.qml")
        window = main.createObject(null)
        if (!window)
            console.log("PROBE error: qrc:/main.qml: " + main.errorString())
        picture = window ? find(window.contentItem, "previewPicture") : null
        if (!picture) {
            console.log("PROBE error: the main screen has no previewPicture")
            Qt.callLater(Qt.exit, 3)
        }
    }

    Connections {
        target: probe.picture
        function onFramesShownChanged() {
            var now = Date.now()
            if (now - probe.lastFrameMs >= probe.pauseMs)
                console.log("PROBE frame-after-pause " + now + " pause " + (now - probe.lastFrameMs)
                            + " shown " + probe.picture.framesShown)
            probe.lastFrameMs = now
        }
    }
}
