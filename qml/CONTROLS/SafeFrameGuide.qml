import QtQuick 2.15
import "../Public"

// Guides over a 16:9 picture: 1 the action-safe (93 %) and title-safe
// (90 %) areas, 2 the centre 4:3 cut, 3 the centre 9:16 cut for vertical
// video. Each guide is named in the picture, not only drawn.
Item {
    id: guide
    property int type: 0
    visible: type >= 1 && type <= 3

    readonly property real cutWidth: type === 2 ? height * 4 / 3 : type === 3 ? height * 9 / 16 : width

    component Outline: Rectangle {
        property string caption
        color: "transparent"
        border.width: 2
        border.color: "#ccffffff"
        anchors.centerIn: parent
        Text {
            anchors { left: parent.left; top: parent.top; margins: 4 }
            text: parent.caption
            color: "#ccffffff"
            style: Text.Outline
            styleColor: "black"
            font.pixelSize: Style.fontTiny
        }
    }
    // Made while a guide is shown: most shows never use one.
    Loader {
        anchors.fill: parent
        active: guide.visible
        sourceComponent: Item {
            Outline {
                objectName: "safeAction"
                visible: guide.type === 1
                width: guide.width * 0.93; height: guide.height * 0.93
                caption: qsTr("Action safe")
            }
            Outline {
                objectName: "safeTitle"
                visible: guide.type === 1
                width: guide.width * 0.90; height: guide.height * 0.90
                caption: ""
                Text {
                    anchors { right: parent.right; bottom: parent.bottom; margins: 4 }
                    text: qsTr("Title safe")
                    color: "#ccffffff"
                    style: Text.Outline
                    styleColor: "black"
                    font.pixelSize: Style.fontTiny
                }
            }
            Outline {
                objectName: "safeCut"
                visible: guide.type === 2 || guide.type === 3
                width: guide.cutWidth; height: guide.height
                caption: guide.type === 2 ? "4:3" : "9:16"
            }
        }
    }
}
