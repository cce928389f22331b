// Shows where the keys go.
import QtQuick
import Vitrelle

ContinuousRectangle {
    required property bool shown

    anchors.fill: parent
    anchors.margins: -5
    z: 1
    visible: shown
    borderColour: Theme.accent
    borderWidth: 2
}
