// Takes a light and a dark screenshot in, for a new style or for one that is there.
import QtQuick
import Vitrelle

Page {
    id: page
    objectName: "intakePage"

    required property IntakeScreen intake

    title: intake.title
    backTitle: intake.back
    covered: sheet.shown || picker.shown || intake.asking
    onClosed: intake.disappear()
    Component.onCompleted: {
        intake.appear();
        focusNext();
    }
    Keys.onPressed: event => {
        if (covered || !event.matches(StandardKey.Paste))
            return;
        event.accepted = true;
        intake.paste(nextIsDark);
    }

    /// What the sheet can show, by type names.
    readonly property var sheets: ({
            "PerspectiveZoomDescription": perspectiveZoom,
            "WidgetSettingsView": widgetSettings
        })
    readonly property bool nextIsDark: intake.lightSet && !intake.darkSet // what will be used next

    function focusNext() {
        if (intake.asking) // it is done after the answer
            return;
        halves.itemAt(nextIsDark ? 1 : 0).focus = true;
    }

    Label {
        id: styleName
        objectName: "styleName"
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        color: Theme.quietText
        font.pixelSize: 15
        text: qsTrId("app.style").arg(page.intake.styleNumber + 1)
        Accessible.role: Accessible.Heading
    }
    Label {
        id: ways
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.bottomInset + 14
        x: 20
        width: parent.width - 40
        horizontalAlignment: Text.AlignHCenter
        color: Theme.quietText
        font.pixelSize: 13
        text: qsTrId("app.intake.ways")
    }
    Row {
        id: cells
        anchors.top: styleName.bottom
        anchors.bottom: ways.top
        anchors.bottomMargin: 8
        width: parent.width

        Repeater {
            id: halves
            model: [false, true]

            WallpaperCell {
                id: cell
                required property bool modelData

                objectName: dark ? "darkCell" : "lightCell"
                width: cells.width / 2
                height: cells.height
                intake: page.intake
                dark: modelData
                tappable: false
                held: gesture.pressed && gesture.dark === dark
                onPressed: page.intake.choose(dark)
                onMenuAsked: position => menu.open(cell, position)
                Keys.onPressed: event => {
                    if (event.matches(StandardKey.Paste)) {
                        page.intake.paste(cell.dark);
                        event.accepted = true;
                    }
                }
            }
        }
    }
    MouseArea { // one gesture over both halves: where it ends decides, wherever it began
        id: gesture

        readonly property bool dark: mapToItem(page, mouseX, 0).x >= page.width / 2

        anchors.fill: cells
        onReleased: event => page.intake.tap(mapToItem(page, event.x, 0).x)
    }
    CellMenu {
        id: menu
        onChosen: dark => page.intake.choose(dark)
        onPasted: dark => page.intake.paste(dark)
        onHelpAsked: page.intake.showPerspectiveZoom()
    }
    overlay: [
        PicturePicker {
            id: picker
            onAccepted: file => page.intake.pick(file)
            onRejected: page.intake.cancel()
        },
        Sheet {
            id: sheet
            objectName: "intakeSheet"

            readonly property Component asked: page.sheets[page.intake.sheet] ?? null

            shown: asked !== null
            onAskedChanged: if (asked) loader.sourceComponent = asked // it stays while it goes away
            onDismissed: page.intake.dismissSheet()

            Loader {
                id: loader
                anchors.fill: parent
                focus: true
                active: sheet.present
            }
            Component {
                id: perspectiveZoom
                PerspectiveZoomDescription {
                    focus: true
                    backTitle: qsTrId("app.close")
                    onClosed: sheet.dismissed()
                }
            }
            Component {
                id: widgetSettings
                WidgetSettingsPage {
                    focus: true
                    screen: Shell.widgetSettings()
                    onClosed: sheet.dismissed()
                }
            }
        },
        Sheet {
            id: question
            objectName: "questionSheet"
            shown: page.intake.asking
            onDismissed: page.intake.cancelQuestion()
            onShownChanged: if (!shown) answered.start()

            Loader {
                anchors.fill: parent
                focus: true
                active: question.present
                sourceComponent: ScreenshotOriginPage {
                    focus: true
                    intake: page.intake
                    onClosed: question.dismissed()
                }
            }
        }
    ]
    Timer {
        id: settled
        interval: 0
        onTriggered: page.followPicker()
    }
    Timer { // the question may have come before the page had the keys
        id: answered
        interval: 0
        onTriggered: {
            page.forceActiveFocus();
            page.focusNext();
        }
    }
    // What is dropped or pasted opens the picker in passing: only how it ends is followed.
    function followPicker() {
        if (intake.pickerOpen && !picker.shown)
            picker.open();
        else if (!intake.pickerOpen && picker.shown) {
            picker.close();
            if (intake.asking) // and not what the picker gave the keys back to
                question.forceActiveFocus();
        }
    }
    Connections {
        target: page.intake
        function onChanged() {
            settled.restart();
        }
    }
}
