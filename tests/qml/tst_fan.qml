import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"

// The fan page on a fake store.
Item {
    id: root
    width: 1200
    height: 1000

    FakeBoardStore { id: fake }
    Component { id: fanPage; FanPage { width: root.width } }

TestCase {
    name: "FanPage"
    when: windowShown

    function test_fan() {
        fake.fans = -1
        var page = createTemporaryObject(fanPage, root)
        page.store = fake
        compare(fake.calls, ["watchTemperature true"], "reads every 5 s while open")
        fake.temperature = 63
        fake.fanRate = 72
        compare(findChild(page, "fanTemperature").value, qsTranslate("FanPage", "%1 °C").arg(63))
        compare(findChild(page, "fanRate").value, qsTranslate("FanPage", "%1 %").arg(72))
        verify(findChild(page, "fanCurve").visible)
        mouseClick(findChild(page, "fanFixed"))
        var slider = findChild(page, "fanSlider")
        verify(slider.visible)
        mouseClick(slider, slider.width - 1, slider.height / 2)
        page.destroy()
        wait(0)
        compare(fake.calls, ["watchTemperature true", "setFanAuto false", "setFanRate 100", "watchTemperature false"])
    }
}
}
