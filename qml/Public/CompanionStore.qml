import QtQuick 2.15

// Bluetooth: the radio, searches, the devices found and their connections,
// and the companion phone app (a stream destination it hands over, the
// live session on the companion service, "StartPush"/"StopPush" back to the
// app). Only this store calls the Bluetooth commands, the serial link
// (manage.uiproBluetooth) and the companion-service requests; the stream
// itself is read from the live and stream stores, never changed here
// except through the stream store's own stop.
QtObject {
    id: store
    property var manage
    property var live                      // LiveStore: the channel reports
    property var stream                    // StreamStore: the address block that went live, its stop
    readonly property var link: manage && manage.uiproBluetooth ? manage.uiproBluetooth : null
    readonly property var rtmp: manage && manage.uiproRtmp ? manage.uiproRtmp : null
    readonly property string host: rtmp && rtmp.companionHost ? String(rtmp.companionHost) : ""
    readonly property string domain: host.replace(/^https:\/\//, "")

    // ---- Radio, searches, devices.
    property bool radioOn: false           // the device does not report it: what was last asked
    property string searching: ""          // "", "devices" or "phones"
    property var devices: []               // {mac, name, connected}
    property var phones: []                // companion phones, the same
    property string pendingMac: ""         // the connection asked for and not yet answered
    property bool pendingConnect: false
    property var lastResult: null          // {mac, connect, ok}: the device's last answer

    function setRadio(on) {
        if (!manage)
            return
        radioOn = on
        manage.uiproc.connectBluetoothOpen(on)
        if (!on) {
            searching = ""
            devices = []
            phones = []
        }
    }
    function search(forPhones) {
        if (!manage || !radioOn || searching !== "")
            return
        searching = forPhones ? "phones" : "devices"
        if (forPhones)
            phones = []
        else
            devices = []
        manage.uiproc.connectBluetoothSearch(true, forPhones)
        searchGiveUp.restart()
    }
    // A search the device never ends is not shown as running for ever.
    property Timer searchGiveUp: Timer { interval: 30000; onTriggered: store.searching = "" }

    function setConnected(mac, isPhone, connect) {
        if (!manage || pendingMac !== "")
            return
        lastResult = null
        // The address goes back exactly as the device gave it.
        if (connect)
            manage.uiproc.connectBluetoothDev(mac, isPhone)
        else
            manage.uiproc.disconnectBluetoothDev(mac, isPhone)
        if (!connect && !isPhone) {
            // This one has no answer of its own: the list read again shows it.
            lastResult = { mac: mac, connect: false, ok: true, sent: true }
            listAgain.restart()
            return
        }
        pendingMac = mac
        pendingConnect = connect
        answerWait.restart()
    }
    property Timer listAgain: Timer { interval: 1000; onTriggered: if (store.manage) store.manage.uiproc.connectBluetoothDevInfo(false) }
    property Timer answerWait: Timer {
        interval: 15000
        onTriggered: {
            store.lastResult = { mac: store.pendingMac, connect: store.pendingConnect, ok: false, silent: true }
            store.pendingMac = ""
        }
    }
    function upsert(list, connect, mac, name) {
        var entry = { mac: String(mac), name: String(name), connected: Number(connect) !== 0 }
        var copy = list.filter(function (d) { return d.mac !== entry.mac })
        copy.push(entry)
        return copy
    }
    function markConnected(list, mac, connected) {
        return list.map(function (d) { return d.mac === mac ? { mac: d.mac, name: d.name, connected: connected } : d })
    }

    // ---- The companion app.
    // The serial link is read while the companion mode is on: the link's
    // node exists only while a phone is bound, so that is while the app is
    // connected.
    property bool companionMode: false
    property var offer: null               // {url, token, room, vertical}: waiting for the operator
    // Handed over by the app, kept in memory only (never saved).
    property string companionUrl: ""
    property string token: ""
    property string room: ""
    property int orientation: 0            // 0 landscape, 1 portrait
    property string session: ""            // "", "starting", "live", "ending"
    property bool stopAsked: false         // the app asked to stop: the operator confirms
    property int heartbeatMs: 10000
    property int startPushMs: 6000

    function loadSettings(settings) {
        if (settings.isBlueToothZor !== undefined)
            companionMode = Number(settings.isBlueToothZor) !== 0
    }
    function start(settings) {
        loadSettings(settings || {})
        if (link)
            link.setReadFlag(companionMode)
    }
    function setCompanionMode(on) {
        if (!manage)
            return
        companionMode = on
        manage.uiproc.writeInitConfig({ "isBlueToothZor": on ? 1 : 0 })
        if (link)
            link.setReadFlag(on)
        if (!on)
            offer = null
    }

    function acceptOffer() {
        if (!offer || !link || !rtmp)
            return
        link.writeDataToDev("RecvSuccess")
        rtmp.setZorPlatformUrl(offer.url)
        companionUrl = offer.url
        token = offer.token
        room = offer.room
        orientation = offer.vertical
        offer = null
        if (stream && stream.refresh)
            stream.refresh()
    }
    function declineOffer() { offer = null }

    function post(path) { rtmp.httpRequestPostByUrl(host + path, token, room) }
    readonly property bool streaming: live ? live.streaming : false
    function liveToCompanion() {
        var address = stream && stream.liveAddress ? String(stream.liveAddress) : ""
        return domain !== "" && address.indexOf(domain) >= 0
    }
    onStreamingChanged: {
        // The app's stop request is moot once nothing is on air, whoever
        // stopped it: kept, it would ask again about a later stream.
        if (!streaming)
            stopAsked = false
        if (!rtmp || !link)
            return
        if (streaming && session === "" && token !== "" && room !== "" && liveToCompanion()) {
            session = "starting"
            post("/api/Live/beginLive")
        } else if (!streaming && (session === "starting" || session === "live")) {
            // The heartbeat ends with the request, not its answer: a success
            // is reported under the most recent request's URL, so a later
            // heartbeat would take the end call's success for its own.
            heartbeat.stop()
            startPush.stop()
            session = "ending"
            post("/api/Live/endLive")
        }
    }
    property Timer heartbeat: Timer {
        interval: store.heartbeatMs
        repeat: true
        onTriggered: store.post("/api/Live/headBeat")
    }
    property Timer startPush: Timer {
        interval: store.startPushMs
        onTriggered: if (store.link) store.link.writeDataToDev("StartPush")
    }

    function confirmStop() {
        stopAsked = false
        if (stream)
            stream.stop()
    }
    function dismissStop() { stopAsked = false }

    property Connections link_: Connections {
        target: store.link
        ignoreUnknownSignals: true
        function onPushReadRtmp(url, token, Data, vertical) {
            if (!store.companionMode)
                return
            store.offer = { url: String(url), token: String(token), room: String(Data), vertical: String(vertical) === "2" ? 1 : 0 }
        }
        function onPushAirSet(tmpSet) {
            if (!tmpSet && store.streaming)
                store.stopAsked = true
        }
    }
    property Connections rtmp_: Connections {
        target: store.rtmp
        ignoreUnknownSignals: true
        function onSigSendHttpResult(url, result) {
            if (!result)
                return
            if (url === store.host + "/api/Live/beginLive" && store.session === "starting") {
                store.session = "live"
                store.heartbeat.start()
                store.startPush.start()
            } else if (url === store.host + "/api/Live/endLive" && store.session === "ending") {
                store.session = ""
                store.link.writeDataToDev("StopPush")
            }
        }
    }
    property Connections device_: Connections {
        target: store.manage && store.manage.uiproVideo ? store.manage.uiproVideo : null
        ignoreUnknownSignals: true
        function onPushBluetoothFin() {
            if (store.searching === "devices") {
                store.searching = ""
                store.manage.uiproc.connectBluetoothDevInfo(false)
            }
        }
        function onPushBluetoothFinBroadCast() {
            if (store.searching === "phones") {
                store.searching = ""
                store.manage.uiproc.connectBluetoothDevInfo(true)
            }
        }
        function onPushBluetoothDevInfo(connect, mac, name) { store.devices = store.upsert(store.devices, connect, mac, name) }
        function onPushBluetoothDevInfoBroadCast(connect, mac, name) { store.phones = store.upsert(store.phones, connect, mac, name) }
        function onPushConnectResult(type, result) {
            if (store.pendingMac === "")
                return
            var mac = store.pendingMac
            store.answerWait.stop()
            store.lastResult = { mac: mac, connect: store.pendingConnect, ok: result === true }
            if (result === true) {
                store.devices = store.markConnected(store.devices, mac, store.pendingConnect)
                store.phones = store.markConnected(store.phones, mac, store.pendingConnect)
            }
            store.pendingMac = ""
        }
    }
}
