import QtQuick 2.15
import "../Public"

// A large touch target with an optional tally colour and state word.
Rectangle {
    id: button
    property string label
    property string detail
    property color tally: "transparent"   // Style.onAir / Style.onPip / transparent
    property bool checked: false
    property bool enabledState: true
    // A read-only state display: looks live, takes no touch.
    property bool interactive: true
    signal clicked()

    implicitWidth: Style.touch * 2
    implicitHeight: Style.touch
    radius: Style.radius
    color: !enabledState ? Style.surface : area.pressed ? Style.surfaceRaised : (checked ? Qt.darker(Style.accent, 1.8) : Style.surfaceRaised)
    border.width: tally.a > 0 ? Style.frame : 2
    border.color: tally.a > 0 ? tally : (checked ? Style.accent : Style.outline)
    opacity: enabledState ? 1 : 0.45

    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * Style.gap
        spacing: 4
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: button.label
            color: Style.text
            font.pixelSize: Style.fontNormal
            font.bold: true
            // Long (German) labels shrink a little before they are cut.
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Style.fontSmall
            elide: Text.ElideRight
        }
        Text {
            width: parent.width
            visible: button.detail.length > 0
            horizontalAlignment: Text.AlignHCenter
            text: button.detail
            color: Style.textDim
            font.pixelSize: Style.fontSmall
            // A long (German) state word or hint takes a second line at full
            // size; even the row under a page has room for it.
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }
    }

    MouseArea {
        id: area
        anchors.fill: parent
        enabled: button.enabledState && button.interactive
        onClicked: button.clicked()
    }
}
