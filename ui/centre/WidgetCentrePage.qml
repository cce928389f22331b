// The widget families, each with the way to its styles.
import QtQuick
import Vitrelle

Page {
    id: page
    objectName: "widgetCentrePage"

    signal opened(string screen)

    title: qsTrId("app.widgetCentre")

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 24
        spacing: 12

        Repeater {
            model: Shell.families

            Pressable {
                id: row

                required property int index
                required property familyWords modelData

                objectName: "family " + modelData.name
                width: Surroundings.screenWidth - 60
                height: 60
                focus: index === 0
                focusRadius: 22
                name: modelData.entryTitle
                onPressed: page.opened(modelData.firstScreen)

                Panel {
                    anchors.fill: parent
                    radius: 18
                }
                SymbolItem {
                    anchors.verticalCenter: parent.verticalCenter
                    x: 30 - size / 2
                    name: row.modelData.entrySymbol
                    size: 26
                    colour: Theme.accent
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    x: 60
                    spoken: false
                    font.pixelSize: 17
                    font.weight: Font.DemiBold
                    text: row.modelData.entryTitle
                }
                SymbolItem {
                    anchors.right: parent.right
                    anchors.rightMargin: 16
                    anchors.verticalCenter: parent.verticalCenter
                    name: "chevron.right"
                    size: 14
                    weight: 600
                    colour: Theme.grey
                }
            }
        }
    }
}
