// A style's wallpaper as a small phone: the picture, or what stands in its place, and mock icons.
import QtQuick
import Vitrelle

Item {
    id: view

    required property int styleNumber
    required property bool dark
    required property int revision
    property string symbol: dark ? "moon.fill" : "sun.max.fill"
    property string noImage: "No Image Set"
    property bool hasIcons: true

    width: Surroundings.screenWidth / 1.5
    height: Surroundings.screenHeight / 1.5

    NoImageView {
        anchors.fill: parent
        visible: picture.missing
        symbol: view.symbol
        words: view.noImage
    }
    ContinuousRectangle {
        anchors.fill: parent
        visible: !picture.ready && !picture.missing
        radius: 38
        colour: Theme.card
    }
    StoredPicture {
        id: picture
        objectName: "picture"
        anchors.fill: parent
        styleNumber: view.styleNumber
        dark: view.dark
        revision: view.revision
        radius: 38
    }
    IconsWidgetOverlay {
        anchors.fill: parent
        visible: view.hasIcons && picture.ready
    }
}
