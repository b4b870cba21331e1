import QtQuick 2.15
import QtQuick.Window 2.15
import "../Public"
import "../CONTROLS"

// Bluetooth: the radio, searches for devices (speakers, headsets) and for
// companion phones, connecting and disconnecting each, and the companion
// app: the mode switch, a destination it sends for the operator to accept,
// the live session, and its request to stop the stream.
Column {
    id: page
    property var store
    spacing: Style.gap

    readonly property var offer: store ? store.offer : null
    readonly property bool stopAsked: store ? store.stopAsked : false
    // Withdrawn (the stream went off meanwhile): the question goes with it.
    onStopAskedChanged: if (stopAsked) askStop(); else confirm.visible = false
    onStoreChanged: askStop()
    function askStop() {
        if (stopAsked)
            confirm.ask(qsTr("The companion app asks to stop the stream. Stop streaming on every channel now?"),
                        qsTr("Stop streaming"), function () { page.store.confirmStop() })
    }

    readonly property var sessionTexts: ({
        "": qsTr("No live session"),
        starting: qsTr("Telling the companion service the stream starts…"),
        live: qsTr("Live session confirmed by the companion service"),
        ending: qsTr("Telling the companion service the stream ended…")
    })

    // A destination from the app: shown until the operator decides.
    Rectangle {
        objectName: "companionOffer"
        visible: page.offer !== null
        width: page.width
        height: visible ? offerColumn.height + Style.gap * 2 : 0
        radius: Style.radius
        color: Style.surfaceRaised
        border.color: Style.attention
        border.width: Style.frame
        Column {
            id: offerColumn
            x: Style.gap * 2
            y: Style.gap
            width: parent.width - Style.gap * 4
            spacing: Style.gap
            Text {
                width: parent.width
                wrapMode: Text.WordWrap
                text: qsTr("The companion app sent a stream destination")
                color: Style.attention
                font.pixelSize: Style.fontNormal
                font.bold: true
            }
            Text {
                objectName: "companionOfferUrl"
                width: parent.width
                textFormat: Text.PlainText
                wrapMode: Text.WrapAnywhere
                maximumLineCount: 3
                elide: Text.ElideRight
                text: page.offer ? page.offer.url : ""
                color: Style.text
                font.pixelSize: Style.fontNormal
            }
            Text {
                width: parent.width
                wrapMode: Text.WordWrap
                text: page.offer && page.offer.vertical === 1 ? qsTr("Portrait picture") : qsTr("Landscape picture")
                color: Style.textDim
                font.pixelSize: Style.fontSmall
            }
            Row {
                spacing: Style.gap
                TouchButton {
                    objectName: "companionAccept"
                    width: (offerColumn.width - Style.gap) * 0.6
                    label: qsTr("Use this destination")
                    onClicked: page.store.acceptOffer()
                }
                TouchButton {
                    objectName: "companionDecline"
                    width: (offerColumn.width - Style.gap) * 0.4
                    label: qsTr("Ignore")
                    onClicked: page.store.declineOffer()
                }
            }
        }
    }

    Row {
        width: page.width
        spacing: Style.gap
        TouchButton {
            objectName: "bluetoothOn"
            width: (page.width - Style.gap) / 2
            label: qsTr("Bluetooth on")
            detail: checked ? qsTr("Selected") : ""
            checked: page.store ? page.store.radioOn : false
            onClicked: page.store.setRadio(true)
        }
        TouchButton {
            objectName: "bluetoothOff"
            width: (page.width - Style.gap) / 2
            label: qsTr("Bluetooth off")
            detail: checked ? qsTr("Selected") : ""
            checked: page.store ? !page.store.radioOn : false
            onClicked: page.store.setRadio(false)
        }
    }
    Row {
        width: page.width
        spacing: Style.gap
        TouchButton {
            objectName: "companionOn"
            width: (page.width - Style.gap) / 2
            label: qsTr("Companion app on")
            detail: checked ? qsTr("Selected") : ""
            checked: page.store ? page.store.companionMode : false
            onClicked: page.store.setCompanionMode(true)
        }
        TouchButton {
            objectName: "companionOff"
            width: (page.width - Style.gap) / 2
            label: qsTr("Companion app off")
            detail: checked ? qsTr("Selected") : ""
            checked: page.store ? !page.store.companionMode : false
            onClicked: page.store.setCompanionMode(false)
        }
    }
    InfoRow {
        objectName: "companionSession"
        width: page.width
        name: qsTr("Companion stream")
        value: !page.store ? ""
               : page.store.room === "" ? qsTr("No destination from the app yet")
               : page.sessionTexts[page.store.session] || ""
    }

    Row {
        width: page.width
        spacing: Style.gap
        TouchButton {
            objectName: "searchDevices"
            width: (page.width - Style.gap) / 2
            label: qsTr("Search devices")
            detail: page.store && page.store.searching === "devices" ? qsTr("Searching…") : qsTr("Speakers, headsets")
            enabledState: page.store ? page.store.radioOn && page.store.searching === "" : false
            onClicked: page.store.search(false)
        }
        TouchButton {
            objectName: "searchPhones"
            width: (page.width - Style.gap) / 2
            label: qsTr("Search phones")
            detail: page.store && page.store.searching === "phones" ? qsTr("Searching…") : qsTr("Companion app")
            enabledState: page.store ? page.store.radioOn && page.store.searching === "" : false
            onClicked: page.store.search(true)
        }
    }
    Text {
        objectName: "bluetoothHint"
        width: page.width
        visible: page.store ? !page.store.radioOn : false
        wrapMode: Text.WordWrap
        text: qsTr("Switch Bluetooth on to search.")
        color: Style.textDim
        font.pixelSize: Style.fontSmall
    }
    Text {
        objectName: "bluetoothResult"
        width: page.width
        visible: text !== ""
        wrapMode: Text.WordWrap
        textFormat: Text.PlainText
        readonly property var r: page.store ? page.store.lastResult : null
        text: !r ? "" : r.silent ? qsTr("The device did not answer for %1.").arg(r.mac)
              : r.sent ? qsTr("Disconnecting %1; the list shows the result.").arg(r.mac)
              : r.ok ? (r.connect ? qsTr("Connected to %1.").arg(r.mac) : qsTr("Disconnected from %1.").arg(r.mac))
              : (r.connect ? qsTr("Could not connect to %1.").arg(r.mac) : qsTr("Could not disconnect from %1.").arg(r.mac))
        color: r && !r.ok ? Style.attention : Style.text
        font.pixelSize: Style.fontNormal
    }

    Repeater {
        model: page.store ? [{ title: qsTr("Devices"), list: page.store.devices, phone: false },
                             { title: qsTr("Phones"), list: page.store.phones, phone: true }] : []
        delegate: Column {
            width: page.width
            spacing: Style.gap
            readonly property var group: modelData
            Text {
                width: parent.width
                text: group.title + (group.list.length === 0 ? " — " + qsTr("none found") : "")
                color: Style.textDim
                font.pixelSize: Style.fontNormal
            }
            Repeater {
                model: group.list
                delegate: Row {
                    width: page.width
                    spacing: Style.gap
                    Column {
                        width: page.width - action.width - Style.gap
                        anchors.verticalCenter: parent.verticalCenter
                        Text {
                            width: parent.width
                            textFormat: Text.PlainText
                            elide: Text.ElideRight
                            text: modelData.name !== "" ? modelData.name : modelData.mac
                            color: Style.text
                            font.pixelSize: Style.fontNormal
                        }
                        Text {
                            width: parent.width
                            textFormat: Text.PlainText
                            elide: Text.ElideRight
                            text: modelData.mac + " · " + (modelData.connected ? qsTr("connected") : qsTr("not connected"))
                            color: modelData.connected ? Style.onPip : Style.textDim
                            font.pixelSize: Style.fontSmall
                        }
                    }
                    TouchButton {
                        id: action
                        objectName: (group.phone ? "phone_" : "device_") + modelData.mac
                        width: Math.min(420, page.width * 0.4)
                        label: modelData.connected ? qsTr("Disconnect") : qsTr("Connect")
                        detail: page.store && page.store.pendingMac === modelData.mac ? qsTr("Waiting for the device…") : ""
                        enabledState: page.store ? page.store.pendingMac === "" : false
                        onClicked: page.store.setConnected(modelData.mac, group.phone, !modelData.connected)
                    }
                }
            }
        }
    }

    ConfirmDialog {
        id: confirm
        objectName: "companionConfirm"
        parent: page.Window.contentItem ? page.Window.contentItem : page
        anchors.fill: parent
        onVisibleChanged: if (!visible && page.store && page.store.stopAsked) page.store.dismissStop()
    }
}
