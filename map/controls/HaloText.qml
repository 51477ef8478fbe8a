import QtQuick
import Vasker.Map
import Vasker.Platform

// A short text on the map, with a halo.
Label {
    id: root

    required property color halo
    property bool underlined: false

    Halo {
        z: -1
        anchors.fill: parent
        anchors.margins: -reach
        text: root.text
        font: root.font
        textBaseline: root.baselineOffset + reach
        color: root.halo
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: root.color
        visible: root.underlined
    }
}
