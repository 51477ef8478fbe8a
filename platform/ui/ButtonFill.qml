import QtQuick
import Vasker.Platform

// The fill of a button while the pointer is on it, or while it is held down.
Rectangle {
    property bool shown: false
    property bool held: false

    color: held ? Theme.colors.pressed : Theme.colors.hover
    opacity: shown || held ? 1 : 0
    Behavior on opacity {
        NumberAnimation {
            duration: Theme.hoverDuration
        }
    }
}
