pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Map
import Vasker.Platform

// Chooses the category to show: a field that opens a list of them.
Rectangle {
    id: root

    required property KindListModel kinds

    signal picked(string kind)

    objectName: "open-map-layer"
    implicitHeight: Theme.controlHeight
    radius: Theme.controlRadius
    color: Theme.colors.control
    border.width: 1
    border.color: Theme.colors.controlLine
    activeFocusOnTab: true

    Accessible.role: Accessible.ComboBox
    Accessible.name: qsTr("Layer")
    Accessible.description: root.kinds.currentLabel
    Accessible.focusable: true
    Accessible.onPressAction: menu.toggle()
    Keys.onSpacePressed: menu.open()
    Keys.onReturnPressed: menu.open()
    Keys.onEnterPressed: menu.open()
    Keys.onDownPressed: menu.open()
    Keys.onUpPressed: menu.open()

    Rectangle {
        anchors.fill: parent
        radius: parent.radius
        color: menu.opened || tap.pressed ? Theme.colors.pressed : Theme.colors.hover
        visible: hover.hovered || menu.opened
    }
    FocusRing {}
    Label {
        id: title

        x: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: x + implicitWidth + 8 + value.implicitWidth < chevron.x
        textStyle: Theme.type.field
        color: Theme.colors.text2
        text: qsTr("Layer")
    }
    Label {
        id: value

        x: title.visible ? title.x + title.implicitWidth + 8 : 12
        width: chevron.x - x
        anchors.verticalCenter: parent.verticalCenter
        textStyle: Theme.type.subheadline
        elide: Text.ElideRight
        text: root.kinds.currentLabel
    }
    Icon {
        id: chevron

        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.updown"
        size: 16 * Theme.iconScale
        color: Theme.colors.text
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            menu.toggle();
        }
    }
    KindMenu {
        id: menu

        anchor: root
        kinds: root.kinds
        onPicked: kind => root.picked(kind)
        onClosed: root.forceActiveFocus(Qt.PopupFocusReason)
    }
}
