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
        fake.dhcp = false; fake.applying = false; fake.applyOutcome = ""; fake.checking = false
        fake.address = "10.0.0.7"; fake.netmask = "255.255.255.0"; fake.gateway = "10.0.0.1"
        fake.addressKnown = true
    }

    function test_apply_data() {
        return [
            { tag: "valid", ip: "192.168.1.20", mask: "255.255.255.0", gw: "192.168.1.1", problem: "" },
            { tag: "no gateway", ip: "192.168.1.20", mask: "255.255.0.0", gw: "0.0.0.0", problem: "" },
            { tag: "part above 255", ip: "192.168.1.256", mask: "255.255.255.0", gw: "192.168.1.1", problem: "address" },
            { tag: "shell text", ip: "1.2.3.4;reboot", mask: "255.255.255.0", gw: "1.2.3.1", problem: "address" },
            { tag: "broadcast", ip: "192.168.1.255", mask: "255.255.255.0", gw: "192.168.1.1", problem: "addressKind" },
            { tag: "holey netmask", ip: "192.168.1.20", mask: "255.0.255.0", gw: "192.168.1.1", problem: "netmask" },
            { tag: "gateway elsewhere", ip: "192.168.1.20", mask: "255.255.255.0", gw: "192.168.2.1", problem: "gatewayNetwork" }
        ]
    }
    function test_apply(data) {
        var page = open()
        findChild(page, "netAddress").text = data.ip
        findChild(page, "netNetmask").text = data.mask
        findChild(page, "netGateway").text = data.gw
        fake.calls = []
        mouseClick(findChild(page, "netApply"))
        compare(fake.calls, data.problem === "" ? ["applyNetwork false " + [data.ip, data.mask, data.gw].join(" ")] : [])
        if (data.problem !== "")
            compare(findChild(page, "netMessage").text, page.problemTexts[data.problem])
    }

    function test_applyWaitsForTheAnswer() {
        var page = open()
        var apply = findChild(page, "netApply"), message = findChild(page, "netMessage")
        mouseClick(findChild(page, "netDhcp"))
        mouseClick(apply)
        mouseClick(apply)
        compare(fake.calls, ["refreshNetwork", "applyNetwork true 10.0.0.7 255.255.255.0 10.0.0.1"], "a second apply waits")
        compare(apply.enabledState, false)
        fake.applying = false
        fake.applyOutcome = "applied-no-dns"
        compare(apply.enabledState, true)
        compare(message.text, qsTranslate("NetworkPage", "Applied, but the name servers could not be written: names may not resolve."))
        compare(message.color, Style.attention)
    }

    function test_storeAnswersFillThePage() {
        fake.addressKnown = false
        var page = open()
        compare(findChild(page, "netCurrent").value, qsTranslate("NetworkPage", "no address"))
        fake.address = "172.16.5.9"; fake.netmask = "255.255.0.0"; fake.gateway = "0.0.0.0"
        fake.addressKnown = true
        fake.dhcp = true
        compare(findChild(page, "netAddress").text, "172.16.5.9")
        compare(findChild(page, "netCurrent").value, "172.16.5.9 / 255.255.0.0")
        compare(findChild(page, "netDhcp").checked, true)
        var check = findChild(page, "netCheck")
        mouseClick(check)
        compare(fake.calls, ["refreshNetwork", "checkOnline"])
        fake.checking = false
        fake.reachability = { target: "127.0.0.1", count: 3, online: false }
        compare(check.detail, qsTranslate("NetworkPage", "%1 does not answer (check %2)").arg("127.0.0.1").arg(3))
    }
}
}
