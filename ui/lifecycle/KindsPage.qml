// The kinds of style that a family has, each with a live sample.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "kindsPage"

    required property KindsScreen screen

    signal picked(int index)

    title: SharedWords.kindsTitle
    symbol: SharedWords.kindsSymbol
    spacing: 16

    Connections {
        target: Surroundings
        function onScreenChanged() {
            page.screen.refresh();
        }
    }
    Label {
        objectName: "kindsNote"
        x: 30
        width: parent.width - 60
        font.pixelSize: 14
        color: Theme.quietText
        text: SharedWords.kindsNote
    }
    Repeater {
        model: page.screen.captions

        Pressable {
            id: kind

            required property int index
            required property string modelData

            objectName: "kind" + index
            anchors.horizontalCenter: parent.horizontalCenter
            width: page.screen.sampleWidth
            height: page.screen.sampleHeight + caption.height + 10
            focus: index === 0
            focusRadius: 24
            name: modelData
            onPressed: page.picked(index)

            Panel {
                anchors.fill: parent
                radius: 20
            }
            FaceView {
                width: parent.width
                height: page.screen.sampleHeight
                face: page.screen.samples[kind.index]
            }
            Label {
                id: caption
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                padding: 5
                bottomPadding: 10
                font.pixelSize: 12
                spoken: false
                text: kind.modelData
            }
        }
    }
    Loader {
        anchors.horizontalCenter: parent.horizontalCenter
        active: page.screen.foot !== ""
        sourceComponent: TextLink {
            objectName: "kindsFoot"
            name: page.screen.foot
            textSize: 13
            colour: Theme.quietSymbol
            onPressed: page.screen.pressFoot()
        }
    }
}
