import QtQuick
import Vasker.Detail
import Vasker.Platform

// Offers the file of the release, and tells in a quiet line how the last action on it ended.
SectionRow {
    id: root

    required property string file

    spacing: 4

    Button {
        id: button

        objectName: "open-map-share"
        width: parent.width
        implicitHeight: Math.max(title.height, icon.height)
        leftInset: -10
        rightInset: -10
        topInset: -6
        bottomInset: -6
        radius: Theme.menuRowRadius
        label: qsTr("Share the open-data file")
        opened: menu.shown
        onClicked: menu.toggle()

        Icon {
            id: icon

            y: Math.round((Theme.type.body.lineHeight - height) / 2)
            anchors.left: parent.left
            name: "square.and.arrow.up"
            size: 20 * Theme.iconScale
            color: Theme.colors.accent
        }
        Label {
            id: title

            anchors.left: icon.right
            anchors.leftMargin: 10
            anchors.right: parent.right
            wrapMode: Text.Wrap
            color: Theme.colors.accent
            text: button.label
        }
        ShareMenu {
            id: menu

            anchor: button
            file: root.file
        }
    }
    Label {
        visible: text.length > 0
        anchors.right: parent.right
        width: parent.width - icon.width - 10
        wrapMode: Text.Wrap
        textStyle: Theme.type.caption
        color: Theme.colors.text2
        text: FileShare.message
        spoken: true
    }
}
