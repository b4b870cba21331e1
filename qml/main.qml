import QtQuick 2.15
import QtQuick.Window 2.15
import QtQml 2.15
import "Public"
import "CSQML"

Window {
    id: window
    // The device's panel runs full screen; a desktop gets a window of the panel's size.
    readonly property bool onDevice: Qt.platform.pluginName === "eglfs" || Qt.platform.pluginName === "linuxfb"
    width: 1920
    height: 1080
    visibility: onDevice ? Window.FullScreen : Window.Windowed
    visible: true
    color: Style.background
    title: qsTr("Live production")

    UiprocManage { id: manage }
    LiveStore { id: live; manage: manage }
    SystemStore { id: system; manage: manage; live: live; about: typeof csAbout !== "undefined" ? csAbout : ({}) }
    // The other stores are made with the device start, after the first
    // frame; their documents are not even loaded before it.
    property var board: null
    property var companion: null
    property var ndi: null
    property var camera: null
    property var scopes: null
    property var switcher: null     // formats, PIP, audio
    property var stream: null
    property var media: null        // USB disk, recordings, upgrade
    function makeStore(file, properties) {
        var component = Qt.createComponent("Public/" + file)
        var store = component.status === Component.Ready ? component.createObject(window, properties) : null
        if (!store)
            console.error("store " + file + " not made: " + component.errorString())
        return store
    }
    // A start the disk refused, from wherever it was asked, is explained on
    // the record page; the bridge firmware step after an upgrade reports on
    // the upgrade page.
    Connections {
        target: live
        function onDiskProbed(result) { if (!(result >= 0)) mainView.pages.show("record") }
    }
    Connections {
        target: window.board
        ignoreUnknownSignals: true
        function onBridgeUpgradeChanged() { if (window.board.bridgeUpgrade === 0) mainView.pages.show("upgrade") }
    }
    // What the companion app sends waits for the operator on the Bluetooth page.
    Connections {
        target: window.companion
        ignoreUnknownSignals: true
        function onOfferChanged() { if (window.companion.offer) mainView.pages.show("bluetooth") }
        function onStopAskedChanged() { if (window.companion.stopAsked) mainView.pages.show("bluetooth") }
    }

    MainView {
        id: mainView
        objectName: "mainView"
        // Sized by value rather than anchors: anchors take effect only once
        // the whole view is complete, after every text in it has been laid
        // out once at a wrong width.
        width: window.width
        height: window.height
        store: live
        pageStores: ({ live: live, system: system, board: board, media: media, stream: stream, companion: companion, ndi: ndi, camera: camera, scopes: scopes, switcher: switcher })
        upgrading: media ? media.upgrading : false
        keyboardTop: keyboard.item && keyboard.item.active ? keyboard.y : height
    }

    // Qt Virtual Keyboard, made the first time a text field asks for it.
    Loader {
        id: keyboard
        objectName: "keyboardLoader"
        active: false
        anchors { right: parent.right; bottom: parent.bottom }
        // Wide enough for keys of about 9 mm; in landscape it leaves the picture's left part clear.
        width: mainView.portrait ? parent.width : Math.min(parent.width, 1280)
        z: 50
        source: "CONTROLS/Keyboard.qml"
        // A language switch re-evaluates every binding; the layout keeps its value until the new one arrives.
        Binding { target: keyboard.item; property: "german"; value: system.language === 2; when: keyboard.item !== null; restoreMode: Binding.RestoreNone }
        // The input method reports itself visible only once this panel
        // exists, so the panel is made when a text field first takes focus.
        Connections {
            target: window
            function onActiveFocusItemChanged() {
                if (window.activeFocusItem && window.activeFocusItem.inputMethodHints !== undefined)
                    keyboard.active = true
            }
        }
    }

    function openStartPage(name) {
        if (name === "" || name === "main")
            return
        if (!mainView.pages.show(name)) {
            console.warn("CS_START_PAGE: no page named \"" + name + "\"; showing the main screen")
            manage.uiproc.writeLog("CS_START_PAGE: no page named " + name + ", main screen shown")
        }
    }

    // First the picture the operator sees: the settings shape the window and
    // its texts. The device, the board and the network start right after
    // the first frame is on screen, in the order they must keep, so their
    // threads and child processes do not hold up that frame.
    property var startSettings: ({})
    property bool deviceStarted: false
    function startDeviceOnce() {
        if (!deviceStarted) {
            deviceStarted = true
            startDevice(startSettings)
        }
    }
    // On the next turn of the event loop, so the frame's own report is not
    // held up by the start-up that follows it.
    onFrameSwapped: if (!deviceStarted) Qt.callLater(startDeviceOnce)
    // A window that never shows a frame (offscreen, hidden) starts all the same.
    Timer { interval: 300; running: true; onTriggered: window.startDeviceOnce() }

    function startDevice(settings) {
        manage.uiproc.writeLog("qml start share image")
        manage.uiprocGetImageShareData.getShareImageData()
        manage.uiproc.writeLog("qml start share audio")
        manage.uiprocGetAudioShareData.getShareAudioData()
        manage.uiproVideo.bizConnect()
        manage.uiproc.writeLog("qml start GetInputSignalFormat")
        manage.uiproc.connectGetInputSignalFormat()
        manage.uiproNetwork.initNetwork()
        manage.uiproNetwork.getIpAddress(0)
        manage.uiproBluetooth.getBlueData()
        board = makeStore("BoardStore.qml", { manage: manage })
        board.start(settings)
        stream = makeStore("StreamStore.qml", { manage: manage, live: live })
        stream.loadSettings(settings)
        media = makeStore("MediaStore.qml", { manage: manage, live: live, board: board })
        media.currentVersion = Qt.binding(function () { return system.about.version || "" })
        companion = makeStore("CompanionStore.qml", { manage: manage, live: live, stream: stream })
        companion.start(settings)
        ndi = makeStore("NdiStore.qml", { manage: manage })
        camera = makeStore("CameraStore.qml", { manage: manage })
        scopes = makeStore("ScopeStore.qml", { manage: manage })
        scopes.start(settings)
        switcher = makeStore("SwitcherStore.qml", { manage: manage, live: live })
        switcher.start(settings)
        system.requestLibraryInfo()
        manage.uiproc.initFinished()
        live.start()
        // A page asks the device as it opens: only once reports are heard.
        openStartPage(typeof csStartPage !== "undefined" ? csStartPage : "")
    }

    Component.onCompleted: {
        manage.uiproc.writeLog("qml start")
        manage.uiproc.readInitConfig()
        var settings = manage.uiproc.getIniData()
        mainView.portrait = settings.lcdRotation !== undefined && settings.lcdRotation !== 0
        if (mainView.portrait && !onDevice) {
            // A rotated panel: the desktop window takes the panel's portrait shape.
            window.width = 1080
            window.height = 1920
        }
        live.loadSettings(settings)
        system.loadSettings(settings)
        startSettings = settings
    }
}
