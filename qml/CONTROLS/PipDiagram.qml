import QtQuick 2.15
import "../Public"
import "../Public/PipLayout.js" as PipLayout

// A small drawing of one PIP layout: the programme frame with the second
// pictures numbered in it.
Rectangle {
    id: diagram
    property int layout: 0
    property bool lit: true
    color: Style.background
    border.width: 2
    border.color: Style.outline

    Repeater {
        model: PipLayout.rects(diagram.layout)
        Rectangle {
            x: diagram.border.width + modelData.x * (diagram.width - 2 * diagram.border.width)
            y: diagram.border.width + modelData.y * (diagram.height - 2 * diagram.border.width)
            width: modelData.w * (diagram.width - 2 * diagram.border.width)
            height: modelData.h * (diagram.height - 2 * diagram.border.width)
            color: diagram.lit ? Qt.darker(Style.onPip, 2.2) : Style.surface
            border.width: 2
            border.color: diagram.lit ? Style.onPip : Style.off
            Text {
                anchors.centerIn: parent
                text: index + 1
                color: Style.text
                font.pixelSize: Math.max(Style.fontTiny, parent.height * 0.5)
                font.bold: true
            }
        }
    }
}
