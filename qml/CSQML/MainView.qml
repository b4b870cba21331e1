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
        anchors { left: parent.left; right: parent.right; top: parent.top }
        streams: view.store.streams
        recording: view.store.recording
        recordTime: view.recordTime
        usbDisk: view.store.usbDisk
        ipAddress: view.store.ipAddress
        linkAlive: view.store.linkAlive
    }

    Item {
        id: body
        anchors { left: parent.left; right: parent.right; top: statusBar.bottom; bottom: parent.bottom; margins: Style.gap }

        // Landscape: preview and meters on the left two thirds, actions on the right, inputs below.
        // Portrait: everything stacked.
        readonly property real actionsWidth: view.portrait ? width : 380
        readonly property real metersWidth: view.portrait ? width : 9 * 52
        readonly property real inputsHeight: view.portrait ? Style.touch * 2.2 : height - previewPanel.height - Style.gap

        PreviewPanel {
            id: previewPanel
            objectName: "previewPanel"
            x: 0; y: 0
            width: view.portrait ? body.width
                                 : Math.min(body.width - body.actionsWidth - body.metersWidth - 2 * Style.gap,
                                            (body.height - Style.touch * 2.2 - Style.gap) * 16 / 9)
            height: width * 9 / 16
            onAir: view.store.onAir
            pipOn: view.store.pipOn
            pipLayout: view.store.pipLayout
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
            height: view.portrait ? 220 : previewPanel.height
            levels: view.store.levels
            names: view.store.levelNames
        }

        InputRow {
            id: inputs
            objectName: "inputRow"
            x: 0
            y: view.portrait ? meters.y + meters.height + Style.gap : body.height - height
            width: view.portrait ? body.width : previewPanel.width + Style.gap + meters.width
            height: body.inputsHeight
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
            recording: view.store.recording
            recordTime: view.recordTime
            streaming: view.store.streaming
            liveChannels: view.store.streams.filter(function (s) { return s !== 0 }).length
            pipOn: view.store.pipOn
            onRecordRequested: view.store.startRecording()
            onStopRecordRequested: confirm.ask(qsTr("Stop the recording now?"), qsTr("Stop recording"), function () { view.store.stopRecording() })
            onPipToggled: view.store.setPip(on)
        }
    }

    ConfirmDialog {
        id: confirm
        objectName: "confirmDialog"
        anchors.fill: parent
    }
}
