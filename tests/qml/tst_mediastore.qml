import QtQuick 2.15
import QtTest 1.2
import "qrc:/Public"

// The media store with the real live store against fake native objects:
// the disk probe gates every start, time left follows the probe, the
// record list and rename, playback codes, and the upgrade images.
TestCase {
    name: "MediaStore"

    QtObject {
        id: fakeManage
        property var sent: []
        function note(what) { var s = sent.slice(); s.push(what); sent = s }
        property QtObject uiproc: QtObject {
            function connectRec(type, code) { fakeManage.note("rec " + type + " " + code) }
            function connectGetRecordFileName() { fakeManage.note("fileName?") }
            function connectVideo(code) { fakeManage.note("video " + code) }
            function writeInitConfig(obj) {}
            function writeLog(text) {}
        }
        property QtObject uiproVideo: QtObject {
            signal pushRecordingStatus(int status)
            signal pushRecordFileName(string recordFilePath, string recordFileName)
            signal pushRecordPlayEndInitiative()
            signal pushUSBInitiative(int status)
        }
        property QtObject uiprocRecord: QtObject {
            signal updateFileRecord(var files)
            property double probeAnswer: 0
            property string renameAnswer: ""
            function check_is_usb_disk_ok_for_record() { fakeManage.note("probe"); return probeAnswer }
            function connect_get_usb_record_files() { fakeManage.note("list") }
            function rename_record_file(path, name) { fakeManage.note("rename " + path + " " + name); return renameAnswer }
        }
        property QtObject uiprocVersion: QtObject {
            property int disk: 0
            property var list: []
            function check_is_usb_disk_ok_for_version() { return disk }
            function getUpgradeVersionList() { fakeManage.note("versions?"); return list }
            function start_upgrade_software(file) { fakeManage.note("upgrade " + file); return 0 }
        }
    }

    LiveStore { id: live; manage: fakeManage }
    MediaStore { id: store; manage: fakeManage; live: live }

    readonly property var twoFiles: ["2026/11/20 10:00:00", "talk", "00:42:07", "1920*1080", "/media/usb0/talk.mp4",
                                     "2026/11/21 18:30:05", "match", "01:02:03", "1280*720", "/media/usb0/match.mp4"]

    function init() {
        live.pollTimer.stop()
        live.recording = false
        store.upgrading = false
        store.watchUpgradeDisk(false)
        store.relist.stop()
        fakeManage.uiprocRecord.updateFileRecord(twoFiles)
        fakeManage.sent = []
    }

    function test_probeGatesTheStart_data() {
        return [{ tag: "no disk", answer: -1, started: false, code: -1 },
                { tag: "under 512 MB free", answer: -3, started: false, code: -3 },
                { tag: "exactly the reserve", answer: 0, started: true, code: 0 }]
    }
    function test_probeGatesTheStart(data) {
        fakeManage.uiprocRecord.probeAnswer = data.answer
        compare(store.startRecording(), data.started)
        compare(fakeManage.sent, data.started ? ["probe", "rec 1 1"] : ["probe"])
        compare(store.diskCode, data.code)
        compare(store.usableKiB, data.started ? data.answer : -1)
        // The main screen's Record action goes the same way.
        fakeManage.sent = []
        compare(live.startRecording(), data.started)
        compare(fakeManage.sent[0], "probe")
    }

    // 8 Mbit/s is 1 000 000 bytes a second: 58 593.75 KiB a minute.
    function test_minutesLeft_data() {
        return [{ tag: "just under ten minutes", kib: 585937, minutes: 9, low: true },
                { tag: "ten minutes", kib: 585938, minutes: 10, low: false },
                { tag: "no disk", kib: -1, minutes: -1, low: false }]
    }
    function test_minutesLeft(data) {
        fakeManage.uiprocRecord.probeAnswer = data.kib
        store.probe()
        compare(store.minutesLeft, data.minutes)
        compare(store.lowDisk, data.low)
    }

    function test_recordingStartAndStopRefreshWhatIsShown() {
        fakeManage.uiprocRecord.probeAnswer = 585937
        store.probedAtMs = 0
        fakeManage.uiproVideo.pushRecordingStatus(1)
        compare(fakeManage.sent, ["probe", "fileName?"], "an unknown disk is probed once, the file name asked")
        fakeManage.uiproVideo.pushRecordFileName("/media/usb0/CSRecord/show.mp4", "show.mp4")
        compare(store.fileName, "show.mp4")
        compare(store.rename("/media/usb0/CSRecord/show.mp4", "other"), "busy", "not the file being recorded")
        verify(store.lowDisk)
        fakeManage.uiproVideo.pushRecordingStatus(0)
        compare(fakeManage.sent, ["probe", "fileName?", "list"], "the finished file is listed")
        tryCompare(fakeManage, "sent", ["probe", "fileName?", "list", "list"], 3000, "and again once the file is closed")
        fakeManage.uiproVideo.pushUSBInitiative(0)
        compare([store.minutesLeft, store.diskCode, store.recordings.length], [-1, -1, 0], "a removed disk forgets its space and files")
        fakeManage.sent = []
        fakeManage.uiproVideo.pushUSBInitiative(1)
        compare(fakeManage.sent, ["list"], "a new disk is listed")
    }

    function test_listParsing_data() {
        return [{ tag: "short tail left out", files: twoFiles.slice(0, 7), names: ["talk"] },
                { tag: "a name made to break the line or be markup", files: ["t", "two\nlines <b>x</b>", "00:00:01", "2*2", "/p"],
                  names: ["two\nlines <b>x</b>"], labels: ["two\ufffdlines \u2039b\u203ax\u2039/b\u203a"] }]
    }
    function test_listParsing(data) {
        fakeManage.uiprocRecord.updateFileRecord(data.files)
        compare(store.recordings.map(function (r) { return r.name }), data.names)
        compare(store.recordings.map(function (r) { return r.label }), data.labels || data.names)
        if (data.names[0] === "talk")
            compare(store.recordings[0], { created: "2026/11/20 10:00:00", name: "talk", label: "talk", length: "00:42:07",
                                           resolution: "1920*1080", path: "/media/usb0/talk.mp4" })
    }

    function test_rename_data() {
        return [{ tag: "refused by the disk", name: "final", answer: "", result: "failed", sent: ["rename /media/usb0/talk.mp4 final"] },
                { tag: "taken, whatever the case", name: "MATCH", answer: "x", result: "exists", sent: [] },
                { tag: "a path", name: "../../etc/passwd", answer: "x", result: "characters", sent: [] }]
    }
    function test_rename(data) {
        fakeManage.uiprocRecord.renameAnswer = data.answer
        compare(store.rename("/media/usb0/talk.mp4", data.name), data.result)
        compare(fakeManage.sent, data.sent)
        compare([store.recordings[0].path, store.recordings[0].name], ["/media/usb0/talk.mp4", "talk"])
    }

    function test_playback() {
        store.play()
        store.pause()
        store.stopPlayback()
        compare(fakeManage.sent, ["video 1", "video 0", "video 2"])
        fakeManage.uiproVideo.pushRecordPlayEndInitiative()
        compare([store.playback, store.playbackEnded], ["stopped", true])
    }

    function test_upgradeImages() {
        fakeManage.uiprocVersion.disk = 0
        fakeManage.uiprocVersion.list = [".img_ZORVANE_RELEASE_", "x.img_ZORVANE_ALPHA_", "1.0.9.img_ZORVANE_RELEASE_", "not an image",
                                         "1.1.0.img_ZORVANE_ALPHA_"]
        store.watchUpgradeDisk(true)
        compare(store.images, [{ version: "1.1.0", kind: "test", file: "ZORVANE_ALPHA_1.1.0.img" },
                               { version: "1.0.9", kind: "release", file: "ZORVANE_RELEASE_1.0.9.img" },
                               { version: "x", kind: "test", file: "ZORVANE_ALPHA_x.img" }])
        verify(!store.startUpgrade("ZORVANE_RELEASE_9.9.9.img"), "only an image on the disk")
        // The disk goes: the list goes, and nothing can be started.
        fakeManage.uiprocVersion.disk = -1
        tryCompare(store, "upgradeDisk", -1, 3000)
        compare(store.images, [])
        verify(!store.startUpgrade("ZORVANE_RELEASE_1.0.9.img"))
        fakeManage.uiprocVersion.disk = 0
        tryCompare(store, "upgradeDisk", 0, 3000)
        var sent = fakeManage.sent
        live.recording = true
        verify(!store.startUpgrade("ZORVANE_RELEASE_1.0.9.img"), "not while recording")
        live.recording = false
        store.board = { bridgeUpgrade: 0 }
        verify(!store.startUpgrade("ZORVANE_RELEASE_1.0.9.img"), "not while the bridge firmware is written")
        store.board = null
        store.relist.stop()
        fakeManage.sent = sent
        verify(store.startUpgrade("ZORVANE_RELEASE_1.0.9.img"))
        verify(!store.startUpgrade("ZORVANE_RELEASE_1.0.9.img"), "once")
        compare(fakeManage.sent, ["versions?", "versions?", "upgrade ZORVANE_RELEASE_1.0.9.img"])
        verify(store.upgrading)
        verify(!store.upgradeDiskTimer.running, "the disk is left alone while the upgrade runs")
    }
}
