// One half of the intake: a title, the wallpaper that is set, and a place to drop another.
import QtQuick
import Vitrelle

Pressable {
    id: cell

    required property IntakeScreen intake
    required property bool dark
    readonly property bool isSet: dark ? intake.darkSet : intake.lightSet
    readonly property string title: dark ? intake.darkTitle : intake.lightTitle
    // Two phones stand side by side where one is two thirds of the screen wide.
    readonly property real shrink: Math.min((width - 26) / wallpaper.width, (height - heading.height - 40) / wallpaper.height)

    name: title + ", " + (isSet ? qsTrId("app.pictureSet") : intake.noImage) + ", " + intake.hint
    ringed: false // around the picture instead

    Column {
        id: heading
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.max(8, (cell.height - height - 14 - wallpaper.height * cell.shrink) / 2.4)
        spacing: 3

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            font.bold: true
            font.pixelSize: 20
            spoken: false
            text: cell.title
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.quietText
            font.pixelSize: 12
            spoken: false
            text: cell.intake.hint
        }
    }
    Item {
        anchors.horizontalCenter: parent.horizontalCenter
        y: heading.y + heading.height + 14
        width: wallpaper.width * cell.shrink
        height: wallpaper.height * cell.shrink

        WallpaperImageView {
            id: wallpaper
            transformOrigin: Item.TopLeft
            scale: cell.shrink
            styleNumber: cell.intake.styleNumber
            dark: cell.dark
            revision: cell.intake.revision
            symbol: cell.dark ? cell.intake.darkSymbol : cell.intake.lightSymbol
            noImage: cell.intake.noImage
        }
        FocusRing {
            shown: cell.activeFocus
            radius: 38 * cell.shrink + 5
        }
        ContinuousRectangle {
            anchors.fill: parent
            anchors.margins: -4
            visible: drop.containsDrag
            radius: 38 * cell.shrink
            borderColour: Theme.accent
            borderWidth: 3
        }
    }
    DropArea {
        id: drop
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: event => {
            if (!event.hasUrls)
                return;
            event.acceptProposedAction();
            if (event.urls.length > 1)
                cell.intake.takeFiles(event.urls);
            else if (cell.intake.choose(cell.dark))
                cell.intake.pick(event.urls[0]);
        }
    }
}
