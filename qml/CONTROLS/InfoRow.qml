import QtQuick 2.15
import "../Public"

// A name and its value on one line, the value wrapping when long.
Item {
    id: row
    property string name
    property string value
    implicitHeight: Math.max(Style.touch * 0.6, valueText.implicitHeight + Style.gap)

    Text {
        id: nameText
        width: parent.width * 0.42
        anchors { left: parent.left; top: parent.top; topMargin: Style.gap / 2 }
        text: row.name
        color: Style.textDim
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    Text {
        id: valueText
        anchors { left: parent.left; leftMargin: parent.width * 0.42 + Style.gap; right: parent.right; top: parent.top; topMargin: Style.gap / 2 }
        text: row.value
        color: Style.text
        font.pixelSize: Style.fontSmall
        wrapMode: Text.Wrap
    }
}
