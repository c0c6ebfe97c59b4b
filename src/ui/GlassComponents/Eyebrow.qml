import QtQuick
import Kestrelfen

/// A section label, upper-cased as it is drawn.
Label {
    size: 9.5
    weight: Font.Medium
    monospaced: true
    tracking: 1.2
    upperCased: true
    color: Glass.faint
    Accessible.role: Accessible.Heading
}
