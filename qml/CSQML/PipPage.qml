import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// Picture in picture: on or off, where the second pictures sit (each layout
// drawn), and which inputs fill them. The first source shown is the one
// the device read back.
Column {
    id: page
    property var store
    spacing: Style.gap

    ChoiceRow {
        objectName: "pipSwitch"
        width: page.width
        namePrefix: "pipSwitch"
        caption: qsTr("Picture in picture")
        options: [{ code: 1, label: qsTr("On") }, { code: 0, label: qsTr("Off") }]
        current: page.store && page.store.pipOn ? 1 : 0
        onChosen: page.store.setPip(code === 1)
    }

    Text {
        width: page.width
        text: qsTr("Layout")
        color: Style.textDim
        font.pixelSize: Style.fontSmall
    }
    Grid {
        id: layouts
        width: page.width
        columns: 3
        spacing: Style.gap
        readonly property real cell: (width - (columns - 1) * spacing) / columns
        Repeater {
            model: page.store ? page.store.pipLayoutNames : []
            Rectangle {
                id: tile
                objectName: "pipLayout" + index
                readonly property bool checked: page.store.pipLayout === index
                readonly property bool enabledState: true   // touchable like a button
                width: layouts.cell
                height: Math.max(Style.touch * 1.6, diagram.height + name.height + 3 * Style.gap / 2)
                radius: Style.radius
                color: checked ? Qt.darker(Style.accent, 1.8) : Style.surfaceRaised
                border.width: 2
                border.color: checked ? Style.accent : Style.outline
                signal clicked()
                onClicked: page.store.setPipLayout(index)
                PipDiagram {
                    id: diagram
                    anchors { top: parent.top; topMargin: Style.gap / 2; horizontalCenter: parent.horizontalCenter }
                    width: parent.width - Style.gap
                    height: width * 9 / 16
                    layout: index
                    lit: tile.checked && page.store.pipOn
                }
                Text {
                    id: name
                    anchors { top: diagram.bottom; topMargin: Style.gap / 2; left: parent.left; right: parent.right; margins: 4 }
                    horizontalAlignment: Text.AlignHCenter
                    text: modelData + (tile.checked ? "\n" + qsTr("Selected") : "")
                    color: Style.text
                    font.pixelSize: Style.fontSmall
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: Style.fontTiny
                    wrapMode: Text.WordWrap
                    maximumLineCount: 2
                }
                MouseArea { anchors.fill: parent; onClicked: tile.clicked() }
            }
        }
    }

    Repeater {
        model: [{ second: false }, { second: true }]
        Column {
            id: sources
            readonly property bool second: modelData.second
            readonly property bool active: page.store ? !second || page.store.pipLayout === 5 : false
            readonly property int current: page.store ? (second ? page.store.pipInput2 : page.store.pipInput) : -1
            width: page.width
            spacing: 4
            Text {
                width: parent.width
                wrapMode: Text.WordWrap
                text: !sources.second ? qsTr("Picture 1 shows")
                      : sources.active ? qsTr("Picture 2 shows") : qsTr("Picture 2 shows (only in the layout with two pictures)")
                color: Style.textDim
                font.pixelSize: Style.fontSmall
            }
            Grid {
                id: grid
                width: parent.width
                columns: page.width > 900 ? 4 : 2
                spacing: Style.gap
                Repeater {
                    model: page.store ? page.store.pipSourceNames : []
                    TouchButton {
                        objectName: (sources.second ? "pipSecond" : "pipFirst") + index
                        width: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns
                        label: modelData
                        checked: sources.current === index
                        detail: checked ? qsTr("Selected") : ""
                        enabledState: sources.active
                        onClicked: page.store.setPipSource(sources.second, index)
                    }
                }
            }
        }
    }
    Text {
        objectName: "pipNote"
        width: page.width
        wrapMode: Text.WordWrap
        visible: page.store ? page.store.pipOn && page.store.pipInput === page.store.programmeInput && page.store.pipInput >= 0 : false
        text: qsTr("Picture 1 shows the programme input itself.")
        color: Style.attention
        font.pixelSize: Style.fontSmall
    }
}
