import QtQuick
import Vasker.Platform

// A text of any length, whole and wrapped. Of a long one only what is in view is laid out.
Label {
    id: root

    required property string content
    readonly property bool isLong: TextLength.isLong(root.content)

    height: root.isLong ? pieces.height : root.implicitHeight
    wrapMode: Text.Wrap
    text: root.isLong ? "" : root.content

    // Not a bound component: other types derive from this one, see HoverTip.
    Loader {
        id: pieces

        active: root.isLong
        width: root.width
        sourceComponent: LongLabel {
            textStyle: root.textStyle // qmllint disable
            color: root.color // qmllint disable
            text: root.content // qmllint disable
        }
    }
}
