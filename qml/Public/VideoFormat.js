.pragma library

// Video formats as the operator reads them ("1080p60", "1080i50") and as the
// device takes them back ("1920x1080i@50").

// A format object of the device's lists ({DataType, width, height, Fps})
// or of its current-format report. `hdmi`: interlaced 1080-line HDMI formats
// travel as 540 lines in the current-format report; the lists already say
// "60i" with 1080 lines.
function parse(f, hdmi) {
    if (!f || f.width === undefined || f.height === undefined)
        return null
    var fps = String(f.Fps === undefined ? "" : f.Fps)
    var interlaced = fps.indexOf("i") >= 0
    var rate = parseInt(fps, 10)
    var height = Number(f.height)
    if (hdmi && !interlaced && height === 540) {
        interlaced = true
        height = 1080
    }
    var width = Number(f.width)
    if (!(width > 0) || !(height > 0) || !(rate > 0))
        return null
    return { type: Number(f.DataType) || 0, width: width, height: height, fps: rate, interlaced: interlaced }
}

function label(p) {
    return p ? p.height + (p.interlaced ? "i" : "p") + p.fps : ""
}

// The resolution text the device's set command reads and the settings keep.
function resolution(p) {
    return p ? p.width + "x" + p.height + (p.interlaced ? "i" : "") + "@" + p.fps : ""
}

function same(a, b) {
    return a !== null && b !== null && a.width === b.width && a.height === b.height
        && a.fps === b.fps && a.interlaced === b.interlaced
}
