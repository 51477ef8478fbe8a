import QtQuick
import Vasker.Platform

// A button of the header bar: an icon and, where there is room, its label.
Item {
    id: root

    required property string icon
    required property string text
    property bool labelVisible: true
    readonly property real fullWidth: 20 * Theme.iconScale + 7 + label.implicitWidth + 22
    readonly property real compactWidth: 44

    signal clicked

    implicitWidth: labelVisible ? fullWidth : compactWidth
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
        color: tap.pressed ? Theme.pressed : Theme.hover
        opacity: hover.hovered || tap.pressed ? 1 : 0
        Behavior on opacity {
            NumberAnimation {
                duration: Theme.hoverDuration
            }
        }
    }
    FocusRing {}
    Icon {
        id: glyph

        x: root.labelVisible ? 11 : (root.width - width) / 2
        anchors.verticalCenter: parent.verticalCenter
        name: root.icon
        size: 20 * Theme.iconScale
        color: Theme.ink
    }
    Label {
        id: label

        visible: root.labelVisible
        anchors.left: glyph.right
        anchors.leftMargin: 7
        anchors.verticalCenter: parent.verticalCenter
        textStyle: Theme.subheadline
        text: root.text
    }
    ToolTip {
        text: root.text
        wanted: hover.hovered && !root.labelVisible
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
