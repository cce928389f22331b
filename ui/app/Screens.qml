// The navigation stack over the root screen, and what lies above it.
import QtQuick
import QtQuick.Controls
import Vitrelle

FocusScope {
    id: screens

    function back() {
        if (stack.depth < 2)
            return;
        const page = stack.currentItem as Page;
        if (page)
            page.closed();
    }
    // Titles of the pages that have nothing to show yet, by the type name of their screen.
    readonly property var titles: ({
            "ModernKnowledgeCentre": qsTrId("app.help"),
            "ModernWidgetCentre": qsTrId("app.widgetCentre"),
            "ModernInfoCentre": qsTrId("app.info"),
            "OnboardingView": qsTrId("app.welcome"),
            "UpgradeView": qsTrId("app.upgrade"),
            "WidgetSettingsView": qsTrId("app.settings"),
            "UpdateWidgetDescription": qsTrId("app.widgetRefreshing"),
            "WidgetShowingNothingDescription": qsTrId("app.widgetNoData"),
            "WidgetNameDescription": qsTrId("app.widgetLabel"),
            "InvalidDeepLink": qsTrId("app.invalidLink")
        })
    function openFamily(name: string) {
        stack.push(familyPage, { "family": Shell.family(name) });
    }
    function open(screen: string) {
        if (screen === "ModernWidgetCentre")
            return openFamily("text"); // until the centre has something to show
        stack.push(plainPage, { "title": titles[screen] });
    }
    function openNamed(screen: string) {
        if (screen === "" || screen === "ModernContentView")
            return;
        if (screen === "ModernNewLightDark")
            stack.push(intakePage, { "intake": Shell.newStyle() });
        else if (screen === "ModernChangeLightDark")
            stack.push(intakePage, { "intake": Shell.changeStyle(0) });
        else if (screen === "PerspectiveZoomDescription")
            stack.push(perspectiveZoom);
        else if (screen === "ModernFontPicker")
            stack.push(fontPicker);
        else if (Shell.familyPart(screen).screen === "entry")
            openFamily(Shell.familyPart(screen).family);
        else if (Shell.familyPart(screen).screen !== "")
            stack.push(familyFlow, { "family": Shell.family(Shell.familyPart(screen).family), "start": Shell.familyPart(screen).screen });
        else
            open(screen);
    }

    Keys.onEscapePressed: back()
    Keys.onBackPressed: back()
    Component.onCompleted: openNamed(Shell.screen)

    StackView {
        id: stack
        objectName: "stack"
        anchors.fill: parent
        focus: true
        onCurrentItemChanged: if (currentItem) currentItem.forceActiveFocus()
        initialItem: RootPage {
            onOpened: screen => screens.open(screen)
            onCreated: stack.push(intakePage, { "intake": Shell.newStyle() })
            onEdited: styleNumber => stack.push(intakePage, { "intake": Shell.changeStyle(styleNumber) })
        }
        pushEnter: Transition { NumberAnimation { property: "x"; from: stack.width; to: 0; duration: Theme.longTime; easing.type: Easing.OutCubic } }
        pushExit: Transition { NumberAnimation { property: "x"; from: 0; to: -stack.width / 3; duration: Theme.longTime; easing.type: Easing.OutCubic } }
        popEnter: Transition { NumberAnimation { property: "x"; from: -stack.width / 3; to: 0; duration: Theme.longTime; easing.type: Easing.OutCubic } }
        popExit: Transition { NumberAnimation { property: "x"; from: 0; to: stack.width; duration: Theme.longTime; easing.type: Easing.OutCubic } }
    }
    Component {
        id: intakePage
        IntakePage {
            onClosed: {
                stack.pop();
                Shell.root.contentAppear();
            }
        }
    }
    Component {
        id: plainPage
        PlainPage {
            onClosed: stack.pop()
        }
    }
    Component {
        id: familyPage
        FamilyPage {
            onClosed: stack.pop()
        }
    }
    Component {
        id: familyFlow
        StyleFlow {
            onClosed: stack.pop()
        }
    }
    Component {
        id: fontPicker
        FontPickerPage {
            fontPicked: ""
            onClosed: stack.pop()
        }
    }
    Component {
        id: perspectiveZoom
        PerspectiveZoomDescription {
            onClosed: stack.pop()
        }
    }
    Sheet {
        objectName: "onboardingSheet"
        shown: Shell.root.showOnboarding && Shell.screen === ""
        onDismissed: Shell.root.dismissOnboarding()

        PlainPage {
            anchors.fill: parent
            title: qsTrId("app.welcome")
            backTitle: qsTrId("app.close")
            onClosed: Shell.root.dismissOnboarding()
        }
    }
    Sheet {
        objectName: "upgradeSheet"
        shown: Shell.root.showUpdateFromOne && Shell.screen === ""
        onDismissed: Shell.root.dismissUpdateFromOne()

        PlainPage {
            anchors.fill: parent
            title: qsTrId("app.upgrade")
            backTitle: qsTrId("app.close")
            onClosed: Shell.root.dismissUpdateFromOne()
        }
    }
    AlertBox {
        objectName: "alert"
        title: Shell.root.alertTitle
        message: Shell.root.alertMessage
        shown: Shell.root.showingAlert
        onDismissed: Shell.root.dismissAlert()
    }
    NoticeBar {}
}
