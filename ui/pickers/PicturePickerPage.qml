// The pictures of a folder as a grid, the folders in it to go into, and the way up as a path.
import QtQuick
import QtQuick.Controls
import Vitrelle

FocusScope {
    id: page
    objectName: "picturePicker"

    property string typed // the beginning of a name, while it is being typed
    property string cameFrom // name of the folder that was left for the one above it
    readonly property var keyActions: ({
            [Qt.Key_Return]: () => page.choose(grid.currentItem),
            [Qt.Key_Enter]: () => page.choose(grid.currentItem),
            [Qt.Key_Space]: () => page.choose(grid.currentItem),
            [Qt.Key_Home]: () => grid.currentIndex = 0,
            [Qt.Key_End]: () => grid.currentIndex = grid.count - 1,
            [Qt.Key_PageUp]: () => grid.currentIndex = Math.max(0, grid.currentIndex - grid.aPage),
            [Qt.Key_PageDown]: () => grid.currentIndex = Math.min(grid.count - 1, grid.currentIndex + grid.aPage)
        })

    signal picked(url file)
    signal closed

    function goBack() {
        closed();
    }
    function show(path: string) {
        cameFrom = folder.nameIn(path);
        typed = "";
        folder.path = path;
        grid.forceActiveFocus();
    }
    function goUp() {
        if (folder.above !== "")
            show(folder.above);
    }
    function choose(cell: PictureCell) {
        if (!cell)
            return;
        if (cell.isFolder)
            show(cell.path);
        else
            picked(folder.urlOf(cell.path));
    }
    function type(letters: string) {
        typed += letters;
        forgetTyped.restart();
        const found = folder.find(typed, Math.max(0, grid.currentIndex));
        if (found >= 0)
            grid.currentIndex = found;
    }
    function takeKey(event: var) {
        const alone = (event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier)) === 0;
        const chooses = [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space].includes(event.key);
        if (chooses && Surroundings.isKeyHeld()) {
            // Held since before this page was there.
        } else if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Up && event.modifiers & Qt.AltModifier)
            goUp();
        else if (alone && keyActions[event.key] && !(event.key === Qt.Key_Space && typed !== ""))
            keyActions[event.key]();
        else if (alone && /^[^\x00-\x1f\x7f]+$/.test(event.text))
            type(event.text);
        else
            return;
        event.accepted = true;
    }

    Keys.onPressed: event => takeKey(event)
    // The way back of some desktops, which would leave the page.
    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Backspace
    Keys.onEscapePressed: closed()
    Keys.onBackPressed: closed()
    Component.onCompleted: show(Shell.pictureFolder())

    PictureFolder {
        id: folder
        onLoaded: {
            if (grid.count === 0)
                return;
            const before = page.cameFrom === "" ? 0 : find(page.cameFrom, 0);
            grid.currentIndex = Math.max(0, before);
            grid.positionViewAtBeginning();
            grid.positionViewAtIndex(grid.currentIndex, GridView.Contain);
        }
    }
    Timer {
        id: forgetTyped
        interval: 1000
        onTriggered: page.typed = ""
    }
    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.screenTop }
            GradientStop { position: 1; color: Theme.screenBottom }
        }
    }
    Item {
        id: header
        y: Theme.topInset
        width: parent.width
        height: 50

        Label {
            anchors.right: close.left
            anchors.left: parent.left
            anchors.leftMargin: 20
            anchors.verticalCenter: parent.verticalCenter
            font.pixelSize: 20
            font.bold: true
            wrapMode: Text.NoWrap
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 13
            elide: Text.ElideRight
            text: qsTrId("app.picker.title")
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        RoundButton {
            id: close
            objectName: "pickerClose"
            anchors.right: parent.right
            anchors.rightMargin: 16
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
    FolderTrail {
        id: trail
        anchors.top: header.bottom
        x: 12
        width: parent.width - 24
        folder: folder
        onChosen: path => page.show(path)
    }
    Label {
        objectName: "pickerMessage"
        anchors.centerIn: grid
        width: grid.width - 80
        horizontalAlignment: Text.AlignHCenter
        visible: text !== ""
        text: folder.message
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    GridView {
        id: grid
        objectName: "pictureGrid"

        readonly property int columns: Math.max(2, Math.floor(width / 110))
        readonly property int aPage: columns * Math.max(1, Math.floor(height / cellHeight))

        anchors.top: trail.bottom
        anchors.topMargin: 6
        anchors.bottom: parent.bottom
        x: 14
        width: parent.width - 20
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        topMargin: 6
        bottomMargin: Theme.bottomInset + 6
        cellWidth: (width - 8) / columns // beside the scroll bar
        cellHeight: (cellWidth - 12) * 1.6 + 36
        highlightMoveDuration: 0
        model: folder.rows
        Accessible.role: Accessible.List
        Accessible.name: qsTrId("app.picker.folder").arg(folder.path)

        ScrollBar.vertical: ScrollBar {
            minimumSize: 0.05
            contentItem: Rectangle {
                implicitWidth: 6
                radius: 3
                color: Theme.text
                visible: grid.contentHeight > grid.height
                opacity: 0.7
            }
        }

        delegate: PictureCell {
            width: grid.cellWidth
            height: grid.cellHeight
            Keys.forwardTo: [page] // before the arrows move
            onPressed: {
                grid.currentIndex = index;
                page.choose(this);
            }
        }
    }
}
