import QtQuick 2.15
import QtQuick.Controls 2.15
import "../Public"

// A one-line field typed on the on-screen keyboard; a problem turns the
// frame amber. `hints` picks the keyboard (URL characters, plain text).
TextField {
    id: field
    property bool problem: false
    property int hints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
    implicitHeight: Style.touch
    implicitWidth: Style.touch * 6
    inputMethodHints: hints
    color: Style.text
    placeholderTextColor: Style.textDim
    font.pixelSize: Style.fontNormal
    font.family: Style.fontFamily
    selectByMouse: true
    leftPadding: Style.gap
    rightPadding: Style.gap
    verticalAlignment: TextInput.AlignVCenter
    background: Rectangle {
        radius: Style.radius
        color: Style.surfaceRaised
        border.width: field.activeFocus || field.problem ? 3 : 2
        border.color: field.problem ? Style.attention : field.activeFocus ? Style.accent : Style.outline
    }
}
