// A row that shows what was picked and opens the picking of another.
import QtQuick
import Vitrelle

Pressable {
    id: row

    required property string title
    required property string value
    property string mark: "chevron.right"
    property alias picture: behind.data // behind the value

    implicitHeight: Math.max(45, behind.childrenRect.height + 16)
    focusRadius: 20
    name: title + " " + value

    Panel {
        anchors.fill: parent
    }
    Label {
        id: words
        x: 15
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 16
        font.weight: Font.DemiBold
        spoken: false
        text: row.title
    }
    Label {
        objectName: "rowValue"
        anchors.left: words.right
        anchors.leftMargin: 12
        anchors.right: behind.left
        anchors.rightMargin: behind.width > 0 ? 10 : 0
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
        font.pixelSize: 16
        color: Theme.quietText
        spoken: false
        text: row.value
    }
    Item {
        id: behind
        anchors.right: sign.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
    SymbolItem {
        id: sign
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        name: row.mark
        size: 14
        weight: 600
        colour: Theme.grey
    }
}
