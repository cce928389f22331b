// A widget's face in its frame, with room around it for its shadow.
import QtQuick
import Vitrelle

Item {
    id: view

    property alias face: item.face
    property int bleed: 24 // whole points, more than a shadow of radius 5 reaches
    property real magnification: 1
    readonly property int around: Math.ceil(bleed * magnification)

    Accessible.ignored: true

    FaceItem {
        id: item
        objectName: "face"
        x: -view.around
        y: -view.around
        width: Math.ceil(view.width) + 2 * view.around
        height: Math.ceil(view.height) + 2 * view.around
        bleed: view.around / view.magnification
        magnification: view.magnification
    }
}
