import QtQuick
import Vasker.Platform

// A button of the header bar: an icon and, where there is room, its label. With a menu it opens that.
Item {
    id: root

    required property string icon
    required property string text
    property Menu menu: null
    property bool labelVisible: true
    property real compactWidth: 44
    readonly property real fullWidth: 20 * Theme.iconScale + 7 + label.implicitWidth + (menu === null ? 0 : 4 + chevron.width) + 22
    readonly property bool menuOpened: menu !== null && menu.opened

    signal clicked

    function press(): void {
        if (root.menu === null) {
            root.clicked();
            return;
        }
        root.forceActiveFocus(Qt.OtherFocusReason);
        root.menu.toggle();
    }
    function pressAlong(event: var): void {
        event.accepted = root.menu !== null;
        if (event.accepted) {
            root.press();
        }
    }

    implicitWidth: labelVisible ? fullWidth : compactWidth
    implicitHeight: Theme.controlHeight
    activeFocusOnTab: true

    Accessible.role: root.menu === null ? Accessible.Button : Accessible.ButtonMenu
    Accessible.name: root.text
    Accessible.focusable: true
    Accessible.pressed: root.menuOpened
    Accessible.onPressAction: root.press()
    Keys.onSpacePressed: root.press()
    Keys.onReturnPressed: root.press()
    Keys.onEnterPressed: root.press()
    Keys.onDownPressed: event => root.pressAlong(event)
    Keys.onUpPressed: event => root.pressAlong(event)

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: tap.pressed || root.menuOpened ? Theme.colors.pressed : Theme.colors.hover
        opacity: hover.hovered || tap.pressed || root.menuOpened ? 1 : 0
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
        color: Theme.colors.text
    }
    Label {
        id: label

        visible: root.labelVisible
        anchors.left: glyph.right
        anchors.leftMargin: 7
        anchors.verticalCenter: parent.verticalCenter
        textStyle: Theme.type.subheadline
        text: root.text
    }
    Icon {
        id: chevron

        visible: root.labelVisible && root.menu !== null
        anchors.left: label.right
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.down"
        size: 14 * Theme.iconScale
        color: Theme.colors.text2
    }
    ToolTip {
        text: root.text
        wanted: hover.hovered && !root.labelVisible && !root.menuOpened
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.press()
    }
}
