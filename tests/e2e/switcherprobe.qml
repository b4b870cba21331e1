import QtQuick 2.15

// Drives one of the NDI, camera and scope pages of the real interface
// against the simulator, reached through the menu and driven by the
// controls' object names. The page is the
// application's first argument ("probe-ndi", "probe-ptz", "probe-scopes").
// Prints "PROBE step ..." per step and "PROBE done" or "PROBE fail at ...".
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
    // A held move: pressed now, released by a later step.
    function press(name) {
        var b = the(name)
        if (!b || !b.enabledState) return false
        b.holding = true
        b.held()
        return true
    }

    // Two touches from the main screen: the menu, then the page's tile.
    function reach(name) {
        return [{ what: "menu", act: function () { return probe.window.deviceStarted && touch("menuButton") }, done: function () { return opened("menu") } },
                { what: "page", act: function () { return touch("menu_" + name) }, done: function () { return opened(name) } }]
    }
    readonly property var plans: ({
        ndi: reach("ndi").concat([
            { what: "source listed", act: function () { return true }, done: function () { return the("ndiSource_CAM-NORTH (PTZ1)") !== null } },
            { what: "source received", act: function () { return touch("ndiSource_CAM-NORTH (PTZ1)") },
              done: function () { return the("ndiDecoding").detail === qsTranslate("NdiPage", "On") } },
            { what: "group name kept", act: function () {
                  var f = the("ndiName_group")
                  if (!f) return false
                  f.text = "Stage A"
                  return touch("ndiNameSet_group")
              }, done: function () { return probe.window.ndi.groupName === "Stage A" } }
        ]),
        ptz: reach("ptz").concat([
            { what: "moving right", act: function () { return press("ptzRight") }, done: function () { return probe.window.camera.moving === 4 } },
            { what: "released", act: function () { the("ptzRight").end(); return true }, done: function () { return probe.window.camera.moving === 0 } },
            { what: "store mode", act: function () { return touch("ptzStoreMode") }, done: function () { return the("ptzPreset2").detail === qsTranslate("PtzPage", "Store here") } },
            { what: "stored", act: function () { return touch("ptzPreset2") },
              done: function () { return the("ptzPreset2").detail === qsTranslate("PtzPage", "Camera is here") } }
        ]),
        scopes: reach("scopes").concat([
            { what: "vectorscope chosen", act: function () { return touch("scopeType3") }, done: function () { return the("scopePosition2").visible } },
            { what: "vectorscope top right", act: function () { return touch("scopePosition2") },
              done: function () { return the("scopeType3").detail === qsTranslate("ScopesPage", "Top right") } },
            { what: "safe frames on the preview", act: function () { return touch("safeFrames2") },
              done: function () { var g = the("previewPanel"); g = g ? find(g, "safeCut") : null; return g !== null && g.visible } }
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
