// The first step of a family's editor.
import QtQuick
import QtQuick.Controls
import Vitrelle

SheetPage {
    id: page
    objectName: "setupPage"

    required property EditorScreen editor
    property int fontRow: -1
    property string fontNow

    signal saved

    title: SharedWords.setupTitle
    symbol: SharedWords.setupSymbol
    spacing: 20
    covered: fontRow >= 0
    StackView.onActivating: editor.appear() // also on the way back from the colours

    WidgetPreview {
        anchors.horizontalCenter: parent.horizontalCenter
        face: page.editor.face
        backdrop: page.editor.backdrop
        previewWidth: page.editor.previewWidth
        previewHeight: page.editor.previewHeight
    }
    FormView {
        id: form
        anchors.horizontalCenter: parent.horizontalCenter
        rows: page.editor.form
        onFontAsked: (index, now) => {
            page.fontRow = index;
            page.fontNow = now;
        }
    }
    ActionButton {
        objectName: "saveAndContinue"
        anchors.horizontalCenter: parent.horizontalCenter
        name: SharedWords.saveAndContinue
        onPressed: {
            page.editor.save();
            page.saved();
        }
    }
    overlay: Sheet {
        id: fontSheet
        objectName: "fontSheet"
        shown: page.fontRow >= 0
        onDismissed: page.fontRow = -1

        Loader {
            anchors.fill: parent
            focus: true
            active: fontSheet.present
            sourceComponent: FontPickerPage {
                focus: true
                fontPicked: page.fontNow
                onPicked: postScriptName => form.rows.setValue(page.fontRow, postScriptName)
                onClosed: fontSheet.dismissed()
            }
        }
    }
}
