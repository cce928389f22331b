// What can be done with a half of the intake besides pressing it.
import QtQuick
import Vitrelle

ContextMenu {
    id: menu

    property WallpaperCell cell

    signal chosen(bool dark)
    signal pasted(bool dark)
    signal helpAsked

    function open(asked: WallpaperCell, position: point) {
        cell = asked;
        openAt(asked, position);
    }

    MenuEntry {
        objectName: "chooseEntry"
        width: parent.width
        symbol: "photo.fill"
        name: qsTrId("app.menu.choose")
        onPressed: {
            menu.close();
            menu.chosen(menu.cell.dark);
        }
    }
    MenuEntry {
        objectName: "pasteEntry"
        width: parent.width
        symbol: "doc.on.clipboard.fill"
        name: qsTrId("app.menu.paste")
        enabled: Shell.canPaste
        onPressed: {
            menu.close();
            menu.pasted(menu.cell.dark);
        }
    }
    MenuEntry {
        objectName: "helpEntry"
        width: parent.width
        symbol: "questionmark.circle.fill"
        name: qsTrId("PZTitle")
        onPressed: {
            menu.close();
            menu.helpAsked();
        }
    }
}
