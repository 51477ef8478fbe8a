pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Vasker.Map
import Vasker.Platform

// One record: icon, name, reported unit, category and period, and where else it was found.
T.ItemDelegate {
    id: root

    required property int index
    required property string recordId
    required property string name
    required property string markup
    required property string unit
    required property string category
    required property string symbol
    required property int tint
    required property foundText found
    required property string accessibleText

    // How many rows the list has, and which of them this is, for assistive tools.
    property int setSize: 0
    readonly property int positionInSet: kept ? 0 : index + 1
    property bool selected: false
    // Whether the pointer is on its marker on the map.
    property bool hoveredOnMap: false
    property bool current: false
    // Whether the list keeps it for a record to come: then it lies there unseen.
    property bool kept: false
    property bool separatorVisible: true
    readonly property bool filled: selected || hoveredOnMap || hovered || down

    signal picked
    signal menuRequested(point place)

    objectName: "open-map-record-" + root.recordId
    implicitHeight: texts.height + 16
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    ListView.onPooled: root.kept = true
    ListView.onReused: root.kept = false
    Accessible.role: Accessible.ListItem
    Accessible.ignored: root.kept
    Accessible.name: root.accessibleText
    Accessible.description: root.found.spoken
    Accessible.selectable: true
    Accessible.selected: root.selected
    Accessible.focusable: true
    Accessible.focused: root.current
    Accessible.onPressAction: root.clicked()
    Keys.forwardTo: PressKeys {
        button: root
    }
    onClicked: root.picked()

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: 6
            anchors.rightMargin: 6
            radius: Theme.controlRadius
            color: root.selected ? Theme.colors.selected : root.down ? Theme.colors.pressed : root.filled ? Theme.colors.hover : "transparent"

            Rectangle {
                visible: root.selected
                anchors.left: parent.left
                anchors.leftMargin: 4
                y: 9
                width: 3
                height: parent.height - 18
                radius: 1.5
                color: Theme.colors.accent
            }
            FocusRing {
                inside: true
                shown: root.current && FocusVisibility.visible
            }
        }
        Rectangle {
            visible: root.separatorVisible && !root.filled
            anchors.left: parent.left
            anchors.leftMargin: 20 + Theme.iconColumn + 10
            anchors.right: parent.right
            anchors.rightMargin: 14
            anchors.bottom: parent.bottom
            height: 1
            color: Theme.colors.line
        }
    }
    Icon {
        y: 8 + Math.round((Theme.type.rowName.lineHeight - height) / 2)
        anchors.left: parent.left
        anchors.leftMargin: 20 + Math.round((Theme.iconColumn - width) / 2)
        name: root.symbol
        size: 18 * Theme.iconScale
        color: Theme.colors.record(root.tint)
    }
    Column {
        id: texts

        anchors.left: parent.left
        anchors.leftMargin: 20 + Theme.iconColumn + 10
        anchors.right: parent.right
        anchors.rightMargin: 20
        y: 8
        spacing: 4

        // Two labels: one that took both would for a moment read a name as markup.
        Label {
            width: parent.width
            visible: root.markup.length === 0
            wrapMode: Text.Wrap
            textStyle: Theme.type.rowName
            text: root.name
        }
        Label {
            width: parent.width
            visible: root.markup.length > 0
            wrapMode: Text.Wrap
            textStyle: Theme.type.rowName
            textFormat: Text.StyledText
            text: root.markup
        }
        CaptionLine {
            visible: root.unit.length > 0
            text: root.unit
        }
        CaptionLine {
            text: root.category
        }
        CaptionLine {
            visible: root.found.markup.length > 0
            textFormat: Text.StyledText
            text: root.found.markup
        }
    }
    // In an item of its own: a handler makes its item take every button of the mouse.
    Item {
        anchors.fill: parent

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: point => root.menuRequested(point.position)
        }
    }
}
