// What concerns the window and not one of its pages.
import QtQuick
import Vitrelle

ContextMenu {
    id: menu
    objectName: "windowMenu"

    signal settingsAsked
    signal quitAsked

    /// The keys go back to where they were.
    function open(item: Item, position: point, before: Item) {
        if (shown)
            return;
        openAt(item, position);
        opener = before;
    }

    MenuEntry {
        objectName: "phoneSettingsEntry"
        width: parent.width
        symbol: "iphone"
        name: qsTrId("app.phone.menu")
        onPressed: {
            menu.close();
            menu.settingsAsked();
        }
    }
    MenuEntry {
        objectName: "quitEntry"
        width: parent.width
        symbol: "xmark"
        name: qsTrId("app.quit")
        onPressed: {
            menu.close();
            menu.quitAsked();
        }
    }
}
