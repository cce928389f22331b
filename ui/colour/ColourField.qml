// Saturation from left to right and brightness from below to above, of one hue.
import QtQuick
import Vitrelle

Item {
    id: field

    required property real hue
    required property real saturation
    required property real brightness

    signal moved(real saturation, real brightness)

    function to(s: real, b: real) {
        moved(Math.max(0, Math.min(1, s)), Math.max(0, Math.min(1, b)));
    }

    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: qsTrId("app.colour.shade")
    Accessible.focusable: true
    Keys.onLeftPressed: to(saturation - 0.02, brightness)
    Keys.onRightPressed: to(saturation + 0.02, brightness)
    Keys.onUpPressed: to(saturation, brightness + 0.02)
    Keys.onDownPressed: to(saturation, brightness - 0.02)

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: "white" }
            GradientStop { position: 1; color: Qt.hsva(field.hue, 1, 1, 1) }
        }
    }
    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: "transparent" }
            GradientStop { position: 1; color: "black" }
        }
    }
    ContinuousRectangle { // the corners, for gradients have square ones
        anchors.fill: parent
        inverted: true
        radius: 12
        colour: Theme.card
    }
    ContinuousRectangle {
        x: field.saturation * field.width - width / 2
        y: (1 - field.brightness) * field.height - height / 2
        width: 26
        height: 26
        radius: 13
        colour: Qt.hsva(field.hue, field.saturation, field.brightness, 1)
        borderColour: "white"
        borderWidth: 3
    }
    MouseArea {
        anchors.fill: parent
        preventStealing: true
        cursorShape: Qt.CrossCursor
        onPressed: mouse => {
            field.forceActiveFocus();
            field.to(mouse.x / width, 1 - mouse.y / height);
        }
        onPositionChanged: mouse => field.to(mouse.x / width, 1 - mouse.y / height)
    }
    FocusRing {
        shown: field.activeFocus
        radius: 17
    }
}
