import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/Public"

// The companion store against fake native objects: what goes to the phone
// and the companion service, in order, and the operator's confirmation
// before the app's stop request stops anything. Searching and connecting
// run end to end against the simulator (tests/bluetooth).
Item {
    id: root
    width: 1000
    height: 2000

    QtObject {
        id: fake
        property var sent: []
        function note(what) { var s = sent.slice(); s.push(what); sent = s }
        property QtObject uiproBluetooth: QtObject {
            signal pushReadRtmp(string url, string token, string Data, string vertical)
            signal pushAirSet(bool tmpSet)
            function writeDataToDev(text) { fake.note("phone " + text) }
            function setReadFlag(on) { fake.note("read " + on) }
        }
        property QtObject uiproRtmp: QtObject {
            readonly property string companionHost: "https://zorvane.com"
            signal sigSendHttpResult(string url, bool result)
            function setZorPlatformUrl(url) { fake.note("zor " + url) }
            function httpRequestPostByUrl(url, token, data) { fake.note("post " + url.replace(companionHost, "") + " " + token + " " + data) }
        }
        property QtObject uiproc: QtObject {
            function writeInitConfig(obj) { fake.note("save " + JSON.stringify(obj)) }
        }
    }
    QtObject { id: fakeLive; property bool streaming: false }
    QtObject {
        id: fakeStream
        property string liveAddress: "rtmp://push.zorvane.com/live/abc"
        function stop() { fake.note("stream stop") }
        function refresh() {}
    }
    CompanionStore { id: store; live: fakeLive; stream: fakeStream; heartbeatMs: 40; startPushMs: 120 }
    Component { id: pageComponent; BluetoothPage { width: root.width } }

    TestCase {
        name: "Companion"
        when: windowShown

        function initTestCase() { store.manage = fake }
        function init() {
            fakeLive.streaming = false
            fakeStream.liveAddress = "rtmp://push.zorvane.com/live/abc"
            store.heartbeat.stop()
            store.startPush.stop()
            store.start({ isBlueToothZor: 1 })
            store.session = ""
            store.token = ""
            store.room = ""
            store.offer = null
            store.stopAsked = false
            fake.sent = []
        }

        function test_offer_data() {
            return [{ tag: "portrait", vertical: "2", mode: 1, offer: { url: "https://push.zorvane.com/l/a", token: "T", room: "R", vertical: 1 } },
                    { tag: "companion mode off", vertical: "1", mode: 0, offer: null }]
        }
        function test_offer(data) {
            store.start({ isBlueToothZor: data.mode })
            fake.uiproBluetooth.pushReadRtmp("https://push.zorvane.com/l/a", "T", "R", data.vertical)
            compare(store.offer, data.offer)
            if (!data.offer)
                return
            fake.sent = []
            store.acceptOffer()
            compare(fake.sent, ["phone RecvSuccess", "zor https://push.zorvane.com/l/a"])
            compare([store.token, store.room, store.orientation, store.offer], ["T", "R", data.offer.vertical, null])
        }

        // The session itself (begin, heartbeats, end, the phone told) runs end
        // to end; here what must not start or end it.
        function test_sessionOnlyForTheServiceAndItsOwnAnswer() {
            store.token = "TOK"
            store.room = "ROOM 1&2"
            fakeStream.liveAddress = "rtmp://a.rtmp.youtube.com/live2/k"
            fakeLive.streaming = true
            compare(fake.sent, [], "another platform opens no session")
            fakeLive.streaming = false
            fakeStream.liveAddress = "rtmp://push.zorvane.com/live/abc"
            fakeLive.streaming = true
            compare(fake.sent, ["post /api/Live/beginLive TOK ROOM 1&2"])
            // An earlier heartbeat's success reported under another URL starts nothing.
            fake.uiproRtmp.sigSendHttpResult("https://zorvane.com/api/Live/headBeat", true)
            wait(store.startPushMs + 50)
            compare(fake.sent.length, 1)
            fakeLive.streaming = false
        }

        function test_appAsksToStop_data() {
            return [{ tag: "stream stopped before the answer", streaming: true, asked: true },
                    { tag: "nothing on air", streaming: false, asked: false }]
        }
        function test_appAsksToStop(data) {
            fakeLive.streaming = data.streaming
            fake.sent = []
            fake.uiproBluetooth.pushAirSet(false)
            compare(store.stopAsked, data.asked)
            compare(fake.sent, []) // nothing stops without the operator
            if (!data.asked)
                return
            var page = createTemporaryObject(pageComponent, root, { store: store })
            var dialog = findChild(page.Window.contentItem, "companionConfirm")
            tryCompare(dialog, "visible", true)
            fakeLive.streaming = false
            compare([store.stopAsked, dialog.visible], [false, false])
            compare(fake.sent, [])
        }
    }
}
