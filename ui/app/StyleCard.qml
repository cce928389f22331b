// One wallpaper style: its picture for the appearance of now, the tick and the way to change it.
import QtQuick
import Vitrelle

Item {
    id: card

    required property int styleNumber
    required property bool selected
    required property int revision
    property bool near: true // only cards near the screen hold a picture

    signal ticked
    signal edited

    width: Shell.screenWidth / 1.5
    height: Shell.screenHeight / 1.5 + Shell.screenHeight / 12

    Loader {
        active: card.near
        sourceComponent: WallpaperImageView {
            styleNumber: card.styleNumber
            dark: Shell.dark
            revision: card.revision
        }
    }
    Item {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Shell.screenHeight / 12

        Pressable {
            objectName: "tick" + card.styleNumber
            anchors.left: parent.left
            anchors.leftMargin: 24
            anchors.verticalCenter: parent.verticalCenter
            width: 32
            height: 32
            focusRadius: 21
            role: Accessible.RadioButton
            name: (card.selected ? qsTrId("app.selected") : qsTrId("app.select")).arg(card.styleNumber + 1)
            Accessible.checkable: true
            Accessible.checked: card.selected
            onPressed: card.ticked()

            SymbolItem {
                objectName: "tickSymbol" + card.styleNumber
                anchors.centerIn: parent
                name: "checkmark.circle.fill"
                size: 30
                colour: card.selected ? Theme.tick : Theme.card
            }
        }
        TextLink {
            objectName: "edit" + card.styleNumber
            anchors.right: parent.right
            anchors.rightMargin: 24
            anchors.verticalCenter: parent.verticalCenter
            symbol: "slider.horizontal.3"
            name: Shell.root.editTitle
            bold: true
            onPressed: card.edited()
        }
    }
}
