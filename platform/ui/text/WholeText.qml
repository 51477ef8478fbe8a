import QtQuick
import Vasker.Platform

// A text of any length, whole and wrapped. Of a long one only what is in view is laid out.
Label {
    id: root

    required property string content
    readonly property bool isLong: TextLength.isLong(root.content)
    property LongLabel pieces: null

    wrapMode: Text.Wrap
    text: root.isLong ? "" : root.content
    // Few texts are long, and a sheet has many: no loader in each.
    onIsLongChanged: {
        if (root.isLong) {
            root.pieces = maker.createObject(root) as LongLabel;
            root.height = Qt.binding(() => root.pieces.height);
        } else {
            root.height = undefined;
            root.pieces.destroy();
        }
    }

    // Not a bound component: other types derive from this one, see HoverTip.
    Component {
        id: maker

        LongLabel {
            width: root.width // qmllint disable
            textStyle: root.textStyle // qmllint disable
            color: root.color // qmllint disable
            text: root.content // qmllint disable
        }
    }
}
