import QtQuick
import Vasker.Platform

// One choice in a menu; the current one is filled, the checked one marked. A note stands dimmed at
// its end.
Item {
    id: root

    required property string text
    property string note
    property string spokenNote: note
    property bool checked: false
    property bool current: false

    signal pointed
    signal picked

    implicitHeight: Math.max(34 * Theme.iconScale, label.implicitHeight + 12)
    Accessible.role: Accessible.MenuItem
    Accessible.name: root.text
    Accessible.description: root.spokenNote
    Accessible.ignored: !root.visible
    Accessible.checkable: true
    Accessible.checked: root.checked
    Accessible.onPressAction: root.picked()

    Rectangle {
        anchors.fill: parent
        radius: Theme.menuRowRadius
        color: tap.pressed ? Theme.pressed : Theme.hover
        visible: root.current
    }
    Icon {
        visible: root.checked
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        name: "check"
        size: 16 * Theme.iconScale
        color: Theme.accent
    }
    Label {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: 12 + 16 * Theme.iconScale
        anchors.right: noteLabel.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        wrapMode: Text.Wrap
        textStyle: Theme.subheadline
        text: root.text
    }
    Label {
        id: noteLabel

        anchors.right: parent.right
        anchors.rightMargin: root.note.length > 0 ? 10 : 0
        anchors.verticalCenter: parent.verticalCenter
        textStyle: Theme.caption
        color: Theme.ink2
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
