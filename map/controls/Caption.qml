import QtQuick
import Vasker.Platform

// The strip below the map: what the map does and does not show.
Rectangle {
    id: root

    readonly property alias text: label.text

    objectName: "open-map-caption"
    implicitHeight: Math.max(glyph.height, label.implicitHeight) + 20
    color: Theme.colors.strip
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.colors.line
    }
    Icon {
        id: glyph

        anchors.left: parent.left
        anchors.leftMargin: 10
        y: 10
        name: "info.circle"
        size: 16 * Theme.iconScale
        color: Theme.colors.text
    }
    Label {
        id: label

        anchors.left: glyph.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.rightMargin: 10
        y: 10
        wrapMode: Text.Wrap
        textStyle: Theme.type.caption
        text: qsTr("Selected reporting records and routes. Dates and reporting boundaries vary; this is not a complete or survey-grade map.")
    }
    // What is pressed here is not pressed on the map below.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        cursorShape: Qt.ArrowCursor
        onWheel: wheel => wheel.accepted = true
    }
}
