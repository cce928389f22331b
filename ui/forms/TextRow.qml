// A field for a few words.
import QtQuick
import Vitrelle

Panel {
    id: row

    required property string placeholder
    required property string value

    signal edited(string now)

    function takeKeys() {
        field.forceActiveFocus();
    }

    Label {
        anchors.fill: field
        verticalAlignment: Text.AlignVCenter
        visible: field.text === "" && field.preeditText === ""
        color: Theme.quietText
        font.pixelSize: 16
        spoken: false
        text: row.placeholder
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
    }
    TextInput {
        id: field
        objectName: "textField"
        x: 15
        width: parent.width - 30 - (wipe.visible ? 26 : 0)
        height: parent.height
        verticalAlignment: TextInput.AlignVCenter
        clip: true
        color: Theme.text
        selectionColor: Theme.accent
        selectedTextColor: "black"
        font.family: Theme.face
        font.pixelSize: 16
        renderType: Text.QtRendering
        selectByMouse: true
        activeFocusOnTab: true
        text: row.value
        Accessible.role: Accessible.EditableText
        Accessible.name: row.placeholder
        onTextEdited: row.edited(text)
    }
    RoundButton {
        id: wipe
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: field.text !== ""
        activeFocusOnTab: false
        size: 17
        symbol: "xmark.circle.fill"
        name: qsTrId("app.clear")
        onPressed: {
            row.edited("");
            field.forceActiveFocus();
        }
    }
    FocusRing {
        shown: field.activeFocus
        always: true
        radius: 20
    }
}
