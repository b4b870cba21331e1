import QtQuick 2.15
import "../Public"
import "../CONTROLS"
import "../Public/Address.js" as Address

// The wired address: DHCP or a fixed address, checked before it is sent;
// the current address and a reachability check.
Column {
    id: page
    property var store
    spacing: Style.gap

    property bool useDhcp: false
    property string problem: ""     // key from Address.problem, "" when none

    function fill() {
        if (!store)
            return
        useDhcp = store.dhcp
        if (store.addressKnown) {
            addressField.text = store.address
            netmaskField.text = store.netmask
            gatewayField.text = store.gateway
        }
    }
    // The answer can come during the request (an older read being cut
    // short answers at once), so the fields are filled after asking too.
    onStoreChanged: if (store) { store.refreshNetwork(); fill() }
    Connections {
        target: page.store ? page.store : null
        function onAddressKnownChanged() { page.fill() }
        function onDhcpChanged() { page.useDhcp = page.store.dhcp }
    }

    function apply() {
        problem = useDhcp ? "" : Address.problem(addressField.text.trim(), netmaskField.text.trim(), gatewayField.text.trim())
        if (problem !== "")
            return
        store.applyNetwork(useDhcp, addressField.text.trim(), netmaskField.text.trim(), gatewayField.text.trim())
    }
    readonly property var problemTexts: ({
        address: qsTr("The address must be four numbers from 0 to 255 with dots between, e.g. 192.168.0.100."),
        addressKind: qsTr("This address cannot belong to a device (network, broadcast, loopback or multicast address)."),
        netmask: qsTr("The netmask must look like 255.255.255.0."),
        gateway: qsTr("The gateway must be four numbers with dots between; 0.0.0.0 means none."),
        gatewayNetwork: qsTr("The gateway must be in the same network as the address."),
        gatewaySame: qsTr("The gateway cannot be the device's own address.")
    })
    readonly property string message: problem !== "" ? problemTexts[problem]
        : !store ? ""
        : store.applying ? qsTr("Applying…")
        : store.applyOutcome === "applied" ? qsTr("Applied.")
        : store.applyOutcome === "applied-no-dns" ? qsTr("Applied, but the name servers could not be written: names may not resolve.")
        : store.applyOutcome === "refused" ? qsTr("Not applied: the device refused these values.")
        : ""

    Row {
        width: page.width
        spacing: Style.gap
        TouchButton {
            objectName: "netDhcp"
            width: (page.width - Style.gap) / 2
            label: qsTr("Automatic (DHCP)")
            detail: checked ? qsTr("Selected") : ""   // the choice in words, not only in colour
            checked: page.useDhcp
            onClicked: { page.useDhcp = true; page.problem = "" }
        }
        TouchButton {
            objectName: "netStatic"
            width: (page.width - Style.gap) / 2
            label: qsTr("Fixed address")
            detail: checked ? qsTr("Selected") : ""
            checked: !page.useDhcp
            onClicked: page.useDhcp = false
        }
    }
    AddressField {
        id: addressField
        objectName: "netAddress"
        width: page.width
        label: qsTr("Address")
        enabled: !page.useDhcp
        problem: page.problem === "address" || page.problem === "addressKind"
    }
    AddressField {
        id: netmaskField
        objectName: "netNetmask"
        width: page.width
        label: qsTr("Netmask")
        enabled: !page.useDhcp
        problem: page.problem === "netmask"
    }
    AddressField {
        id: gatewayField
        objectName: "netGateway"
        width: page.width
        label: qsTr("Gateway")
        enabled: !page.useDhcp
        problem: page.problem.indexOf("gateway") === 0
    }
    Text {
        objectName: "netMessage"
        width: page.width
        visible: text !== ""
        text: page.message
        wrapMode: Text.WordWrap
        color: page.problem !== "" || (page.store && page.store.applyOutcome !== "applied" && !page.store.applying) ? Style.attention : Style.text
        font.pixelSize: Style.fontSmall
    }
    TouchButton {
        objectName: "netApply"
        width: page.width
        label: page.store && page.store.applying ? qsTr("Applying…") : qsTr("Apply")
        enabledState: page.store ? !page.store.applying : false
        onClicked: page.apply()
    }
    InfoRow {
        objectName: "netCurrent"
        width: page.width
        name: qsTr("Current address")
        value: !page.store || !page.store.addressKnown ? qsTr("no address")
               : page.store.address + " / " + page.store.netmask
                 + (page.store.gateway !== "" && page.store.gateway !== "0.0.0.0" ? "  " + qsTr("via %1").arg(page.store.gateway) : "")
    }
    TouchButton {
        objectName: "netCheck"
        width: page.width
        label: qsTr("Check connection")
        detail: !page.store ? ""
                : page.store.checking ? qsTr("Checking…")
                : !page.store.reachability ? ""
                : page.store.reachability.online ? qsTr("%1 answers (check %2)").arg(page.store.reachability.target).arg(page.store.reachability.count)
                : qsTr("%1 does not answer (check %2)").arg(page.store.reachability.target).arg(page.store.reachability.count)
        tally: page.store && page.store.reachability && !page.store.checking && !page.store.reachability.online ? Style.attention : "transparent"
        enabledState: page.store ? !page.store.checking : false
        onClicked: page.store.checkOnline()
    }
}
