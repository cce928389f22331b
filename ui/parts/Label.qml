// Text in the program's face.
import QtQuick
import Vitrelle

Text {
    color: Theme.text
    font.family: Theme.face
    font.pixelSize: 17
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    // Glyph outlines stay sharp when the phone is scaled to fit the desktop.
    renderType: Text.QtRendering
}
