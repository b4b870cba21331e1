import QtQuick 2.15

// Loads the real interface and works the record page the way an operator
// does, by objectName: Record action, start, stop (confirmed), the new file
// in the list, rename refused for a taken name, then renamed. Prints what it
// sees; the test reads these lines and the disk.
Item {
    id: probe
    property var window: null
    property var host: null
    property var page: null
    property string step: "wait"
    property int ticks: 0
    property int stepTicks: 0
    property var before: []
    property string newName: ""

    function find(item, name) {
        if (!item) return null
        if (item.objectName === name) return item
        for (var i = 0; i < item.children.length; ++i) {
            var found = find(item.children[i], name)
            if (found) return found
        }
        return null
    }
    function touch(name, within) {
        var item = find(within || window.contentItem, name)
        if (!item) { console.log("PROBE missing " + name); return false }
        item.clicked()
        return true
    }
    function names() { return page.store.recordings.map(function (r) { return r.name }) }
    function go(next) { console.log("PROBE step " + next); step = next; stepTicks = 0 }
    function finish(text) { console.log("PROBE " + text); Qt.quit() }

    Component.onCompleted: window = Qt.createComponent("qrc:/main.qml").createObject(probe)

    Timer {
        interval: 250; repeat: true; running: true
        onTriggered: {
            probe.ticks++
            probe.stepTicks++
            if (probe.ticks > 160)
                return probe.finish("result timeout in step " + probe.step)
            var live = probe.window.deviceStarted
            switch (probe.step) {
            case "wait":
                if (!live || probe.stepTicks < 4) return
                probe.host = probe.find(probe.window.contentItem, "pageHost")
                probe.touch("recordButton", probe.find(probe.window.contentItem, "actionPanel"))
                probe.go("open")
                return
            case "open":
                probe.page = probe.host.page
                if (probe.host.current !== "record" || !probe.page || probe.page.store.listing) return
                probe.before = probe.names()
                console.log("PROBE before " + JSON.stringify(probe.before))
                probe.touch("recordStartStop", probe.page)
                probe.go("recording")
                return
            case "recording":
                if (!probe.page.store.recording) return
                if (probe.stepTicks === 1 || probe.stepTicks % 4 === 0)
                    console.log("PROBE recording minutesLeft=" + probe.page.store.minutesLeft
                                + " left=" + probe.find(probe.page, "recordLeft").value)
                if (probe.stepTicks < 12) return // about three seconds on the disk
                probe.touch("recordStartStop", probe.page)
                console.log("PROBE asked " + probe.find(probe.window.contentItem, "recordConfirm").visible
                            + " recording=" + probe.page.store.recording)
                probe.touch("confirmAction", probe.find(probe.window.contentItem, "recordConfirm"))
                probe.go("stopped")
                return
            case "stopped":
                if (probe.page.store.recording) return
                var fresh = probe.page.store.recordings.filter(function (r) { return probe.before.indexOf(r.name) < 0 })
                if (fresh.length === 0) return
                var r = fresh[0]
                probe.newName = r.name
                console.log("PROBE listed name=" + r.name + " length=" + r.length + " resolution=" + r.resolution + " path=" + r.path)
                var index = probe.page.store.recordings.indexOf(r)
                probe.touch("recordRename" + index, probe.page)
                probe.find(probe.page, "renameField").text = "existing"
                probe.touch("renameSave", probe.page)
                console.log("PROBE refused " + probe.find(probe.page, "renameMessage").text)
                probe.find(probe.page, "renameField").text = "e2e take"
                probe.touch("renameSave", probe.page)
                console.log("PROBE renamed editor=" + probe.find(probe.page, "renameEditor").visible
                            + " names=" + JSON.stringify(probe.names()))
                probe.go("done")
                return
            case "done":
                return probe.finish("result ok")
            }
        }
    }
}
