// The gallery of a family.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "galleryPage"

    required property GalleryScreen screen
    property AssignScreen assignScreen: null // of the sheet over it
    property int asked: 0 // the tile whose menu is open

    signal editAsked(int index)
    signal assignAsked(int index)
    signal assignLeft
    signal linkSaved

    title: screen.words.galleryTitle
    symbol: SharedWords.gallerySymbol
    spacing: 18
    covered: menu.shown || assignScreen !== null
    Component.onCompleted: screen.appear()
    onAssignScreenChanged: {
        if (assignScreen)
            assignSheet.held = assignScreen;
        assignSheet.shown = assignScreen !== null;
    }

    Connections {
        target: Surroundings
        function onDarkChanged() { // also when another phone is stood for
            page.screen.appear();
        }
    }
    Row {
        x: 30
        width: parent.width - 60
        spacing: 10
        visible: page.screen.placeholder === ""

        SymbolItem {
            anchors.verticalCenter: parent.verticalCenter
            name: SharedWords.galleryHintSymbol
            size: 22
            colour: Theme.quietText
        }
        Label {
            width: parent.width - 32
            font.pixelSize: 14
            color: Theme.quietText
            text: SharedWords.galleryHint
        }
    }
    Item {
        width: parent.width
        height: page.height / 2
        visible: page.screen.placeholder !== ""

        Column {
            anchors.centerIn: parent
            width: parent.width - 60
            spacing: 14

            SymbolItem {
                anchors.horizontalCenter: parent.horizontalCenter
                name: page.screen.words.entrySymbol
                size: 44
                colour: Theme.accent
            }
            Label {
                objectName: "galleryPlaceholder"
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: 18
                font.weight: Font.DemiBold
                text: page.screen.placeholder
            }
        }
    }
    Grid {
        id: grid
        objectName: "grid"
        x: (parent.width - columns * page.screen.tileSide - (columns - 1) * spacing) / 2 // the first column's, also of a single tile
        columns: page.screen.columns
        spacing: page.screen.spacing

        function move(from: int, by: int) {
            const next = tiles.itemAt(from + by);
            if (next)
                next.forceActiveFocus();
        }
        Repeater {
            id: tiles
            model: page.screen.tiles

            GalleryTile {
                id: tile
                gallery: page.screen
                onMenuAsked: position => {
                    page.asked = index;
                    menu.openAt(tile, position);
                }
                Keys.onLeftPressed: grid.move(index, -1)
                Keys.onRightPressed: grid.move(index, 1)
                Keys.onUpPressed: grid.move(index, -page.screen.columns)
                Keys.onDownPressed: grid.move(index, page.screen.columns)
            }
        }
    }
    overlay: [
        ContextMenu {
            id: menu
            objectName: "tileMenu"

            MenuEntry {
                objectName: "editEntry"
                width: parent.width
                name: SharedWords.editItem
                symbol: SharedWords.editSymbol
                onPressed: {
                    menu.close();
                    page.editAsked(page.asked);
                }
            }
            MenuEntry {
                objectName: "assignEntry"
                width: parent.width
                name: page.screen.words.assignItem
                symbol: SharedWords.assignSymbol
                onPressed: {
                    menu.close();
                    page.assignAsked(page.asked);
                }
            }
        },
        Sheet {
            id: assignSheet
            objectName: "assignSheet"

            property AssignScreen held: null // also while it goes away

            onDismissed: page.assignLeft()

            Loader {
                anchors.fill: parent
                focus: true
                active: assignSheet.present
                sourceComponent: AssignPage {
                    focus: true
                    screen: assignSheet.held
                    onSaved: page.linkSaved()
                    onClosed: page.assignLeft()
                }
            }
        }
    ]
}
