// Takes the keys from a page while something lies above it, and gives them back to where they were.
import QtQuick
import QtQuick.Window

Item {
    id: keeper

    property bool covered: false
    property bool open: true // what can have the keys is enabled by this
    property Item last

    onCoveredChanged: {
        if (covered)
            last = Window.window ? Window.window.activeFocusItem : null;
        open = !covered; // only now, for what is disabled loses them
        if (!covered && within(last))
            last.forceActiveFocus();
    }

    function within(item: Item): bool {
        let above = item;
        while (above && above !== parent)
            above = above.parent;
        return above !== null;
    }
}
