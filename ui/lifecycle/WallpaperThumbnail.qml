// A wallpaper style's picture, small, beside its number. Takes no room where no style is meant.
import QtQuick
import Vitrelle

Item {
    id: thumbnail

    property int styleNumber: -1

    visible: styleNumber >= 0
    implicitWidth: visible ? 28 : 0
    implicitHeight: visible ? Math.round(28 * Surroundings.screenHeight / Surroundings.screenWidth) : 0

    ContinuousRectangle {
        anchors.fill: parent
        visible: !picture.ready
        radius: 5
        colour: Theme.backdrop
    }
    SymbolItem {
        anchors.centerIn: parent
        visible: picture.missing
        name: picture.dark ? "moon.fill" : "sun.max.fill"
        size: 14
        colour: Theme.accent
    }
    StoredPicture {
        id: picture
        objectName: "thumbnail"
        anchors.fill: parent
        styleNumber: thumbnail.styleNumber
        dark: Surroundings.dark
        radius: 5
    }
}
