// One widget style in the gallery: its face over its wallpaper, with the tick of the current one.
import QtQuick
import Vitrelle

Pressable {
    id: tile

    required property int index
    required property face face
    required property backdropName backdrop
    required property bool current
    required property int linked // the wallpaper style; -1 for none
    required property GalleryScreen gallery

    objectName: "tile" + index
    width: gallery.tileSide
    height: gallery.tileSide
    focusRadius: 29
    name: qsTrId("app.gallery.tile").arg(index + 1) + (linked < 0 ? "" : ", " + qsTrId("app.gallery.linked").arg(linked + 1))
    Accessible.description: SharedWords.galleryHint
    onPressed: menuAsked(Qt.point(width / 2, height / 2))

    WidgetBackdrop {
        anchors.fill: parent
        name: tile.backdrop
        revision: tile.gallery.revision
    }
    FaceView {
        anchors.fill: parent
        bleed: 0 // a widget ends at its edge
        face: tile.face
    }
    ContinuousRectangle {
        objectName: "tileLink" + tile.index
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: 10
        visible: tile.linked >= 0
        width: link.width + 16
        height: 24
        radius: 12
        colour: Qt.rgba(0, 0, 0, 0.6) // shows on any wallpaper

        Row {
            id: link
            anchors.centerIn: parent
            spacing: 5

            SymbolItem {
                anchors.verticalCenter: parent.verticalCenter
                name: SharedWords.assignSymbol
                size: 12
                colour: "white"
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                spoken: false
                color: "white"
                font.pixelSize: 13
                font.weight: Font.DemiBold
                text: tile.linked + 1
            }
        }
    }
    Pressable {
        objectName: "tileTick" + tile.index
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 6
        width: 32
        height: 32
        focusRadius: 20
        role: Accessible.RadioButton
        name: (tile.current ? qsTrId("app.gallery.current") : qsTrId("app.gallery.use")).arg(tile.index + 1)
        Accessible.checkable: true
        Accessible.checked: tile.current
        onPressed: tile.gallery.tapTick(tile.index)
        onMenuAsked: position => tile.menuAsked(mapToItem(tile, position))

        ContinuousRectangle { // the tick's own, which shows on any wallpaper
            anchors.centerIn: parent
            width: tile.gallery.tickSize - 4
            height: width
            radius: width / 2
            colour: "white"
        }
        SymbolItem {
            objectName: "tileTickSymbol" + tile.index
            anchors.centerIn: parent
            name: SharedWords.tickSymbol
            size: tile.gallery.tickSize
            colour: tile.current ? Theme.tick : Theme.grey
        }
    }
}
