import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/Public"

// The frame around the pages: the way into every page and back, the live
// actions under an open page, where pages open, and the on-screen keyboard.
Item {
    width: 1920
    height: 1080

    FakeStore { id: live }
    FakeSystemStore { id: system }
    FakeBoardStore { id: lateBoard }
    MainView {
        id: view
        width: portrait ? 1080 : 1920
        height: portrait ? 1920 : 1080
        store: live
        pageStores: ({ live: live, system: system })
    }

TestCase {
    name: "Frame"
    when: windowShown
    property var host: findChild(view, "pageHost")

    function init() {
        view.portrait = false
        view.keyboardTop = view.height
        view.forceActiveFocus() // no field of an earlier case keeps the focus
        host.close()
        live.calls = []
        live.recording = false
        live.pipOn = false
        system.calls = []
    }
    function touch(name) { mouseClick(findChild(view, name)) }
    function rectOf(item) { return item.mapToItem(view, 0, 0, item.width, item.height) }

    function test_everyPageInTwoTouches_data() {
        var rows = []
        for (var portrait = 0; portrait < 2; ++portrait)
            Pages.all.forEach(function (p) {
                rows.push({ tag: p.name + (portrait ? " portrait" : ""), name: p.name, store: p.store,
                            group: p.group || "device", portrait: portrait === 1 })
            })
        return rows
    }
    function test_everyPageInTwoTouches(data) {
        view.portrait = data.portrait
        view.keyboardTop = view.height
        verify(!host.visible)
        if (data.group === "live") {
            // Its live action opens it, from the main screen as from any page.
            touch(data.name === "stream" ? "streamButton" : "recordButton")
        } else {
            touch("menuButton")
            compare(host.current, "menu")
            // Every tile is in sight without scrolling.
            var tile = findChild(view, "menu_" + data.name), scroller = findChild(view, "pageScroller")
            var r = tile.mapToItem(scroller, 0, 0, tile.width, tile.height)
            verify(r.y >= 0 && r.y + r.height <= scroller.height, "tile " + data.name + " at " + r.y + " of " + scroller.height)
            verify(tile.height >= 110 && tile.width >= 110)
            mouseClick(tile)
        }
        compare(host.current, data.name)
        verify(host.visible && host.page !== null)
        compare(host.page.store, view.pageStores[data.store])
        compare(findChild(view, "pageTitle").text, Pages.find(data.name).title)
    }

    function test_backAndClose_data() {
        return [{ tag: "back from a page", from: "about", button: "pageBack", to: "menu" },
                { tag: "back from the menu", from: "menu", button: "pageBack", to: "" },
                { tag: "close from a page", from: "language", button: "pageClose", to: "" }]
    }
    function test_backAndClose(data) {
        verify(host.show(data.from))
        touch(data.button)
        compare(host.current, data.to)
        compare(host.visible, data.to !== "")
        if (data.to === "menu")
            compare(findChild(view, "pageTitle").text, qsTranslate("PageHost", "Menu"))
    }

    function test_liveActionsUnderAPage() {
        host.show("language")
        var actions = findChild(view, "pageActions")
        live.recording = true
        mouseClick(findChild(actions, "recordButton"))
        compare(live.calls, [], "stopping asks first")
        verify(findChild(view, "confirmDialog").visible)
        touch("confirmAction")
        mouseClick(findChild(actions, "pipButton"))
        compare(live.calls, ["stopRecording", "setPip true"])
        compare(host.current, "language")
    }

    // The open page made long, with a text field at its very end.
    function longPage() {
        createTemporaryQmlObject("import QtQuick 2.15; Item { width: 10; height: 2000 }", host.page)
        return createTemporaryQmlObject("import QtQuick 2.15; TextInput { width: 400; height: 60; text: 'x' }", host.page)
    }

    function test_pageAreaLeavesPictureAndFieldClear_data() {
        return [{ tag: "landscape", portrait: false }, { tag: "portrait", portrait: true }]
    }
    function test_pageAreaLeavesPictureAndFieldClear(data) {
        view.portrait = data.portrait
        host.show("about")
        var area = rectOf(host), picture = rectOf(findChild(view, "previewPanel"))
        if (data.portrait)
            verify(area.y >= picture.y + picture.height, "page starts below the picture")
        else
            verify(area.x >= picture.x + picture.width, "page beside the picture")
        verify(area.x + area.width <= view.width && area.y + area.height <= view.height)

        var field = longPage()
        var scroller = findChild(view, "pageScroller")
        var keyboardTop = area.y + area.height / 2
        view.keyboardTop = keyboardTop
        var shown = rectOf(scroller)
        verify(shown.height > 0 && shown.y + shown.height <= keyboardTop, "page area ends above the keyboard")
        var inView = function () { var f = rectOf(field); return f.y >= shown.y && f.y + f.height <= shown.y + shown.height }
        tryVerify(function () { return !inView() }, 1000, "the field starts below the keyboard") // once the page is laid out
        field.forceActiveFocus()
        tryVerify(inView, 1000, "the focused field is scrolled into view")
        view.keyboardTop = view.height
        verify(rectOf(scroller).y + rectOf(scroller).height > keyboardTop)
    }

    // Stores made with the device start reach a page opened before them.
    function test_pageGetsAStoreMadeAfterIt() {
        var before = view.pageStores
        host.show("network")
        compare(host.page.store, undefined)
        view.pageStores = Object.assign({ board: lateBoard }, before)
        compare(host.page.store, lateBoard)
        view.pageStores = before
    }

    function test_nextPageStaysAtItsTopWhenTheKeyboardCloses() {
        host.show("about")
        view.keyboardTop = view.height / 2
        longPage().forceActiveFocus()
        host.show("menu") // the field goes with its page
        host.show("about")
        longPage()
        wait(50)
        view.keyboardTop = view.height
        compare(findChild(view, "pageScroller").contentY, 0)
    }
}
}
