import QtQuick 2.15
import QtQuick.Window 2.15
import "../Public"
import "../CONTROLS"

// Going live: the state of the four channels and the live actions first,
// then the event in use, its platforms and the stream parameters. Going
// live and stopping ask once.
Column {
    id: page
    property var store
    spacing: Style.gap
    signal openPage(string name)
    property alias confirm: confirm

    onStoreChanged: if (store) store.refresh()

    readonly property var livePlatforms: store ? store.platforms.filter(function (p) { return p.on }) : []

    Row {
        spacing: Style.gap
        Repeater {
            model: 4
            ChannelState {
                objectName: "streamChannel" + index
                width: (page.width - 3 * Style.gap) / 4
                height: Style.touch * 0.8   // a state, not a target
                channel: qsTr("CH%1").arg(index + 1)
                phase: page.store ? page.store.channelState(index) : "off"
            }
        }
    }

    Text {
        objectName: "streamRefusal"
        width: page.width
        visible: text !== ""
        text: page.store ? page.store.refusal : ""
        color: Style.attention
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }

    Row {
        spacing: Style.gap
        TouchButton {
            objectName: "streamGoLive"
            width: (page.width - Style.gap) / 2
            height: Style.touch * 1.2
            label: qsTr("Go live")
            detail: page.store && page.store.streaming ? qsTr("On air now") : qsTr("%n platform(s)", "", page.livePlatforms.length)
            tally: Style.onAir
            // Live already: the channels are busy until stopped.
            enabledState: page.store ? !page.store.streaming && page.store.phase !== "starting" : false
            onClicked: if (page.store.readyToGoLive())
                           confirm.ask(qsTr("Go live now to %n platform(s) of the event “%1”?", "", page.livePlatforms.length)
                                       .arg(page.store.eventLabel(page.store.eventName)),
                                       qsTr("Go live"), function () { page.store.goLive() })
        }
        TouchButton {
            objectName: "streamStop"
            width: (page.width - Style.gap) / 2
            height: Style.touch * 1.2
            label: qsTr("Stop streaming")
            detail: page.store && page.store.streaming ? qsTr("On air now") : qsTr("Not live")
            enabledState: page.store ? page.store.streaming || page.store.phase === "starting" || page.store.phase === "unconfirmed" : false
            onClicked: confirm.ask(qsTr("Stop streaming on every channel now?"),
                                   qsTr("Stop streaming"), function () { page.store.stop() })
        }
    }

    Item {
        width: page.width
        height: Style.touch
        Column {
            anchors { left: parent.left; right: eventsButton.left; rightMargin: Style.gap; verticalCenter: parent.verticalCenter }
            Text {
                text: qsTr("Event")
                color: Style.textDim
                font.pixelSize: Style.fontSmall
            }
            Text {
                objectName: "streamEvent"
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
            id: eventsButton
            objectName: "streamToEvents"
            anchors.right: parent.right
            width: Math.max(Style.touch * 2, page.width * 0.36)
            height: parent.height
            label: qsTr("Events")
            detail: qsTr("Choose, create")
            onClicked: page.openPage("events")
        }
    }

    Item {
        width: page.width
        height: Math.max(Style.touch, logos.height)
        Flow {
            id: logos
            objectName: "streamLogos"
            anchors { left: parent.left; right: platformsButton.left; rightMargin: Style.gap; verticalCenter: parent.verticalCenter }
            spacing: Style.gap
            Repeater {
                model: page.livePlatforms
                PlatformLogo { name: modelData.name; size: Style.touch * 0.7 }
            }
            Text {
                objectName: "streamNoPlatform"
                visible: page.livePlatforms.length === 0
                width: logos.width
                text: qsTr("No platform switched on")
                color: Style.attention
                font.pixelSize: Style.fontSmall
                wrapMode: Text.WordWrap
            }
        }
        TouchButton {
            id: platformsButton
            objectName: "streamToPlatforms"
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: eventsButton.width
            height: Style.touch
            label: qsTr("Platforms")
            detail: qsTr("Import, switch on")
            onClicked: page.openPage("platforms")
        }
    }

    ChoiceRow {
        objectName: "streamModel"
        width: page.width
        caption: qsTr("Encoder settings")
        namePrefix: "streamModel"
        options: page.store ? page.store.models : []
        current: page.store ? page.store.model : -1
        // The device takes parameters as it goes live; not while it is live.
        active: page.store ? !page.store.streaming : false
        onChosen: page.store.setParameters(code, page.store.resolution, page.store.bitrate)
    }
    ChoiceRow {
        width: page.width
        caption: qsTr("Resolution")
        namePrefix: "streamResolution"
        options: page.store ? page.store.resolutions : []
        current: page.store ? page.store.resolution : -1
        // The device picks its own resolution and bitrate by default.
        active: page.store ? page.store.model !== 0 && !page.store.streaming : false
        onChosen: page.store.setParameters(page.store.model, code, page.store.bitrate)
    }
    ChoiceRow {
        width: page.width
        caption: qsTr("Bitrate")
        namePrefix: "streamBitrate"
        options: page.store ? page.store.bitrates : []
        current: page.store ? page.store.bitrate : -1
        active: page.store ? page.store.model !== 0 && !page.store.streaming : false
        onChosen: page.store.setParameters(page.store.model, page.store.resolution, code)
    }

    ConfirmDialog {
        id: confirm
        objectName: "streamConfirm"
        parent: page.Window.contentItem ? page.Window.contentItem : page
        anchors.fill: parent
    }
}
