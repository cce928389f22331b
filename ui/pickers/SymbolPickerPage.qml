// The symbols that a style may have. It stays open after a choice, which shows above the list.
import QtQuick
import QtQuick.Controls
import Vitrelle

FocusScope {
    id: page
    objectName: "symbolPicker"

    required property string icon // the name that is set now, which need not be in the list
    readonly property SymbolScreen symbols: Shell.symbols()

    signal picked(string name)
    signal closed

    function goBack() {
        symbols.close();
    }
    function takeKey(event: var) {
        const last = grid.count - 1;
        const now = grid.currentIndex;
        const places = { [Qt.Key_Home]: 0, [Qt.Key_End]: last, [Qt.Key_PageUp]: Math.max(now % grid.columns, now - grid.aPage), [Qt.Key_PageDown]: Math.min(last, now + grid.aPage) };
        if (places[event.key] !== undefined)
            grid.currentIndex = places[event.key];
        else if (![Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key))
            return;
        else if (!Surroundings.isKeyHeld()) // else it has opened this page
            page.symbols.select(now);
        event.accepted = true;
    }

    Keys.onEscapePressed: if (!Surroundings.isKeyHeld()) goBack()
    Keys.onBackPressed: if (!Surroundings.isKeyHeld()) goBack()
    Component.onCompleted: {
        grid.currentIndex = Math.max(0, page.symbols.indexOf(page.icon));
        grid.positionViewAtIndex(grid.currentIndex, GridView.Center);
        grid.forceActiveFocus();
    }

    Connections {
        target: page.symbols
        function onPicked(name: string) {
            page.picked(name);
        }
        function onDismissed() {
            page.closed();
        }
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.backdrop
    }
    Item {
        id: header
        y: Theme.topInset
        width: parent.width
        height: 62

        Row {
            anchors.centerIn: parent
            spacing: 8

            Label {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, header.width - 2 * 16 - chosen.width - 30 - 2 * 8)
                font.pixelSize: 24
                font.weight: Font.DemiBold
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 13
                wrapMode: Text.NoWrap
                text: SharedWords.currentFont
            }
            SymbolItem {
                id: chosen
                objectName: "currentSymbol"
                anchors.verticalCenter: parent.verticalCenter
                name: page.icon
                size: 24
                weight: 600
                colour: Theme.blue
                Accessible.role: Accessible.Graphic
                Accessible.name: grid.wordsOf(page.icon)
            }
            RoundButton {
                objectName: "symbolPickerClose"
                anchors.verticalCenter: parent.verticalCenter
                width: 30
                size: 24
                symbol: SharedWords.closeSymbol
                name: qsTrId("app.close")
                onPressed: page.symbols.close()
            }
        }
    }
    Item { // not in the grid, which with a handler of its own would let presses through to hidden cells
        anchors.fill: grid

        HoverHandler {
            cursorShape: Qt.PointingHandCursor
        }
    }
    GridView {
        id: grid
        objectName: "symbolGrid"

        readonly property int columns: Math.max(1, Math.floor((width + 8) / (70 + 8))) // 70 points at least, and 8 between
        readonly property int aPage: columns * Math.max(1, Math.floor(height / cellHeight))

        function wordsOf(name: string): string {
            return name.replace(/\./g, " ");
        }

        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        topMargin: 5
        bottomMargin: Theme.bottomInset + 5
        cellWidth: width / columns
        cellHeight: 25 + 20
        cacheBuffer: 4 * cellHeight
        highlightMoveDuration: 0
        keyNavigationEnabled: true
        model: page.symbols.names
        Keys.onPressed: event => page.takeKey(event)
        Accessible.role: Accessible.List
        Accessible.name: SharedWords.currentFont + " " + wordsOf(page.icon)

        ScrollBar.vertical: ScrollBar {
            minimumSize: 0.05
            contentItem: Rectangle {
                implicitWidth: 6
                radius: 3
                color: Theme.text
                opacity: 0.7
            }
        }
        highlight: Item {
            FocusRing {
                anchors.margins: 1
                shown: grid.activeFocus
                radius: 14
            }
        }
        delegate: Item {
            id: cell

            required property int index
            required property string modelData
            readonly property bool isPicked: modelData === page.icon

            objectName: "symbol" + index
            width: grid.cellWidth
            height: grid.cellHeight
            Accessible.role: Accessible.ListItem
            Accessible.name: grid.wordsOf(modelData)
            Accessible.selectable: true
            Accessible.selected: isPicked
            Accessible.onPressAction: page.symbols.select(index)

            SymbolItem {
                objectName: "sign"
                anchors.centerIn: parent
                name: cell.modelData
                size: 25
                colour: cell.isPicked ? Theme.blue : "white"
            }
            TapHandler {
                gesturePolicy: TapHandler.ReleaseWithinBounds
                onTapped: {
                    grid.currentIndex = cell.index;
                    page.symbols.select(cell.index);
                }
            }
        }
    }
}
