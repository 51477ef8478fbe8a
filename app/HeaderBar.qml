import QtQuick
import Vasker.App
import Vasker.Platform

// The bar over the map: the title, the toolbar and, apart from it, the primary menu. Where the room
// is short the title goes first, then the labels of the buttons; then the buttons move into the
// menu.
Rectangle {
    id: root

    required property OpenMapApp application
    required property OpenMapWorkspace workspace
    required property SheetStack sheets
    required property SaveCommands saves

    readonly property real endWidth: 12 + primary.width + 12
    readonly property real toolsWidth: options.fullWidth + reset.fullWidth + sources.fullWidth + 2 * tools.spacing
    readonly property bool toolsVisible: width >= 12 + 3 * reset.compactWidth + 2 * tools.spacing + endWidth
    readonly property bool labelsVisible: width >= 12 + toolsWidth + endWidth
    readonly property bool titleVisible: width >= 20 + title.implicitWidth + 20 + toolsWidth + endWidth

    // The main menu, unless a sheet keeps it out of reach.
    function openMenu(): void {
        if (root.sheets.current === SheetStack.NoSheet) {
            primary.menu.show();
        }
    }

    implicitHeight: Theme.headerHeight
    color: Theme.colors.window

    Label {
        id: title

        visible: root.titleVisible
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        textStyle: Theme.type.headline
        text: qsTr("Vasker Beta")
        spoken: true
    }
    Row {
        id: tools

        visible: root.toolsVisible
        anchors.right: parent.right
        anchors.rightMargin: root.endWidth
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        MapOptionsMenu {
            id: options

            workspace: root.workspace
            labelVisible: root.labelsVisible
        }
        HeaderButton {
            id: reset

            objectName: "open-map-reset"
            symbol: "globe.americas"
            label: qsTr("Canada")
            labelVisible: root.labelsVisible
            onClicked: root.workspace.resetCamera()
        }
        HeaderButton {
            id: sources

            objectName: "open-map-sources"
            symbol: "info.circle"
            label: qsTr("Sources & coverage")
            labelVisible: root.labelsVisible
            onClicked: root.sheets.request(SheetStack.Sources)
        }
    }
    PrimaryMenu {
        id: primary

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        application: root.application
        sheets: root.sheets
        saves: root.saves
        hidden: root.toolsVisible ? [] : [options, reset, sources]
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.colors.line
    }
}
