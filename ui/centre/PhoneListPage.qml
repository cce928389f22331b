// All phones, with a search: whatever is typed goes into it, and the arrows go through the list.
import QtQuick
import Vitrelle

Page {
    id: page
    objectName: "phoneListPage"

    required property PhoneScreen settings
    required property var noteOf // of a phone, for its line

    function pick(index: int) {
        settings.pick(index);
        closed();
    }
    function goTo(index: int) {
        list.currentIndex = Math.max(0, Math.min(index, list.count - 1));
        list.forceActiveFocus();
    }

    title: qsTrId("app.phone.which")
    backTitle: qsTrId("app.back")
    Keys.onEscapePressed: if (!Surroundings.isKeyHeld()) closed()
    Keys.onBackPressed: if (!Surroundings.isKeyHeld()) closed()
    Keys.onPressed: event => {
        const visible = Math.max(1, Math.floor(list.height / 60));
        if (event.key === Qt.Key_Home)
            goTo(0);
        else if (event.key === Qt.Key_End)
            goTo(list.count - 1);
        else if (event.key === Qt.Key_PageUp)
            goTo(list.currentIndex - visible);
        else if (event.key === Qt.Key_PageDown)
            goTo(list.currentIndex + visible);
        else if (event.text > " " && event.key !== Qt.Key_Delete && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier)))
            field.type(event.text);
        else
            return;
        event.accepted = true;
    }
    Component.onCompleted: {
        settings.search("");
        const phones = settings.phones;
        for (let i = 0; i < list.count; ++i) {
            if (phones[i].chosen)
                list.currentIndex = i;
        }
        list.positionViewAtIndex(list.currentIndex, ListView.Center);
        list.forceActiveFocus();
    }

    TextRow {
        id: field
        objectName: "phoneSearch"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 8
        placeholder: qsTrId("app.phone.search")
        value: page.settings.words
        onEdited: now => {
            page.settings.search(now);
            list.currentIndex = 0;
        }
        Keys.onDownPressed: page.goTo(0)
        Keys.onReturnPressed: if (list.count > 0) page.pick(0)
        Keys.onEnterPressed: if (list.count > 0) page.pick(0)

        function type(text: string) {
            page.settings.search(page.settings.words + text);
            list.currentIndex = 0;
            takeKeys();
        }
    }
    Label {
        objectName: "phoneUnknown"
        x: 45
        y: field.y + field.height + 16
        width: parent.width - 90
        visible: list.count === 0
        color: Theme.quietText
        text: qsTrId("app.phone.unknown")
    }
    ListView {
        id: list
        objectName: "phoneList"
        anchors.top: field.bottom
        anchors.topMargin: 10
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true
        model: page.settings.phones
        spacing: 8
        topMargin: 6
        bottomMargin: Theme.bottomInset + 12
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        activeFocusOnTab: true
        Accessible.role: Accessible.List
        Accessible.name: page.title
        Keys.onUpPressed: event => {
            if (currentIndex > 0)
                decrementCurrentIndex();
            else
                field.takeKeys();
        }

        delegate: ChoiceRow {
            required property int index
            required property listedPhone modelData

            objectName: "phone " + modelData.name
            x: (ListView.view.width - width) / 2
            focus: ListView.isCurrentItem
            activeFocusOnTab: false
            name: modelData.name
            note: page.noteOf(modelData)
            chosen: modelData.chosen
            onPressed: page.pick(index)
        }
    }
}
