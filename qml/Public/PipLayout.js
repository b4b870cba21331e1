.pragma library

// Where the second pictures sit in the programme frame for each PIP layout,
// as fractions of the frame, the way the device draws them: a third of the
// frame in a corner (0..3), the right half (4), or two thirds stacked on the
// right (5).
function rects(layout) {
    function corner(c) {
        return { x: (c & 1) ? 1 - 1 / 3 - 1 / 32 : 1 / 32, y: (c & 2) ? 1 - 1 / 3 - 1 / 18 : 1 / 18, w: 1 / 3, h: 1 / 3 }
    }
    if (layout === 4)
        return [{ x: 0.5, y: 0, w: 0.5, h: 1 }]
    if (layout === 5)
        return [corner(1), corner(3)]
    return [corner(layout & 3)]
}
