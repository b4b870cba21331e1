import QtQuick 2.15
import "../Public"

// A labelled one-line field for a dotted address; the on-screen keyboard
// shows its number pad for it. A problem turns the frame amber.
Item {
    id: field
    property string label
    property alias text: input.text
    property bool enabled: true
    property bool problem: false
    property alias input: input
    signal accepted()

    implicitHeight: Style.touch
    implicitWidth: Style.touch * 6

    Text {
        id: caption
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: parent.width * 0.34
        text: field.label
        color: Style.textDim
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    Rectangle {
        anchors { left: caption.right; leftMargin: Style.gap; right: parent.right; top: parent.top; bottom: parent.bottom }
        radius: Style.radius
        color: field.enabled ? Style.surfaceRaised : Style.surface
        border.width: input.activeFocus || field.problem ? 3 : 2
        border.color: field.problem ? Style.attention : input.activeFocus ? Style.accent : Style.outline
        opacity: field.enabled ? 1 : 0.6
        TextInput {
            id: input
            anchors { fill: parent; leftMargin: Style.gap; rightMargin: Style.gap }
            verticalAlignment: TextInput.AlignVCenter
            enabled: field.enabled
            readOnly: !field.enabled
            color: Style.text
            font.pixelSize: Style.fontLarge
            font.family: Style.fontFamily
            maximumLength: 15
            inputMethodHints: Qt.ImhFormattedNumbersOnly | Qt.ImhNoPredictiveText
            selectByMouse: true
            clip: true
            onAccepted: field.accepted()
        }
    }
}
