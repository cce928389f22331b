// One wallpaper style: its picture for the appearance of now, the tick and the way to change it.
import QtQuick
import Vitrelle

Item {
    id: card

    required property int styleNumber
    required property bool selected
    required property int revision
    property bool near: true // only cards near the screen hold a picture
    property bool shown: true // in the middle; one beside it is asked for by a press
    readonly property string title: qsTrId("app.style").arg(styleNumber + 1)

    signal ticked
    signal edited
    signal asked
    signal keysLeft // they were on a card that is not shown any more

    width: Surroundings.screenWidth / 1.5
    height: Surroundings.screenHeight / 1.5 + Surroundings.screenHeight / 12
    onShownChanged: if (!shown && (tick.activeFocus || edit.activeFocus)) keysLeft()

    Loader {
        active: card.near
        sourceComponent: WallpaperImageView {
            styleNumber: card.styleNumber
            dark: Surroundings.dark
            revision: card.revision
        }
    }
    Item {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Surroundings.screenHeight / 12

        Pressable {
            id: tick
            objectName: "tick" + card.styleNumber
            anchors.left: parent.left
            anchors.leftMargin: 24
            anchors.verticalCenter: parent.verticalCenter
            width: 32
            height: 32
            focusRadius: 21
            activeFocusOnTab: card.shown
            role: Accessible.RadioButton
            name: (card.selected ? qsTrId("app.selected") : qsTrId("app.select")).arg(card.styleNumber + 1)
            Accessible.checkable: true
            Accessible.checked: card.selected
            onPressed: card.ticked()

            ContinuousRectangle { // a rim, and the ground of the sign, for both its colours
                anchors.centerIn: parent
                width: 33
                height: width
                radius: width / 2
                colour: "white"
            }
            SymbolItem {
                objectName: "tickSymbol" + card.styleNumber
                anchors.centerIn: parent
                name: "checkmark.circle.fill"
                size: 30
                colour: card.selected ? Theme.tick : Theme.card
            }
        }
        TextLink {
            id: edit
            objectName: "edit" + card.styleNumber
            anchors.right: parent.right
            anchors.rightMargin: 24
            anchors.verticalCenter: parent.verticalCenter
            activeFocusOnTab: card.shown
            symbol: "slider.horizontal.3"
            words: Shell.root.editTitle
            name: words + " " + card.title
            bold: true
            onPressed: card.edited()
        }
    }
    MouseArea { // over all of a card that is only partly to be seen
        anchors.fill: parent
        visible: !card.shown
        cursorShape: Qt.PointingHandCursor
        onClicked: card.asked()
    }
}
