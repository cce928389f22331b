// Whatever can be pressed, with a pointer, a finger or keys.
import QtQuick
import Vitrelle

Item {
    id: pressable

    required property string name // for those who can't see it
    property int role: Accessible.Button
    property real focusRadius: 12
    property bool ringed: true // else it shows in its own way where the keys go
    property bool tappable: true // else what lies above it takes the presses
    property bool held: tap.pressed
    readonly property bool hovered: hover.hovered
    property real rest: 1 // opacity while nobody points at it
    // A finger needs 40 points, however small the sign is.
    readonly property real reach: Math.max(0, (40 - Math.min(width, height)) / 2)

    signal pressed
    /// A right click, or a long press.
    signal menuAsked(point position)

    /// A key that is held presses once: what it led to must not be pressed as well.
    function pressByKey() {
        if (!Surroundings.isKeyHeld())
            pressed();
    }

    activeFocusOnTab: true
    opacity: rest * (held ? 0.6 : hover.hovered ? 0.92 : 1)
    Accessible.role: role
    Accessible.name: name
    Accessible.focusable: true
    Accessible.onPressAction: pressed()
    Keys.onReturnPressed: pressByKey()
    Keys.onEnterPressed: pressByKey()
    Keys.onSpacePressed: pressByKey()
    Keys.onMenuPressed: menuAsked(Qt.point(width / 2, height / 2))

    TapHandler {
        id: tap
        enabled: pressable.tappable
        margin: pressable.reach
        // Takes the press for itself, so that nothing beneath is pressed as well.
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: pressable.pressed()
        onLongPressed: pressable.menuAsked(point.position)
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        margin: pressable.reach
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: eventPoint => pressable.menuAsked(eventPoint.position)
    }
    HoverHandler {
        id: hover
        margin: pressable.reach
        cursorShape: Qt.PointingHandCursor
    }
    FocusRing {
        shown: pressable.activeFocus && pressable.ringed
        radius: pressable.focusRadius
    }
}
