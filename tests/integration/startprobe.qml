import QtQuick 2.15

// Creates the real main window and prints what it shows: the page open at
// start and, on the About page, what the device answered. The test reads these lines.
Item {
    id: probe
    property var window: null

    function find(item, name) {
        if (!item) return null
        if (item.objectName === name) return item
        for (var i = 0; i < item.children.length; ++i) {
            var found = find(item.children[i], name)
            if (found) return found
        }
        return null
    }
    function ffmpeg() { var row = find(probe.window.contentItem, "about_ffmpeg"); return row ? row.name : "" }
    function value(name) { var row = find(probe.window.contentItem, name); return row ? row.value : "" }

    Component.onCompleted: window = Qt.createComponent("qrc:/main.qml").createObject(probe)

    Timer {
        interval: 250; repeat: true; running: true
        property int ticks: 0
        onTriggered: {
            ticks++
            var host = probe.find(probe.window.contentItem, "pageHost")
            var answered = ["about_software", "about_system", "about_address"].every(function (n) { return /\d\.\d/.test(value(n)) })
                           && value("about_serial") === "CS2026SIM00001" && ffmpeg() !== "FFmpeg "
            if ((host.current !== "about" && ticks >= 8) || answered || ticks > 60) {
                var title = probe.find(host, "pageTitle") // made with the first page
                console.log("PROBE page=" + host.current + " visible=" + host.visible + " title=" + (title ? title.text : ""))
                console.log("PROBE about software=" + value("about_software") + " system=" + value("about_system")
                            + " serial=" + value("about_serial") + " address=" + value("about_address"))
                console.log("PROBE about library=" + ffmpeg())
                Qt.quit()
            }
        }
    }
}
