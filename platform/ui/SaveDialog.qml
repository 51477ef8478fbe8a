import QtQuick
import QtQuick.Dialogs
import Vasker.Platform

// Asks where a copy of a file is to be saved, where no portal does.
FileDialog {
    id: root

    // The file that is copied, and the name that its copy is offered under.
    required property string path
    required property string fileName

    title: qsTr("Save a copy")
    fileMode: FileDialog.SaveFile
    Component.onCompleted: {
        root.selectedFile = root.currentFolder + "/" + root.fileName;
        root.open();
    }
    onAccepted: FileShare.copyTo(root.path, root.selectedFile)
}
