pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Map

// Marks the centre of the map, where Enter picks, while the map is used by keys.
Item {
    id: root

    required property MapTextColors colors

    width: 34
    height: 34

    component Strokes: Item {
        id: strokes

        required property real thickness
        required property color color

        anchors.fill: parent

        Repeater {
            model: 4

            Item {
                required property int index

                anchors.fill: parent
                rotation: 90 * index

                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: (1.5 - strokes.thickness) / 2
                    width: strokes.thickness
                    height: 13 - 2 * y
                    color: strokes.color
                }
            }
        }
    }

    Strokes {
        thickness: 4
        color: root.colors.halo
    }
    Strokes {
        thickness: 1.5
        color: root.colors.text
    }
}
