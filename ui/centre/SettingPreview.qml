// What comes of a setting for all widgets: the wallpaper, or grey, with what lies over it.
import QtQuick
import Vitrelle

Column {
    id: preview

    required property face ground
    required property backdropName slice
    required property color cover
    required property real previewWidth
    required property real previewHeight
    property alias face: faceView.face
    readonly property real radius: 15 // of the grey frame

    spacing: 12

    Label {
        width: preview.previewWidth
        font.pixelSize: 16
        font.weight: Font.DemiBold
        text: qsTrId("WidgetPreview")
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    FaceView {
        width: preview.previewWidth
        height: preview.previewHeight
        bleed: 30 // more than its shadow reaches
        face: preview.ground

        StoredPicture {
            objectName: "slice"
            anchors.fill: parent
            stem: preview.slice.stem
            styleNumber: preview.slice.styleNumber
            dark: preview.slice.dark
            radius: preview.radius
        }
        ContinuousRectangle {
            objectName: "cover"
            anchors.fill: parent
            colour: preview.cover
            radius: preview.radius
        }
        FaceView {
            id: faceView
            objectName: "previewFace"
            anchors.fill: parent
            bleed: 0 // a widget ends at its edge
        }
    }
}
