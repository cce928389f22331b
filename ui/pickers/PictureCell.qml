// A picture to choose, or a folder to go into, with its name.
import QtQuick
import Vitrelle

Pressable {
    id: cell

    required property int index
    required property string path
    required property bool isFolder
    required property int revision
    readonly property string fileName: path.split("/").pop()

    objectName: "cell" + index
    activeFocusOnTab: false // the grid has the keys, and the current cell of it
    ringed: false
    role: Accessible.ListItem
    name: isFolder ? qsTrId("app.picker.folder").arg(fileName) : picture.missing ? qsTrId("app.picker.damaged").arg(fileName) : fileName

    ContinuousRectangle {
        id: frame
        x: 6
        y: 6
        width: cell.width - 12
        height: cell.height - 36
        radius: 10
        colour: picture.ready ? "transparent" : Theme.card

        StoredPicture {
            id: picture
            objectName: "picture"
            anchors.fill: parent
            file: cell.isFolder ? "" : cell.path
            revision: cell.revision
            radius: 10
        }
        SymbolItem {
            objectName: "sign"
            anchors.centerIn: parent
            visible: cell.isFolder || picture.missing
            name: cell.isFolder ? "folder.fill" : "exclamationmark.triangle.fill"
            size: 40
            colour: Theme.accent
        }
        FocusRing {
            anchors.margins: -4
            shown: cell.activeFocus
            radius: 14
        }
    }
    Label {
        anchors.top: frame.bottom
        anchors.topMargin: 5
        x: 8
        width: cell.width - 16
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: 12
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
        spoken: false
        text: cell.fileName
    }
}
