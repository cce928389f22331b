// The colours of the wallpaper, to look at and to sample.
import QtQuick
import Vitrelle

Panel {
    id: panel

    required property bool loaded
    required property list<color> colours

    implicitHeight: loaded ? Surroundings.screenWidth / 3.5 : Surroundings.screenWidth / 4.5
    radius: 20
    colour: Theme.card

    Behavior on implicitHeight { NumberAnimation { duration: Theme.longTime; easing.type: Easing.InOutQuad } }

    Row {
        anchors.centerIn: parent
        visible: !panel.loaded
        spacing: 12

        Label {
            anchors.verticalCenter: parent.verticalCenter
            font.pixelSize: 16
            font.weight: Font.DemiBold
            color: "white"
            text: SharedWords.suggestedColours
        }
        Spinner {
            objectName: "spinner"
            anchors.verticalCenter: parent.verticalCenter
        }
    }
    Column {
        anchors.centerIn: parent
        opacity: panel.loaded ? 1 : 0
        visible: opacity > 0
        spacing: 12

        Behavior on opacity { NumberAnimation { duration: Theme.longTime; easing.type: Easing.InOutQuad } }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            font.pixelSize: 16
            font.weight: Font.DemiBold
            color: "white"
            text: SharedWords.suggestedColours
        }
        Row {
            objectName: "swatches"
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: Math.min(Surroundings.screenWidth * 0.0625, (panel.width - 40 * panel.colours.length - 8) / Math.max(1, panel.colours.length - 1))

            Repeater {
                model: panel.colours

                Item {
                    id: swatch
                    required property color modelData

                    width: 40
                    height: 40
                    Accessible.role: Accessible.Graphic
                    Accessible.name: String(modelData)

                    ColourDisc {
                        anchors.fill: parent
                        colour: Qt.rgba(swatch.modelData.r, swatch.modelData.g, swatch.modelData.b, 0.5)
                    }
                    ColourDisc {
                        anchors.centerIn: parent
                        width: 30
                        height: 30
                        colour: swatch.modelData
                    }
                }
            }
        }
    }
}
