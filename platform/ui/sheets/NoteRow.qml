import QtQuick
import Vasker.Platform

// A row that is one text.
SectionRow {
    id: root

    required property string text
    property textStyle textStyle: Theme.type.footnote
    property color color: Theme.colors.text

    Label {
        width: parent.width
        wrapMode: Text.Wrap
        textStyle: root.textStyle
        color: root.color
        text: root.text
        spoken: true
    }
}
