import QtQuick
import Kestrelfen

/// A text in a size that may be a half: fonts come in whole pixels only. Where the screen has enough of them the text
/// is set twice as large and shown at half the scale, which is exact; elsewhere the next whole size is set a little
/// tighter, so that it is as wide as it should be and stays crisp.
Item {
    id: label

    property string text: ""
    property real size: 13
    property int weight: Font.Normal
    property color color: Glass.ink
    property bool monospaced: false
    property real tracking: 0
    property bool upperCased: false
    property bool struckOut: false
    property alias wrapMode: body.wrapMode
    property alias elide: body.elide
    property alias maximumLineCount: body.maximumLineCount
    property alias horizontalAlignment: body.horizontalAlignment
    property alias lineHeight: body.lineHeight
    readonly property alias lineCount: body.lineCount
    property string spokenLabel: text

    readonly property int enlargement: Appearance.enlargement(size, Screen.devicePixelRatio)

    implicitWidth: body.implicitWidth / enlargement
    implicitHeight: body.implicitHeight / enlargement
    baselineOffset: body.baselineOffset / enlargement

    Accessible.role: Accessible.StaticText
    Accessible.name: spokenLabel
    // Qt says of a text that the keyboard could go to it, and where the text is a heading, this stops that.
    Accessible.focusable: false

    Text {
        id: body
        width: label.width * label.enlargement
        height: label.height * label.enlargement
        scale: 1 / label.enlargement
        transformOrigin: Item.TopLeft
        // Said outright, it is mirrored; the words' own direction would not be.
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        text: label.text
        textFormat: Text.PlainText
        color: label.color
        font.family: label.monospaced ? Appearance.monospaced : Appearance.sans
        font.pixelSize: Math.round(label.size * label.enlargement)
        font.weight: label.weight
        font.letterSpacing: label.tracking * label.enlargement + Appearance.tightening(label.size, label.enlargement, label.monospaced)
        font.capitalization: label.upperCased ? Font.AllUppercase : Font.MixedCase
        font.strikeout: label.struckOut
        Accessible.ignored: true
    }
}
