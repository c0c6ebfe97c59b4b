import QtQuick
import Kestrelfen

/// The gradient behind a whole window or sheet, under what stands in for blur and a veil of glass.
Wash {
    first: Glass.wallpaper2
    second: Glass.wallpaper1
    third: Glass.wallpaper4
    blur: Glass.blur
    veil: Glass.glass2
}
