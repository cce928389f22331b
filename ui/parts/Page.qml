// A page of the navigation stack: a bar with the way back and a title, and what is below.
import QtQuick
import Vitrelle

FocusScope {
    id: page

    property string title
    property string symbol // before the title
    property string backTitle: "Back"
    property bool hasBack: true
    property bool black: false // the ground, else in the program's colours
    property bool covered: false // by what lies above it and takes the keys
    default property alias content: body.data
    property alias overlay: over.data // above everything else

    signal closed

    function goBack() {
        closed();
    }

    KeysKeeper {
        id: keys
        overlay: over
        covered: page.covered
    }
    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: page.black ? "black" : Theme.screenTop }
            GradientStop { position: 1; color: page.black ? "black" : Theme.screenBottom }
        }
    }
    Item {
        id: bar
        enabled: keys.open
        y: Theme.topInset
        width: parent.width
        height: 44

        TextLink {
            id: back
            objectName: "back"
            x: 12
            anchors.verticalCenter: parent.verticalCenter
            visible: page.hasBack
            symbol: "chevron.left"
            name: page.backTitle
            bold: true
            onPressed: page.closed()
        }
        SymbolItem {
            visible: page.symbol !== ""
            anchors.verticalCenter: parent.verticalCenter
            x: heading.x + (heading.width - heading.contentWidth) / 2 - size - 8
            name: page.symbol
            size: 18
            weight: 600
            colour: Theme.accent
        }
        Label {
            id: heading
            // In the middle where there is room, else beside the way back.
            readonly property real side: (page.hasBack ? back.width + 24 : 12) + (page.symbol !== "" ? 26 : 0)
            readonly property bool fits: implicitWidth <= parent.width - 2 * side

            anchors.verticalCenter: parent.verticalCenter
            x: side
            width: parent.width - side - (fits ? side : 12)
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            wrapMode: Text.NoWrap
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 11
            text: page.title
            font.bold: true
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
    }
    Item {
        id: body
        enabled: keys.open
        anchors.top: bar.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
    }
    Item {
        id: over
        anchors.fill: parent
    }
}
