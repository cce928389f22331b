// A folder to save into, and a name. What has that name already is replaced only when the user says so.
import QtQuick
import QtQuick.Controls
import Vitrelle

FocusScope {
    id: page
    objectName: "savePage"

    required property string fileName
    property bool asking: false // whether what is there already may be replaced
    readonly property bool isName: fileName !== "" && fileName !== "." && fileName !== ".." && !fileName.includes("/")

    signal chosen(url file)
    signal closed

    function goBack() {
        closed();
    }
    function save() {
        if (!isName)
            return;
        const file = Sharing.urlIn(folder.path, fileName);
        if (Sharing.isFolder(file))
            folder.path += "/" + fileName;
        else if (Sharing.exists(file))
            asking = true;
        else
            chosen(file);
    }

    Keys.onEscapePressed: if (!Surroundings.isKeyHeld()) goBack()
    Keys.onBackPressed: if (!Surroundings.isKeyHeld()) goBack()
    Component.onCompleted: {
        folder.path = Sharing.folder();
        name.takeKeys();
    }

    PictureFolder {
        id: folder
    }
    KeysKeeper {
        id: keys
        overlay: question
        covered: question.shown
    }
    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.screenTop }
            GradientStop { position: 1; color: Theme.screenBottom }
        }
    }
    Item {
        anchors.fill: parent
        enabled: keys.open

        Item {
            id: header
            y: Theme.topInset
            width: parent.width
            height: 50

            Label {
                x: 30
                width: close.x - 30
                anchors.verticalCenter: parent.verticalCenter
                font.pixelSize: 20
                font.bold: true
                wrapMode: Text.NoWrap
                elide: Text.ElideRight
                text: qsTrId("app.share.saveAs")
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }
            RoundButton {
                id: close
                objectName: "saveClose"
                anchors.right: parent.right
                anchors.rightMargin: 22
                anchors.verticalCenter: parent.verticalCenter
                width: 44
                height: 44
                focusRadius: 27
                size: 28
                symbol: SharedWords.closeSymbol
                colour: Theme.text
                name: qsTrId("app.close")
                onPressed: page.closed()
            }
        }
        Column { // above, where no notice covers it
            id: place
            anchors.top: header.bottom
            anchors.topMargin: 4
            anchors.horizontalCenter: parent.horizontalCenter
            width: parent.width - 60
            spacing: 8

            TextRow {
                id: name
                objectName: "saveName"
                width: parent.width
                placeholder: qsTrId("app.share.name")
                value: page.fileName
                onEdited: now => page.fileName = now
                Keys.onReturnPressed: if (!Surroundings.isKeyHeld()) page.save()
                Keys.onEnterPressed: if (!Surroundings.isKeyHeld()) page.save()
            }
            ActionButton {
                objectName: "saveButton"
                width: parent.width
                height: name.height
                enabled: page.isName
                name: qsTrId("app.share.save")
                onPressed: page.save()
            }
        }
        FolderTrail {
            id: trail
            anchors.top: place.bottom
            anchors.topMargin: 6
            x: 22
            width: parent.width - 44
            folder: folder
            onChosen: path => folder.path = path
        }
        Label {
            objectName: "saveMessage"
            anchors.centerIn: list
            width: list.width - 80
            horizontalAlignment: Text.AlignHCenter
            color: Theme.quietText
            visible: list.count === 0 && text !== ""
            text: folder.message
        }
        ListView {
            id: list
            objectName: "saveFolders"
            anchors.top: trail.bottom
            anchors.topMargin: 6
            anchors.bottom: parent.bottom
            bottomMargin: Theme.bottomInset + 10
            x: 18
            width: parent.width - 36
            clip: true
            activeFocusOnTab: true
            keyNavigationEnabled: true
            boundsBehavior: Flickable.StopAtBounds
            highlightMoveDuration: 0
            model: folder.rows
            Accessible.role: Accessible.List
            Accessible.name: qsTrId("app.picker.folder").arg(folder.path)
            Keys.onPressed: event => {
                if (event.key !== Qt.Key_Backspace || folder.above === "")
                    return;
                folder.path = folder.above;
                event.accepted = true;
            }

            ScrollBar.vertical: ScrollBar {
                minimumSize: 0.05
                contentItem: Rectangle {
                    implicitWidth: 6
                    radius: 3
                    color: Theme.text
                    visible: list.contentHeight > list.height
                    opacity: 0.7
                }
            }

            delegate: Pressable {
                id: row

                required property int index
                required property string path
                required property bool isFolder
                readonly property string fileName: path.split("/").pop()

                objectName: "saveRow" + index
                width: ListView.view.width - 10
                height: 44
                activeFocusOnTab: false // the list has the keys, and the current row of it
                ringed: false
                role: Accessible.ListItem
                name: isFolder ? qsTrId("app.picker.folder").arg(fileName) : fileName
                onPressed: {
                    list.currentIndex = index;
                    if (isFolder)
                        folder.path = path;
                    else
                        page.fileName = fileName;
                }

                FocusRing {
                    anchors.margins: 1
                    shown: row.activeFocus
                    radius: 10
                }
                SymbolItem {
                    anchors.verticalCenter: parent.verticalCenter
                    x: 24 - size / 2
                    name: row.isFolder ? "folder.fill" : "photo"
                    size: 20
                    colour: row.isFolder ? Theme.accent : Theme.quietSymbol
                }
                Label {
                    x: 48
                    width: parent.width - 58
                    anchors.verticalCenter: parent.verticalCenter
                    font.pixelSize: 16
                    color: row.isFolder ? Theme.text : Theme.quietText
                    wrapMode: Text.NoWrap
                    elide: Text.ElideMiddle
                    spoken: false
                    text: row.fileName
                }
            }
        }
    }
    AlertBox {
        id: question
        objectName: "replaceQuestion"
        title: qsTrId("app.share.replaceTitle").arg(page.fileName)
        message: qsTrId("app.share.replaceMessage")
        choices: [qsTrId("app.share.cancel"), qsTrId("app.share.replace")]
        shown: page.asking
        onChosen: index => {
            if (index === 1)
                page.chosen(Sharing.urlIn(folder.path, page.fileName));
        }
        onDismissed: page.asking = false
    }
}
