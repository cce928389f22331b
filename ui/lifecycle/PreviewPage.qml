// The family's current style on the wallpaper of each wallpaper style, as pages to go through; and
// on the whole screen.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "previewPage"

    required property PreviewScreen preview

    title: SharedWords.preview
    symbol: preview.words.entrySymbol
    spacing: 22
    covered: whole.shown
    Component.onCompleted: preview.appear()

    ListView {
        id: pager
        objectName: "previewPager"
        width: page.width
        height: page.preview.pageHeight
        orientation: ListView.Horizontal
        model: page.preview.pages
        spacing: page.preview.pageSpacing
        snapMode: ListView.SnapOneItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        preferredHighlightBegin: (width - page.preview.pageWidth) / 2
        preferredHighlightEnd: preferredHighlightBegin + page.preview.pageWidth
        highlightMoveDuration: Theme.longTime
        focus: true
        activeFocusOnTab: true
        cacheBuffer: page.width
        keyNavigationEnabled: true
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTrId("app.page").arg(currentIndex + 1).arg(count)

        delegate: WallpaperPage {
            preview: page.preview
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

        objectName: "wholePreview"
        anchors.fill: parent
        visible: shown
        activeFocusOnTab: shown
        name: qsTrId("app.close")
        Keys.onEscapePressed: shown = false
        onShownChanged: shown ? forceActiveFocus() : pager.forceActiveFocus()
        onPressed: shown = false

        Loader {
            active: whole.shown
            sourceComponent: WallpaperPage {
                index: pager.currentIndex
                modelData: page.preview.pages[pager.currentIndex]
                preview: page.preview
                radius: 0
                enlarged: 1.5
            }
        }
    }
}
