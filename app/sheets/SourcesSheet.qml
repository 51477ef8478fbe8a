pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Detail

// What the release covers, and whose data it holds.
WindowSheet {
    id: root

    required property OpenMapWorkspace workspace

    kind: SheetStack.Sources
    title: qsTr("Sources & coverage")
    preferredWidth: 640
    preferredHeight: Math.min(height - 80, 960)
    minimumWidth: 600
    minimumHeight: 600

    content: OpenMapSources {
        record: root.workspace.whole
        packagedFile: root.workspace.packagedFile
        onScrolledChanged: root.scrolled = scrolled
        Component.onCompleted: takeFocus()
    }
}
