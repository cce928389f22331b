// Stands in the place of a wallpaper that is not there.
import QtQuick
import Vitrelle

ContinuousRectangle {
    id: view

    required property string symbol
    required property string words
    property real textSize: 17

    colour: Theme.card
    radius: 38

    Column {
        anchors.centerIn: parent
        spacing: view.textSize * 0.7

        SymbolItem {
            anchors.horizontalCenter: parent.horizontalCenter
            name: view.symbol
            size: view.textSize * 2.4
            colour: Theme.accent
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            spoken: false
            text: view.words
            font.pixelSize: view.textSize
        }
    }
}
