pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Map
import Vasker.Platform

// One record: icon, name, reported unit, category and period.
Item {
    id: root

    required property int index
    required property string recordId
    required property string name
    required property string markup
    required property string unit
    required property string category
    required property string symbol
    required property int tint
    required property string accessibleText

    property bool selected: false
    // Whether its mark is pointed at on the map.
    property bool answering: false
    property bool current: false
    // Whether the list keeps it for a record to come: then it lies there unseen.
    property bool kept: false
    property bool separatorVisible: true
    readonly property bool filled: selected || answering || hover.hovered || tap.pressed
    readonly property bool hovered: hover.hovered

    signal picked
    signal menuWanted(point place)

    objectName: "open-map-record-" + root.recordId
    implicitHeight: texts.height + 16
    ListView.onPooled: root.kept = true
    ListView.onReused: root.kept = false
    Accessible.role: Accessible.ListItem
    Accessible.ignored: root.kept
    Accessible.name: root.accessibleText
    Accessible.selectable: true
    Accessible.selected: root.selected
    Accessible.focusable: true
    Accessible.focused: root.current
    Accessible.onPressAction: root.picked()

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 6
        anchors.rightMargin: 6
        radius: Theme.controlRadius
        color: root.selected ? Theme.colors.selected : tap.pressed ? Theme.colors.pressed : hover.hovered || root.answering ? Theme.colors.hover : "transparent"

        Rectangle {
            visible: root.selected
            x: 4
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
    Icon {
        x: 20 + Math.round((Theme.iconColumn - width) / 2)
        y: 8 + Math.round((Theme.type.rowName.lineHeight - height) / 2)
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
        Label {
            width: parent.width
            visible: root.unit.length > 0
            wrapMode: Text.Wrap
            textStyle: Theme.type.captionLine
            color: Theme.colors.text2
            text: root.unit
        }
        Label {
            width: parent.width
            wrapMode: Text.Wrap
            textStyle: Theme.type.captionLine
            color: Theme.colors.text2
            text: root.category
        }
    }
    Rectangle {
        visible: root.separatorVisible && !root.filled
        anchors.left: texts.left
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.bottom: parent.bottom
        height: 1
        color: Theme.colors.line
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.picked()
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => root.menuWanted(point.position)
    }
}
