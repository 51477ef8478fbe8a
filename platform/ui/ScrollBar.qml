import QtQuick
import QtQuick.Templates as T
import Vasker.Platform

// Shows where a scrolled view stands, and can be dragged.
T.ScrollBar {
    id: root

    visible: size < 1
    minimumSize: 32 / availableHeight
    implicitWidth: 11
    horizontalPadding: 3
    verticalPadding: 4
    z: 2
    hoverEnabled: true
    Accessible.ignored: true

    contentItem: Rectangle {
        radius: width / 2
        color: root.pressed || root.hovered ? Theme.colors.text3 : Theme.colors.thumb
    }
}
