// The row of cards that snaps to one in the middle: by finger, mouse, wheel or keys.
import QtQuick
import Vitrelle

FocusScope {
    id: pager

    readonly property RootScreen root: Shell.root
    readonly property real step: root.pageWidth + root.pageSpacing
    readonly property real cardHeight: Surroundings.screenHeight / 1.5 + Surroundings.screenHeight / 12

    signal created
    signal edited(int styleNumber)

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
            enabled: !pager.root.dragging && Surroundings.animated
            NumberAnimation { duration: Theme.longTime; easing.type: Easing.OutCubic }
        }
        Item { // the page in the middle, before the controls on it
            id: shownPage
            objectName: "shownPage"

            readonly property StyleCard card: pager.root.page < cards.count ? cards.itemAt(pager.root.page) as StyleCard : null
            readonly property bool creates: pager.root.page === cards.count && createCard.visible
            readonly property string title: card ? card.title : creates ? createCard.name : ""

            function press() {
                if (card)
                    card.ticked();
                else if (creates)
                    pager.created();
            }

            function pressByKey() {
                if (!Surroundings.isKeyHeld())
                    press();
            }

            x: pager.root.page * pager.step
            width: pager.root.pageWidth
            height: Surroundings.screenHeight / 1.5
            focus: true
            activeFocusOnTab: true
            Accessible.role: Accessible.PageTab
            Accessible.name: (title === "" ? "" : title + ", ") + qsTrId("app.page").arg(pager.root.page + 1).arg(pager.root.pageCount)
            Accessible.focusable: true
            Accessible.onPressAction: press()
            Keys.onReturnPressed: pressByKey()
            Keys.onEnterPressed: pressByKey()
            Keys.onSpacePressed: pressByKey()

            FocusRing {
                shown: shownPage.activeFocus
                radius: 42
            }
        }
        Repeater {
            id: cards
            model: pager.root.showsCards ? pager.root.styles : null

            StyleCard {
                required property int index

                x: index * pager.step
                near: Math.abs(index - pager.root.page) <= 2
                shown: index === pager.root.page
                onTicked: pager.root.select(styleNumber)
                onEdited: pager.edited(styleNumber)
                onAsked: pager.root.showPage(index)
                onKeysLeft: shownPage.forceActiveFocus()
            }
        }
        CreateCard {
            id: createCard
            visible: pager.root.showsCreateCard
            x: cards.count * pager.step
            activeFocusOnTab: false // its page has the keys
            onPressed: pager.created()
        }
    }
}
