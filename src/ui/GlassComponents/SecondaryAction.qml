import QtQuick
import Kestrelfen

/// The ordinary button.
GlassButton {
    radius: 11
}
