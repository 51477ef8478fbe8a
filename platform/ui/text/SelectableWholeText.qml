import QtQuick
import Vasker.Platform

// A text of any length, whole and wrapped, that can be selected and copied. Of a long one only what is in
// view is laid out.
SelectableText {
    id: root

    required property string content
    readonly property bool isLong: TextLength.isLong(root.content)
    property bool isTabStop: true

    function takeFocus(): void {
        if (root.isLong) {
            (pieces.item as Item).forceActiveFocus(Qt.TabFocusReason);
        } else {
            root.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    height: root.isLong ? pieces.height : root.implicitHeight
    activeFocusOnTab: root.isTabStop && !root.isLong
    Accessible.ignored: root.isLong || !root.visible
    text: root.isLong ? "" : root.content

    // Not a bound component, as in WholeText.
    Loader {
        id: pieces

        active: root.isLong
        width: root.width
        sourceComponent: LongText {
            textStyle: root.textStyle // qmllint disable
            color: root.color // qmllint disable
            text: root.content // qmllint disable
            Accessible.description: root.Accessible.description // qmllint disable
        }
    }
}
