import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// The event's stream addresses under their platform logos: imported from
// the USB disk (rtmp.ini) and the companion app, or typed. Each change is
// kept at once.
Column {
    id: page
    property var store
    spacing: Style.gap

    onStoreChanged: if (store) store.openPlatforms()

    readonly property var draft: store ? store.draft : []
    // Platform names in the logo order, only those with an address.
    readonly property var groups: {
        if (!store)
            return []
        var names = store.platformNames.slice()
        draft.forEach(function (p) { if (names.indexOf(p.name) < 0) names.push(p.name) })
        return names.filter(function (n) { return draft.some(function (p) { return p.name === n }) })
    }

    Item {
        width: page.width
        height: Style.touch
        Column {
            anchors { left: parent.left; right: reimport.left; rightMargin: Style.gap; verticalCenter: parent.verticalCenter }
            Text {
                text: qsTr("Event")
                color: Style.textDim
                font.pixelSize: Style.fontSmall
            }
            Text {
                objectName: "platformsEvent"
                width: parent.width
                text: page.store ? page.store.eventLabel(page.store.eventName) : ""
                textFormat: Text.PlainText   // a name as typed, never markup
                color: Style.text
                font.pixelSize: Style.fontNormal
                font.bold: true
                elide: Text.ElideRight
            }
        }
        TouchButton {
            id: reimport
            objectName: "platformsImport"
            anchors.right: parent.right
            width: Math.max(Style.touch * 2, page.width * 0.4)
            height: parent.height
            label: qsTr("Import again")
            detail: qsTr("USB disk, companion app")
            onClicked: page.store.openPlatforms()
        }
    }

    Text {
        objectName: "platformsLeftOut"
        width: page.width
        visible: page.store ? page.store.leftOut > 0 : false
        text: page.store ? qsTr("%n address(es) offered by the disk or the app left out: spaces, commas, characters outside Latin-1 or too long.", "", page.store.leftOut) : ""
        color: Style.attention
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    Text {
        objectName: "platformsEmpty"
        width: page.width
        visible: page.draft.length === 0
        text: qsTr("No stream addresses yet. Put rtmp.ini (one address a line) on a USB disk, or type an address below.")
        color: Style.textDim
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }

    Repeater {
        model: page.groups
        Row {
            id: group
            objectName: "platformGroup_" + modelData
            property string platform: modelData
            spacing: Style.gap
            // One width for every badge, so the addresses line up.
            Item {
                width: Style.touch * 1.3
                height: badge.height
                PlatformLogo { id: badge; anchors.horizontalCenter: parent.horizontalCenter; name: group.platform; size: Style.touch * 0.7 }
            }
            Column {
                width: page.width - Style.touch * 1.3 - Style.gap
                spacing: Style.gap / 2
                Repeater {
                    model: page.draft.filter(function (p) { return p.name === group.platform })
                    Column {
                        width: parent.width
                        spacing: 4
                        Text {
                            width: parent.width
                            text: modelData.url
                            textFormat: Text.PlainText   // outside text, never markup
                            color: modelData.on ? Style.text : Style.textDim
                            font.pixelSize: Style.fontSmall
                            wrapMode: Text.WrapAnywhere
                            maximumLineCount: 3
                            elide: Text.ElideRight
                        }
                        Row {
                            spacing: Style.gap
                            TouchButton {
                                objectName: "platformSwitch_" + modelData.url
                                width: (parent.parent.width - Style.gap) / 2
                                label: modelData.on ? qsTr("On") : qsTr("Off")
                                detail: modelData.on ? qsTr("Streams to it") : qsTr("Touch to switch on")
                                checked: modelData.on
                                tally: modelData.on ? Style.onPip : "transparent"
                                onClicked: page.store.setPlatformOn(modelData.url, !modelData.on)
                            }
                            TouchButton {
                                objectName: "platformRemove_" + modelData.url
                                width: (parent.parent.width - Style.gap) / 2
                                label: qsTr("Remove")
                                onClicked: page.store.removeUrl(modelData.url)
                            }
                        }
                    }
                }
            }
        }
    }

    Text {
        width: page.width
        text: qsTr("Add an address")
        color: Style.textDim
        font.pixelSize: Style.fontSmall
    }
    TypedField {
        id: urlField
        objectName: "platformsUrl"
        width: page.width
        hints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
        placeholderText: "rtmp://"
        maximumLength: 1020
        problem: page.store ? page.store.refusal !== "" : false
        onAccepted: page.add()
    }
    Text {
        objectName: "platformsRefusal"
        width: page.width
        visible: text !== ""
        text: page.store ? page.store.refusal : ""
        color: Style.attention
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    TouchButton {
        objectName: "platformsAdd"
        width: page.width
        label: qsTr("Add and switch on")
        onClicked: page.add()
    }
    function add() {
        if (store.addUrl(urlField.text))
            urlField.text = ""
    }
}
