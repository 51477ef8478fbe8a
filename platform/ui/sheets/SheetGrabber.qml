import QtQuick
import Vasker.Platform

// Takes a sheet from one height to the other: by dragging `handle`, by keys, or pressed.
Button {
    id: root

    required property Item handle
    required property bool large
    // From one height to the other, in logical pixels.
    required property real travel
    property bool dragging: false
    property real dragged: 0
    // How far below the lower height it is pulled, in logical pixels.
    property real pulled: 0
    // 0 at the lower height, 1 at the larger one.
    property real reach: dragging ? dragged : large ? 1 : 0

    signal moved(bool large)
    // It was pulled down and let go.
    signal pulledDown

    implicitWidth: 60
    implicitHeight: 18
    radius: 2
    ringed: bar
    label: root.large ? qsTr("Make the sheet smaller") : qsTr("Make the sheet larger")
    Accessible.onIncreaseAction: root.moved(true)
    Accessible.onDecreaseAction: root.moved(false)
    Keys.onUpPressed: root.moved(true)
    Keys.onDownPressed: root.moved(false)
    onClicked: root.moved(!root.large)

    Behavior on reach {
        enabled: !root.dragging

        NumberAnimation {
            duration: Theme.settleDuration
            easing.type: Easing.OutCubic
        }
    }
    background: Item {}
    Rectangle {
        id: bar

        anchors.horizontalCenter: parent.horizontalCenter
        y: 7
        width: 36
        height: 4
        radius: 2
        color: Qt.alpha(Theme.colors.text3, 0.55)
    }
    Shortcut {
        sequence: "Ctrl+Up"
        enabled: root.visible && root.enabled
        onActivated: root.moved(true)
    }
    Shortcut {
        sequence: "Ctrl+Down"
        enabled: root.visible && root.enabled
        onActivated: root.moved(false)
    }
    DragHandler {
        property real startReach

        parent: root.handle
        enabled: root.visible
        target: null
        xAxis.enabled: false
        onActiveChanged: {
            if (active) {
                startReach = root.reach;
                root.dragged = root.reach;
                root.dragging = true;
            } else {
                root.dragging = false;
                root.pulled > 80 ? root.pulledDown() : root.moved(root.dragged > 0.5);
                root.pulled = 0;
            }
        }
        onTranslationChanged: if (active) {
            const above = startReach * root.travel - translation.y;
            root.dragged = Math.max(0, Math.min(1, above / Math.max(1, root.travel)));
            root.pulled = Math.max(0, -above);
        }
    }
}
