import QtQuick
import Vasker.Platform

// Shows where north is while it is not up; a press sets the map upright. It is invisible while the
// map is upright, but keeps its place among the controls that the keyboard reaches.
Button {
    id: root

    required property real bearing
    required property real pitch
    required property bool upright
    readonly property bool shown: !upright || activeFocus

    implicitWidth: 40
    implicitHeight: 40
    radius: 20
    label: qsTr("Set north up")
    tip: label
    tipPlace: ToolTip.Beside
    opacity: shown ? 1 : 0
    // While it hides, the pointer is the map's.
    containmentMask: shown ? null : nowhere

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.menuDuration
        }
    }
    background: RaisedSurface {
        radius: root.radius
        level: 1

        ButtonFill {
            anchors.fill: parent
            radius: root.radius
            shown: root.hovered
            held: root.down
        }
    }
    contentItem: Item {
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
    }
    QtObject {
        id: nowhere

        function contains(point: point): bool {
            return false;
        }
    }
}
