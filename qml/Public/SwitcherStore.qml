import QtQuick 2.15
import "VideoFormat.js" as VideoFormat

// The switcher's own pages: formats per input, picture in picture and the
// audio mix with the outputs. PIP and the programme live in the live store,
// which the main screen shows; this store adds what only the pages need.
// Views read it; only this store calls the native objects.
QtObject {
    id: store
    property var manage
    property var live

    // --- inputs and formats --------------------------------------------
    // Format inputs: the query's input number is the index.
    readonly property var formatInputNames: [qsTr("HDMI 1"), qsTr("HDMI 2"), qsTr("USB camera 1"), qsTr("USB camera 2"), qsTr("NDI")]
    readonly property var formatKeys: ["HDMI1VideoFormat", "HDMI2VideoFormat", "UVC1VideoFormat", "UVC2VideoFormat", "NDIVideoFormat"]
    // Per input: null until the device answered, [] for no signal, else
    // the formats best first, each {type, width, height, fps, interlaced, label, resolution}.
    property var formatLists: [null, null, null, null, null]
    // Per input: the device's current format (parsed), null when it has none.
    property var currentFormats: [null, null, null, null, null]
    property var currentKnown: [false, false, false, false, false]
    // Per input: the resolution text last chosen here (what the settings keep).
    property var chosen: ["", "", "", "", ""]
    // Per input: a choice sent and not yet answered.
    property var pending: ["", "", "", "", ""]
    // The device reports a current format for the first four inputs only.
    readonly property int currentFormatInputs: 4

    function setAt(list, index, value) { var copy = list.slice(); copy[index] = value; return copy }

    function refreshFormats() {
        manage.uiproc.connectGetInputSignalFormat()
        manage.uiproc.connectGetInputCurrentFormat()
    }
    function refreshInput(input) {
        manage.uiproc.connectGetInputSignalFormat(input)
        if (input < currentFormatInputs)
            manage.uiproc.connectGetInputCurrentFormat(input)
    }
    // The set command takes the format of the input the settings name as
    // current, from a list indexed by input: the input is saved first.
    function chooseFormat(input, index) {
        var list = formatLists[input]
        if (!list || index < 0 || index >= list.length)
            return false
        var f = list[index]
        var save = { "curInputIndex": input }
        save[formatKeys[input]] = f.resolution
        manage.uiproc.writeInitConfig(save)
        var formats = []
        for (var i = 0; i <= input; ++i)
            formats.push(i === input ? { "DataType": f.type, "Resolution": f.resolution } : chosen[i])
        manage.uiproc.connectSetInputSignalFormat(formats)
        chosen = setAt(chosen, input, f.resolution)
        if (input < currentFormatInputs) {
            pending = setAt(pending, input, f.resolution)
            manage.uiproc.connectGetInputCurrentFormat(input)
        }
        return true
    }

    // --- picture in picture (kept by the live store) -------------------
    readonly property bool pipOn: live ? live.pipOn : false
    readonly property int pipLayout: live ? live.pipLayout : 0
    readonly property int pipInput: live ? live.pipInput : -1
    readonly property int pipInput2: live ? live.pipInput2 : -1
    readonly property int programmeInput: live ? live.programmeInput : -1
    readonly property var pipSourceNames: live ? live.inputNames : []
    readonly property var pipLayoutNames: [qsTr("Top left"), qsTr("Top right"), qsTr("Bottom left"), qsTr("Bottom right"),
                                           qsTr("Side by side"), qsTr("Two pictures")]
    function setPip(on) { live.setPip(on) }
    function setPipLayout(layout) { live.setPipLayout(layout) }
    function setPipSource(second, index) {
        if (second) live.switchPip2(index)
        else live.switchPip(index)
    }

    // --- audio ---------------------------------------------------------
    // Audio sources in the meters' order; the ninth meter is the headphone
    // output, which is no source.
    readonly property var audioSourceNames: live ? live.levelNames.slice(0, 8) : []
    readonly property var levels: live ? live.levels : []
    readonly property var levelNames: live ? live.levelNames : []
    // The audio source of each video input (HDMI 1, HDMI 2, UVC 1, UVC 2, NDI).
    readonly property var audioOfInput: [1, 2, 4, 5, 6]
    property int programmeAudio: -1
    property int pipAudio: -1
    property bool followProgramme: false
    property bool followPip: false
    // Per audio source: 0 44.1 kHz, 1 48 kHz, -1 not known.
    property var samplingRates: [-1, -1, -1, -1, -1, -1, -1, -1]

    // connectSwitchAudio(channel): the low four bits name the source (15
    // none), bit 4 the PIP mix.
    function audioChannel(pip, source) { return (pip ? 0x10 : 0) | (source >= 0 && source < 8 ? source : 0x0F) }
    function sendAudio(pip, source) {
        if (pip) pipAudio = source
        else programmeAudio = source
        manage.uiproc.connectSwitchAudio(audioChannel(pip, source))
    }
    function setAudio(pip, source) {
        if (source < -1 || source >= 8)
            return
        sendAudio(pip, source)
        var save = pip ? { "inputAudio2": source } : { "inputAudio": source }
        // Choosing a source by hand ends following the picture.
        if (pip && followPip) { followPip = false; save.autoAudio2 = 0 }
        if (!pip && followProgramme) { followProgramme = false; save.autoAudio = 0 }
        manage.uiproc.writeInitConfig(save)
    }
    function setFollow(pip, on) {
        if (pip) followPip = on
        else followProgramme = on
        manage.uiproc.writeInitConfig(pip ? { "autoAudio2": on ? 1 : 0 } : { "autoAudio": on ? 1 : 0 })
        follow()
    }
    function audioFor(input) { return input >= 0 && input < audioOfInput.length ? audioOfInput[input] : -1 }
    // Following changes what is heard, never the saved choice.
    function follow() {
        if (!live)
            return
        var p = audioFor(live.programmeInput)
        if (followProgramme && p >= 0 && p !== programmeAudio)
            sendAudio(false, p)
        var s = audioFor(live.pipInput)
        if (followPip && s >= 0 && s !== pipAudio)
            sendAudio(true, s)
    }
    property Connections following: Connections {
        target: store.live ? store.live : null
        function onProgrammeInputChanged() { store.follow() }
        function onPipInputChanged() { store.follow() }
    }
    function refreshAudio() {
        for (var i = 0; i < samplingRates.length; ++i)
            manage.uiproc.connectGetAudioSamplingRate(1, i, 0)
    }

    // --- outputs -------------------------------------------------------
    property int hdmiOutStyle: -1       // 0 programme, 1 multiview; -1 not known
    property int hdmi2Status: -1        // 0 no monitor, otherwise connected
    property int outputStatus: -1       // 0 no monitor, otherwise connected
    function setHdmiOutStyle(style) { manage.uiproc.connectHdmiOutStyle(0, style) }
    function refreshOutputs() {
        manage.uiproc.connectHdmiOutStyle(1, 0)
        manage.uiproc.readHDMI2Status()
        manage.uiproc.connectGetOutputStatus()
    }

    property Connections reports: Connections {
        target: store.manage ? store.manage.uiproVideo : null
        ignoreUnknownSignals: true
        function onPushVideoFormatData(inputType, dataLength, formatArray) {
            if (inputType < 0 || inputType >= store.formatKeys.length)
                return
            var list = []
            var seen = {}
            for (var i = 0; formatArray && i < formatArray.length && list.length < 64; ++i) {
                var p = VideoFormat.parse(formatArray[i], false)
                if (!p)
                    continue
                p.label = VideoFormat.label(p)
                p.resolution = VideoFormat.resolution(p)
                // Two codings of one size and rate keep the device's order and say which.
                var key = p.label
                if (seen[key] !== undefined)
                    p.label += " (" + (p.type) + ")"
                seen[key] = true
                list.push(p)
            }
            store.formatLists = store.setAt(store.formatLists, inputType, list)
        }
        function onPushInputFormatInitiative(type, format) {
            if (type < 0 || type >= store.currentFormatInputs)
                return
            store.currentFormats = store.setAt(store.currentFormats, type, VideoFormat.parse(format, type < 2))
            store.currentKnown = store.setAt(store.currentKnown, type, true)
            store.pending = store.setAt(store.pending, type, "")
        }
        // A new or lost signal changes what an input offers.
        function onPushInputInitiative(status, inputID) {
            if (inputID >= 0 && inputID < store.formatKeys.length)
                store.manage.uiproc.connectGetInputSignalFormat(inputID)
        }
        function onPushAudioSamplingRate(inputType, rate) {
            if (inputType >= 0 && inputType < store.samplingRates.length)
                store.samplingRates = store.setAt(store.samplingRates, inputType, rate)
        }
        function onPushHDMIOutStyle(type) { store.hdmiOutStyle = type }
        function onPushHDMI2Status(status) { store.hdmi2Status = status }
        function onPushOutputInitiative(status) { store.outputStatus = status }
    }

    // Once the settings are read: the remembered formats and the audio mix,
    // which the device is told again (it has no audio report to ask).
    function start(settings) {
        var c = chosen.slice()
        for (var i = 0; i < formatKeys.length; ++i)
            if (typeof settings[formatKeys[i]] === "string")
                c[i] = settings[formatKeys[i]]
        chosen = c
        followProgramme = settings.autoAudio !== undefined && settings.autoAudio !== 0
        followPip = settings.autoAudio2 !== undefined && settings.autoAudio2 !== 0
        // One command per mix: two sent at once may reach the device in
        // either order.
        var saved = [settings.inputAudio, settings.inputAudio2]
        var following = [followProgramme ? audioFor(live ? live.programmeInput : -1) : -1,
                         followPip ? audioFor(live ? live.pipInput : -1) : -1]
        for (var m = 0; m < 2; ++m) {
            if (following[m] >= 0)
                sendAudio(m === 1, following[m])
            else if (saved[m] !== undefined && saved[m] >= -1 && saved[m] < 8)
                sendAudio(m === 1, saved[m])
        }
        refreshOutputs()
    }
}
