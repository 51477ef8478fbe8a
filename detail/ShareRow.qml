import QtQuick
import Vasker.Detail
import Vasker.Platform

// Offers the file of the release, and tells in a quiet line how the last wish for it ended.
SectionRow {
    id: root

    required property string file

    spacing: 4

    Item {
        id: button

        objectName: "open-map-share"
        width: parent.width
        height: Math.max(label.height, icon.height)
        activeFocusOnTab: true
        Accessible.role: Accessible.Button
        Accessible.name: label.text
        Accessible.ignored: !visible
        Accessible.focusable: true
        Accessible.onPressAction: menu.offer()
        Keys.onSpacePressed: menu.offer()
        Keys.onReturnPressed: menu.offer()
        Keys.onEnterPressed: menu.offer()

        Rectangle {
            x: -10
            y: -6
            width: parent.width + 20
            height: parent.height + 12
            radius: Theme.menuRowRadius
            color: menu.opened || tap.pressed ? Theme.colors.pressed : Theme.colors.hover
            visible: hover.hovered || menu.opened
        }
        FocusRing {
            around: 4
        }
        Icon {
            id: icon

            y: Math.round((Theme.type.body.lineHeight - height) / 2)
            name: "square.and.arrow.up"
            size: 20 * Theme.iconScale
            color: Theme.colors.accent
        }
        Label {
            id: label

            x: icon.width + 10
            width: parent.width - x
            wrapMode: Text.Wrap
            color: Theme.colors.accent
            text: qsTr("Share the open-data file")
        }
        HoverHandler {
            id: hover
        }
        TapHandler {
            id: tap

            gesturePolicy: TapHandler.ReleaseWithinBounds
            onTapped: {
                button.forceActiveFocus(Qt.MouseFocusReason);
                menu.offer();
            }
        }
        ShareMenu {
            id: menu

            row: button
            file: root.file
            onClosed: button.forceActiveFocus(Qt.PopupFocusReason)
        }
    }
    Label {
        visible: text.length > 0
        x: icon.width + 10
        width: parent.width - x
        wrapMode: Text.Wrap
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        text: FileShare.message
        spoken: true
    }
}
