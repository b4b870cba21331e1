import QtQuick 2.15
import "../Public"

// One stream channel's state in a word and a colour: red live, amber
// waiting for the device, grey off.
Rectangle {
    id: cell
    property string channel: "CH1"
    property string phase: "off"       // live, starting, unconfirmed, stopping, off
    readonly property var words: ({
        live: qsTr("Live"),
        starting: qsTr("Starting…"),
        unconfirmed: qsTr("Not confirmed"),
        stopping: qsTr("Stopping…"),
        off: qsTr("Off")
    })
    readonly property color mark: phase === "live" ? Style.onAir : phase === "off" ? Style.off : Style.attention
    readonly property string word: words[phase] !== undefined ? words[phase] : words.off
    implicitHeight: Style.touch
    radius: Style.radius
    color: Style.surface
    border.width: phase === "off" ? 2 : Style.frame / 2
    border.color: phase === "off" ? Style.outline : mark

    Column {
        anchors.centerIn: parent
        width: parent.width - Style.gap
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: cell.channel
            color: Style.text
            font.pixelSize: Style.fontNormal
            font.bold: true
        }
        Text {
            objectName: "channelWord"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: cell.word
            color: cell.phase === "off" ? Style.textDim : cell.mark
            font.pixelSize: Style.fontSmall
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Style.fontTiny
            elide: Text.ElideRight
        }
    }
}
