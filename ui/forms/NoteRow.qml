// Something to know about the style, which nothing here changes.
import QtQuick
import Vitrelle

Panel {
    id: row

    required property string symbol
    required property string words

    colour: Qt.rgba(0.17, 0.17, 0.18, 0.5)
    implicitHeight: Math.max(70, label.implicitHeight + 24)

    SymbolItem {
        id: sign
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        name: row.symbol
        size: 22
        colour: Theme.text
    }
    Label {
        id: label
        objectName: "note"
        anchors.left: sign.right
        anchors.leftMargin: 14
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 12
        text: row.words
    }
}
