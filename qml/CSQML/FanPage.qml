import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// CPU temperature, read every 5 s while this page is open, and the fan:
// automatic (the rate follows the temperature) or a fixed rate.
Column {
    id: page
    property var store
    spacing: Style.gap

    onStoreChanged: if (store) store.watchTemperature(true)
    Component.onDestruction: if (store) store.watchTemperature(false)

    InfoRow {
        objectName: "fanTemperature"
        width: page.width
        name: qsTr("CPU temperature")
        value: !page.store || page.store.temperature < 0 ? qsTr("reading…") : qsTr("%1 °C").arg(page.store.temperature)
    }
    InfoRow {
        objectName: "fanRate"
        width: page.width
        name: qsTr("Fan speed")
        value: page.store ? qsTr("%1 %").arg(page.store.fanRate) : ""
    }
    Row {
        width: page.width
        spacing: Style.gap
        TouchButton {
            objectName: "fanAuto"
            width: (page.width - Style.gap) / 2
            label: qsTr("Automatic")
            detail: checked ? qsTr("Selected") : ""   // the choice in words, not only in colour
            checked: page.store ? page.store.fanAuto : false
            onClicked: page.store.setFanAuto(true)
        }
        TouchButton {
            objectName: "fanFixed"
            width: (page.width - Style.gap) / 2
            label: qsTr("Fixed speed")
            detail: checked ? qsTr("Selected") : ""
            checked: page.store ? !page.store.fanAuto : false
            onClicked: page.store.setFanAuto(false)
        }
    }
    Text {
        objectName: "fanCurve"
        width: page.width
        visible: page.store ? page.store.fanAuto : false
        wrapMode: Text.WordWrap
        text: page.store ? qsTr("Automatic: %1 % up to %2 °C, rising evenly to 100 % at %3 °C and above.")
                           .arg(page.store.autoLowRate).arg(page.store.autoLowTemp).arg(page.store.autoHighTemp) : ""
        color: Style.textDim
        font.pixelSize: Style.fontSmall
    }
    TouchSlider {
        objectName: "fanSlider"
        width: page.width
        visible: page.store ? !page.store.fanAuto : false
        from: 20       // a stopped fan is never offered: the board has no other cooling
        to: 100
        stepSize: 5
        value: page.store && !page.store.fanAuto ? page.store.fans : 0
        onMoved: page.store.setFanRate(value)
    }
}
