import QtQuick 2.15

// Streaming: the event in use with its platform URLs and stream parameters,
// URLs imported from the USB disk and the companion app, the list of
// events, and going live and stopping. Only this store calls the event
// store (manage.uiproRtmp) and the stream commands of the device.
QtObject {
    id: store
    property var manage
    property var live                      // LiveStore: the channel reports
    readonly property var rtmp: manage && manage.uiproRtmp ? manage.uiproRtmp : null

    // The event that going live uses; "Current" unless one is chosen.
    property string eventName: "Current"
    property var platforms: []             // the event's URLs for the logo row: {name, url, on}
    property var editList: []              // the event's URLs for the editable list: {name, url, on}
    property var imported: []              // offered by the USB disk and the companion app: {name, url}
    property var events: []                // {name, start (ms, 0 = none)}, latest first
    property string refusal: ""            // why the last request was refused, "" when it was not
    property string notice: ""             // what the last event request did
    property int leftOut: 0                // offered addresses the device could not take, this import
    property string firstLeftOut: ""

    // Stream parameters as named choices. The codes are the device's: they
    // are what connectStreamParams takes and what the `rtmpMode`,
    // `rtmpResolution` and `rtmpBit` settings keys and the event's
    // StreamModel/Resolution/Bitrate remember. Model code 0 lets the device
    // choose (isRtmpDefault 1); resolution and bitrate are indexes, the
    // bitrate going out in kbit/s.
    readonly property var models: [
        { code: 0, label: qsTr("Device default"), device: 1 },
        { code: 1, label: qsTr("Custom"), device: 0 }
    ]
    readonly property var resolutions: [
        { code: 0, label: "1080p", device: 0 },
        { code: 1, label: "720p", device: 1 },
        { code: 2, label: "480p", device: 2 }
    ]
    readonly property var bitrates: [
        { code: 0, label: "2 Mbps", device: 2000 },
        { code: 1, label: "4 Mbps", device: 4000 },
        { code: 2, label: "6 Mbps", device: 6000 },
        { code: 3, label: "8 Mbps", device: 8000 }
    ]
    property int model: 0
    property int resolution: 0
    property int bitrate: 1
    readonly property int channelCount: 4
    readonly property int maxAddressChars: 1020   // the device's address block

    // Names that have a logo, in the order the platform groups are shown.
    readonly property var platformNames: ["tiktok", "huya", "bilibili", "douyu", "qie", "tengxun", "zoom", "youtube",
                                          "LinkedIn", "Twitter", "Twitch", "facebook", "Zor", "other"]

    // Channel state: "live", "starting", "unconfirmed", "stopping" or "off".
    // Going live is confirmed only by the device's channel reports.
    readonly property var streams: live ? live.streams : [0, 0, 0, 0]
    property int expected: 0               // channels asked to go live
    property string liveAddress: ""        // the address block that went live (`rtmpAddr`)
    property string phase: ""              // "", "starting", "unconfirmed", "stopping"
    readonly property bool streaming: streams.some(function (s) { return s !== 0 })
    function channelState(i) {
        if (streams[i])
            return phase === "stopping" ? "stopping" : "live"
        if ((phase === "starting" || phase === "unconfirmed") && i < expected)
            return phase
        return "off"
    }
    onStreamsChanged: {
        var liveCount = streams.filter(function (s) { return s !== 0 }).length
        if (phase === "stopping" ? liveCount === 0 : phase !== "" && liveCount >= expected)
            phase = ""
    }
    property Timer confirmWait: Timer {
        interval: 10000
        onTriggered: {
            if (store.phase === "starting")
                store.phase = "unconfirmed"
            else if (store.phase === "stopping")
                store.phase = ""
        }
    }
    // The device also answers a status question with its live channels.
    property Timer statusAsk: Timer {
        interval: 3000
        onTriggered: if (store.manage) store.manage.uiproc.connectStreamPlatformStatus()
    }

    function codeIn(list, code, fallback) {
        for (var i = 0; i < list.length; ++i)
            if (list[i].code === code)
                return code
        return fallback
    }
    function choice(list, code) {
        for (var i = 0; i < list.length; ++i)
            if (list[i].code === code)
                return list[i]
        return list[0]
    }
    function eventLabel(name) { return name === "Current" ? qsTr("Current") : name }

    function loadSettings(settings) {
        if (typeof settings.eventName === "string" && settings.eventName !== "")
            eventName = settings.eventName
        if (typeof settings.rtmpAddr === "string")
            liveAddress = settings.rtmpAddr
        if (settings.rtmpMode !== undefined) model = codeIn(models, Number(settings.rtmpMode), model)
        if (settings.rtmpResolution !== undefined) resolution = codeIn(resolutions, Number(settings.rtmpResolution), resolution)
        if (settings.rtmpBit !== undefined) bitrate = codeIn(bitrates, Number(settings.rtmpBit), bitrate)
    }

    // The event in use: its URLs for the logo row and its stored parameters.
    function refresh() {
        refusal = ""
        if (!rtmp)
            return
        platforms = []
        rtmp.getPaltformUrlsByName(eventName, true)
        rtmp.getPaltformParamsByEventName(eventName)
    }

    function chooseEvent(name) {
        if (!manage)
            return
        eventName = name
        manage.uiproc.writeInitConfig({ "eventName": name })
        refresh()
    }

    function setParameters(m, r, b) {
        model = codeIn(models, m, model)
        resolution = codeIn(resolutions, r, resolution)
        bitrate = codeIn(bitrates, b, bitrate)
        if (rtmp)
            rtmp.savePaltformParamsByEventName(eventName, String(model), String(resolution), String(bitrate))
        manage.uiproc.writeInitConfig({ "rtmpMode": model, "rtmpResolution": resolution, "rtmpBit": bitrate })
    }

    // ---- Platforms page: the event's URLs and the ones offered for it.
    function openPlatforms() {
        refusal = ""
        if (!rtmp)
            return
        editList = []
        imported = []
        rtmp.getPaltformUrlsByName(eventName, false)
        rtmp.getPaltformParamsByEventName(eventName)
        leftOut = 0
        firstLeftOut = ""
        rtmp.getAllUdiskPlatformUrl()
        rtmp.getZorPlatformUrl()
        // One line per import, however many were left out.
        if (leftOut > 0) {
            var line = "stream addresses: " + leftOut + " offered address(es) left out (spaces, commas, too long or outside Latin-1), first: "
                       + JSON.stringify(firstLeftOut.slice(0, 80))
            console.warn(line)
            manage.uiproc.writeLog(line)
        }
    }
    // What the platforms page lists: the event's URLs, then the offered
    // ones it does not have yet (off until switched on).
    readonly property var draft: {
        var list = editList.map(function (p) { return { name: p.name, url: p.url, on: p.on, stored: true } })
        var seen = {}
        list.forEach(function (p) { seen[p.url] = true })
        imported.forEach(function (p) {
            if (!seen[p.url]) {
                seen[p.url] = true
                list.push({ name: p.name, url: p.url, on: false, stored: false })
            }
        })
        return list
    }

    function hasUrl(url) { return draft.some(function (p) { return p.url === url }) }
    function setPlatformOn(url, on) {
        save(draft.map(function (p) { return { url: p.url, on: p.url === url ? on : p.on, keep: p.stored || (p.url === url && on) } }))
    }
    // A typed URL joins the event switched on. Refused: blank, too long for
    // the device, characters it cannot take, already listed.
    function addUrl(text) {
        var url = String(text).trim()
        var problem = addressProblem(url)
        if (problem === "" && hasUrl(url))
            problem = qsTr("This address is listed already.")
        refusal = problem
        if (problem !== "")
            return false
        var list = draft.map(function (p) { return { url: p.url, on: p.on, keep: p.stored } })
        list.push({ url: url, on: true, keep: true })
        save(list)
        return true
    }
    function removeUrl(url) {
        if (!rtmp)
            return
        if (editList.some(function (p) { return p.url === url })) {
            rtmp.removePlatformUrlByEventNameAndUrl(eventName, url)
            reloadEditList()
        }
        imported = imported.filter(function (p) { return p.url !== url })
    }
    function addressProblem(url) {
        if (url === "")
            return qsTr("Type a stream address first.")
        if (url.length > maxAddressChars)
            return qsTr("This address is too long for the device (at most %1 characters).").arg(maxAddressChars)
        if (/[^\x21-\x7e\xa0-\xff]/.test(url) || url.indexOf(",") >= 0)
            return qsTr("A stream address cannot hold spaces, commas or characters outside Latin-1.")
        return ""
    }

    // Saving URLs wipes the event's start time and parameters, so they are
    // read first and written again after the URLs.
    property var heldParams: null
    function save(entries) {
        if (!rtmp)
            return
        var info = rtmp.getOneEventInfoByName(eventName)
        heldParams = null
        rtmp.getPaltformParamsByEventName(eventName)
        var params = heldParams
        var kept = entries.filter(function (e) { return e.keep })
        rtmp.savePaltformUrlsByEventName(eventName, kept.map(function (e) { return e.url }),
                                         kept.map(function (e) { return e.on ? "true" : "false" }))
        if (info && info.startTime !== undefined && Number(info.startTime) !== 0)
            rtmp.createOneEvent(eventName, Number(info.startTime))
        if (params && params.some(function (v) { return v !== "" }))
            rtmp.savePaltformParamsByEventName(eventName, params[0], params[1], params[2])
        reloadEditList()
    }
    function reloadEditList() {
        editList = []
        rtmp.getPaltformUrlsByName(eventName, false)
        platforms = editList.slice()
    }

    // ---- Events.
    function loadEvents() {
        refusal = ""
        notice = ""
        if (!rtmp)
            return
        events = []
        rtmp.getAllEventInfo()
    }
    function createEvent(text, startMs) {
        var name = String(text).trim()
        notice = ""
        if (name === "")
            refusal = qsTr("Give the event a name.")
        else if (name.length > 64)
            refusal = qsTr("An event name has at most 64 characters.")
        else if (/[\/\\\x00-\x1f]/.test(name))
            refusal = qsTr("An event name cannot hold a slash or a backslash.")
        else if (!(startMs > Date.now()))
            refusal = qsTr("The start time has passed. Choose a later one.")
        else if (!rtmp)
            refusal = qsTr("Events cannot be kept now.")
        else if (Object.keys(rtmp.getOneEventInfoByName(name) || {}).length > 0)
            refusal = qsTr("An event named “%1” exists already. Choose another name.").arg(name)
        else
            refusal = ""
        if (refusal !== "")
            return false
        rtmp.createOneEvent(name, startMs)
        notice = qsTr("Event “%1” created.").arg(name)
        loadEvents()
        return true
    }
    function deleteEvent(name) {
        if (!rtmp)
            return
        rtmp.delOneEventByName(name)
        if (name === eventName)
            chooseEvent("Current")
        loadEvents()
    }

    // ---- Going live and stopping.
    // The address block going live would send, or "" with `refusal` saying
    // why not. Asked before the confirmation too, so a refusal needs no "yes".
    function liveAddressOrRefusal() {
        if (!rtmp || !manage) {
            refusal = qsTr("Streaming is not available now.")
            return ""
        }
        if (rtmp.getAvailablePaltformNumByName(eventName) === 0) {
            refusal = qsTr("No paltform is available,please select one paltform first")
            return ""
        }
        // One address block carries every enabled URL, comma-separated; the
        // device puts them on its channels CH1.. in that order.
        var address = rtmp.getAvailablePaltformUrlsByName(eventName)
        var urls = address.split(",").filter(function (u) { return u !== "" })
        if (urls.length > channelCount)
            refusal = qsTr("At most %1 platforms can be live at once; switch some off.").arg(channelCount)
        else if (address.length > maxAddressChars)
            refusal = qsTr("The addresses together are too long for the device (at most %1 characters).").arg(maxAddressChars)
        else if (urls.some(function (u) { return /[^\x21-\x7e\xa0-\xff]/.test(u) }))
            refusal = qsTr("A stream address cannot hold spaces, commas or characters outside Latin-1.")
        else
            refusal = ""
        return refusal === "" ? address : ""
    }
    function readyToGoLive() { return liveAddressOrRefusal() !== "" }
    function goLive() {
        var address = liveAddressOrRefusal()
        if (address === "")
            return false
        var urls = address.split(",")
        manage.uiproc.connectStreamParams(choice(models, model).device, choice(resolutions, resolution).device,
                                          choice(bitrates, bitrate).device)
        manage.uiproc.connectStreamOnAir(1, address, true)
        manage.uiproc.writeInitConfig({ "rtmpSwitch": 1, "rtmpAddr": address, "eventName": eventName })
        liveAddress = address
        expected = urls.length
        phase = "starting"
        confirmWait.restart()
        statusAsk.restart()
        return true
    }
    function stop() {
        if (!manage)
            return
        refusal = ""
        // The same addresses switched off free the same channels.
        var address = liveAddress !== "" ? liveAddress : rtmp ? rtmp.getAvailablePaltformUrlsByName(eventName) : ""
        manage.uiproc.connectStreamOnAir(0, address, true)
        manage.uiproc.writeInitConfig({ "rtmpSwitch": 0 })
        expected = 0
        phase = streaming ? "stopping" : ""
        confirmWait.restart()
        statusAsk.restart()
    }

    property Connections events_: Connections {
        target: store.rtmp
        ignoreUnknownSignals: true
        function onSigAddPlatformItem(strPlatformName, strPlatformUrl, isOpen, isLogoForm) {
            var item = { name: String(strPlatformName), url: String(strPlatformUrl), on: isOpen === true }
            if (isLogoForm)
                store.platforms = store.platforms.concat([item])
            else
                store.editList = store.editList.concat([item])
        }
        function onSigSendPlatformUrl(strPlatformName, strPlatformUrl) {
            var url = String(strPlatformUrl)
            if (store.addressProblem(url) !== "") {
                if (store.leftOut++ === 0)
                    store.firstLeftOut = url
                return
            }
            if (store.imported.some(function (p) { return p.url === url }))
                return
            store.imported = store.imported.concat([{ name: String(strPlatformName), url: url }])
        }
        function onSigStreamParams(strModel, strResolution, strBitrate) {
            store.heldParams = [String(strModel), String(strResolution), String(strBitrate)]
            // An unset parameter keeps the remembered choice.
            if (strModel !== "") store.model = store.codeIn(store.models, Number(strModel), store.model)
            if (strResolution !== "") store.resolution = store.codeIn(store.resolutions, Number(strResolution), store.resolution)
            if (strBitrate !== "") store.bitrate = store.codeIn(store.bitrates, Number(strBitrate), store.bitrate)
        }
        function onSigEventInfo(strName, nStartTime) {
            store.events = store.events.concat([{ name: String(strName), start: Number(nStartTime) || 0 }])
        }
    }
}
