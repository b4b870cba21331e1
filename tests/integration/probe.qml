import QtQuick 2.15
import "qrc:/Public"

// Drives the real native objects against the simulator and prints what it
// sees; the test reads these lines.
Item {
    id: probe
    property int frames: 0
    property var firstLevels: null
    property bool levelsMoved: false
    property int cut: -1
    property bool initSeen: false

    UiprocManage { id: manage }

    Connections {
        target: manage.uiproVideo
        function onPushPGMCutFinish(sourceIndex) {
            probe.cut = sourceIndex
            console.log("PROBE cut " + sourceIndex)
        }
        function onPushInitInput(mainInput, subInput) {
            // A restarted simulator starts from its own programme input.
            if (mainInput === 2) probe.initSeen = true
            console.log("PROBE init " + mainInput + " " + subInput)
        }
    }
    Connections {
        target: CodeImage
        function onCallRefreshMainImg() {
            probe.frames++
            // Fetch the frame the way the screens do, through the provider.
            img.source = "image://MyMainCodeImg/" + Math.random()
        }
    }
    Image {
        id: img
        cache: false
        onStatusChanged: if (status === Image.Ready && probe.frames % 10 === 1)
                             console.log("PROBE frame " + sourceSize.width + "x" + sourceSize.height)
    }
    Connections {
        target: manage.uiprocGetAudioShareData
        function onUpdateVoise(a, b, c, d, e, f, g, h, i) {
            var levels = [a, b, c, d, e, f, g, h, i]
            if (probe.firstLevels === null) probe.firstLevels = levels
            else if (levels.join() !== probe.firstLevels.join()) probe.levelsMoved = true
        }
    }

    // "probe-seconds=N" on the command line keeps the probe running at least N seconds.
    property int minSeconds: {
        var args = Qt.application.arguments
        for (var i = 0; i < args.length; ++i)
            if (args[i].indexOf("probe-seconds=") === 0) return parseInt(args[i].substring(14))
        return 0
    }

    Timer {
        interval: 250; repeat: true; running: true
        property int ticks: 0
        onTriggered: {
            ticks++
            // Asked again until answered: a loaded machine may reach the first ask
            // only after the simulator has gone away.
            if (ticks % 8 === 4 && !(probe.cut === 2 && probe.initSeen)) manage.uiproc.connectSwitchVideo(2, true)
            if (ticks % 8 === 5 && !probe.initSeen) manage.uiproc.connectReadInitInput()
            if (ticks % 4 === 0) console.log("PROBE second " + ticks / 4 + " frames " + probe.frames)
            if ((probe.cut === 2 && probe.initSeen && probe.frames > 20 && probe.levelsMoved && ticks >= probe.minSeconds * 4) || ticks > 160) {
                console.log("PROBE result cut=" + probe.cut + " frames=" + probe.frames + " levelsMoved=" + probe.levelsMoved)
                Qt.quit()
            }
        }
    }

    Component.onCompleted: {
        manage.uiprocGetImageShareData.getShareImageData()
        manage.uiprocGetAudioShareData.getShareAudioData()
        manage.uiproVideo.bizConnect()
    }
}
