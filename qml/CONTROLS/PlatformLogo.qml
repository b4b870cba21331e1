import QtQuick 2.15
import "../Public"

// A platform's badge: a coloured rounded square with a short mark and the
// platform's name beneath. Names are matched exactly as the event store
// gives them ("LinkedIn", "Zor"); anything else is drawn as "other".
Column {
    id: logo
    property string name: "other"
    property bool on: true                 // off: dimmed
    property real size: Style.touch
    property bool showName: true
    spacing: 4

    readonly property var badges: ({
        "tiktok":   { mark: "TT", colour: "#111111", ink: "#25f4ee" },
        "huya":     { mark: "HY", colour: "#ff9600", ink: "#ffffff" },
        "bilibili": { mark: "B",  colour: "#00a1d6", ink: "#ffffff" },
        "douyu":    { mark: "DY", colour: "#ff7800", ink: "#ffffff" },
        "qie":      { mark: "QE", colour: "#1f6ff2", ink: "#ffffff" },
        "tengxun":  { mark: "TX", colour: "#0052d9", ink: "#ffffff" },
        "zoom":     { mark: "Z",  colour: "#2d8cff", ink: "#ffffff" },
        "youtube":  { mark: "YT", colour: "#ff0000", ink: "#ffffff" },
        "LinkedIn": { mark: "in", colour: "#0a66c2", ink: "#ffffff" },
        "Twitter":  { mark: "X",  colour: "#1d9bf0", ink: "#ffffff" },
        "Twitch":   { mark: "TW", colour: "#9146ff", ink: "#ffffff" },
        "facebook": { mark: "f",  colour: "#1877f2", ink: "#ffffff" },
        "Zor":      { mark: "ZR", colour: "#00b386", ink: "#ffffff" },
        "other":    { mark: "RTMP", colour: "#5b606b", ink: "#ffffff" }
    })
    readonly property bool known: badges.hasOwnProperty(name)
    readonly property var badge: known ? badges[name] : badges["other"]
    readonly property string shownName: known ? name : "other"
    opacity: on ? 1 : 0.5

    Rectangle {
        objectName: "logoBadge"
        anchors.horizontalCenter: parent.horizontalCenter
        width: logo.size
        height: logo.size
        radius: logo.size / 5
        color: logo.badge.colour
        border.width: 2
        border.color: Style.outline
        Text {
            objectName: "logoMark"
            anchors.centerIn: parent
            width: parent.width - 8
            horizontalAlignment: Text.AlignHCenter
            text: logo.badge.mark
            color: logo.badge.ink
            font.pixelSize: logo.size * 0.4
            font.bold: true
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
        }
    }
    Text {
        objectName: "logoName"
        visible: logo.showName
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.max(logo.size, implicitWidth)
        horizontalAlignment: Text.AlignHCenter
        text: logo.shownName
        color: Style.text
        font.pixelSize: Style.fontSmall
    }
}
