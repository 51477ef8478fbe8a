import QtQuick
import Vasker.Platform

// A button that is a word in the accent colour.
Item {
    id: root

    required property string text

    signal clicked

    implicitWidth: label.implicitWidth + 24
    implicitHeight: Theme.controlHeight
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: root.text
    Accessible.focusable: true
    Accessible.onPressAction: root.clicked()
    Keys.onSpacePressed: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: tap.pressed ? Theme.colors.pressed : Theme.colors.hover
        visible: hover.hovered || tap.pressed
    }
    FocusRing {}
    Label {
        id: label

        anchors.centerIn: parent
        textStyle: Theme.type.headline
        color: Theme.colors.accent
        text: root.text
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.clicked()
    }
}
