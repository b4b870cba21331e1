.pragma library

// Dotted IPv4 as the address controller accepts it: four decimal parts
// 0..255, no leading zeros (they read as octal to some tools), nothing else.
function parse(text) {
    var parts = String(text).split(".")
    if (parts.length !== 4)
        return null
    var value = 0
    for (var i = 0; i < 4; ++i) {
        if (!/^(0|[1-9][0-9]{0,2})$/.test(parts[i]) || Number(parts[i]) > 255)
            return null
        value = value * 256 + Number(parts[i])
    }
    return value
}
function isAddress(text) { return parse(text) !== null }

// A netmask is a run of ones followed by zeros (0.0.0.0 and 255.255.255.255 are not usable).
function isNetmask(text) {
    var v = parse(text)
    if (v === null || v === 0 || v === 0xFFFFFFFF)
        return false
    var inverted = 0xFFFFFFFF - v
    return (inverted & (inverted + 1)) === 0
}

// "" when the three values can be applied, otherwise a key naming the
// problem; the page turns it into words.
function problem(address, netmask, gateway) {
    if (!isAddress(address)) return "address"
    var a = parse(address)
    if (a === 0 || a >= 0xE0000000 || (a >>> 24) === 127) return "addressKind"
    if (!isNetmask(netmask)) return "netmask"
    var block = 0xFFFFFFFF - parse(netmask) + 1     // addresses in the network
    if (block > 2 && (a % block === 0 || a % block === block - 1)) return "addressKind"  // network or broadcast
    if (!isAddress(gateway)) return "gateway"
    var g = parse(gateway)
    // 0.0.0.0: no gateway
    if (g !== 0 && Math.floor(g / block) !== Math.floor(a / block)) return "gatewayNetwork"
    if (g !== 0 && g === a) return "gatewaySame"
    return ""
}
