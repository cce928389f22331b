// Picks the colour that all widgets may have for a ground, and switches it on.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "solidBackgroundPage"

    required property SolidBackgroundScreen screen
    readonly property SolidBackgroundScreen solid: screen

    title: qsTrId("ColourVitrelles")
    symbol: "app.fill"
    spacing: 20
    covered: chooser.shown

    Connections {
        target: Surroundings
        function onDarkChanged() {
            page.solid.appear();
        }
    }
    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 8

        ToggleRow {
            objectName: "solidToggle"
            width: page.solid.previewWidth
            title: qsTrId("EnableColourVitrelle")
            value: page.solid.on
            onToggled: page.solid.on = !page.solid.on
        }
        Label {
            x: 15
            width: page.solid.previewWidth - 30
            font.pixelSize: 13
            color: Theme.quietText
            text: qsTrId("EnableColourVitrelleD")
        }
    }
    ColourWell {
        anchors.horizontalCenter: parent.horizontalCenter
        width: page.solid.previewWidth
        title: qsTrId("SetSolidColour")
        value: page.solid.colour
        onPressed: chooser.open(value, title)
    }
    SettingPreview {
        anchors.horizontalCenter: parent.horizontalCenter
        ground: page.solid.ground
        slice: page.solid.slice
        cover: page.solid.on ? page.solid.colour : "transparent"
        previewWidth: page.solid.previewWidth
        previewHeight: page.solid.previewHeight
    }
    overlay: ColourChooser {
        id: chooser
        onChosen: now => page.solid.colour = now
    }
}
