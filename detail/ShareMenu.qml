pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Platform

// What can be done with the file of the release, below the row that offers it, or above it where
// there is no room below.
PopupSurface {
    id: root

    required property Item row
    required property string file
    readonly property list<string> choices: [qsTr("Save a copy…"), qsTr("Show in file manager"), qsTr("Copy file"), qsTr("Open with…")]

    function offer(): void {
        const below = root.row.mapToItem(root.parent, 0, root.row.height).y;
        const needed = root.contentHeight + 12;
        origin.y = below + 4 + needed + 8 > root.height ? -needed - 8 : root.row.height;
        root.open();
        list.currentIndex = 0;
        list.forceActiveFocus(Qt.PopupFocusReason);
    }
    function pick(choice: int): void {
        root.close();
        switch (choice) {
        case 0:
            return FileShare.saveCopy(root.file, root.row.Window.window);
        case 1:
            return FileShare.showInFolder(root.file);
        case 2:
            return FileShare.copyFile(root.file);
        case 3:
            return FileShare.openWith(root.file, root.row.Window.window);
        }
    }

    anchor: origin
    contentHeight: list.contentHeight
    surfaceWidth: Math.min(row.width - 16, 248 * Theme.iconScale)

    Item {
        id: origin

        parent: root.row
        x: 8
    }
    ListView {
        id: list

        anchors.fill: parent
        model: root.choices
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        keyNavigationEnabled: true
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Share the open-data file")
        Accessible.ignored: !visible

        Keys.onReturnPressed: root.pick(list.currentIndex)
        Keys.onEnterPressed: root.pick(list.currentIndex)
        Keys.onSpacePressed: root.pick(list.currentIndex)

        delegate: MenuRow {
            required property int index
            required property string modelData

            width: list.width
            text: modelData
            current: index === list.currentIndex
            onPointed: list.currentIndex = index
            onPicked: root.pick(index)
        }
    }
}
