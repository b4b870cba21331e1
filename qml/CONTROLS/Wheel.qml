import QtQuick 2.15
import QtQuick.Controls 2.15
import "../Public"

// A number wheel (zero-based index) with a caption; `format` turns an
// index into the text shown for it.
Column {
    id: wheel
    property string caption
    property alias model: tumbler.model
    property alias currentIndex: tumbler.currentIndex
    property alias moving: tumbler.moving
    property alias tumbler: tumbler
    property var format: function (i) { return i < 10 ? "0" + i : "" + i }
    property int fontSize: Style.fontLarge
    spacing: 4

    Text {
        width: wheel.width
        horizontalAlignment: Text.AlignHCenter
        text: wheel.caption
        color: Style.textDim
        font.pixelSize: Style.fontSmall
        elide: Text.ElideRight
    }
    Rectangle {
        width: wheel.width
        height: tumbler.height
        radius: Style.radius
        color: Style.surface
        border.color: Style.outline
        Rectangle {   // the chosen row
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: 4 }
            height: Style.touch
            radius: Style.radius
            color: Qt.darker(Style.accent, 1.8)
            border.color: Style.accent
        }
        Tumbler {
            id: tumbler
            anchors.fill: parent
            height: Style.touch * 3
            visibleItemCount: 3
            delegate: Text {
                text: wheel.format(index)
                color: Style.text
                opacity: 1.0 - Math.abs(Tumbler.displacement) / 2
                font.pixelSize: wheel.fontSize
                font.family: Style.fontFamily
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: Style.fontSmall
                elide: Text.ElideRight
            }
        }
    }
}
