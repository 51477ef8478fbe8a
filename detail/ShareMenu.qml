import QtQuick
import Vasker.Platform

// What can be done with the file of the release.
Menu {
    id: root

    required property string file

    title: qsTr("Share the open-data file")
    inset: 8
    width: Math.min(anchor.width - 16, 248 * Theme.iconScale)

    MenuRow {
        label: qsTr("Save a copy…")
        indented: true
        onPicked: FileShare.saveCopy(root.file, root.anchor.Window.window)
    }
    MenuRow {
        label: qsTr("Show in file manager")
        indented: true
        onPicked: FileShare.showInFolder(root.file)
    }
    MenuRow {
        label: qsTr("Copy file")
        indented: true
        onPicked: FileShare.copyFile(root.file)
    }
    MenuRow {
        label: qsTr("Open with…")
        indented: true
        onPicked: FileShare.openWith(root.file, root.anchor.Window.window)
    }
}
