import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/Public"

// Each page alone on a fake store: only sound values reach the store,
// actions that cannot be undone ask first, the store's answers show.
Item {
    id: root
    width: 1200
    height: 2000

    FakeBoardStore { id: fake }
    FakeSystemStore { id: system }
    Component { id: aboutPage; AboutPage { width: root.width } }
    Component { id: dateTimePage; DateTimePage { width: root.width } }
    Component { id: displayPage; DisplayPage { width: root.width } }
    Component { id: fanPage; FanPage { width: root.width } }
    Component { id: networkPage; NetworkPage { width: root.width } }
    Component { id: systemPage; SystemPage { width: root.width } }

TestCase {
    name: "Pages"
    when: windowShown

    // Opened the way the page host opens it: made first, then given its store.
    function open(component, store) {
        var page = createTemporaryObject(component, root)
        page.store = store || fake
        return page
    }
    function init() {
        fake.calls = []
        fake.timeZone = 0
        fake.dhcp = false; fake.applying = false; fake.applyOutcome = ""; fake.checking = false
        fake.address = "10.0.0.7"; fake.netmask = "255.255.255.0"; fake.gateway = "10.0.0.1"
        fake.addressKnown = true
        system.calls = []
        system.serialNumber = "CS2026TEST0042"
        system.softwareVersion = "1.8"
    }

    function test_wheelsSendTheirIndexes_data() {
        return [{ tag: "leap day", y: 24, mo: 1, d: 28, h: 23, mi: 59, s: 58, days: 29 },
                { tag: "end of a short month", y: 26, mo: 10, d: 29, h: 12, mi: 5, s: 30, days: 30 }]
    }
    function test_wheelsSendTheirIndexes(data) {
        var page = open(dateTimePage)
        compare(findChild(page, "dtYear").currentIndex, new Date().getFullYear() - 2000, "starts at the clock")
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
        var page = open(dateTimePage)
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

    function test_brightnessAndRotation() {
        fake.brightness = 200
        var page = open(displayPage)
        var slider = findChild(page, "displayBrightness")
        mouseClick(slider, slider.width - 1, slider.height / 2)
        compare(fake.calls, ["setBrightness 255"])
        compare(findChild(page, "displayBrightnessValue").text, "100 %")
        var note = findChild(page, "displayRotationNote")
        compare(note.text, qsTranslate("DisplayPage", "A change of orientation is used at the next start."))
        mouseClick(findChild(page, "displayRotation1"))
        compare(fake.calls, ["setBrightness 255", "setRotation 1"])
        compare(findChild(page, "displayRotation0").detail, qsTranslate("DisplayPage", "In use now"))
        compare(note.text, qsTranslate("DisplayPage", "Saved. The new orientation is used at the next start."))
    }

    function test_fan() {
        fake.fans = -1
        var page = open(fanPage)
        compare(fake.calls, ["watchTemperature true"], "reads every 5 s while open")
        fake.temperature = 63
        fake.fanRate = 72
        compare(findChild(page, "fanTemperature").value, qsTranslate("FanPage", "%1 °C").arg(63))
        compare(findChild(page, "fanRate").value, qsTranslate("FanPage", "%1 %").arg(72))
        verify(findChild(page, "fanCurve").visible)
        mouseClick(findChild(page, "fanFixed"))
        var slider = findChild(page, "fanSlider")
        verify(slider.visible)
        mouseClick(slider, slider.width - 1, slider.height / 2)
        page.destroy()
        wait(0)
        compare(fake.calls, ["watchTemperature true", "setFanAuto false", "setFanRate 100", "watchTemperature false"])
    }

    function test_apply_data() {
        return [
            { tag: "valid", ip: "192.168.1.20", mask: "255.255.255.0", gw: "192.168.1.1", problem: "" },
            { tag: "no gateway", ip: "192.168.1.20", mask: "255.255.0.0", gw: "0.0.0.0", problem: "" },
            { tag: "shell text", ip: "1.2.3.4;reboot", mask: "255.255.255.0", gw: "1.2.3.1", problem: "address" },
            { tag: "broadcast", ip: "192.168.1.255", mask: "255.255.255.0", gw: "192.168.1.1", problem: "addressKind" },
            { tag: "holey netmask", ip: "192.168.1.20", mask: "255.0.255.0", gw: "192.168.1.1", problem: "netmask" },
            { tag: "gateway elsewhere", ip: "192.168.1.20", mask: "255.255.255.0", gw: "192.168.2.1", problem: "gatewayNetwork" }
        ]
    }
    function test_apply(data) {
        var page = open(networkPage)
        findChild(page, "netAddress").text = data.ip
        findChild(page, "netNetmask").text = data.mask
        findChild(page, "netGateway").text = data.gw
        fake.calls = []
        mouseClick(findChild(page, "netApply"))
        compare(fake.calls, data.problem === "" ? ["applyNetwork false " + [data.ip, data.mask, data.gw].join(" ")] : [])
        if (data.problem !== "")
            compare(findChild(page, "netMessage").text, page.problemTexts[data.problem])
    }

    function test_applyWaitsForTheAnswer() {
        var page = open(networkPage)
        var apply = findChild(page, "netApply"), message = findChild(page, "netMessage")
        mouseClick(findChild(page, "netDhcp"))
        mouseClick(apply)
        mouseClick(apply)
        compare(fake.calls, ["refreshNetwork", "applyNetwork true 10.0.0.7 255.255.255.0 10.0.0.1"], "a second apply waits")
        compare(apply.enabledState, false)
        fake.applying = false
        fake.applyOutcome = "applied-no-dns"
        compare(apply.enabledState, true)
        compare(message.text, qsTranslate("NetworkPage", "Applied, but the name servers could not be written: names may not resolve."))
        compare(message.color, Style.attention)
    }

    function test_storeAnswersFillThePage() {
        fake.addressKnown = false
        var page = open(networkPage)
        compare(findChild(page, "netCurrent").value, qsTranslate("NetworkPage", "no address"))
        fake.address = "172.16.5.9"; fake.netmask = "255.255.0.0"; fake.gateway = "0.0.0.0"
        fake.addressKnown = true
        fake.dhcp = true
        compare(findChild(page, "netAddress").text, "172.16.5.9")
        compare(findChild(page, "netCurrent").value, "172.16.5.9 / 255.255.0.0")
        compare(findChild(page, "netDhcp").checked, true)
        var check = findChild(page, "netCheck")
        mouseClick(check)
        compare(fake.calls, ["refreshNetwork", "checkOnline"])
        fake.checking = false
        fake.reachability = { target: "127.0.0.1", count: 3, online: false }
        compare(check.detail, qsTranslate("NetworkPage", "%1 does not answer (check %2)").arg("127.0.0.1").arg(3))
    }

    // Each action asks once; Cancel sends nothing.
    function test_confirmed_data() {
        return [{ tag: "reset, confirmed", button: "sysReset", answer: "confirmAction", calls: ["factoryReset"], action: "Factory reset" },
                { tag: "power, confirmed", button: "sysPowerOff", answer: "confirmAction", calls: ["powerOff"], action: "Switch off" },
                { tag: "power, cancelled", button: "sysPowerOff", answer: "confirmCancel", calls: [], action: "Switch off" }]
    }
    function test_confirmed(data) {
        var page = open(systemPage)
        mouseClick(findChild(page, data.button))
        compare(fake.calls, [], "nothing before the answer")
        verify(page.confirm.visible)
        compare(page.confirm.actionText, qsTranslate("SystemPage", data.action))
        mouseClick(findChild(page.confirm, data.answer))
        compare(fake.calls, data.calls)
        verify(!page.confirm.visible)
    }

    function test_aboutShowsTheDevice_data() {
        var asking = qsTranslate("AboutPage", "asking the device…")
        // What the device answered shows end to end; here what stands in for an answer.
        return [{ tag: "no ID from the device", serial: "No Device ID", software: "1.8",
                  shownSerial: qsTranslate("AboutPage", "no device ID"), shownSoftware: "1.8" },
                { tag: "not answered yet", serial: "", software: "", shownSerial: asking, shownSoftware: asking }]
    }
    function test_aboutShowsTheDevice(data) {
        system.serialNumber = data.serial
        system.softwareVersion = data.software
        var page = open(aboutPage, system)
        compare(system.calls, ["refresh"], "asks the device once when it opens")
        compare(findChild(page, "about_serial").value, data.shownSerial)
        compare(findChild(page, "about_software").value, data.shownSoftware)
        compare(findChild(page, "about_system").value, "2.3")
        compare(findChild(page, "about_address").value, "10.1.2.3")
        var program = findChild(page, "about_program").value
        verify(program.indexOf("9.9.9") >= 0 && program.indexOf("Jan 2 2026 10:11:12") >= 0, program)
    }
}
}
