// Which phone the window stands for, and how it is set. What is changed here holds at once.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "phoneSettingsPage"

    required property PhoneScreen screen
    readonly property PhoneScreen settings: screen

    signal opened(string screen)

    /// Where there are slots.
    function displayWords(measured: int): string {
        if (measured === PhoneScreen.Both)
            return qsTrId("app.phone.bothDisplays");
        if (measured === PhoneScreen.Standard)
            return qsTrId("app.phone.standardDisplay");
        return measured === PhoneScreen.Zoomed ? qsTrId("app.phone.zoomedOnly") : qsTrId("app.phone.unmeasured");
    }
    function systemName(os18: bool): string {
        return os18 ? qsTrId("app.phone.from18") : qsTrId("app.phone.before18");
    }

    title: qsTrId("app.phone.title")
    symbol: "iphone"
    hasBack: true
    hasClose: false
    spacing: 10
    covered: list.shown
    onBackAsked: closed()

    component Heading: Label {
        x: 45
        width: parent.width - 90
        topPadding: 8
        font.pixelSize: 14
        color: Theme.quietText
        Accessible.role: Accessible.Heading
    }

    ButtonRow {
        objectName: "phoneRow"
        anchors.horizontalCenter: parent.horizontalCenter
        width: Surroundings.screenWidth - 60
        focus: true
        title: "iPhone"
        name: page.settings.name
        value: page.settings.name.replace(/^iPhone /, "")
        onPressed: list.shown = true
    }
    Label {
        objectName: "phoneMeasured"
        x: 45
        width: parent.width - 90
        font.pixelSize: 13
        color: Theme.quietText
        text: page.displayWords(page.settings.measured)
    }
    Label {
        objectName: "phoneTrouble"
        x: 45
        width: parent.width - 90
        visible: text !== ""
        font.pixelSize: 14
        text: page.settings.trouble === "" ? "" : qsTrId("app.store.readOnly").arg(page.settings.trouble)
    }
    Heading {
        text: qsTrId("app.phone.system")
    }
    Repeater {
        model: [true, false]

        ChoiceRow {
            required property bool modelData

            objectName: modelData ? "from18" : "before18"
            anchors.horizontalCenter: parent.horizontalCenter
            name: page.systemName(modelData)
            note: chosen && page.settings.os !== "18.0" && page.settings.os !== "17.0" ? page.settings.os : ""
            chosen: page.settings.os18 === modelData
            onPressed: page.settings.os18 = modelData
        }
    }
    ToggleRow {
        objectName: "zoomRow"
        anchors.horizontalCenter: parent.horizontalCenter
        width: Surroundings.screenWidth - 60
        visible: page.settings.hasZoom
        title: qsTrId("app.phone.zoomed")
        value: page.settings.zoomed
        onToggled: page.settings.zoomed = !value
    }
    Heading {
        text: qsTrId("app.phone.appearance")
    }
    Repeater {
        model: [
            { "value": PhoneScreen.AsDesktop, "name": qsTrId("app.phone.asDesktop") },
            { "value": PhoneScreen.Light, "name": qsTrId("app.phone.light") },
            { "value": PhoneScreen.Dark, "name": qsTrId("app.phone.dark") }
        ]

        ChoiceRow {
            required property var modelData

            objectName: "appearance" + modelData.value
            anchors.horizontalCenter: parent.horizontalCenter
            name: modelData.name
            chosen: page.settings.appearance === modelData.value
            onPressed: page.settings.appearance = modelData.value
        }
    }
    Heading {
        text: qsTrId("app.phone.sources")
    }
    ButtonRow {
        objectName: "locationRow"
        anchors.horizontalCenter: parent.horizontalCenter
        width: Surroundings.screenWidth - 60
        title: qsTrId("app.location.title")
        name: title
        value: ""
        onPressed: page.opened("LocationSettingsView")
    }
    overlay: Sheet {
        id: list
        objectName: "phoneSheet"
        onDismissed: shown = false

        Loader {
            anchors.fill: parent
            focus: true
            active: list.present
            sourceComponent: PhoneListPage {
                focus: true
                settings: page.settings
                noteOf: phone => {
                    const words = page.displayWords(phone.measured);
                    return phone.os18 === page.settings.os18 ? words : qsTrId("app.phone.onSystem").arg(page.systemName(phone.os18)).arg(words);
                }
                onClosed: list.dismissed()
            }
        }
    }
}
