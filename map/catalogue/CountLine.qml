import QtQuick
import Vasker.Platform

// How many records are shown. It may be a quiet button, too.
Item {
    id: root

    required property string text
    property bool pressable: true

    signal clicked

    objectName: "open-map-count"
    implicitWidth: label.implicitWidth + 16
    implicitHeight: label.height + 8
    activeFocusOnTab: pressable
    Accessible.role: root.pressable ? Accessible.Button : Accessible.StaticText
    Accessible.name: root.text
    Accessible.description: root.pressable ? qsTr("Opens the list of records") : ""
    Accessible.focusable: root.pressable
    Accessible.onPressAction: root.press()
    Keys.onSpacePressed: root.press()
    Keys.onReturnPressed: root.press()
    Keys.onEnterPressed: root.press()

    function press(): void {
        if (root.pressable) {
            root.clicked();
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.menuRowRadius
        color: tap.pressed ? Theme.colors.pressed : Theme.colors.hover
        opacity: root.pressable && (hover.hovered || tap.pressed) ? 1 : 0
        Behavior on opacity {
            NumberAnimation {
                duration: Theme.hoverDuration
            }
        }
    }
    FocusRing {
        around: Theme.menuRowRadius
    }
    Label {
        id: label

        x: 8
        y: 4
        width: parent.width - 16
        wrapMode: Text.Wrap
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        text: root.text
    }
    HoverHandler {
        id: hover

        enabled: root.pressable
    }
    TapHandler {
        id: tap

        enabled: root.pressable
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.press()
    }
}
