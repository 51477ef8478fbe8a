import QtQuick
import Vasker.Platform

// A row that is one text.
SectionRow {
    id: root

    required property string text
    property textStyle textStyle: Theme.type.footnote
    property color color: Theme.colors.text

    WholeText {
        width: parent.width
        textStyle: root.textStyle
        color: root.color
        content: root.text
        spoken: true
    }
}
