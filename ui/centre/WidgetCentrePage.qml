// The hub: the way to the widget families, to their settings and to the export of slices.
import QtQuick
import QtQuick.Controls
import Vitrelle

Page {
    id: page
    objectName: "widgetCentrePage"

    required property WidgetCentreScreen screen
    readonly property WidgetCentreScreen centre: screen

    signal opened(string screen)

    function tap(index: int) {
        const screen = centre.tap(index);
        if (screen !== "")
            opened(screen);
    }

    title: centre.title
    symbol: centre.symbol
    black: !centre.list
    covered: centre.showSettings || centre.showExport
    StackView.onActivated: centre.appear()

    Flickable {
        anchors.fill: parent
        visible: page.centre.list
        contentHeight: rows.height + 24
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: rows
            anchors.horizontalCenter: parent.horizontalCenter
            y: 12
            spacing: 8

            Repeater {
                model: page.centre.list ? page.centre.tiles : []

                LongButton {
                    required property int index
                    required property hubTile modelData

                    objectName: "tile " + modelData.text
                    focus: index === 0
                    colour: modelData.colour
                    symbol: modelData.symbol
                    text: modelData.text
                    onPressed: page.tap(index)
                    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus()
                    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus()
                }
            }
        }
    }
    TileStrip {
        id: strip
        objectName: "tiles"
        visible: !page.centre.list
        y: page.centre.padding / 2
        width: parent.width
        tiles: page.centre.list ? [] : page.centre.tiles
        side: page.centre.iconSide
        spacing: page.centre.tileSpacing
        padding: page.centre.padding
        onTapped: index => page.tap(index)
    }
    StoredPicture { // what the widgets are to melt into
        objectName: "styleInUse"
        visible: !page.centre.list && page.centre.selectedStyle >= 0
        anchors.horizontalCenter: parent.horizontalCenter
        y: strip.y + strip.height + page.centre.padding / 2
        height: Math.min(parent.height - y - page.centre.padding / 2, Surroundings.screenHeight / 1.5)
        width: height * Surroundings.screenWidth / Surroundings.screenHeight
        styleNumber: page.centre.selectedStyle
        dark: Surroundings.dark
        radius: 38 * height / (Surroundings.screenHeight / 1.5)
    }
    overlay: [
        Sheet {
            id: settings
            objectName: "settingsSheet"
            shown: page.centre.showSettings
            onDismissed: page.centre.dismissSheet()

            Loader {
                anchors.fill: parent
                focus: true
                active: settings.present
                sourceComponent: WidgetSettingsPage {
                    focus: true
                    screen: Shell.widgetSettings()
                    onClosed: page.centre.dismissSheet()
                }
            }
        },
        Sheet {
            id: slices
            objectName: "exportSheet"
            shown: page.centre.showExport
            onDismissed: page.centre.dismissSheet()

            Loader {
                anchors.fill: parent
                focus: true
                active: slices.present
                sourceComponent: ExportPage {
                    focus: true
                    screen: page.centre.slices()
                    onClosed: page.centre.dismissSheet()
                }
            }
        }
    ]
}
