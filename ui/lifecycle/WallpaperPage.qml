// A whole wallpaper with the widget at its place.
import QtQuick
import Vitrelle

Item {
    id: wallpaper

    required property int index
    required property backdropName modelData
    required property PreviewScreen preview
    property real radius: 38
    property real enlarged: 1

    objectName: "wallpaper" + index
    width: preview.pageWidth * enlarged
    height: preview.pageHeight * enlarged

    WidgetBackdrop {
        anchors.fill: parent
        name: wallpaper.modelData
        radius: wallpaper.radius
    }
    FaceView {
        x: wallpaper.preview.widgetBox.x * wallpaper.enlarged
        y: wallpaper.preview.widgetBox.y * wallpaper.enlarged
        width: wallpaper.preview.widgetBox.width * wallpaper.enlarged
        height: wallpaper.preview.widgetBox.height * wallpaper.enlarged
        magnification: wallpaper.enlarged
        face: wallpaper.preview.face
    }
}
