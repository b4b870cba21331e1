import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// One tile per page: the second touch of the two that reach any page.
Item {
    id: menu
    signal openPage(string name)
    implicitHeight: grid.height

    Grid {
        id: grid
        width: parent.width
        columns: width > 900 ? 3 : 2
        spacing: Style.gap
        readonly property real cell: (width - (columns - 1) * spacing) / columns
        Repeater {
            model: Pages.all
            TouchButton {
                objectName: "menu_" + modelData.name
                width: grid.cell
                height: Style.touch * 1.4
                label: modelData.title
                detail: modelData.hint
                onClicked: menu.openPage(modelData.name)
            }
        }
    }
}
