// A step of a family's editor: the look of the style, its form, and beside the colours of a style
// those of the wallpaper.
import QtQuick
import QtQuick.Controls
import Vitrelle

SheetPage {
    id: page
    objectName: screen.isSecond ? "colourPage" : "setupPage"

    required property EditorScreen screen
    property int colourRow: -1

    signal saved

    title: screen.isSecond ? screen.words.secondTitle : SharedWords.setupTitle
    symbol: screen.isSecond ? screen.words.secondSymbol : SharedWords.setupSymbol
    spacing: 20
    covered: chooser.shown || menu.shown || screen.sheet !== ""
    Keys.onPressed: event => {
        if (!event.matches(StandardKey.Paste) || !screen.takesPictures || covered)
            return;
        event.accepted = true;
        paste();
    }

    // What was said of the picture before is no more of use.
    function paste() {
        forgetRefusal();
        screen.paste();
    }
    function tell(refusal: string) {
        forgetRefusal();
        if (refusal !== "")
            Notices.show(qsTrId("app.unreadable").arg(refusal));
    }
    function forgetRefusal() {
        if (Notices.kind === Notices.Refusal)
            Notices.dismiss();
    }
    StackView.onActivating: screen.appear() // also on the way back from the step after
    StackView.onActivated: screen.settle()

    Connections {
        target: Surroundings
        function onDarkChanged() { // also when another phone is stood for
            page.screen.takeSlice();
        }
    }
    Connections {
        target: page.screen
        function onChanged() {
            if (page.screen.sheet !== "")
                sheet.picks = page.screen.sheet;
            sheet.shown = page.screen.sheet !== "";
        }
    }

    WidgetPreview {
        anchors.horizontalCenter: parent.horizontalCenter
        face: page.screen.face
        backdrop: page.screen.backdrop
        previewWidth: page.screen.previewWidth
        previewHeight: page.screen.previewHeight
        takesPictures: page.screen.takesPictures
        onFileDropped: file => page.tell(page.screen.takeFile(file))
        onBytesDropped: bytes => page.tell(page.screen.takeBytes(bytes))
    }
    SuggestedColoursPanel {
        objectName: "suggestions"
        anchors.horizontalCenter: parent.horizontalCenter
        visible: page.screen.hasSuggestions
        loaded: page.screen.suggestionsLoaded
        colours: page.screen.suggestedColours
    }
    Row {
        x: 30
        width: parent.width - 60
        spacing: 8
        visible: page.screen.hasSuggestionsHint

        SymbolItem {
            anchors.verticalCenter: parent.verticalCenter
            name: SharedWords.suggestionsHintSymbol
            size: 16
            colour: Theme.quietText
        }
        Label {
            objectName: "suggestionsHint"
            width: parent.width - 24
            font.pixelSize: 13
            color: Theme.quietText
            text: SharedWords.suggestionsHint
        }
    }
    FormView {
        anchors.horizontalCenter: parent.horizontalCenter
        rows: page.screen.form
        onColourAsked: (index, now, title) => {
            page.colourRow = index;
            chooser.open(now, title);
        }
        onMenuAsked: (row, index) => {
            menu.asker = row;
            menu.options = row.options;
            menu.chosen = row.chosen;
            menu.openAt(row, Qt.point(row.width - 250, row.height + 4), entries.itemAt(row.chosen));
        }
        onPressed: index => {
            page.forgetRefusal();
            page.screen.form.press(index);
        }
    }
    ActionButton {
        objectName: page.screen.isSecond ? "saveAndExit" : "saveAndContinue"
        anchors.horizontalCenter: parent.horizontalCenter
        name: page.screen.isSecond ? SharedWords.saveAndExit : SharedWords.saveAndContinue
        onPressed: page.saved()
    }
    overlay: [
        ColourChooser {
            id: chooser
            onChosen: now => page.screen.form.setValue(page.colourRow, now)
        },
        ContextMenu {
            id: menu

            property MenuRow asker
            property var options: []
            property int chosen: -1

            Repeater {
                id: entries
                model: menu.options

                MenuEntry {
                    required property int index
                    required property var modelData

                    objectName: "option" + index
                    width: parent.width
                    name: modelData.words
                    symbol: index === menu.chosen ? "checkmark" : ""
                    onPressed: {
                        menu.close();
                        menu.asker.chose(index);
                    }
                }
            }
        },
        Sheet {
            id: sheet

            property string picks // also while it goes away

            objectName: picks + "Sheet"
            onDismissed: page.screen.dismissSheet()

            Loader {
                anchors.fill: parent
                focus: true
                active: sheet.present
                sourceComponent: sheet.picks === "symbol" ? symbolPicker : fontPicker
            }
        }
    ]
    Component {
        id: fontPicker
        FontPickerPage {
            focus: true
            fontPicked: page.screen.sheetValue
            onPicked: name => page.screen.pick(name)
            onClosed: page.screen.dismissSheet()
        }
    }
    Component {
        id: symbolPicker
        SymbolPickerPage {
            focus: true
            icon: page.screen.sheetValue
            onPicked: name => page.screen.pick(name)
            onClosed: page.screen.dismissSheet()
        }
    }
}
