import QtQuick 2.15

// Creates the real main window and plays the operator through a companion
// session: accepts the destination the phone (cs-phone) sent, connects the
// phone a search finds, goes live from the stream page, and confirms the
// stop the phone asks for. Prints PROBE lines for the test; a step that
// does not come about in time ends the run with "PROBE fail".
Item {
    id: probe
    property var window: null
    Component.onCompleted: window = Qt.createComponent("qrc:/main.qml").createObject(probe)

    function find(item, name) {
        if (!item) return null
        if (item.objectName === name) return item
        for (var i = 0; i < item.children.length; ++i) {
            var found = find(item.children[i], name)
            if (found) return found
        }
        return null
    }
    function shown(name, within) {
        var item = find(within || probe.window.contentItem, name)
        return item && item.visible ? item : null
    }
    function touch(name, within) {
        var b = shown(name, within)
        if (!b || b.enabledState === false) return false
        b.clicked()
        return true
    }
    function host() { return find(probe.window.contentItem, "pageHost") }
    function store() { return probe.window.companion }

    readonly property string phoneMac: "5c-f9-38-12-34-56"
    // The stop request waits for the test, which has the phone send it
    // after the first heartbeat: about ten seconds after going live.
    readonly property var steps: [
        { what: "offer shown", act: function () { return true }, done: function () { return shown("companionAccept") !== null },
          report: function () { return "page=" + host().current + " offer=" + shown("companionOfferUrl").text } },
        { what: "accepted", act: function () { return touch("companionAccept") },
          done: function () { return store().offer === null && store().room !== "" },
          report: function () { return "room=" + store().room + " token=" + store().token } },
        { what: "phone found", act: function () { return touch("bluetoothOn") && touch("searchPhones") },
          done: function () { return shown("phone_" + probe.phoneMac) !== null } },
        { what: "phone connected", act: function () { return touch("phone_" + probe.phoneMac) },
          done: function () { return store().lastResult !== null },
          report: function () { return JSON.stringify(store().lastResult) + " phones=" + JSON.stringify(store().phones) } },
        { what: "stream page", act: function () { return touch("pageClose") && touch("streamButton") },
          done: function () { return host().current === "stream" } },
        { what: "go live asks", act: function () { return touch("streamGoLive") }, done: function () { return shown("streamConfirm") !== null } },
        { what: "session live", act: function () { return touch("confirmAction", shown("streamConfirm")) },
          done: function () { return store().session === "live" },
          report: function () { return "address=" + probe.store().stream.liveAddress } },
        { what: "stop asked", act: function () { return true }, limit: 250,
          done: function () { return host().current === "bluetooth" && shown("companionConfirm") !== null } },
        { what: "stopped", act: function () { return touch("confirmAction", shown("companionConfirm")) },
          done: function () { return store().session === "" && !store().streaming },
          report: function () { return "streams=" + JSON.stringify(probe.store().live.streams) + " stopAsked=" + store().stopAsked } }
    ]
    property int step: 0
    property int waited: 0
    property bool acted: false

    Timer {
        interval: 100; repeat: true; running: probe.window !== null
        onTriggered: {
            if (probe.step === probe.steps.length) {
                // The last answer to the phone leaves from another thread.
                if (++probe.waited > 10)
                    Qt.quit()
                return
            }
            var s = probe.steps[probe.step]
            probe.waited++
            if (!probe.acted) {
                probe.acted = s.act()
            } else if (s.done()) {
                console.log("PROBE " + s.what + (s.report ? " " + s.report() : ""))
                probe.step++
                probe.acted = false
                probe.waited = 0
                return
            }
            if (probe.waited > (s.limit || 150)) {
                console.log("PROBE fail at \"" + s.what + "\" page=" + (probe.host() ? probe.host().current : "?")
                            + (probe.store() ? " session=" + probe.store().session + " searching=" + probe.store().searching
                                               + " phones=" + JSON.stringify(probe.store().phones) + " refusal=" + probe.store().stream.refusal : ""))
                Qt.quit()
            }
        }
    }
}
