// A menu over the screen: its entries are its children. Arrows move in it, a letter goes to the next
// entry that begins with it, Escape closes it. It can be scrolled where it is higher than the screen.
import QtQuick
import Vitrelle

FocusScope {
    id: menu

    default property alias entries: column.data
    property bool shown: false
    property point at
    property Item opener

    /// Opens beside a point of an item, which gets the keys back in the end. The keys go to `first`,
    /// or to the entry at the top.
    function openAt(item: Item, position: point, first: Item) {
        opener = item;
        shown = true;
        column.forceLayout(); // entries that were made while it was hidden have no place yet
        const spot = item.mapToItem(menu, position.x, position.y);
        at = Qt.point(Math.max(8, Math.min(spot.x, width - box.width - 8)), Math.max(8, Math.min(spot.y, height - box.height - 8)));
        list.contentY = 0;
        if (first)
            column.focusOn(first);
        else
            column.focusFrom(0, 1);
    }
    function close() {
        shown = false;
        if (opener)
            opener.forceActiveFocus();
    }

    function goBack() {
        close();
    }

    anchors.fill: parent
    z: 2
    visible: shown
    Keys.onEscapePressed: goBack()
    Keys.onBackPressed: goBack()

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onPressed: menu.close()
        onWheel: {} // what is behind stays
    }
    ContinuousRectangle {
        id: box
        x: menu.at.x
        y: menu.at.y
        width: 250
        height: Math.min(column.height, menu.height - 16)
        radius: 13
        colour: Theme.card
        borderColour: Qt.rgba(1, 1, 1, 0.15)
        borderWidth: 1

        Flickable {
            id: list
            objectName: "menuList"
            anchors.fill: parent
            contentHeight: column.height
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height

            Column {
                id: column
                width: parent.width

                function focusOn(entry: Item) {
                    entry.forceActiveFocus();
                    // Whole, with part of the next one, which tells that there is more.
                    const part = 22;
                    const lowest = entry.y + entry.height + part - list.height;
                    list.contentY = Math.max(0, Math.min(Math.max(list.contentY, lowest), entry.y - part, list.contentHeight - list.height));
                }
                /// The first entry that can have the keys, from an index on.
                function focusFrom(start: int, step: int) {
                    for (let now = start; children[now]; now += step) {
                        if (!children[now].activeFocusOnTab || !children[now].visible || !children[now].enabled)
                            continue;
                        focusOn(children[now]);
                        return;
                    }
                }
                function move(step: int) {
                    let now = 0;
                    while (children[now] && !children[now].activeFocus)
                        ++now;
                    focusFrom(now + step, step);
                }
                function seek(letter: string): bool {
                    const starts = entry => entry.enabled && entry.visible && entry.name !== undefined && entry.name.toLowerCase().startsWith(letter);
                    const all = Array.from(children);
                    const now = all.findIndex(entry => entry.activeFocus);
                    const found = all.slice(now + 1).concat(all).find(starts);
                    if (letter === "" || !found)
                        return false;
                    focusOn(found);
                    return true;
                }
                Keys.onPressed: event => event.accepted = seek(event.text.trim().toLowerCase())
                Keys.onUpPressed: move(-1)
                Keys.onDownPressed: move(1)
            }
        }
    }
}
