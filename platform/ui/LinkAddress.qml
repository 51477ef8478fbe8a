import QtQuick
import Vasker.Platform

// The address of a link, below it or above it, on top of everything else in the window.
ToolTip {
    id: root

    required property Item link

    function place(): void {
        const below = root.link.mapToItem(root.parent, 0, root.link.height + 4);
        const above = below.y - root.link.height - 8 - root.height;
        root.x = Math.round(Math.max(8, Math.min(below.x, root.parent.width - root.width - 8)));
        root.y = Math.round(below.y + root.height > root.parent.height - 8 ? above : below.y);
    }

    parent: link.Window.contentItem
    z: 200
    onVisibleChanged: if (visible) {
        place();
    }
    Component.onCompleted: wanted = true
}
