pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Detail
import Vasker.Platform

// The inspector: beside the map where there is room for both, else over the middle of the window.
Sheet {
    id: root

    required property OpenMapWorkspace workspace
    // How much of the window it takes from the map at the trailing edge, in logical pixels.
    readonly property real covered: wanted && placement === Sheet.Trailing ? preferredWidth + 16 : 0

    signal menuWanted(Item over, point place)

    identifier: "open-map-inspector"
    title: qsTr("Record")
    placement: width >= Theme.besideWidth ? Sheet.Trailing : Sheet.Centered
    wanted: root.workspace.inspector.length > 0 && root.workspace.sheet === OpenMapWorkspace.Inspector
    preferredWidth: 560
    preferredHeight: Math.min(height - 32, 900)
    minimumWidth: 550
    minimumHeight: 560
    onDismissed: root.workspace.closeInspector()
    onClosed: root.workspace.dismissInspector()

    content: OpenMapInspector {
        id: view

        record: root.workspace.inspected
        onScrolledChanged: root.scrolled = scrolled
        onMenuRequested: place => root.menuWanted(view, place)
        Component.onCompleted: takeFocus()
    }
}
