// Any family's form: one row for each control that it has.
import QtQuick
import Vitrelle

Column {
    id: form

    required property FormModel rows

    signal fontAsked(int index, string now)
    signal colourAsked(int index, color now, string title)

    spacing: 10

    Repeater {
        model: form.rows

        Loader {
            id: row

            required property int index
            required property string title
            required property int control
            required property var value
            required property int lowest
            required property int highest

            width: Shell.screenWidth - 60
            // In the order of the controls that the logic has.
            sourceComponent: [textRow, fontRow, stepperRow, toggleRow, colourRow][control]

            function set(now: var) {
                form.rows.setValue(index, now);
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
                    value: Shell.fontWords(row.value)
                    onPressed: form.fontAsked(row.index, row.value)
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
        }
    }
}
