import QtQuick 2.15

// Stands in for MediaStore: same properties, calls recorded in `calls`.
QtObject {
    property var calls: []
    function record(what) { var c = calls.slice(); c.push(what); calls = c }

    property bool recording: false
    property string recordTime: "00:00:00"
    property string fileName: ""
    property int recordRateMbps: 8
    property int diskCode: 1
    property int minutesLeft: -1
    property bool lowDisk: minutesLeft >= 0 && minutesLeft < 10
    property int lowDiskMinutes: 10
    property int probeAnswer: 0          // the code the next start gets
    function probe() { record("probe") }
    function startRecording() {
        record("startRecording")
        diskCode = probeAnswer
        return probeAnswer === 0
    }
    function stopRecording() { record("stopRecording") }

    property var recordings: []
    property bool listing: false
    property string renameAnswer: ""
    function refreshRecordings() { record("refreshRecordings") }
    function rename(path, name) { record("rename " + path + " " + name); return renameAnswer }

    property string playback: "stopped"
    property bool playbackEnded: false
    function play() { record("play"); playback = "playing" }
    function pause() { record("pause"); playback = "paused" }
    function stopPlayback() { record("stopPlayback"); playback = "stopped" }

    property int upgradeDisk: 0
    property var images: []
    property bool upgrading: false
    property bool upgradeBlockedByShow: false
    property int bridgeUpgrade: -1
    property string currentVersion: "2.4.0"
    function watchUpgradeDisk(on) { record("watchUpgradeDisk " + on) }
    function startUpgrade(file) { record("startUpgrade " + file); upgrading = true; return true }
}
