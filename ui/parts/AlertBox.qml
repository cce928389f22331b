// A question or a refusal over the whole screen, with one way out.
import QtQuick
import Vitrelle

FocusScope {
    id: alert

    required property string title
    required property string message
    property bool shown: false

    signal dismissed

    function goBack() {
        dismissed();
    }

    anchors.fill: parent
    visible: opacity > 0
    opacity: shown ? 1 : 0
    enabled: shown
    onShownChanged: if (shown) button.forceActiveFocus()
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
        height: words.height + button.height + 39
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
        Rectangle {
            anchors.bottom: button.top
            width: parent.width
            height: 1 / Screen.devicePixelRatio
            color: Qt.rgba(1, 1, 1, 0.2)
        }
        Pressable {
            id: button
            objectName: "alertButton"
            anchors.bottom: parent.bottom
            width: parent.width
            height: 44
            focus: true
            ringed: false // there is no other
            name: "OK"
            onPressed: alert.dismissed()

            Label {
                anchors.centerIn: parent
                spoken: false
                text: button.name
                color: Theme.accent
                font.bold: true
            }
        }
    }
}
