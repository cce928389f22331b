// A page that has nothing to show yet.
import QtQuick
import Vitrelle

Page {
    objectName: "plainPage"

    Column {
        anchors.centerIn: parent
        width: parent.width - 60
        spacing: 14

        SymbolItem {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "hourglass.tophalf.filled"
            size: 44
            colour: Theme.accent
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            color: Theme.quietText
            text: qsTrId("app.comingSoon")
        }
    }
}
