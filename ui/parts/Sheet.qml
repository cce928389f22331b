// A page that comes up from below and covers the screen: rounded at the corners, on black.
import QtQuick
import QtQuick.Window
import Vitrelle

FocusScope {
    id: sheet

    property bool shown: false
    property bool present: false // also while it goes away
    property Item opener // gets the keys back
    default property alias content: body.data

    signal dismissed

    width: parent.width
    height: parent.height
    y: shown ? 0 : height
    visible: present
    enabled: present
    onShownChanged: {
        if (!shown) {
            if (opener)
                opener.forceActiveFocus();
            return;
        }
        opener = Window.window ? Window.window.activeFocusItem : null;
        present = true;
        forceActiveFocus();
    }
    onYChanged: if (!shown && y >= height) present = false
    Keys.onEscapePressed: if (!Surroundings.isKeyHeld()) dismissed()
    Keys.onBackPressed: if (!Surroundings.isKeyHeld()) dismissed()

    Behavior on y { NumberAnimation { duration: Theme.longTime; easing.type: Easing.OutCubic } }

    MouseArea { // nothing behind it can be pressed, nor while it goes away: a press may have come twice
        y: -sheet.y
        width: parent.width
        height: parent.height
    }
    FocusScope {
        id: body
        enabled: sheet.shown
        focus: true
        anchors.fill: parent
    }
    ContinuousRectangle {
        anchors.fill: parent
        inverted: true
        colour: "black"
        radius: sheet.height / 36
    }
}
