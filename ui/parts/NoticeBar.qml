// One line that the user should read, below whatever is open: out of the way of titles and of the way
// back. It leaves when there was time to read it, unless what it tells of lasts.
import QtQuick
import QtQuick.Window
import Vitrelle

Pressable {
    id: bar
    objectName: "notice"

    readonly property bool shown: Notices.text !== ""
    readonly property bool good: Notices.kind === Notices.Done
    property Item before // had the keys before the notice did

    function goBack() {
        Notices.dismiss();
    }

    name: Notices.text
    role: Accessible.AlertMessage
    x: 12
    y: parent.height + (shown ? -height - Theme.bottomInset - 8 : 10)
    width: parent.width - 24
    height: Math.max(44, words.height + 24)
    visible: y < parent.height
    onPressed: Notices.dismiss()
    onNameChanged: if (shown) words.text = name
    onShownChanged: if (!shown && activeFocus && before) before.forceActiveFocus()
    Keys.onEscapePressed: goBack()
    Keys.onBackPressed: goBack()

    Behavior on y { NumberAnimation { duration: Theme.longTime; easing.type: Easing.OutCubic } }

    Connections {
        target: bar.Window.window
        function onActiveFocusItemChanged() {
            const now = bar.Window.window.activeFocusItem;
            if (now !== bar)
                bar.before = now;
        }
    }
    Connections {
        target: Notices
        function onChanged() { // another has its own time
            if (leave.running)
                leave.restart();
        }
    }
    Timer {
        id: leave
        running: bar.shown && Notices.kind !== Notices.Trouble && !bar.hovered && !bar.activeFocus
        interval: bar.good ? 2500 : 8000
        onTriggered: Notices.dismiss()
    }
    ContinuousRectangle {
        anchors.fill: parent
        radius: 16
        colour: Theme.card
        borderColour: bar.good ? Theme.tick : Theme.accent
        borderWidth: 1
    }
    SymbolItem {
        id: sign
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        name: bar.good ? "checkmark.circle.fill" : "exclamationmark.bubble.fill"
        size: 20
        colour: bar.good ? Theme.tick : Theme.accent
    }
    Label {
        id: words
        anchors.left: sign.right
        anchors.leftMargin: 10
        anchors.right: cross.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 14
        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
        maximumLineCount: 6
        elide: Text.ElideRight
        spoken: false
    }
    SymbolItem {
        id: cross
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        name: SharedWords.closeSymbol
        size: 18
        colour: Theme.grey
    }
}
