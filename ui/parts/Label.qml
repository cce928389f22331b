// Text in the program's face.
import QtQuick
import Vitrelle

Text {
    property bool spoken: true // else it is part of the name of what it stands in

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: !spoken || text === ""
    color: Theme.text
    font.family: Theme.face
    font.pixelSize: 17
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    // Glyph outlines stay sharp when the phone is scaled to fit the desktop.
    renderType: Text.QtRendering
}
