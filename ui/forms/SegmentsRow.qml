// One of several, each with a symbol, beside one another. Arrows go from one to the next.
import QtQuick
import Vitrelle

Panel {
    id: row

    required property string title
    required property string label // what is chosen, for those who do not see it; may be empty
    required property var options // each with a symbol, and what it stands for; the words where it has none
    required property int chosen // -1 where it is none of them

    signal chose(int option)

    function move(by: int) {
        const next = chosen < 0 ? 0 : chosen + by;
        if (next >= 0 && next < segments.count)
            chose(next);
    }

    implicitHeight: 45
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: label === "" ? title : title + ", " + label
    Accessible.focusable: true
    Keys.onLeftPressed: move(-1)
    Keys.onRightPressed: move(1)

    Label {
        x: 15
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 16
        font.weight: Font.DemiBold
        spoken: false
        text: row.title
    }
    ContinuousRectangle {
        id: trough
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: segments.count * 52 + 4
        height: 35
        radius: 9
        colour: Qt.rgba(1, 1, 1, 0.1)

        ContinuousRectangle { // under the chosen one
            visible: row.chosen >= 0
            x: 2 + row.chosen * 52
            y: 2
            width: 52
            height: 31
            radius: 7
            colour: Qt.rgba(1, 1, 1, 0.28)

            Behavior on x { NumberAnimation { duration: Theme.shortTime; easing.type: Easing.InOutQuad } }
        }
        Repeater {
            id: segments
            model: row.options

            Pressable {
                id: segment

                required property int index
                required property var modelData

                objectName: row.title + " " + index
                x: 2 + index * 52
                y: -3 // as high as a finger needs
                width: 52
                height: 41
                activeFocusOnTab: false
                role: Accessible.RadioButton
                name: modelData.words
                Accessible.checkable: true
                Accessible.checked: index === row.chosen
                onPressed: row.chose(index)

                SymbolItem {
                    anchors.centerIn: parent
                    visible: name !== ""
                    name: segment.modelData.symbol
                    size: 17
                    colour: Theme.text
                }
                Label {
                    anchors.centerIn: parent
                    visible: segment.modelData.symbol === ""
                    font.pixelSize: 15
                    font.weight: Font.DemiBold
                    spoken: false
                    text: segment.modelData.words
                }
            }
        }
    }
    FocusRing {
        shown: row.activeFocus
        radius: 20
    }
}
