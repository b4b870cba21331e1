import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// One tile per input: the tile puts the input on programme, its lower strip
// makes it the PIP source. Red = on programme, green = on PIP.
Row {
    id: row
    property var names: []
    property var present: []
    property var formats: []
    property int programmeInput: -1
    property int pipInput: -1
    property bool pipOn: false
    signal programmeRequested(int index)
    signal pipRequested(int index)

    spacing: Style.gap

    Repeater {
        model: row.names.length
        Column {
            width: (row.width - (row.names.length - 1) * row.spacing) / row.names.length
            spacing: 6
            TouchButton {
                objectName: "input" + index
                width: parent.width
                height: row.height - pipStrip.height - 6
                label: row.names[index]
                detail: index === row.programmeInput ? qsTr("PROGRAMME")
                      : (row.pipOn && index === row.pipInput) ? qsTr("PIP")
                      : !row.present[index] ? qsTr("No signal")
                      : (row.formats[index] || qsTr("Ready"))
                tally: index === row.programmeInput ? Style.onAir
                     : (row.pipOn && index === row.pipInput) ? Style.onPip : "transparent"
                onClicked: row.programmeRequested(index)
            }
            TouchButton {
                id: pipStrip
                objectName: "pipSource" + index
                width: parent.width
                height: Style.touch
                label: qsTr("to PIP")
                enabledState: row.pipOn && index !== row.programmeInput
                checked: row.pipOn && index === row.pipInput
                onClicked: row.pipRequested(index)
            }
        }
    }
}
