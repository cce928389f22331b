// What is set for all widgets at once.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "widgetSettingsPage"

    required property WidgetSettingsScreen screen
    readonly property WidgetSettingsScreen settings: screen

    title: settings.title
    symbol: settings.symbol

    ContinuousRectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: page.settings.betaNote !== ""
        width: Surroundings.screenWidth - 60
        height: note.implicitHeight + 24
        radius: 16
        colour: Qt.rgba(Theme.blue.r, Theme.blue.g, Theme.blue.b, 0.5)

        SymbolItem {
            id: hammer
            x: 15
            anchors.verticalCenter: parent.verticalCenter
            name: page.settings.betaSymbol
            size: 16
            colour: Theme.blue
        }
        Label {
            id: note
            objectName: "betaNote"
            anchors.left: hammer.right
            anchors.leftMargin: 12
            anchors.right: parent.right
            anchors.rightMargin: 15
            anchors.verticalCenter: parent.verticalCenter
            font.pixelSize: 13
            text: page.settings.betaNote
        }
    }
    ToggleRow {
        objectName: "quitToggle"
        anchors.horizontalCenter: parent.horizontalCenter
        width: Surroundings.screenWidth - 60
        enabled: !page.settings.quitBlocked
        rest: enabled ? 1 : 0.5
        focus: enabled
        title: page.settings.quitTitle
        value: page.settings.quit
        onToggled: page.settings.quit = !page.settings.quit
    }
    SegmentsRow {
        objectName: "unit"
        anchors.horizontalCenter: parent.horizontalCenter
        width: Surroundings.screenWidth - 60
        title: page.settings.unitTitle
        label: page.settings.units[page.settings.unit]
        options: [
            { "symbol": "", "words": page.settings.units[0] },
            { "symbol": "", "words": page.settings.units[1] }
        ]
        chosen: page.settings.unit
        onChose: option => page.settings.unit = option
    }
    LongButton {
        objectName: "refreshWidgets"
        anchors.horizontalCenter: parent.horizontalCenter
        implicitHeight: 45
        colour: Theme.accent
        symbol: page.settings.refreshSymbol
        text: page.settings.refreshTitle
        onPressed: {
            page.settings.refreshWidgets();
            Notices.show(qsTrId("app.widgetsRefreshed"));
        }
    }
}
