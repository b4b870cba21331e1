import QtQuick 2.15
import "../Public"

// A caption and one button per named choice; the chosen one is marked and
// says so in words. `options` holds {code, label}.
Column {
    id: row
    property string caption
    property var options: []
    property int current: -1
    property string namePrefix: "choice"   // buttons are <prefix><code>
    property bool active: true
    signal chosen(int code)
    spacing: 4

    Text {
        width: row.width
        text: row.caption
        color: Style.textDim
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    Row {
        spacing: Style.gap
        Repeater {
            model: row.options
            TouchButton {
                objectName: row.namePrefix + modelData.code
                width: (row.width - (row.options.length - 1) * Style.gap) / Math.max(1, row.options.length)
                label: modelData.label
                detail: checked ? qsTr("Selected") : ""
                checked: modelData.code === row.current
                enabledState: row.active
                onClicked: row.chosen(modelData.code)
            }
        }
    }
}
