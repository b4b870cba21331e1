import QtQuick 2.15
import "../Public"
import "../CONTROLS"
import "../Element"

// The main screen: picture first, inputs below, live actions on the right.
Rectangle {
    id: view
    property var store
    property bool portrait: false
    property bool upgrading: false
    color: Style.background

    property string recordTime: "00:00:00"
    function pad(n) { return n < 10 ? "0" + n : "" + n }
    Timer {
        interval: 1000; repeat: true; running: true; triggeredOnStart: true
        onTriggered: {
            var now = new Date()
            statusBar.clock = Qt.formatTime(now, "hh:mm:ss")
            if (view.store && view.store.recording && view.store.recordStartMs > 0) {
                var s = Math.max(0, Math.floor((now.getTime() - view.store.recordStartMs) / 1000))
                view.recordTime = view.pad(Math.floor(s / 3600)) + ":" + view.pad(Math.floor(s / 60) % 60) + ":" + view.pad(s % 60)
            } else {
                view.recordTime = "00:00:00"
            }
        }
    }

    StatusBar {
        id: statusBar
        objectName: "statusBar"
        width: view.width
        streams: view.store.streams
        recording: view.store.recording
        recordTime: view.recordTime
        minutesLeft: view.pageStores.media ? view.pageStores.media.minutesLeft : -1
        lowDisk: view.pageStores.media ? view.pageStores.media.lowDisk : false
        usbDisk: view.store.usbDisk
        ipAddress: view.store.ipAddress
        linkAlive: view.store.linkAlive
    }

    // The stores pages are given, by the name the page registry uses.
    property var pageStores: ({ live: store })
    property alias pages: pageHost
    // Top edge of the on-screen keyboard in this item (its height when none).
    property real keyboardTop: height

    Item {
        id: body
        // By value, not anchors, so the texts inside are laid out once at their real widths.
        x: Style.gap
        y: statusBar.height + Style.gap
        width: view.width - 2 * Style.gap
        height: view.height - y - Style.gap

        // Landscape: picture and inputs on the left two thirds, the meters
        // beside the picture, the live actions and the menu on the right;
        // pages open over the meters and actions, never over the picture.
        // Portrait: everything stacked; pages open below the picture.
        readonly property real actionsWidth: 380
        readonly property real metersWidth: 270
        readonly property real previewWidth: view.portrait ? width : width - actionsWidth - metersWidth - 2 * Style.gap

        PreviewPanel {
            id: previewPanel
            objectName: "previewPanel"
            x: 0; y: 0
            width: body.previewWidth
            height: width * 9 / 16
            onAir: view.store.onAir
            pipOn: view.store.pipOn
            pipLayout: view.store.pipLayout
            safeFrames: view.pageStores.scopes ? view.pageStores.scopes.safeFrames : 0
            paused: view.upgrading
            programmeName: view.store.programmeInput >= 0 && view.store.programmeInput < view.store.inputNames.length
                           ? view.store.inputNames[view.store.programmeInput] : ""
        }

        MeterStrip {
            id: meters
            objectName: "meterStrip"
            x: view.portrait ? 0 : previewPanel.width + Style.gap
            y: view.portrait ? previewPanel.height + Style.gap : 0
            width: view.portrait ? body.width : body.metersWidth
            height: view.portrait ? 270 : body.height
            columns: view.portrait ? 3 : 1
            levels: view.store.levels
            names: view.store.levelNames
        }

        InputRow {
            id: inputs
            objectName: "inputRow"
            x: 0
            y: view.portrait ? meters.y + meters.height + Style.gap : previewPanel.height + Style.gap
            width: previewPanel.width
            height: view.portrait ? Style.touch * 3 : body.height - y
            names: view.store.inputNames
            present: view.store.inputPresent
            formats: view.store.inputFormat
            programmeInput: view.store.programmeInput
            pipInput: view.store.pipInput
            pipOn: view.store.pipOn
            onProgrammeRequested: view.store.switchProgramme(index)
            onPipRequested: view.store.switchPip(index)
        }

        ActionPanel {
            id: actions
            objectName: "actionPanel"
            x: view.portrait ? 0 : body.width - width
            y: view.portrait ? inputs.y + inputs.height + Style.gap : 0
            width: view.portrait ? body.width : body.actionsWidth
            compact: view.portrait
            // The show's main controls: larger here than in the row under a page.
            cellHeight: view.portrait ? Style.touch * 1.3 : Style.touch * 1.6
            recording: view.store.recording
            recordTime: view.recordTime
            streaming: view.store.streaming
            liveChannels: view.store.streams.filter(function (s) { return s !== 0 }).length
            pipOn: view.store.pipOn
            onRecordRequested: view.store.startRecording()
            onStopRecordRequested: view.confirmStopRecording()
            onPipToggled: view.store.setPip(on)
            onOpenPage: pageHost.show(name)
        }

        // The way into every page: one touch here, one on the page's tile.
        TouchButton {
            id: menuButton
            objectName: "menuButton"
            x: actions.x
            y: actions.y + actions.height + Style.gap
            width: actions.width
            height: actions.cellHeight
            label: qsTr("Menu")
            detail: qsTr("Settings and pages")
            onClicked: pageHost.show("menu")
        }

        PageHost {
            id: pageHost
            objectName: "pageHost"
            x: view.portrait ? 0 : meters.x
            y: view.portrait ? meters.y : 0
            width: body.width - x
            height: body.height - y
            stores: view.pageStores
            live: view.store
            recordTime: view.recordTime
            keyboardTop: view.keyboardTop - body.y - y
            onRecordRequested: view.store.startRecording()
            onStopRecordRequested: view.confirmStopRecording()
            onPipToggled: view.store.setPip(on)
        }
    }

    function confirmStopRecording() {
        confirm.active = true
        confirm.item.ask(qsTr("Stop the recording now?"), qsTr("Stop recording"), function () { view.store.stopRecording() })
    }

    // Made the first time a question is asked.
    Loader {
        id: confirm
        anchors.fill: parent
        z: 100
        active: false
        sourceComponent: ConfirmDialog { objectName: "confirmDialog" }
    }
}
