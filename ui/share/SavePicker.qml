// The choosing of a place for something that is shared, and its saving there: in the desktop's own
// dialog, or on a page of ours where the desktop has none.
import QtQuick
import QtQuick.Window
import Vitrelle

FocusScope {
    id: picker

    required property sharedItem item
    property bool shown: false
    property Item opener // gets the keys back

    function open() {
        opener = Window.window.activeFocusItem;
        shown = true;
        forceActiveFocus();
        portal.save(Window.window, qsTrId("app.share.saveAs"), qsTrId("app.picker.pictures"), Sharing.folder(), item.fileName);
    }
    function close() {
        portal.close();
        sheet.shown = false;
        shown = false;
        if (opener)
            opener.forceActiveFocus();
    }
    function save(file: url): bool {
        const trouble = Sharing.save(item, file);
        if (trouble !== "")
            Notices.show(trouble);
        else
            Notices.show(qsTrId("app.share.saved").arg(Sharing.nameOf(file)), Notices.Done);
        return trouble === "";
    }
    function goBack() {
        close();
    }

    anchors.fill: parent
    visible: shown || sheet.present
    Keys.onEscapePressed: goBack()
    Keys.onBackPressed: goBack()

    PortalPicker {
        id: portal
        onAccepted: file => {
            picker.save(file);
            picker.close();
        }
        onRejected: picker.close()
        onUnavailable: sheet.shown = true
    }
    MouseArea { // what the dialog lies over can't be pressed
        anchors.fill: parent
    }
    Sheet {
        id: sheet
        objectName: "saveSheet"
        onDismissed: picker.close()

        Loader {
            anchors.fill: parent
            focus: true
            active: sheet.present
            sourceComponent: SavePage {
                focus: true
                fileName: picker.item.fileName
                onChosen: file => {
                    if (picker.save(file))
                        picker.close();
                }
                onClosed: picker.close()
            }
        }
    }
}
