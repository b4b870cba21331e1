import QtQuick 2.15

// Scopes the device draws into the programme picture, and the safe-frame
// guides this interface draws over the preview. The device has no report
// for scopes: the remembered choice is sent again at start-up so the two
// agree.
QtObject {
    id: store
    property var manage

    // Scope types as the device numbers them, with their settings keys.
    readonly property var positionKeys: ["statisticRHPosition", "statisticBWPosition", "statisticRWPosition", "statisticVPosition"]
    property int scopeType: 0               // the scope last changed
    // Per scope: 0 off, otherwise 1 + corner (0 top left, 1 top right, 2 bottom left, 3 bottom right).
    property var positions: [0, 0, 0, 0]
    property int safeFrames: 0              // 0 none, 1 16:9, 2 4:3, 3 9:16

    function loadSettings(s) {
        if (typeof s.statisticType === "number" && s.statisticType >= 0 && s.statisticType < 4)
            scopeType = s.statisticType
        var p = positions.slice()
        for (var i = 0; i < 4; ++i) {
            var v = s[positionKeys[i]]
            if (typeof v === "number" && v >= 0 && v <= 4)
                p[i] = v
        }
        positions = p
        if (typeof s.safeFramesType === "number" && s.safeFramesType >= 0 && s.safeFramesType <= 3)
            safeFrames = s.safeFramesType
    }
    function start(settings) {
        loadSettings(settings)
        for (var i = 0; i < 4; ++i)
            if (positions[i] > 0)
                send(i, positions[i])
    }
    function send(type, position) {
        manage.uiproc.connectGetStatisticPic(type, position > 0, position > 0 ? position - 1 : 0)
    }
    function setScope(type, position) {
        if (type < 0 || type > 3 || position < 0 || position > 4)
            return
        var p = positions.slice()
        p[type] = position
        positions = p
        scopeType = type
        send(type, position)
        var save = { "statisticType": type }
        save[positionKeys[type]] = position
        manage.uiproc.writeInitConfig(save)
    }
    function setSafeFrames(type) {
        if (type < 0 || type > 3 || type === safeFrames)
            return
        safeFrames = type
        manage.uiproc.writeInitConfig({ "safeFramesType": type })
    }
}
