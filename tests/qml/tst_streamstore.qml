import QtQuick 2.15
import QtTest 1.2
import "qrc:/Public"

// The stream store against a fake event store that keeps events the way
// the native one does (saving URLs wipes the event's group) and a fake
// device: what is saved in which order, what goes to the device.
TestCase {
    name: "StreamStore"

    QtObject {
        id: fakeManage
        property var log: []
        function note(what) { var l = log.slice(); l.push(what); log = l }
        property QtObject uiproc: QtObject {
            function connectStreamOnAir(open, address, isSend) { fakeManage.note("onAir " + open + " " + address + " " + isSend) }
            function connectStreamParams(isDefault, resolution, rate) { fakeManage.note("params " + [isDefault, resolution, rate].join(" ")) }
            function connectStreamPlatformStatus() { fakeManage.note("status?") }
            function writeInitConfig(obj) { fakeManage.note("save " + JSON.stringify(obj)) }
            function writeLog(text) { fakeManage.note("log " + text) }
        }
        property QtObject uiproRtmp: QtObject {
            id: rtmp
            signal sigEventInfo(string strName, double nStartTime)
            signal sigSendPlatformUrl(string strPlatformName, string strPlatformUrl)
            signal sigAddPlatformItem(string strPlatformName, string strPlatformUrl, bool isOpen, bool isLogoForm)
            signal sigStreamParams(string strModel, string strResolution, string strBitrate)
            // name -> { start, urls: [{url, on}], params: [model, resolution, bitrate] }
            property var groups: ({})
            property var usb: []
            function nameOf(url) { return url.indexOf("youtube.com") >= 0 ? "youtube" : url.indexOf("twitch.com") >= 0 ? "Twitch" : "other" }
            function group(n) { return groups[n] || { start: 0, urls: [], params: ["", "", ""] } }
            function put(n, g) { var all = groups; all[n] = g; groups = all }
            function getOneEventInfoByName(n) { return groups[n] ? { eventName: n, startTime: groups[n].start } : {} }
            function createOneEvent(n, t) { fakeManage.note("create " + n + " " + t); var g = group(n); g.start = t; put(n, g) }
            function delOneEventByName(n) { fakeManage.note("delete " + n); var all = groups; delete all[n]; groups = all }
            function getAllEventInfo() {
                var names = Object.keys(groups).sort(function (a, b) { return groups[b].start - groups[a].start })
                names.forEach(function (n) { sigEventInfo(n, groups[n].start) })
            }
            function savePaltformUrlsByEventName(n, urls, flags) {
                fakeManage.note("saveUrls " + n + " " + urls.join("|") + " " + flags.join("|"))
                put(n, { start: 0, urls: urls.map(function (u, i) { return { url: u, on: flags[i] === "true" } }), params: ["", "", ""] })
            }
            function savePaltformParamsByEventName(n, m, r, b) {
                fakeManage.note("saveParams " + [n, m, r, b].join(" "))
                var g = group(n); var p = [m, r, b]
                g.params = g.params.map(function (old, i) { return p[i] !== "" ? p[i] : old })
                put(n, g)
            }
            function getPaltformParamsByEventName(n) { var p = group(n).params; sigStreamParams(p[0], p[1], p[2]) }
            function getPaltformUrlsByName(n, logo) { group(n).urls.forEach(function (e) { sigAddPlatformItem(nameOf(e.url), e.url, e.on, logo) }) }
            function removePlatformUrlByEventNameAndUrl(n, url) {
                fakeManage.note("remove " + n + " " + url)
                var g = group(n); g.urls = g.urls.filter(function (e) { return e.url !== url }); put(n, g); return true
            }
            function enabled(n) { return group(n).urls.filter(function (e) { return e.on }).map(function (e) { return e.url }) }
            function getAvailablePaltformNumByName(n) { return enabled(n).length }
            function getAvailablePaltformUrlsByName(n) { return enabled(n).join(",") }
            function getAllUdiskPlatformUrl() { fakeManage.note("usb?"); usb.forEach(function (u) { sigSendPlatformUrl(nameOf(u), u) }); return true }
            function getZorPlatformUrl() { fakeManage.note("zor?"); return false }
        }
    }
    QtObject { id: fakeLive; property var streams: [0, 0, 0, 0] }

    StreamStore { id: store; live: fakeLive }

    function initTestCase() { store.manage = fakeManage }
    function init() {
        fakeManage.log = []
        rtmp.groups = {}
        rtmp.usb = []
        fakeLive.streams = [0, 0, 0, 0]
        store.eventName = "Current"
        store.phase = ""
        store.refusal = ""
        store.liveAddress = ""
        store.editList = []
        store.imported = []
        store.confirmWait.stop()
        store.statusAsk.stop()
    }
    function event(n, start, urls, params) {
        rtmp.put(n, { start: start, urls: urls, params: params || ["", "", ""] })
    }

    function test_switchingOnKeepsStartTimeAndParameters() {
        event("Show", 1900000000000, [{ url: "rtmp://a.youtube.com/live/k1", on: false }], ["1", "2", "3"])
        rtmp.usb = ["rtmp://live.twitch.com/app/k2", "rtmp://a.youtube.com/live/k1"]
        store.eventName = "Show"
        store.openPlatforms()
        compare(fakeManage.log, ["usb?", "zor?"])
        compare(store.draft.map(function (p) { return p.url + " " + p.on + " " + p.stored }),
                ["rtmp://a.youtube.com/live/k1 false true", "rtmp://live.twitch.com/app/k2 false false"], "an offered address already kept is listed once")
        fakeManage.log = []
        store.setPlatformOn("rtmp://live.twitch.com/app/k2", true)
        compare(fakeManage.log, ["saveUrls Show rtmp://a.youtube.com/live/k1|rtmp://live.twitch.com/app/k2 false|true",
                                 "create Show 1900000000000", "saveParams Show 1 2 3"])
        compare(rtmp.groups["Show"].params, ["1", "2", "3"])
        compare(store.platforms.map(function (p) { return p.name + " " + p.on }), ["youtube false", "Twitch true"])
    }

    function test_importLeavesOutWhatTheDeviceCannotTake() {
        rtmp.usb = ["rtmp://ok/1", "rtmp://with space/2", "rtmp://a/3,rtmp://b/4", "rtmp://ok/1"]
        store.openPlatforms()
        compare(store.draft.map(function (p) { return p.url }), ["rtmp://ok/1"])
        compare(store.leftOut, 2)
        compare(fakeManage.log.filter(function (l) { return l.indexOf("log ") === 0 }),
                ['log stream addresses: 2 offered address(es) left out (spaces, commas, too long or outside Latin-1), first: "rtmp://with space/2"'],
                "one line for the whole import")
    }

    function test_goLiveRefused_data() {
        return [{ tag: "nothing switched on", urls: [{ url: "rtmp://a.youtube.com/live/k1", on: false }],
                  refusal: "No paltform is available,please select one paltform first" },
                { tag: "more platforms than channels", urls: [1, 2, 3, 4, 5].map(function (i) { return { url: "rtmp://x/" + i, on: true } }),
                  refusal: "At most 4 platforms can be live at once; switch some off." }]
    }
    function test_goLiveRefused(data) {
        event("Show", 0, data.urls, ["1", "1", "2"])
        store.eventName = "Show"
        store.refresh()
        fakeManage.log = []
        verify(!store.goLive())
        compare(fakeManage.log, [])
        compare(store.refusal, data.refusal)
        compare(store.channelState(0), "off")
    }

    function test_channelsFollowTheDeviceThenStop() {
        event("Current", 0, [{ url: "rtmp://a/1", on: true }, { url: "rtmp://b/2", on: true }])
        store.goLive()
        fakeLive.streams = [1, 0, 0, 0]
        compare([store.channelState(0), store.channelState(1)], ["live", "starting"])
        store.confirmWait.triggered()
        compare(store.channelState(1), "unconfirmed", "no report in time: said so")
        fakeLive.streams = [1, 1, 0, 0]
        compare([store.channelState(0), store.channelState(1), store.phase], ["live", "live", ""])
        fakeManage.log = []
        store.stop()
        compare(fakeManage.log, ["onAir 0 rtmp://a/1,rtmp://b/2 true", 'save {"rtmpSwitch":0}'], "the addresses that went live are switched off")
        compare(store.channelState(0), "stopping")
        fakeLive.streams = [0, 0, 0, 0]
        compare([store.channelState(0), store.phase], ["off", ""])
    }

    function test_createEventRefused_data() {
        var tomorrow = Date.now() + 24 * 3600 * 1000
        return [{ tag: "name taken", name: "Taken", start: tomorrow, refusal: "An event named “Taken” exists already. Choose another name." },
                { tag: "past", name: "Late", start: Date.now() - 60000, refusal: "The start time has passed. Choose a later one." },
                { tag: "slash would nest groups", name: "a/b", start: tomorrow, refusal: "An event name cannot hold a slash or a backslash." }]
    }
    function test_createEventRefused(data) {
        event("Taken", 5, [])
        verify(!store.createEvent(data.name, data.start))
        compare(store.refusal, data.refusal)
        compare(fakeManage.log, [])
    }

    function test_deletingTheEventInUseFallsBackToCurrent() {
        event("Gig", 5, [])
        store.chooseEvent("Gig")
        store.deleteEvent("Gig")
        compare(store.eventName, "Current")
        compare(fakeManage.log, ['save {"eventName":"Gig"}', "delete Gig", 'save {"eventName":"Current"}'])
    }

    function test_typedAddress_data() {
        return [{ tag: "kept, switched on", text: " rtmp://a.youtube.com/live/k9 ", ok: true },
                { tag: "space inside", text: "rtmp://a b", ok: false },
                { tag: "too long for the device", text: "rtmp://" + new Array(1100).join("x"), ok: false }]
    }
    function test_typedAddress(data) {
        compare(store.addUrl(data.text), data.ok)
        compare(fakeManage.log, data.ok ? ["saveUrls Current rtmp://a.youtube.com/live/k9 true"] : [])
        verify((store.refusal === "") === data.ok)
    }
}
