import QtQuick 2.15
import QtQuick.Window 2.15

// The live preview picture. It follows the frame source's refresh signal,
// which comes for every frame, and fetches from the "MyMainCodeImg" provider
// at most one frame per frame the window draws: this is the one place where
// a producer faster than the display is slowed down. The changing id defeats
// the image cache. `live` turns false when no frame came for `staleAfterMs`,
// so a screen can show that there is no signal.
Item {
    id: preview

    // The object announcing frames (the "CodeImage" context property by default).
    property QtObject frameSource: (typeof CodeImage !== "undefined") ? CodeImage : null
    // No refresh while set (for instance during a software upgrade).
    property bool paused: false
    readonly property bool live: d.live
    property int staleAfterMs: 2000
    readonly property int framesShown: d.framesShown
    property alias fillMode: picture.fillMode
    readonly property alias status: picture.status

    implicitWidth: 640
    implicitHeight: 360

    QtObject {
        id: d
        property bool coreSet: false
        property bool live: false
        property int framesShown: 0
        // One fetch per displayed frame: a fetch made since the last swap
        // defers the next one to the swap (only the newest frame is fetched
        // then), so a fast producer cannot make the GUI thread load frames
        // that would never be seen.
        property bool fetchedSinceSwap: false
        property bool deferred: false

        function fetch() {
            picture.source = "image://MyMainCodeImg/" + Math.random()
            if (picture.status === Image.Ready)
                framesShown++
            fetchedSinceSwap = true
            swapGuard.restart()
        }
    }

    // No window, or one that stops swapping (hidden, minimised), must not
    // hold the preview back for good: it fetches at this pace instead.
    Timer {
        id: swapGuard
        interval: 100
        onTriggered: {
            d.fetchedSinceSwap = false
            if (d.deferred && !preview.paused) {
                d.deferred = false
                d.fetch()
            }
        }
    }

    Connections {
        target: preview.Window.window
        ignoreUnknownSignals: true
        function onFrameSwapped() {
            d.fetchedSinceSwap = false
            if (d.deferred && !preview.paused) {
                d.deferred = false
                d.fetch()
            }
        }
    }

    Image {
        id: picture
        objectName: "previewPicture"
        anchors.fill: parent
        fillMode: Image.PreserveAspectFit
        cache: false
        smooth: true
    }

    Timer {
        id: staleTimer
        interval: preview.staleAfterMs
        onTriggered: d.live = false
    }

    Connections {
        target: preview.frameSource
        ignoreUnknownSignals: true
        function onCallRefreshMainImg() {
            if (!d.coreSet) {
                d.coreSet = true
                if (preview.frameSource && typeof preview.frameSource.setCore === "function")
                    preview.frameSource.setCore()
            }
            d.live = true
            staleTimer.restart()
            if (preview.paused)
                return
            if (d.fetchedSinceSwap) {
                d.deferred = true
                return
            }
            d.fetch()
        }
    }
}
