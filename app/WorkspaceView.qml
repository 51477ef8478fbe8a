import QtQuick
import Vasker.App
import Vasker.Map
import Vasker.Platform

// The workspace: the column, a divider, the map below its header, and the sheets over all of it.
FocusScope {
    id: view

    required property OpenMapApp application
    required property OpenMapWorkspace workspace
    required property SheetStack sheets
    readonly property HeaderBar headerBar: header
    readonly property bool sheetIsOpen: sheets.current !== SheetStack.NoSheet

    // To screen readers.
    signal spoken(string text)

    Backdrop {
        anchors.fill: parent
        covered: sources.onScreen || records.onScreen || inspector.onScreen

        Rectangle {
            id: column

            anchors.left: parent.left
            width: Theme.columnWidth
            height: parent.height
            color: Theme.colors.window
            // One picture while nothing in it changes. A painter draws only what has changed in any case.
            layer.enabled: GraphicsInfo.shaderType !== GraphicsInfo.UnknownShadingLanguage

            SearchField {
                id: search

                x: 12
                y: Math.round((Theme.headerHeight - height) / 2)
                width: parent.width - 24
                prompt: qsTr("Facility, pipeline or reporting company")
                text: view.workspace.filter.query
                onEdited: text => view.workspace.filter.query = text
                onLeaveDown: catalogue.enterList()
            }
            Catalogue {
                id: catalogue

                anchors.top: parent.top
                anchors.topMargin: Theme.headerHeight
                anchors.bottom: parent.bottom
                width: parent.width
                filter: view.workspace.filter
                selection: view.workspace.selection
                hoveredOnMap: canvas.hover.recordId
                onRecordPicked: id => view.workspace.selection = id
                onEscaped: view.workspace.selection = ""
                onCountPressed: view.sheets.request(SheetStack.Records)
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
            application: view.application
            workspace: view.workspace
            sheets: view.sheets
            saves: saveCommands
        }
        MapCanvas {
            id: canvas

            anchors.left: divider.right
            anchors.right: parent.right
            anchors.top: header.bottom
            anchors.bottom: parent.bottom
            records: view.workspace.filter.records
            selection: view.workspace.selection
            camera: view.workspace.camera
            basemap: view.workspace.basemap
            tiles: view.application.tiles
            coveredAtEnd: inspector.coveredAtEnd
            coveredAtStart: Math.max(0, inspector.coveredAtStart - column.width - divider.width)
            hovered: canvas.hover.recordId.length > 0 ? canvas.hover.recordId : catalogue.hovered
            onPicked: id => view.workspace.pickOnMap(id)
            onMoved: camera => view.workspace.camera = camera
            onSpoken: text => view.spoken(text)
            onOverviewRequested: view.workspace.resetCamera()
            onMenuRequested: (id, place) => menu.offer(id, canvas, place)
            Keys.onEscapePressed: view.workspace.selection = ""
        }
        SaveNotice {
            map: canvas
            saves: saveCommands
        }
    }
    SaveCommands {
        id: saveCommands

        workspace: view.workspace
        map: canvas
        onMessageChanged: view.spoken(message)
    }
    SourcesSheet {
        id: sources

        sheets: view.sheets
        workspace: view.workspace
    }
    RecordsSheet {
        id: records

        sheets: view.sheets
        workspace: view.workspace
        onMenuRequested: (id, over, place) => menu.offer(id, over, place)
    }
    InspectorSheet {
        id: inspector

        sheets: view.sheets
        workspace: view.workspace
        onMenuRequested: (over, place) => menu.offer(view.workspace.inspector, over, place)
    }
    RecordMenu {
        id: menu

        workspace: view.workspace
        anchor: view
    }
    Shortcut {
        sequence: "Ctrl+F"
        enabled: !view.sheetIsOpen
        onActivated: search.focusText()
    }
    Shortcut {
        sequence: "Ctrl+R"
        enabled: !view.sheetIsOpen
        onActivated: view.sheets.request(SheetStack.Records)
    }
}
