// The last card: the way to a new style.
import QtQuick
import Vitrelle

Pressable {
    id: card
    objectName: "createCard"

    name: Shell.root.createTitle
    role: Accessible.Link
    width: Surroundings.screenWidth / 1.5
    height: Surroundings.screenHeight / 1.5
    focusRadius: 42

    ContinuousRectangle {
        anchors.fill: parent
        radius: 38
        colour: Theme.card
    }
    Column {
        anchors.centerIn: parent
        width: parent.width - 40
        spacing: 18

        SymbolItem {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "plus.circle.fill"
            size: 56
            colour: Theme.accent
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font.bold: true
            spoken: false
            text: card.name
        }
    }
}
