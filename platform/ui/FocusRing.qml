import QtQuick
import Vasker.Platform

// The ring around its parent that shows the keyboard focus: one pixel outside; inside for rows of a
// list.
Rectangle {
    property real around: Theme.controlRadius
    property bool inside: false
    property bool shown: parent.activeFocus && FocusVisibility.visible

    anchors.fill: parent
    anchors.margins: inside ? 0 : -3
    radius: inside ? around : around + 3
    color: "transparent"
    border.width: 2
    border.color: Theme.colors.accent
    visible: shown
}
