// One of a few words, side by side. Arrows go from one to the next.
import QtQuick
import Vitrelle

Panel {
    id: row

    required property string label // for those who can't see what stands above
    required property var options
    required property int chosen

    readonly property real segmentWidth: (width - 4) / Math.max(1, segments.count)

    signal chose(int option)

    function move(by: int) {
        const next = chosen + by;
        if (next >= 0 && next < segments.count)
            chose(next);
    }

    implicitHeight: 40
    radius: 12
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: label + ", " + options[chosen]
    Accessible.focusable: true
    Keys.onLeftPressed: move(-1)
    Keys.onRightPressed: move(1)

    ContinuousRectangle { // under the chosen one
        x: 2 + row.chosen * row.segmentWidth
        y: 2
        width: row.segmentWidth
        height: row.height - 4
        radius: 10
        colour: Qt.rgba(1, 1, 1, 0.22)

        Behavior on x { NumberAnimation { duration: Theme.shortTime; easing.type: Easing.InOutQuad } }
    }
    Repeater {
        id: segments
        model: row.options

        Pressable {
            id: segment

            required property int index
            required property string modelData

            objectName: row.objectName + index
            x: 2 + index * row.segmentWidth
            width: row.segmentWidth
            height: row.height
            activeFocusOnTab: false
            role: Accessible.RadioButton
            name: modelData
            Accessible.checkable: true
            Accessible.checked: index === row.chosen
            onPressed: row.chose(index)

            Label {
                anchors.centerIn: parent
                width: parent.width - 8
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.NoWrap
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 11
                font.pixelSize: 15
                font.weight: segment.index === row.chosen ? Font.DemiBold : Font.Normal
                spoken: false
                text: segment.name
            }
        }
    }
    FocusRing {
        shown: row.activeFocus
        radius: 16
    }
}
