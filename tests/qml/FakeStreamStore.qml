import QtQuick 2.15

// Stands in for StreamStore: same properties, calls recorded in `calls`.
QtObject {
    property var calls: []
    function record(what) { var c = calls.slice(); c.push(what); calls = c }

    property string eventName: "Current"
    property var platforms: []
    property var draft: []
    property var events: []
    property string refusal: ""
    property string notice: ""
    property var streams: [0, 0, 0, 0]
    property bool streaming: streams.some(function (s) { return s !== 0 })
    property string phase: ""
    property var states: ["off", "off", "off", "off"]
    function channelState(i) { return states[i] }
    readonly property var models: [{ code: 0, label: "Device default" }, { code: 1, label: "Custom" }]
    readonly property var resolutions: [{ code: 0, label: "1080p" }, { code: 1, label: "720p" }]
    readonly property var bitrates: [{ code: 0, label: "2 Mbps" }, { code: 1, label: "4 Mbps" }]
    property int model: 1
    property int resolution: 0
    property int bitrate: 1
    readonly property var platformNames: ["youtube", "LinkedIn", "Twitch", "other"]
    function eventLabel(n) { return n }

    function refresh() { record("refresh") }
    function openPlatforms() { record("openPlatforms") }
    function loadEvents() { record("loadEvents") }
    function setParameters(m, r, b) { record("setParameters " + [m, r, b].join(" ")) }
    function setPlatformOn(url, on) { record("setPlatformOn " + url + " " + on) }
    property bool accept: true
    function addUrl(text) { record("addUrl " + text); return accept }
    function removeUrl(url) { record("removeUrl " + url) }
    function createEvent(name, ms) { record("createEvent " + name + " " + ms); return accept }
    function chooseEvent(name) { record("chooseEvent " + name) }
    function deleteEvent(name) { record("deleteEvent " + name) }
    function readyToGoLive() { return accept }
    function goLive() { record("goLive"); return accept }
    function stop() { record("stop") }
}
