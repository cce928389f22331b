// Whether the program may know where the user is, and from where it knows.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "locationSettingsPage"

    required property LocationScreen screen
    readonly property LocationScreen settings: screen

    title: qsTrId("app.location.title")
    symbol: "location.fill"
    hasBack: true
    hasClose: false
    spacing: 10
    onBackAsked: closed()

    component Heading: Label {
        x: 45
        width: parent.width - 90
        topPadding: 10
        font.pixelSize: 14
        color: Theme.quietText
        Accessible.role: Accessible.Heading
    }

    Heading {
        text: qsTrId("app.location.permission")
    }
    Repeater {
        model: [
            { "value": LocationScreen.Never, "name": qsTrId("app.location.never") },
            { "value": LocationScreen.WhenInUse, "name": qsTrId("app.location.whenInUse") },
            { "value": LocationScreen.Always, "name": qsTrId("app.location.always") }
        ]

        ChoiceRow {
            required property int index
            required property var modelData

            objectName: "permission" + modelData.value
            anchors.horizontalCenter: parent.horizontalCenter
            focus: index === 0
            name: modelData.name
            chosen: page.settings.permission === modelData.value
            onPressed: page.settings.permission = modelData.value
        }
    }
    Heading {
        text: qsTrId("app.location.source")
    }
    ChoiceRow {
        objectName: "fromDesktop"
        anchors.horizontalCenter: parent.horizontalCenter
        enabled: page.settings.hasDesktopService
        name: qsTrId("app.location.desktop")
        note: enabled ? "" : qsTrId("app.location.noDesktop")
        chosen: page.settings.source === LocationScreen.Desktop
        onPressed: page.settings.source = LocationScreen.Desktop
    }
    ChoiceRow {
        objectName: "fromPlace"
        anchors.horizontalCenter: parent.horizontalCenter
        name: qsTrId("app.location.place")
        note: page.settings.city
        chosen: page.settings.source === LocationScreen.FixedPlace
        onPressed: {
            if (page.settings.city !== "")
                page.settings.source = LocationScreen.FixedPlace;
            else
                field.takeKeys();
        }
    }
    TextRow {
        id: field
        objectName: "townSearch"
        anchors.horizontalCenter: parent.horizontalCenter
        placeholder: qsTrId("app.location.search")
        value: page.settings.words
        onEdited: now => page.settings.search(now)
    }
    Label {
        objectName: "townUnknown"
        x: 45
        width: parent.width - 90
        visible: page.settings.unknown
        font.pixelSize: 14
        color: Theme.quietText
        text: qsTrId("app.location.unknown")
    }
    Label {
        objectName: "locationTrouble"
        x: 45
        width: parent.width - 90
        visible: text !== ""
        font.pixelSize: 14
        text: page.settings.trouble
    }
    Repeater {
        model: page.settings.found

        ChoiceRow {
            required property int index
            required property string modelData

            objectName: "town" + index
            anchors.horizontalCenter: parent.horizontalCenter
            name: modelData
            onPressed: page.settings.pick(index)
        }
    }
    ChoiceRow {
        objectName: "fromNowhere"
        anchors.horizontalCenter: parent.horizontalCenter
        name: qsTrId("app.location.none")
        chosen: page.settings.source === LocationScreen.Nowhere
        onPressed: page.settings.source = LocationScreen.Nowhere
    }
}
