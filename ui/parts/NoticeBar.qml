// One line that the user should read, above whatever is open, until it is pressed away.
import QtQuick
import Vitrelle

Pressable {
    id: bar
    objectName: "notice"

    name: Shell.notice
    role: Accessible.AlertMessage
    x: 12
    y: Shell.notice === "" ? -height - 10 : Theme.topInset + 4
    width: parent.width - 24
    height: words.height + 24
    visible: y > -height
    activeFocusOnTab: Shell.notice !== ""
    onPressed: Shell.dismissNotice()

    Behavior on y { NumberAnimation { duration: Theme.longTime; easing.type: Easing.OutCubic } }

    ContinuousRectangle {
        anchors.fill: parent
        radius: 16
        colour: Theme.card
        borderColour: Theme.accent
        borderWidth: 1
    }
    SymbolItem {
        id: sign
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        name: "exclamationmark.bubble.fill"
        size: 20
        colour: Theme.accent
    }
    Label {
        id: words
        anchors.left: sign.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 14
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        text: bar.name
    }
}
