// The slots of one row of the home screen, as widgets show them.
import QtQuick
import Vitrelle

Row {
    id: row

    required property int index
    required property var modelData // the slots' stems
    required property ExportScreen slices
    required property var slotNames // by the stems

    /// The keys go to another row, to what is nearest there.
    signal rowLeft(int by, int column)

    function focusOn(column: int) {
        const slot = slots.itemAt(Math.max(0, Math.min(column, slots.count - 1)));
        if (slot)
            slot.forceActiveFocus();
    }

    spacing: slices.rowSpacing

    Repeater {
        id: slots
        model: row.modelData

        Pressable {
            id: slot

            required property int index
            required property string modelData

            objectName: modelData
            width: row.slices.previewWidth
            height: row.slices.previewHeight
            focusRadius: 29
            name: row.slotNames[modelData]
            Accessible.description: row.slices.sizes[row.slices.widgetSize] + ", " + row.slices.appearances[row.slices.lightDark === 0 ? 0 : 1]
            onPressed: row.slices.tap(modelData)
            Keys.onUpPressed: row.rowLeft(-1, index)
            Keys.onDownPressed: row.rowLeft(1, index)
            Keys.onLeftPressed: row.focusOn(index - 1)
            Keys.onRightPressed: row.focusOn(index + 1)

            ContinuousRectangle {
                anchors.fill: parent
                visible: !picture.ready
                radius: 24
                colour: Theme.card
            }
            StoredPicture {
                id: picture
                objectName: "slice"
                anchors.fill: parent
                stem: slot.modelData
                styleNumber: row.slices.selection
                dark: row.slices.lightDark !== 0
                revision: row.slices.revision
                radius: 24
            }
        }
    }
}
