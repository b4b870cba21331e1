import QtQuick 2.15
import "../Public"

// The title of a group of controls on a long page.
Text {
    width: parent ? parent.width : implicitWidth
    topPadding: Style.gap
    color: Style.text
    font.pixelSize: Style.fontNormal
    font.bold: true
    wrapMode: Text.WordWrap
}
