import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// The sound of the programme and of the PIP picture, each chosen by hand or
// following the picture; large meters for every source with the sampling
// rate the device reports; the HDMI outputs.
Column {
    id: page
    property var store
    spacing: Style.gap

    onStoreChanged: if (store) { store.refreshAudio(); store.refreshOutputs() }

    function rateText(code) {
        return code === 0 ? qsTr("44.1 kHz") : code === 1 ? qsTr("48 kHz") : code < 0 ? qsTr("rate ?") : qsTr("rate %1").arg(code)
    }
    function monitorText(status) {
        return status < 0 ? qsTr("Not known yet") : status === 0 ? qsTr("No monitor") : qsTr("Monitor connected")
    }

    Repeater {
        model: [{ pip: false, title: qsTr("Programme sound") }, { pip: true, title: qsTr("PIP sound") }]
        Column {
            id: mix
            readonly property bool pip: modelData.pip
            readonly property string prefix: pip ? "pipAudio" : "programmeAudio"
            readonly property int current: page.store ? (pip ? page.store.pipAudio : page.store.programmeAudio) : -1
            readonly property bool following: page.store ? (pip ? page.store.followPip : page.store.followProgramme) : false
            width: page.width
            spacing: Style.gap / 2
            Text {
                width: parent.width
                text: modelData.title
                color: Style.text
                font.pixelSize: Style.fontLarge
                font.bold: true
            }
            TouchButton {
                objectName: mix.prefix + "Follow"
                width: parent.width
                label: qsTr("Follows the picture")
                detail: mix.following ? qsTr("On: the sound of the input on %1").arg(mix.pip ? qsTr("PIP") : qsTr("programme")) : qsTr("Off: the source chosen below")
                checked: mix.following
                onClicked: page.store.setFollow(mix.pip, !mix.following)
            }
            Grid {
                id: sources
                width: parent.width
                columns: 3
                spacing: Style.gap
                Repeater {
                    model: page.store ? page.store.audioSourceNames.concat([qsTr("None")]) : []
                    TouchButton {
                        readonly property int source: index < 8 ? index : -1
                        objectName: mix.prefix + source
                        width: (sources.width - 2 * sources.spacing) / 3
                        label: modelData
                        checked: mix.current === source
                        detail: checked ? (mix.following ? qsTr("Following") : qsTr("Selected")) : ""
                        onClicked: page.store.setAudio(mix.pip, source)
                    }
                }
            }
        }
    }

    Text {
        width: page.width
        text: qsTr("Levels")
        color: Style.text
        font.pixelSize: Style.fontLarge
        font.bold: true
    }
    Repeater {
        model: page.store ? page.store.levelNames.length : 0
        Row {
            width: page.width
            spacing: Style.gap
            LevelMeter {
                objectName: "audioMeter" + index
                width: parent.width - rate.width - Style.gap
                height: 64
                labelWidth: Math.min(190, width * 0.4)
                level: page.store.levels[index] !== undefined ? page.store.levels[index] : 0
                label: page.store.levelNames[index]
            }
            Text {
                id: rate
                objectName: "audioRate" + index
                anchors.verticalCenter: parent.verticalCenter
                width: 120
                horizontalAlignment: Text.AlignRight
                // The headphone output has no input rate.
                text: index < page.store.samplingRates.length ? page.rateText(page.store.samplingRates[index]) : ""
                color: Style.textDim
                font.pixelSize: Style.fontSmall
            }
        }
    }

    Text {
        width: page.width
        text: qsTr("Outputs")
        color: Style.text
        font.pixelSize: Style.fontLarge
        font.bold: true
    }
    ChoiceRow {
        objectName: "hdmiOutStyle"
        width: page.width
        namePrefix: "hdmiStyle"
        caption: page.store && page.store.hdmiOutStyle < 0 ? qsTr("HDMI output shows (asking the device…)") : qsTr("HDMI output shows")
        options: [{ code: 0, label: qsTr("Programme") }, { code: 1, label: qsTr("Multiview") }]
        current: page.store ? page.store.hdmiOutStyle : -1
        onChosen: page.store.setHdmiOutStyle(code)
    }
    InfoRow {
        objectName: "outputStatus"
        width: page.width
        name: qsTr("HDMI output")
        value: page.store ? page.monitorText(page.store.outputStatus) : ""
    }
    InfoRow {
        objectName: "hdmi2Status"
        width: page.width
        name: qsTr("Second HDMI output")
        value: page.store ? page.monitorText(page.store.hdmi2Status) : ""
    }
    TouchButton {
        objectName: "outputsRefresh"
        width: page.width
        label: qsTr("Ask the outputs again")
        onClicked: page.store.refreshOutputs()
    }
}
