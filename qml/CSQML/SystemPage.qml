import QtQuick 2.15
import QtQuick.Window 2.15
import "../Public"
import "../CONTROLS"

// Factory reset and power-off, each asked once in words that name it.
Column {
    id: page
    property var store
    spacing: Style.gap
    property alias confirm: confirm

    TouchButton {
        objectName: "sysReset"
        width: page.width
        height: Style.touch * 1.2
        label: qsTr("Factory reset")
        detail: qsTr("Network, brightness, fan, orientation, time zone")
        onClicked: confirm.ask(qsTr("Reset the device to its factory settings? The address becomes 192.168.0.100 (fixed), brightness, fan, screen orientation and time zone return to their factory values."),
                               qsTr("Factory reset"), function () { page.store.factoryReset() })
    }
    Text {
        objectName: "sysResetStatus"
        width: page.width
        visible: page.store ? page.store.resetStatus >= 0 : false
        text: page.store ? qsTr("The device answered the reset with status %1.").arg(page.store.resetStatus) : ""
        wrapMode: Text.WordWrap
        color: Style.textDim
        font.pixelSize: Style.fontSmall
    }
    TouchButton {
        objectName: "sysPowerOff"
        width: page.width
        height: Style.touch * 1.2
        label: qsTr("Switch off")
        detail: qsTr("Streams and recordings stop")
        onClicked: confirm.ask(qsTr("Switch the device off now? Streams and recordings stop."),
                               qsTr("Switch off"), function () { page.store.powerOff() })
    }

    // Over the whole window, not only this page.
    ConfirmDialog {
        id: confirm
        objectName: "sysConfirm"
        parent: page.Window.contentItem ? page.Window.contentItem : page
        anchors.fill: parent
    }
}
