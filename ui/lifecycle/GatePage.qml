// What stands before a family's entry: a wait, a refusal, or the entry itself.
import QtQuick
import QtQuick.Controls
import Vitrelle

Page {
    id: page
    objectName: "gatePage"

    required property GateScreen gate

    black: true
    covered: gate.family !== null
    StackView.onActivating: gate.appear()

    Spinner {
        objectName: "gateSpinner"
        anchors.centerIn: parent
        scale: 1.5
        visible: page.gate.waits
    }
    Flickable {
        anchors.fill: parent
        visible: page.gate.refuses
        contentHeight: Math.max(height, refusal.height + 40)
        boundsBehavior: Flickable.StopAtBounds

        Column {
            id: refusal
            objectName: "gateRefusal"
            anchors.centerIn: parent
            width: parent.width
            spacing: 22

            SymbolItem {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: page.gate.symbol !== ""
                name: page.gate.symbol
                size: 80
                colour: Theme.text
            }
            Loader {
                anchors.horizontalCenter: parent.horizontalCenter
                active: page.gate.picture !== ""
                sourceComponent: AssetPicture {
                    width: 60
                    height: 60
                    name: page.gate.picture
                }
            }
            Label {
                objectName: "gateTitle"
                x: 30
                width: parent.width - 60
                visible: page.gate.title !== ""
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: 38
                font.bold: true
                text: page.gate.title
                Accessible.role: Accessible.Heading
            }
            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Surroundings.screenWidth - 60
                height: page.gate.messageOnPanel ? Math.max(Surroundings.screenWidth / 2, words.implicitHeight + 32)
                                                 : Math.max(32, words.implicitHeight)

                Panel {
                    anchors.fill: parent
                    visible: page.gate.messageOnPanel
                    radius: 18
                    colour: Theme.card
                }
                Loader {
                    id: sign
                    anchors.verticalCenter: parent.verticalCenter
                    active: page.gate.picture !== ""
                    width: active ? 32 : 0
                    sourceComponent: ContinuousRectangle {
                        width: 32
                        height: 32
                        radius: 8
                        colour: Theme.card

                        AssetPicture {
                            anchors.fill: parent
                            name: page.gate.picture
                        }
                    }
                }
                Label {
                    id: words
                    objectName: "gateMessage"
                    anchors.left: sign.right
                    anchors.leftMargin: page.gate.messageOnPanel ? 16 : 12
                    anchors.right: parent.right
                    anchors.rightMargin: page.gate.messageOnPanel ? 16 : 0
                    anchors.verticalCenter: parent.verticalCenter
                    horizontalAlignment: page.gate.messageOnPanel ? Text.AlignHCenter : Text.AlignLeft
                    font.pixelSize: page.gate.messageSize
                    text: page.gate.message
                }
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: page.gate.offer !== ""
                spacing: 8

                SymbolItem {
                    anchors.verticalCenter: parent.verticalCenter
                    name: page.gate.offerSymbol
                    size: 18
                    colour: "white"
                }
                Label {
                    objectName: "gateOffer"
                    color: "white"
                    font.weight: Font.DemiBold
                    text: page.gate.offer
                }
            }
            Pressable {
                id: button
                objectName: "gateButton"
                anchors.horizontalCenter: parent.horizontalCenter
                width: Surroundings.screenWidth - 60
                height: 50
                focus: true
                focusRadius: 20
                role: Accessible.Link
                name: page.gate.button
                onPressed: page.gate.press()

                ContinuousRectangle {
                    anchors.fill: parent
                    radius: 15
                    colour: Theme.accent
                }
                Row {
                    anchors.centerIn: parent
                    spacing: 8

                    SymbolItem {
                        anchors.verticalCenter: parent.verticalCenter
                        visible: name !== ""
                        name: page.gate.buttonSymbol
                        size: 16
                        weight: 600
                        colour: "black"
                    }
                    Label {
                        font.pixelSize: 16
                        font.weight: Font.DemiBold
                        color: "black"
                        spoken: false
                        text: page.gate.button
                    }
                    SymbolItem {
                        anchors.verticalCenter: parent.verticalCenter
                        name: page.gate.arrow
                        size: 14
                        weight: 600
                        colour: "black"
                    }
                }
            }
        }
    }
    overlay: Loader {
        id: entry
        anchors.fill: parent
        active: page.gate.family !== null
        focus: active
        sourceComponent: FamilyPage {
            focus: true
            family: page.gate.family
            onClosed: page.closed()
        }
        onLoaded: if (page.activeFocus) entry.forceActiveFocus()
    }
}
