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

    function open() {
        var page = createTemporaryObject(fanPage, root)
        page.store = fake
        return page
    }
    function init() { fake.calls = []; fake.fans = 50; fake.temperature = -1; fake.fanRate = 50 }

    function test_watchesTemperatureWhileOpen() {
        var page = open()
        compare(fake.calls, ["watchTemperature true"])
        compare(findChild(page, "fanTemperature").value, qsTranslate("FanPage", "reading…"))
        fake.temperature = 63
        fake.fanRate = 72
        compare(findChild(page, "fanTemperature").value, qsTranslate("FanPage", "%1 °C").arg(63))
        compare(findChild(page, "fanRate").value, qsTranslate("FanPage", "%1 %").arg(72))
        page.destroy()
        wait(0)
        compare(fake.calls, ["watchTemperature true", "watchTemperature false"])
    }

    function test_modes_data() {
        return [{ tag: "to automatic", start: 50, button: "fanAuto", call: "setFanAuto true", curve: true },
                { tag: "to fixed", start: -1, button: "fanFixed", call: "setFanAuto false", curve: false }]
    }
    function test_modes(data) {
        fake.fans = data.start
        var page = open()
        fake.calls = []
        mouseClick(findChild(page, data.button))
        compare(fake.calls, [data.call])
        compare(findChild(page, "fanCurve").visible, data.curve)
        compare(findChild(page, "fanSlider").visible, !data.curve)
    }

    function test_fixedRateSlider() {
        var page = open()
        fake.calls = []
        var slider = findChild(page, "fanSlider")
        mouseClick(slider, slider.width - slider.height * 0.4, slider.height / 2)
        compare(fake.calls, ["setFanRate 100"])
    }
}
}
