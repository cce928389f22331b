// Any form of the logic: one row for each control that it has.
import QtQuick
import Vitrelle

Column {
    id: form

    required property FormModel rows

    signal colourAsked(int index, color now, string title)
    signal menuAsked(Item row, int index)
    signal pressed(int index)

    spacing: 10
    add: Transition { NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.shortTime; easing.type: Easing.InOutQuad } }
    move: Transition { NumberAnimation { property: "y"; duration: Theme.shortTime; easing.type: Easing.InOutQuad } }

    Repeater {
        model: form.rows

        Column {
            id: row

            required property int index
            required property string title
            required property string control
            required property var value
            required property int lowest
            required property int highest
            required property var options
            required property int chosen
            required property string label
            required property bool divided
            required property string symbol

            spacing: form.spacing

            function set(now: var) {
                form.rows.setValue(index, now);
            }
            Rectangle {
                visible: row.divided
                width: parent.width
                height: 1
                color: Theme.grey
            }
            Loader {
                width: Surroundings.screenWidth - 60
                sourceComponent: ({
                    "text": textRow,
                    "font": fontRow,
                    "symbol": symbolRow,
                    "stepper": stepperRow,
                    "toggle": toggleRow,
                    "colourWell": colourRow,
                    "segments": segmentsRow,
                    "menu": menuRow,
                    "note": noteRow,
                    "button": pressRow
                })[row.control]
            }
            Component {
                id: textRow
                TextRow {
                    placeholder: row.title
                    value: row.value
                    onEdited: now => row.set(now)
                }
            }
            Component {
                id: fontRow
                ButtonRow {
                    objectName: "fontRow"
                    title: row.title
                    value: SharedWords.fontWords(row.value)
                    onPressed: form.rows.openSheet(row.index)
                }
            }
            Component {
                id: symbolRow
                ButtonRow {
                    objectName: "symbolRow"
                    title: row.title
                    name: row.title + " " + row.value
                    value: ""
                    picture: SymbolItem {
                        name: row.value
                        size: 16
                        colour: Theme.quietText
                    }
                    onPressed: form.rows.openSheet(row.index)
                }
            }
            Component {
                id: stepperRow
                StepperRow {
                    title: row.title
                    value: row.value
                    lowest: row.lowest
                    highest: row.highest
                    onStepped: now => row.set(now)
                }
            }
            Component {
                id: toggleRow
                ToggleRow {
                    title: row.title
                    value: row.value
                    onToggled: row.set(!row.value)
                }
            }
            Component {
                id: colourRow
                ColourWell {
                    title: row.title
                    value: row.value
                    onPressed: form.colourAsked(row.index, row.value, row.title)
                }
            }
            Component {
                id: segmentsRow
                SegmentsRow {
                    title: row.title
                    label: row.label
                    options: row.options
                    chosen: row.chosen
                    onChose: option => form.rows.choose(row.index, option)
                }
            }
            Component {
                id: menuRow
                MenuRow {
                    id: menu
                    objectName: "menuRow"
                    title: row.title
                    options: row.options
                    chosen: row.chosen
                    onChose: option => form.rows.choose(row.index, option)
                    onPressed: form.menuAsked(menu, row.index)
                }
            }
            Component {
                id: pressRow
                PressRow {
                    objectName: "pressRow"
                    name: row.title
                    symbol: row.symbol
                    onPressed: form.pressed(row.index)
                }
            }
            Component {
                id: noteRow
                NoteRow {
                    symbol: row.symbol
                    words: row.title
                }
            }
        }
    }
}
