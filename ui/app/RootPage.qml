// The root screen.
import QtQuick
import QtQuick.Controls
import Vitrelle

FocusScope {
    id: page
    objectName: "rootPage"

    readonly property RootScreen root: Shell.root

    signal opened(string screen)
    function makeStyle(): IntakePage {
        opened("ModernNewLightDark");
        return StackView.view.currentItem as IntakePage;
    }

    readonly property bool canCreate: root.showsCreateCard && root.canBeChanged && !root.showingAlert

    Keys.forwardTo: [pager]
    Keys.onPressed: event => {
        if (!event.matches(StandardKey.Paste))
            return;
        event.accepted = true;
        if (canCreate && Shell.canPaste) {
            const style = makeStyle();
            style.intake.pasteAll();
            style.focusNext();
        } else if (canCreate)
            Notices.show(qsTrId("app.clipboardEmpty"));
    }

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
        onCreated: page.makeStyle()
        onEdited: styleNumber => Shell.navigator.openStyle(styleNumber)
        Component.onCompleted: page.root.contentAppear()
    }
    Row {
        id: buttons
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: banner.top
        height: Theme.tall ? 47 : 35 // a small screen has no more room
        spacing: 44

        RoundButton {
            objectName: "knowledgeButton"
            visible: Shell.hasScreen("ModernKnowledgeCentre")
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
            visible: Shell.hasScreen("ModernInfoCentre")
            symbol: "info.circle.fill"
            name: qsTrId("app.info")
            onPressed: page.opened("ModernInfoCentre")
        }
    }
    DropArea {
        id: drop
        objectName: "rootDrop"
        anchors.fill: parent
        enabled: page.canCreate
        keys: ["text/uri-list"]
        onDropped: event => {
            if (!event.hasUrls)
                return;
            event.acceptProposedAction();
            if (event.urls.length > 2) {
                Notices.show(qsTrId("app.intake.tooMany"));
                return;
            }
            const style = page.makeStyle();
            style.intake.takeFiles(event.urls);
            style.focusNext();
        }

        Rectangle {
            anchors.fill: parent
            visible: drop.containsDrag
            color: Qt.rgba(0, 0, 0, 0.6)

            Label {
                anchors.centerIn: parent
                width: parent.width - 80
                horizontalAlignment: Text.AlignHCenter
                font.bold: true
                font.pixelSize: 22
                text: page.root.createTitle
            }
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
