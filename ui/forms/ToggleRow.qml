// A switch.
import QtQuick
import Vitrelle

Pressable {
    id: row

    required property string title
    required property bool value

    signal toggled

    implicitHeight: 45
    focusRadius: 20
    role: Accessible.CheckBox
    name: title
    Accessible.checkable: true
    Accessible.checked: value
    onPressed: toggled()

    Panel {
        anchors.fill: parent
    }
    Label {
        x: 15
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 16
        font.weight: Font.DemiBold
        spoken: false
        text: row.title
    }
    ContinuousRectangle {
        objectName: "toggle"
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 51
        height: 31
        radius: 15.5
        colour: row.value ? Theme.tick : Qt.rgba(1, 1, 1, 0.16)

        Behavior on colour { ColorAnimation { duration: Theme.shortTime } }

        ContinuousRectangle {
            x: row.value ? 22 : 2
            y: 2
            width: 27
            height: 27
            radius: 13.5
            colour: "white"

            Behavior on x { NumberAnimation { duration: Theme.shortTime; easing.type: Easing.InOutQuad } }
        }
    }
}
