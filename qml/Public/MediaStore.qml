import QtQuick 2.15

// The USB disk as the record and upgrade pages see it: whether a recording
// may start and how long it can run, the recordings on the disk (rename,
// playback) and the upgrade images. Views read it; only this store calls
// the native objects. Starting and stopping stay in the live store, which
// probes the disk before every start; this store hears the result.
QtObject {
    id: store
    property var manage
    property var live                 // recording state, start and stop
    property var board                // the bridge firmware step after an upgrade
    property string currentVersion: ""

    readonly property QtObject recorder: manage && manage.uiprocRecord ? manage.uiprocRecord : null
    readonly property QtObject versions: manage && manage.uiprocVersion ? manage.uiprocVersion : null
    readonly property bool recording: live ? live.recording : false

    // --- disk probe and time left ---------------------------------------
    // Minutes left are worked out at the rate a 1080p recording takes; the
    // page states it, so the figure is never taken for a measurement.
    readonly property int recordRateMbps: 8
    // Last probe: 0 usable, -1 no disk, -2 unreadable, -3 full; 1 not probed.
    property int diskCode: 1
    property double usableKiB: -1     // beyond the disk's reserve; -1 unknown
    property double probedAtMs: 0
    readonly property int minutesLeft: usableKiB < 0 ? -1 : minutesFor(usableKiB)
    readonly property bool lowDisk: minutesLeft >= 0 && minutesLeft < 10
    readonly property int lowDiskMinutes: 10

    function minutesFor(kib) { return Math.floor(kib * 1024 * 8 / (recordRateMbps * 1000000) / 60) }

    // Runs the disk probe; it blocks for a shell pipeline, so it is called
    // on the operator's start, on opening the page and every 30 s while
    // recording, never per frame or report.
    function probe() {
        var r = recorder ? Number(recorder.check_is_usb_disk_ok_for_record()) : -1
        noteProbe(r)
        return r
    }
    function noteProbe(r) {
        probedAtMs = Date.now()
        if (isNaN(r)) r = -2
        diskCode = r >= 0 ? 0 : Math.max(-3, Math.round(r))
        usableKiB = r >= 0 ? r : -1
    }

    // The live store probes before every start (the main screen's Record
    // action too); this store hears the result. True when started.
    function startRecording() {
        if (recording)
            return false
        fileName = ""
        return live.startRecording()
    }
    function stopRecording() { live.stopRecording() }
    property Connections liveProbe: Connections {
        target: store.live ? store.live : null
        ignoreUnknownSignals: true
        function onDiskProbed(result) { store.noteProbe(result) }
    }

    property string fileName: ""      // the running recording's file, as the device names it
    property string recordPath: ""
    property int recordSeconds: 0
    readonly property string recordTime: clockText(recordSeconds)
    function clockText(s) {
        function two(n) { return n < 10 ? "0" + n : "" + n }
        return two(Math.floor(s / 3600)) + ":" + two(Math.floor(s / 60) % 60) + ":" + two(s % 60)
    }
    property Timer recordClock: Timer {
        interval: 1000; repeat: true; triggeredOnStart: true
        running: store.recording
        onTriggered: store.recordSeconds = store.live.recordStartMs > 0
                     ? Math.max(0, Math.floor((Date.now() - store.live.recordStartMs) / 1000)) : 0
    }
    property Timer diskWatch: Timer {
        interval: 30000; repeat: true
        running: store.recording
        onTriggered: store.probe()
    }
    onRecordingChanged: {
        if (recording) {
            if (Date.now() - probedAtMs > 30000)
                probe()
            if (manage) manage.uiproc.connectGetRecordFileName()
        } else {
            // The finished file belongs in the list; the media service may
            // still be closing it, so the list is read again a moment later.
            refreshRecordings()
            relist.restart()
        }
    }
    property Timer relist: Timer { interval: 2000; onTriggered: store.refreshRecordings() }

    // --- recordings ------------------------------------------------------
    property var recordings: []       // { created, name, label (for the screen), length, resolution, path }
    property bool listing: false
    function refreshRecordings() {
        if (!recorder)
            return
        listing = true
        recorder.connect_get_usb_record_files()
    }
    // Five entries per file; a short tail is left out.
    function parseRecordings(flat) {
        var out = []
        var n = flat ? flat.length : 0
        for (var i = 0; i + 4 < n; i += 5) {
            var name = String(flat[i + 1])
            out.push({ created: String(flat[i]), name: name, label: shown(name), length: String(flat[i + 2]),
                       resolution: String(flat[i + 3]), path: String(flat[i + 4]) })
        }
        if (n % 5 !== 0)
            console.warn("record list: " + n + " entries, not groups of five; the last " + (n % 5) + " left out")
        return out
    }

    // File names come from any disk: shown on one line, never as markup.
    function shown(text) {
        return String(text).replace(/[\x00-\x1f\x7f\u2028\u2029]/g, "\ufffd").replace(/</g, "\u2039").replace(/>/g, "\u203a")
    }

    // Names land on a USB disk, usually FAT: none of its forbidden
    // characters, no path, no hidden file. "" when usable, else the reason.
    function nameProblem(name) {
        if (name.length === 0) return "empty"
        if (name.length > 64) return "long"
        if (/[\/\\:*?"<>|\x00-\x1f\x7f]/.test(name) || name.charAt(0) === "." || name.charAt(name.length - 1) === ".")
            return "characters"
        return ""
    }
    // "" when renamed, otherwise "empty", "long", "characters", "exists",
    // "busy" (the file being recorded) or "failed".
    function rename(path, newName) {
        if (recording && recordPath !== "" && path === recordPath)
            return "busy"
        newName = String(newName).trim()
        var problem = nameProblem(newName)
        if (problem !== "")
            return problem
        var index = -1
        for (var i = 0; i < recordings.length; ++i) {
            if (recordings[i].path === path)
                index = i
            else if (recordings[i].name.toLowerCase() === newName.toLowerCase())
                return "exists"
        }
        if (index < 0 || !recorder)
            return "failed"
        if (recordings[index].name === newName)
            return ""
        var newPath = recorder.rename_record_file(path, newName)
        if (!newPath)
            return "failed"
        var copy = recordings.slice()
        copy[index] = Object.assign({}, copy[index], { name: newName, label: shown(newName), path: String(newPath) })
        recordings = copy
        return ""
    }

    // --- playback on the device's output ---------------------------------
    // The player's control codes, numbered as the record command numbers its own.
    readonly property var playCodes: ({ play: 1, pause: 0, stop: 2 })
    property string playback: "stopped"   // "playing", "paused", "stopped"
    property bool playbackEnded: false
    function play() { setPlayback("play", "playing") }
    function pause() { setPlayback("pause", "paused") }
    function stopPlayback() { setPlayback("stop", "stopped") }
    function setPlayback(code, state) {
        manage.uiproc.connectVideo(playCodes[code])
        playback = state
        playbackEnded = false
    }

    // --- software upgrade --------------------------------------------------
    property int upgradeDisk: 1       // 0 usable, -1 no disk, -2 unusable; 1 not checked
    property var images: []           // { version, kind, file }, highest version first
    property bool upgrading: false
    property bool watchingUpgradeDisk: false
    // HDMI bridge firmware after an upgrade: -1 none, 0 running, 1 done, 2 failed.
    readonly property int bridgeUpgrade: board ? board.bridgeUpgrade : -1

    function watchUpgradeDisk(on) {
        watchingUpgradeDisk = on
        if (on) {
            upgradeDisk = 1 // a list seen before may be of another disk
            checkUpgradeDisk()
        }
    }
    function checkUpgradeDisk() {
        if (!versions)
            return
        var r = Number(versions.check_is_usb_disk_ok_for_version())
        if (r === upgradeDisk)
            return
        upgradeDisk = r === 0 ? 0 : r === -2 ? -2 : -1
        images = upgradeDisk === 0 ? imagesFrom(versions.getUpgradeVersionList()) : []
    }
    property Timer upgradeDiskTimer: Timer {
        interval: 2000; repeat: true
        running: store.watchingUpgradeDisk && !store.upgrading
        onTriggered: store.checkUpgradeDisk()
    }

    readonly property var imageKinds: [{ tail: "_ZORVANE_RELEASE_", kind: "release" }, { tail: "_ZORVANE_ALPHA_", kind: "test" }]
    // An entry is the file name turned at its second underscore
    // ("1.2.3.img_ZORVANE_RELEASE_"); it is turned back for the upgrade.
    function imageFromEntry(entry) {
        entry = String(entry)
        for (var k = 0; k < imageKinds.length; ++k) {
            var tail = imageKinds[k].tail
            if (entry.length > tail.length && entry.slice(-tail.length) === tail) {
                var rest = entry.slice(0, -tail.length)
                var version = rest.replace(/\.img$/, "")
                if (version === "" || version === rest)
                    return null
                return { version: shown(version), kind: imageKinds[k].kind, file: tail.slice(1) + rest }
            }
        }
        return null
    }
    // The list comes lowest first; it is shown highest first.
    function imagesFrom(list) {
        var out = []
        var skipped = 0, first = ""
        for (var i = (list ? list.length : 0) - 1; i >= 0; --i) {
            var image = imageFromEntry(list[i])
            if (image) {
                out.push(image)
            } else if (skipped++ === 0) {
                first = String(list[i])
            }
        }
        // One line per scan, however many names a disk brings.
        if (skipped > 0)
            console.warn("upgrade list: " + skipped + " entries not understood, left out; the first: " + JSON.stringify(first.slice(0, 80)))
        return out
    }
    // The upgrade stops the media service and restarts the device: never
    // while anything is on air or being recorded.
    readonly property bool upgradeBlockedByShow: live ? live.onAir : false
    function startUpgrade(file) {
        if (upgrading || upgradeDisk !== 0 || !versions || upgradeBlockedByShow || bridgeUpgrade === 0)
            return false
        var known = images.some(function (image) { return image.file === file })
        if (!known)
            return false
        upgrading = true
        manage.uiproc.writeLog("upgrade started: " + file)
        versions.start_upgrade_software(file)
        return true
    }

    // --- reports -------------------------------------------------------------
    property Connections recorderReports: Connections {
        target: store.recorder
        ignoreUnknownSignals: true
        function onUpdateFileRecord(files) {
            store.listing = false
            store.recordings = store.parseRecordings(files)
        }
    }
    property Connections deviceReports: Connections {
        target: store.manage ? store.manage.uiproVideo : null
        ignoreUnknownSignals: true
        function onPushRecordFileName(recordFilePath, recordFileName) {
            store.recordPath = recordFilePath
            store.fileName = store.shown(recordFileName)
        }
        function onPushRecordPlayEndInitiative() {
            store.playback = "stopped"
            store.playbackEnded = true
        }
        // A disk taken out: nothing known about its space any more. A disk
        // put in: its recordings are listed (off this thread).
        function onPushUSBInitiative(status) {
            if (status === 0) {
                store.usableKiB = -1
                store.diskCode = -1
                store.recordings = []
            } else {
                store.refreshRecordings()
            }
        }
    }
}
