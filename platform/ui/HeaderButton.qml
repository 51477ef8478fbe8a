import QtQuick
import Vasker.Platform

// A button of the header bar: an icon and, where there is room, its label. With a menu it opens that.
Button {
    id: root

    required property string symbol
    property Menu menu: null
    property bool labelVisible: true
    property real compactWidth: 44
    readonly property real fullWidth: glyph.width + 7 + title.implicitWidth + (menu === null ? 0 : 4 + chevron.width) + 22

    implicitWidth: labelVisible ? fullWidth : compactWidth
    opened: menu !== null && menu.shown
    tip: labelVisible || opened ? "" : label
    onClicked: root.menu?.toggle()
    Keys.enabled: root.menu !== null
    Keys.onDownPressed: root.menu.toggle()
    Keys.onUpPressed: root.menu.toggle()

    Row {
        anchors.centerIn: parent
        height: parent.height
        spacing: 7

        Icon {
            id: glyph

            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            size: 20 * Theme.iconScale
            color: Theme.colors.text
        }
        Row {
            visible: root.labelVisible
            height: parent.height
            spacing: 4

            Label {
                id: title

                anchors.verticalCenter: parent.verticalCenter
                textStyle: Theme.type.subheadline
                text: root.label
            }
            Icon {
                id: chevron

                visible: root.menu !== null
                anchors.verticalCenter: parent.verticalCenter
                name: "chevron.down"
                size: 14 * Theme.iconScale
                color: Theme.colors.text2
            }
        }
    }
}
