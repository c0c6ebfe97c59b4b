pragma Singleton

import QtQuick
import Kestrelfen

/// The palette: each token has a light and a dark value and follows the appearance live. Where the desktop asks for
/// more contrast, what is too faint for that has a second pair.
QtObject {
    readonly property bool dark: Appearance.dark
    readonly property bool highContrast: Appearance.highContrast

    readonly property color accent: highContrast ? dynamic(0x0a6156, 1.0, 0x43d3bc, 1.0) : dynamic(0x0e8f7e, 1.0, 0x43d3bc, 1.0)
    readonly property color ink: dynamic(0x0c1a20, 1.0, 0xe9f2f3, 1.0)
    readonly property color slate: highContrast ? dynamic(0x3f555e, 1.0, 0x9db2b9, 1.0) : dynamic(0x4a616b, 1.0, 0x9db2b9, 1.0)
    readonly property color faint: highContrast ? dynamic(0x4c6068, 1.0, 0x90a6ae, 1.0) : dynamic(0x8ca1a9, 1.0, 0x6e868f, 1.0)
    readonly property color amber: highContrast ? dynamic(0x77490c, 1.0, 0xe0a45c, 1.0) : dynamic(0xb4701a, 1.0, 0xe0a45c, 1.0)
    readonly property color danger: highContrast ? dynamic(0x912f25, 1.0, 0xf59a8f, 1.0) : dynamic(0xc4483c, 1.0, 0xe5695b, 1.0)
    readonly property color glass: dynamic(0xffffff, 0.62, 0x121e24, 0.6)
    readonly property color glass2: dynamic(0xffffff, 0.42, 0x121e24, 0.4)
    readonly property color hairline: dynamic(0xffffff, 0.7, 0xffffff, 0.14)
    readonly property color highlight: dynamic(0xffffff, 0.9, 0xffffff, 0.18)
    readonly property color rule: dynamic(0x0e1a20, 0.1, 0xffffff, 0.1)
    readonly property color sunk: dynamic(0x0e1a20, 0.05, 0xffffff, 0.06)
    readonly property color accentFill: dynamic(0x0b7f70, 1.0, 0x43d3bc, 1.0)
    /// What is written on `accentFill`. A name that begins with "on" would be a handler here.
    readonly property color overAccent: dynamic(0xffffff, 1.0, 0x04231f, 1.0)
    readonly property color hudFill: dynamic(0xf7fafa, 0.96, 0x101c22, 0.96)
    readonly property color hudBorder: dynamic(0x0e1a20, 0.16, 0xffffff, 0.2)
    readonly property color wallpaper1: dynamic(0xbfe3dc, 1.0, 0x12433e, 1.0)
    readonly property color wallpaper2: dynamic(0xdceaf2, 1.0, 0x132b38, 1.0)
    readonly property color wallpaper4: dynamic(0xa9cfd6, 1.0, 0x0b2a31, 1.0)

    /// The fill of prominent controls and what is written on it.
    readonly property color prominent: highContrast ? accentFill : accent
    readonly property color overProminent: highContrast ? overAccent : white
    readonly property color white: "#ffffff"

    /// What stands in for the thinnest blur.
    readonly property color blur: dynamic(0xf6fafa, 0.14, 0x10191e, 0.14)
    /// What dims a window behind a sheet.
    readonly property color shade: dynamic(0x060e12, 0.28, 0x060e12, 0.5)

    /// One of two 24-bit values, by the appearance.
    function dynamic(light: int, lightAlpha: real, dark: int, darkAlpha: real): color {
        const value = Appearance.dark ? dark : light;
        return Qt.rgba((value >> 16 & 255) / 255, (value >> 8 & 255) / 255, (value & 255) / 255, Appearance.dark ? darkAlpha : lightAlpha);
    }

    function faded(token: color, share: real): color {
        return Qt.rgba(token.r, token.g, token.b, token.a * share);
    }

    /// Brighter, or darker below zero.
    function shifted(token: color, by: real): color {
        return Qt.rgba(Math.max(0, token.r + by), Math.max(0, token.g + by), Math.max(0, token.b + by), token.a);
    }

    /// From one token on the way to another.
    function mixed(from: color, to: color, share: real): color {
        return Qt.rgba(from.r + (to.r - from.r) * share, from.g + (to.g - from.g) * share, from.b + (to.b - from.b) * share, from.a + (to.a - from.a) * share);
    }

    /// A border as it looks over the fill of its own rectangle, which the renderer leaves out under a border.
    function over(line: color, fill: color): color {
        const alpha = line.a + fill.a * (1 - line.a);
        const channel = (top, bottom) => alpha > 0 ? (top * line.a + bottom * fill.a * (1 - line.a)) / alpha : 0;
        return Qt.rgba(channel(line.r, fill.r), channel(line.g, fill.g), channel(line.b, fill.b), alpha);
    }
}
