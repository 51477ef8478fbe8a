import QtQuick

// How many rows of a long list are made: the first at once, then one after each frame.
Timer {
    id: root

    required property int promptCount
    required property int count
    property int later: 0
    readonly property int made: root.promptCount + root.later

    interval: 1
    repeat: true
    running: root.made < root.count
    onTriggered: ++root.later
}
