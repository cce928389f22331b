// Sets up the plain date: one font, size and colour, stored as they change.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "dateTextPage"

    required property DateTextScreen screen
    readonly property DateTextScreen date: screen

    title: qsTrId("CustomiseDate")
    symbol: "calendar"
    spacing: 10
    covered: chooser.shown || date.showingFontPicker

    Connections {
        target: Surroundings
        function onDarkChanged() {
            page.date.appear();
        }
    }
    SettingPreview {
        anchors.horizontalCenter: parent.horizontalCenter
        bottomPadding: 10
        ground: page.date.ground
        slice: page.date.slice
        cover: page.date.cover
        face: page.date.face
        previewWidth: page.date.previewWidth
        previewHeight: page.date.previewHeight
    }
    ColourWell {
        anchors.horizontalCenter: parent.horizontalCenter
        width: page.date.previewWidth
        title: qsTrId("SetTextColour")
        value: page.date.colour
        onPressed: chooser.open(value, title)
    }
    ButtonRow {
        objectName: "fontRow"
        anchors.horizontalCenter: parent.horizontalCenter
        width: page.date.previewWidth
        title: qsTrId("PickFont")
        value: SharedWords.fontWords(page.date.font)
        onPressed: page.date.pickFont()
    }
    StepperRow {
        objectName: "sizeRow"
        anchors.horizontalCenter: parent.horizontalCenter
        width: page.date.previewWidth
        title: qsTrId("app.fontSize")
        value: page.date.size
        lowest: page.date.lowestSize
        highest: page.date.highestSize
        onStepped: now => page.date.size = now
    }
    Label {
        objectName: "footer"
        x: 45
        width: page.width - 90
        font.pixelSize: 13
        color: Theme.quietText
        text: qsTrId("AllSettingAutoSaves")
    }
    overlay: [
        ColourChooser {
            id: chooser
            onChosen: now => page.date.colour = now
        },
        Sheet {
            id: fontSheet
            objectName: "fontSheet"
            shown: page.date.showingFontPicker
            onDismissed: page.date.dismissFontPicker()

            Loader {
                anchors.fill: parent
                focus: true
                active: fontSheet.present
                sourceComponent: FontPickerPage {
                    focus: true
                    fonts: Shell.storedFonts("DateFontPicker")
                    fontPicked: page.date.font
                    onClosed: fontSheet.dismissed()
                }
            }
        }
    ]
}
