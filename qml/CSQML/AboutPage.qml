import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// What this device and this program are: versions, serial number, address,
// and the open-source components with their licences.
Column {
    id: page
    property var store
    spacing: Style.gap

    Component.onCompleted: if (store) store.refresh()
    onStoreChanged: if (store) store.refresh()

    readonly property var rows: store ? [
        { key: "software", name: qsTr("Device software"), value: store.softwareVersion !== "" ? store.softwareVersion : qsTr("asking the device…") },
        { key: "system", name: qsTr("Device system"), value: store.systemVersion !== "" ? store.systemVersion : qsTr("asking the device…") },
        { key: "serial", name: qsTr("Serial number"), value: store.hasSerialNumber ? store.serialNumber
                                                             : store.serialNumber === "" ? qsTr("asking the device…") : qsTr("no device ID") },
        { key: "address", name: qsTr("IP address"), value: store.ipAddress !== "" ? store.ipAddress : qsTr("no address") },
        { key: "program", name: qsTr("This program"), value: qsTr("%1, built %2").arg(store.about.version || "").arg(store.about.buildDate || "") }
    ] : []

    Repeater {
        model: page.rows
        InfoRow {
            objectName: "about_" + modelData.key
            width: page.width
            name: modelData.name
            value: modelData.value
        }
    }

    Text {
        width: parent.width
        topPadding: Style.gap
        text: qsTr("Open-source components")
        color: Style.text
        font.pixelSize: Style.fontNormal
        font.bold: true
    }
    InfoRow {
        objectName: "about_qt"
        width: page.width
        name: "Qt " + (page.store && page.store.about.qtVersion ? page.store.about.qtVersion : "")
        value: qsTr("GNU LGPL version 3; Qt Virtual Keyboard: GNU GPL version 3")
    }
    InfoRow {
        objectName: "about_ffmpeg"
        width: page.width
        name: "FFmpeg " + (page.store && page.store.about.ffmpegVersion ? page.store.about.ffmpegVersion : "")
        value: page.store && page.store.about.ffmpegLicence ? page.store.about.ffmpegLicence : ""
    }
}
