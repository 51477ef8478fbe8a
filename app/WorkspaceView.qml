import QtQuick
import Vasker.App
import Vasker.Map
import Vasker.Platform

// The workspace: search field and catalogue, a divider, and the map below its header. The sheets
// stand over all of it, one at a time.
FocusScope {
    id: root

    required property OpenMapWorkspace workspace
    required property QtObject tiles
    required property WindowActions actions
    // From when a sheet is to be shown until it has left the screen completely.
    readonly property bool sheetOnScreen: sources.onScreen || records.onScreen || inspector.onScreen

    Backdrop {
        id: behind

        anchors.fill: parent
        covered: root.sheetOnScreen

        Rectangle {
            id: column

            width: Theme.columnWidth
            height: parent.height
            color: Theme.colors.window
            // One picture while nothing in it changes: the map moves without the texts being drawn anew.
            layer.enabled: true

            SearchField {
                id: search

                x: 12
                y: Math.round((Theme.headerHeight - height) / 2)
                width: parent.width - 24
                prompt: qsTr("Facility, pipeline or reporting company")
                text: root.workspace.query
                onEdited: text => root.workspace.query = text
                onLeaveDown: catalogue.enterList()
            }
            Catalogue {
                id: catalogue

                anchors.top: parent.top
                anchors.topMargin: Theme.headerHeight
                anchors.bottom: parent.bottom
                width: parent.width
                records: root.workspace.records
                query: root.workspace.query
                kind: root.workspace.kind
                kinds: root.workspace.kinds
                counts: root.workspace.counts
                selection: root.workspace.selection
                hoveredOnMap: map.hover.recordId
                onKindPicked: kind => root.workspace.kind = kind
                onRecordPicked: id => root.workspace.selection = id
                onSelectionCleared: root.workspace.selection = ""
                onCountPressed: root.workspace.showingRecords = true
                onMenuRequested: (id, over, place) => menu.offer(id, over, place)
            }
        }
        Rectangle {
            id: divider

            anchors.left: column.right
            width: 1
            height: parent.height
            color: Theme.colors.line
        }
        HeaderBar {
            id: header

            anchors.left: divider.right
            anchors.right: parent.right
            // Its tips hang over the map.
            z: 1
            actions: root.actions
            basemap: root.workspace.basemap
            onBasemapPicked: basemap => root.workspace.basemap = basemap
            onCameraReset: root.workspace.resetCamera()
            onSourcesWanted: root.workspace.showingSources = true
            onRecordsWanted: root.workspace.showingRecords = true
        }
        MapCanvas {
            id: map

            anchors.left: divider.right
            anchors.right: parent.right
            anchors.top: header.bottom
            anchors.bottom: parent.bottom
            objectName: "open-map-canvas"
            records: root.workspace.records
            selection: root.workspace.selection
            camera: root.workspace.camera
            basemap: root.workspace.basemap
            tiles: root.tiles
            coveredRight: inspector.covered
            hovered: map.hover.recordId.length > 0 ? map.hover.recordId : catalogue.hovered
            onPicked: id => root.workspace.selection = id
            onMoved: camera => root.workspace.camera = camera
            onOverviewRequested: root.workspace.resetCamera()
            onMenuRequested: (id, place) => menu.offer(id, map, place)
            Keys.onEscapePressed: root.workspace.selection = ""
        }
    }
    SourcesSheet {
        id: sources

        workspace: root.workspace
    }
    RecordsSheet {
        id: records

        workspace: root.workspace
        onMenuRequested: (id, over, place) => menu.offer(id, over, place)
    }
    InspectorSheet {
        id: inspector

        workspace: root.workspace
        onMenuWanted: (over, place) => menu.offer(root.workspace.inspector, over, place)
    }
    RecordMenu {
        id: menu

        workspace: root.workspace
        anchor: root
    }
    Binding {
        target: root.actions
        property: "workspaceSheetOnScreen"
        value: root.sheetOnScreen
    }
    Shortcut {
        sequence: "Ctrl+F"
        enabled: root.actions.sheetsAllowed
        onActivated: search.focusText()
    }
    Shortcut {
        sequence: "Ctrl+R"
        enabled: root.actions.sheetsAllowed
        onActivated: root.workspace.showingRecords = true
    }
}
