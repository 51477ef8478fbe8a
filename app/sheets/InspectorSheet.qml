pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Detail
import Vasker.Platform

// The inspector: beside the map where there is room for both, else over the catalogue.
WindowSheet {
    id: root

    required property OpenMapWorkspace workspace
    // How much of the window it takes from either edge on, in logical pixels.
    readonly property real coveredAtEnd: requested && placement === Sheet.Trailing ? preferredWidth + 16 : 0
    readonly property real coveredAtStart: requested && placement === Sheet.Leading ? preferredWidth + 16 : 0

    signal menuRequested(Item over, point place)

    kind: SheetStack.Inspector
    identifier: "open-map-inspector"
    title: qsTr("Record")
    placement: width >= Theme.besideWidth ? Sheet.Trailing : Sheet.Leading
    preferredWidth: 560
    preferredHeight: Math.min(height - 32, 900)
    minimumWidth: 550
    minimumHeight: 560

    content: OpenMapInspector {
        id: view

        record: root.workspace.inspected
        onScrolledChanged: root.scrolled = scrolled
        onMenuRequested: place => root.menuRequested(view, place)
        Component.onCompleted: takeFocus()
    }
}
