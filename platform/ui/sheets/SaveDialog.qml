import QtQuick
import QtQuick.Dialogs
import Vasker.Platform

// Asks where a copy of a file is to be saved, where no portal does.
FileDialog {
    id: root

    // The file that is copied, and where its copy is offered to go.
    required property string path
    required property url place

    // Nothing is left to ask.
    signal finished

    function save(): void {
        FileShare.copyTo(root.path, root.selectedFile);
        root.finished();
    }

    title: qsTr("Save a copy")
    acceptLabel: qsTr("Save")
    fileMode: FileDialog.SaveFile
    selectedFile: root.place
    // Qt's own dialog does not ask: the question below serves all. The linter knows neither the
    // names of its options nor of its buttons.
    options: FileDialog.DontConfirmOverwrite // qmllint disable
    Component.onCompleted: root.open()
    onAccepted: FileShare.exists(root.selectedFile) ? question.open() : root.save()
    onRejected: root.finished()

    MessageDialog {
        id: question

        parentWindow: root.parentWindow
        title: root.title
        text: qsTr("There is a file of this name already. Replace it?")
        buttons: MessageDialog.Yes | MessageDialog.No // qmllint disable
        onButtonClicked: button => button === MessageDialog.Yes ? root.save() : root.finished() // qmllint disable
        onRejected: root.finished()
    }
}
