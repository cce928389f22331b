// The choosing of a picture: in the desktop's own dialog, or in a grid of pictures over the page
// where the desktop has none.
import QtQuick
import QtQuick.Window
import Vitrelle

FocusScope {
    id: picker

    property bool shown: false
    property Item opener // gets the keys back

    signal accepted(url file)
    signal rejected

    function open() {
        opener = Window.window.activeFocusItem;
        shown = true;
        forceActiveFocus();
        portal.open(Window.window, qsTrId("app.picker.title"), qsTrId("app.picker.pictures"), Shell.pictureFolder());
    }
    function close() {
        portal.close();
        sheet.shown = false;
        shown = false;
        if (opener)
            opener.forceActiveFocus();
    }
    function take(file: url) {
        Shell.rememberPicture(file);
        accepted(file);
    }
    function goBack() {
        rejected();
    }

    anchors.fill: parent
    visible: shown || sheet.present
    Keys.onEscapePressed: rejected()
    Keys.onBackPressed: rejected()

    PortalPicker {
        id: portal
        onAccepted: file => picker.take(file)
        onRejected: picker.rejected()
        onUnavailable: sheet.shown = true
    }
    MouseArea { // what the dialog lies over can't be pressed
        anchors.fill: parent
    }
    Sheet {
        id: sheet
        objectName: "pickerSheet"
        onDismissed: picker.rejected()

        Loader {
            anchors.fill: parent
            focus: true
            active: sheet.present
            sourceComponent: PicturePickerPage {
                focus: true
                onPicked: file => picker.take(file)
                onClosed: picker.rejected()
            }
        }
    }
}
