// A medium widget above a form: the slice of the wallpaper with the face on it.
import QtQuick
import Vitrelle

Column {
    id: preview

    property alias face: faceView.face
    property alias backdrop: ground.name

    property bool takesPictures: false

    signal fileDropped(url file)
    signal bytesDropped(var bytes)

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
        DropArea {
            id: drop

            // Pixels before names: the file that a browser names is far away.
            function picture(event: DragEvent): string {
                return Array.from(event.formats).find(format => format.startsWith("image/")) ?? "";
            }

            anchors.fill: parent
            enabled: preview.takesPictures
            onEntered: event => event.accepted = event.hasUrls || picture(event) !== ""
            onDropped: event => {
                event.acceptProposedAction();
                const format = picture(event);
                if (format !== "")
                    preview.bytesDropped(event.getDataAsArrayBuffer(format));
                else if (event.hasUrls)
                    preview.fileDropped(event.urls[0]);
            }
        }
        ContinuousRectangle {
            anchors.fill: parent
            visible: drop.containsDrag
            radius: ground.radius
            borderColour: Theme.accent
            borderWidth: 3
        }
    }
}
