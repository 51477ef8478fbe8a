import QtQuick
import QtQuick.Templates as T

// The keys that press a button, which forwards its keys here: Enter as well as Space, and a key that
// is held presses once.
Item {
    id: root

    required property T.AbstractButton button

    function isEnter(key: int): bool {
        return key === Qt.Key_Return || key === Qt.Key_Enter;
    }

    Keys.onPressed: event => {
        event.accepted = root.isEnter(event.key) || event.key === Qt.Key_Space && event.isAutoRepeat;
        if (root.isEnter(event.key) && !event.isAutoRepeat) {
            root.button.clicked();
        }
    }
    // What was pressed elsewhere is not released here.
    Keys.onReleased: event => {
        event.accepted = event.isAutoRepeat || root.isEnter(event.key) || !root.button.pressed;
    }
}
