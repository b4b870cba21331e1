import QtQuick 2.15
import "Address.js" as Address

// NDI on the network: sending the programme (encoding), receiving a source
// (decoding), the names the device announces, how it connects, and the
// sources it found. Every value shown is the device's last answer; a set
// is followed by a read so the page shows what the device kept.
QtObject {
    id: store
    property var manage

    property int encoding: -1          // -1 unknown, 0 off, otherwise on
    property int decoding: -1
    // Names: null until the device answers, "" when it has none.
    property var groupName: null
    property var channelName: null
    property var deviceName: null
    // { type, ttl, address, netmask } or null
    property var connection: null
    property int dataType: -1
    property int codeValue: -1
    property var baseInfo: null         // { format, fps, bitrate, sampleRate } or null
    property var sources: []            // [{ name, addr }]
    property bool sourcesKnown: false
    property bool searching: false
    property string chosenSource: ""    // the source last asked for

    // Connection types as the device numbers them.
    readonly property int connectTcp: 0
    readonly property int connectUdp: 1
    readonly property int connectMultiTcp: 2
    readonly property int connectMulticast: 3
    readonly property int maxName: 63
    readonly property int maxSources: 64
    readonly property int maxSourceText: 128

    // The device's texts for "no name".
    readonly property var unsetNames: ["NO Group Name", "NO Channel Name"]
    function deviceText(text) { return unsetNames.indexOf(text) >= 0 ? "" : text }

    function refresh() {
        var u = manage.uiproc
        u.connectRNDISwitch()
        u.connectRNDIGroupName()
        u.connectRNDIChannelName()
        u.connectRNDIDeviceName()
        u.connectRNDIConnection()
        u.connectRNDIDateType()
        u.connectRNDIBaseInfo()
        searchSources()
    }

    function setEncoding(on) { manage.uiproc.connectSNDISwitch(on ? 1 : 0) }
    function setDecoding(on) { manage.uiproc.connectNDIDecodingSwitch(on ? 1 : 0) }

    // "" when the device can take the name, otherwise a key the page words.
    // Names travel one byte per character: printable ASCII only.
    function nameProblem(text) {
        if (text.length === 0) return "empty"
        if (text.length > maxName) return "long"
        if (!/^[\x20-\x7e]+$/.test(text)) return "characters"
        return ""
    }
    // which: "group", "channel" or "device". False (nothing sent) when refused.
    function setName(which, text) {
        text = String(text).trim()
        if (nameProblem(text) !== "")
            return false
        var u = manage.uiproc
        if (which === "group") { u.connectSNDIGroupName(text); readLater("connectRNDIGroupName") }
        else if (which === "channel") { u.connectSNDIChannelName(text); readLater("connectRNDIChannelName") }
        else if (which === "device") { u.connectSNDIDeviceName(text); readLater("connectRNDIDeviceName") }
        else return false
        return true
    }

    // Each command leaves on its own thread, so a read sent right after a
    // set may overtake it: the read-back waits a moment.
    property var pendingReads: []
    function readLater(slot) {
        if (pendingReads.indexOf(slot) < 0)
            pendingReads = pendingReads.concat([slot])
        readBack.restart()
    }
    property Timer readBack: Timer {
        interval: 300
        onTriggered: {
            var reads = store.pendingReads
            store.pendingReads = []
            for (var i = 0; i < reads.length; ++i)
                store.manage.uiproc[reads[i]]()
        }
    }

    // Multicast needs a group address; the other types keep the address
    // for later but it must still be one the device can store.
    function connectionProblem(type, ttl, address, netmask) {
        if (type < connectTcp || type > connectMulticast) return "type"
        if (!(ttl >= 1 && ttl <= 255) || Math.floor(ttl) !== ttl) return "ttl"
        var a = Address.parse(address)
        if (a === null) return "address"
        if (type === connectMulticast && (a >>> 28) !== 0xE) return "multicast"
        if (!Address.isNetmask(netmask)) return "netmask"
        return ""
    }
    function setConnection(type, ttl, address, netmask) {
        if (connectionProblem(type, ttl, address, netmask) !== "")
            return false
        manage.uiproc.connectSNDIConnection(type, ttl, address, netmask)
        readLater("connectRNDIConnection")
        return true
    }
    function setDataType(type, code) { manage.uiproc.connectSNDIDateType(type, code) }

    function searchSources() {
        searching = true
        searchTimeout.restart()
        manage.uiproc.connectGetNDIDecodingSignal()
    }
    function chooseSource(name) {
        if (typeof name !== "string" || name === "")
            return false
        chosenSource = name
        manage.uiproc.connectSetNDIDecodingSignal(1, name)
        return true
    }

    property Timer searchTimeout: Timer { interval: 5000; onTriggered: store.searching = false }
    property bool listCutLogged: false

    // Source lists come from the network: bounded in count and length, and
    // only ever shown as plain text.
    function takeSources(list) {
        var out = []
        var n = list ? list.length : 0
        for (var i = 0; i < n && out.length < maxSources; ++i) {
            var s = list[i]
            if (!s || typeof s.name !== "string" || s.name === "")
                continue
            out.push({ name: s.name.slice(0, maxSourceText), addr: typeof s.addr === "string" ? s.addr.slice(0, maxSourceText) : "" })
        }
        if (n > maxSources && !listCutLogged) {
            listCutLogged = true
            manage.uiproc.writeLog("NDI source list of " + n + " entries, " + maxSources + " shown")
        }
        return out
    }

    property Connections reports: Connections {
        target: store.manage ? store.manage.uiproVideo : null
        function onPushNdiStatus(status) { store.encoding = status }
        function onPushNDIStatusInitiative(status) { store.encoding = status }
        function onPushNDIDecodingStatus(status) { store.decoding = status }
        function onPushNDIDecodingStatusInitiative(status) { store.decoding = status }
        function onPushNdiGroupName(name) { store.groupName = store.deviceText(name) }
        function onPushNdiChannelName(name) { store.channelName = store.deviceText(name) }
        function onPushNdiDeviceName(name) { store.deviceName = store.deviceText(name) }
        function onPushNdiConnectType(o) {
            store.connection = { type: o.type, ttl: o.ttlValue,
                                 address: [o.addr1, o.addr2, o.addr3, o.addr4].join("."),
                                 netmask: [o.netmask1, o.netmask2, o.netmask3, o.netmask4].join(".") }
        }
        function onPushNdiDataType(dataType, codeValue) { store.dataType = dataType; store.codeValue = codeValue }
        function onPushNdiBaseInfo(format, fps, bitrate, sampleRate) {
            store.baseInfo = { format: format, fps: fps, bitrate: bitrate, sampleRate: sampleRate }
        }
        function onPushNDISignalData(dataLength, list) {
            store.sources = store.takeSources(list)
            store.sourcesKnown = true
            store.searching = false
            store.searchTimeout.stop()
        }
    }
}
