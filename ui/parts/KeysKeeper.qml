// Takes the keys from a page while something lies above it, and gives them back to where they were.
import QtQuick
import QtQuick.Window

Item {
    id: keeper

    required property Item overlay // holds what may lie above the page
    property bool covered: false
    readonly property alias open: keeper.enabled // what can have the keys is enabled by this
    property Item last

    enabled: !covered
    onCoveredChanged: if (!covered && last && last.visible && parent.activeFocus) last.forceActiveFocus()

    /// Whether an item is on the page itself.
    function owns(item: Item): bool {
        let above = item;
        while (above && above !== parent && above !== overlay)
            above = above.parent;
        return above === parent && item !== parent;
    }

    Connections {
        target: keeper.Window.window
        function onActiveFocusItemChanged() {
            const now = keeper.Window.window.activeFocusItem;
            if (keeper.owns(now))
                keeper.last = now;
        }
    }
}
