// What a sheet of a family holds: the pages that follow one another on it.
import QtQuick
import QtQuick.Controls
import Vitrelle

FocusScope {
    id: flow

    required property FamilyScreen family
    required property string start // "setup", "second", "gallery", "assign" or "preview"

    signal closed

    StackView {
        id: stack
        objectName: "flowStack"
        anchors.fill: parent
        focus: true
        onCurrentItemChanged: if (currentItem) currentItem.forceActiveFocus()
        Component.onCompleted: {
            if (flow.start === "setup")
                push(setupPage, { "editor": flow.family.create() }, StackView.Immediate);
            else if (flow.start === "second")
                push(colourPage, { "editor": flow.family.secondStep() }, StackView.Immediate);
            else if (flow.start === "assign")
                push(assignPage, { "assign": flow.family.assign() }, StackView.Immediate);
            else if (flow.start === "gallery")
                push(galleryPage, { "gallery": flow.family.gallery() }, StackView.Immediate);
            else
                push(previewPage, { "preview": flow.family.preview() }, StackView.Immediate);
        }
        pushEnter: Transition { NumberAnimation { property: "x"; from: stack.width; to: 0; duration: Theme.longTime; easing.type: Easing.OutCubic } }
        pushExit: Transition { NumberAnimation { property: "x"; from: 0; to: -stack.width / 3; duration: Theme.longTime; easing.type: Easing.OutCubic } }
        popEnter: Transition { NumberAnimation { property: "x"; from: -stack.width / 3; to: 0; duration: Theme.longTime; easing.type: Easing.OutCubic } }
        popExit: Transition { NumberAnimation { property: "x"; from: 0; to: stack.width; duration: Theme.longTime; easing.type: Easing.OutCubic } }
    }
    Component {
        id: galleryPage
        GalleryPage {
            id: galleryItem
            onClosed: flow.closed()
            onEditAsked: stack.push(setupPage, { "editor": galleryItem.gallery.editor(), "gallery": galleryItem.gallery })
        }
    }
    Component {
        id: setupPage
        SetupPage {
            id: setupItem
            property GalleryScreen gallery: null // the way back

            onSaved: stack.push(colourPage, { "editor": setupItem.editor.next(), "gallery": setupItem.gallery })
            onClosed: {
                if (!setupItem.gallery) {
                    flow.closed();
                    return;
                }
                stack.pop();
                setupItem.gallery.dismissEdit();
            }
        }
    }
    Component {
        id: colourPage
        ColourPage {
            id: colourItem
            property GalleryScreen gallery: null

            // A new style is made already; back in the form, its button would make another.
            hasBack: gallery !== null
            hasClose: gallery === null
            onClosed: flow.closed()
            onBackAsked: stack.pop()
            onSaved: {
                if (!colourItem.gallery) {
                    flow.closed();
                    return;
                }
                const gallery = colourItem.gallery;
                stack.pop(null);
                gallery.dismissEdit();
            }
        }
    }
    Component {
        id: assignPage
        AssignPage {
            onClosed: flow.closed()
        }
    }
    Component {
        id: previewPage
        PreviewPage {
            onClosed: flow.closed()
        }
    }
}
