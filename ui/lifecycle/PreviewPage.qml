// The family's current style on the wallpaper of each wallpaper style, as pages to go through; and
// on the whole screen.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "previewPage"

    required property PreviewScreen screen

    title: SharedWords.preview
    symbol: screen.words.entrySymbol
    spacing: 22
    covered: whole.shown
    Component.onCompleted: screen.appear()

    Connections {
        target: Surroundings
        function onDarkChanged() { // also when another phone is stood for
            page.screen.appear();
        }
    }

    ListView {
        id: pager
        objectName: "previewPager"
        width: page.width
        height: page.screen.pageHeight
        orientation: ListView.Horizontal
        model: page.screen.pages
        spacing: page.screen.pageSpacing
        snapMode: ListView.SnapOneItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        preferredHighlightBegin: (width - page.screen.pageWidth) / 2
        preferredHighlightEnd: preferredHighlightBegin + page.screen.pageWidth
        highlightMoveDuration: Theme.longTime
        focus: true
        activeFocusOnTab: true
        cacheBuffer: page.width
        keyNavigationEnabled: true
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTrId("app.page").arg(currentIndex + 1).arg(count)

        delegate: WallpaperPage {
            preview: page.screen
        }
        WheelHandler {
            property real turned: 0

            orientation: Qt.Vertical
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            onWheel: event => {
                turned += event.angleDelta.x !== 0 ? event.angleDelta.x : event.angleDelta.y;
                if (Math.abs(turned) < 120)
                    return;
                if (turned > 0)
                    pager.decrementCurrentIndex();
                else
                    pager.incrementCurrentIndex();
                turned = 0;
            }
        }
    }
    ActionButton {
        objectName: "previewButton"
        anchors.horizontalCenter: parent.horizontalCenter
        name: SharedWords.previewButton
        enabled: pager.count > 0
        onPressed: whole.shown = true
    }
    overlay: Pressable { // the page as large as the screen, until it is pressed
        id: whole

        property bool shown: false

        function goBack() {
            shown = false;
        }

        objectName: "wholePreview"
        opacity: 1 // also under the pointer: nothing is to shine through
        anchors.fill: parent
        visible: shown
        activeFocusOnTab: shown
        name: qsTrId("app.close")
        Keys.onEscapePressed: goBack()
        Keys.onBackPressed: goBack()
        onShownChanged: shown ? forceActiveFocus() : pager.forceActiveFocus()
        onPressed: shown = false

        Loader {
            active: whole.shown
            sourceComponent: WallpaperPage {
                index: pager.currentIndex
                modelData: page.screen.pages[pager.currentIndex]
                preview: page.screen
                radius: 0
                enlarged: 1.5
            }
        }
    }
}
