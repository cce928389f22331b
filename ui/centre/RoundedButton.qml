// A tile of the hub: a square with a symbol, and its name below.
import QtQuick
import Vitrelle

Pressable {
    id: tile

    required property color colour
    required property string symbol
    required property string text
    required property real side
    readonly property real luminance: 0.2126 * colour.r + 0.7152 * colour.g + 0.0722 * colour.b

    implicitWidth: side
    implicitHeight: side + 8 + words.implicitHeight
    focusRadius: 20
    name: text

    ContinuousRectangle {
        id: square
        width: tile.side
        height: tile.side
        radius: 16
        colour: tile.colour
    }
    SymbolItem {
        anchors.centerIn: square
        name: tile.symbol
        size: 28
        colour: tile.luminance > 0.7 ? Theme.backdrop : Theme.text
    }
    Label {
        id: words
        anchors.horizontalCenter: square.horizontalCenter
        anchors.top: square.bottom
        anchors.topMargin: 8
        font.pixelSize: 12
        wrapMode: Text.NoWrap
        spoken: false
        text: tile.text
    }
}
