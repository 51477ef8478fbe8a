import QtQuick
import QtQuick.Templates as T
import Vasker.Map
import Vasker.Platform

// Chooses the category to show: a field that opens a list of them.
T.ComboBox {
    id: root

    required property KindListModel kinds

    signal picked(string kind)

    objectName: "open-map-layer"
    implicitHeight: Theme.controlHeight
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.ComboBox
    Accessible.name: qsTr("Layer")
    Accessible.description: root.kinds.currentLabel
    Accessible.focusable: true
    Accessible.onPressAction: (root.popup as Menu).toggle()
    Keys.onPressed: event => {
        event.accepted = [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Down, Qt.Key_Up].includes(event.key);
        if (event.accepted && !event.isAutoRepeat) {
            (root.popup as Menu).show();
        }
    }

    popup: KindMenu {
        anchor: root
        kinds: root.kinds
        onPicked: kind => root.picked(kind)
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.colors.control
        border.width: 1
        border.color: Theme.colors.controlLine

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.down ? Theme.colors.pressed : Theme.colors.hover
            visible: root.hovered || root.down
        }
    }
    Label {
        id: title

        visible: 12 + implicitWidth + 8 + value.anchors.leftMargin + value.implicitWidth < root.width - 10 - chevron.width
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        textStyle: Theme.type.field
        color: Theme.colors.text2
        text: qsTr("Layer")
    }
    Icon {
        id: symbol

        visible: name.length > 0
        anchors.left: title.visible ? title.right : parent.left
        anchors.leftMargin: title.visible ? 8 : 12
        anchors.verticalCenter: parent.verticalCenter
        name: root.kinds.currentSymbol
        size: 18 * Theme.iconScale
        color: Theme.colors.record(root.kinds.currentTint)
    }
    Label {
        id: value

        anchors.left: symbol.left
        anchors.leftMargin: symbol.visible ? Theme.iconColumn + 4 : 0
        anchors.right: chevron.left
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
    FocusRing {}
}
