import QtQuick 2.15
import "../Public"

// A word with a coloured mark: never colour alone.
Row {
    id: chip
    property string text
    property color mark: Style.off
    spacing: 8
    height: Style.statusHeight

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 16; height: 16; radius: 8
        color: chip.mark
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: chip.text
        color: Style.text
        font.pixelSize: Style.fontSmall
    }
}
