pragma ComponentBehavior: Bound
import QtQuick
import Vasker.App
import Vasker.Map
import Vasker.Platform

// The catalogue once more, in a sheet with a search field of its own.
WindowSheet {
    id: root

    required property OpenMapWorkspace workspace

    signal menuRequested(string id, Item over, point place)

    kind: SheetStack.Records
    title: qsTr("Records")
    placement: Sheet.BottomEdge
    preferredWidth: Math.min(640, width - 48)
    preferredHeight: Math.round(height / 2)
    minimumHeight: 250 * Theme.textScale

    content: Item {
        Component.onCompleted: search.focusText()

        SearchField {
            id: search

            x: 12
            // Its ring is over the catalogue's head.
            z: 1
            width: parent.width - 24
            prompt: qsTr("Name or reporting company")
            text: root.workspace.filter.query
            onEdited: text => root.workspace.filter.query = text
            onLeaveDown: catalogue.enterList()
        }
        Catalogue {
            id: catalogue

            anchors.top: search.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            headColor: Theme.colors.sheet
            countOpens: false
            filter: root.workspace.filter
            selection: root.workspace.selection
            onRecordPicked: id => root.workspace.selection = id
            onEscaped: root.dismissed()
            onMenuRequested: (id, over, place) => root.menuRequested(id, over, place)
        }
        Shortcut {
            sequence: "Ctrl+F"
            enabled: root.enabled
            onActivated: search.focusText()
        }
    }
}
