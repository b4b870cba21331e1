import QtQuick 2.15
import QtTest 1.2
import "qrc:/Public"

// The board store against fake native objects: what it sends, what it
// saves, and how the device's answers change its state.
TestCase {
    name: "BoardStore"

    QtObject {
        id: fakeManage
        property var sent: []
        function note(what) { var s = sent.slice(); s.push(what); sent = s }
        property QtObject uiproc: QtObject {
            signal sigCPUTemperature(int nTemp)
            signal setTimeByTimeZoneSuccess()
            function connectFans(rate, init) { fakeManage.note("fans " + rate + (init === undefined ? "" : " " + init)) }
            function connectBrightness(v) { fakeManage.note("brightness " + v) }
            function connectSetDate(y, mo, d, h, mi, s) { fakeManage.note("date " + [y, mo, d, h, mi, s].join(" ")) }
            function connectSetDateByTimeZone(a, b, c, d) { fakeManage.note("zone " + [a, b, c, d].join(" ")) }
            function connectResetFactory() { fakeManage.note("reset") }
            function connectPowerOff() { fakeManage.note("off") }
            function getCPUTemperature() { fakeManage.note("temperature?") }
            function writeInitConfig(obj) { fakeManage.note("save " + JSON.stringify(obj)) }
            property bool upgraded: false
            property var bridgeAnswers: []
            function qtVersion() { return upgraded }
            function connectHdmiUpdate() { fakeManage.note("bridge update") }
            function connectHdmiCheck() { var a = bridgeAnswers.slice(); var r = a.shift(); bridgeAnswers = a; return r }
            function connectReSubCS() { fakeManage.note("watch") }
        }
        property QtObject uiproNetwork: QtObject {
            signal showIpAddress(string ipStr, string maskStr, string gwStr)
            signal sigGetDHCPSwitchStatus(bool isOpen)
            signal setIpFinished(int index, string ipStr)
            function getIpAddress(i) { fakeManage.note("ip? " + i) }
            function setIpAddress(i, ip, mask, gw, dhcp) { fakeManage.note("setIp " + [i, ip, mask, gw, dhcp].join(" ")) }
        }
        property QtObject uiproVideo: QtObject { signal pushResetStatus(int status) }
    }

    // Made without `manage`, so it does not start by itself; given it below.
    BoardStore { id: store }

    function initTestCase() { store.manage = fakeManage }
    function init() {
        fakeManage.sent = []
        store.applying = false
        store.applyOutcome = ""
        store.fans = 50
        store.fanRate = 50
        store.timeZone = 0
        store.temperature = -1
    }

    function test_startUp_data() {
        return [{ tag: "fixed fan, no upgrade", settings: { fans: 40 }, upgraded: false, bridge: [], first: ["fans 40 true", "temperature?"], state: -1 },
                { tag: "after an upgrade the bridge firmware follows", settings: { fans: 40 }, upgraded: true, bridge: [0, 0, 2],
                  first: ["fans 40 true", "bridge update", "temperature?"], state: 2 }]
    }
    function test_startUp(data) {
        fakeManage.uiproc.upgraded = data.upgraded
        fakeManage.uiproc.bridgeAnswers = data.bridge
        store.start(data.settings)
        compare(fakeManage.sent.slice(0, data.first.length), data.first)
        tryVerify(function () { return fakeManage.sent.indexOf("watch") >= 0 }, 1000, "the HDMI monitor watch runs")
        if (data.upgraded)
            tryCompare(store, "bridgeUpgrade", data.state, 5000)
        else
            compare(store.bridgeUpgrade, -1)
        store.hdmiWatch.stop()
        store.temperaturePoll.stop()
    }

    function test_applyNetwork_data() {
        return [{ tag: "fixed", args: [false, "192.168.3.9", "255.255.255.0", "192.168.3.1"], sent: ["setIp 0 192.168.3.9 255.255.255.0 192.168.3.1 false"] },
                { tag: "malformed", args: [false, "192.168.3.9 ", "255.255.255.0", "192.168.3.1"], sent: [] },
                { tag: "dhcp keeps only sound values", args: [true, "x", "255.255.255.0", "$(reboot)"], sent: ["setIp 0  255.255.255.0  true"] }]
    }
    function test_applyNetwork(data) {
        compare(store.applyNetwork.apply(store, data.args), data.sent.length > 0)
        compare(fakeManage.sent, data.sent)
        compare(store.applying, data.sent.length > 0)
    }

    function test_applyOutcome_data() {
        return [{ tag: "applied", answers: [0], outcome: "applied" },
                { tag: "name servers not written", answers: [-2, 0], outcome: "applied-no-dns" },
                { tag: "refused", answers: [-1], outcome: "refused" }]
    }
    function test_applyOutcome(data) {
        fakeManage.uiproNetwork.setIpFinished(0, "")
        compare(store.applyOutcome, "", "the start-up apply is not ours")
        store.applyNetwork(false, "10.0.0.2", "255.0.0.0", "0.0.0.0")
        verify(!store.applyNetwork(false, "10.0.0.3", "255.0.0.0", "0.0.0.0"), "one apply at a time")
        for (var i = 0; i < data.answers.length; ++i)
            fakeManage.uiproNetwork.setIpFinished(data.answers[i], "10.0.0.2")
        compare(store.applying, false)
        compare(store.applyOutcome, data.outcome)
        compare(fakeManage.sent, ["setIp 0 10.0.0.2 255.0.0.0 0.0.0.0 false", "ip? 0"])
        fakeManage.uiproNetwork.showIpAddress("10.0.0.2", "255.0.0.0", "0.0.0.0")
        fakeManage.uiproNetwork.sigGetDHCPSwitchStatus(true)
        compare([store.address, store.netmask, store.gateway, store.addressKnown, store.dhcp], ["10.0.0.2", "255.0.0.0", "0.0.0.0", true, true])
    }

    function test_autoCurve_data() {
        return [{ tag: "cool", t: 30, rate: 30 }, { tag: "at 60", t: 60, rate: 65 }, { tag: "hot", t: 95, rate: 100 }]
    }
    function test_autoCurve(data) {
        store.setFanAuto(true)
        compare(fakeManage.sent, ["fans 100 true", "save {\"fans\":-1}"], "full speed until a reading")
        fakeManage.sent = []
        fakeManage.uiproc.sigCPUTemperature(data.t)
        fakeManage.uiproc.sigCPUTemperature(data.t)
        compare(store.temperature, data.t)
        compare(store.fanRate, data.rate)
        compare(fakeManage.sent, data.rate === 100 ? [] : ["fans " + data.rate], "sent once, only when it changes")
        store.setFanAuto(false)
        compare(fakeManage.sent[fakeManage.sent.length - 1], "save {\"fans\":50}")
    }

    function test_fixedRateIgnoresTemperature() {
        store.setFanRate(80)
        compare(fakeManage.sent, ["fans 80"])
        fakeManage.uiproc.sigCPUTemperature(90)
        compare(fakeManage.sent, ["fans 80"])
        tryCompare(fakeManage, "sent", ["fans 80", "save {\"fans\":80}"])
    }

    function test_brightnessThrottled() {
        store.setBrightness(100)
        store.setBrightness(120)
        store.setBrightness(500)
        compare(fakeManage.sent, [])
        tryCompare(fakeManage, "sent", ["brightness 255", "save {\"screenBrightness\":255}"])
    }

    function test_timeZone_data() {
        // 0 London +0:00, 24 St. John's -3:30, 9 Kathmandu +5:45
        return [{ tag: "west with minutes", from: 0, to: 24, sent: "zone 0 0 -3 -30" },
                { tag: "west to east", from: 24, to: 9, sent: "zone 3 30 5 45" }]
    }
    function test_timeZone(data) {
        store.setDateFromWheels(26, 10, 21, 8, 5, 0)   // wheels count from zero
        compare(fakeManage.sent, ["date 2026 11 22 8 5 0"])
        fakeManage.sent = []
        store.timeZone = data.from
        store.setTimeZone(data.to)
        store.setTimeZone(data.to)
        compare(fakeManage.sent, [data.sent, "save {\"timeZone\":" + data.to + "}"])
        fakeManage.uiproc.setTimeByTimeZoneSuccess()
        compare(store.timeZone, data.to)
    }

    function test_factoryReset() {
        store.timeZone = 13
        store.factoryReset()
        compare(fakeManage.sent, ["reset", "setIp 0 192.168.0.100 255.255.255.0 192.168.0.1 false", "zone -8 0 0 0",
                                  "save {\"timeZone\":0}", "brightness 200", "fans 50 true",
                                  "save " + JSON.stringify(store.factory)])
        fakeManage.uiproVideo.pushResetStatus(1)
        compare(store.resetStatus, 1)
    }
}
