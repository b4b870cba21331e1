import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/Public"

// The display page on a fake store.
Item {
    id: root
    width: 1200
    height: 1000

    FakeBoardStore { id: fake }
    Component { id: displayPage; DisplayPage { width: root.width } }

TestCase {
    name: "DisplayPage"
    when: windowShown

    function open() {
        var page = createTemporaryObject(displayPage, root)
        page.store = fake
        return page
    }
    function init() { fake.calls = []; fake.brightness = 200; fake.rotation = 0; fake.rotationAtStart = 0 }

    function test_brightnessSlider_data() {
        return [{ tag: "left end", at: 0, value: 10 }, { tag: "right end", at: 1, value: 255 }, { tag: "middle", at: 0.5, value: 133 }]
    }
    function test_brightnessSlider(data) {
        var page = open()
        var slider = findChild(page, "displayBrightness")
        var handle = slider.height * 0.8 / 2
        mouseClick(slider, handle + data.at * (slider.width - 2 * handle), slider.height / 2)
        compare(fake.calls.length, 1)
        var sent = Number(fake.calls[0].split(" ")[1])
        verify(Math.abs(sent - data.value) <= 1, fake.calls[0])
        compare(findChild(page, "displayBrightnessValue").text, Math.round(100 * sent / 255) + " %")
    }

    function test_rotationSavedForNextStart() {
        var page = open()
        var note = findChild(page, "displayRotationNote")
        compare(note.text, qsTranslate("DisplayPage", "A change of orientation is used at the next start."))
        mouseClick(findChild(page, "displayRotation1"))
        compare(fake.calls, ["setRotation 1"])
        compare(findChild(page, "displayRotation1").checked, true)
        compare(findChild(page, "displayRotation0").detail, qsTranslate("DisplayPage", "In use now"))
        compare(note.text, qsTranslate("DisplayPage", "Saved. The new orientation is used at the next start."))
    }
}
}
