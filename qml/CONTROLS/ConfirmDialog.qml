import QtQuick 2.15
import "../Public"

// Asks once, in words that name the action; the safe choice is the default
// (it is the larger button and sits where the thumb rests).
Rectangle {
    id: dialog
    property string question
    property string actionText
    signal accepted()

    function ask(q, action, onAccept) {
        question = q
        actionText = action
        pending = onAccept
        visible = true
    }
    property var pending: null

    visible: false
    color: "#cc000000"
    z: 100

    MouseArea { anchors.fill: parent } // swallow touches behind the dialog

    Rectangle {
        anchors.centerIn: parent
        width: 900; height: 420
        radius: Style.radius
        color: Style.surfaceRaised
        border.color: Style.outline

        Text {
            anchors { top: parent.top; left: parent.left; right: parent.right; margins: 40 }
            text: dialog.question
            wrapMode: Text.WordWrap
            color: Style.text
            font.pixelSize: Style.fontLarge
        }
        Row {
            anchors { bottom: parent.bottom; right: parent.right; margins: 40 }
            spacing: Style.gap * 2
            TouchButton {
                objectName: "confirmAction"
                width: 340  // room for "Aufnahme beenden" at full size
                label: dialog.actionText
                tally: Style.onAir
                onClicked: { dialog.visible = false; if (dialog.pending) dialog.pending(); dialog.accepted() }
            }
            TouchButton {
                objectName: "confirmCancel"
                width: 400
                label: qsTr("Cancel")
                checked: true
                onClicked: dialog.visible = false
            }
        }
    }
}
