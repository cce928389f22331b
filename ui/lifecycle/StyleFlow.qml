// What a sheet of a family holds: the pages that follow one another on it.
import QtQuick
import Vitrelle

FocusScope {
    id: sheetFlow

    required property FlowScreen flow

    ScreenStack {
        objectName: "flowStack"
        anchors.fill: parent
        screens: sheetFlow.flow.pages
        componentOf: screen => ({
            "kinds": kindsPage,
            "editor": editorPage,
            "gallery": galleryPage,
            "assign": assignPage,
            "preview": previewPage
        })[screen.page]
    }
    Component {
        id: kindsPage
        KindsPage {
            onPicked: index => sheetFlow.flow.pickKind(index)
            onClosed: sheetFlow.flow.close()
        }
    }
    Component {
        id: editorPage
        EditorPage {
            id: editor

            // As it was when the page came: on its way out it is no more of the flow's.
            property bool fromKinds: false

            Component.onCompleted: {
                fromKinds = !screen.isSecond && sheetFlow.flow.pages[0].page === "kinds";
                hasBack = fromKinds || (screen.isSecond && sheetFlow.flow.canGoBack);
                hasClose = fromKinds || !hasBack;
            }
            onClosed: fromKinds ? sheetFlow.flow.close() : sheetFlow.flow.back()
            onBackAsked: sheetFlow.flow.back()
            onSaved: {
                if (!screen.isSecond)
                    sheetFlow.flow.saveSetup();
                else if (sheetFlow.flow.saveSecond())
                    Notices.show(qsTrId("app.saved"), Notices.Done);
            }
        }
    }
    Component {
        id: galleryPage
        GalleryPage {
            assignScreen: sheetFlow.flow.assignSheet
            onEditAsked: index => sheetFlow.flow.edit(index)
            onAssignAsked: index => sheetFlow.flow.assign(index)
            onAssignLeft: sheetFlow.flow.dismissAssign()
            onLinkSaved: sheetFlow.saveLink()
            onClosed: sheetFlow.flow.close()
        }
    }
    Component {
        id: assignPage
        AssignPage {
            onSaved: sheetFlow.saveLink()
            onClosed: sheetFlow.flow.close()
        }
    }
    Component {
        id: previewPage
        PreviewPage {
            onClosed: sheetFlow.flow.close()
        }
    }
    function saveLink() {
        if (sheetFlow.flow.saveLink())
            Notices.show(qsTrId("app.saved"), Notices.Done);
    }
}
