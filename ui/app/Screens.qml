// The screens that are open, on one another, and what lies above them.
import QtQuick
import Vitrelle

FocusScope {
    id: screens

    readonly property bool asked: Shell.root.showingAlert || Shell.locationQuestion.shown || review.shown // above all else

    signal quitAsked

    function back() {
        const page = stack.currentItem as Page;
        if (stack.depth > 1 && page && !Surroundings.isKeyHeld()) // one press, one step
            page.closed();
    }
    function open(name: string) {
        const takesPictures = name === "ModernNewLightDark" || name === "ModernChangeLightDark";
        if (!takesPictures || Shell.root.canBeChanged)
            Shell.navigator.open(name);
        else if (Shell.root.launchWaits)
            Notices.show(qsTrId("app.launchFirst"));
    }
    function leave(page: Item) {
        const intake = page as IntakePage;
        Shell.navigator.back();
        if (!intake)
            return;
        Shell.root.contentAppear();
        Shell.root.showStyle(intake.intake.styleNumber);
    }

    function openSettings() {
        if (!asked)
            Shell.navigator.reveal("PhoneSettingsView");
    }
    /// At a point of an item, which may lie outside of the screens.
    function openMenu(item: Item, position: point) {
        if (!asked)
            menu.open(item, position, Window.activeFocusItem ?? stack);
    }

    Keys.onMenuPressed: openMenu(screens, Qt.point(width / 2 - 125, Theme.topInset))
    Keys.onEscapePressed: back()
    Keys.onBackPressed: back()
    Component.onCompleted: {
        Shell.root.appear(Shell.launches);
        if (Shell.screen !== "")
            open(Shell.screen);
    }

    KeysKeeper {
        id: keys
        overlay: over
        covered: screens.asked || menu.shown
    }
    ScreenStack {
        id: stack
        objectName: "stack"
        enabled: keys.open
        anchors.fill: parent
        screens: Shell.navigator.places
        componentOf: place => Qt.resolvedUrl(place.page + ".qml")
        propertiesOf: place => place.properties()
        onPushed: page => {
            if (page.closed)
                page.closed.connect(() => screens.leave(page));
            if (page.opened)
                page.opened.connect(screens.open);
        }
    }
    Item {
        id: over
        anchors.fill: parent

        AlertBox {
            objectName: "alert"
            title: Shell.root.alertTitle
            message: Shell.root.alertMessage
            shown: Shell.root.showingAlert
            onDismissed: Shell.root.dismissAlert()
        }
        AlertBox {
            objectName: "locationQuestion"
            title: qsTrId("app.location.question")
            message: qsTrId("app.location.why")
            choices: [qsTrId("app.location.allow"), qsTrId("app.location.deny")]
            shown: Shell.locationQuestion.shown
            onChosen: index => index === 0 ? Shell.locationQuestion.allow() : Shell.locationQuestion.deny()
            onDismissed: Shell.locationQuestion.dismiss()
        }
        AlertBox {
            id: review
            objectName: "reviewQuestion"
            title: qsTrId("app.review.question")
            message: qsTrId("app.review.why")
            choices: [qsTrId("app.review.open"), qsTrId("app.review.later"), qsTrId("app.review.never")]
            shown: Shell.reviewQuestion.shown && !Shell.root.showingAlert && !Shell.locationQuestion.shown
            onChosen: index => {
                if (index === 0 && !Shell.openReview())
                    Notices.show(qsTrId("app.review.nowhere"));
                if (index !== 1)
                    Shell.reviewQuestion.close();
            }
            onDismissed: Shell.reviewQuestion.dismiss()
        }
        WindowMenu {
            id: menu
            onSettingsAsked: screens.openSettings()
            onQuitAsked: screens.quitAsked()
        }
    }
    NoticeBar {}
}
