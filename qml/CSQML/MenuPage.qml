import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// One tile per page, the second touch of the two that reach any page,
// grouped under a heading. Streaming and recording are not here: their live
// actions, on every screen, open them. Beside the picture the tiles show
// their titles only, so every group fits without scrolling; full width
// (portrait) they also show what the page holds.
Item {
    id: menu
    signal openPage(string name)
    implicitHeight: groupsColumn.height

    readonly property bool roomy: width > 900
    readonly property var groups: [
        { key: "switcher", title: qsTr("Switcher") },
        { key: "device", title: qsTr("Device") }
    ]
    function pagesOf(key) {
        return Pages.all.filter(function (p) { return (p.group || "device") === key })
    }

    Column {
        id: groupsColumn
        width: parent.width
        spacing: Style.gap / 2

        Repeater {
            model: menu.groups
            Column {
                id: group
                readonly property var pages: menu.pagesOf(modelData.key)
                width: groupsColumn.width
                spacing: Style.gap / 2
                visible: pages.length > 0

                Text {
                    objectName: "menuGroup_" + modelData.key
                    width: parent.width
                    text: modelData.title
                    color: Style.textDim
                    font.pixelSize: Style.fontSmall
                    font.bold: true
                    elide: Text.ElideRight
                }
                Grid {
                    id: grid
                    width: parent.width
                    columns: 3
                    spacing: Style.gap / 2
                    readonly property real cell: (width - (columns - 1) * spacing) / columns
                    Repeater {
                        model: group.pages
                        TouchButton {
                            objectName: "menu_" + modelData.name
                            width: grid.cell
                            height: menu.roomy ? Style.touch * 1.4 : Style.touch
                            label: modelData.title
                            detail: menu.roomy ? modelData.hint : ""
                            onClicked: menu.openPage(modelData.name)
                        }
                    }
                }
            }
        }
    }
}
