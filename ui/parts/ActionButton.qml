// The wide button at the end of a form, or of a choice.
import QtQuick
import Vitrelle

Pressable {
    id: button

    property string symbol
    property bool strong: true // the one thing to do here

    implicitWidth: Surroundings.screenWidth - 60
    implicitHeight: 50
    focusRadius: 21
    rest: enabled ? 1 : 0.4

    ContinuousRectangle {
        anchors.fill: parent
        radius: 16
        colour: button.strong ? Theme.accent : Theme.card
    }
    Row {
        anchors.centerIn: parent
        spacing: 8

        SymbolItem {
            anchors.verticalCenter: parent.verticalCenter
            visible: button.symbol !== ""
            name: button.symbol
            size: 18
            colour: words.color
        }
        Label {
            id: words
            anchors.verticalCenter: parent.verticalCenter
            spoken: false
            text: button.name
            font.pixelSize: 17
            font.weight: Font.DemiBold
            color: button.strong ? "black" : Theme.text
        }
    }
}
