import QtQuick 2.15
import QtQuick.Window 2.15
import "../Public"
import "../CONTROLS"

// Streaming events: the list first (latest first, each with the time left
// until its start), to choose the one going live uses or delete one (asked
// once, by name); below it a new event with a name and a start time.
Column {
    id: page
    property var store
    spacing: Style.gap
    property alias confirm: confirm

    onStoreChanged: if (store) { store.loadEvents(); takeTomorrow() }

    property double nowMs: Date.now()
    Timer {
        interval: 30000; repeat: true; running: page.visible
        onTriggered: page.nowMs = Date.now()
    }

    function pad(n) { return n < 10 ? "0" + n : "" + n }
    readonly property int firstYear: new Date().getFullYear()
    property int wantedDay: 0
    function daysIn(yearIndex, monthIndex) { return new Date(firstYear + yearIndex, monthIndex + 1, 0).getDate() }

    // "in 2 h 5 min", "started", or no start time at all.
    function countdown(startMs, now) {
        if (!startMs)
            return qsTr("No start time")
        var minutes = Math.ceil((startMs - now) / 60000)
        if (minutes <= 0)
            return qsTr("Started")
        var d = Math.floor(minutes / 1440), h = Math.floor(minutes / 60) % 24, m = minutes % 60
        if (d > 0)
            return qsTr("in %1 d %2 h").arg(d).arg(h)
        if (h > 0)
            return qsTr("in %1 h %2 min").arg(h).arg(m)
        return qsTr("in %1 min").arg(m)
    }

    // The wheels start at tomorrow, this time of day, on the hour.
    function takeTomorrow() {
        var t = new Date(Date.now() + 24 * 3600 * 1000)
        year.currentIndex = t.getFullYear() - firstYear
        month.currentIndex = t.getMonth()
        wantedDay = t.getDate() - 1
        day.currentIndex = wantedDay
        hour.currentIndex = t.getHours()
        minute.currentIndex = 0
    }
    function chosenStart() {
        return new Date(firstYear + year.currentIndex, month.currentIndex, day.currentIndex + 1,
                        hour.currentIndex, minute.currentIndex, 0, 0).getTime()
    }
    function create() {
        if (store.createEvent(nameField.text, chosenStart()))
            nameField.text = ""
    }

    Text {
        width: page.width
        text: qsTr("Events, latest first")
        color: Style.text
        font.pixelSize: Style.fontNormal
        font.bold: true
    }
    Text {
        objectName: "noEvents"
        width: page.width
        visible: !page.store || page.store.events.length === 0
        text: qsTr("No events yet: create one below.")
        color: Style.textDim
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    Repeater {
        model: page.store ? page.store.events : []
        Rectangle {
            objectName: "eventRow_" + modelData.name
            readonly property bool inUse: page.store.eventName === modelData.name
            width: page.width
            height: Math.max(Style.touch, info.implicitHeight) + Style.gap
            radius: Style.radius
            color: Style.surface
            border.width: inUse ? 3 : 1
            border.color: inUse ? Style.accent : Style.outline
            Column {
                id: info
                anchors { left: parent.left; leftMargin: Style.gap; right: buttons.left; rightMargin: Style.gap; verticalCenter: parent.verticalCenter }
                Text {
                    width: parent.width
                    text: page.store.eventLabel(modelData.name)
                    textFormat: Text.PlainText
                    color: Style.text
                    font.pixelSize: Style.fontNormal
                    font.bold: true
                    elide: Text.ElideRight
                }
                Text {
                    objectName: "eventCountdown"
                    width: parent.width
                    text: (modelData.start ? Qt.formatDateTime(new Date(modelData.start), "yyyy-MM-dd hh:mm") + "  " : "")
                          + page.countdown(modelData.start, page.nowMs)
                    color: modelData.start && modelData.start <= page.nowMs ? Style.attention : Style.textDim
                    font.pixelSize: Style.fontSmall
                    wrapMode: Text.WordWrap
                }
            }
            Row {
                id: buttons
                anchors { right: parent.right; rightMargin: Style.gap / 2; verticalCenter: parent.verticalCenter }
                spacing: Style.gap / 2
                TouchButton {
                    objectName: "eventUse_" + modelData.name
                    width: Style.touch * 1.7
                    label: inUse ? qsTr("In use") : qsTr("Use")
                    checked: inUse
                    onClicked: if (!inUse) page.store.chooseEvent(modelData.name)
                }
                TouchButton {
                    objectName: "eventDelete_" + modelData.name
                    width: Style.touch * 1.7
                    visible: modelData.name !== "Current"
                    label: qsTr("Delete")
                    onClicked: {
                        var name = modelData.name
                        confirm.ask(qsTr("Delete the event “%1” with its addresses and settings?").arg(name),
                                    qsTr("Delete event"), function () { page.store.deleteEvent(name) })
                    }
                }
            }
        }
    }

    Text {
        width: page.width
        text: qsTr("New event")
        color: Style.text
        font.pixelSize: Style.fontNormal
        font.bold: true
    }
    TypedField {
        id: nameField
        objectName: "eventName"
        width: page.width
        placeholderText: qsTr("Name, e.g. Sunday service")
        maximumLength: 64
        problem: page.store ? page.store.refusal !== "" : false
        onAccepted: page.create()
    }
    Row {
        id: wheels
        spacing: Style.gap / 2
        readonly property real cell: (page.width - 4 * spacing) / 5
        Wheel {
            id: year
            objectName: "eventYear"
            width: wheels.cell
            caption: qsTr("Year")
            model: 6
            fontSize: Style.fontNormal
            format: function (i) { return "" + (page.firstYear + i) }
            tumbler.wrap: false   // years run one way
        }
        Wheel {
            id: month
            objectName: "eventMonth"
            width: wheels.cell
            caption: qsTr("Month")
            model: 12
            format: function (i) { return page.pad(i + 1) }
        }
        Wheel {
            id: day
            objectName: "eventDay"
            width: wheels.cell
            caption: qsTr("Day")
            model: page.daysIn(year.currentIndex, month.currentIndex)
            format: function (i) { return page.pad(i + 1) }
            // A shorter month keeps the chosen day where it can.
            onModelChanged: currentIndex = Math.min(page.wantedDay, model - 1)
            onMovingChanged: if (!moving) page.wantedDay = currentIndex
        }
        Wheel {
            id: hour
            objectName: "eventHour"
            width: wheels.cell
            caption: qsTr("Hour")
            model: 24
        }
        Wheel {
            id: minute
            objectName: "eventMinute"
            width: wheels.cell
            caption: qsTr("Minute")
            model: 60
        }
    }
    Text {
        objectName: "eventMessage"
        width: page.width
        visible: text !== ""
        text: !page.store ? "" : page.store.refusal !== "" ? page.store.refusal : page.store.notice
        color: page.store && page.store.refusal !== "" ? Style.attention : Style.text
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    TouchButton {
        objectName: "eventCreate"
        width: page.width
        label: qsTr("Create event")
        detail: Qt.formatDateTime(new Date(page.chosenStart()), "yyyy-MM-dd hh:mm")
        onClicked: page.create()
    }

    ConfirmDialog {
        id: confirm
        objectName: "eventsConfirm"
        parent: page.Window.contentItem ? page.Window.contentItem : page
        anchors.fill: parent
    }
}
