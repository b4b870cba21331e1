import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/Public"

// The network page on a fake store: only sound addresses reach the store,
// the store's answers show on the page.
Item {
    id: root
    width: 1200
    height: 1400

    FakeBoardStore { id: fake }
    Component { id: networkPage; NetworkPage { width: root.width } }

TestCase {
    name: "NetworkPage"
    when: windowShown

    function open() {
        var page = createTemporaryObject(networkPage, root)
        page.store = fake
        return page
    }
    function init() {
        fake.calls = []
        fake.dhcp = false
        fake.applying = false
        fake.applyOutcome = ""
        fake.checking = false
        fake.reachability = null
        fake.address = "10.0.0.7"; fake.netmask = "255.255.255.0"; fake.gateway = "10.0.0.1"
        fake.addressKnown = true
    }
    function type(page, name, text) { findChild(page, name).text = text }

    function test_apply_data() {
        return [
            { tag: "valid", ip: "192.168.1.20", mask: "255.255.255.0", gw: "192.168.1.1", sent: true, problem: "" },
            { tag: "no gateway", ip: "192.168.1.20", mask: "255.255.0.0", gw: "0.0.0.0", sent: true, problem: "" },
            { tag: "part above 255", ip: "192.168.1.256", mask: "255.255.255.0", gw: "192.168.1.1", sent: false, problem: "address" },
            { tag: "three parts", ip: "192.168.1", mask: "255.255.255.0", gw: "192.168.1.1", sent: false, problem: "address" },
            { tag: "letters", ip: "192.168.1.x", mask: "255.255.255.0", gw: "192.168.1.1", sent: false, problem: "address" },
            { tag: "shell text", ip: "1.2.3.4;reboot", mask: "255.255.255.0", gw: "1.2.3.1", sent: false, problem: "address" },
            { tag: "broadcast", ip: "192.168.1.255", mask: "255.255.255.0", gw: "192.168.1.1", sent: false, problem: "addressKind" },
            { tag: "holey netmask", ip: "192.168.1.20", mask: "255.0.255.0", gw: "192.168.1.1", sent: false, problem: "netmask" },
            { tag: "gateway elsewhere", ip: "192.168.1.20", mask: "255.255.255.0", gw: "192.168.2.1", sent: false, problem: "gatewayNetwork" },
            { tag: "empty gateway", ip: "192.168.1.20", mask: "255.255.255.0", gw: "", sent: false, problem: "gateway" }
        ]
    }
    function test_apply(data) {
        var page = open()
        type(page, "netAddress", data.ip); type(page, "netNetmask", data.mask); type(page, "netGateway", data.gw)
        fake.calls = []
        mouseClick(findChild(page, "netApply"))
        compare(fake.calls, data.sent ? ["applyNetwork false " + [data.ip, data.mask, data.gw].join(" ")] : [])
        compare(page.problem, data.problem)
        var message = findChild(page, "netMessage")
        compare(message.visible, true)
        if (!data.sent)
            compare(message.text, page.problemTexts[data.problem])
    }

    function test_dhcpSendsWithoutChecking() {
        var page = open()
        mouseClick(findChild(page, "netDhcp"))
        type(page, "netAddress", "garbage")
        fake.calls = []
        mouseClick(findChild(page, "netApply"))
        compare(fake.calls, ["applyNetwork true garbage 255.255.255.0 10.0.0.1"])
        compare(findChild(page, "netAddress").enabled, false)
    }

    function test_applyWaitsForTheAnswer() {
        var page = open()
        var apply = findChild(page, "netApply")
        mouseClick(apply)
        compare(apply.enabledState, false)
        fake.calls = []
        mouseClick(apply)
        compare(fake.calls, [], "a second apply waits")
        fake.applying = false
        fake.applyOutcome = "applied-no-dns"
        compare(apply.enabledState, true)
        var message = findChild(page, "netMessage")
        compare(message.text, qsTranslate("NetworkPage", "Applied, but the name servers could not be written: names may not resolve."))
        compare(message.color, Style.attention)
    }

    function test_storeAnswersFillThePage() {
        fake.addressKnown = false
        var page = open()
        compare(fake.calls, ["refreshNetwork"])
        compare(findChild(page, "netCurrent").value, qsTranslate("NetworkPage", "no address"))
        fake.address = "172.16.5.9"; fake.netmask = "255.255.0.0"; fake.gateway = "0.0.0.0"
        fake.addressKnown = true
        fake.dhcp = true
        compare(findChild(page, "netAddress").text, "172.16.5.9")
        compare(findChild(page, "netGateway").text, "0.0.0.0")
        compare(findChild(page, "netCurrent").value, "172.16.5.9 / 255.255.0.0")
        compare(findChild(page, "netDhcp").checked, true)
    }

    function test_reachability() {
        var page = open()
        var check = findChild(page, "netCheck")
        mouseClick(check)
        compare(fake.calls, ["refreshNetwork", "checkOnline"])
        compare(check.detail, qsTranslate("NetworkPage", "Checking…"))
        fake.checking = false
        fake.reachability = { target: "127.0.0.1", count: 3, online: false }
        compare(check.detail, qsTranslate("NetworkPage", "%1 does not answer (check %2)").arg("127.0.0.1").arg(3))
    }
}
}
