import QtQuick 2.15

// Creates the real main window and plays the operator: accepts the
// destination the phone (cs-phone) sent, switches Bluetooth on, searches
// for phones and connects the one the simulator reports. Prints what it
// saw; the test reads these lines.
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
    function shown(name) { var item = find(probe.window.contentItem, name); return item && item.visible ? item : null }

    Component.onCompleted: window = Qt.createComponent("qrc:/main.qml").createObject(probe)

    Timer {
        interval: 250; repeat: true; running: true
        property int ticks: 0
        property string step: "offer"
        onTriggered: {
            ticks++
            var store = probe.window.companion
            if (step === "offer" && shown("companionAccept")) {
                console.log("PROBE page=" + probe.find(probe.window.contentItem, "pageHost").current
                            + " offer=" + shown("companionOfferUrl").text)
                shown("companionAccept").clicked()
                console.log("PROBE accepted room=" + store.room + " offer=" + JSON.stringify(store.offer))
                shown("bluetoothOn").clicked()
                shown("searchPhones").clicked()
                step = "search"
            } else if (step === "search" && shown("phone_5c-f9-38-12-34-56")) {
                shown("phone_5c-f9-38-12-34-56").clicked()
                step = "connect"
            } else if (step === "connect" && store.lastResult) {
                console.log("PROBE result=" + JSON.stringify(store.lastResult) + " phones=" + JSON.stringify(store.phones))
                step = "done"
            }
            if (step === "done" || ticks > 100) {
                console.log("PROBE end step=" + step)
                Qt.quit()
            }
        }
    }
}
