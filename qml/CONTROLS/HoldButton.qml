import QtQuick 2.15
import "../Public"

// A large target that acts while it is held: `held` on press, `released`
// on release, and also when the touch is taken away (a cancelled touch
// must stop what the press started).
Rectangle {
    id: button
    property string label
    property string detail
    property bool enabledState: true
    readonly property bool down: area.pressed
    signal held()
    signal released()

    implicitWidth: Style.touch * 1.4
    implicitHeight: Style.touch * 1.2
    radius: Style.radius
    color: !enabledState ? Style.surface : down ? Qt.darker(Style.accent, 1.8) : Style.surfaceRaised
    border.width: 2
    border.color: down ? Style.accent : Style.outline
    opacity: enabledState ? 1 : 0.45

    Column {
        anchors.centerIn: parent
        width: parent.width - Style.gap
        spacing: 2
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: button.label
            color: Style.text
            font.pixelSize: Style.fontNormal
            font.bold: true
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Style.fontTiny
        }
        Text {
            width: parent.width
            visible: text !== ""
            horizontalAlignment: Text.AlignHCenter
            text: button.detail
            color: Style.textDim
            font.pixelSize: Style.fontTiny
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }
    }

    MouseArea {
        id: area
        anchors.fill: parent
        enabled: button.enabledState
        onPressed: { button.holding = true; button.held() }
        onReleased: button.end()
        onCanceled: button.end()
    }
    // Disabled or hidden while held, it would never see the release.
    property bool holding: false
    function end() { if (holding) { holding = false; released() } }
    onEnabledStateChanged: if (!enabledState) end()
    onVisibleChanged: if (!visible) end()
    Component.onDestruction: end()
}
