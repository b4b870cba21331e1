import QtQuick 2.15
import "../Public"

// A horizontal slider with a thumb-sized handle; a touch anywhere on the
// track moves the handle there. `moved` fires for the operator's changes only.
Item {
    id: slider
    property real from: 0
    property real to: 100
    property real stepSize: 1
    property real value: 0
    property bool enabled: true
    signal moved(real value)

    implicitHeight: Style.touch
    implicitWidth: Style.touch * 5
    opacity: enabled ? 1 : 0.45
    readonly property real position: to > from ? (Math.max(from, Math.min(to, value)) - from) / (to - from) : 0

    Rectangle {
        id: track
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: handle.width / 2 }
        height: 14
        radius: 7
        color: Style.outline
        Rectangle { width: parent.width * slider.position; height: parent.height; radius: 7; color: Style.accent }
    }
    Rectangle {
        id: handle
        width: Style.touch * 0.8
        height: Style.touch * 0.8
        radius: width / 2
        anchors.verticalCenter: parent.verticalCenter
        x: track.x + track.width * slider.position - width / 2
        color: area.pressed ? Style.accent : Style.surfaceRaised
        border.color: Style.accent
        border.width: 4
    }
    MouseArea {
        id: area
        anchors.fill: parent
        enabled: slider.enabled
        preventStealing: true
        function take(mx) {
            var p = Math.max(0, Math.min(1, (mx - track.x) / track.width))
            var v = slider.from + p * (slider.to - slider.from)
            if (slider.stepSize > 0)
                v = slider.from + Math.round((v - slider.from) / slider.stepSize) * slider.stepSize
            if (v !== slider.value) {
                slider.value = v
                slider.moved(v)
            }
        }
        onPressed: take(mouse.x)
        onPositionChanged: take(mouse.x)
    }
}
