import QtQuick 2.15

// The device and this program as the About and Language pages show them:
// versions and serial number from the media service, the interface
// language. Views read it; only this store calls the native objects.
QtObject {
    id: store
    property var manage
    property var live               // for the address the device reports
    property var about: ({})        // this program: version, build date, libraries

    property int language: 1        // 0 Chinese, 1 English, 2 German
    property string softwareVersion: ""
    property string systemVersion: ""
    property string serialNumber: ""    // "" until the device answers
    readonly property bool hasSerialNumber: serialNumber !== "" && serialNumber !== "No Device ID"
    readonly property string ipAddress: live ? live.ipAddress : ""

    function loadSettings(settings) {
        if (settings.language !== undefined && settings.language >= 0 && settings.language <= 2)
            language = settings.language
    }
    // Switches every visible text at once and keeps the choice.
    function setLanguage(code) {
        if (code < 0 || code > 2 || code === language)
            return
        language = code
        manage.uiproMain.setLanguage(code)
        manage.uiproc.writeInitConfig({ "language": code })
    }
    // Asks the device again (the About page does when it opens).
    function refresh() {
        manage.uiproc.connectVersion()
        manage.uiproc.connectSystemVersion()
        manage.uiproc.connectReadSN()
        manage.uiproc.connectGetLocalHost()
    }

    // FFmpeg is loaded on demand; its versions join `about` when known.
    function requestLibraryInfo() { manage.uiproMain.requestLibraryInfo() }
    property Connections libraries: Connections {
        target: store.manage ? store.manage.uiproMain : null
        function onLibraryInfo(info) {
            var merged = Object.assign({}, store.about)
            for (var k in info) merged[k] = info[k]
            store.about = merged
        }
    }

    property Connections reports: Connections {
        target: store.manage ? store.manage.uiproVideo : null
        function onPushSoftwareVersion(first, second) { store.softwareVersion = first + "." + second }
        function onPushSystemVersion(first, second) { store.systemVersion = first + "." + second }
        function onPushSN(deviceID) { store.serialNumber = deviceID }
    }
}
