import QtQuick
import Vasker.Platform

// A raised surface that opens 4 px below `anchor`, or at a point, above everything else in the window.
// Where it would leave the window at the side, its end is the anchor's. Escape, Tab or a press beside
// it closes it; what lies there does not learn of it.
Item {
    id: root

    required property Item anchor
    property real contentHeight: 0
    property real surfaceWidth: anchor.width
    property bool opened: false
    // Where the surface begins, how far along it may end instead, and whether it may go up.
    property point corner
    property real span: 0
    property bool turns: false
    default property alias content: holder.data

    signal closed

    function open(): void {
        root.corner = root.anchor.mapToItem(root.parent, 0, root.anchor.height + 4);
        root.span = root.anchor.width;
        root.turns = false;
        root.opened = true;
    }
    // `place` is the surface's corner, in the coordinates of `item`; where there is no room the
    // surface goes to the other side of it.
    function openAt(item: Item, place: point): void {
        root.corner = item.mapToItem(root.parent, place.x, place.y);
        root.span = 0;
        root.turns = true;
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
    // It would stand in the wrong place.
    onWidthChanged: root.close()
    onHeightChanged: root.close()

    // While it is open, keys are its own: no shortcut opens something above it.
    Keys.onShortcutOverride: event => event.accepted = true
    Keys.onEscapePressed: root.close()
    Keys.onTabPressed: root.close()
    Keys.onBacktabPressed: root.close()

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        // Not when it is pressed: what lies below would take that for its own.
        onReleased: root.close()
        onWheel: wheel => wheel.accepted = true
    }
    Item {
        id: surface

        readonly property real wanted: Math.min(root.contentHeight + 12, root.height - 16)
        readonly property bool fitsAlong: root.corner.x + width <= root.width - 4
        readonly property bool goesUp: root.turns && root.corner.y + wanted > root.height - 8

        x: Math.round(Math.max(4, fitsAlong ? root.corner.x : root.corner.x + root.span - width))
        y: Math.round(goesUp ? Math.max(8, root.corner.y - wanted) : root.corner.y)
        width: root.surfaceWidth
        height: Math.min(wanted, root.height - y - 8)
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
            color: Theme.colors.raised
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
