import QtQuick 2.15
import QtQuick.Window 2.15
import cs.Preview 1.0

// The live preview picture. The frame source's newest frame goes straight
// into one texture that is rewritten in place and scaled by the renderer; a
// frame that comes before the previous one was drawn replaces it. `live`
// turns false when no frame came for `staleAfterMs`, so a screen can show
// that there is no signal.
Item {
    id: preview

    // The object announcing frames (the "CodeImage" context property by default).
    property QtObject frameSource: (typeof CodeImage !== "undefined") ? CodeImage : null
    // The picture stays as it is while set (for instance during a software upgrade).
    property bool paused: false
    readonly property bool live: picture.live
    property alias staleAfterMs: picture.staleAfterMs
    readonly property int framesShown: picture.framesShown
    // Image.Stretch, Image.PreserveAspectFit (default) or Image.PreserveAspectCrop.
    property alias fillMode: picture.fillMode
    readonly property int status: picture.framesShown > 0 ? Image.Ready : Image.Null

    implicitWidth: 640
    implicitHeight: 360

    PreviewItem {
        id: picture
        objectName: "previewPicture"
        anchors.fill: parent
        source: preview.frameSource
        paused: preview.paused
        // The software renderer scales on the processor: unfiltered keeps a
        // full-rate picture affordable there; with a GPU filtering is free.
        smooth: GraphicsInfo.api !== GraphicsInfo.Software

        property bool coreSet: false
        onLiveChanged: {
            // The GUI thread goes to its own core with the first frame.
            if (live && !coreSet) {
                coreSet = true
                if (preview.frameSource && typeof preview.frameSource.setCore === "function")
                    preview.frameSource.setCore()
            }
        }
    }
}
