import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"

// The date and time page on a fake store.
Item {
    id: root
    width: 1200
    height: 2000

    FakeBoardStore { id: fake }
    Component { id: dateTimePage; DateTimePage { width: root.width } }

TestCase {
    name: "DateTimePage"
    when: windowShown

    function open() {
        var page = createTemporaryObject(dateTimePage, root)
        page.store = fake
        return page
    }
    function init() { fake.calls = []; fake.timeZone = 0 }

    function test_wheelsSendTheirIndexes_data() {
        return [{ tag: "leap day", y: 24, mo: 1, d: 28, h: 23, mi: 59, s: 58, days: 29 },
                { tag: "end of a short month", y: 26, mo: 10, d: 29, h: 12, mi: 5, s: 30, days: 30 }]
    }
    function test_wheelsSendTheirIndexes(data) {
        var page = open()
        var now = new Date()
        compare(findChild(page, "dtYear").currentIndex, now.getFullYear() - 2000, "starts at the clock")
        findChild(page, "dtYear").currentIndex = data.y
        findChild(page, "dtMonth").currentIndex = data.mo
        compare(findChild(page, "dtDay").model, data.days)
        var wheels = { dtDay: data.d, dtHour: data.h, dtMinute: data.mi, dtSecond: data.s }
        for (var name in wheels)
            findChild(page, name).currentIndex = wheels[name]
        mouseClick(findChild(page, "dtSetClock"))
        compare(fake.calls, ["setDateFromWheels " + [data.y, data.mo, data.d, data.h, data.mi, data.s].join(" ")])
    }

    function test_timeZone() {
        var page = open()
        var zone = findChild(page, "dtZone"), use = findChild(page, "dtSetZone")
        // Sorted west to east: St. John's (2), London (0), Beijing (1).
        compare(page.zoneList, [2, 0, 1])
        compare(zone.currentIndex, 1, "shows the stored zone")
        compare(use.enabledState, false)
        zone.currentIndex = 2
        mouseClick(use)
        compare(fake.calls, ["setTimeZone 1"])
        compare(use.enabledState, false)
        fake.timeZone = 2
        compare(zone.currentIndex, 0, "follows the store")
    }
}
}
