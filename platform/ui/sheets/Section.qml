import QtQuick
import Vasker.Platform

// Rows that belong together, on a card, below a title if there is one. Without rows there is no card.
Column {
    id: root

    property string title
    default property alias rows: column.data

    width: parent?.width ?? 0
    spacing: 6

    Label {
        visible: root.title.length > 0
        x: 14
        width: parent.width - 28
        wrapMode: Text.Wrap
        textStyle: Theme.type.sectionTitle
        color: Theme.colors.text2
        text: root.title
        spoken: true
        Accessible.role: Accessible.Heading
    }
    Rectangle {
        visible: column.height > 0
        width: parent.width
        height: column.height
        radius: Theme.cardRadius
        color: Theme.colors.card
        border.width: 1
        border.color: Theme.colors.line

        Column {
            id: column

            width: parent.width
        }
    }
}
