// The row of cards that snaps to one in the middle: by finger, mouse, wheel or keys.
import QtQuick
import Vitrelle

FocusScope {
    id: pager

    readonly property RootScreen root: Shell.root
    readonly property real step: root.pageWidth + root.pageSpacing
    readonly property real cardHeight: Shell.screenHeight / 1.5 + Shell.screenHeight / 12

    signal created
    signal edited(int styleNumber)

    activeFocusOnTab: true
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTrId("app.page").arg(root.page + 1).arg(root.pageCount)
    Keys.onLeftPressed: root.showPage(root.page - 1)
    Keys.onRightPressed: root.showPage(root.page + 1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home)
            root.showPage(0);
        else if (event.key === Qt.Key_End)
            root.showPage(root.pageCount - 1);
        else
            return;
        event.accepted = true;
    }

    DragHandler {
        id: drag
        target: null
        yAxis.enabled: false
        dragThreshold: pager.root.minimumDragDistance
        onActiveTranslationChanged: if (active) pager.root.drag(activeTranslation.x)
        onActiveChanged: if (!active) pager.root.endDrag(activeTranslation.x)
    }
    WheelHandler {
        property real turned: 0

        orientation: Qt.Vertical
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            const delta = event.angleDelta.x !== 0 ? event.angleDelta.x : event.angleDelta.y;
            turned += delta;
            if (Math.abs(turned) < 120)
                return;
            pager.root.showPage(pager.root.page + (turned > 0 ? -1 : 1));
            turned = 0;
        }
    }
    Item {
        id: content
        objectName: "pages"

        // Its middle is the pages' middle.
        x: pager.width / 2 + pager.root.pagerOffset - width / 2
        y: Math.max(0, (pager.height - pager.cardHeight) / 2)
        width: pager.root.pageCount * pager.step - pager.root.pageSpacing
        height: pager.cardHeight

        Behavior on x {
            enabled: !pager.root.dragging && Shell.animated
            NumberAnimation { duration: Theme.longTime; easing.type: Easing.OutCubic }
        }
        Repeater {
            id: cards
            model: pager.root.showsCards ? pager.root.styles : null

            StyleCard {
                id: card
                required property int index

                x: index * pager.step
                near: Math.abs(index - pager.root.page) <= 2
                onTicked: pager.root.select(styleNumber)
                onEdited: pager.edited(styleNumber)
                onActiveFocusChanged: if (activeFocus) pager.root.showPage(index)
            }
        }
        CreateCard {
            visible: pager.root.showsCreateCard
            x: cards.count * pager.step
            onPressed: pager.created()
            onActiveFocusChanged: if (activeFocus) pager.root.showPage(cards.count)
        }
    }
}
