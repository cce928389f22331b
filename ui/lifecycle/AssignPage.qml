// Links a widget style to a wallpaper style.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "assignPage"

    required property AssignScreen assign

    title: assign.words.assignTitle
    symbol: SharedWords.assignSymbol
    spacing: 20
    covered: menu.shown || assign.alertTitle !== ""
    Component.onCompleted: assign.appear()

    WidgetPreview {
        anchors.horizontalCenter: parent.horizontalCenter
        face: page.assign.face
        backdrop: page.assign.backdrop
        previewWidth: page.assign.previewWidth
        previewHeight: page.assign.previewHeight
    }
    Label {
        x: 30
        font.pixelSize: 16
        font.weight: Font.DemiBold
        text: SharedWords.assignHeading
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    ButtonRow {
        id: picker
        objectName: "assignPicker"
        anchors.horizontalCenter: parent.horizontalCenter
        width: Shell.screenWidth - 60
        title: SharedWords.assignPicker
        mark: "chevron.up.chevron.down"
        value: page.assign.picked >= 0 ? page.assign.options[page.assign.picked] : ""
        onPressed: menu.openAt(picker, Qt.point(width - 250, height + 4), options.itemAt(page.assign.picked))
        picture: WallpaperThumbnail {
            objectName: "pickedWallpaper"
            styleNumber: page.assign.picked >= 0 ? page.assign.wallpapers[page.assign.picked] : -1
        }
    }
    ActionButton {
        objectName: "saveAndExit"
        anchors.horizontalCenter: parent.horizontalCenter
        name: SharedWords.saveAndExit
        onPressed: {
            if (!page.assign.save())
                return;
            if (page.assign.isSaved())
                Shell.showNotice(qsTrId("app.saved"), Shell.Done);
            page.closed();
        }
    }
    overlay: [
        ContextMenu {
            id: menu

            Repeater {
                id: options
                model: page.assign.options

                MenuEntry {
                    required property int index
                    required property string modelData

                    objectName: "option" + index
                    width: parent.width
                    name: modelData
                    symbol: index === page.assign.picked ? "checkmark" : ""
                    leading: WallpaperThumbnail {
                        styleNumber: page.assign.wallpapers[index]
                    }
                    onPressed: {
                        page.assign.pick(index);
                        menu.close();
                    }
                }
            }
        },
        AlertBox {
            objectName: "assignAlert"
            title: page.assign.alertTitle
            message: page.assign.alertMessage
            shown: page.assign.alertTitle !== ""
            onDismissed: page.assign.dismissAlert()
        }
    ]
}
