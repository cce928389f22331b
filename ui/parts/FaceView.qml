// A widget's face in its frame, with room around it for its shadow.
import QtQuick
import Vitrelle

Item {
    id: view

    property alias face: item.face
    property int bleed: 24 // whole points, more than a shadow of radius 5 reaches

    Accessible.ignored: true

    FaceItem {
        id: item
        objectName: "face"
        x: -view.bleed
        y: -view.bleed
        width: Math.ceil(view.width) + 2 * view.bleed
        height: Math.ceil(view.height) + 2 * view.bleed
        bleed: view.bleed
    }
}
