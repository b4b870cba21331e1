import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// The live actions, each showing its state: a column beside the picture,
// or a row (compact) under a page.
Grid {
    id: panel
    property bool recording: false
    property string recordTime: ""
    property bool streaming: false
    property int liveChannels: 0
    property bool pipOn: false
    property bool compact: false
    signal recordRequested()
    signal stopRecordRequested()
    signal pipToggled(bool on)
    signal openPage(string name)    // a live action's own page

    columns: compact ? 3 : 1
    spacing: Style.gap
    readonly property real cellWidth: compact ? (width - 2 * spacing) / 3 : width
    property real cellHeight: compact ? Style.touch : Style.touch * 1.3

    TouchButton {
        objectName: "streamButton"
        width: panel.cellWidth
        height: panel.cellHeight
        label: panel.streaming ? qsTr("ON AIR") : qsTr("Stream off")
        detail: panel.streaming ? qsTr("%n channel(s) live", "", panel.liveChannels) : qsTr("No channel live")
        tally: panel.streaming ? Style.onAir : "transparent"
        onClicked: panel.openPage("stream")
    }
    TouchButton {
        objectName: "recordButton"
        width: panel.cellWidth
        height: panel.cellHeight
        // A third of a row has no room for "Stop recording" in German; the
        // state word below says what is being stopped.
        label: panel.recording ? (panel.compact ? qsTr("Stop") : qsTr("Stop recording")) : qsTr("Record")
        detail: panel.recording ? (panel.compact ? qsTr("REC %1").arg(panel.recordTime) : panel.recordTime) : qsTr("Not recording")
        tally: panel.recording ? Style.onAir : "transparent"
        // Starting goes through the record page, which checks the disk and
        // says why it refuses; stopping is asked once right here.
        onClicked: panel.recording ? panel.stopRecordRequested() : panel.openPage("record")
    }
    TouchButton {
        objectName: "pipButton"
        width: panel.cellWidth
        height: panel.cellHeight
        label: panel.compact ? qsTr("PIP") : qsTr("Picture in picture")
        detail: panel.pipOn ? qsTr("On") : qsTr("Off")
        checked: panel.pipOn
        tally: panel.pipOn ? Style.onPip : "transparent"
        onClicked: panel.pipToggled(!panel.pipOn)
    }
}
