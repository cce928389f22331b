// A round icon that leads somewhere.
import QtQuick
import Vitrelle

Pressable {
    id: button

    required property string symbol
    property real size: 35
    property color colour: Theme.quietSymbol

    implicitWidth: size
    implicitHeight: size
    focusRadius: size / 2 + 5

    SymbolItem {
        anchors.centerIn: parent
        name: button.symbol
        size: button.size
        colour: button.colour
    }
}
