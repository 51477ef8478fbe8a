import QtQuick
import Vasker.Platform

// A text of any length, whole and wrapped, that can be selected and copied. Of a long one only what is in
// view is laid out.
SelectableText {
    id: root

    required property string content
    readonly property bool isLong: TextLength.isLong(root.content)
    property bool isTabStop: true
    property LongText pieces: null

    function takeFocus(): void {
        if (root.isLong) {
            root.pieces.forceActiveFocus(Qt.TabFocusReason);
        } else {
            root.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    activeFocusOnTab: root.isTabStop && !root.isLong
    Accessible.ignored: root.isLong || !root.visible
    text: root.isLong ? "" : root.content
    // As in WholeText.
    onIsLongChanged: {
        if (root.isLong) {
            root.pieces = maker.createObject(root) as LongText;
            root.height = Qt.binding(() => root.pieces.height);
        } else {
            root.height = undefined;
            root.pieces.destroy();
        }
    }

    Component {
        id: maker

        LongText {
            width: root.width // qmllint disable
            textStyle: root.textStyle // qmllint disable
            color: root.color // qmllint disable
            text: root.content // qmllint disable
            Accessible.description: root.Accessible.description // qmllint disable
        }
    }
}
