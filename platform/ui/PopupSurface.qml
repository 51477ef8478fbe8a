import QtQuick
import Vasker.Platform

// A raised surface that opens 4 px below `anchor`, above everything else in the window. Escape, Tab
// or a press beside it closes it.
Item {
    id: root

    required property Item anchor
    property real contentHeight: 0
    property real surfaceWidth: anchor.width
    property bool opened: false
    default property alias content: holder.data

    signal closed

    function open(): void {
        const place = root.anchor.mapToItem(root.parent, 0, root.anchor.height + 4);
        surface.x = Math.round(Math.max(4, Math.min(place.x, root.width - surface.width - 4)));
        surface.y = Math.round(place.y);
        root.opened = true;
    }
    function close(): void {
        if (root.opened) {
            root.opened = false;
            root.closed();
        }
    }
    function toggle(): void {
        root.opened ? root.close() : root.open();
    }

    parent: anchor.Window.contentItem
    anchors.fill: parent
    visible: opened || surface.opacity > 0
    enabled: opened
    z: 100

    Keys.onEscapePressed: root.close()
    Keys.onTabPressed: root.close()
    Keys.onBacktabPressed: root.close()

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: root.close()
        onWheel: wheel => wheel.accepted = true
    }
    Item {
        id: surface

        width: root.surfaceWidth
        height: Math.min(root.contentHeight + 12, root.height - y - 8)
        opacity: root.opened ? 1 : 0

        Behavior on opacity {
            NumberAnimation {
                duration: Theme.menuDuration
            }
        }
        Shadow {
            anchors.fill: parent
            radius: Theme.cardRadius
            dark: Theme.dark
            level: 2
        }
        Rectangle {
            anchors.fill: parent
            radius: Theme.cardRadius
            color: Theme.raised
        }
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }
        Item {
            id: holder

            anchors.fill: parent
            anchors.margins: 6
        }
    }
}
