import QtQuick
import Vasker.Platform

// A text in one of the theme's styles, taken literally: never markup unless a view says so.
Text {
    id: root

    property textStyle textStyle: Theme.type.body
    // Whether assistive tools read it by itself, not as part of what it labels.
    property bool spoken: false

    font: root.textStyle.font
    color: Theme.colors.text
    // Also where the text itself runs the other way.
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText
    lineHeightMode: Text.FixedHeight
    lineHeight: root.textStyle.lineHeight
    topPadding: root.textStyle.halfLeading
    bottomPadding: -root.textStyle.halfLeading
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
    Accessible.ignored: !(root.spoken && root.visible)
}
