// What can be done with a half of the intake besides pressing it.
import QtQuick
import Vitrelle

FocusScope {
    id: menu

    property WallpaperCell cell
    property point at

    signal chosen(bool dark)
    signal pasted(bool dark)

    function open(asked: WallpaperCell, position: point) {
        cell = asked;
        const spot = asked.mapToItem(menu, position.x, position.y);
        at = Qt.point(Math.max(8, Math.min(spot.x, width - box.width - 8)), Math.max(8, Math.min(spot.y, height - box.height - 8)));
        shown = true;
        first.forceActiveFocus();
    }
    function close() {
        shown = false;
        if (cell)
            cell.forceActiveFocus();
    }

    property bool shown: false

    anchors.fill: parent
    visible: shown
    Keys.onEscapePressed: close()
    Keys.onBackPressed: close()

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onPressed: menu.close()
    }
    ContinuousRectangle {
        id: box
        x: menu.at.x
        y: menu.at.y
        width: 220
        height: entries.height
        radius: 13
        colour: Theme.card
        borderColour: Qt.rgba(1, 1, 1, 0.15)
        borderWidth: 1

        Column {
            id: entries
            width: parent.width

            MenuEntry {
                id: first
                objectName: "chooseEntry"
                width: parent.width
                symbol: "photo.fill"
                name: qsTrId("app.menu.choose")
                KeyNavigation.down: second
                onPressed: {
                    menu.close();
                    menu.chosen(menu.cell.dark);
                }
            }
            MenuEntry {
                id: second
                objectName: "pasteEntry"
                width: parent.width
                symbol: "doc.on.clipboard.fill"
                name: qsTrId("app.menu.paste")
                enabled: Shell.canPaste
                KeyNavigation.up: first
                onPressed: {
                    menu.close();
                    menu.pasted(menu.cell.dark);
                }
            }
        }
    }
}
