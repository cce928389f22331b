// A row that shows which of several values is chosen and opens the list of them all. Arrows go from
// one to the next without it, and a letter to the next that begins with it.
import QtQuick
import Vitrelle

ButtonRow {
    id: row

    required property var options // each with its words
    required property int chosen // -1 where it is none of them

    signal chose(int option)

    value: chosen >= 0 ? options[chosen].words : ""
    mark: "chevron.up.chevron.down"
    role: Accessible.ComboBox
    Keys.onUpPressed: step(-1)
    Keys.onDownPressed: step(1)
    Keys.onPressed: event => {
        const found = startingWith(event.text);
        if (found < 0)
            return;
        event.accepted = true;
        chose(found);
    }

    function step(by: int) {
        const next = chosen < 0 ? 0 : chosen + by;
        if (options[next])
            chose(next);
    }
    /// The next option that begins so; -1 where none does.
    function startingWith(letter: string): int {
        if (letter.trim() === "")
            return -1;
        const starts = option => option.words.toLowerCase().startsWith(letter.toLowerCase());
        const behind = options.findIndex((option, index) => index > chosen && starts(option));
        return behind >= 0 ? behind : options.findIndex(starts);
    }
}
