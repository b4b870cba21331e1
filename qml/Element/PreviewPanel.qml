import QtQuick 2.15
import "../Public"
import "../CONTROLS"
import "../Public/PipLayout.js" as PipLayout

// The programme picture in 16:9 with its tally frame, the PIP outline and
// an honest mark when no frame arrives.
Rectangle {
    id: panel
    property bool onAir: false
    property bool pipOn: false
    property int pipLayout: 0
    property bool paused: false
    property string programmeName: ""
    property int safeFrames: 0      // guide drawn over the picture, 0 none
    readonly property bool live: preview.live

    color: "black"
    border.width: Style.frame
    border.color: onAir ? Style.onAir : Style.outline

    PreviewImage {
        id: preview
        objectName: "preview"
        anchors.fill: parent
        anchors.margins: Style.frame
        paused: panel.paused
    }

    SafeFrameGuide {
        objectName: "safeFrames"
        anchors.fill: preview
        type: panel.safeFrames
    }

    // Where the device draws the second pictures in the chosen layout.
    Repeater {
        model: panel.pipOn ? PipLayout.rects(panel.pipLayout) : []
        Rectangle {
            objectName: "pipOutline" + index
            x: preview.x + modelData.x * preview.width
            y: preview.y + modelData.y * preview.height
            width: modelData.w * preview.width
            height: modelData.h * preview.height
            color: "transparent"
            border.width: 3
            border.color: Style.onPip
        }
    }

    Rectangle {
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: Style.frame + Style.gap }
        width: tallyText.width + 2 * Style.gap
        height: tallyText.height + Style.gap
        radius: Style.radius / 2
        color: panel.onAir ? Style.onAir : "#99000000"
        Text {
            id: tallyText
            anchors.centerIn: parent
            text: (panel.onAir ? qsTr("ON AIR") + "  " : qsTr("PGM") + "  ") + panel.programmeName
            color: Style.text
            font.pixelSize: Style.fontSmall
            font.bold: true
        }
    }

    Rectangle {
        objectName: "noSignal"
        anchors.centerIn: parent
        visible: !preview.live
        width: noSignalText.width + 4 * Style.gap
        height: noSignalText.height + 2 * Style.gap
        radius: Style.radius
        color: "#cc000000"
        border.color: Style.attention
        border.width: 2
        Text {
            id: noSignalText
            anchors.centerIn: parent
            text: qsTr("No preview from the media service")
            color: Style.attention
            font.pixelSize: Style.fontNormal
        }
    }
}
