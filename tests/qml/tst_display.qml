import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"

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

    function test_brightnessAndRotation() {
        fake.brightness = 200
        var page = createTemporaryObject(displayPage, root)
        page.store = fake
        var slider = findChild(page, "displayBrightness")
        mouseClick(slider, slider.width - 1, slider.height / 2)
        compare(fake.calls, ["setBrightness 255"])
        compare(findChild(page, "displayBrightnessValue").text, "100 %")
        var note = findChild(page, "displayRotationNote")
        compare(note.text, qsTranslate("DisplayPage", "A change of orientation is used at the next start."))
        mouseClick(findChild(page, "displayRotation1"))
        compare(fake.calls, ["setBrightness 255", "setRotation 1"])
        compare(findChild(page, "displayRotation0").detail, qsTranslate("DisplayPage", "In use now"))
        compare(note.text, qsTranslate("DisplayPage", "Saved. The new orientation is used at the next start."))
    }
}
}
