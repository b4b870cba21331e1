import QtQuick 2.15
import QtTest 1.2
import xpose.UiprocMain_Desktop 1.0
import "qrc:/CSQML"
import "qrc:/Public"

// The language page switches every text at once: the real store and the
// real native switch, the translations compiled into the program.
Item {
    width: 1920
    height: 1080

    QtObject {
        id: manage
        property var saved: []
        property QtObject uiproMain: UiproMain_Desktop {}
        property QtObject uiproVideo: QtObject {
            signal pushSoftwareVersion(int first, int second)
            signal pushSystemVersion(int first, int second)
            signal pushSN(string deviceID)
        }
        property QtObject uiproc: QtObject {
            function writeInitConfig(obj) { var s = manage.saved.slice(); s.push(JSON.stringify(obj)); manage.saved = s }
        }
    }
    FakeStore { id: live }
    SystemStore { id: system; manage: manage; live: live; language: -1 }
    MainView { id: view; anchors.fill: parent; store: live; pageStores: ({ live: live, system: system }) }
    // Starts the test from a timer, not from a binding: the switch re-evaluates
    // every binding, and would find the test case's own `when` running.
    Timer { running: testCase.windowShown; onTriggered: testCase.when = true }

TestCase {
    id: testCase
    name: "Language"
    when: false
    property var shown: ({})

    function cleanupTestCase() { testSetup.dropTranslation() }

    // Rows run in order: each switches from the language of the row before.
    function test_switchRetranslatesWhatIsShown_data() {
        return [{ tag: "English", code: 1 }, { tag: "German", code: 2 }, { tag: "Chinese", code: 0 }]
    }
    function test_switchRetranslatesWhatIsShown(data) {
        var host = findChild(view, "pageHost")
        host.show("language")
        mouseClick(findChild(view, "language" + data.code))
        compare(system.language, data.code)
        compare(manage.saved[manage.saved.length - 1], JSON.stringify({ language: data.code }))

        var record = findChild(findChild(view, "actionPanel"), "recordButton").label
        compare([record, findChild(view, "menuButton").label, findChild(view, "pageBack").label,
                 findChild(view, "pageTitle").text, findChild(view, "language" + data.code).detail],
                [qsTranslate("ActionPanel", "Record"), qsTranslate("MainView", "Menu"), qsTranslate("PageHost", "Back"),
                 qsTranslate("Pages", "Language"), qsTranslate("LanguagePage", "In use")])
        for (var earlier in shown)
            verify(record !== shown[earlier], data.tag + " differs from " + earlier + ": " + record)
        shown[data.tag] = record
    }
}
}
