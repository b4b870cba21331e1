import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// The thin status line: streaming per channel, recording, USB disk,
// address and clock. The link mark appears only when the media service has
// gone silent. On a narrow (portrait) panel the marks wrap onto a second line.
Rectangle {
    id: bar
    property var streams: [0, 0, 0, 0]
    property bool recording: false
    property string recordTime: ""
    property int minutesLeft: -1      // on the USB disk while recording; -1 unknown
    property bool lowDisk: false
    property int usbDisk: -1
    property string ipAddress: ""
    property bool linkAlive: false
    property string clock: ""

    height: Math.max(Style.statusHeight, marks.height)
    color: Style.surface

    Flow {
        id: marks
        anchors { left: parent.left; leftMargin: Style.gap; right: clockText.left; rightMargin: Style.gap; top: parent.top }
        spacing: Style.gap * 2

        // While streaming, a mark per live channel (the stream page shows all
        // four); one mark otherwise. Keeps the line to one row in portrait.
        StatusChip {
            objectName: "streamOffChip"
            visible: !bar.streams.some(function (s) { return s !== 0 })
            text: qsTr("Stream off")
            mark: Style.off
        }
        Repeater {
            model: 4
            StatusChip {
                objectName: "streamChip" + index
                visible: bar.streams[index] !== 0
                text: qsTr("CH%1").arg(index + 1) + " " + (bar.streams[index] ? qsTr("live") : qsTr("off"))
                mark: bar.streams[index] ? Style.onAir : Style.off
            }
        }
        StatusChip {
            objectName: "recordChip"
            text: bar.recording ? qsTr("REC %1").arg(bar.recordTime) : qsTr("REC off")
            mark: bar.recording ? Style.onAir : Style.off
        }
        StatusChip {
            objectName: "recordLeftChip"
            visible: bar.recording && bar.minutesLeft >= 0
            text: qsTr("%n min left", "", bar.minutesLeft)
            mark: bar.lowDisk ? Style.attention : Style.off
        }
        StatusChip {
            objectName: "usbChip"
            text: bar.usbDisk > 0 ? qsTr("USB disk") : bar.usbDisk === 0 ? qsTr("No USB disk") : qsTr("USB disk ?")
            mark: bar.usbDisk > 0 ? Style.onPip : bar.usbDisk === 0 ? Style.attention : Style.off
        }
        StatusChip {
            objectName: "ipChip"
            text: bar.ipAddress.length > 0 ? bar.ipAddress : qsTr("No address")
            mark: bar.ipAddress.length > 0 ? Style.onPip : Style.off
        }
        StatusChip {
            objectName: "linkChip"
            visible: !bar.linkAlive
            text: qsTr("Media service silent")
            mark: Style.attention
        }
    }
    Text {
        id: clockText
        anchors { right: parent.right; rightMargin: Style.gap; top: parent.top }
        height: Style.statusHeight
        verticalAlignment: Text.AlignVCenter
        text: bar.clock
        color: Style.text
        font.pixelSize: Style.fontNormal
    }
}
