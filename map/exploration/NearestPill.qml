import QtQuick
import Vasker.Map
import Vasker.Platform

// Says where the nearest record is while the map shows none, and goes there when pressed.
Button {
    id: root

    required property NearestRecord nearest
    property real maximumWidth: 480

    objectName: "open-map-nearest"
    label: root.nearest.text
    visible: label.length > 0
    radius: 16
    implicitWidth: Math.min(text.implicitWidth + arrow.width + 30, maximumWidth)
    implicitHeight: text.implicitHeight + 14
    onClicked: root.nearest.go()

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
    Label {
        id: text

        anchors.left: parent.left
        anchors.leftMargin: 12
        y: 7
        width: root.width - arrow.width - 30
        elide: Text.ElideRight
        textStyle: Theme.type.footnote
        text: root.label
    }
    Icon {
        id: arrow

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        name: "arrow.up"
        size: 14 * Theme.iconScale
        color: Theme.colors.text2
        rotation: root.nearest.degrees
    }
}
