// A choice between a few symbols.
import QtQuick
import Vitrelle

Panel {
    id: row

    required property string title
    required property int value
    required property list<string> symbols

    signal picked(int now)

    activeFocusOnTab: true
    Accessible.role: Accessible.RadioButton
    Accessible.name: title
    Accessible.focusable: true
    Keys.onLeftPressed: picked(Math.max(0, value - 1))
    Keys.onRightPressed: picked(Math.min(segments.count - 1, value + 1))

    Label {
        x: 15
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 16
        font.weight: Font.DemiBold
        text: row.title
    }
    ContinuousRectangle {
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: Shell.screenWidth / 3
        height: 31
        radius: 8
        colour: Qt.rgba(1, 1, 1, 0.14)

        Row {
            anchors.fill: parent
            anchors.margins: 2

            Repeater {
                id: segments
                model: row.symbols

                Pressable {
                    id: segment
                    required property int index
                    required property string modelData

                    width: parent.width / segments.count
                    height: parent.height
                    activeFocusOnTab: false
                    name: modelData
                    onPressed: row.picked(index)

                    ContinuousRectangle {
                        anchors.fill: parent
                        visible: segment.index === row.value
                        radius: 7
                        colour: Qt.rgba(1, 1, 1, 0.28)
                    }
                    SymbolItem {
                        anchors.centerIn: parent
                        name: segment.modelData
                        size: 16
                        colour: Theme.text
                    }
                }
            }
        }
    }
    FocusRing {
        shown: row.activeFocus
        radius: 20
    }
}
