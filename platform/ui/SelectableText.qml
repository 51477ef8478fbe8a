import QtQuick
import Vasker.Platform

// A text that can be selected and copied, with the mouse and with the keyboard; taken literally.
TextEdit {
    id: root

    property textStyle textStyle: Theme.type.body
    // Gets every key before the text does: the list that the keys scroll.
    property Item keyTarget: null

    font: root.textStyle.font
    topPadding: root.textStyle.halfLeading
    bottomPadding: root.textStyle.halfLeading
    color: Theme.colors.text
    selectionColor: Theme.colors.accent
    selectedTextColor: Theme.colors.onAccent
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    readOnly: true
    selectByMouse: true
    selectByKeyboard: true
    activeFocusOnPress: true
    activeFocusOnTab: true
    cursorVisible: activeFocus && FocusVisibility.visible
    // Screen readers read all static texts of a sheet as it opens, in view or not.
    Accessible.role: Accessible.Paragraph
    Accessible.name: root.text
    Accessible.ignored: !root.visible
    Accessible.focusable: root.activeFocusOnTab
    Keys.forwardTo: root.keyTarget === null ? [] : [root.keyTarget]

    FocusRing {
        around: 4
    }
    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }
}
