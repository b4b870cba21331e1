import QtQuick 2.15
import QtTest 1.2
import "qrc:/CSQML"
import "qrc:/Element"
import "qrc:/Public"

// The record and upgrade pages on a fake store: refusals say why, stopping
// and upgrading ask once, rename and playback reach the store, and the
// store's state shows in words.
Item {
    id: root
    width: 900
    height: 2400

    FakeMediaStore { id: fake }
    Component { id: recordPage; RecordPage { width: root.width } }
    Component { id: upgradePage; UpgradePage { width: root.width } }
    Component { id: statusBar; StatusBar { width: root.width } }

TestCase {
    name: "RecordPages"
    when: windowShown

    function open(component) {
        var page = createTemporaryObject(component, root)
        page.store = fake
        return page
    }
    function init() {
        fake.calls = []
        fake.recording = false
        fake.diskCode = 1
        fake.minutesLeft = -1
        fake.upgrading = false
        fake.upgradeBlockedByShow = false
        fake.upgradeDisk = 0
        fake.bridgeUpgrade = -1
        fake.recordings = [{ created: "2026/11/20 10:00:00", name: "talk", label: "talk", length: "00:42:07", resolution: "1920*1080", path: "/media/usb0/talk.mp4" }]
        fake.images = [{ version: "1.1.0", kind: "test", file: "ZORVANE_ALPHA_1.1.0.img" },
                       { version: "1.0.9", kind: "release", file: "ZORVANE_RELEASE_1.0.9.img" }]
    }

    function test_refusedStartSaysWhy_data() {
        return [{ tag: "no disk", code: -1, text: "No USB disk" },
                { tag: "full", code: -3, text: "Less than 512 MB free on the USB disk" }]
    }
    function test_refusedStartSaysWhy(data) {
        var page = open(recordPage)
        compare(fake.calls, ["refreshRecordings", "probe"], "opening lists the disk and probes it")
        fake.probeAnswer = data.code
        mouseClick(findChild(page, "recordStartStop"))
        compare(fake.calls[2], "startRecording")
        compare(findChild(page, "recordMessage").text, qsTranslate("RecordPage", "Not started: %1.").arg(qsTranslate("RecordPage", data.text)))
        compare(findChild(page, "recordLeft").value, qsTranslate("RecordPage", data.text))
    }

    // Stopping once confirmed is driven end to end; cancelling stops nothing.
    function test_stopAsksFirst() {
        fake.recording = true
        fake.recordTime = "00:05:09"
        fake.diskCode = 0
        fake.minutesLeft = 7
        var page = open(recordPage)
        compare(fake.calls, ["refreshRecordings"], "no probe while recording: the timer does it")
        compare(findChild(page, "recordStartStop").detail, qsTranslate("RecordPage", "Recording %1").arg("00:05:09"))
        verify(findChild(page, "recordLowDisk").visible)
        compare(findChild(page, "recordRate").value, qsTranslate("RecordPage", "%1 Mbit/s (1080p)").arg(8))
        mouseClick(findChild(page, "recordStartStop"))
        var dialog = findChild(root.parent, "recordConfirm")
        verify(dialog.visible)
        compare(dialog.actionText, qsTranslate("RecordPage", "Stop recording"))
        compare(findChild(dialog, "confirmCancel").checked, true, "the safe choice is the default")
        mouseClick(findChild(dialog, "confirmCancel"))
        compare(fake.calls.slice(1), [])
    }

    function test_playback() {
        var page = open(recordPage)
        for (var name of ["playPlay", "playPause", "playStop"])
            mouseClick(findChild(page, name))
        compare(fake.calls.slice(2), ["play", "pause", "stopPlayback"])
        fake.playbackEnded = true
        compare(findChild(page, "playStop").detail, qsTranslate("RecordPage", "Playback ended"))
    }

    // Choosing, asking and starting are driven end to end; here what holds it back.
    function test_upgradeWaitsForAChoiceAndTheShow() {
        var page = open(upgradePage)
        var start = findChild(page, "upgradeStart")
        verify(!start.enabledState, "a version is chosen first")
        mouseClick(findChild(page, "upgradeImage1"))
        verify(start.enabledState)
        fake.upgradeBlockedByShow = true
        verify(!start.enabledState, "not while on air or recording")
        compare(start.detail, qsTranslate("UpgradePage", "Stop recording and streaming first"))
    }

    // The status line: minutes left beside the recording time, amber when few.
    function test_statusLineMinutesLeft_data() {
        return [{ tag: "few", recording: true, minutes: 7, low: true, shown: true },
                { tag: "not recording", recording: false, minutes: 95, low: false, shown: false }]
    }
    function test_statusLineMinutesLeft(data) {
        var bar = createTemporaryObject(statusBar, root, { recording: data.recording, minutesLeft: data.minutes, lowDisk: data.low })
        var chip = findChild(bar, "recordLeftChip")
        compare(chip.visible, data.shown)
        compare(chip.text, qsTranslate("StatusBar", "%n min left", "", data.minutes))
        compare(Qt.colorEqual(chip.mark, Style.attention), data.low)
    }

    function test_bridgeMessages_data() {
        var done = "Success! Upgrade Complete \nCurrent Version: "
        return [{ tag: "running", state: 0, text: "Updating the HDMI input firmware… Do not switch off.", tail: "" },
                { tag: "done", state: 1, text: done, tail: "2.4.0" },
                { tag: "failed", state: 2, text: done, tail: "2.4.0\n" + qsTranslate("UpgradePage", "Hdmi Upgrade failed") }]
    }
    function test_bridgeMessages(data) {
        fake.bridgeUpgrade = data.state
        var page = open(upgradePage)
        compare(findChild(page, "bridgeMessage").text, qsTranslate("UpgradePage", data.text) + data.tail)
        compare(findChild(page, "upgradeStart").visible, data.state !== 0, "no new upgrade while the firmware is written")
    }
}
}
