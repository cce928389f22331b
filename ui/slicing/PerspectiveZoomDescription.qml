// Help on the wallpaper's perspective zoom, which moves it behind the widgets.
import QtQuick
import Vitrelle

Page {
    objectName: "perspectiveZoom"
    title: qsTrId("PZTitle")

    Flickable {
        anchors.fill: parent
        contentHeight: words.height + 60
        clip: true

        Column {
            id: words
            x: 24
            y: 8
            width: parent.width - 48
            spacing: 18

            Label {
                width: parent.width
                color: Theme.quietText
                text: qsTrId("PZSub")
            }
            Row {
                width: parent.width
                spacing: 12

                Repeater {
                    model: ["ps-effect", "ps-settings", "ps-wallpaper"]

                    AssetPicture {
                        required property string modelData
                        width: (words.width - 24) / 3
                        height: width * 4 / 3
                        name: modelData
                    }
                }
            }
            Label {
                width: parent.width
                font.bold: true
                font.pixelSize: 22
                text: qsTrId("AboutPZ")
            }
            Label {
                width: parent.width
                text: qsTrId("AboutPZD")
            }
            AssetPicture {
                anchors.horizontalCenter: parent.horizontalCenter
                width: parent.width * 0.7
                height: width * 4 / 3
                name: "ob-s-4"
            }
        }
    }
}
