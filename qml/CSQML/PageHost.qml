import QtQuick 2.15
import QtQuick.Window 2.15
import "../Public"
import "../CONTROLS"
import "../Element"

// Where pages open: first the menu, then the page chosen in it, each made
// the first time it is shown. The way back is always the button at the top
// left; the live actions stay along the bottom, one touch away. While the
// on-screen keyboard is up the page ends above it and scrolls the field
// being edited into view.
Rectangle {
    id: host
    property var stores: ({})          // store name -> store object
    property var live                  // the live store, for the actions along the bottom
    property string recordTime: ""
    property string current: ""        // "", "menu" or a page name
    property real keyboardTop: height  // top of the on-screen keyboard, in this item
    readonly property bool isOpen: current !== ""
    readonly property var entry: Pages.find(current)
    readonly property Item page: frame.item ? frame.item.page : null
    signal recordRequested()
    signal stopRecordRequested()
    signal pipToggled(bool on)

    // Opens "menu" or a page of the registry; false for an unknown name.
    function show(name) {
        if (name !== "menu" && !Pages.find(name))
            return false
        current = name
        return true
    }
    // A page reached from another page goes back there, the others to the menu.
    function back() { current = current === "menu" ? "" : entry && entry.back ? entry.back : "menu" }
    function close() { current = "" }

    visible: isOpen
    color: Style.background
    MouseArea { anchors.fill: parent } // nothing behind a page takes a touch

    // The frame of a page is made the first time one opens: the main
    // screen's first picture does without it.
    onCurrentChanged: if (current !== "") frame.active = true
    Loader {
        id: frame
        anchors.fill: parent
        active: false
        sourceComponent: Item {
            readonly property Item page: content.item
            Item {
                id: header
                anchors { left: parent.left; right: parent.right; top: parent.top }
                height: Style.touch
                TouchButton {
                    id: backButton
                    objectName: "pageBack"
                    anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
                    width: Style.touch * 1.8
                    label: qsTr("Back")
                    onClicked: host.back()
                }
                Text {
                    objectName: "pageTitle"
                    anchors { left: backButton.right; right: closeButton.left; verticalCenter: parent.verticalCenter; margins: Style.gap }
                    horizontalAlignment: Text.AlignHCenter
                    text: host.current === "menu" ? qsTr("Menu") : host.entry ? host.entry.title : ""
                    color: Style.text
                    font.pixelSize: Style.fontLarge
                    font.bold: true
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: Style.fontNormal
                    elide: Text.ElideRight
                }
                TouchButton {
                    id: closeButton
                    objectName: "pageClose"
                    anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
                    width: Style.touch * 1.8
                    label: qsTr("Close")
                    onClicked: host.close()
                }
            }

            Flickable {
                id: scroller
                objectName: "pageScroller"
                anchors { left: parent.left; right: parent.right; top: header.bottom; topMargin: Style.gap }
                height: Math.max(0, Math.min(actions.y, host.keyboardTop) - y - Style.gap)
                clip: true
                contentWidth: width
                contentHeight: content.item ? Math.max(height, content.item.implicitHeight) : height
                boundsBehavior: Flickable.StopAtBounds

                Loader {
                    id: content
                    width: scroller.width
                    height: scroller.contentHeight
                    source: host.current === "menu" ? Qt.resolvedUrl("MenuPage.qml") : host.entry ? host.entry.source : ""
                    onLoaded: {
                        scroller.contentY = 0 // a new page starts at its top
                        item.objectName = host.current
                        // The menu and pages that lead on to other pages open them here.
                        if (item.openPage)
                            item.openPage.connect(host.show)
                        // Bound, not copied: stores made with the device start (after
                        // the first frame) reach a page that opened before them.
                        if (host.current !== "menu" && host.entry) {
                            var storeName = host.entry.store
                            item.store = Qt.binding(function () { return host.stores[storeName] })
                        }
                    }
                }

                // Keeps the field being edited above the keyboard. Only a field of the
                // page shown counts: focus left behind on the page's slot does not.
                function reveal(target) {
                    if (!target || !content.item)
                        return
                    var inside = false
                    for (var p0 = target.parent; p0 && !inside; p0 = p0.parent)
                        inside = p0 === content.item
                    if (!inside)
                        return
                    var p = target.mapToItem(content.item, 0, 0)
                    if (p.y < contentY)
                        contentY = Math.max(0, p.y - Style.gap)
                    else if (p.y + target.height > contentY + height)
                        contentY = Math.min(contentHeight - height, p.y + target.height - height + Style.gap)
                }
                onHeightChanged: reveal(Window.activeFocusItem)
                Connections {
                    target: host.Window.window
                    function onActiveFocusItemChanged() { scroller.reveal(host.Window.activeFocusItem) }
                }
            }

            ActionPanel {
                id: actions
                objectName: "pageActions"
                compact: true
                anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
                recording: host.live ? host.live.recording : false
                recordTime: host.recordTime
                streaming: host.live ? host.live.streaming : false
                liveChannels: host.live ? host.live.streams.filter(function (s) { return s !== 0 }).length : 0
                pipOn: host.live ? host.live.pipOn : false
                onRecordRequested: host.recordRequested()
                onStopRecordRequested: host.stopRecordRequested()
                onPipToggled: host.pipToggled(on)
                onOpenPage: host.show(name)
            }
        }
    }
}
