// The installed font families, each in its own face, with a search.
import QtQuick
import Vitrelle

FocusScope {
    id: page
    objectName: "fontPicker"

    required property string fontPicked // the name that is set now
    property FontScreen fonts: Shell.fonts()

    signal picked(string postScriptName)
    signal closed

    function goBack() {
        closed();
    }

    Keys.onEscapePressed: if (!Surroundings.isKeyHeld()) closed()
    Keys.onBackPressed: if (!Surroundings.isKeyHeld()) closed()
    Component.onCompleted: {
        page.fonts.search("");
        const now = page.fonts.indexOf(page.fontPicked);
        list.currentIndex = now;
        if (now >= 0)
            list.positionViewAtIndex(now, ListView.Center);
        search.forceActiveFocus();
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.backdrop
    }
    Connections {
        target: page.fonts
        function onFontPicked(postScriptName: string) {
            page.picked(postScriptName);
        }
        function onDismissed() {
            page.closed();
        }
    }
    Item {
        id: header
        y: Theme.topInset
        width: parent.width
        height: 56

        Row {
            x: 30
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6

            Label {
                id: heading
                font.pixelSize: 18
                font.weight: Font.DemiBold
                color: "white"
                text: SharedWords.currentFont
            }
            Label {
                objectName: "currentFont"
                width: header.width - heading.width - 120
                font.pixelSize: 18
                font.weight: Font.DemiBold
                color: Theme.blue
                wrapMode: Text.NoWrap
                elide: Text.ElideRight
                text: page.fontPicked
            }
        }
        RoundButton {
            objectName: "fontPickerClose"
            anchors.right: parent.right
            anchors.rightMargin: 30
            anchors.verticalCenter: parent.verticalCenter
            size: 28
            symbol: SharedWords.closeSymbol
            name: qsTrId("app.close")
            onPressed: page.closed()
        }
    }
    Panel {
        id: field
        anchors.top: header.bottom
        anchors.horizontalCenter: parent.horizontalCenter
        height: 40
        colour: Theme.card

        SymbolItem {
            id: glass
            x: 12
            anchors.verticalCenter: parent.verticalCenter
            name: "magnifyingglass"
            size: 16
            colour: Theme.quietText
        }
        Label {
            anchors.left: search.left
            anchors.verticalCenter: parent.verticalCenter
            visible: search.text === "" && search.preeditText === ""
            color: Theme.quietText
            font.pixelSize: 16
            text: qsTrId("app.search")
        }
        TextInput {
            id: search
            objectName: "fontSearch"
            anchors.left: glass.right
            anchors.leftMargin: 8
            anchors.right: parent.right
            anchors.rightMargin: 12
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
            Accessible.role: Accessible.EditableText
            Accessible.name: qsTrId("app.search")
            onTextEdited: {
                page.fonts.search(text);
                list.currentIndex = text === "" ? page.fonts.indexOf(page.fontPicked) : (page.fonts.count > 0 ? 0 : -1);
            }
            Keys.onDownPressed: list.incrementCurrentIndex()
            Keys.onUpPressed: list.decrementCurrentIndex()
            Keys.onReturnPressed: page.fonts.pick(list.currentIndex)
            Keys.onEnterPressed: page.fonts.pick(list.currentIndex)
        }
        FocusRing {
            shown: search.activeFocus
            always: true
            radius: 20
        }
    }
    Label {
        anchors.centerIn: list
        visible: page.fonts.count === 0
        color: Theme.quietText
        text: qsTrId("app.fonts.none")
    }
    ListView {
        id: list
        objectName: "fontListView"
        anchors.top: field.bottom
        anchors.topMargin: 10
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true
        model: page.fonts.list
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        currentIndex: -1
        activeFocusOnTab: true
        bottomMargin: Theme.bottomInset
        Keys.onReturnPressed: page.fonts.pick(currentIndex)
        Keys.onSpacePressed: page.fonts.pick(currentIndex)

        delegate: Pressable {
            id: row

            required property int index
            required property string postScriptName
            required property face face
            readonly property bool isPicked: postScriptName === page.fontPicked

            objectName: "font" + postScriptName
            width: list.width
            height: 44
            activeFocusOnTab: false
            role: Accessible.ListItem
            onPressed: page.fonts.pick(index)

            Rectangle {
                anchors.fill: parent
                visible: row.ListView.isCurrentItem
                color: Qt.rgba(1, 1, 1, 0.1)
            }
            FaceView {
                x: 30
                y: (row.height - height) / 2
                width: page.fonts.nameWidth
                height: page.fonts.nameHeight
                bleed: 0
                face: row.face
            }
            SymbolItem {
                anchors.right: parent.right
                anchors.rightMargin: 30
                anchors.verticalCenter: parent.verticalCenter
                visible: row.isPicked
                name: "checkmark"
                size: 18
                weight: 600
                colour: Theme.accent
            }
            Rectangle {
                anchors.bottom: parent.bottom
                x: 30
                width: parent.width - 30
                height: 1 / Screen.devicePixelRatio
                color: Qt.rgba(1, 1, 1, 0.12)
            }
        }
    }
}
