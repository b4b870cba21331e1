import QtQuick 2.15
import QtQuick.Window 2.15
import "../Public"
import "../CONTROLS"

// Software upgrade from the USB disk: the images found, highest version
// first, one chosen and confirmed; then "Upgrading..." until the device
// restarts. After the restart the HDMI bridge firmware step reports here.
Column {
    id: page
    property var store
    spacing: Style.gap

    property string chosen: ""         // file name of the chosen image

    onStoreChanged: if (store) store.watchUpgradeDisk(true)
    Component.onDestruction: if (store) store.watchUpgradeDisk(false)
    // Watch the disk only while the page is shown.
    onVisibleChanged: if (store) store.watchUpgradeDisk(visible)

    readonly property var chosenImage: {
        if (!store) return null
        for (var i = 0; i < store.images.length; ++i)
            if (store.images[i].file === chosen)
                return store.images[i]
        return null
    }
    function kindText(kind) { return kind === "release" ? qsTr("release") : qsTr("test build") }
    function askUpgrade() {
        var image = chosenImage
        if (!image)
            return
        confirm.ask(qsTr("Upgrade the software to version %1 (%2)? The device restarts. Do not switch it off or remove the USB disk.")
                    .arg(image.version).arg(kindText(image.kind)),
                    qsTr("Upgrade"), function () { page.store.startUpgrade(image.file) })
    }

    // --- after a restart: the HDMI bridge firmware ------------------------
    Rectangle {
        objectName: "bridgeState"
        width: page.width
        height: bridgeText.implicitHeight + 2 * Style.gap
        visible: page.store ? page.store.bridgeUpgrade >= 0 : false
        radius: Style.radius
        color: Style.surface
        border.width: 3
        border.color: !page.store ? Style.outline
                      : page.store.bridgeUpgrade === 1 ? Style.onPip
                      : page.store.bridgeUpgrade === 2 ? Style.attention : Style.outline
        Text {
            id: bridgeText
            objectName: "bridgeMessage"
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Style.gap }
            wrapMode: Text.WordWrap
            color: Style.text
            font.pixelSize: Style.fontNormal
            text: !page.store ? ""
                  : page.store.bridgeUpgrade === 0 ? qsTr("Updating the HDMI input firmware… Do not switch off.")
                  : page.store.bridgeUpgrade === 1 ? qsTr("Success! Upgrade Complete \nCurrent Version: ") + page.store.currentVersion
                  : page.store.bridgeUpgrade === 2 ? qsTr("Success! Upgrade Complete \nCurrent Version: ") + page.store.currentVersion
                                                     + "\n" + qsTr("Hdmi Upgrade failed")
                  : ""
        }
    }

    // --- running upgrade -----------------------------------------------------
    Rectangle {
        objectName: "upgrading"
        width: page.width
        height: upgradingText.implicitHeight + 2 * Style.gap
        visible: page.store ? page.store.upgrading : false
        radius: Style.radius
        color: Style.surface
        border.width: 3
        border.color: Style.attention
        Text {
            id: upgradingText
            anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: Style.gap }
            wrapMode: Text.WordWrap
            color: Style.text
            font.pixelSize: Style.fontLarge
            text: qsTr("Upgrading...") + "\n" + qsTr("The device restarts by itself. Do not switch it off or remove the USB disk.")
        }
    }

    // --- disk and images -----------------------------------------------------
    InfoRow {
        objectName: "upgradeDisk"
        width: page.width
        visible: page.store ? !page.store.upgrading : false
        name: qsTr("USB disk")
        value: !page.store ? ""
               : page.store.upgradeDisk === 0 ? qsTr("ready")
               : page.store.upgradeDisk === -1 ? qsTr("No USB disk")
               : page.store.upgradeDisk === -2 ? qsTr("The USB disk cannot be read")
               : qsTr("checking…")
    }
    Text {
        objectName: "upgradeNone"
        width: page.width
        visible: page.store ? !page.store.upgrading && page.store.upgradeDisk === 0 && page.store.images.length === 0 : false
        text: qsTr("No upgrade images on the USB disk. They are named ZORVANE_RELEASE_<version>.img or ZORVANE_ALPHA_<version>.img and lie at the top of the disk.")
        color: Style.attention
        font.pixelSize: Style.fontSmall
        wrapMode: Text.WordWrap
    }
    Repeater {
        objectName: "upgradeImages"
        // Nothing to choose while an upgrade or the bridge firmware step runs.
        model: page.store && !page.store.upgrading && page.store.bridgeUpgrade !== 0 ? page.store.images : []
        TouchButton {
            objectName: "upgradeImage" + index
            width: page.width
            label: qsTr("Version %1").arg(modelData.version)
            detail: page.kindText(modelData.kind) + (checked ? " · " + qsTr("Chosen") : "")
            checked: page.chosen === modelData.file
            onClicked: page.chosen = modelData.file
        }
    }
    TouchButton {
        objectName: "upgradeStart"
        width: page.width
        visible: page.store ? !page.store.upgrading && page.store.bridgeUpgrade !== 0 : false
        label: qsTr("Upgrade")
        detail: !page.store ? ""
                : page.store.upgradeDisk !== 0 ? qsTr("Needs a USB disk")
                : page.store.upgradeBlockedByShow ? qsTr("Stop recording and streaming first")
                : page.chosenImage ? qsTr("to version %1").arg(page.chosenImage.version)
                : qsTr("Choose a version first")
        enabledState: page.store ? page.store.upgradeDisk === 0 && !page.store.upgradeBlockedByShow && page.chosenImage !== null : false
        onClicked: page.askUpgrade()
    }

    ConfirmDialog {
        id: confirm
        objectName: "upgradeConfirm"
        parent: page.Window.contentItem ? page.Window.contentItem : page
        anchors.fill: parent
    }
}
