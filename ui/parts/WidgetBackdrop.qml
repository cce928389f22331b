// What is behind a widget: a slice of the wallpaper, or the program's own picture in its place.
import QtQuick
import Vitrelle

Item {
    id: backdrop

    required property backdropName name
    property int revision: 0
    property real radius: 24 // of every widget preview

    ContinuousRectangle {
        anchors.fill: parent
        visible: !slice.ready
        radius: backdrop.radius
        colour: Theme.card
    }
    StoredPicture {
        id: slice
        objectName: "slice"
        anchors.fill: parent
        stem: backdrop.name.stem
        styleNumber: backdrop.name.styleNumber
        dark: backdrop.name.dark
        revision: backdrop.revision
        radius: backdrop.radius
        standIn: "whats-new-bg"
    }
}
