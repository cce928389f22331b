// Links a widget style to a wallpaper style.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "assignPage"

    required property AssignScreen screen

    signal saved

    title: screen.words.assignTitle
    symbol: SharedWords.assignSymbol
    spacing: 20
    covered: menu.shown || screen.alertTitle !== ""
    Component.onCompleted: screen.appear()

    Connections {
        target: Surroundings
        function onDarkChanged() { // also when another phone is stood for
            page.screen.appear();
        }
    }

    WidgetPreview {
        anchors.horizontalCenter: parent.horizontalCenter
        face: page.screen.face
        backdrop: page.screen.backdrop
        previewWidth: page.screen.previewWidth
        previewHeight: page.screen.previewHeight
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
        width: Surroundings.screenWidth - 60
        title: SharedWords.assignPicker
        mark: "chevron.up.chevron.down"
        value: page.screen.picked >= 0 ? page.screen.options[page.screen.picked] : ""
        onPressed: menu.openAt(picker, Qt.point(width - 250, height + 4), options.itemAt(page.screen.picked))
        picture: WallpaperThumbnail {
            objectName: "pickedWallpaper"
            styleNumber: page.screen.picked >= 0 ? page.screen.wallpapers[page.screen.picked] : -1
        }
    }
    ActionButton {
        objectName: "saveAndExit"
        anchors.horizontalCenter: parent.horizontalCenter
        name: SharedWords.saveAndExit
        onPressed: page.saved()
    }
    overlay: [
        ContextMenu {
            id: menu

            Repeater {
                id: options
                model: page.screen.options

                MenuEntry {
                    required property int index
                    required property string modelData

                    objectName: "option" + index
                    width: parent.width
                    name: modelData
                    symbol: index === page.screen.picked ? "checkmark" : ""
                    leading: WallpaperThumbnail {
                        styleNumber: page.screen.wallpapers[index]
                    }
                    onPressed: {
                        page.screen.pick(index);
                        menu.close();
                    }
                }
            }
        },
        AlertBox {
            objectName: "assignAlert"
            title: page.screen.alertTitle
            message: page.screen.alertMessage
            shown: page.screen.alertTitle !== ""
            onDismissed: page.screen.dismissAlert()
        }
    ]
}
