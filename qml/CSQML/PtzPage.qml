import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// A USB camera's pan, tilt and zoom (moving while held), focus, presets
// and picture style. What the camera cannot do is greyed out and says so.
Column {
    id: page
    property var store
    spacing: Style.gap

    onStoreChanged: if (store) store.refresh()
    // A move must never outlive the page that started it.
    Component.onDestruction: if (store) store.release()

    readonly property bool known: store ? store.support !== null : false
    readonly property string notSupported: qsTr("Not supported by this camera")
    function moveDetail(code) {
        if (!known) return qsTr("Asking…")
        return store.canMove(code) ? "" : notSupported
    }

    ChoiceRow {
        width: page.width
        caption: qsTr("Camera")
        namePrefix: "ptzCamera"
        current: page.store ? page.store.camera : -1
        active: page.store !== null && page.store !== undefined
        options: [{ code: 0, label: qsTr("USB camera 1") }, { code: 1, label: qsTr("USB camera 2") }]
        onChosen: page.store.selectCamera(code)
    }
    StatusChip {
        objectName: "ptzTally"
        visible: page.store ? page.store.tally !== 0 : false
        mark: Style.onAir
        text: qsTr("This camera is on air")
    }

    // Direction pad and zoom: press to move, release to stop.
    Heading { text: qsTr("Move (hold)") }
    Row {
        id: moveRow
        spacing: Style.gap
        readonly property real cell: Math.min(Style.touch * 1.6, (page.width - 4 * Style.gap) / 5)
        Grid {
            columns: 3
            spacing: Style.gap / 2
            Item { width: moveRow.cell; height: moveRow.cell }
            MoveButton { objectName: "ptzUp"; code: page.store ? page.store.up : 1; label: qsTr("Up") }
            Item { width: moveRow.cell; height: moveRow.cell }
            MoveButton { objectName: "ptzLeft"; code: page.store ? page.store.left : 3; label: qsTr("Left") }
            Rectangle {
                width: moveRow.cell; height: moveRow.cell
                radius: Style.radius
                color: "transparent"
                border.color: Style.outline
                Text {
                    anchors.fill: parent
                    anchors.margins: 4
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    text: page.store && page.store.moving !== 0 ? qsTr("Moving") : qsTr("Still")
                    color: Style.textDim
                    font.pixelSize: Style.fontSmall
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: Style.fontTiny
                }
            }
            MoveButton { objectName: "ptzRight"; code: page.store ? page.store.right : 4; label: qsTr("Right") }
            Item { width: moveRow.cell; height: moveRow.cell }
            MoveButton { objectName: "ptzDown"; code: page.store ? page.store.down : 2; label: qsTr("Down") }
            Item { width: moveRow.cell; height: moveRow.cell }
        }
        Column {
            spacing: Style.gap / 2
            MoveButton { objectName: "ptzZoomIn"; code: page.store ? page.store.zoomIn : 5; label: qsTr("Zoom in") }
            MoveButton { objectName: "ptzZoomOut"; code: page.store ? page.store.zoomOut : 6; label: qsTr("Zoom out") }
        }
    }
    component MoveButton: HoldButton {
        property int code
        width: moveRow.cell
        height: moveRow.cell
        detail: page.moveDetail(code)
        enabledState: page.store ? page.store.canMove(code) : false
        onHeld: page.store.hold(code)
        onReleased: page.store.release()
    }

    TouchButton {
        objectName: "ptzFocus"
        width: page.width
        label: qsTr("Auto focus")
        detail: !page.known ? qsTr("Asking…")
                : !page.store.support.focus ? page.notSupported
                : page.store.autoFocus < 0 ? qsTr("Not known yet")
                : page.store.autoFocus !== 0 ? qsTr("On") : qsTr("Off")
        checked: page.known && page.store.support.focus && page.store.autoFocus > 0
        enabledState: page.known && page.store.support.focus
        onClicked: page.store.setAutoFocus(!(page.store.autoFocus > 0))
    }

    // Presets: a touch goes there; in store mode a touch keeps the position.
    Heading { text: qsTr("Presets") }
    property bool storing: false
    TouchButton {
        objectName: "ptzStoreMode"
        width: page.width
        label: page.storing ? qsTr("Cancel storing") : qsTr("Store the position…")
        detail: page.storing ? qsTr("Touch the preset to keep this position in") : ""
        checked: page.storing
        enabledState: page.store !== null && page.store !== undefined
        onClicked: page.storing = !page.storing
    }
    Grid {
        columns: 3
        spacing: Style.gap
        Repeater {
            model: page.store ? page.store.presetCount : 0
            TouchButton {
                objectName: "ptzPreset" + index
                width: (page.width - 2 * Style.gap) / 3
                label: qsTr("Preset %1").arg(index + 1)
                detail: page.storing ? qsTr("Store here") : page.store.preset === index ? qsTr("Camera is here") : ""
                checked: !page.storing && page.store.preset === index
                onClicked: {
                    if (page.storing) { page.store.storePreset(index); page.storing = false }
                    else page.store.recallPreset(index)
                }
            }
        }
    }

    // Picture styles the camera offers.
    Heading { text: qsTr("Picture style") }
    readonly property var styleNames: [qsTr("Standard"), qsTr("Vivid"), qsTr("Soft"), qsTr("Black and white")]
    Text {
        objectName: "ptzStylesNone"
        width: page.width
        visible: page.store ? page.store.stylesKnown && page.store.styles.length === 0 : false
        text: qsTr("This camera offers no picture styles.")
        color: Style.textDim
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    Grid {
        columns: 2
        spacing: Style.gap
        Repeater {
            model: page.store ? page.store.styles : []
            TouchButton {
                objectName: "ptzStyle" + modelData
                width: (page.width - Style.gap) / 2
                label: page.styleNames[modelData] || qsTr("Style %1").arg(modelData)
                detail: checked ? qsTr("Chosen") : ""
                checked: page.store.style === modelData
                onClicked: page.store.setStyle(modelData)
            }
        }
    }
}
