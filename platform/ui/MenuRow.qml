import QtQuick
import Vasker.Platform

// One choice in a menu; the current one is filled, the checked one marked. A note stands dimmed at
// its end.
Item {
    id: root

    required property string text
    property string icon
    property string note
    property string spokenNote: note
    property bool checkable: false
    property bool checked: false
    property bool current: false
    // Whether the text leaves room for a mark or an icon before it.
    property bool indented: true
    property bool startsGroup: false

    readonly property real rowHeight: Math.max(34 * Theme.iconScale, label.implicitHeight + 12)

    signal pointed
    signal picked

    implicitWidth: label.anchors.leftMargin + label.implicitWidth + 10 + (note.length > 0 ? noteLabel.implicitWidth + 24 : 0)
    implicitHeight: rowHeight + (startsGroup ? 9 : 0)
    Accessible.role: Accessible.MenuItem
    Accessible.name: root.text
    Accessible.description: root.spokenNote
    Accessible.ignored: !root.visible
    Accessible.focusable: true
    Accessible.checkable: root.checkable
    Accessible.checked: root.checked
    Accessible.onPressAction: root.picked()

    Rectangle {
        visible: root.startsGroup
        y: 4
        width: parent.width
        height: 1
        color: Theme.colors.line
    }
    Item {
        anchors.bottom: parent.bottom
        width: parent.width
        height: root.rowHeight

        Rectangle {
            anchors.fill: parent
            radius: Theme.menuRowRadius
            color: tap.pressed ? Theme.colors.pressed : Theme.colors.hover
            visible: root.current
        }
        Icon {
            visible: root.checked || root.icon.length > 0
            x: 8
            anchors.verticalCenter: parent.verticalCenter
            name: root.checked ? "check" : root.icon
            size: 16 * Theme.iconScale
            color: root.checked ? Theme.colors.accent : Theme.colors.text
        }
        Label {
            id: label

            anchors.left: parent.left
            anchors.leftMargin: root.indented ? 12 + 16 * Theme.iconScale : 10
            anchors.right: noteLabel.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.Wrap
            textStyle: Theme.type.subheadline
            text: root.text
        }
        Label {
            id: noteLabel

            anchors.right: parent.right
            anchors.rightMargin: root.note.length > 0 ? 10 : 0
            anchors.verticalCenter: parent.verticalCenter
            textStyle: Theme.type.caption
            color: Theme.colors.text2
            text: root.note
        }
        HoverHandler {
            onHoveredChanged: if (hovered) {
                root.pointed();
            }
        }
        TapHandler {
            id: tap

            gesturePolicy: TapHandler.ReleaseWithinBounds
            onTapped: root.picked()
        }
    }
}
