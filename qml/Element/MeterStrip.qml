import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// The nine audio meters, each labelled with its source: one column beside
// the picture, or three columns on a narrow (portrait) panel.
Rectangle {
    id: strip
    property var levels: []
    property var names: []
    property int columns: 1
    color: Style.surface
    radius: Style.radius

    Grid {
        id: grid
        anchors.fill: parent
        anchors.margins: Style.gap / 2
        columns: strip.columns
        columnSpacing: Style.gap
        readonly property int rows: Math.ceil(strip.names.length / columns)
        Repeater {
            model: strip.names.length
            LevelMeter {
                objectName: "meter" + index
                width: (grid.width - (grid.columns - 1) * grid.columnSpacing) / grid.columns
                height: grid.height / grid.rows
                level: strip.levels[index] !== undefined ? strip.levels[index] : 0
                label: strip.names[index]
                // Room for the longest (German) source names at full size.
                labelWidth: Math.round(Math.min(150, width * 0.46))
            }
        }
    }
}
