import QtQuick 2.15
import QtQuick.Window 2.15
import "../Public"
import "../CONTROLS"

// Recording to the USB disk: start (only on a usable disk) and stop (asked
// once), the time so far and the minutes the disk has left, the recordings
// on the disk with rename, and playback on the device's output.
Column {
    id: page
    property var store
    spacing: Style.gap

    property bool refused: false       // the last start was refused by the probe
    property string editing: ""        // path of the recording being renamed
    property string renameProblem: ""

    onStoreChanged: if (store) {
        store.refreshRecordings()
        if (!store.recording)
            store.probe()
    }

    readonly property var diskTexts: ({
        "-1": qsTr("No USB disk"),
        "-2": qsTr("The USB disk cannot be read"),
        "-3": qsTr("Less than 512 MB free on the USB disk")
    })
    readonly property var renameTexts: ({
        empty: qsTr("Type a name."),
        long: qsTr("A name has at most 64 characters."),
        characters: qsTr("A name cannot contain %1 or start or end with a dot.").arg("/ \\ : * ? \" < > |"),
        exists: qsTr("A recording with this name already exists."),
        busy: qsTr("The recording still being made cannot be renamed."),
        failed: qsTr("Could not rename the recording.")
    })

    function start() { refused = !store.startRecording() }
    function askStop() {
        confirm.ask(qsTr("Stop the recording now?"), qsTr("Stop recording"), function () { page.store.stopRecording() })
    }
    function beginRename(entry) {
        editing = entry.path
        renameProblem = ""
        nameField.text = entry.name
        // Place the editor now, so the page can scroll it above the keyboard
        // that the focus brings up.
        forceLayout()
        nameField.input.forceActiveFocus()
    }
    function finishRename() {
        renameProblem = store.rename(editing, nameField.text)
        if (renameProblem === "") {
            editing = ""
            nameField.input.focus = false
        }
    }
    function cancelRename() {
        editing = ""
        renameProblem = ""
        nameField.input.focus = false
    }

    // --- recording ---------------------------------------------------------
    TouchButton {
        objectName: "recordStartStop"
        width: page.width
        height: Style.touch * 1.3
        label: page.store && page.store.recording ? qsTr("Stop recording") : qsTr("Start recording")
        detail: !page.store ? ""
                : page.store.recording ? qsTr("Recording %1").arg(page.store.recordTime)
                : qsTr("Not recording")
        tally: page.store && page.store.recording ? Style.onAir : "transparent"
        onClicked: page.store.recording ? page.askStop() : page.start()
    }
    Text {
        objectName: "recordMessage"
        width: page.width
        visible: text !== ""
        text: page.store && page.refused && !page.store.recording && page.store.diskCode < 0
              ? qsTr("Not started: %1.").arg(page.diskTexts[String(page.store.diskCode)] || page.diskTexts["-2"]) : ""
        wrapMode: Text.WordWrap
        color: Style.attention
        font.pixelSize: Style.fontNormal
    }
    InfoRow {
        objectName: "recordFile"
        width: page.width
        visible: page.store ? page.store.recording && page.store.fileName !== "" : false
        name: qsTr("File")
        value: page.store ? page.store.fileName : ""
    }
    InfoRow {
        objectName: "recordLeft"
        width: page.width
        name: qsTr("Time left on the disk")
        value: !page.store ? ""
               : page.store.diskCode < 0 ? page.diskTexts[String(page.store.diskCode)] || ""
               : page.store.minutesLeft < 0 ? qsTr("not known yet")
               : page.store.minutesLeft < 120 ? qsTr("about %n minute(s)", "", page.store.minutesLeft)
               : qsTr("about %1 h %2 min").arg(Math.floor(page.store.minutesLeft / 60)).arg(page.store.minutesLeft % 60)
    }
    InfoRow {
        objectName: "recordRate"
        width: page.width
        name: qsTr("Worked out at")
        value: page.store ? qsTr("%1 Mbit/s (1080p)").arg(page.store.recordRateMbps) : ""
    }
    StatusChip {
        objectName: "recordLowDisk"
        visible: page.store ? page.store.lowDisk && page.store.diskCode === 0 : false
        text: qsTr("Disk nearly full: less than %n minute(s) left", "", page.store ? page.store.lowDiskMinutes : 10)
        mark: Style.attention
    }

    // --- recordings on the disk ------------------------------------------
    Text {
        width: page.width
        text: qsTr("Recordings on the USB disk")
        color: Style.text
        font.pixelSize: Style.fontNormal
        font.bold: true
        topPadding: Style.gap
    }
    Text {
        objectName: "recordListEmpty"
        width: page.width
        visible: page.store ? page.store.recordings.length === 0 : true
        text: page.store && page.store.listing ? qsTr("Reading the disk…") : qsTr("No recordings.")
        color: Style.textDim
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    Repeater {
        objectName: "recordList"
        model: page.store ? page.store.recordings : []
        Column {
            width: page.width
            spacing: Style.gap / 2
            readonly property bool editingThis: page.editing === modelData.path
            Rectangle {
                width: page.width
                height: Style.touch
                radius: Style.radius
                color: Style.surface
                border.color: Style.outline
                Column {
                    anchors { left: parent.left; right: renameButton.left; verticalCenter: parent.verticalCenter; margins: Style.gap }
                    Text {
                        objectName: "recordName" + index
                        width: parent.width
                        text: modelData.label
                        textFormat: Text.PlainText
                        color: Style.text
                        font.pixelSize: Style.fontNormal
                        elide: Text.ElideMiddle
                    }
                    Text {
                        objectName: "recordDetail" + index
                        width: parent.width
                        text: modelData.length + "   " + modelData.resolution.replace("*", "×") + "   " + modelData.created
                        textFormat: Text.PlainText
                        color: Style.textDim
                        font.pixelSize: Style.fontSmall
                        elide: Text.ElideRight
                    }
                }
                TouchButton {
                    id: renameButton
                    objectName: "recordRename" + index
                    anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
                    width: Style.touch * 1.9
                    label: qsTr("Rename")
                    checked: editingThis
                    onClicked: editingThis ? page.cancelRename() : page.beginRename(modelData)
                }
            }
        }
    }
    // The rename editor, under the list, its field last: the page scrolls
    // the field above the keyboard, with the message and buttons in view.
    Column {
        objectName: "renameEditor"
        width: page.width
        spacing: Style.gap / 2
        visible: page.editing !== ""
        // The hint, or why the name was refused, in room for two lines so
        // that the field below does not move under the keyboard.
        Text {
            objectName: "renameMessage"
            width: page.width
            height: Style.fontSmall * 2.8
            verticalAlignment: Text.AlignBottom
            text: page.renameProblem !== "" ? page.renameTexts[page.renameProblem] || ""
                  : qsTr("New name (the file keeps its .mp4 ending)")
            color: page.renameProblem !== "" ? Style.attention : Style.textDim
            font.pixelSize: Style.fontSmall
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }
        Row {
            spacing: Style.gap
            TouchButton {
                objectName: "renameSave"
                width: (page.width - Style.gap) / 2
                label: qsTr("Save name")
                onClicked: page.finishRename()
            }
            TouchButton {
                objectName: "renameCancel"
                width: (page.width - Style.gap) / 2
                label: qsTr("Cancel")
                onClicked: page.cancelRename()
            }
        }
        NameField {
            id: nameField
            objectName: "renameField"
            width: page.width
            problem: page.renameProblem !== ""
            onAccepted: page.finishRename()
        }
    }

    // --- playback ----------------------------------------------------------
    Text {
        width: page.width
        text: qsTr("Playback on the device's output")
        color: Style.text
        font.pixelSize: Style.fontNormal
        font.bold: true
        wrapMode: Text.WordWrap
        topPadding: Style.gap
    }
    Row {
        spacing: Style.gap
        readonly property real cell: (page.width - 2 * Style.gap) / 3
        TouchButton {
            objectName: "playPlay"
            width: parent.cell
            label: qsTr("Play")
            checked: page.store ? page.store.playback === "playing" : false
            detail: checked ? qsTr("Playing") : ""
            onClicked: page.store.play()
        }
        TouchButton {
            objectName: "playPause"
            width: parent.cell
            label: qsTr("Pause")
            checked: page.store ? page.store.playback === "paused" : false
            detail: checked ? qsTr("Paused") : ""
            onClicked: page.store.pause()
        }
        TouchButton {
            objectName: "playStop"
            width: parent.cell
            label: qsTr("Stop")
            detail: page.store && page.store.playbackEnded ? qsTr("Playback ended") : ""
            onClicked: page.store.stopPlayback()
        }
    }

    ConfirmDialog {
        id: confirm
        objectName: "recordConfirm"
        parent: page.Window.contentItem ? page.Window.contentItem : page
        anchors.fill: parent
    }
}
