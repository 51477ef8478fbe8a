import QtQuick
import Vasker.Platform

// Where north is while it is not up; a press sets the map upright. It hides when there is nothing
// to tell, but the keyboard still finds it.
Item {
    id: root

    required property real bearing
    required property real pitch
    required property bool upright
    readonly property bool shown: !upright || activeFocus

    signal clicked

    implicitWidth: 40
    implicitHeight: 40
    opacity: shown ? 1 : 0
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Set north up")
    Accessible.focusable: true
    Accessible.onPressAction: root.clicked()
    Keys.onSpacePressed: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.menuDuration
        }
    }
    Shadow {
        anchors.fill: parent
        radius: 20
        dark: Theme.dark
        level: 1
    }
    Rectangle {
        anchors.fill: parent
        radius: 20
        color: Theme.colors.raised
    }
    Rectangle {
        anchors.fill: parent
        radius: 20
        color: tap.pressed ? Theme.colors.pressed : Theme.colors.hover
        visible: hover.hovered || tap.pressed
    }
    FocusRing {
        around: 20
    }
    Item {
        anchors.centerIn: parent
        transform: [
            Rotation {
                angle: -root.bearing
            },
            Rotation {
                axis.x: 1
                axis.y: 0
                axis.z: 0
                angle: root.pitch * 0.8
            }
        ]

        Icon {
            x: -7
            y: -14
            size: 14
            name: "needle"
            color: Theme.colors.north
        }
        Icon {
            x: -7
            y: 0
            size: 14
            name: "needle"
            color: Theme.colors.text3
            rotation: 180
        }
    }
    ToolTip {
        x: -width - 6
        y: Math.round((parent.height - height) / 2)
        text: qsTr("Set north up")
        wanted: root.shown && hover.hovered
    }
    HoverHandler {
        id: hover

        enabled: root.shown
        cursorShape: Qt.ArrowCursor
    }
    TapHandler {
        id: tap

        enabled: root.shown
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.clicked()
    }
}
