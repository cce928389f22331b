// The root screen.
import QtQuick
import Vitrelle

FocusScope {
    id: page
    objectName: "rootPage"

    readonly property RootScreen root: Shell.root

    signal opened(string screen)
    signal created
    signal edited(int styleNumber)

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.screenTop }
            GradientStop { position: 1; color: Theme.screenBottom }
        }
    }
    Label {
        id: heading
        objectName: "title"
        x: 16
        y: Theme.topInset
        height: 44
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: 34
        font.bold: true
        text: page.root.title
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    CardPager {
        id: pager
        objectName: "pager"
        focus: true
        anchors.top: heading.bottom
        anchors.bottom: buttons.top
        width: parent.width
        onCreated: page.created()
        onEdited: styleNumber => page.edited(styleNumber)
        Component.onCompleted: page.root.contentAppear()
    }
    Row {
        id: buttons
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: banner.top
        height: 47
        spacing: 44

        RoundButton {
            objectName: "knowledgeButton"
            symbol: "questionmark.circle.fill"
            name: qsTrId("app.help")
            onPressed: page.opened("ModernKnowledgeCentre")
        }
        RoundButton {
            objectName: "widgetCentreButton"
            symbol: "command.circle.fill"
            name: qsTrId("app.widgetCentre")
            onPressed: if (page.root.openWidgetCentre()) page.opened("ModernWidgetCentre")
        }
        RoundButton {
            objectName: "infoButton"
            symbol: "info.circle.fill"
            name: qsTrId("app.info")
            onPressed: page.opened("ModernInfoCentre")
        }
    }
    Item { // the strip of the banner, which stays empty without an advertising kit
        id: banner
        objectName: "banner"
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.bottomInset
        width: parent.width
        height: 50
    }
}
