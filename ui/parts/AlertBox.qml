// A question or a refusal over the whole screen.
import QtQuick
import Vitrelle

FocusScope {
    id: alert

    required property string title
    required property string message
    property list<string> choices: ["OK"] // the first has the keys at the start
    property bool shown: false

    signal chosen(int index)
    /// By Escape too, which chooses nothing.
    signal dismissed

    function choose(index: int) {
        chosen(index);
        dismissed();
    }

    function goBack() {
        dismissed();
    }

    anchors.fill: parent
    visible: opacity > 0
    opacity: shown ? 1 : 0
    enabled: shown
    onShownChanged: if (shown) buttons.itemAt(0).forceActiveFocus()
    Keys.onEscapePressed: dismissed()
    Keys.onBackPressed: dismissed()

    Behavior on opacity { NumberAnimation { duration: Theme.shortTime } }

    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(0, 0, 0, 0.45)
    }
    MouseArea { // nothing behind it can be pressed
        anchors.fill: parent
    }
    ContinuousRectangle {
        id: box
        anchors.centerIn: parent
        width: 270
        height: words.height + answers.height + 39
        radius: 14
        colour: Theme.card
        Accessible.role: Accessible.AlertMessage
        Accessible.name: alert.title
        Accessible.description: alert.message

        Column {
            id: words
            x: 16
            y: 19
            width: parent.width - 32
            spacing: 4

            Label {
                objectName: "alertTitle"
                spoken: false
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font.bold: true
                text: alert.title
            }
            Label {
                objectName: "alertMessage"
                spoken: false
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: 13
                text: alert.message
            }
        }
        Column {
            id: answers
            anchors.bottom: parent.bottom
            width: parent.width

            Repeater {
                id: buttons
                model: alert.choices

                Pressable {
                    id: button

                    required property int index
                    required property string modelData

                    objectName: index === 0 ? "alertButton" : "alertButton" + index
                    width: answers.width
                    height: 44
                    focus: index === 0
                    focusRadius: 12
                    ringed: alert.choices.length > 1 // else there is no other
                    name: modelData
                    onPressed: alert.choose(index)
                    Keys.onUpPressed: if (index > 0) buttons.itemAt(index - 1).forceActiveFocus()
                    Keys.onDownPressed: if (index < buttons.count - 1) buttons.itemAt(index + 1).forceActiveFocus()

                    Rectangle {
                        width: parent.width
                        height: 1 / Screen.devicePixelRatio
                        color: Qt.rgba(1, 1, 1, 0.2)
                    }
                    Label {
                        anchors.centerIn: parent
                        spoken: false
                        text: button.name
                        color: Theme.accent
                        font.bold: button.index === 0
                    }
                }
            }
        }
    }
}
