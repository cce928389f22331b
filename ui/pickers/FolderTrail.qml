// The way up from a folder, each step of it to go to.
import QtQuick
import Vitrelle

ListView {
    id: trail

    required property PictureFolder folder

    signal chosen(string path)

    height: 44
    orientation: ListView.Horizontal
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentWidth > width
    clip: interactive
    highlightMoveDuration: 0
    currentIndex: count - 1 // the end of a long way is seen
    model: folder.trail

    delegate: Pressable {
        id: step

        required property int index
        required property string modelData
        readonly property bool isLast: index === trail.count - 1

        objectName: "step" + index
        width: mark.width + words.width + 16
        height: trail.height
        focusRadius: 14
        enabled: !isLast
        name: modelData === "/" ? qsTrId("app.picker.computer") : modelData === trail.folder.home ? qsTrId("app.picker.home") : modelData.split("/").pop()
        onPressed: trail.chosen(modelData)

        SymbolItem {
            id: mark
            anchors.verticalCenter: parent.verticalCenter
            width: step.index > 0 ? 14 : 0
            visible: step.index > 0
            name: "chevron.right"
            size: 11
            colour: Theme.text
        }
        Label {
            id: words
            anchors.left: mark.right
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 180)
            wrapMode: Text.NoWrap
            elide: Text.ElideMiddle
            font.pixelSize: 15
            font.weight: step.isLast ? Font.Bold : Font.Normal
            text: step.name
        }
    }
}
