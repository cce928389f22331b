// The entry screen of a family: new styles, the gallery, the preview.
import QtQuick
import Vitrelle

Page {
    id: page
    objectName: "familyPage"

    required property FamilyScreen family

    title: family.words.entryTitle
    covered: family.flow !== null || family.alertTitle !== ""
    Component.onCompleted: family.appear()

    Connections {
        target: page.family
        function onChanged() {
            if (page.family.flow)
                sheet.flow = page.family.flow;
            sheet.shown = page.family.flow !== null;
        }
    }

    Column {
        anchors.centerIn: parent
        spacing: 16

        SymbolItem {
            anchors.horizontalCenter: parent.horizontalCenter
            name: page.family.words.entrySymbol
            size: 72
            colour: Theme.accent
        }
        Item {
            width: 1
            height: 14
        }
        ActionButton {
            objectName: "create"
            focus: true
            name: SharedWords.create
            symbol: "plus"
            onPressed: page.family.tapCreate()
        }
        ActionButton {
            objectName: "gallery"
            strong: false
            name: SharedWords.gallery
            symbol: SharedWords.gallerySymbol
            onPressed: page.family.tapGallery()
        }
        ActionButton {
            objectName: "preview"
            strong: false
            name: SharedWords.preview
            symbol: "iphone"
            onPressed: page.family.tapPreview()
        }
    }
    overlay: [
        Sheet {
            id: sheet

            property FlowScreen flow: null // also while it goes away

            objectName: "familySheet"
            onDismissed: page.family.dismissSheet()

            Loader {
                anchors.fill: parent
                focus: true
                active: sheet.present
                sourceComponent: StyleFlow {
                    focus: true
                    flow: sheet.flow
                }
            }
        },
        AlertBox {
            objectName: "familyAlert"
            title: page.family.alertTitle
            message: page.family.alertMessage
            shown: page.family.alertTitle !== ""
            onDismissed: page.family.dismissAlert()
        }
    ]
}
