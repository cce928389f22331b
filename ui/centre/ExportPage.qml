// Takes a slice out of the program: choose the style, the appearance and the size, press the slot.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "exportPage"

    required property ExportScreen screen
    readonly property ExportScreen slices: screen // a name that is not the window's own
    readonly property var slotNames: ({
            "topLeftSmall": qsTrId("app.slot.topLeft"),
            "topRightSmall": qsTrId("app.slot.topRight"),
            "midLeftSmall": qsTrId("app.slot.middleLeft"),
            "midRightSmall": qsTrId("app.slot.middleRight"),
            "bottomLeftSmall": qsTrId("app.slot.bottomLeft"),
            "bottomRightSmall": qsTrId("app.slot.bottomRight"),
            "topMedium": qsTrId("app.slot.top"),
            "midMedium": qsTrId("app.slot.middle"),
            "bottomMedium": qsTrId("app.slot.bottom"),
            "topLarge": qsTrId("app.slot.top"),
            "bottomLarge": qsTrId("app.slot.bottom")
        })

    title: slices.title
    symbol: slices.symbol
    spacing: 8
    covered: sheet.shown

    component Heading: Label {
        x: 30
        width: page.width - 60
        topPadding: 8
        font.pixelSize: 16
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Heading {
        text: page.slices.styleHeading
    }
    Label {
        objectName: "noStyles"
        x: 30
        width: page.width - 60
        visible: page.slices.styles === 0
        color: Theme.quietText
        text: qsTrId("app.export.noStyles")
    }
    StyleNumbers {
        objectName: "styles"
        anchors.horizontalCenter: parent.horizontalCenter
        width: page.width - 60
        visible: page.slices.styles > 0
        focus: true
        label: page.slices.styleLabel
        count: page.slices.styles
        chosen: page.slices.selection
        dark: page.slices.lightDark !== 0
        onChose: style => page.slices.selection = style
    }
    Heading {
        text: page.slices.appearanceHeading
    }
    Segments {
        objectName: "appearance"
        anchors.horizontalCenter: parent.horizontalCenter
        label: page.slices.appearanceLabel
        options: page.slices.appearances
        chosen: page.slices.lightDark === 0 ? 0 : 1
        onChose: option => page.slices.lightDark = option
    }
    Heading {
        text: page.slices.sizeHeading
    }
    Segments {
        objectName: "size"
        anchors.horizontalCenter: parent.horizontalCenter
        label: page.slices.sizeLabel
        options: page.slices.sizes
        chosen: page.slices.widgetSize
        onChose: option => page.slices.widgetSize = option
    }
    Label {
        objectName: "exportHint"
        x: 30
        width: page.width - 60
        topPadding: 6
        bottomPadding: 4
        visible: rows.count > 0
        font.pixelSize: 13
        color: Theme.quietText
        text: qsTrId("app.export.hint")
    }
    Column {
        id: grid
        anchors.horizontalCenter: parent.horizontalCenter
        bottomPadding: 20
        spacing: page.slices.rowSpacing

        function focusOn(row: int, column: int) {
            const there = rows.itemAt(row) as SlotRow;
            if (there)
                there.focusOn(column);
        }

        Repeater {
            id: rows
            model: page.slices.rows

            SlotRow {
                id: row
                slices: page.slices
                slotNames: page.slotNames
                onRowLeft: (by, column) => grid.focusOn(row.index + by, column)
            }
        }
    }
    overlay: Sheet {
        id: sheet
        shown: page.slices.sheetShown
        onDismissed: page.slices.dismissSheet()

        Loader {
            anchors.fill: parent
            focus: true
            active: sheet.present
            sourceComponent: ShareSheet {
                focus: true
                item: page.slices.shared
                onClosed: sheet.dismissed()
            }
        }
    }
}
