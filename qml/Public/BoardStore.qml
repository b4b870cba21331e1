import QtQuick 2.15
import "Address.js" as Address

// The board as the settings pages see it: eth0 address, reachability,
// backlight, screen orientation, fan and CPU temperature, clock and time
// zone, factory reset and power. Views read it; only this store calls the
// native objects. It reads its settings itself once the window has read the
// settings file, and sends the fan setting then.
QtObject {
    id: store
    property var manage

    // --- network -------------------------------------------------------
    property bool dhcp: false
    property string address: ""
    property string netmask: ""
    property string gateway: ""
    property bool addressKnown: false      // showIpAddress arrived since the last request
    property bool applying: false          // an apply is out; the next waits for setIpFinished
    // Outcome of the last apply: "" none yet, "applied", "applied-no-dns", "refused".
    property string applyOutcome: ""
    property bool nameServerWarning: false  // -2 seen during the running apply
    property bool checking: false
    property var reachability: null         // { target, count, online } of the last check

    function refreshNetwork() {
        addressKnown = false
        manage.uiproNetwork.getIpAddress(0)
    }
    // False (and nothing sent) while an apply is out or when a fixed
    // address is not dotted IPv4; the page says why before it gets here.
    function applyNetwork(useDhcp, ip, mask, gw) {
        if (applying)
            return false
        if (!useDhcp && Address.problem(ip, mask, gw) !== "")
            return false
        if (useDhcp) {
            // The controller takes empty values with DHCP, never malformed ones.
            ip = Address.isAddress(ip) ? ip : ""
            mask = Address.isAddress(mask) ? mask : ""
            gw = Address.isAddress(gw) ? gw : ""
        }
        applying = true
        nameServerWarning = false
        applyOutcome = ""
        manage.uiproNetwork.setIpAddress(0, ip, mask, gw, useDhcp)
        return true
    }
    function checkOnline() {
        if (checking)
            return
        checking = true
        manage.uiproc.checkNetWorkOnline()
    }

    // --- display -------------------------------------------------------
    readonly property int brightnessMin: 10     // never fully dark: the panel is the only way back
    readonly property int brightnessMax: 255
    property int brightness: 200
    property int rotation: 0                    // 0 landscape, 1 portrait; saved, used at the next start
    property int rotationAtStart: 0

    function setBrightness(value) {
        value = Math.round(Math.max(brightnessMin, Math.min(brightnessMax, value)))
        if (value === brightness)
            return
        brightness = value
        backlightLater.restart()
    }
    function setRotation(value) {
        value = value === 0 ? 0 : 1
        if (value === rotation)
            return
        rotation = value
        manage.uiproc.writeInitConfig({ "lcdRotation": value })
    }
    // Writing the backlight runs a command on this thread: a dragged slider
    // sends its latest value at most every 120 ms, and saves once it rests.
    property Timer backlightLater: Timer {
        interval: 120
        onTriggered: { store.manage.uiproc.connectBrightness(store.brightness); store.saveLater("screenBrightness", store.brightness) }
    }

    // --- fan and temperature -------------------------------------------
    // `fans`: -1 automatic, 0..100 a fixed rate in percent.
    property int fans: 50
    readonly property bool fanAuto: fans < 0
    property int lastFixedRate: 50
    property int temperature: -1                // °C, -1 until the first reading
    property int fanRate: 50                    // the rate last sent to the fan
    property bool watchingTemperature: false    // the fan page is shown: read every 5 s
    readonly property int autoLowTemp: 45
    readonly property int autoHighTemp: 75
    readonly property int autoLowRate: 30

    // 30 % up to 45 °C, then linear to 100 % at 75 °C and above.
    function autoRate(t) {
        if (t < 0) return 100     // unknown: be safe
        if (t <= autoLowTemp) return autoLowRate
        if (t >= autoHighTemp) return 100
        return Math.round(autoLowRate + (100 - autoLowRate) * (t - autoLowTemp) / (autoHighTemp - autoLowTemp))
    }
    function setFanAuto(on) {
        if (on === fanAuto)
            return
        fans = on ? -1 : lastFixedRate
        fanRate = on ? autoRate(temperature) : fans
        manage.uiproc.connectFans(fanRate, true)
        manage.uiproc.writeInitConfig({ "fans": fans })
    }
    function setFanRate(percent) {
        percent = Math.round(Math.max(0, Math.min(100, percent)))
        if (fanAuto || percent === fans)
            return
        fans = percent
        lastFixedRate = percent
        fanRate = percent
        manage.uiproc.connectFans(percent)
        saveLater("fans", percent)
    }
    function watchTemperature(on) {
        watchingTemperature = on
        if (on)
            manage.uiproc.getCPUTemperature()
    }
    property Timer temperaturePoll: Timer {
        interval: store.watchingTemperature ? 5000 : 30000
        repeat: true
        onTriggered: store.manage.uiproc.getCPUTemperature()
    }

    // --- date and time -------------------------------------------------
    // Offsets in minutes east of UTC, one city each. The stored `timeZone`
    // is the index here, so entries are only ever added at the end.
    readonly property var zones: [
        { offset: 0, city: QT_TR_NOOP("London") }, { offset: 60, city: QT_TR_NOOP("Berlin") },
        { offset: 120, city: QT_TR_NOOP("Cairo") }, { offset: 180, city: QT_TR_NOOP("Moscow") },
        { offset: 210, city: QT_TR_NOOP("Tehran") }, { offset: 240, city: QT_TR_NOOP("Dubai") },
        { offset: 270, city: QT_TR_NOOP("Kabul") }, { offset: 300, city: QT_TR_NOOP("Karachi") },
        { offset: 330, city: QT_TR_NOOP("New Delhi") }, { offset: 345, city: QT_TR_NOOP("Kathmandu") },
        { offset: 360, city: QT_TR_NOOP("Dhaka") }, { offset: 390, city: QT_TR_NOOP("Yangon") },
        { offset: 420, city: QT_TR_NOOP("Bangkok") }, { offset: 480, city: QT_TR_NOOP("Beijing") },
        { offset: 540, city: QT_TR_NOOP("Tokyo") }, { offset: 570, city: QT_TR_NOOP("Adelaide") },
        { offset: 600, city: QT_TR_NOOP("Sydney") }, { offset: 660, city: QT_TR_NOOP("Nouméa") },
        { offset: 720, city: QT_TR_NOOP("Auckland") }, { offset: 780, city: QT_TR_NOOP("Nuku'alofa") },
        { offset: 840, city: QT_TR_NOOP("Kiritimati") }, { offset: -60, city: QT_TR_NOOP("Azores") },
        { offset: -120, city: QT_TR_NOOP("South Georgia") }, { offset: -180, city: QT_TR_NOOP("São Paulo") },
        { offset: -210, city: QT_TR_NOOP("St. John's") }, { offset: -240, city: QT_TR_NOOP("Halifax") },
        { offset: -300, city: QT_TR_NOOP("New York") }, { offset: -360, city: QT_TR_NOOP("Chicago") },
        { offset: -420, city: QT_TR_NOOP("Denver") }, { offset: -480, city: QT_TR_NOOP("Los Angeles") },
        { offset: -540, city: QT_TR_NOOP("Anchorage") }, { offset: -600, city: QT_TR_NOOP("Honolulu") },
        { offset: -660, city: QT_TR_NOOP("Pago Pago") }, { offset: -720, city: QT_TR_NOOP("Baker Island") }
    ]
    property int timeZone: 0
    property int clockChanges: 0    // counts setTimeByTimeZoneSuccess, so pages re-read the clock

    function zoneLabel(index) {
        var z = zones[index]
        if (!z) return ""
        var a = Math.abs(z.offset)
        var hm = Math.floor(a / 60) + ":" + (a % 60 < 10 ? "0" : "") + (a % 60)
        return "UTC" + (z.offset < 0 ? "−" : "+") + hm + "  " + qsTr(z.city)
    }
    // Wheels count from zero: year 0 is 2000, month 0 January, day 0 the 1st.
    function setDateFromWheels(yearIndex, monthIndex, dayIndex, hours, minutes, seconds) {
        manage.uiproc.connectSetDate(yearIndex + 2000, monthIndex + 1, dayIndex + 1, hours, minutes, seconds)
    }
    function setTimeZone(index) {
        if (index < 0 || index >= zones.length || index === timeZone)
            return
        var oldOffset = zones[timeZone].offset, newOffset = zones[index].offset
        // Hours and minutes carry the offset's sign: -3:30 is (-3, -30).
        manage.uiproc.connectSetDateByTimeZone(-Math.trunc(oldOffset / 60), -(oldOffset % 60),
                                               Math.trunc(newOffset / 60), newOffset % 60)
        timeZone = index
        manage.uiproc.writeInitConfig({ "timeZone": index })
    }

    // --- factory reset and power ----------------------------------------
    // The board's keys as the factory settings file has them.
    readonly property var factory: ({ "fans": 50, "screenBrightness": 200, "lcdRotation": 0, "timeZone": 0 })
    property int resetStatus: -1    // pushResetStatus, -1 until the device answers

    // The device's own reset, the factory network values, and this store's
    // keys back to the factory file's values (the clock shifted back to its zone).
    function factoryReset() {
        resetStatus = -1
        manage.uiproc.connectResetFactory()
        applying = false
        applyNetwork(false, "192.168.0.100", "255.255.255.0", "192.168.0.1")
        setTimeZone(factory.timeZone)
        brightness = factory.screenBrightness
        manage.uiproc.connectBrightness(brightness)
        rotation = factory.lcdRotation
        fans = factory.fans
        lastFixedRate = factory.fans
        fanRate = factory.fans
        manage.uiproc.connectFans(fanRate, true)
        manage.uiproc.writeInitConfig(factory)
    }
    function powerOff() { manage.uiproc.connectPowerOff() }

    // --- settings --------------------------------------------------------
    property var pendingSave: ({})
    function saveLater(key, value) {
        var s = pendingSave
        s[key] = value
        pendingSave = s
        saveTimer.restart()
    }
    property Timer saveTimer: Timer {
        interval: 400
        onTriggered: { var s = store.pendingSave; store.pendingSave = ({}); store.manage.uiproc.writeInitConfig(s) }
    }

    function loadSettings(settings) {
        if (typeof settings.screenBrightness === "number")
            brightness = Math.max(brightnessMin, Math.min(brightnessMax, settings.screenBrightness))
        if (typeof settings.lcdRotation === "number")
            rotation = rotationAtStart = settings.lcdRotation === 0 ? 0 : 1
        if (typeof settings.fans === "number")
            fans = settings.fans < 0 ? -1 : Math.min(100, settings.fans)
        if (fans >= 0)
            lastFixedRate = fans
        if (typeof settings.timeZone === "number" && settings.timeZone >= 0 && settings.timeZone < zones.length)
            timeZone = settings.timeZone
    }
    // Start-up, called by the window after the settings are read and before
    // it declares start-up finished: the fan gets its mode, a software
    // upgrade that has just restarted the program finishes with the HDMI
    // bridge firmware, and the HDMI monitor watch begins.
    function start(settings) {
        loadSettings(settings)
        fanRate = fanAuto ? autoRate(temperature) : fans
        manage.uiproc.connectFans(fanRate, true)
        if (manage.uiproc.qtVersion()) {
            bridgeUpgrade = 0
            manage.uiproc.connectHdmiUpdate()
            bridgePoll.start()
        }
        manage.uiproc.getCPUTemperature()
        temperaturePoll.start()
        hdmiWatch.start()
    }

    // HDMI bridge firmware after an upgrade: -1 none, 0 running, 1 done, 2 failed.
    property int bridgeUpgrade: -1
    property Timer bridgePoll: Timer {
        interval: 1000; repeat: true
        onTriggered: {
            var result = store.manage.uiproc.connectHdmiCheck()
            if (result === 1 || result === 2) {
                stop()
                store.bridgeUpgrade = result
            }
        }
    }
    // Restarts the sub-display when an HDMI monitor comes or goes.
    property Timer hdmiWatch: Timer {
        interval: 200; repeat: true
        onTriggered: store.manage.uiproc.connectReSubCS()
    }

    property Connections networkReports: Connections {
        target: store.manage ? store.manage.uiproNetwork : null
        function onShowIpAddress(ipStr, maskStr, gwStr) {
            store.address = ipStr
            store.netmask = maskStr
            store.gateway = gwStr
            store.addressKnown = true
        }
        function onSigGetDHCPSwitchStatus(isOpen) { store.dhcp = isOpen }
        function onSetIpFinished(index, ipStr) {
            // The controller also answers the apply it makes at start-up; only ours is reported.
            if (!store.applying)
                return
            if (index === -2) {       // name servers not written; 0 follows
                store.nameServerWarning = true
                return
            }
            store.applying = false
            store.applyOutcome = index === 0 ? (store.nameServerWarning ? "applied-no-dns" : "applied") : "refused"
            store.refreshNetwork()
        }
    }
    property Connections boardReports: Connections {
        target: store.manage ? store.manage.uiproc : null
        function onSigNetConnectResult(ipStr, onlineCnt, isOnline) {
            store.checking = false
            store.reachability = { target: ipStr, count: onlineCnt, online: isOnline }
        }
        function onSigCPUTemperature(nTemp) {
            store.temperature = nTemp
            if (!store.fanAuto)
                return
            var rate = store.autoRate(nTemp)
            if (rate !== store.fanRate) {
                store.fanRate = rate
                store.manage.uiproc.connectFans(rate)
            }
        }
        function onSetTimeByTimeZoneSuccess() { store.clockChanges++ }
    }
    property Connections deviceReports: Connections {
        target: store.manage ? store.manage.uiproVideo : null
        function onPushResetStatus(status) { store.resetStatus = status }
    }
}
