import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/CONTROLS"
import "qrc:/Public"

Item {
    width: 1920
    height: 1080

    FakeStore { id: fake }
    MainView { id: view; store: fake; anchors.fill: parent }

TestCase {
    name: "MainView"
    when: windowShown

    function init() {
        fake.calls = []
        fake.programmeInput = 0
        fake.pipInput = 2
        fake.pipOn = false
        fake.recording = false
        fake.linkAlive = true
        fake.streams = [1, 0, 0, 0]
        var dialog = findChild(view, "confirmDialog") // made on first use
        if (dialog)
            dialog.visible = false
    }

    function test_inputTilePutsInputOnProgramme() {
        mouseClick(findChild(view, "input3"))
        compare(fake.calls, ["programme 3"])
    }

    function test_tallyColours() {
        fake.pipOn = true
        compare(findChild(view, "input0").tally, Style.onAir)
        compare(findChild(view, "input2").tally, Style.onPip)
        compare(findChild(view, "input1").detail, qsTr("No signal"))
        compare(findChild(view, "input0").detail, qsTr("PROGRAMME"))
        fake.pipOn = false
        compare(findChild(view, "input2").tally.a, 0)
    }

    function test_pipSourceOnlyWhilePipIsOn() {
        mouseClick(findChild(view, "pipSource3"))
        compare(fake.calls, [])
        fake.pipOn = true
        mouseClick(findChild(view, "pipSource3"))
        mouseClick(findChild(view, "pipSource0")) // on programme: refused
        compare(fake.calls, ["pip 3"])
        mouseClick(findChild(view, "pipButton"))
        compare(fake.calls, ["pip 3", "setPip false"])
    }

    // Opening the page and a confirmed stop are covered with the page frame.
    function test_recordStopCancelled() {
        fake.recording = true
        mouseClick(findChild(view, "recordButton"))
        var dialog = findChild(view, "confirmDialog")
        verify(dialog.visible)
        mouseClick(findChild(view, "confirmCancel"))
        verify(!dialog.visible)
        compare(fake.calls, [])
    }

    function test_statusLineAndTallyFrame() {
        compare(findChild(view, "streamChip0").mark, Style.onAir)
        compare(findChild(view, "streamChip1").mark, Style.off)
        compare(findChild(view, "ipChip").text, "192.168.0.100")
        var link = findChild(view, "linkChip")
        verify(!link.visible, "no link mark while the media service answers")
        fake.linkAlive = false
        verify(link.visible)
        compare(link.text, qsTr("Media service silent"))
        compare(link.mark, Style.attention)
        var panel = findChild(view, "previewPanel")
        compare(panel.border.color, Style.onAir) // streaming on channel 1
        fake.streams = [0, 0, 0, 0]
        compare(panel.border.color, Style.outline)
        fake.recording = true
        compare(panel.border.color, Style.onAir)
    }

    function test_metersClampTo40And80_data() {
        return [{ tag: "below", index: 0, shown: 0 }, { tag: "low edge", index: 1, shown: 0.125 },
                { tag: "upper", index: 5, shown: 0.975 }, { tag: "above", index: 7, shown: 1 }]
    }
    // Each meter a labelled horizontal row, one under the other beside the picture.
    function test_metersClampTo40And80(data) {
        var meter = findChild(view, "meter" + data.index)
        fuzzyCompare(meter.shown, data.shown, 0.0001)
        compare(meter.label, fake.levelNames[data.index])
        verify(meter.width > 2 * meter.height)
        if (data.index > 0)
            verify(meter.y >= findChild(view, "meter" + (data.index - 1)).y + meter.height)
    }
}
}
