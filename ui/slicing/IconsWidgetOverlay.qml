// Placeholder app icons over a picture of a home screen: rows of four, clear where widgets stand.
// The dock is the picture's own.
import QtQuick
import Vitrelle

Item {
    id: overlay

    // Of the screen, whose picture this lies over at a fraction of its size.
    readonly property real side: Surroundings.screenWidth / 11
    readonly property real gap: (width - 4 * side) / 5
    property int rows: 6
    property int clearRows: 4

    Repeater {
        model: (overlay.rows - overlay.clearRows) * 4 // clear ones need not be drawn

        ContinuousRectangle {
            required property int index
            readonly property int row: overlay.clearRows + Math.floor(index / 4)

            x: overlay.gap + (index % 4) * (overlay.side + overlay.gap)
            y: overlay.height * 0.085 + row * (overlay.height * 0.78 - overlay.side) / overlay.rows
            width: overlay.side
            height: overlay.side
            radius: 12
            colour: Qt.rgba(1, 1, 1, 0.5)
        }
    }
}
