import QtQuick
import Vasker.Platform

// A rounded surface above others, with its shadow.
Item {
    id: root

    property real radius: Theme.cardRadius
    // 1 controls on the map, 2 menus and cards, 3 sheets.
    property int level: 2
    property color color: Theme.colors.raised

    Shadow {
        anchors.fill: parent
        radius: root.radius
        dark: Theme.dark
        level: root.level
    }
    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.color
    }
}
