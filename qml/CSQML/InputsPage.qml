import QtQuick 2.15
import "../Public"
import "../CONTROLS"
import "../Public/VideoFormat.js" as VideoFormat

// Per input the formats the device offers, best first, the one it runs
// now, and a touch to choose another. The mark follows the device's answer.
Column {
    id: page
    property var store
    spacing: Style.gap

    onStoreChanged: if (store) store.refreshFormats()

    TouchButton {
        objectName: "inputsRefresh"
        width: page.width
        label: qsTr("Ask the inputs again")
        onClicked: page.store.refreshFormats()
    }

    Repeater {
        model: page.store ? page.store.formatInputNames.length : 0
        Column {
            id: section
            objectName: "inputSection" + index
            width: page.width
            spacing: Style.gap / 2
            readonly property int input: index
            readonly property var list: page.store.formatLists[index]
            readonly property var current: page.store.currentFormats[index]
            readonly property bool reportsCurrent: index < page.store.currentFormatInputs
            readonly property bool waiting: page.store.pending[index] !== ""

            Text {
                width: parent.width
                text: page.store.formatInputNames[index]
                color: Style.text
                font.pixelSize: Style.fontLarge
                font.bold: true
            }
            Text {
                objectName: "inputNow" + index
                width: parent.width
                textFormat: Text.PlainText   // a remembered format is text from the settings file
                wrapMode: Text.WordWrap
                color: section.list && section.list.length === 0 ? Style.attention : Style.textDim
                font.pixelSize: Style.fontSmall
                text: section.list === null ? qsTr("Asking the device…")
                      : section.list.length === 0 ? qsTr("No signal")
                      : section.waiting ? qsTr("Setting %1…").arg(page.shown(page.store.pending[index]))
                      : !section.reportsCurrent ? (page.store.chosen[index] !== "" ? qsTr("Chosen here: %1").arg(page.shown(page.store.chosen[index])) : qsTr("Chosen by the device"))
                      : !page.store.currentKnown[index] ? qsTr("Asking the device…")
                      : section.current ? qsTr("Now: %1").arg(VideoFormat.label(section.current))
                      : qsTr("No current format")
            }
            Flow {
                width: parent.width
                spacing: Style.gap
                Repeater {
                    model: section.list ? section.list : []
                    TouchButton {
                        objectName: "format" + section.input + "_" + modelData.resolution
                        readonly property int columns: page.width > 900 ? 5 : 3
                        width: (section.width - (columns - 1) * Style.gap) / columns
                        label: modelData.label
                        checked: section.reportsCurrent ? VideoFormat.same(section.current, modelData)
                                                        : page.store.chosen[section.input] === modelData.resolution
                        detail: checked ? (section.reportsCurrent ? qsTr("Running") : qsTr("Chosen"))
                                        : modelData.width + "×" + modelData.height
                        onClicked: page.store.chooseFormat(section.input, index)
                    }
                }
            }
        }
    }

    // A remembered resolution text as its label, or as it is when it is no format.
    function shown(text) { return VideoFormat.label(VideoFormat.parse(formatOf(text), false)) || text }
    // "1920x1080i@60" back into a format the label understands.
    function formatOf(text) {
        var m = /^(\d+)x(\d+)(i?)@(\d+)$/.exec(text)
        return m ? { width: m[1], height: m[2], Fps: m[4] + m[3] } : null
    }
}
