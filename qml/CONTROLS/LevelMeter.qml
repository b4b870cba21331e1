import QtQuick 2.15
import "../Public"

// One vertical audio level meter. Levels arrive on a 0-100 scale and are
// shown clamped to 40-80, as the device's meters do.
Item {
    id: meter
    property int level: 0
    property string label
    readonly property real shown: (Math.min(80, Math.max(40, level)) - 40) / 40

    implicitWidth: 72
    implicitHeight: 200

    Rectangle {
        id: track
        anchors { top: parent.top; bottom: caption.top; bottomMargin: 6; horizontalCenter: parent.horizontalCenter }
        width: 28
        radius: 4
        color: Style.surface
        border.color: Style.outline

        Rectangle {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 3 }
            height: Math.max(0, (track.height - 6) * meter.shown)
            radius: 2
            color: meter.shown > 0.9 ? Style.onAir : meter.shown > 0.7 ? Style.attention : Style.onPip
            Behavior on height { NumberAnimation { duration: 120 } }
        }
    }
    Text {
        id: caption
        anchors { bottom: parent.bottom; horizontalCenter: parent.horizontalCenter }
        text: meter.label
        color: Style.textDim
        font.pixelSize: Style.fontTiny
    }
}
