import QtQuick 2.15
import QtTest 1.2
import "qrc:/Public"

// The NDI, camera and scope stores against fake native objects: the
// commands they send, in order, what they refuse, and how reports change them.
Item {
    QtObject {
        id: fake
        property var sent: []
        function note(what) { var s = sent.slice(); s.push(what); sent = s }
        property QtObject uiproc: QtObject {
            function connectRNDISwitch() { fake.note("ndi?") }
            function connectSNDISwitch(v) { fake.note("ndi " + v) }
            function connectNDIDecodingSwitch(v) { fake.note("decoding " + v) }
            function connectRNDIGroupName() { fake.note("group?") }
            function connectRNDIChannelName() { fake.note("channel?") }
            function connectRNDIDeviceName() { fake.note("device?") }
            function connectSNDIGroupName(n) { fake.note("group " + n) }
            function connectSNDIChannelName(n) { fake.note("channel " + n) }
            function connectSNDIDeviceName(n) { fake.note("device " + n) }
            function connectRNDIConnection() { fake.note("connection?") }
            function connectSNDIConnection(t, ttl, a, m) { fake.note("connection " + [t, ttl, a, m].join(" ")) }
            function connectRNDIDateType() { fake.note("data?") }
            function connectSNDIDateType(t, c) { fake.note("data " + t + " " + c) }
            function connectRNDIBaseInfo() { fake.note("info?") }
            function connectGetNDIDecodingSignal() { fake.note("sources?") }
            function connectSetNDIDecodingSignal(t, n) { fake.note("source " + t + " " + n) }
            function connectUVCControlSupport(c) { fake.note("support? " + c) }
            function connectUVCStyleSupport(c) { fake.note("styles? " + c) }
            function connectUVCStyle(c, s, v) { fake.note("style " + [c, s, v].join(" ")) }
            function connectUVCDirectionAndZoom(c, code) { fake.note("move " + c + " " + code) }
            function connectAutoFocus(a, c, v) { fake.note("focus " + [a, c, v].join(" ")) }
            function connectView(a, c, t, i) { fake.note("view " + [a, c, t, i].join(" ")) }
            function connectGetStatisticPic(t, open, pos) { fake.note("scope " + [t, open, pos].join(" ")) }
            function writeInitConfig(o) { fake.note("save " + JSON.stringify(o)) }
            function writeLog(t) { fake.note("log " + t) }
        }
        property QtObject uiproVideo: QtObject {
            signal pushNdiStatus(int status)
            signal pushNDIDecodingStatus(int status)
            signal pushNdiGroupName(string n)
            signal pushNdiChannelName(string n)
            signal pushNdiDeviceName(string n)
            signal pushNdiConnectType(var o)
            signal pushNdiDataType(int t, int c)
            signal pushNdiBaseInfo(string f, int fps, int b, int s)
            signal pushNDISignalData(int len, var list)
            signal pushPTZStatus(int level, int vertical, int zoom, int autofocus)
            signal pushPTZAutoFocus(int status)
            signal pushPTZView(int index)
            signal pushStyleStatus(var list)
            signal pushPTZTally(int status)
            signal pushNDIStatusInitiative(int status)
            signal pushNDIDecodingStatusInitiative(int status)
        }
    }
    NdiStore { id: ndi; manage: fake }
    CameraStore { id: camera; manage: fake }
    ScopeStore { id: scopes; manage: fake }

    TestCase {
        name: "NdiStore"
        function initTestCase() { ndi.readBack.interval = 30 }
        function init() { fake.sent = [] }

        function test_refreshAsksEverything() {
            ndi.refresh()
            compare(fake.sent, ["ndi?", "group?", "channel?", "device?", "connection?", "data?", "info?", "sources?"])
            verify(ndi.searching)
        }
        // A name that is kept and read back is driven end to end.
        function test_setNameRefused_data() {
            return [{ tag: "empty", which: "channel", text: "   " },
                    { tag: "64 characters", which: "channel", text: new Array(65).join("x") },
                    { tag: "not one byte per character", which: "channel", text: "Bühne 中" },
                    { tag: "control character", which: "group", text: "a\nb" }]
        }
        function test_setNameRefused(data) {
            verify(!ndi.setName(data.which, data.text))
            wait(ndi.readBack.interval + 100)
            compare(fake.sent, [])
        }
        function test_setConnection_data() {
            return [{ tag: "multicast group", args: [3, 4, "239.255.0.9", "255.255.255.0"], sent: ["connection 3 4 239.255.0.9 255.255.255.0", "connection?"] },
                    { tag: "tcp keeps any address", args: [0, 1, "192.168.1.2", "255.255.0.0"], sent: ["connection 0 1 192.168.1.2 255.255.0.0", "connection?"] },
                    { tag: "multicast needs a group address", args: [3, 4, "192.168.1.2", "255.255.255.0"], sent: [], problem: "multicast" },
                    { tag: "ttl 0", args: [3, 0, "239.1.1.1", "255.255.255.0"], sent: [], problem: "ttl" },
                    { tag: "address with a command", args: [0, 1, "1.2.3.4;reboot", "255.255.255.0"], sent: [], problem: "address" },
                    { tag: "netmask with a hole", args: [0, 1, "10.0.0.1", "255.0.255.0"], sent: [], problem: "netmask" }]
        }
        function test_setConnection(data) {
            compare(ndi.connectionProblem.apply(ndi, data.args), data.problem || "")
            ndi.setConnection.apply(ndi, data.args)
            wait(ndi.readBack.interval + 100)
            compare(fake.sent, data.sent)
        }
        function test_reports() {
            fake.uiproVideo.pushNdiGroupName("NO Group Name")
            fake.uiproVideo.pushNdiChannelName("Main")
            fake.uiproVideo.pushNdiDeviceName("NO Channel Name")
            compare([ndi.groupName, ndi.channelName, ndi.deviceName], ["", "Main", ""])
            fake.uiproVideo.pushNdiConnectType({ type: 3, ttlValue: 5, addr1: 239, addr2: 1, addr3: 2, addr4: 3,
                                                 netmask1: 255, netmask2: 255, netmask3: 0, netmask4: 0 })
            compare(ndi.connection, { type: 3, ttl: 5, address: "239.1.2.3", netmask: "255.255.0.0" })
            fake.uiproVideo.pushNdiBaseInfo("1920x1080@60", 60, 8000, 48000)
            compare(ndi.baseInfo.format, "1920x1080@60")
        }
        function test_sourceListIsBounded() {
            var list = [{ name: "A", addr: "1.1.1.1:5961" }, { name: 5, addr: "x" }, { name: "", addr: "y" }]
            for (var i = 0; i < 100; ++i)
                list.push({ name: "S" + i + new Array(300).join("n"), addr: "a" })
            ndi.searching = true
            fake.uiproVideo.pushNDISignalData(9999, list)
            compare(ndi.sources.length, ndi.maxSources)
            compare(ndi.sources[0], { name: "A", addr: "1.1.1.1:5961" })
            compare(ndi.sources[1].name.length, ndi.maxSourceText)
            verify(!ndi.searching)
            compare(fake.sent.filter(function (s) { return s.indexOf("log ") === 0 }).length, 1)
        }
    }

    TestCase {
        name: "CameraStore"
        function initTestCase() { camera.stopAgain.interval = 30 }
        function init() {
            fake.sent = []
            camera.camera = 0
            camera.moving = 0
            camera.support = { pan: true, tilt: false, zoom: true, focus: false }
            camera.styles = [0, 2]
        }
        function test_holdAndRelease_data() {
            return [{ tag: "tilt not supported", steps: ["hold 1", "release"], sent: [] },
                    { tag: "second finger changes direction once", steps: ["hold 3", "hold 3", "hold 5", "release", "release"],
                      sent: ["move 0 3", "move 0 5", "move 0 0"] },
                    { tag: "camera change stops the move first", steps: ["hold 6", "select 1"],
                      sent: ["move 0 6", "move 0 0", "support? 1", "styles? 1", "focus 5 1 0", "view 5 1 2 0"] }]
        }
        function test_holdAndRelease(data) {
            data.steps.forEach(function (s) {
                var w = s.split(" ")
                if (w[0] === "hold") camera.hold(Number(w[1]))
                else if (w[0] === "select") camera.selectCamera(Number(w[1]))
                else camera.release()
            })
            compare(fake.sent, data.sent)
            compare(camera.moving, 0)   // nothing is left moving
            if (data.sent.length > 0) { // and the stop follows once more, to the camera that moved
                wait(camera.stopAgain.interval + 100)
                compare(fake.sent.slice(data.sent.length), ["move 0 0"])
            }
        }
        function test_presetsStylesFocus() {
            camera.storePreset(2)
            camera.recallPreset(2)
            camera.recallPreset(9)
            camera.setStyle(1)      // not offered
            camera.setStyle(2)
            camera.setAutoFocus(true) // the camera has no focus control
            compare(fake.sent, ["view 4 0 3 2", "view 4 0 2 2", "style 0 2 1"])
            fake.uiproVideo.pushPTZStatus(1, 1, 0, 1)
            compare(camera.support, { pan: true, tilt: true, zoom: false, focus: true })
            fake.uiproVideo.pushStyleStatus([3, 3, "x", 1])
            compare(camera.styles, [3, 1])
            fake.uiproVideo.pushPTZView(4)
            compare(camera.preset, 4)
        }
    }

    TestCase {
        name: "ScopeStore"
        function init() { fake.sent = []; scopes.positions = [0, 0, 0, 0]; scopes.safeFrames = 0 }
        function test_startSendsTheRememberedScopes() {
            scopes.start({ statisticType: 2, statisticRHPosition: 2, statisticBWPosition: 0, statisticRWPosition: 9, statisticVPosition: 4, safeFramesType: 3 })
            compare(fake.sent, ["scope 0 true 1", "scope 3 true 3"])
            compare([scopes.scopeType, scopes.safeFrames], [2, 3])
        }
        function test_setScopeAndSafeFrames() {
            scopes.setScope(1, 3)
            scopes.setScope(1, 0)
            scopes.setScope(5, 1)
            scopes.setSafeFrames(2)
            scopes.setSafeFrames(2)
            scopes.setSafeFrames(7)
            compare(fake.sent, ["scope 1 true 2", 'save {"statisticType":1,"statisticBWPosition":3}',
                                "scope 1 false 0", 'save {"statisticType":1,"statisticBWPosition":0}',
                                'save {"safeFramesType":2}'])
        }
    }
}
