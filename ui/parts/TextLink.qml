// A symbol and a word that lead somewhere.
import QtQuick
import Vitrelle

Pressable {
    id: link

    property string symbol
    property string words: name
    property color colour: Theme.text
    property bool bold: false
    property real textSize: 17

    implicitWidth: row.width
    implicitHeight: Math.max(row.height, 28)
    role: Accessible.Link

    Row {
        id: row
        anchors.verticalCenter: parent.verticalCenter
        spacing: 6

        SymbolItem {
            anchors.verticalCenter: parent.verticalCenter
            visible: link.symbol !== ""
            name: link.symbol
            size: link.textSize
            weight: link.bold ? 700 : 400
            colour: link.colour
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            spoken: false
            text: link.words
            color: link.colour
            font.pixelSize: link.textSize
            font.bold: link.bold
        }
    }
}
