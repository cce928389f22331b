// Pages on one another, as a list has them: which they are is decided elsewhere.
import QtQuick
import QtQuick.Controls
import Vitrelle

StackView {
    id: stack

    required property var screens // objects, from the bottom
    required property var componentOf // what draws one of them: a component or a file
    property var propertiesOf: screen => ({ "screen": screen }) // what its page begins with
    property var shownScreens: []

    signal pushed(Item page)

    function follow() {
        let same = 0;
        while (same < shownScreens.length && same < screens.length && shownScreens[same] === screens[same])
            ++same;
        if (same === shownScreens.length && same === screens.length)
            return;
        if (same === 0)
            clear(StackView.Immediate);
        else if (same < shownScreens.length)
            pop(get(same - 1));
        shownScreens = screens.slice();
        for (let i = same; i < screens.length; ++i)
            pushed(push(componentOf(screens[i]), propertiesOf(screens[i]), i === 0 ? StackView.Immediate : StackView.PushTransition));
    }

    focus: true
    // While something lies above all pages, the keys are its own.
    onCurrentItemChanged: if (currentItem && enabled) currentItem.forceActiveFocus()
    onEnabledChanged: if (enabled && currentItem && !currentItem.activeFocus) currentItem.forceActiveFocus()
    onScreensChanged: follow()
    Component.onCompleted: follow()

    pushEnter: Transition { NumberAnimation { property: "x"; from: stack.width; to: 0; duration: Theme.longTime; easing.type: Easing.OutCubic } }
    pushExit: Transition { NumberAnimation { property: "x"; from: 0; to: -stack.width / 3; duration: Theme.longTime; easing.type: Easing.OutCubic } }
    popEnter: Transition { NumberAnimation { property: "x"; from: -stack.width / 3; to: 0; duration: Theme.longTime; easing.type: Easing.OutCubic } }
    popExit: Transition { NumberAnimation { property: "x"; from: 0; to: stack.width; duration: Theme.longTime; easing.type: Easing.OutCubic } }
}
