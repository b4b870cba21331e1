import QtQuick 2.15

// Loads the real interface and upgrades from the disk the way an operator
// does: Menu, the upgrade tile, the highest image, one confirmation.
// Prints what it sees; the test reads these lines and the commands run.
Item {
    id: probe
    property var window: null
    property int ticks: 0

    function find(item, name) {
        if (!item) return null
        if (item.objectName === name) return item
        for (var i = 0; i < item.children.length; ++i) {
            var found = find(item.children[i], name)
            if (found) return found
        }
        return null
    }
    function touch(name, within) { find(within || window.contentItem, name).clicked() }

    Component.onCompleted: window = Qt.createComponent("qrc:/main.qml").createObject(probe)

    Timer {
        interval: 250; repeat: true; running: true
        onTriggered: {
            probe.ticks++
            var host = probe.find(probe.window.contentItem, "pageHost")
            if (probe.ticks === 6) {
                probe.touch("menuButton")
                probe.touch("menu_upgrade", host)
            } else if (probe.ticks === 10) {
                var labels = []
                for (var i = 0; probe.find(host.page, "upgradeImage" + i); ++i)
                    labels.push(probe.find(host.page, "upgradeImage" + i).label + " / " + probe.find(host.page, "upgradeImage" + i).detail)
                console.log("PROBE images " + JSON.stringify(labels))
                probe.touch("upgradeImage0", host.page)
                probe.touch("upgradeStart", host.page)
                console.log("PROBE asked " + probe.find(probe.window.contentItem, "upgradeConfirm").question)
                probe.touch("confirmAction", probe.find(probe.window.contentItem, "upgradeConfirm"))
                console.log("PROBE upgrading " + probe.find(host.page, "upgrading").visible
                            + " previewPaused " + probe.find(probe.window.contentItem, "preview").paused)
            } else if (probe.ticks === 14) {
                Qt.quit()
            }
        }
    }
}
