// The second step of a family's editor: colours, beside those of the wallpaper.
import QtQuick
import QtQuick.Controls
import Vitrelle

SheetPage {
    id: page
    objectName: "colourPage"

    required property EditorScreen editor
    property int colourRow: -1

    signal saved

    title: SharedWords.coloursTitle
    symbol: SharedWords.coloursSymbol
    spacing: 20
    covered: chooser.shown
    StackView.onActivating: editor.appear()
    StackView.onActivated: editor.settle()

    WidgetPreview {
        anchors.horizontalCenter: parent.horizontalCenter
        face: page.editor.face
        backdrop: page.editor.backdrop
        previewWidth: page.editor.previewWidth
        previewHeight: page.editor.previewHeight
    }
    SuggestedColoursPanel {
        objectName: "suggestions"
        anchors.horizontalCenter: parent.horizontalCenter
        visible: page.editor.hasSuggestions
        loaded: page.editor.suggestionsLoaded
        colours: page.editor.suggestedColours
    }
    Row {
        x: 30
        width: parent.width - 60
        spacing: 8
        visible: page.editor.hasSuggestionsHint

        SymbolItem {
            anchors.verticalCenter: parent.verticalCenter
            name: SharedWords.suggestionsHintSymbol
            size: 16
            colour: Theme.quietText
        }
        Label {
            width: parent.width - 24
            font.pixelSize: 13
            color: Theme.quietText
            text: SharedWords.suggestionsHint
        }
    }
    FormView {
        anchors.horizontalCenter: parent.horizontalCenter
        rows: page.editor.form
        onColourAsked: (index, now, title) => {
            page.colourRow = index;
            chooser.open(now, title);
        }
    }
    ActionButton {
        objectName: "saveAndExit"
        anchors.horizontalCenter: parent.horizontalCenter
        name: SharedWords.saveAndExit
        onPressed: {
            if (page.editor.save())
                Shell.showNotice(qsTrId("app.saved"), Shell.Done);
            page.saved();
        }
    }
    overlay: ColourChooser {
        id: chooser
        onChosen: now => page.editor.form.setValue(page.colourRow, now)
    }
}
