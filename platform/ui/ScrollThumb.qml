import QtQuick
import Vasker.Platform

// Shows where a scrolled view stands, and can be dragged.
Item {
    id: root

    required property Flickable flickable
    readonly property real track: flickable.height - 8
    readonly property real thumbLength: Math.max(32, track * flickable.visibleArea.heightRatio)
    readonly property real range: 1 - flickable.visibleArea.heightRatio

    parent: flickable
    visible: flickable.visibleArea.heightRatio < 1
    anchors.right: parent.right
    width: 11
    height: parent.height
    z: 2

    Rectangle {
        id: thumb

        x: 3
        y: 4 + (root.track - height) * Math.max(0, Math.min(1, root.flickable.visibleArea.yPosition / root.range))
        width: 5
        height: root.thumbLength
        radius: width / 2
        color: drag.active || hover.hovered ? Theme.colors.text3 : Theme.colors.thumb
    }
    HoverHandler {
        id: hover
    }
    DragHandler {
        id: drag

        property real startContentY

        target: null
        yAxis.enabled: true
        xAxis.enabled: false
        dragThreshold: 0
        onActiveChanged: if (active) {
            startContentY = root.flickable.contentY;
        }
        onTranslationChanged: if (active) {
            const travel = root.flickable.contentHeight - root.flickable.height;
            const wanted = startContentY + translation.y * travel / (root.track - root.thumbLength);
            root.flickable.contentY = Math.max(root.flickable.originY, Math.min(root.flickable.originY + travel, wanted));
        }
    }
}
