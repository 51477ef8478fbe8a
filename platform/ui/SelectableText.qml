import QtQuick
import Vasker.Platform

// A text that can be selected and copied; taken literally.
TextEdit {
    id: root

    property TextStyle textStyle: Theme.body

    font: root.textStyle.font
    color: Theme.ink
    selectionColor: Theme.accent
    selectedTextColor: Theme.onAccent
    textFormat: TextEdit.PlainText
    wrapMode: TextEdit.Wrap
    readOnly: true
    selectByMouse: true
    activeFocusOnPress: true
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
    Accessible.ignored: !root.visible

    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }
}
