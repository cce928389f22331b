// Chooses a colour: a field of shades, hue, opacity, digits, and an eyedropper over the window. The
// choice is told as it changes.
import QtQuick
import QtQuick.Window
import Vitrelle

FocusScope {
    id: chooser
    objectName: "colourChooser"

    property bool shown: false
    property string title
    // Kept apart from the colour, which forgets the hue of a grey and the shade of black.
    property real hue: 0
    property real saturation: 0
    property real brightness: 1
    property real opacityChosen: 1
    readonly property color colour: Qt.hsva(hue, saturation, brightness, opacityChosen)

    signal chosen(color now)

    property Item opener // gets the keys back

    onShownChanged: if (!shown && opener) opener.forceActiveFocus()

    function open(now: color, words: string) {
        take(now);
        title = words;
        opener = Window.window ? Window.window.activeFocusItem : null;
        shown = true;
        field.forceActiveFocus();
    }
    function take(now: color) {
        if (now.hsvHue >= 0)
            hue = now.hsvHue;
        saturation = now.hsvSaturation;
        brightness = now.hsvValue;
        opacityChosen = now.a;
    }
    function change(h: real, s: real, b: real, o: real) {
        hue = h;
        saturation = s;
        brightness = b;
        opacityChosen = o;
        chosen(colour);
    }
    function goBack() {
        shown = false;
    }
    function digits(of: color): string {
        return String(Qt.rgba(of.r, of.g, of.b, 1)).slice(1).toUpperCase();
    }

    anchors.fill: parent
    z: 2
    visible: box.y < height
    enabled: shown
    Keys.onEscapePressed: goBack()
    Keys.onBackPressed: goBack()

    MouseArea {
        anchors.fill: parent
        onPressed: chooser.shown = false
        onWheel: {}
    }
    ContinuousRectangle {
        id: box
        x: 12
        y: chooser.shown ? chooser.height - height - 12 - Theme.bottomInset : chooser.height
        width: parent.width - 24
        height: rows.height + 36
        radius: 28
        colour: Theme.card
        borderColour: Qt.rgba(1, 1, 1, 0.12)
        borderWidth: 1

        Behavior on y { NumberAnimation { duration: Theme.longTime; easing.type: Easing.OutCubic } }

        MouseArea { // beside the controls
            anchors.fill: parent
        }
        Column {
            id: rows
            x: 18
            y: 18
            width: parent.width - 36
            spacing: 14

            Item {
                width: parent.width
                height: 34

                RoundButton {
                    id: dropper
                    objectName: "eyedropperButton"
                    anchors.verticalCenter: parent.verticalCenter
                    size: 26
                    symbol: "eyedropper"
                    colour: Theme.text
                    name: qsTrId("app.colour.eyedropper")
                    onPressed: lens.begin()
                }
                Label {
                    anchors.left: dropper.right
                    anchors.right: done.left
                    anchors.margins: 8
                    anchors.verticalCenter: parent.verticalCenter
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.NoWrap
                    elide: Text.ElideRight
                    font.bold: true
                    text: chooser.title
                }
                RoundButton {
                    id: done
                    objectName: "chooserClose"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    size: 26
                    symbol: SharedWords.closeSymbol
                    name: qsTrId("app.close")
                    onPressed: chooser.shown = false
                }
            }
            ColourField {
                id: field
                objectName: "colourField"
                width: parent.width
                height: Surroundings.screenHeight < 700 ? 120 : 170
                hue: chooser.hue
                saturation: chooser.saturation
                brightness: chooser.brightness
                onMoved: (s, b) => chooser.change(chooser.hue, s, b, chooser.opacityChosen)
            }
            ColourBar {
                objectName: "hueBar"
                width: parent.width
                name: qsTrId("app.colour.hue")
                value: chooser.hue
                knob: Qt.hsva(chooser.hue, 1, 1, 1)
                onMoved: now => chooser.change(Math.min(now, 0.9999), chooser.saturation, chooser.brightness, chooser.opacityChosen)

                Rectangle {
                    anchors.fill: parent
                    gradient: Gradient {
                        orientation: Gradient.Horizontal
                        GradientStop { position: 0; color: "#FF0000" }
                        GradientStop { position: 1 / 6; color: "#FFFF00" }
                        GradientStop { position: 2 / 6; color: "#00FF00" }
                        GradientStop { position: 3 / 6; color: "#00FFFF" }
                        GradientStop { position: 4 / 6; color: "#0000FF" }
                        GradientStop { position: 5 / 6; color: "#FF00FF" }
                        GradientStop { position: 1; color: "#FF0000" }
                    }
                }
            }
            ColourBar {
                objectName: "opacityBar"
                width: parent.width
                name: qsTrId("app.colour.opacity")
                value: chooser.opacityChosen
                knob: Qt.hsva(chooser.hue, chooser.saturation, chooser.brightness, 1)
                onMoved: now => chooser.change(chooser.hue, chooser.saturation, chooser.brightness, now)

                Rectangle {
                    anchors.fill: parent
                    color: Qt.rgba(0.62, 0.62, 0.62, 1)
                }
                Rectangle {
                    anchors.fill: parent
                    gradient: Gradient {
                        orientation: Gradient.Horizontal
                        GradientStop { position: 0; color: Qt.hsva(chooser.hue, chooser.saturation, chooser.brightness, 0) }
                        GradientStop { position: 1; color: Qt.hsva(chooser.hue, chooser.saturation, chooser.brightness, 1) }
                    }
                }
            }
            Row {
                spacing: 12
                width: parent.width

                ColourDisc {
                    objectName: "chosenColour"
                    anchors.verticalCenter: parent.verticalCenter
                    width: 40
                    height: 40
                    chequered: true
                    colour: chooser.colour
                }
                ContinuousRectangle {
                    width: parent.width - 52
                    height: 40
                    radius: 12
                    colour: Qt.rgba(1, 1, 1, 0.12)
                    borderColour: hex.acceptableInput || hex.text === "" ? "transparent" : Qt.rgba(1, 0.4, 0.4, 1)
                    borderWidth: 1

                    Label {
                        x: 12
                        anchors.verticalCenter: parent.verticalCenter
                        color: Theme.quietText
                        font.pixelSize: 16
                        text: "#"
                    }
                    TextInput {
                        id: hex
                        objectName: "hexField"
                        x: 28
                        width: parent.width - 40
                        height: parent.height
                        verticalAlignment: TextInput.AlignVCenter
                        color: Theme.text
                        selectionColor: Theme.accent
                        selectedTextColor: "black"
                        font.family: Theme.face
                        font.pixelSize: 16
                        font.capitalization: Font.AllUppercase
                        renderType: Text.QtRendering
                        selectByMouse: true
                        activeFocusOnTab: true
                        maximumLength: 9
                        validator: RegularExpressionValidator { regularExpression: /#?[0-9A-Fa-f]{6}/ }
                        Accessible.role: Accessible.EditableText
                        Accessible.name: qsTrId("app.colour.digits")
                        onTextEdited: {
                            if (!acceptableInput)
                                return;
                            const now = Qt.color("#" + text.replace("#", ""));
                            chooser.take(Qt.rgba(now.r, now.g, now.b, chooser.opacityChosen));
                            chooser.chosen(chooser.colour);
                        }

                        Binding on text {
                            value: chooser.digits(chooser.colour)
                            when: !hex.activeFocus
                        }
                    }
                    FocusRing {
                        shown: hex.activeFocus
                        always: true
                        radius: 17
                    }
                }
            }
        }
    }
    // The eyedropper lies over the whole window, and the panel is out of its way.
    MouseArea {
        id: lens

        property bool looking: false

        function begin() {
            chooser.shown = false;
            wait.restart();
        }
        function look(at: point) {
            loupe.position = mapToItem(null, at.x, at.y);
        }
        function end(takes: bool) {
            looking = false;
            if (takes)
                chooser.change(loupe.colour.hsvHue >= 0 ? loupe.colour.hsvHue : chooser.hue, loupe.colour.hsvSaturation, loupe.colour.hsvValue, chooser.opacityChosen);
            chooser.shown = true;
            field.forceActiveFocus();
        }

        parent: chooser.parent
        anchors.fill: parent
        z: 3
        objectName: "eyedropper"
        visible: looking
        enabled: looking
        hoverEnabled: true
        cursorShape: Qt.CrossCursor
        onPositionChanged: mouse => look(Qt.point(mouse.x, mouse.y))
        onPressed: mouse => look(Qt.point(mouse.x, mouse.y))
        onReleased: end(true)
        Keys.onEscapePressed: end(false)
        Keys.onReturnPressed: end(true)
        Keys.onPressed: event => {
            const by = event.modifiers & Qt.ShiftModifier ? 10 : 1;
            const steps = { [Qt.Key_Left]: [-by, 0], [Qt.Key_Right]: [by, 0], [Qt.Key_Up]: [0, -by], [Qt.Key_Down]: [0, by] };
            const step = steps[event.key];
            if (!step)
                return;
            loupe.position = Qt.point(loupe.position.x + step[0], loupe.position.y + step[1]);
            event.accepted = true;
        }

        Timer {
            id: wait
            interval: Theme.longTime + 20 // until the panel is gone
            onTriggered: {
                loupe.takePicture();
                lens.looking = true;
                lens.forceActiveFocus();
                lens.look(Qt.point(lens.width / 2, lens.height / 3));
            }
        }
        Eyedropper {
            id: loupe
            objectName: "loupe"
            readonly property point spot: lens.mapFromItem(null, position.x, position.y)

            x: Math.max(4, Math.min(lens.width - width - 4, spot.x - width / 2))
            y: spot.y > height + 24 ? spot.y - height - 16 : spot.y + 24
            width: 110
            height: 110
        }
    }
}
