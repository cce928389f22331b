// Hands something to the rest of the desktop: saves, copies, opens it, or lets it be dragged away.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "shareSheet"

    required property sharedItem item

    readonly property string pixels: item.pixelWidth > 0 ? qsTrId("app.share.pixels").arg(item.pixelWidth).arg(item.pixelHeight) + ", " : ""
    readonly property string bytes: Qt.locale().formattedDataSize(item.byteCount, 0, Locale.DataSizeSIFormat)

    function copy() {
        Sharing.copy(item);
        Notices.show(qsTrId("app.share.copied"), Notices.Done);
    }

    title: qsTrId("app.share.title")
    symbol: "square.and.arrow.up"
    spacing: 12
    covered: saver.shown
    Keys.onPressed: event => {
        if (!item.present || event.isAutoRepeat)
            return;
        if (event.matches(StandardKey.Copy))
            copy();
        else if (event.matches(StandardKey.Save) || event.matches(StandardKey.SaveAs))
            saver.open();
        else
            return;
        event.accepted = true;
    }

    Connections {
        target: Sharing
        function onOpenFailed(why: string) {
            Notices.show(why);
        }
    }
    Label { // what was to be shared can't be read
        objectName: "nothingToShare"
        x: 30
        width: page.width - 60
        visible: !page.item.present
        text: qsTrId("ExportWidgetError")
    }
    SharePreview {
        id: preview
        objectName: "sharePreview"

        // As large as there is room for, and the buttons stay in view.
        readonly property real room: Math.max(110, page.height - Theme.topInset - Theme.bottomInset - 366)
        readonly property real fit: Math.min((page.width - 60) / Math.max(1, page.item.pixelWidth), room / Math.max(1, page.item.pixelHeight))

        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.round(page.item.pixelWidth * fit)
        height: Math.round(page.item.pixelHeight * fit)
        visible: page.item.present && width > 0
        item: page.item
        Accessible.role: Accessible.Graphic
        Accessible.name: page.item.fileName
        Accessible.description: qsTrId("app.share.drag")

        HoverHandler {
            cursorShape: drag.active ? Qt.ClosedHandCursor : Qt.OpenHandCursor
        }
        DragHandler {
            id: drag
            target: null
            onActiveChanged: if (active) Sharing.drag(page.item, preview)
        }
    }
    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        width: page.width - 60
        visible: page.item.present
        spacing: 2

        Label {
            objectName: "shareName"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.NoWrap
            elide: Text.ElideMiddle
            font.weight: Font.DemiBold
            text: page.item.fileName
        }
        Label {
            objectName: "shareFacts"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 14
            color: Theme.quietText
            text: page.pixels + page.bytes
        }
    }
    ActionButton {
        objectName: "saveAs"
        anchors.horizontalCenter: parent.horizontalCenter
        visible: page.item.present
        focus: true
        symbol: "square.and.arrow.down"
        name: qsTrId("app.share.saveAs")
        onPressed: saver.open()
    }
    ActionButton {
        objectName: "copy"
        anchors.horizontalCenter: parent.horizontalCenter
        visible: page.item.present
        strong: false
        symbol: "doc.on.doc"
        name: qsTrId("app.share.copy")
        onPressed: page.copy()
    }
    ActionButton {
        objectName: "openWith"
        anchors.horizontalCenter: parent.horizontalCenter
        visible: page.item.present
        strong: false
        symbol: "arrow.up.forward.app"
        name: qsTrId("app.share.open")
        onPressed: Sharing.open(page.item)
    }
    Label {
        objectName: "dragHint"
        x: 30
        width: page.width - 60
        visible: preview.visible
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: 13
        color: Theme.quietText
        text: qsTrId("app.share.drag")
    }
    overlay: SavePicker {
        id: saver
        item: page.item
    }
}
