import QtQuick
import Vasker.Platform

// The place of a list where a search found nothing.
Item {
    id: root

    required property string title
    required property string advice

    implicitHeight: column.y + column.height
    Accessible.role: Accessible.StaticText
    Accessible.name: root.title
    Accessible.description: root.advice
    Accessible.ignored: !root.visible

    Column {
        id: column

        x: 28
        y: 72
        width: root.width - 56
        spacing: 0

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "search"
            size: 44 * Theme.iconScale
            color: Theme.colors.text3
        }
        Item {
            width: 1
            height: 12
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            textStyle: Theme.type.emptyTitle
            text: root.title
        }
        Item {
            width: 1
            height: 4
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            textStyle: Theme.type.footnote
            color: Theme.colors.text2
            text: root.advice
        }
    }
}
