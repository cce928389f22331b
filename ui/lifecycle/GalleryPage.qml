// The gallery of a family.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "galleryPage"

    required property GalleryScreen gallery
    property int asked: 0 // the tile whose menu is open

    signal editAsked

    title: gallery.words.galleryTitle
    symbol: SharedWords.gallerySymbol
    spacing: 18
    covered: menu.shown || gallery.showAssignSheet
    Component.onCompleted: gallery.appear()

    Connections {
        target: Shell
        function onDarkChanged() {
            page.gallery.appear();
        }
    }
    Row {
        x: 30
        width: parent.width - 60
        spacing: 10
        visible: page.gallery.placeholder === ""

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
        visible: page.gallery.placeholder !== ""

        Column {
            anchors.centerIn: parent
            width: parent.width - 60
            spacing: 14

            SymbolItem {
                anchors.horizontalCenter: parent.horizontalCenter
                name: page.gallery.words.entrySymbol
                size: 44
                colour: Theme.accent
            }
            Label {
                objectName: "galleryPlaceholder"
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: 18
                font.weight: Font.DemiBold
                text: page.gallery.placeholder
            }
        }
    }
    Grid {
        id: grid
        objectName: "grid"
        x: (parent.width - columns * page.gallery.tileSide - (columns - 1) * spacing) / 2 // the first column's, also of a single tile
        columns: page.gallery.columns
        spacing: page.gallery.spacing

        function move(from: int, by: int) {
            const next = tiles.itemAt(from + by);
            if (next)
                next.forceActiveFocus();
        }
        Repeater {
            id: tiles
            model: page.gallery.tiles

            GalleryTile {
                id: tile
                gallery: page.gallery
                onMenuAsked: position => {
                    page.asked = index;
                    menu.openAt(tile, position);
                }
                Keys.onLeftPressed: grid.move(index, -1)
                Keys.onRightPressed: grid.move(index, 1)
                Keys.onUpPressed: grid.move(index, -page.gallery.columns)
                Keys.onDownPressed: grid.move(index, page.gallery.columns)
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
                visible: page.gallery.hasEditor
                name: SharedWords.editItem
                symbol: SharedWords.editSymbol
                onPressed: {
                    menu.close();
                    page.gallery.tapEdit(page.asked);
                    page.editAsked();
                }
            }
            MenuEntry {
                objectName: "assignEntry"
                width: parent.width
                name: page.gallery.words.assignItem
                symbol: SharedWords.assignSymbol
                onPressed: {
                    menu.close();
                    page.gallery.tapAssign(page.asked);
                }
            }
        },
        Sheet {
            id: assignSheet
            objectName: "assignSheet"
            shown: page.gallery.showAssignSheet
            onDismissed: page.gallery.dismissAssign()

            Loader {
                anchors.fill: parent
                focus: true
                active: assignSheet.present
                sourceComponent: AssignPage {
                    focus: true
                    assign: page.gallery.assign()
                    onClosed: page.gallery.dismissAssign()
                }
            }
        }
    ]
}
