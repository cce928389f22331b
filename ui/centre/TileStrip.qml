// The hub's tiles beside one another: in the middle where they fit, else to be scrolled by finger,
// wheel and keys.
import QtQuick
import Vitrelle

Flickable {
    id: strip

    required property var tiles // of `hubTile`
    required property real side // of a tile's square
    required property real spacing
    required property real padding // before the first and behind the last that can be scrolled

    // A few fit beside one another on the smallest screen too.
    readonly property real closeSpacing: Math.min(spacing, (width - 24 - 4 * side) / 3)
    readonly property real rowWidth: tiles.length * side + (tiles.length - 1) * closeSpacing
    readonly property bool scrolls: tiles.length > 4 && rowWidth + 2 * padding > width
    readonly property real edge: scrolls ? padding : (width - rowWidth) / 2

    property int lastTapped: -1

    signal tapped(int index)

    function reveal(index: int) {
        const left = edge + index * (side + closeSpacing);
        contentX = Math.max(Math.min(contentX, left - edge), left + side + edge - width);
    }

    height: row.height + 12
    contentWidth: Math.max(width, rowWidth + 2 * edge)
    interactive: scrolls
    boundsBehavior: Flickable.StopAtBounds
    flickableDirection: Flickable.HorizontalFlick

    Behavior on contentX {
        enabled: !strip.moving
        NumberAnimation { duration: Theme.shortTime; easing.type: Easing.OutCubic }
    }
    WheelHandler {
        enabled: strip.scrolls
        orientation: Qt.Vertical
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            const by = event.angleDelta.y !== 0 ? event.angleDelta.y : event.angleDelta.x;
            strip.contentX = Math.max(0, Math.min(strip.contentWidth - strip.width, strip.contentX - by));
        }
    }
    Row {
        id: row
        x: strip.edge
        y: 6
        spacing: strip.closeSpacing

        Repeater {
            id: repeater
            model: strip.tiles
            // What comes in the place of the one for more has the keys.
            onItemAdded: (index, item) => {
                if (index !== strip.lastTapped)
                    return;
                item.forceActiveFocus();
                Qt.callLater(strip.reveal, index); // when there is room for all of them
            }

            RoundedButton {
                required property int index
                required property hubTile modelData

                objectName: "tile " + modelData.text
                focus: index === 0
                side: strip.side
                colour: modelData.colour
                symbol: modelData.symbol
                text: modelData.text
                onActiveFocusChanged: if (activeFocus) strip.reveal(index)
                onPressed: {
                    strip.lastTapped = index;
                    strip.tapped(index);
                }
                Keys.onLeftPressed: if (index > 0) repeater.itemAt(index - 1).forceActiveFocus()
                Keys.onRightPressed: if (index < repeater.count - 1) repeater.itemAt(index + 1).forceActiveFocus()
            }
        }
    }
}
