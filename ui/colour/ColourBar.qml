// A slider whose track shows what it leads to. The value goes from 0 to 1.
import QtQuick
import Vitrelle

Item {
    id: bar

    required property string name
    required property real value
    property color knob: "white"
    // The range, as assistive programs look for it.
    readonly property real minimumValue: 0
    readonly property real maximumValue: 1
    readonly property real stepSize: 0.01
    default property alias track: ground.data

    signal moved(real now)

    function to(now: real) {
        moved(Math.max(0, Math.min(1, now)));
    }

    implicitHeight: 30
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: name
    Accessible.focusable: true
    Accessible.onIncreaseAction: to(value + 0.01)
    Accessible.onDecreaseAction: to(value - 0.01)
    Keys.onLeftPressed: event => to(value - (event.modifiers & Qt.ShiftModifier ? 0.1 : 0.01))
    Keys.onRightPressed: event => to(value + (event.modifiers & Qt.ShiftModifier ? 0.1 : 0.01))

    Item {
        id: ground
        anchors.fill: parent
        anchors.topMargin: 3
        anchors.bottomMargin: 3
    }
    ContinuousRectangle { // the ends of the track, for gradients have square ones
        anchors.fill: ground
        inverted: true
        radius: height / 2
        colour: Theme.card
    }
    ContinuousRectangle {
        x: bar.value * (bar.width - width)
        width: 30
        height: 30
        radius: 15
        colour: bar.knob
        borderColour: "white"
        borderWidth: 3
    }
    MouseArea {
        anchors.fill: parent
        anchors.topMargin: -5
        anchors.bottomMargin: -5
        preventStealing: true
        cursorShape: Qt.PointingHandCursor
        onPressed: mouse => {
            bar.forceActiveFocus();
            bar.to((mouse.x - 15) / (width - 30));
        }
        onPositionChanged: mouse => bar.to((mouse.x - 15) / (width - 30))
    }
    FocusRing {
        shown: bar.activeFocus
        radius: 20
    }
}
