import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// NDI: sending the programme and receiving a source, the sources found,
// the names the device announces, its connection and data type, and what
// it sends now. Each control shows the device's answer.
Column {
    id: page
    property var store
    spacing: Style.gap

    onStoreChanged: if (store) { store.refresh(); fillConnection() }
    Component.onCompleted: if (store) fillConnection()

    function onOff(state) { return state < 0 ? qsTr("Not known yet") : state !== 0 ? qsTr("On") : qsTr("Off") }

    // --- sending and receiving ---------------------------------------------
    Row {
        width: page.width
        spacing: Style.gap
        TouchButton {
            objectName: "ndiEncoding"
            width: (page.width - Style.gap) / 2
            label: qsTr("Send programme")
            detail: page.store ? page.onOff(page.store.encoding) : ""
            checked: page.store ? page.store.encoding > 0 : false
            enabledState: page.store !== null && page.store !== undefined
            onClicked: page.store.setEncoding(!(page.store.encoding > 0))
        }
        TouchButton {
            objectName: "ndiDecoding"
            width: (page.width - Style.gap) / 2
            label: qsTr("Receive a source")
            detail: page.store ? page.onOff(page.store.decoding) : ""
            checked: page.store ? page.store.decoding > 0 : false
            enabledState: page.store !== null && page.store !== undefined
            onClicked: page.store.setDecoding(!(page.store.decoding > 0))
        }
    }

    // --- sources ------------------------------------------------------------
    Heading { text: qsTr("Sources on the network") }
    TouchButton {
        objectName: "ndiSearch"
        width: page.width
        label: qsTr("Search again")
        detail: !page.store ? ""
                : page.store.searching ? qsTr("Searching…")
                : !page.store.sourcesKnown ? ""
                : page.store.sources.length === 0 ? qsTr("No source found")
                : qsTr("%n source(s) found", "", page.store.sources.length)
        enabledState: page.store ? !page.store.searching : false
        onClicked: page.store.searchSources()
    }
    // Names and addresses come from other machines: shown as plain text,
    // never as markup.
    Repeater {
        model: page.store ? page.store.sources : []
        Rectangle {
            id: source
            objectName: "ndiSource_" + modelData.name
            readonly property bool checked: page.store.chosenSource === modelData.name
            readonly property bool enabledState: true
            readonly property string detail: (checked ? qsTr("Chosen") + "  ·  " : "") + modelData.addr
            signal clicked()
            onClicked: page.store.chooseSource(modelData.name)
            width: page.width
            height: Style.touch
            radius: Style.radius
            color: sourceArea.pressed ? Style.surfaceRaised : checked ? Qt.darker(Style.accent, 1.8) : Style.surfaceRaised
            border.width: 2
            border.color: checked ? Style.accent : Style.outline
            Column {
                anchors.centerIn: parent
                width: parent.width - 2 * Style.gap
                spacing: 4
                Text {
                    objectName: "ndiSourceName"
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    text: modelData.name
                    textFormat: Text.PlainText
                    color: Style.text
                    font.pixelSize: Style.fontNormal
                    font.bold: true
                    elide: Text.ElideRight
                }
                Text {
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    text: source.detail
                    textFormat: Text.PlainText
                    color: Style.textDim
                    font.pixelSize: Style.fontSmall
                    elide: Text.ElideRight
                }
            }
            MouseArea { id: sourceArea; anchors.fill: parent; onClicked: source.clicked() }
        }
    }

    // --- names ------------------------------------------------------------
    Heading { text: qsTr("Names") }
    property string nameProblem: ""
    property string nameProblemOf: ""
    readonly property var nameProblemTexts: ({
        empty: qsTr("Type a name first."),
        long: qsTr("A name can have at most 63 characters."),
        characters: qsTr("Use Latin letters, digits, spaces and simple punctuation only.")
    })
    Repeater {
        model: [
            { which: "group", caption: qsTr("Group"), unset: qsTr("No group name") },
            { which: "channel", caption: qsTr("Channel"), unset: qsTr("No channel name") },
            { which: "device", caption: qsTr("Device"), unset: qsTr("No device name") }
        ]
        Column {
            id: nameRow
            width: page.width
            spacing: 4
            readonly property var current: !page.store ? null
                : modelData.which === "group" ? page.store.groupName
                : modelData.which === "channel" ? page.store.channelName : page.store.deviceName
            // The device's name fills the field unless it is being typed in.
            onCurrentChanged: if (!field.activeFocus) field.text = current === null ? "" : current
            Component.onCompleted: field.text = current === null ? "" : current
            Text {
                width: parent.width
                text: modelData.caption
                color: Style.textDim
                font.pixelSize: Style.fontSmall
            }
            Row {
                spacing: Style.gap
                TypedField {
                    id: field
                    objectName: "ndiName_" + modelData.which
                    width: page.width - setButton.width - Style.gap
                    placeholderText: nameRow.current === null ? qsTr("Asking the device…") : modelData.unset
                    maximumLength: 80
                    problem: page.nameProblemOf === modelData.which
                    onAccepted: setButton.clicked()
                }
                TouchButton {
                    id: setButton
                    objectName: "ndiNameSet_" + modelData.which
                    width: Style.touch * 1.6
                    label: qsTr("Set")
                    enabledState: page.store !== null && page.store !== undefined
                    onClicked: {
                        var text = field.text.trim()
                        page.nameProblem = page.store.nameProblem(text)
                        page.nameProblemOf = page.nameProblem !== "" ? modelData.which : ""
                        if (page.nameProblem === "") {
                            field.focus = false
                            page.store.setName(modelData.which, text)
                        }
                    }
                }
            }
        }
    }
    Text {
        objectName: "ndiNameMessage"
        width: page.width
        visible: page.nameProblem !== ""
        text: page.nameProblem !== "" ? page.nameProblemTexts[page.nameProblem] : ""
        wrapMode: Text.WordWrap
        color: Style.attention
        font.pixelSize: Style.fontSmall
    }

    // --- connection ---------------------------------------------------------
    Heading { text: qsTr("Connection") }
    property int connectType: -1    // none chosen until the device says
    property string connectionProblem: ""
    function fillConnection() {
        var c = store ? store.connection : null
        if (!c) return
        connectType = c.type
        ttlField.text = String(c.ttl)
        addressField.text = c.address
        netmaskField.text = c.netmask
    }
    Connections {
        target: page.store ? page.store : null
        function onConnectionChanged() { page.fillConnection() }
    }
    ChoiceRow {
        width: page.width
        caption: qsTr("Type")
        namePrefix: "ndiConnect"
        current: page.connectType
        options: [{ code: 0, label: qsTr("TCP") }, { code: 1, label: qsTr("UDP") },
                  { code: 2, label: qsTr("Multi-TCP") }, { code: 3, label: qsTr("Multicast") }]
        onChosen: { page.connectType = code; page.connectionProblem = "" }
    }
    AddressField {
        id: ttlField
        objectName: "ndiTtl"
        width: page.width
        label: qsTr("TTL (hops)")
        input.maximumLength: 3
        input.inputMethodHints: Qt.ImhDigitsOnly
        problem: page.connectionProblem === "ttl"
    }
    AddressField {
        id: addressField
        objectName: "ndiAddress"
        width: page.width
        label: qsTr("Multicast address")
        problem: page.connectionProblem === "address" || page.connectionProblem === "multicast"
    }
    AddressField {
        id: netmaskField
        objectName: "ndiNetmask"
        width: page.width
        label: qsTr("Netmask")
        problem: page.connectionProblem === "netmask"
    }
    readonly property var connectionTexts: ({
        type: qsTr("Choose a connection type."),
        ttl: qsTr("TTL must be a whole number from 1 to 255."),
        address: qsTr("The address must be four numbers from 0 to 255 with dots between."),
        multicast: qsTr("Multicast needs a group address from 224.0.0.0 to 239.255.255.255."),
        netmask: qsTr("The netmask must look like 255.255.255.0.")
    })
    Text {
        objectName: "ndiConnectionMessage"
        width: page.width
        visible: page.connectionProblem !== ""
        text: page.connectionProblem !== "" ? page.connectionTexts[page.connectionProblem] || "" : ""
        wrapMode: Text.WordWrap
        color: Style.attention
        font.pixelSize: Style.fontSmall
    }
    TouchButton {
        objectName: "ndiConnectionApply"
        width: page.width
        label: qsTr("Apply connection")
        detail: !page.store || !page.store.connection ? ""
                : qsTr("Device: %1, TTL %2, %3 / %4").arg(page.connectNames[page.store.connection.type] || "?")
                      .arg(page.store.connection.ttl).arg(page.store.connection.address).arg(page.store.connection.netmask)
        enabledState: page.store !== null && page.store !== undefined
        onClicked: {
            var ttl = Number(ttlField.text.trim())
            page.connectionProblem = page.store.connectionProblem(page.connectType, ttlField.text.trim() === "" ? NaN : ttl,
                                                                  addressField.text.trim(), netmaskField.text.trim())
            if (page.connectionProblem === "")
                page.store.setConnection(page.connectType, ttl, addressField.text.trim(), netmaskField.text.trim())
        }
    }
    readonly property var connectNames: [qsTr("TCP"), qsTr("UDP"), qsTr("Multi-TCP"), qsTr("Multicast")]

    // --- data type ----------------------------------------------------------
    Heading { text: qsTr("Data type") }
    ChoiceRow {
        width: page.width
        caption: qsTr("Bandwidth")
        namePrefix: "ndiData"
        current: page.store ? page.store.dataType : -1
        active: page.store !== null && page.store !== undefined
        options: [{ code: 0, label: qsTr("Full NDI") }, { code: 1, label: qsTr("NDI HX") }]
        onChosen: page.store.setDataType(code, code === 1 ? Math.max(0, page.store.codeValue) : 0)
    }
    ChoiceRow {
        width: page.width
        caption: qsTr("Compression (NDI HX only)")
        namePrefix: "ndiCode"
        current: page.store && page.store.dataType === 1 ? page.store.codeValue : -1
        active: page.store ? page.store.dataType === 1 : false
        options: [{ code: 0, label: "H.264" }, { code: 1, label: "H.265" }]
        onChosen: page.store.setDataType(1, code)
    }

    // --- what is sent now ---------------------------------------------------
    Heading { text: qsTr("Sent now") }
    InfoRow {
        objectName: "ndiFormat"
        width: page.width
        name: qsTr("Format")
        value: page.store && page.store.baseInfo ? page.store.baseInfo.format : qsTr("not known")
    }
    InfoRow {
        width: page.width
        name: qsTr("Frame rate")
        value: page.store && page.store.baseInfo ? qsTr("%1 frames/s").arg(page.store.baseInfo.fps) : qsTr("not known")
    }
    InfoRow {
        width: page.width
        name: qsTr("Bit rate")
        value: page.store && page.store.baseInfo ? qsTr("%1 kbit/s").arg(page.store.baseInfo.bitrate) : qsTr("not known")
    }
    InfoRow {
        width: page.width
        name: qsTr("Audio sample rate")
        value: page.store && page.store.baseInfo ? qsTr("%1 Hz").arg(page.store.baseInfo.sampleRate) : qsTr("not known")
    }
}
