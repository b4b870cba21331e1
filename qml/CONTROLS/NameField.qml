import QtQuick 2.15
import "../Public"

// A one-line field for a name typed on the on-screen keyboard (letters,
// no predictions). A problem turns the frame amber.
Rectangle {
    id: field
    property alias text: input.text
    property alias input: input
    property bool problem: false
    signal accepted()

    implicitHeight: Style.touch
    implicitWidth: Style.touch * 6
    radius: Style.radius
    color: Style.surfaceRaised
    border.width: input.activeFocus || problem ? 3 : 2
    border.color: problem ? Style.attention : input.activeFocus ? Style.accent : Style.outline

    TextInput {
        id: input
        anchors { fill: parent; leftMargin: Style.gap; rightMargin: Style.gap }
        verticalAlignment: TextInput.AlignVCenter
        color: Style.text
        font.pixelSize: Style.fontLarge
        font.family: Style.fontFamily
        maximumLength: 64
        inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        selectByMouse: true
        clip: true
        onAccepted: field.accepted()
    }
}
