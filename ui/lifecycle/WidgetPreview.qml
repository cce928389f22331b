// A medium widget above a form: the slice of the wallpaper with the face on it.
import QtQuick
import Vitrelle

Column {
    id: preview

    property alias face: faceView.face
    property alias backdrop: ground.name

    required property real previewWidth
    required property real previewHeight

    spacing: 8

    Label {
        width: preview.previewWidth
        font.pixelSize: 16
        font.weight: Font.DemiBold
        text: SharedWords.previewHeading
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    WidgetBackdrop {
        id: ground
        objectName: "previewBackdrop"
        width: preview.previewWidth
        height: preview.previewHeight
        name: ({})

        FaceView {
            id: faceView
            objectName: "previewFace"
            anchors.fill: parent
            bleed: 0 // a widget ends at its edge
        }
    }
}
