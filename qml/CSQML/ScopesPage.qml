import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// Scopes the device draws into the programme picture, each in a corner or
// off, and the safe-frame guides drawn over the preview here.
Column {
    id: page
    property var store
    spacing: Style.gap

    property int shown: store ? store.scopeType : 0
    onStoreChanged: if (store) shown = store.scopeType

    readonly property var scopeNames: [qsTr("Histogram"), qsTr("Waveform"), qsTr("RGB parade"), qsTr("Vectorscope")]
    readonly property var positionNames: [qsTr("Off"), qsTr("Top left"), qsTr("Top right"), qsTr("Bottom left"), qsTr("Bottom right")]
    function positionOf(type) { return store ? store.positions[type] : 0 }

    Heading { text: qsTr("Scope") }
    Grid {
        columns: 2
        spacing: Style.gap
        Repeater {
            model: 4
            TouchButton {
                objectName: "scopeType" + index
                width: (page.width - Style.gap) / 2
                label: page.scopeNames[index]
                detail: page.positionNames[page.positionOf(index)]
                checked: page.shown === index
                onClicked: page.shown = index
            }
        }
    }
    Heading { text: qsTr("%1: where it shows").arg(page.scopeNames[page.shown]) }
    Grid {
        columns: 3
        spacing: Style.gap
        Repeater {
            model: 5
            TouchButton {
                objectName: "scopePosition" + index
                width: (page.width - 2 * Style.gap) / 3
                label: page.positionNames[index]
                detail: checked ? qsTr("Selected") : ""
                checked: page.positionOf(page.shown) === index
                enabledState: page.store !== null && page.store !== undefined
                onClicked: page.store.setScope(page.shown, index)
            }
        }
    }

    Heading { text: qsTr("Safe frames on the preview") }
    Grid {
        columns: 2
        spacing: Style.gap
        Repeater {
            model: [{ code: 0, label: qsTr("None"), hint: "" },
                    { code: 1, label: qsTr("16:9 safe areas"), hint: qsTr("Action and title safe") },
                    { code: 2, label: qsTr("4:3"), hint: qsTr("Centre cut for 4:3") },
                    { code: 3, label: qsTr("9:16"), hint: qsTr("Vertical video guide") }]
            TouchButton {
                objectName: "safeFrames" + modelData.code
                width: (page.width - Style.gap) / 2
                label: modelData.label
                detail: checked ? qsTr("Selected") : modelData.hint
                checked: page.store ? page.store.safeFrames === modelData.code : false
                enabledState: page.store !== null && page.store !== undefined
                onClicked: page.store.setSafeFrames(modelData.code)
            }
        }
    }
}
