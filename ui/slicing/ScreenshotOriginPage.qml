// Asks which phone a screenshot is from that is not the present one's.
import QtQuick
import Vitrelle

SheetPage {
    id: page
    objectName: "screenshotOriginPage"

    required property IntakeScreen intake

    title: qsTrId("app.phone.which")
    symbol: "iphone"
    spacing: 10

    Label {
        objectName: "foreignWords"
        x: 30
        width: parent.width - 60
        bottomPadding: 6
        font.pixelSize: 15
        text: qsTrId("app.phone.foreign").arg(page.intake.askedSize).arg(page.intake.presentPhone)
    }
    Repeater {
        model: page.intake.origins

        ChoiceRow {
            required property int index
            required property screenshotPhones modelData

            objectName: "origin" + index
            anchors.horizontalCenter: parent.horizontalCenter
            role: Accessible.Button
            Accessible.checkable: false
            focus: index === 0
            name: modelData.name
            note: modelData.note
            onPressed: page.intake.answer(index)
        }
    }
    Item {
        width: 1
        height: 4
    }
    ActionButton {
        objectName: "keepPhone"
        anchors.horizontalCenter: parent.horizontalCenter
        strong: false
        name: qsTrId("app.phone.keep").arg(page.intake.presentPhone)
        onPressed: page.intake.keepPhone()
    }
}
