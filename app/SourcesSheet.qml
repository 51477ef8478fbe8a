pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Detail
import Vasker.Platform

// What the release covers, and whose data it holds.
Sheet {
    id: root

    required property OpenMapWorkspace workspace

    title: qsTr("Sources & coverage")
    wanted: root.workspace.showingSources && root.workspace.sheet === OpenMapWorkspace.Sources
    preferredWidth: 640
    preferredHeight: Math.min(height - 80, 960)
    minimumWidth: 600
    minimumHeight: 600
    onDismissed: root.workspace.showingSources = false
    onClosed: root.workspace.dismissSources()

    content: OpenMapSources {
        record: root.workspace.whole
        packagedFile: root.workspace.packagedFile
        onScrolledChanged: root.scrolled = scrolled
        Component.onCompleted: takeFocus()
    }
}
