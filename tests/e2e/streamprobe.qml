import QtQuick 2.15

// Drives the real interface against the simulator the way an operator
// would, by the controls' object names: a new event for tomorrow 18:00,
// chosen; two addresses from the USB disk switched on; go live and stop,
// each confirmed. Prints PROBE lines for the test; any step that does not
// come about in time ends the run with "PROBE fail".
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
    function the(name) { return find(probe.window.contentItem, name) }
    function touch(name, within) {
        var b = within ? find(within, name) : the(name)
        if (!b || !b.visible || !b.enabledState) return false
        b.clicked()
        return true
    }
    function channels() {
        var words = []
        for (var i = 0; i < 4; ++i) {
            var cell = the("streamChannel" + i)
            words.push(cell ? find(cell, "channelWord").text : "?")
        }
        return words.join(",")
    }
    function host() { return the("pageHost") }
    readonly property string youtube: "rtmp://a.rtmp.youtube.com/live2/e2e-key-1"
    readonly property string twitch: "rtmp://live.twitch.com/app/e2e-key-2"
    property double tomorrow18: {
        var t = new Date(Date.now() + 24 * 3600 * 1000)
        return new Date(t.getFullYear(), t.getMonth(), t.getDate(), 18, 0, 0, 0).getTime()
    }

    // Each step acts once its condition holds; `done` says it worked.
    property int step: 0
    property int waited: 0
    readonly property var steps: [
        { what: "stream page from the live action", act: function () { return host() && touch("streamButton") },
          done: function () { return host().current === "stream" } },
        { what: "events page", act: function () { return touch("streamToEvents") }, done: function () { return host().current === "events" } },
        { what: "event created", act: function () {
              var name = the("eventName")
              if (!name || !the("eventHour")) return false
              name.text = "Tomorrow show"
              the("eventHour").currentIndex = 18
              the("eventMinute").currentIndex = 0
              return touch("eventCreate")
          }, done: function () { return the("eventUse_Tomorrow show") !== null } },
        { what: "event chosen", act: function () { return touch("eventUse_Tomorrow show") },
          done: function () { return the("eventUse_Tomorrow show").label === qsTranslate("EventsPage", "In use") } },
        { what: "back on the stream page", act: function () { return touch("pageBack") }, done: function () { return host().current === "stream" } },
        { what: "addresses imported", act: function () { return touch("streamToPlatforms") },
          done: function () { return the("platformSwitch_" + probe.youtube) !== null && the("platformSwitch_" + probe.twitch) !== null } },
        // Each switch keeps the list at once, and the list is drawn anew.
        { what: "one switched on", act: function () { return touch("platformSwitch_" + probe.youtube) },
          done: function () { var b = the("platformSwitch_" + probe.youtube); return b !== null && b.checked } },
        { what: "two switched on", act: function () { return touch("platformSwitch_" + probe.twitch) },
          done: function () { var b = the("platformSwitch_" + probe.twitch); return b !== null && b.checked } },
        { what: "stream page shows the event", act: function () { return touch("pageBack") },
          done: function () { return host().current === "stream" && the("streamEvent").text === "Tomorrow show" } },
        { what: "go live asks", act: function () { return touch("streamGoLive") }, done: function () { return the("streamConfirm").visible } },
        { what: "CH1 and CH2 live", act: function () { return touch("confirmAction", the("streamConfirm")) },
          done: function () { return channels() === [qsTranslate("ChannelState", "Live"), qsTranslate("ChannelState", "Live"),
                                                      qsTranslate("ChannelState", "Off"), qsTranslate("ChannelState", "Off")].join(",") } },
        { what: "stop asks", act: function () { return touch("streamStop") }, done: function () { return the("streamConfirm").visible } },
        { what: "all off", act: function () { return touch("confirmAction", the("streamConfirm")) },
          done: function () { return the("streamOffChip").visible && channels() === [1, 2, 3, 4].map(function () { return qsTranslate("ChannelState", "Off") }).join(",") } }
    ]
    property bool acted: false

    Timer {
        interval: 100; repeat: true; running: probe.window !== null
        onTriggered: {
            var s = probe.steps[probe.step]
            probe.waited++
            if (!probe.acted) {
                probe.acted = s.act()
            } else if (s.done()) {
                console.log("PROBE step " + s.what + " channels=" + probe.channels())
                if (s.what === "CH1 and CH2 live")
                    console.log("PROBE status " + [0, 1, 2, 3].map(function (i) { var c = probe.the("streamChip" + i); return c && c.visible ? c.text : "-" }).join(","))
                probe.step++
                probe.acted = false
                probe.waited = 0
                if (probe.step === probe.steps.length) {
                    console.log("PROBE done tomorrow18=" + probe.tomorrow18)
                    Qt.quit()
                }
                return
            }
            if (probe.waited > 100) {
                console.log("PROBE fail at \"" + s.what + "\" page=" + (probe.host() ? probe.host().current : "?") + " channels=" + probe.channels()
                            + " refusal=" + (probe.the("streamRefusal") ? probe.the("streamRefusal").text : ""))
                Qt.quit()
            }
        }
    }
}
