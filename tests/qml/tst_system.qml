import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"

// The factory reset and power page on a fake store: each action asks once, Cancel sends nothing.
Item {
    id: root
    width: 1200
    height: 1000

    FakeBoardStore { id: fake }
    Component { id: systemPage; SystemPage { width: root.width } }

TestCase {
    name: "SystemPage"
    when: windowShown

    function init() { fake.calls = [] }

    function test_confirmed_data() {
        return [{ tag: "reset, confirmed", button: "sysReset", answer: "confirmAction", calls: ["factoryReset"], action: "Factory reset" },
                { tag: "reset, cancelled", button: "sysReset", answer: "confirmCancel", calls: [], action: "Factory reset" },
                { tag: "power, confirmed", button: "sysPowerOff", answer: "confirmAction", calls: ["powerOff"], action: "Switch off" },
                { tag: "power, cancelled", button: "sysPowerOff", answer: "confirmCancel", calls: [], action: "Switch off" }]
    }
    function test_confirmed(data) {
        var page = createTemporaryObject(systemPage, root)
        page.store = fake
        mouseClick(findChild(page, data.button))
        compare(fake.calls, [], "nothing before the answer")
        verify(page.confirm.visible)
        compare(page.confirm.actionText, qsTranslate("SystemPage", data.action))
        mouseClick(findChild(page.confirm, data.answer))
        compare(fake.calls, data.calls)
        verify(!page.confirm.visible)
    }
}
}
