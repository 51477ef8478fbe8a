pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Platform

// A text of any length that cannot be selected, taken literally. Only what is in view of the list that
// scrolls it is laid out.
PiecedTextItem {
    id: root

    property color color: Theme.colors.text

    // Screen readers read all static texts of a sheet as it opens, in view or not.
    Accessible.role: Accessible.Paragraph
    Accessible.name: root.text
    Accessible.ignored: !root.visible

    Repeater {
        model: root.shown
        delegate: Label {
            id: label

            required property int piece
            required property string content
            required property real place

            y: label.place
            width: root.width
            topPadding: 0
            bottomPadding: 0
            wrapMode: Text.Wrap
            textStyle: root.textStyle
            color: root.color
            text: label.content
            onHeightChanged: root.setPieceHeight(label.piece, label.height)
            Component.onCompleted: root.setPieceHeight(label.piece, label.height)
        }
    }
}
