import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// The programme picture in 16:9 with its tally frame, the PIP outline and
// an honest mark when no frame arrives.
Rectangle {
    id: panel
    property bool onAir: false
    property bool pipOn: false
    property int pipLayout: 0
    property bool paused: false
    property string programmeName: ""
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

    // Where the device draws the second picture: a third of the frame, in the
    // corner the layout names (bit 0: right, bit 1: bottom).
    Rectangle {
        objectName: "pipOutline"
        visible: panel.pipOn
        width: preview.width / 3
        height: preview.height / 3
        x: preview.x + ((panel.pipLayout & 1) ? preview.width - width - preview.width / 32 : preview.width / 32)
        y: preview.y + ((panel.pipLayout & 2) ? preview.height - height - preview.height / 18 : preview.height / 18)
        color: "transparent"
        border.width: 3
        border.color: Style.onPip
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
