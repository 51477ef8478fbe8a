import QtQuick
import Vasker.Platform

// A rounded surface above others, with its shadow.
Item {
    id: root

    property real radius: Theme.cardRadius
    // 1 controls on the map, 2 menus and cards, 3 sheets.
    property int level: 2
    property color color: Theme.colors.raised
    // Whether nothing shows through it: what lies below is not drawn then.
    property bool solid: false

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
    // Rounded corners are blended, and with them the whole surface. This part is not, so that it is
    // drawn first, and hides what lies below before a processor has drawn that.
    Rectangle {
        visible: root.solid
        anchors.fill: parent
        anchors.leftMargin: 1
        anchors.rightMargin: 1
        anchors.topMargin: root.radius
        anchors.bottomMargin: root.radius
        color: root.color
    }
}
