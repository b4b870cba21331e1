pragma Singleton
import QtQuick 2.15

// Every page an operator can open from the menu. `name` is what
// CS_START_PAGE takes and the page's objectName; `group` the menu heading
// it is listed under ("switcher", "device" when absent; "live" pages open
// from their live action instead); `store` names the store the page is
// given; `source` is created the first time the page opens.
QtObject {
    readonly property var all: [
        { name: "language", title: qsTr("Language"), hint: qsTr("Chinese, English, German"),
          store: "system", source: Qt.resolvedUrl("../CSQML/LanguagePage.qml") },
        { name: "about", title: qsTr("About"), hint: qsTr("Versions and licences"),
          store: "system", source: Qt.resolvedUrl("../CSQML/AboutPage.qml") },
        { name: "network", title: qsTr("Network"), hint: qsTr("Address, DHCP, connection check"),
          store: "board", source: Qt.resolvedUrl("../CSQML/NetworkPage.qml") },
        { name: "display", title: qsTr("Display"), hint: qsTr("Brightness, orientation"),
          store: "board", source: Qt.resolvedUrl("../CSQML/DisplayPage.qml") },
        { name: "fan", title: qsTr("Cooling"), hint: qsTr("CPU temperature, fan speed"),
          store: "board", source: Qt.resolvedUrl("../CSQML/FanPage.qml") },
        { name: "datetime", title: qsTr("Date and time"), hint: qsTr("Clock, time zone"),
          store: "board", source: Qt.resolvedUrl("../CSQML/DateTimePage.qml") },
        { name: "system", title: qsTr("System"), hint: qsTr("Factory reset, switch off"),
          store: "board", source: Qt.resolvedUrl("../CSQML/SystemPage.qml") },
        { name: "record", title: qsTr("Record"), hint: qsTr("USB disk, recordings, playback"),
          group: "live", store: "media", source: Qt.resolvedUrl("../CSQML/RecordPage.qml") },
        { name: "upgrade", title: qsTr("Upgrade"), hint: qsTr("New software from a USB disk"),
          store: "media", source: Qt.resolvedUrl("../CSQML/UpgradePage.qml") },
        { name: "stream", title: qsTr("Streaming"), hint: qsTr("Event, platforms, go live"),
          group: "live", store: "stream", source: Qt.resolvedUrl("../CSQML/StreamPage.qml") },
        { name: "bluetooth", title: qsTr("Bluetooth"), hint: qsTr("Devices, companion app"),
          store: "companion", source: Qt.resolvedUrl("../CSQML/BluetoothPage.qml") },
        { name: "ndi", title: qsTr("NDI"), hint: qsTr("Send, receive, sources, names"),
          group: "switcher", store: "ndi", source: Qt.resolvedUrl("../CSQML/NdiPage.qml") },
        { name: "ptz", title: qsTr("Cameras"), hint: qsTr("Pan, tilt, zoom, presets"),
          group: "switcher", store: "camera", source: Qt.resolvedUrl("../CSQML/PtzPage.qml") },
        { name: "scopes", title: qsTr("Scopes"), hint: qsTr("Scopes, safe frames"),
          group: "switcher", store: "scopes", source: Qt.resolvedUrl("../CSQML/ScopesPage.qml") },
        { name: "inputs", title: qsTr("Inputs"), hint: qsTr("Formats per input"),
          group: "switcher", store: "switcher", source: Qt.resolvedUrl("../CSQML/InputsPage.qml") },
        { name: "pip", title: qsTr("PIP"), hint: qsTr("Picture in picture: layout, sources"),
          group: "switcher", store: "switcher", source: Qt.resolvedUrl("../CSQML/PipPage.qml") },
        { name: "audio", title: qsTr("Audio"), hint: qsTr("Sound sources, levels, HDMI outputs"),
          group: "switcher", store: "switcher", source: Qt.resolvedUrl("../CSQML/AudioPage.qml") }
    ]
    // Pages opened from another page (and back to it), not from the menu.
    readonly property var sub: [
        { name: "platforms", title: qsTr("Addresses"), hint: qsTr("Import, type, switch on"),
          store: "stream", source: Qt.resolvedUrl("../CSQML/PlatformsPage.qml"), back: "stream" },
        { name: "events", title: qsTr("Events"), hint: qsTr("Create, choose, delete"),
          store: "stream", source: Qt.resolvedUrl("../CSQML/EventsPage.qml"), back: "stream" }
    ]

    function find(name) {
        var pages = all.concat(sub)
        for (var i = 0; i < pages.length; ++i)
            if (pages[i].name === name)
                return pages[i]
        return null
    }
}
