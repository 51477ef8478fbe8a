pragma ComponentBehavior: Bound
import QtQuick
import Vasker.Platform

// A text of any length that can be selected and copied as a whole, taken literally. Only what is in
// view of the list that scrolls it is laid out.
PiecedTextItem {
    id: root

    property color color: Theme.colors.text

    function positionAt(x: real, y: real): int {
        const row = root.rowAt(y);
        const piece = pieces.itemAt(row) as TextEdit;
        return piece === null ? 0 : root.startOf(row) + piece.positionAt(x, y - piece.y);
    }

    textStyle: Theme.type.body
    activeFocusOnTab: true
    // Screen readers read all static texts of a sheet as it opens, in view or not.
    Accessible.role: Accessible.Paragraph
    Accessible.name: root.text
    Accessible.ignored: !root.visible
    Accessible.focusable: true
    Keys.forwardTo: root.scroller === null ? [] : [root.scroller]
    Keys.onPressed: event => event.accepted = root.press(event.key, event.modifiers)
    onActiveFocusChanged: if (!activeFocus) {
        select(0, 0);
    }

    Repeater {
        id: pieces

        model: root.shown
        delegate: TextEdit {
            id: edit

            required property int piece
            required property string content
            required property real place
            required property int anchor
            required property int cursor
            required property bool holdsCursor

            function showSelection(): void {
                edit.select(edit.anchor, edit.cursor);
            }

            y: edit.place
            width: root.width
            horizontalAlignment: TextEdit.AlignLeft
            font: root.textStyle.font
            color: root.color
            selectionColor: Theme.colors.accent
            selectedTextColor: Theme.colors.onAccent
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            readOnly: true
            selectByMouse: false
            activeFocusOnPress: false
            cursorVisible: edit.holdsCursor && root.activeFocus && FocusVisibility.visible
            text: edit.content
            Accessible.ignored: true
            onAnchorChanged: edit.showSelection()
            onCursorChanged: edit.showSelection()
            onHeightChanged: root.setPieceHeight(edit.piece, edit.height)
            Component.onCompleted: {
                edit.showSelection();
                root.setPieceHeight(edit.piece, edit.height);
            }
        }
    }
    MouseArea {
        id: pointer

        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        onPressed: mouse => {
            // A finger scrolls, a mouse selects.
            pointer.preventStealing = mouse.source === Qt.MouseEventNotSynthesized;
            const place = root.positionAt(mouse.x, mouse.y);
            root.forceActiveFocus(Qt.MouseFocusReason);
            if (mouse.modifiers & Qt.ShiftModifier) {
                root.extendSelection(place);
            } else {
                root.select(place, place);
            }
        }
        onPositionChanged: mouse => root.extendSelection(root.positionAt(mouse.x, mouse.y))
        onDoubleClicked: mouse => root.selectWord(root.positionAt(mouse.x, mouse.y))
    }
    FocusRing {
        around: 4
    }
}
