// Shows where the keys go, to those who use them.
import QtQuick
import Vitrelle

ContinuousRectangle {
    required property bool shown
    property bool always: false // also while a pointer is at work: where words are typed

    anchors.fill: parent
    anchors.margins: -5
    z: 1
    visible: shown && (always || Surroundings.keysInUse)
    borderColour: Theme.accent
    borderWidth: 2
}
