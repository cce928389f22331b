// One of several lines of which one is chosen.
import QtQuick
import Vitrelle

Pressable {
    id: row

    property bool chosen: false
    property string note // below the name

    implicitWidth: Surroundings.screenWidth - 60
    implicitHeight: Math.max(45, words.height + 18)
    focusRadius: 20
    rest: enabled ? 1 : 0.5
    role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: chosen
    Accessible.description: note

    Panel {
        anchors.fill: parent
    }
    Column {
        id: words
        x: 15
        width: parent.width - 60
        anchors.verticalCenter: parent.verticalCenter

        Label {
            width: parent.width
            font.pixelSize: 16
            font.weight: Font.DemiBold
            spoken: false
            text: row.name
        }
        Label {
            width: parent.width
            visible: text !== ""
            font.pixelSize: 13
            color: Theme.quietText
            spoken: false
            text: row.note
        }
    }
    SymbolItem {
        anchors.right: parent.right
        anchors.rightMargin: 15
        anchors.verticalCenter: parent.verticalCenter
        visible: row.chosen
        name: "checkmark"
        size: 17
        weight: 700
        colour: Theme.accent
    }
}
