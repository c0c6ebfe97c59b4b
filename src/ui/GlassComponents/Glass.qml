pragma Singleton

import QtQuick
import Kestrelfen

/// The palette: each token has a light and a dark value and follows the appearance live.
QtObject {
    readonly property bool dark: Appearance.dark

    readonly property color accent: dark ? "#43d3bc" : "#0e8f7e"
    readonly property color ink: dark ? "#e9f2f3" : "#0c1a20"
    readonly property color slate: dark ? "#9db2b9" : "#4a616b"
    readonly property color faint: dark ? "#6e868f" : "#8ca1a9"
    readonly property color glass: dark ? "#99121e24" : "#9effffff"
    readonly property color glass2: dark ? "#66121e24" : "#6bffffff"
    readonly property color hairline: dark ? "#24ffffff" : "#b3ffffff"
    readonly property color highlight: dark ? "#2effffff" : "#e6ffffff"
    readonly property color rule: dark ? "#1affffff" : "#1a0e1a20"
    readonly property color sunk: dark ? "#0fffffff" : "#0d0e1a20"
    readonly property color accentFill: dark ? "#43d3bc" : "#0b7f70"
    /// What is written on `accentFill`. A name that begins with "on" would be a handler here.
    readonly property color overAccent: dark ? "#04231f" : "#ffffff"
    readonly property color hudFill: dark ? "#f5101c22" : "#f5f7fafa"
    readonly property color hudBorder: dark ? "#33ffffff" : "#290e1a20"
    readonly property color wallpaper1: dark ? "#12433e" : "#bfe3dc"
    readonly property color wallpaper2: dark ? "#132b38" : "#dceaf2"
    readonly property color wallpaper4: dark ? "#0b2a31" : "#a9cfd6"

    function faded(token: color, share: real): color {
        return Qt.rgba(token.r, token.g, token.b, token.a * share)
    }
}
