// A row that does something at once.
import QtQuick
import Vitrelle

Pressable {
    id: row

    required property string symbol

    implicitHeight: 45
    focusRadius: 20

    Panel {
        anchors.fill: parent
    }
    Row {
        anchors.centerIn: parent
        spacing: 9

        SymbolItem {
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            size: 18
            colour: Theme.accent
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            font.pixelSize: 16
            font.weight: Font.DemiBold
            spoken: false
            color: Theme.accent
            text: row.name
        }
    }
}
