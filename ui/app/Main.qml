// The window: a phone, scaled to fit the desktop.
import QtQuick
import Vitrelle

Window {
    id: window

    readonly property real rim: Surroundings.framed ? 14 : 0
    readonly property real phoneWidth: Surroundings.screenWidth + 2 * rim
    readonly property real phoneHeight: Surroundings.screenHeight + 2 * rim
    readonly property real fit: Surroundings.framed ? Math.min(1, (Screen.desktopAvailableHeight - 60) / phoneHeight) : 1

    /// One step back from where the keys go: a menu, a sheet's page, a page.
    function goBack(from: var) {
        let item = from;
        while (item && !item.goBack)
            item = item.parent;
        if (item)
            item.goBack();
    }

    /// The window stays as high as it is, for the user may have chosen that.
    function refit() {
        if (!Surroundings.framed) {
            width = phoneWidth;
            height = phoneHeight;
        } else if (visibility === Window.Windowed) {
            width = Math.round(Math.min(height * phoneWidth / phoneHeight, Screen.desktopAvailableWidth));
        }
    }

    title: Shell.root.title
    minimumWidth: phoneWidth / 3
    minimumHeight: phoneHeight / 3
    color: "black"
    Component.onCompleted: {
        width = phoneWidth * fit;
        height = phoneHeight * fit;
    }

    Connections {
        target: Surroundings
        function onScreenChanged() {
            window.refit();
        }
    }
    Item { // beneath the phone: gets the presses that nothing on it takes
        id: ground
        anchors.fill: parent

        TapHandler {
            acceptedButtons: Qt.RightButton
            gesturePolicy: TapHandler.ReleaseWithinBounds
            onTapped: eventPoint => screens.openMenu(ground, eventPoint.position)
        }
        TapHandler {
            onLongPressed: screens.openMenu(ground, point.position)
        }
    }
    Item {
        anchors.centerIn: parent
        width: window.phoneWidth
        height: window.phoneHeight
        scale: Math.min(window.width / width, window.height / height)

        Screens {
            id: screens
            x: window.rim
            y: window.rim
            width: Surroundings.screenWidth
            height: Surroundings.screenHeight
            clip: true
            focus: true
            onQuitAsked: window.close()
        }
        ContinuousRectangle { // the corners of the screen
            anchors.fill: screens
            anchors.margins: -1 // the screen's last row may end within a pixel
            visible: Surroundings.framed
            inverted: true
            colour: "black"
            borderColour: "black"
            borderWidth: 2
            radius: Theme.tall ? 44 : 0
        }
    }
    Shortcut {
        sequences: [StandardKey.Quit]
        onActivated: window.close()
    }
    Shortcut {
        sequences: [StandardKey.Preferences, "Ctrl+,"]
        onActivated: screens.openSettings()
        onActivatedAmbiguously: screens.openSettings() // where the two are the same
    }
    Shortcut {
        sequence: "F10"
        onActivated: screens.openMenu(screens, Qt.point(8, Theme.topInset))
    }
    Shortcut {
        sequences: [StandardKey.Back]
        onActivated: window.goBack(window.activeFocusItem)
    }
}
