// A row with a colour, which opens the colour chooser.
import QtQuick
import Vitrelle

Pressable {
    id: well

    required property string title
    required property color value

    objectName: "colourWell"
    implicitHeight: 45
    focusRadius: 20
    name: title

    Panel {
        anchors.fill: parent
    }
    Label {
        x: 15
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 16
        font.weight: Font.DemiBold
        spoken: false
        text: well.title
    }
    ColourDisc {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 30
        height: 30
        colour: well.value
        rainbow: true
    }
}
