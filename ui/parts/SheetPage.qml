// A page on a sheet: a title with its symbol, the way back or out, and what is below, which can be
// scrolled where it is higher than the screen.
import QtQuick
import QtQuick.Window
import Vitrelle

FocusScope {
    id: page

    property string title
    property string symbol
    property bool hasBack: false
    property bool hasClose: true
    property real spacing: 14
    property bool covered: false // by what lies above it and takes the keys
    default property alias content: column.data
    property alias overlay: over.data // above everything else

    signal backAsked
    signal closed

    function goBack() {
        if (hasBack)
            backAsked();
        else
            closed();
    }

    Keys.onEscapePressed: if (!Surroundings.isKeyHeld()) goBack()
    Keys.onBackPressed: if (!Surroundings.isKeyHeld()) goBack()

    KeysKeeper {
        id: keys
        overlay: over
        covered: page.covered
    }
    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.screenTop }
            GradientStop { position: 1; color: Theme.screenBottom }
        }
    }
    MouseArea { // takes the keys from a field
        anchors.fill: parent
        onPressed: page.forceActiveFocus()
    }
    Item {
        id: header
        enabled: keys.open
        y: Theme.topInset
        width: parent.width
        height: 56

        RoundButton {
            id: back
            objectName: "sheetBack"
            x: 22
            anchors.verticalCenter: parent.verticalCenter
            visible: page.hasBack
            size: 28
            symbol: "chevron.left"
            colour: Theme.text
            name: qsTrId("app.back")
            onPressed: page.backAsked()
        }
        SymbolItem {
            id: sign
            x: page.hasBack ? 58 : 30
            anchors.verticalCenter: parent.verticalCenter
            name: page.symbol
            size: 24
            weight: 600
            colour: Theme.accent
        }
        Label {
            objectName: "sheetTitle"
            anchors.left: sign.right
            anchors.leftMargin: 10
            anchors.right: page.hasClose ? close.left : parent.right
            anchors.rightMargin: 10
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: 24
            minimumPixelSize: 13
            fontSizeMode: Text.HorizontalFit
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            font.bold: true
            text: page.title
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        RoundButton {
            id: close
            objectName: "sheetClose"
            anchors.right: parent.right
            anchors.rightMargin: 30
            anchors.verticalCenter: parent.verticalCenter
            visible: page.hasClose
            size: 28
            symbol: SharedWords.closeSymbol
            name: qsTrId("app.close")
            onPressed: page.closed()
        }
    }
    Flickable {
        id: body
        enabled: keys.open
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        contentHeight: column.height + 2 * column.y + Theme.bottomInset
        clip: interactive
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: column
            y: 6
            width: parent.width
            spacing: page.spacing
        }
        // What the keys go to is to be seen.
        function reveal(item: Item) {
            let within = item;
            while (within && within !== column)
                within = within.parent;
            if (!within || height <= 0)
                return;
            const top = item.mapToItem(contentItem, 0, 0).y;
            if (top < contentY + 12)
                contentY = Math.max(0, top - 12);
            else if (top + item.height > contentY + height - 12)
                contentY = Math.min(contentHeight - height, top + item.height - height + 12);
        }
        Connections {
            target: body.Window.window
            function onActiveFocusItemChanged() {
                if (body.interactive && body.Window.window.activeFocusItem)
                    body.reveal(body.Window.window.activeFocusItem);
            }
        }
    }
    Item {
        id: over
        anchors.fill: parent
    }
}
