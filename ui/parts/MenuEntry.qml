// A line of a menu.
import QtQuick
import Vitrelle

Pressable {
    id: entry

    property string symbol
    property alias leading: front.data // before the name

    height: Math.max(44, front.childrenRect.height + 12)
    ringed: false
    role: Accessible.MenuItem
    rest: enabled ? 1 : 0.35

    ContinuousRectangle {
        anchors.fill: parent
        anchors.margins: 3
        visible: entry.activeFocus
        radius: 10
        colour: Qt.rgba(1, 1, 1, 0.12)
    }
    Item {
        id: front
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
    Label {
        anchors.left: front.right
        anchors.leftMargin: front.width > 0 ? 12 : 0
        anchors.verticalCenter: parent.verticalCenter
        spoken: false
        text: entry.name
        font.pixelSize: 16
    }
    SymbolItem {
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        name: entry.symbol
        size: 18
        colour: Theme.text
    }
}
