import QtQuick 2.15
import "../Public"

// One audio level meter: the source's name, then a horizontal bar. Levels
// arrive on a 0-100 scale and are shown clamped to 40-80, as the device's
// meters do.
Item {
    id: meter
    property int level: 0
    property string label
    property real labelWidth: 96
    readonly property real shown: (Math.min(80, Math.max(40, level)) - 40) / 40

    implicitWidth: 240
    implicitHeight: 48

    Text {
        id: caption
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: meter.labelWidth
        text: meter.label
        color: Style.textDim
        font.pixelSize: Style.fontSmall
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Style.fontTiny
        elide: Text.ElideRight
    }
    Rectangle {
        id: track
        anchors { left: caption.right; leftMargin: 8; right: parent.right; verticalCenter: parent.verticalCenter }
        height: Math.min(28, meter.height - 8)
        radius: 4
        color: Style.surface
        border.color: Style.outline

        Rectangle {
            anchors { left: parent.left; top: parent.top; bottom: parent.bottom; margins: 3 }
            width: Math.max(0, (track.width - 6) * meter.shown)
            radius: 2
            color: meter.shown > 0.9 ? Style.onAir : meter.shown > 0.7 ? Style.attention : Style.onPip
            Behavior on width { NumberAnimation { duration: 120 } }
        }
    }
}
