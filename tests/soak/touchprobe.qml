import QtQuick 2.15

// Runs the real main window for touch-soak.sh and prints what the script
// needs to steer it by touch: each page shown ("PROBE page NAME"), and, after
// every change and every 2 s, a report of where on the screen the
// controls leading to pages are ("PROBE spot NAME X Y" lines, closed by
// "PROBE spots-end PAGE", PAGE "main" when no page is open).
Item {
    id: probe
    property var window: null
    property var view: null
    property var host: null

    function find(item, name) {
        if (!item) return null
        if (item.objectName === name) return item
        for (var i = 0; i < item.children.length; ++i) {
            var found = find(item.children[i], name)
            if (found) return found
        }
        return null
    }
    // Visible items below `item` whose objectName starts with `prefix`.
    function collect(item, prefix, out) {
        if (!item || !item.visible) return out
        if (item.objectName.indexOf(prefix) === 0) out.push(item)
        for (var i = 0; i < item.children.length; ++i)
            collect(item.children[i], prefix, out)
        return out
    }
    function spot(name, item) {
        if (!item || !item.visible || item.width <= 0 || item.height <= 0) return
        var p = item.mapToGlobal(item.width / 2, item.height / 2)
        console.log("PROBE spot " + name + " " + Math.round(p.x) + " " + Math.round(p.y))
    }
    function page() { return host.current === "" ? "main" : host.current }

    function report() {
        var actions = find(view, "actionPanel")
        spot("menuButton", find(view, "menuButton"))
        spot("streamButton", find(actions, "streamButton"))
        spot("recordButton", find(actions, "recordButton"))
        spot("pageClose", find(host, "pageClose"))
        // Questions are made on first use, by the main screen or a page.
        var leads = collect(window.contentItem, "confirm", [])
        leads = leads.concat(collect(host, "menu_", []), collect(host, "streamTo", []))
        for (var i = 0; i < leads.length; ++i)
            spot(leads[i].objectName, leads[i])
        var topLeft = window.contentItem.mapToGlobal(0, 0)
        console.log("PROBE window " + Math.round(topLeft.x) + " " + Math.round(topLeft.y) + " " + window.width + " " + window.height)
        console.log("PROBE spots-end " + page())
    }

    Component.onCompleted: {
        // Without a parent: a window inside an item that is in no window is never shown.
        var main = Qt.createComponent("qrc:/main.qml")
        window = main.createObject(null)
        if (!window)
            console.log("PROBE error: qrc:/main.qml: " + main.errorString())
        view = window ? find(window.contentItem, "mainView") : null
        host = find(view, "pageHost")
        if (!host) {
            console.log("PROBE error: the main screen has no pageHost")
            Qt.callLater(Qt.exit, 3)
        }
    }

    Connections {
        target: probe.host
        function onCurrentChanged() {
            console.log("PROBE page " + probe.page())
            settle.restart()
        }
    }
    // A changed screen is reported once its layout has settled.
    Timer { id: settle; interval: 300; onTriggered: probe.report() }
    Timer { interval: 2000; repeat: true; running: probe.host !== null; onTriggered: probe.report() }
}
