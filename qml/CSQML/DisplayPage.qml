import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// Panel brightness, applied while the slider moves, and the screen
// orientation, which the layout takes at the next start.
Column {
    id: page
    property var store
    spacing: Style.gap

    Text {
        width: page.width
        text: qsTr("Brightness")
        color: Style.text
        font.pixelSize: Style.fontNormal
        font.bold: true
    }
    Row {
        width: page.width
        spacing: Style.gap
        TouchSlider {
            id: brightness
            objectName: "displayBrightness"
            width: page.width - percent.width - Style.gap
            from: page.store ? page.store.brightnessMin : 0
            to: page.store ? page.store.brightnessMax : 255
            value: page.store ? page.store.brightness : 0
            onMoved: page.store.setBrightness(value)
        }
        Text {
            id: percent
            objectName: "displayBrightnessValue"
            width: Style.touch * 1.2
            height: Style.touch
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignRight
            text: Math.round(100 * brightness.value / brightness.to) + " %"
            color: Style.text
            font.pixelSize: Style.fontLarge
        }
    }

    Text {
        width: page.width
        topPadding: Style.gap
        text: qsTr("Screen orientation")
        color: Style.text
        font.pixelSize: Style.fontNormal
        font.bold: true
    }
    Row {
        width: page.width
        spacing: Style.gap
        Repeater {
            model: [{ value: 0, name: qsTr("Landscape") }, { value: 1, name: qsTr("Portrait") }]
            TouchButton {
                objectName: "displayRotation" + modelData.value
                width: (page.width - Style.gap) / 2
                label: modelData.name
                detail: page.store && page.store.rotationAtStart === modelData.value ? qsTr("In use now") : ""
                checked: page.store ? page.store.rotation === modelData.value : false
                onClicked: page.store.setRotation(modelData.value)
            }
        }
    }
    Text {
        objectName: "displayRotationNote"
        width: page.width
        wrapMode: Text.WordWrap
        text: page.store && page.store.rotation !== page.store.rotationAtStart
              ? qsTr("Saved. The new orientation is used at the next start.")
              : qsTr("A change of orientation is used at the next start.")
        color: page.store && page.store.rotation !== page.store.rotationAtStart ? Style.attention : Style.textDim
        font.pixelSize: Style.fontSmall
    }
}
