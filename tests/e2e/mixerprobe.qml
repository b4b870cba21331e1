import QtQuick 2.15

// Drives the inputs, PIP or audio page of the real interface against the
// simulator, by the controls' object names, reached through the menu. The
// page is the application's first argument ("probe-inputs", "probe-pip",
// "probe-audio"). Prints "PROBE step ..." per step and "PROBE done" or
// "PROBE fail at ...".
Item {
    id: probe
    property var window: null
    Component.onCompleted: window = Qt.createComponent("qrc:/main.qml").createObject(probe)

    readonly property string page: {
        var args = Qt.application.arguments
        return args.length > 1 ? String(args[1]).replace("probe-", "") : ""
    }
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
    function touch(name) {
        var b = the(name)
        if (!b || !b.visible || !b.enabledState) return false
        b.clicked()
        return true
    }
    function host() { return the("pageHost") }
    function opened(name) { return host() && host().current === name }
    function checked(name) { var b = the(name); return b !== null && b.checked }
    // Two touches from the main screen: the menu, then the page's tile.
    function reach(name) {
        return [{ what: "menu", act: function () { return probe.window.deviceStarted && touch("menuButton") }, done: function () { return opened("menu") } },
                { what: "page", act: function () { return touch("menu_" + name) }, done: function () { return opened(name) } }]
    }

    readonly property var plans: ({
        inputs: reach("inputs").concat([
            { what: "HDMI 2 formats listed", act: function () { return true }, done: function () { return the("format1_1920x1080i@50") !== null && checked("format1_1920x1080@60") } },
            { what: "1080i50 running", act: function () { return touch("format1_1920x1080i@50") },
              done: function () { return checked("format1_1920x1080i@50") && !checked("format1_1920x1080@60") && the("inputNow1").text.indexOf("1080i50") >= 0 } }
        ]),
        pip: reach("pip").concat([
            { what: "on", act: function () { return touch("pipSwitch1") }, done: function () { return checked("pipSwitch1") && the("pipOutline0") !== null } },
            { what: "two pictures", act: function () { return touch("pipLayout5") }, done: function () { return the("pipLayout5").checked && the("pipSecond0").enabledState } },
            { what: "first source", act: function () { return touch("pipFirst2") }, done: function () { return checked("pipFirst2") } },
            { what: "second source, two outlines", act: function () { return touch("pipSecond0") },
              done: function () { return checked("pipSecond0") && the("pipOutline1") !== null && probe.window.switcher.pipInput === 2 } }
        ]),
        audio: reach("audio").concat([
            { what: "outputs answered", act: function () { return true },
              done: function () { return checked("hdmiStyle0") && the("outputStatus").value === qsTranslate("AudioPage", "Monitor connected")
                                         && the("audioRate2").text === qsTranslate("AudioPage", "48 kHz") } },
            { what: "line on programme", act: function () { return touch("programmeAudio3") },
              done: function () { return checked("programmeAudio3") && !checked("programmeAudioFollow") } },
            { what: "NDI on PIP", act: function () { return touch("pipAudio6") }, done: function () { return checked("pipAudio6") } },
            { what: "multiview answered", act: function () { return touch("hdmiStyle1") }, done: function () { return checked("hdmiStyle1") && !checked("hdmiStyle0") } }
        ])
    })

    property int step: 0
    property int waited: 0
    property bool acted: false
    Timer {
        interval: 100; repeat: true; running: probe.window !== null
        onTriggered: {
            var plan = probe.plans[probe.page]
            if (!plan) { console.log("PROBE fail: no plan for \"" + probe.page + "\""); Qt.quit(); return }
            var s = plan[probe.step]
            probe.waited++
            if (!probe.acted) {
                probe.acted = s.act()
            } else if (s.done()) {
                console.log("PROBE step " + s.what)
                probe.step++
                probe.acted = false
                probe.waited = 0
                if (probe.step === plan.length) {
                    console.log("PROBE done")
                    running = false
                    leave.start()
                }
                return
            }
            if (probe.waited > 100) {
                console.log("PROBE fail at \"" + s.what + "\" page=" + (probe.host() ? probe.host().current : "?"))
                Qt.quit()
            }
        }
    }
    // The last step's command leaves on a thread of its own: give it time
    // to reach the simulator before the application ends.
    Timer { id: leave; interval: 1000; onTriggered: Qt.quit() }
}
