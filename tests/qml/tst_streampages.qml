import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/CONTROLS"
import "qrc:/Public"

// The streaming pages on a fake store: live actions ask once and name
// themselves, the store's state and refusals show, controls call the store
// with the right arguments.
Item {
    id: root
    width: 1000
    height: 2400

    FakeStreamStore { id: fake }
    Component { id: streamPage; StreamPage { width: root.width } }
    Component { id: platformsPage; PlatformsPage { width: root.width } }
    Component { id: eventsPage; EventsPage { width: root.width } }
    Component { id: logo; PlatformLogo {} }

TestCase {
    name: "StreamPages"
    when: windowShown

    function open(component) {
        var page = createTemporaryObject(component, root)
        page.store = fake
        waitForRendering(page) // rows and columns place their children on the next frame
        return page
    }
    function init() {
        fake.calls = []
        fake.refusal = ""
        fake.accept = true
        fake.states = ["off", "off", "off", "off"]
        fake.streams = [0, 0, 0, 0]
        fake.platforms = [{ name: "youtube", url: "rtmp://y/1", on: true }, { name: "Twitch", url: "rtmp://t/2", on: false }]
        fake.draft = []
        fake.events = []
    }

    function test_liveActionsAskFirst_data() {
        return [{ tag: "go live, cancelled", button: "streamGoLive", answer: "confirmCancel", streams: [0, 0, 0, 0], calls: [], action: "Go live" },
                { tag: "stop, cancelled", button: "streamStop", answer: "confirmCancel", streams: [1, 0, 0, 0], calls: [], action: "Stop streaming" },
                { tag: "go live refused: nothing to confirm", button: "streamGoLive", answer: "", streams: [0, 0, 0, 0], calls: [], action: "" }]
    }
    function test_liveActionsAskFirst(data) {
        fake.streams = data.streams
        fake.accept = data.answer !== ""
        var page = open(streamPage)
        compare(fake.calls, ["refresh"])
        fake.calls = []
        mouseClick(findChild(page, data.button))
        compare(page.confirm.visible, data.answer !== "")
        if (data.answer === "")
            return
        compare(page.confirm.actionText, qsTranslate("StreamPage", data.action))
        compare(findChild(page.confirm, "confirmCancel").checked, true, "the safe choice is the default")
        mouseClick(findChild(page.confirm, data.answer))
        compare(fake.calls, data.calls)
    }

    function test_streamPageShowsStoreState() {
        var page = open(streamPage)
        compare(findChild(page, "streamStop").enabledState, false, "nothing to stop")
        fake.streams = [0, 1, 0, 0]
        compare([findChild(page, "streamGoLive").enabledState, findChild(page, "streamStop").enabledState], [false, true], "live: only stop")
        fake.streams = [0, 0, 0, 0]
        fake.refusal = "No paltform is available,please select one paltform first"
        compare(findChild(page, "streamRefusal").text, fake.refusal)
        fake.states = ["live", "unconfirmed", "off", "off"]
        compare(findChild(findChild(page, "streamChannel0"), "channelWord").text, qsTranslate("ChannelState", "Live"))
        compare(findChild(page, "streamChannel1").mark, Style.attention)
        compare(findChild(page, "streamChannel2").mark, Style.off)
        compare(findChild(page, "streamNoPlatform").visible, false)
        fake.platforms = []
        compare(findChild(page, "streamNoPlatform").visible, true)
        var opened = []
        page.openPage.connect(function (n) { opened.push(n) })
        mouseClick(findChild(page, "streamToPlatforms"))
        mouseClick(findChild(page, "streamToEvents"))
        mouseClick(findChild(page, "streamResolution1"))
        compare(opened, ["platforms", "events"])
        compare(fake.calls, ["refresh", "setParameters 1 1 1"])
    }

    function test_platformsGroupedUnderLogos() {
        fake.draft = [{ name: "Twitch", url: "rtmp://t/2", on: false, stored: false },
                      { name: "youtube", url: "rtmp://y/1", on: true, stored: true },
                      { name: "youtube", url: "rtmp://y/3", on: false, stored: true }]
        var page = open(platformsPage)
        compare(page.groups, ["youtube", "Twitch"], "in the logo order, only platforms with addresses")
        mouseClick(findChild(page, "platformSwitch_rtmp://t/2"))
        mouseClick(findChild(page, "platformSwitch_rtmp://y/1"))
        mouseClick(findChild(page, "platformRemove_rtmp://y/3"))
        var field = findChild(page, "platformsUrl")
        field.text = "rtmp://new/4"
        mouseClick(findChild(page, "platformsAdd"))
        compare(field.text, "", "a kept address clears the field")
        fake.accept = false
        field.text = "bad one"
        mouseClick(findChild(page, "platformsAdd"))
        compare(field.text, "bad one", "a refused address stays to be corrected")
        compare(fake.calls, ["openPlatforms", "setPlatformOn rtmp://t/2 true", "setPlatformOn rtmp://y/1 false",
                             "removeUrl rtmp://y/3", "addUrl rtmp://new/4", "addUrl bad one"])
        verify(field.inputMethodHints & Qt.ImhUrlCharactersOnly)
    }

    function test_countdown_data() {
        var now = 1800000000000
        return [{ tag: "no time", start: 0, now: now, text: "No start time" },
                { tag: "past", start: now - 1000, now: now, text: "Started" },
                { tag: "hours", start: now + (2 * 60 + 5) * 60000, now: now, text: "in 2 h 5 min" },
                { tag: "days", start: now + (26 * 60 + 30) * 60000, now: now, text: "in 1 d 2 h" },
                { tag: "under a minute", start: now + 20000, now: now, text: "in 1 min" }]
    }
    function test_countdown(data) {
        var page = open(eventsPage)
        compare(page.countdown(data.start, data.now), data.text)
    }

    function test_eventsDeleteAsksAndRefusalShows() {
        fake.events = [{ name: "Gig", start: Date.now() + 3600000 }, { name: "Current", start: 0 }]
        var page = open(eventsPage)
        compare(fake.calls, ["loadEvents"])
        compare(findChild(page, "eventDelete_Current").visible, false, "Current is kept")
        mouseClick(findChild(page, "eventDelete_Gig"))
        verify(page.confirm.question.indexOf("Gig") >= 0, "the question names the event")
        mouseClick(findChild(page.confirm, "confirmAction"))
        compare(fake.calls, ["loadEvents", "deleteEvent Gig"])
        fake.refusal = "An event named “Gig” exists already. Choose another name."
        compare(findChild(page, "eventMessage").text, fake.refusal)
    }

    function test_logoMatchesNamesExactly_data() {
        return [{ tag: "LinkedIn", name: "LinkedIn", shown: "LinkedIn", mark: "in" },
                { tag: "lower case is not LinkedIn", name: "linkedin", shown: "other", mark: "RTMP" },
                { tag: "Zor", name: "Zor", shown: "Zor", mark: "ZR" },
                { tag: "object key", name: "constructor", shown: "other", mark: "RTMP" }]
    }
    function test_logoMatchesNamesExactly(data) {
        var l = createTemporaryObject(logo, root, { name: data.name })
        compare(findChild(l, "logoName").text, data.shown)
        compare(findChild(l, "logoMark").text, data.mark)
    }
}
}
