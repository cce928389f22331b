// The wallpaper styles side by side, each by its number and its picture. Arrows go from one to the
// next.
import QtQuick
import Vitrelle

Item {
    id: row

    required property string label
    required property int count
    required property int chosen
    required property bool dark // the pictures' appearance

    readonly property int perLine: 6
    readonly property real cellWidth: width / perLine

    signal chose(int style)

    function move(by: int) {
        const next = chosen + by;
        if (next >= 0 && next < count)
            chose(next);
    }

    implicitHeight: flow.height
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: label + ", " + (chosen + 1)
    Accessible.focusable: true
    Keys.onLeftPressed: move(-1)
    Keys.onRightPressed: move(1)
    Keys.onUpPressed: move(-perLine)
    Keys.onDownPressed: move(perLine)

    Panel {
        anchors.fill: parent
    }
    Flow {
        id: flow
        width: parent.width
        topPadding: 8
        bottomPadding: 8

        Repeater {
            model: row.count

            Pressable {
                id: cell

                required property int index
                readonly property bool isChosen: index === row.chosen

                objectName: "style" + index
                width: Math.floor(row.cellWidth)
                height: picture.height + 28
                activeFocusOnTab: false
                role: Accessible.RadioButton
                name: index + 1
                Accessible.checkable: true
                Accessible.checked: isChosen
                onPressed: row.chose(index)

                ContinuousRectangle {
                    anchors.fill: picture
                    anchors.margins: -4
                    visible: cell.isChosen
                    radius: 10
                    borderColour: Theme.accent
                    borderWidth: 2
                }
                ContinuousRectangle {
                    anchors.fill: picture
                    visible: !picture.ready
                    radius: 7
                    colour: Theme.backdrop
                }
                StoredPicture {
                    id: picture
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: 5
                    width: 30
                    height: Math.round(30 * Surroundings.screenHeight / Surroundings.screenWidth)
                    styleNumber: cell.index
                    dark: row.dark
                    radius: 7
                }
                Label {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    font.pixelSize: 13
                    font.weight: cell.isChosen ? Font.Bold : Font.Normal
                    spoken: false
                    text: cell.index + 1
                }
            }
        }
    }
    FocusRing {
        shown: row.activeFocus
        radius: 20
    }
}
