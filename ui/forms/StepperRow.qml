// A number with a smaller and a greater one beside it. Holding goes on; so do arrows and the wheel.
import QtQuick
import Vitrelle

Panel {
    id: row

    required property string title
    required property int value
    required property int lowest
    required property int highest

    signal stepped(int now)

    function step(by: int) {
        stepped(Math.max(lowest, Math.min(highest, value + by)));
    }

    activeFocusOnTab: true
    // The range, as assistive programs look for it.
    readonly property int minimumValue: lowest
    readonly property int maximumValue: highest
    readonly property int stepSize: 1

    Accessible.role: Accessible.SpinBox
    Accessible.name: row.title
    Accessible.focusable: true
    Accessible.onIncreaseAction: step(1)
    Accessible.onDecreaseAction: step(-1)
    Keys.onUpPressed: step(1)
    Keys.onRightPressed: step(1)
    Keys.onDownPressed: step(-1)
    Keys.onLeftPressed: step(-1)
    Keys.onPressed: event => {
        const steps = { [Qt.Key_PageUp]: 10, [Qt.Key_PageDown]: -10, [Qt.Key_Plus]: 1, [Qt.Key_Minus]: -1, [Qt.Key_Home]: -1000, [Qt.Key_End]: 1000 };
        if (steps[event.key] === undefined)
            return;
        step(steps[event.key]);
        event.accepted = true;
    }

    Label {
        objectName: "stepperWords"
        x: 15
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 16
        font.weight: Font.DemiBold
        spoken: false
        text: row.title + row.value
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter

        Repeater {
            model: [-1, 1]

            ContinuousRectangle {
                id: half
                required property int modelData
                readonly property bool ends: modelData < 0 ? row.value <= row.lowest : row.value >= row.highest

                objectName: modelData < 0 ? "stepDown" : "stepUp"
                width: 46
                height: 31
                radius: 8
                colour: Qt.rgba(1, 1, 1, ends ? 0.14 : press.pressed ? 0.3 : press.containsMouse ? 0.2 : 0.14)

                SymbolItem {
                    anchors.centerIn: parent
                    name: half.modelData < 0 ? "minus" : "plus"
                    size: 16
                    weight: 600
                    colour: half.ends ? Theme.grey : Theme.text
                }
                MouseArea {
                    id: press
                    hoverEnabled: true
                    anchors.fill: parent
                    anchors.topMargin: -7 // as high as the row
                    anchors.bottomMargin: -7
                    cursorShape: Qt.PointingHandCursor
                    onPressed: row.step(half.modelData)
                    onPressAndHold: again.start()
                    onReleased: again.stop()
                    onCanceled: again.stop()
                }
                Timer {
                    id: again
                    interval: 80
                    repeat: true
                    onTriggered: row.step(half.modelData)
                }
            }
        }
    }
    WheelHandler {
        acceptedModifiers: Qt.NoModifier
        enabled: row.activeFocus // else the wheel moves the page
        onWheel: event => row.step(event.angleDelta.y > 0 ? 1 : -1)
    }
    FocusRing {
        shown: row.activeFocus
        radius: 20
    }
}
