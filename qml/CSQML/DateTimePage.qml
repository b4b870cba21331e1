import QtQuick 2.15
import "../Public"
import "../CONTROLS"

// The device clock, set from wheels, and its time zone, which shifts the
// clock by the difference between the old and the new offset.
Column {
    id: page
    property var store
    spacing: Style.gap

    function pad(n) { return n < 10 ? "0" + n : "" + n }
    function daysIn(yearIndex, monthIndex) { return new Date(2000 + yearIndex, monthIndex + 1, 0).getDate() }

    // The wheels start at the clock as it is now, and again after a zone change.
    property int wantedDay: 0
    function takeClock() {
        var now = new Date()
        year.currentIndex = Math.max(0, Math.min(99, now.getFullYear() - 2000))
        month.currentIndex = now.getMonth()
        wantedDay = now.getDate() - 1
        day.currentIndex = wantedDay
        hour.currentIndex = now.getHours()
        minute.currentIndex = now.getMinutes()
        second.currentIndex = now.getSeconds()
    }
    function takeZone() {
        if (!store)
            return
        for (var i = 0; i < zoneList.length; ++i)
            if (zoneList[i] === store.timeZone)
                zone.currentIndex = i
    }
    onStoreChanged: if (store) { takeClock(); takeZone() }
    Connections {
        target: page.store ? page.store : null
        function onClockChangesChanged() { page.takeClock() }
        function onTimeZoneChanged() { page.takeZone() }
    }

    // Zone indexes ordered west to east for the wheel.
    readonly property var zoneList: {
        if (!store) return []
        var list = []
        for (var i = 0; i < store.zones.length; ++i) list.push(i)
        var zones = store.zones
        return list.sort(function (a, b) { return zones[a].offset - zones[b].offset })
    }

    property string now: ""
    Timer {
        interval: 1000; repeat: true; running: true; triggeredOnStart: true
        onTriggered: page.now = Qt.formatDateTime(new Date(), "yyyy-MM-dd  hh:mm:ss")
    }
    InfoRow {
        objectName: "dtNow"
        width: page.width
        name: qsTr("Device clock")
        value: page.now
    }

    readonly property real third: (width - 2 * Style.gap) / 3
    Row {
        spacing: Style.gap
        Wheel { id: year; objectName: "dtYear"; width: page.third; caption: qsTr("Year"); model: 100; format: function (i) { return "" + (2000 + i) } }
        Wheel {
            id: month; objectName: "dtMonth"; width: page.third; caption: qsTr("Month"); model: 12
            format: function (i) { return page.pad(i + 1) }
        }
        Wheel {
            id: day; objectName: "dtDay"; width: page.third; caption: qsTr("Day")
            model: page.daysIn(year.currentIndex, month.currentIndex)
            format: function (i) { return page.pad(i + 1) }
            // A shorter month keeps the chosen day where it can.
            onModelChanged: currentIndex = Math.min(page.wantedDay, model - 1)
            onMovingChanged: if (!moving) page.wantedDay = currentIndex
        }
    }
    Row {
        spacing: Style.gap
        Wheel { id: hour; objectName: "dtHour"; width: page.third; caption: qsTr("Hour"); model: 24 }
        Wheel { id: minute; objectName: "dtMinute"; width: page.third; caption: qsTr("Minute"); model: 60 }
        Wheel { id: second; objectName: "dtSecond"; width: page.third; caption: qsTr("Second"); model: 60 }
    }
    TouchButton {
        objectName: "dtSetClock"
        width: page.width
        label: qsTr("Set date and time")
        onClicked: page.store.setDateFromWheels(year.currentIndex, month.currentIndex, day.currentIndex,
                                                hour.currentIndex, minute.currentIndex, second.currentIndex)
    }

    Wheel {
        id: zone
        objectName: "dtZone"
        width: page.width
        caption: qsTr("Time zone")
        model: page.zoneList.length
        fontSize: Style.fontNormal
        onModelChanged: page.takeZone()
        format: function (i) { return page.store && i < page.zoneList.length ? page.store.zoneLabel(page.zoneList[i]) : "" }
    }
    TouchButton {
        objectName: "dtSetZone"
        width: page.width
        readonly property int chosen: zone.currentIndex >= 0 && zone.currentIndex < page.zoneList.length ? page.zoneList[zone.currentIndex] : -1
        label: qsTr("Use this time zone")
        detail: qsTr("The clock moves by the difference")
        enabledState: page.store ? chosen >= 0 && chosen !== page.store.timeZone : false
        onClicked: page.store.setTimeZone(chosen)
    }
}
