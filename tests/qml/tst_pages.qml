import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"

// Each page alone on a fake store: what it shows and what it asks the store to do.
Item {
    id: root
    width: 1200
    height: 1000

    FakeSystemStore { id: fake }
    Component { id: languagePage; LanguagePage { width: root.width } }
    Component { id: aboutPage; AboutPage { width: root.width } }

TestCase {
    name: "Pages"
    when: windowShown

    // Opened the way the page host opens it: made first, then given its store.
    function open(component) {
        var page = createTemporaryObject(component, root)
        page.store = fake
        return page
    }
    function init() {
        fake.calls = []
        fake.language = 1
        fake.serialNumber = "CS2026TEST0042"
        fake.softwareVersion = "1.8"
    }

    function test_languageButton_data() {
        return [{ tag: "Chinese", code: 0 }, { tag: "English again", code: 1 }]
    }
    function test_languageButton(data) {
        fake.language = data.code === 1 ? 2 : 1
        var page = open(languagePage)
        mouseClick(findChild(page, "language" + data.code))
        compare(fake.calls, ["setLanguage " + data.code])
        for (var code = 0; code < 3; ++code) {
            var button = findChild(page, "language" + code)
            compare(button.checked, code === data.code, "button " + code)
            compare(button.detail, code === data.code ? qsTranslate("LanguagePage", "In use") : "")
        }
    }

    function test_aboutShowsTheDevice_data() {
        var asking = qsTranslate("AboutPage", "asking the device…")
        return [{ tag: "answered", serial: "CS2026TEST0042", software: "1.8", shownSerial: "CS2026TEST0042", shownSoftware: "1.8" },
                { tag: "no ID from the device", serial: "No Device ID", software: "1.8",
                  shownSerial: qsTranslate("AboutPage", "no device ID"), shownSoftware: "1.8" },
                { tag: "not answered yet", serial: "", software: "", shownSerial: asking, shownSoftware: asking }]
    }
    function test_aboutShowsTheDevice(data) {
        fake.serialNumber = data.serial
        fake.softwareVersion = data.software
        var page = open(aboutPage)
        compare(fake.calls, ["refresh"], "asks the device once when it opens")
        compare(findChild(page, "about_serial").value, data.shownSerial)
        compare(findChild(page, "about_software").value, data.shownSoftware)
        compare(findChild(page, "about_system").value, "2.3")
        compare(findChild(page, "about_address").value, "10.1.2.3")
        var program = findChild(page, "about_program").value
        verify(program.indexOf("9.9.9") >= 0 && program.indexOf("Jan 2 2026 10:11:12") >= 0, program)
    }
}
}
