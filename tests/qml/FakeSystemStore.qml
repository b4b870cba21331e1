import QtQuick 2.15

// Stands in for SystemStore: same properties, calls recorded in `calls`.
QtObject {
    property var calls: []
    function record(what) { var c = calls.slice(); c.push(what); calls = c }

    property var about: ({ version: "9.9.9", buildDate: "Jan 2 2026 10:11:12" })
    property int language: 1
    property string softwareVersion: "1.8"
    property string systemVersion: "2.3"
    property string serialNumber: "CS2026TEST0042"
    readonly property bool hasSerialNumber: serialNumber !== "" && serialNumber !== "No Device ID"
    property string ipAddress: "10.1.2.3"

    function loadSettings(settings) { record("loadSettings") }
    // Takes the choice as the real store does, so the page shows it.
    function setLanguage(code) { record("setLanguage " + code); language = code }
    function refresh() { record("refresh") }
}
