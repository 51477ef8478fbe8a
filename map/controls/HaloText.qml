pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Platform

// A short text on the map, with a halo of 1.5 pixels that keeps it readable on any ground.
Item {
    id: root

    required property string text
    required property textStyle textStyle
    required property color color
    required property color halo
    property bool underlined: false

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight

    Item {
        anchors.fill: parent
        anchors.margins: -3
        // One picture in one opacity: the copies lie upon each other.
        opacity: root.halo.a
        layer.enabled: true

        Repeater {
            model: [[1.5, 0], [1.06, 1.06], [0, 1.5], [-1.06, 1.06], [-1.5, 0], [-1.06, -1.06], [0, -1.5], [1.06, -1.06]]

            Label {
                required property var modelData

                x: 3 + modelData[0]
                y: 3 + modelData[1]
                textStyle: root.textStyle
                text: root.text
                color: Qt.rgba(root.halo.r, root.halo.g, root.halo.b, 1)
            }
        }
    }
    Label {
        id: label

        textStyle: root.textStyle
        text: root.text
        color: root.color
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: root.color
        visible: root.underlined
    }
}
