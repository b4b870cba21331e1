import QtQuick 2.15

// Stands in for BoardStore: same properties, calls recorded in `calls`.
QtObject {
    property var calls: []
    function record(what) { var c = calls.slice(); c.push(what); calls = c }

    property bool dhcp: false
    property string address: ""
    property string netmask: ""
    property string gateway: ""
    property bool addressKnown: false
    property bool applying: false
    property string applyOutcome: ""
    property bool checking: false
    property var reachability: null
    function refreshNetwork() { record("refreshNetwork") }
    function applyNetwork(useDhcp, ip, mask, gw) { record("applyNetwork " + [useDhcp, ip, mask, gw].join(" ")); applying = true; return true }
    function checkOnline() { record("checkOnline"); checking = true }

    property int brightnessMin: 10
    property int brightnessMax: 255
    property int brightness: 200
    property int rotation: 0
    property int rotationAtStart: 0
    function setBrightness(v) { record("setBrightness " + v); brightness = v }
    function setRotation(v) { record("setRotation " + v); rotation = v }

    property int fans: 50
    readonly property bool fanAuto: fans < 0
    property int temperature: -1
    property int fanRate: 50
    property int autoLowTemp: 45
    property int autoHighTemp: 75
    property int autoLowRate: 30
    function setFanAuto(on) { record("setFanAuto " + on); fans = on ? -1 : 50 }
    function setFanRate(p) { record("setFanRate " + p); fans = p }
    function watchTemperature(on) { record("watchTemperature " + on) }

    property var zones: [{ offset: 0, city: "London" }, { offset: 480, city: "Beijing" }, { offset: -210, city: "St. John's" }]
    property int timeZone: 0
    property int clockChanges: 0
    function zoneLabel(i) { return "zone " + i }
    function setDateFromWheels(y, mo, d, h, mi, s) { record("setDateFromWheels " + [y, mo, d, h, mi, s].join(" ")) }
    function setTimeZone(i) { record("setTimeZone " + i); timeZone = i }

    property var factory: ({ "fans": 50, "screenBrightness": 200, "lcdRotation": 0, "timeZone": 0 })
    property int resetStatus: -1
    function factoryReset() { record("factoryReset") }
    function powerOff() { record("powerOff") }
}
