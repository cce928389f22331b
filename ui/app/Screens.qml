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
    function makeStyle(): IntakePage {
        return stack.push(intakePage, { "intake": Shell.newStyle() }) as IntakePage;
    }
    function open(screen: string) {
        const entry = Shell.screenEntry(screen);
        switch (entry.page) {
        case "newStyle":
        case "changeStyle":
            if (Shell.root.canBeChanged)
                stack.push(intakePage, { "intake": entry.page === "newStyle" ? Shell.newStyle() : Shell.changeStyle(0) });
            else if (Shell.root.launchWaits)
                Shell.showNotice(qsTrId("app.launchFirst"));
            break;
        case "perspectiveZoom":
            stack.push(perspectiveZoom);
            break;
        case "fontPicker":
            stack.push(fontPicker);
            break;
        case "storedFont":
            stack.push(storedFont, { "fonts": Shell.storedFonts(screen) });
            break;
        case "symbolPicker":
            stack.push(symbolPicker);
            break;
        case "dateText":
            stack.push(dateText);
            break;
        case "solidBackground":
            stack.push(solidBackground);
            break;
        case "entry":
            stack.push(familyPage, { "family": Shell.family(entry.family) });
            break;
        case "root":
            break;
        default:
            stack.push(familyFlow, { "family": Shell.family(entry.family), "start": entry.page });
        }
    }

    Keys.onEscapePressed: back()
    Keys.onBackPressed: back()
    Component.onCompleted: {
        Shell.root.appear(Shell.launches);
        if (Shell.screen !== "")
            open(Shell.screen);
    }

    KeysKeeper {
        id: keys
        overlay: alert
        covered: Shell.root.showingAlert
    }
    StackView {
        id: stack
        objectName: "stack"
        enabled: keys.open
        anchors.fill: parent
        focus: true
        onCurrentItemChanged: if (currentItem) currentItem.forceActiveFocus()
        initialItem: RootPage {
            onOpened: screen => screens.open(screen)
            onCreated: screens.makeStyle()
            onDropped: files => {
                const page = screens.makeStyle();
                page.intake.takeFiles(files);
                page.focusNext();
            }
            onPasted: {
                const page = screens.makeStyle();
                page.intake.pasteAll();
                page.focusNext();
            }
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
            id: intake
            onClosed: {
                stack.pop();
                Shell.root.contentAppear();
                Shell.root.showStyle(intake.intake.styleNumber);
            }
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
        id: storedFont
        FontPickerPage {
            fontPicked: fonts.storedName
            onClosed: stack.pop()
        }
    }
    Component {
        id: symbolPicker
        SymbolPickerPage {
            id: symbols
            icon: "pencil"
            onPicked: name => symbols.icon = name
            onClosed: stack.pop()
        }
    }
    Component {
        id: dateText
        DateTextPage {
            onClosed: stack.pop()
        }
    }
    Component {
        id: solidBackground
        SolidBackgroundPage {
            onClosed: stack.pop()
        }
    }
    Component {
        id: perspectiveZoom
        PerspectiveZoomDescription {
            onClosed: stack.pop()
        }
    }
    AlertBox {
        id: alert
        objectName: "alert"
        title: Shell.root.alertTitle
        message: Shell.root.alertMessage
        shown: Shell.root.showingAlert
        onDismissed: Shell.root.dismissAlert()
    }
    NoticeBar {}
}
