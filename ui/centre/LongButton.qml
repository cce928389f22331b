// A row that leads somewhere: a coloured symbol, its name and a chevron.
import QtQuick
import Vitrelle

Pressable {
    id: row

    required property color colour
    required property string symbol
    required property string text

    implicitWidth: Surroundings.screenWidth - 60
    implicitHeight: 48
    focusRadius: 20
    name: text

    Panel {
        anchors.fill: parent
    }
    SymbolItem {
        x: 15
        anchors.verticalCenter: parent.verticalCenter
        name: row.symbol
        size: 24
        colour: row.colour
    }
    Label {
        anchors.left: parent.left
        anchors.leftMargin: 54
        anchors.right: chevron.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideRight
        wrapMode: Text.NoWrap
        font.pixelSize: 16
        font.weight: Font.DemiBold
        spoken: false
        text: row.text
    }
    SymbolItem {
        id: chevron
        anchors.right: parent.right
        anchors.rightMargin: 15
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.right"
        size: 14
        weight: 600
        colour: Theme.grey
    }
}
