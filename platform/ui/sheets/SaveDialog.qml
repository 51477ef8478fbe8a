import QtQuick
import QtQuick.Dialogs
import Vasker.Platform

// Asks where a file is to be saved, where no portal does.
FileDialog {
    id: root

    required property SaveQuestion asked

    title: root.asked.title
    acceptLabel: qsTr("Save")
    parentWindow: root.asked.window
    fileMode: FileDialog.SaveFile
    selectedFile: root.asked.offered
    // Qt's own dialog does not ask: the question below serves all. The linter knows neither the
    // names of its options nor of its buttons.
    options: FileDialog.DontConfirmOverwrite // qmllint disable
    Component.onCompleted: {
        root.open();
        root.asked.completeDialog(Theme.type.body.font);
    }
    onAccepted: root.asked.isTaken(root.selectedFile) ? question.open() : root.asked.choose(root.selectedFile)
    onRejected: root.asked.cancel()

    MessageDialog {
        id: question

        parentWindow: root.parentWindow
        title: root.title
        text: qsTr("There is a file of this name already. Replace it?")
        buttons: MessageDialog.Yes | MessageDialog.No // qmllint disable
        onButtonClicked: button => button === MessageDialog.Yes ? root.asked.choose(root.selectedFile) : root.asked.cancel() // qmllint disable
        onRejected: root.asked.cancel()
    }
}
