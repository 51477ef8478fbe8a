pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Map
import Vasker.Platform

// The catalogue once more, in a sheet with a search field of its own.
Sheet {
    id: root

    required property OpenMapWorkspace workspace

    signal menuRequested(string id, Item over, point place)

    title: qsTr("Records")
    placement: Sheet.BottomEdge
    wanted: root.workspace.showingRecords && root.workspace.sheet === OpenMapWorkspace.Records
    preferredWidth: Math.min(640, width - 48)
    preferredHeight: Math.round(height / 2)
    minimumHeight: 250 * Theme.textScale
    onDismissed: root.workspace.showingRecords = false
    onClosed: root.workspace.dismissRecords()

    content: Item {
        Component.onCompleted: search.focusText()

        SearchField {
            id: search

            x: 12
            // Its ring is over the catalogue's head.
            z: 1
            width: parent.width - 24
            prompt: qsTr("Name or reporting company")
            text: root.workspace.query
            onEdited: text => root.workspace.query = text
            onLeaveDown: catalogue.enterList()
        }
        Catalogue {
            id: catalogue

            anchors.top: search.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            headColor: Theme.colors.sheet
            countOpens: false
            records: root.workspace.records
            query: root.workspace.query
            kind: root.workspace.kind
            kinds: root.workspace.kinds
            counts: root.workspace.counts
            selection: root.workspace.selection
            onKindPicked: kind => root.workspace.kind = kind
            onRecordPicked: id => root.workspace.selection = id
            onSelectionCleared: root.dismissed()
            onMenuRequested: (id, over, place) => root.menuRequested(id, over, place)
        }
        Shortcut {
            sequence: "Ctrl+F"
            enabled: root.enabled
            onActivated: search.focusText()
        }
    }
}
