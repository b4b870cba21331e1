import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// Nine audio meters side by side, labelled with their sources.
Rectangle {
    id: strip
    property var levels: []
    property var names: []
    color: Style.surface
    radius: Style.radius

    Row {
        anchors.fill: parent
        anchors.margins: Style.gap / 2
        Repeater {
            model: strip.names.length
            LevelMeter {
                objectName: "meter" + index
                width: (strip.width - Style.gap) / strip.names.length
                height: parent.height
                level: strip.levels[index] !== undefined ? strip.levels[index] : 0
                label: strip.names[index]
            }
        }
    }
}
